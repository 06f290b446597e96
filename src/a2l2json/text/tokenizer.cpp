// SPDX-License-Identifier: MIT
#include "a2l2json/text/tokenizer.h"

#include "a2l2json/text/bytes.h"

namespace a2l {
namespace {

constexpr std::size_t kNone = std::string_view::npos;

// Positions are pointers throughout: they stay in registers from search to search.

// The quote that closes a quoted text, from `begin` on, which is behind the opening quote; null
// where it is not closed.
const char* ClosingQuote(const char* begin, const char* end) {
  for (const char* quote = begin;;) {
    quote = bytes::Find<'"'>(quote, end);
    if (quote == end) return nullptr;
    if (quote[-1] == '\\') {
      ++quote;
    } else if (quote + 1 != end && quote[1] == '"') {
      quote += 2;
    } else {
      return quote;
    }
  }
}

const char* SkipManyTrimmed(const char* begin, const char* end) {
  begin = bytes::SkipAll<' '>(begin, end);
  while (begin != end && IsTrimmed(*begin)) ++begin;
  return begin;
}

// Mostly one blank stands between two tokens, and many in front of a line.
[[gnu::always_inline]] inline const char* SkipTrimmed(const char* begin, const char* end) {
  if (begin != end && *begin == ' ') ++begin;
  if (begin == end || static_cast<unsigned char>(*begin) > ' ') return begin;
  return SkipManyTrimmed(begin, end);
}

}  // namespace

std::size_t FindClosingQuote(std::string_view text, std::size_t from) {
  const char* const quote = ClosingQuote(text.data() + from, text.data() + text.size());
  return quote == nullptr ? kNone : static_cast<std::size_t>(quote - text.data());
}

std::string_view NextToken(std::string_view& text) {
  const char* end = text.data() + text.size();
  const char* const begin = SkipTrimmed(text.data(), end);
  while (end != begin && IsTrimmed(end[-1])) --end;
  text = {begin, static_cast<std::size_t>(end - begin)};
  if (begin == end) return {};
  const char* tokenEnd = end;
  if (*begin != '"') {
    tokenEnd = bytes::Find<' '>(begin + 1, end);
  } else if (const char* const quote = ClosingQuote(begin + 1, end)) {
    tokenEnd = quote + 1;
  }
  text = {tokenEnd, static_cast<std::size_t>(end - tokenEnd)};
  while (IsTrimmed(tokenEnd[-1])) --tokenEnd;  // the first byte is not
  return {begin, static_cast<std::size_t>(tokenEnd - begin)};
}

std::size_t CountTokens(std::string_view text) {
  TokenCounter counter;
  counter.Continue(text);
  return counter.Count();
}

void TokenCounter::Continue(std::string_view text) {
  const char* position = text.data() + position_;
  const char* const end = text.data() + text.size();
  position_ = text.size();
  while (true) {
    if (!inQuotes_) {
      position = SkipTrimmed(position, end);
      if (position == end) return;
      inQuotes_ = *position == '"';
      ++position;
    }
    if (inQuotes_) {
      const char* const close = ClosingQuote(position, end);
      if (close == nullptr) return;
      position = close + 1;
      inQuotes_ = false;
    } else {
      position = bytes::Find<' '>(position, end);
    }
    ++count_;
  }
}

std::size_t UnquoteInto(std::string_view token, char* out) {
  if (token.empty() || token.front() != '"') return 0;
  char* const begin = out;
  for (std::size_t i = 1; i < token.size(); ++i) {
    const bool last = i + 1 == token.size();
    const char next = last ? '\0' : token[i + 1];
    char c = token[i];
    if (c == '"') {
      if (next != '"') break;
      ++i;
    } else if (c == '\\' && !last) {
      constexpr std::string_view kEscapes = "\"\\'nrt";
      constexpr std::string_view kBytes = "\"\\'\n\r\t";
      if (const std::size_t escape = kEscapes.find(next); escape != kNone) {
        c = kBytes[escape];
        ++i;
      }
    }
    *out++ = c;
  }
  return static_cast<std::size_t>(out - begin);
}

std::string Unquote(std::string_view token) {
  std::string text(token.size(), '\0');
  text.resize(UnquoteInto(token, text.data()));
  return text;
}

}  // namespace a2l
