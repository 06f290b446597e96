// SPDX-License-Identifier: MIT
#include "a2l2json/text/tokenizer.h"

#include "a2l2json/text/bytes.h"

namespace a2l {
namespace {

constexpr std::size_t kNone = std::string_view::npos;

// Positions are pointers throughout: they stay in registers from search to search.

// The searches in any text, and those in a padded one.
struct Exactly {
  template <char... kBytes>
  static const char* Find(const char* begin, const char* end) {
    return bytes::Find<kBytes...>(begin, end);
  }
};
struct InPadded {
  template <char... kBytes>
  static const char* Find(const char* begin, const char* end) {
    return bytes::FindPadded<kBytes...>(begin, end);
  }
};

// The quote that closes a quoted text, from `begin` on, which is behind the opening quote; null
// where it is not closed.
template <class Search>
const char* ClosingQuote(const char* begin, const char* end) {
  for (const char* quote = begin;;) {
    quote = Search::template Find<'"'>(quote, end);
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

// The end of a token without what Trim takes off it; its first byte is none of that.
[[gnu::always_inline]] inline const char* TrimEnd(const char* end) {
  while (IsTrimmed(end[-1])) --end;
  return end;
}

template <class Search>
[[gnu::always_inline]] inline std::string_view Next(std::string_view& text) {
  const char* end = text.data() + text.size();
  const char* const begin = SkipTrimmed(text.data(), end);
  while (end != begin && IsTrimmed(end[-1])) --end;
  text = {begin, static_cast<std::size_t>(end - begin)};
  if (begin == end) return text;
  const char* tokenEnd = end;
  if (*begin != '"') {
    tokenEnd = Search::template Find<' '>(begin + 1, end);
  } else if (const char* const quote = ClosingQuote<Search>(begin + 1, end)) {
    tokenEnd = quote + 1;
  }
  text = {tokenEnd, static_cast<std::size_t>(end - tokenEnd)};
  return {begin, static_cast<std::size_t>(TrimEnd(tokenEnd) - begin)};
}

}  // namespace

std::size_t FindClosingQuote(std::string_view text, std::size_t from) {
  const char* const quote = ClosingQuote<Exactly>(text.data() + from, text.data() + text.size());
  return quote == nullptr ? kNone : static_cast<std::size_t>(quote - text.data());
}

std::string_view NextToken(std::string_view& text) { return Next<Exactly>(text); }
std::string_view NextPaddedToken(std::string_view& text) { return Next<InPadded>(text); }

std::size_t CountTokens(std::string_view text) {
  std::size_t count = 0;
  const char* const end = text.data() + text.size();
  for (const char* position = SkipTrimmed(text.data(), end); position != end;
       position = SkipTrimmed(position, end)) {
    const char* const behind = *position == '"' ? ClosingQuote<Exactly>(position + 1, end)
                                                : bytes::Find<' '>(position + 1, end) - 1;
    if (behind == nullptr) return count;
    position = behind + 1;
    ++count;
  }
  return count;
}

bool TokenFinder::Find(std::string_view text, std::size_t needed) {
  const char* const start = text.data();
  const char* const end = start + text.size();
  const char* position = start + position_;
  position_ = text.size();
  while (count_ < needed) {
    if (!inQuotes_) {
      position = SkipTrimmed(position, end);
      if (position == end) return false;
      begin_ = static_cast<std::size_t>(position - start);
      inQuotes_ = *position == '"';
      ++position;
    }
    const char* tokenEnd = nullptr;
    if (inQuotes_) {
      const char* const close = ClosingQuote<InPadded>(position, end);
      if (close == nullptr) return false;
      position = close + 1;
      tokenEnd = position;
      inQuotes_ = false;
    } else {
      position = bytes::FindPadded<' '>(position, end);
      tokenEnd = TrimEnd(position);
    }
    if (count_ < kMostKept) {
      places_[count_] = {begin_, static_cast<std::size_t>(tokenEnd - start)};
    }
    ++count_;
  }
  return true;
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
