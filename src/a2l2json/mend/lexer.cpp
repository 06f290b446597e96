// SPDX-License-Identifier: MIT
#include "a2l2json/mend/lexer.h"

#include <algorithm>
#include <array>
#include <utility>

#include "a2l2json/mend/encodings.h"

namespace a2l::mending {
namespace {

constexpr std::string_view kInclude = "/include";

// Files that include each other in chains, or one file many times, could otherwise make much of
// little: no file in use comes close.
constexpr std::size_t kMostDepth = 64;
constexpr std::size_t kMostIncludes = 4096;
// No name of a file has more bytes: what follows on a long line is not looked through each time.
constexpr std::size_t kMostNameBytes = 1024;

bool BeginsComment(std::string_view rest) {
  return rest.starts_with("//") || rest.starts_with("/*");
}

bool IsMarkerOrComment(std::string_view rest) {
  return rest.starts_with(kBegin) || rest.starts_with(kEnd) || BeginsComment(rest);
}

// Moves behind white space and comments. A comment that is not closed is reported where the words
// go on.
void SkipToName(Source& source) {
  for (SkipWhite(source); BeginsComment(source.Rest()); SkipWhite(source)) {
    if (!SkipComment(source)) return;
  }
}

std::string_view WithoutWhiteEnd(std::string_view text) {
  while (!text.empty() && IsWhite(text.back())) text.remove_suffix(1);
  return text;
}

// What a name without quotes may be: the first word, which may be the name of a folder only; all
// words up to a comment; the first word with what looks like a comment in it.
std::array<std::string_view, 3> UnquotedNames(std::string_view line) {
  const std::string_view words = line.substr(0, std::min(line.find("/*"), line.find("//")));
  const auto firstOf = [](std::string_view text) {
    return text.substr(0, text.find_first_of(" \t\v\f"));
  };
  return {firstOf(words), WithoutWhiteEnd(words), firstOf(line)};
}

char LowerCase(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

}  // namespace

Finding FindingAt(MendRule rule, const Word& word) {
  Finding finding;
  finding.rule = rule;
  finding.file = word.file;
  finding.line = word.line;
  finding.column = word.column;
  finding.word = word.text;
  return finding;
}

std::string_view NameInInclude(const Word& word) {
  Source source = MakeSource(word.text, word.file, {});
  source.position = kInclude.size();
  SkipToName(source);
  return source.Rest();
}

bool MayStay(std::string_view nameInInclude) {
  return !nameInInclude.empty() && nameInInclude.find(kBegin) == std::string_view::npos &&
         nameInInclude.find(kEnd) == std::string_view::npos;
}

Lexer::Lexer(std::string_view text, std::size_t start, const MendOptions& options,
             Reporter& reporter)
    : options_(options), reporter_(reporter) {
  sources_.push_back(MakeSource(text, options.name, options.path));
  sources_.back().isMain = true;
  sources_.back().position = start;
}

Word Lexer::Next() {
  Word word;
  while (!Take(word)) {
  }
  return word;
}

// False where a comment, or the end of an included file, is in the place of a word.
bool Lexer::Take(Word& word) {
  Source& source = Top();
  SkipWhite(source);
  if (source.AtEnd() && LeaveFile()) return false;
  SetPlace(word);
  if (source.AtEnd()) {
    word.type = WordType::EndOfInput;
    return true;
  }
  const char c = source.text[source.position];
  word.type = WordType::Plain;
  if (c == '"') {
    word.type = WordType::Text;
    word.traits = SkipText(source);
  } else if (c == '/' && source.HasComment()) {
    if (!SkipComment(source)) reporter_.Report(FindingAt(MendRule::CommentWithoutEnd, word));
    return false;
  } else if (c == '/' && source.Rest().starts_with(kBegin)) {
    word.type = WordType::Begin;
    source.position += kBegin.size();
  } else if (c == '/' && source.Rest().starts_with(kEnd)) {
    word.type = WordType::End;
    source.position += kEnd.size();
  } else if (c == '/' && HasInclude()) {
    return !FollowInclude(word);
  } else {
    TakePlain(word);
  }
  Finish(word);
  return true;
}

Word Lexer::Here(WordType type) const {
  Word word;
  word.type = type;
  SetPlace(word);
  return word;
}

void Lexer::SetPlace(Word& word) const {
  const Source& source = sources_.back();
  word.text = {};
  word.begin = word.end = source.position;
  word.file = source.name;
  word.line = source.line;
  word.column = source.position - source.lineStart + 1;
  word.isFirst = source.atLineStart;
  word.isInMain = source.isMain;
}

void Lexer::Finish(Word& word) {
  Source& source = Top();
  source.atLineStart = false;
  word.end = source.position;
  word.text = source.text.substr(word.begin, word.end - word.begin);
}

void Lexer::TakePlain(Word& word) {
  Source& source = Top();
  const char* const end = source.text.data() + source.text.size();
  const char* at = source.text.data() + source.position + 1;
  for (;; ++at) {
    at = FindEndOfWord(at, end);
    if (at == end || IsWhite(*at)) break;
    if (*at == '"') word.hasQuote = true;
    if (*at == '/' && IsMarkerOrComment({at, static_cast<std::size_t>(end - at)})) break;
  }
  source.position = static_cast<std::size_t>(at - source.text.data());
}

void Lexer::Return(const Word& marker) {
  Top().position = marker.begin;
  Top().atLineStart = marker.isFirst;
}

bool Lexer::LeaveFile() {
  if (sources_.size() == 1) return false;
  sources_.pop_back();
  return true;
}

bool Lexer::HasInclude() const {
  const Source& source = sources_.back();
  const std::string_view rest = source.Rest();
  return rest.size() >= kInclude.size() &&
         std::equal(kInclude.begin(), kInclude.end(), rest.begin(),
                    [](char a, char b) { return a == LowerCase(b); }) &&
         (rest.size() == kInclude.size() || IsWhite(rest[kInclude.size()]) ||
          rest[kInclude.size()] == '"' || IsMarkerOrComment(rest.substr(kInclude.size())));
}

bool Lexer::FollowInclude(Word& word) {
  Source& source = Top();
  word = Here(WordType::Include);
  source.position += kInclude.size();
  const Source behind = source;
  SkipToName(source);
  const std::string_view rest = source.Rest();
  // To the end of the line at most, without the white space there.
  std::string_view line = rest.substr(0, kMostNameBytes);
  line = line.substr(0, line.find_first_of("\r\n"));
  Names names;
  std::string_view& name = names.front();
  if (rest.starts_with('"')) {
    const std::size_t close = std::min(line.find('"', 1), line.size());
    name = line.substr(1, close - 1);
    source.position += std::min(close + 1, line.size());
  } else {
    names = UnquotedNames(line);
    source.position += name.size();
  }
  if (name.starts_with(kBegin) || name.starts_with(kEnd)) names.fill({});
  if (name.empty() && !rest.starts_with(R"("")")) source = behind;
  Finish(word);
  MendRule problem = MendRule::IncludeMissing;
  std::string detail = "no name is given";
  Finding finding = FindingAt(problem, word);
  finding.word = name.empty() ? R"("")" : name;
  if (!name.empty() && OpenOneOf(word, names, problem, detail)) return true;
  finding.rule = problem;
  finding.detail = detail;
  reporter_.Report(finding);
  return false;
}

// The words go on behind the name that is found, or else behind the first one. That is also the one
// whose problem is told.
bool Lexer::OpenOneOf(const Word& word, const Names& names, MendRule& problem,
                      std::string& detail) {
  const std::string_view first = names.front();
  if (Open(word, first, problem, detail)) return true;
  const bool isNoFile = problem == MendRule::IncludeMissing || problem == MendRule::IncludeRefused;
  if (!isNoFile) return false;
  const std::size_t position = Top().position;
  for (const std::string_view longer : names) {
    if (longer.size() <= first.size()) continue;
    MendRule ignoredProblem = problem;
    std::string ignored;
    Top().position = position + longer.size() - first.size();
    if (Open(word, longer, ignoredProblem, ignored)) return true;
  }
  Top().position = position;
  return false;
}

bool Lexer::Open(const Word& word, std::string_view name, MendRule& problem, std::string& detail) {
  if (included_ == kMostIncludes || sources_.size() > kMostDepth) {
    problem = MendRule::IncludeLimit;
    return false;
  }
  IncludedFile file;
  file.problem = "nothing is included";
  if (options_.open) file = options_.open(name, Top().path);
  if (file.status != IncludedFile::Status::Read) {
    problem = file.status == IncludedFile::Status::Missing ? MendRule::IncludeMissing
                                                           : MendRule::IncludeRefused;
    detail = std::move(file.problem);
    return false;
  }
  const bool isOpen = std::ranges::any_of(
      sources_, [&file](const Source& source) { return source.path == file.path; });
  if (isOpen) {
    problem = MendRule::IncludeCircle;
    return false;
  }
  return Push(word, name, std::move(file));
}

bool Lexer::Push(const Word& word, std::string_view name, IncludedFile file) {
  ++included_;
  if (word.isInMain) {
    Finding finding = FindingAt(MendRule::Include, word);
    finding.word = name;
    reporter_.Report(finding);
  }
  const Encoding encoding = EncodingOf(file.bytes);
  if (encoding != Encoding::Bytes) file.bytes = Utf8Of(file.bytes, encoding);
  std::string changed;
  if (MakeLineFeeds(file.bytes, changed)) file.bytes = std::move(changed);
  const std::string& path = kept_.emplace_back(std::move(file.path));
  const std::string& bytes = kept_.emplace_back(std::move(file.bytes));
  Source source = MakeSource(bytes, path, path);
  if (source.text.starts_with(kByteOrderMark)) source.position = kByteOrderMark.size();
  sources_.push_back(source);
  return true;
}

}  // namespace a2l::mending
