// SPDX-License-Identifier: MIT
//
// How parameter text falls into tokens. A token is a run of bytes without a blank, or a text in
// double quotes, quotes included. Only the blank separates: a tab between two values belongs to
// one long token. Inside quotes, a doubled quote and a quote behind a backslash do not close.
// Everything works on single bytes, so any character set passes through.
//
// All results are views into the text that was passed in; nothing is copied.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace a2l {

/// True for the bytes that Trim removes: blank, tab, line feed and carriage return.
[[nodiscard]] constexpr bool IsTrimmed(char c) {
  return static_cast<unsigned char>(c) <= ' ' && (c == ' ' || c == '\t' || c == '\n' || c == '\r');
}

/// `text` without blanks, tabs, line feeds and carriage returns at its two ends. Every token of a
/// file passes through here, mostly with nothing to remove; hence inline.
[[nodiscard]] constexpr std::string_view Trim(std::string_view text) {
  const char* begin = text.data();
  const char* end = begin + text.size();
  while (begin != end && IsTrimmed(*begin)) ++begin;
  while (begin != end && IsTrimmed(end[-1])) --end;
  return {begin, static_cast<std::size_t>(end - begin)};
}

/// Trims `text`, cuts the first token off its front and returns it, itself trimmed. The rest
/// stays as it stands, with the blank that ended the token; empty text gives an empty token. A
/// quoted text without its closing quote is taken to the end.
std::string_view NextToken(std::string_view& text);

/// The number of tokens that NextToken would give, but that a quoted text without its closing
/// quote ends the count and is not counted.
[[nodiscard]] std::size_t CountTokens(std::string_view text);

/// The contents of a quoted token, escapes replaced: a doubled quote, and a backslash before a
/// quote, a backslash, an apostrophe or one of the letters n, r and t. Ends before the closing
/// quote. A token that does not begin with a quote gives the empty text.
[[nodiscard]] std::string Unquote(std::string_view token);

/// The same into `out`, which has room for token.size() bytes; gives the number of bytes.
std::size_t UnquoteInto(std::string_view token, char* out);

/// Position of the quote that closes a quoted text, looking from `from` on, which is behind the
/// opening quote (and so at least 1); npos when it is not closed.
[[nodiscard]] std::size_t FindClosingQuote(std::string_view text, std::size_t from);

/// Counts the tokens of a text that grows at its end, each byte looked at once. Between two
/// calls the text may only be appended to, beginning with a blank.
class TokenCounter {
 public:
  /// Takes up what was appended; `text` is the whole text.
  void Continue(std::string_view text);
  void Reset() { *this = {}; }
  [[nodiscard]] std::size_t Count() const { return count_; }

 private:
  std::size_t position_ = 0;
  std::size_t count_ = 0;
  bool inQuotes_ = false;
};

}  // namespace a2l
