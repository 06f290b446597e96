// SPDX-License-Identifier: MIT
//
// How parameter text falls into tokens. A token is a run of bytes without a blank, or a text in
// double quotes, quotes included. Only the blank separates: a tab between two values belongs to
// one long token. Inside quotes, a doubled quote and a quote behind a backslash do not close.
// Everything works on single bytes, so any character set passes through.
//
// All results are views into the text that was passed in; nothing is copied.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "a2l2json/names_begin.h"

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
/// The same in a padded text (see bytes.h).
std::string_view NextPaddedToken(std::string_view& text);

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

class TokenReader;

/// Finds the tokens of a text that grows at its end, each byte looked at once, until there are as
/// many as an element takes. It keeps where the first ones stand, so that the element need not
/// look for them again. Between two calls the text may only be appended to, beginning with a blank.
class TokenFinder {
 public:
  /// Where a token stands.
  struct Place {
    std::size_t begin;
    std::size_t end;
  };
  /// More tokens than any element takes, but for lists and tables.
  static constexpr std::size_t kMostKept = 16;

  /// Begins anew, with another text.
  void Reset() {
    position_ = 0;
    count_ = 0;
    inQuotes_ = false;
  }
  /// Takes up what was appended. True when there are `needed` tokens, the same number in every call
  /// for a text. `text` is the whole text, padded (see bytes.h).
  bool Find(std::string_view text, std::size_t needed);
  /// Hands out the tokens of the text that was found in last.
  [[nodiscard]] TokenReader Tokens(std::string_view text) const;

 private:
  std::size_t position_ = 0;
  std::size_t count_ = 0;
  bool inQuotes_ = false;
  std::size_t begin_ = 0;  // of the quoted text, where the text ends in one
  std::array<Place, kMostKept> places_{};
};

/// Hands out the tokens of a text as NextToken does, those that a TokenFinder has found without a
/// search.
class TokenReader {
 public:
  explicit TokenReader(std::string_view text) : text_(text), rest_(text) {}
  /// `found` are the places of the first tokens, and stay the caller's.
  TokenReader(std::string_view text, std::span<const TokenFinder::Place> found)
      : text_(text),
        rest_(found.empty() ? text : text.substr(found.back().end)),
        first_(found.data()),
        next_(first_),
        end_(first_ + found.size()) {}

  /// The next token; empty when there is none.
  [[gnu::always_inline]] std::string_view Next() {
    if (next_ == end_) return NextToken(rest_);
    const TokenFinder::Place place = *next_++;
    return {text_.data() + place.begin, place.end - place.begin};
  }
  /// What has not been handed out.
  [[nodiscard]] std::string_view Rest() const {
    if (next_ == end_) return rest_;
    return next_ == first_ ? text_ : text_.substr(next_[-1].end);
  }

 private:
  std::string_view text_;
  std::string_view rest_;
  const TokenFinder::Place* first_ = nullptr;
  const TokenFinder::Place* next_ = nullptr;
  const TokenFinder::Place* end_ = nullptr;
};

inline TokenReader TokenFinder::Tokens(std::string_view text) const {
  return {text, std::span(places_).first(std::min(count_, kMostKept))};
}

}  // namespace a2l

#include "a2l2json/names_end.h"
