// SPDX-License-Identifier: MIT
//
// Compares lines, comments and tokens with those of the naive implementation.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "a2l2json/elements/parameter_text.h"
#include "a2l2json/reader/comments.h"
#include "a2l2json/reader/line_source.h"
#include "a2l2json/text/bytes.h"
#include "a2l2json/text/tokenizer.h"
#include "fuzz/check.h"
#include "fuzz/naive_tokenizer.h"

namespace a2l::fuzz {
namespace {

void CheckUnquote(std::string_view token) {
  const std::string expected = naive::Unquote(std::string(token));
  CheckSame(Unquote(token), expected, "Unquote");
  std::vector<char> room(token.size());
  const std::size_t size = UnquoteInto(token, room.data());
  CheckSame(std::string_view(room.data(), size), expected, "UnquoteInto");
}

// A copy of `text` in memory of its own, with the bytes behind it that a padded one has.
std::vector<char> PaddedCopy(std::string_view text) {
  std::vector<char> copy(text.begin(), text.end());
  copy.resize(text.size() + bytes::kBlock, '"');
  return copy;
}

void CheckTokens(std::string_view text) {
  TreeStore store;
  std::string naiveRest(text);
  std::string_view rest = text;
  const std::vector<char> copy = PaddedCopy(text);
  std::string_view paddedRest(copy.data(), text.size());
  while (true) {
    TokenReader forReadText(rest);
    const std::string_view token = NextToken(rest);
    CheckSame(NextPaddedToken(paddedRest), token, "NextPaddedToken");
    CheckSame(paddedRest, rest, "the rest behind a token in a padded text");
    const std::string expected = naive::NextToken(naiveRest).text;
    CheckSame(token, expected, "NextToken");
    CheckSame(rest, naiveRest, "the rest behind a token");
    CheckUnquote(token);
    CheckSame(detail::ReadText(store, forReadText), naive::Unquote(expected), "ReadText");
    CheckSame(forReadText.Rest(), naiveRest, "the rest behind a text");
    if (token.empty()) break;
  }
}

void CheckCount(std::string_view text) {
  const std::size_t count = naive::CountTokens(std::string(text));
  CheckSame(CountTokens(text), count, "CountTokens");
}

// As the reader does it: each line is appended to those before it, after a blank.
void CheckFinder(const std::deque<std::string>& lines, std::size_t needed) {
  // The naive implementation counts from the beginning for every line.
  constexpr std::size_t kMostLines = 40;
  TokenFinder finder;
  std::string text;
  for (std::size_t i = 0; i < std::min(lines.size(), kMostLines); ++i) {
    if (i > 0) text += ' ';
    text += lines[i];
    const std::vector<char> copy = PaddedCopy(text);
    const std::string_view padded(copy.data(), text.size());
    const bool found = naive::CountTokens(text) >= needed;
    Check(finder.Find(padded, needed) == found, "TokenFinder finds as many tokens");
    if (!found) continue;
    TokenReader reader = finder.Tokens(padded);
    std::string rest = text;
    for (std::size_t token = 0; token < needed; ++token) {
      CheckSame(reader.Next(), naive::NextToken(rest).text, "a token of TokenFinder");
    }
    return;
  }
}

void CheckLines(std::string_view bytes, std::size_t pieceSize,
                const std::deque<std::string>& lines) {
  std::istringstream in{std::string(bytes)};
  LineSource source(in, pieceSize);
  std::string_view line;
  for (const std::string& expected : lines) {
    Check(source.Next(line), "LineSource has as many lines");
    CheckSame(line, expected, "a line");
    CheckSame(source.SlashesOfLine().first, expected.find('/'), "its first slash");
    CheckSame(source.SlashesOfLine().last, expected.rfind('/'), "its last slash");
  }
  Check(!source.Next(line), "LineSource has no further line");
}

void CheckComments(const std::deque<std::string>& lines) {
  std::deque<std::string> following = lines;
  std::size_t next = 0;
  CommentRemover remover;
  // A line need not stay readable when the next one comes, so each lies in memory of its own.
  std::optional<std::vector<char>> current;
  const CommentRemover::NextLine nextLine = [&](std::string_view& line) {
    if (next == lines.size()) return false;
    current.emplace(lines[next].begin(), lines[next].end());
    ++next;
    line = std::string_view(current->data(), current->size());
    return true;
  };
  while (!following.empty()) {
    std::string first = following.front();
    following.pop_front();
    const std::optional<std::string> expected = naive::WithoutComments(std::move(first), following);
    std::string_view line;
    Check(nextLine(line), "CommentRemover takes as many lines");
    Check(remover.Remove(line, nextLine) == expected.has_value(), "a comment ends with the file");
    if (!expected.has_value()) return;
    CheckSame(line, *expected, "a line without comments");
    CheckSame(next, lines.size() - following.size(), "the lines that a comment took");
  }
}

void CheckTokenizer(std::string_view bytes) {
  CheckSame(Trim(bytes), naive::Trim(std::string(bytes)), "Trim");
  CheckUnquote(bytes);
  CheckTokens(bytes);
  CheckCount(bytes);
  const std::deque<std::string> lines = naive::Lines(std::string(bytes));
  CheckLines(bytes, 1, lines);
  CheckLines(bytes, 2 + bytes.size() / 3, lines);
  for (const std::size_t needed : {1U, 3U, 8U, 40U}) CheckFinder(lines, needed);
  CheckComments(lines);
}

}  // namespace
}  // namespace a2l::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  a2l::fuzz::CheckTokenizer(a2l::fuzz::Input(data, size, 1024));
  return 0;
}
