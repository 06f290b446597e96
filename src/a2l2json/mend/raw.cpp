// SPDX-License-Identifier: MIT
#include "a2l2json/mend/raw.h"

#include <algorithm>
#include <functional>

namespace a2l::mending {
namespace {

// The word behind a marker.
std::string_view KeywordBehind(std::string_view rest) {
  std::size_t begin = kBegin.size();
  while (begin < rest.size() && IsWhite(rest[begin])) ++begin;
  std::size_t end = begin;
  while (end < rest.size() && !IsWhite(rest[end]) && rest[end] != '/' && rest[end] != '"') ++end;
  return rest.substr(begin, end - begin);
}

// To the converter, a star at the end of a line and a slash at the beginning of the next one end a
// comment as well; what follows would be text.
bool EndsSooner(std::string_view comment) {
  for (std::size_t i = comment.find("\n/"); i != std::string_view::npos;
       i = comment.find("\n/", i + 1)) {
    std::size_t last = i;
    while (comment[last] == '\n') --last;
    if (last > 1 && comment[last] == '*') return true;
  }
  return false;
}

// Behind other bytes of a word, "/include" is a part of it.
bool IsInWord(const Source& source) {
  if (source.position == 0) return false;
  const char before = source.text[source.position - 1];
  return !IsWhite(before) && before != '"' && before != '/';
}

// To the next comment, or what looks like one, or the end of the line, or another such byte.
template <char... kOthers>
void MoveToComment(Source& source) {
  for (source.MoveTo<kOthers..., '/', '\n'>(); !source.AtEnd();
       source.MoveTo<kOthers..., '/', '\n'>()) {
    if (source.text[source.position] != '/' || source.HasComment()) return;
    ++source.position;
  }
}

bool IsBlank(std::string_view text) { return std::ranges::all_of(text, &IsWhite); }

}  // namespace

Word RawText::CopyToEnd(const Word& name) {
  // To the converter, a quote in the name begins a text, which hides a comment on the line and ends
  // at the next quote. In the mended text, a line ends behind the name.
  if (name.hasQuote && !reporter_.HasReported(name)) {
    Source ahead = lexer_.Top();
    MoveToComment<'"'>(ahead);
    if (!ahead.AtEnd() && ahead.text[ahead.position] != '\n') {
      reporter_.Report(FindingAt(MendRule::Otherwise, name));
    }
  }
  SkipToContent();
  const std::size_t start = out_.BeginRaw();
  SkipToEnd();
  out_.EndRaw(start);
  return lexer_.Next();
}

// Behind the name: what follows on its line, or else the first line that is not blank, with its
// indentation.
void RawText::SkipToContent() {
  Source& source = lexer_.Top();
  const std::size_t line = source.line;
  SkipWhite(source);
  const bool isNewLine = source.line != line;
  SetBegin(isNewLine ? source.lineStart : source.position);
}

void RawText::SkipToEnd() {
  while (true) {
    Source& source = lexer_.Top();
    if (source.AtEnd()) {
      Copy(source.position);
      if (!lexer_.LeaveFile()) return CloseInner();
      PartFromFile();
      SetBegin(lexer_.Top().position);
      continue;
    }
    const std::size_t before = source.position;
    source.MoveTo<'"', '/', '\n'>();
    if (source.atLineStart) {
      source.atLineStart = IsBlank(source.text.substr(before, source.position - before));
    }
    if (source.AtEnd()) continue;
    const char c = source.text[source.position];
    const std::string_view rest = c == '/' ? source.Rest() : std::string_view{};
    if (c == '"') {
      Text();
    } else if (c == '/' && source.HasComment()) {
      Comment();
    } else if (c == '/' && !IsInWord(source) && lexer_.HasInclude()) {
      Include();
    } else if (rest.starts_with(kEnd) && inner_.empty()) {
      return Copy(source.position);
    } else {
      if (rest.starts_with(kBegin)) inner_.push_back(KeywordBehind(rest));
      if (rest.starts_with(kEnd)) inner_.pop_back();
      if (c == '\n') {
        source.EndLine();
      } else {
        source.atLineStart = false;
      }
      ++source.position;
    }
  }
}

// Whether a comment begins on the rest of the line, or what looks like one. The next text of a long
// line need not look again.
bool RawText::CommentFollows() {
  const Source& source = lexer_.Top();
  const char* const begin = source.text.data() + source.position;
  if (std::less<>()(begin, searchedFrom_) || std::less<>()(searchedTo_, begin)) {
    Source ahead = source;
    MoveToComment(ahead);
    searchedFrom_ = begin;
    searchedTo_ = ahead.text.data() + ahead.position;
    commentFollows_ = !ahead.AtEnd() && ahead.HasComment();
  }
  return commentFollows_;
}

// At the end of the file: blocks inside that are open are closed, or they would take the /end that
// is written next for theirs.
void RawText::CloseInner() {
  for (; !inner_.empty(); inner_.pop_back()) {
    out_.Raw("\n");
    out_.SetPlace(lexer_.Top().name, lexer_.Top().line);
    out_.Raw(kEnd);
    out_.Raw(" ");
    out_.Raw(inner_.back());
  }
}

// What follows the /include begins a line, like what is in the file: what stands beside words on
// their line may make something else of them.
void RawText::PartFromFile() {
  const Source& source = lexer_.Top();
  const std::size_t next = source.text.find_first_not_of(" \t\v\f\r", source.position);
  const bool isAtLineEnd = next == std::string_view::npos || source.text[next] == '\n';
  if (!isFirst_ && !isAtLineEnd && out_.LineHasBytes()) out_.Raw("\n");
}

void RawText::Text() {
  Source& source = lexer_.Top();
  Word word = lexer_.Here(WordType::Text);
  word.traits = SkipText(source, keyword_);
  word.text = source.text.substr(word.begin, source.position - word.begin);
  if (!word.traits.isClosed && source.AtEnd()) {
    // What is written behind the end of the file must not get into the text.
    Rewrite(word, MendRule::TextWithoutEnd);
  } else if (word.traits.hasComment || (word.traits.hasLineEnd && CommentFollows())) {
    // On the lines in which a text goes on, the converter takes comments out of it, and none behind
    // it.
    Rewrite(word, MendRule::TextComment);
  } else if (word.traits.hasBackslashQuote && (word.traits.hasCommentSign || CommentFollows())) {
    // To the converter the text goes on, and the comment behind it is none: its markers count. Or
    // it ends sooner, at a doubled quote, and what looks like a comment behind that is one.
    Rewrite(word, MendRule::TextBackslash);
  } else if (word.traits.hasMarker) {
    reporter_.Report(FindingAt(MendRule::TextMarker, word));
    PartSlashes(word);
  }
}

void RawText::Rewrite(const Word& word, MendRule rule) {
  reporter_.Report(FindingAt(rule, word));
  Copy(word.begin);
  // On a line of its own: what stood before it, may have been the last line of another such text.
  const bool isOnNewLine = !isFirst_ && out_.LineHasWords();
  if (isOnNewLine) out_.Raw("\n");
  out_.SetPlace(word.file, word.line);
  if (isOnNewLine) out_.Raw(" ");
  Append(MendedText(word.text, word.traits));
  SetBegin(lexer_.Top().position);
  rewrittenEnd_ = begin_;
}

// A blank goes behind the slashes of markers, and behind that of an /include.
void RawText::PartSlashes(const Word& word) {
  for (std::size_t i = 0; i < word.text.size(); ++i) {
    const std::string_view rest = word.text.substr(i, kBegin.size());
    const bool isInclude = i == 0 && word.type == WordType::Include;
    if (!isInclude && !rest.starts_with(kBegin) && !rest.starts_with(kEnd)) continue;
    Copy(word.begin + i + 1);
    out_.Raw(" ");
  }
}

void RawText::Comment() {
  Source& source = lexer_.Top();
  Word word = lexer_.Here(WordType::Plain);
  const std::string_view text = source.text;
  if (SkipComment(source)) {
    word.text = text.substr(word.begin, source.position - word.begin);
    if (EndsSooner(word.text)) {
      Copy(word.begin);
      SetBegin(source.position);
      if (!isFirst_) Append(" ");
      reporter_.Report(FindingAt(MendRule::Otherwise, word));
      return;
    }
    // Nothing stands in the place of a comment: words that touch it would become one.
    const std::size_t behind = source.position;
    const bool isBehindWord = word.begin > begin_ || word.begin == rewrittenEnd_;
    const bool touches = isBehindWord && !IsWhite(text[word.begin - 1]) && behind < text.size() &&
                         !IsWhite(text[behind]);
    if (!touches) return;
    Copy(behind);
    out_.Raw(" ");
    reporter_.Report(FindingAt(MendRule::Comment, word));
    return;
  }
  // Not closed, it would take in what is written behind it.
  Copy(word.begin);
  SetBegin(source.position);
  reporter_.Report(FindingAt(MendRule::CommentWithoutEnd, word));
}

void RawText::Include() {
  const bool beginsLine = lexer_.Top().atLineStart;
  Copy(lexer_.Top().position);
  Word word;
  if (lexer_.FollowInclude(word)) {
    if (!isFirst_ && !beginsLine) out_.Raw("\n");
    SetBegin(lexer_.Top().position);
  } else if (const std::string_view name = NameInInclude(word); !MayStay(name)) {
    PartSlashes(word);
    const bool isOpen = name.starts_with('"') && (name.size() == 1 || !name.ends_with('"'));
    if (!isOpen) return;
    // Without the /include, the quote begins a text.
    Copy(word.end);
    out_.Raw("\"");
  }
}

void RawText::Copy(std::size_t end) {
  if (isFirst_) SkipBlankLines(end);
  if (begin_ == end) return;
  out_.SetPlace(lexer_.Top().name, beginLine_);
  Append(lexer_.Top().text.substr(begin_, end - begin_));
  begin_ = end;
  beginLine_ = out_.Line();
}

// Before the first word, also where that stands in an included file, or behind one.
void RawText::SkipBlankLines(std::size_t end) {
  const std::string_view text = lexer_.Top().text;
  std::size_t i = begin_;
  for (; i < end && IsWhite(text[i]); ++i) {
    if (text[i] != '\n') continue;
    begin_ = i + 1;
    ++beginLine_;
  }
  if (i == end) begin_ = end;
}

void RawText::SetBegin(std::size_t position) {
  begin_ = position;
  beginLine_ = lexer_.Top().line;
}

void RawText::Append(std::string_view bytes) {
  if (isFirst_ && !bytes.starts_with(' ')) out_.Raw(" ");
  isFirst_ = false;
  out_.Raw(bytes);
}

}  // namespace a2l::mending
