// SPDX-License-Identifier: MIT
#include "a2l2json/text/tokenizer.h"

#include <algorithm>

namespace a2l {
namespace {

constexpr std::size_t kNone = std::string_view::npos;

std::size_t FindBlank(std::string_view text, std::size_t position) {
  return std::min(text.find(' ', position), text.size());
}

// Position behind the token that begins at `start`; kNone for an unclosed quoted text.
std::size_t TokenEnd(std::string_view text, std::size_t start) {
  if (text[start] == '"') {
    const std::size_t close = FindClosingQuote(text, start + 1);
    return close == kNone ? kNone : close + 1;
  }
  return FindBlank(text, start);
}

std::size_t SkipTrimmed(std::string_view text, std::size_t position) {
  while (position < text.size() && IsTrimmed(text[position])) ++position;
  return position;
}

std::string_view TrimEnd(std::string_view text) {
  while (!text.empty() && IsTrimmed(text.back())) text.remove_suffix(1);
  return text;
}

}  // namespace

std::size_t FindClosingQuote(std::string_view text, std::size_t from) {
  for (std::size_t i = text.find('"', from); i != kNone; i = text.find('"', i)) {
    if (text[i - 1] == '\\') {
      ++i;
    } else if (i + 1 < text.size() && text[i + 1] == '"') {
      i += 2;
    } else {
      return i;
    }
  }
  return kNone;
}

std::string_view NextToken(std::string_view& text) {
  text = Trim(text);
  if (text.empty()) return {};
  const std::size_t end = std::min(TokenEnd(text, 0), text.size());
  const std::string_view token = text.substr(0, end);
  text.remove_prefix(end);
  return TrimEnd(token);
}

std::size_t CountTokens(std::string_view text) {
  TokenCounter counter;
  counter.Continue(text);
  return counter.Count();
}

void TokenCounter::Continue(std::string_view text) {
  while (true) {
    if (!inQuotes_) {
      position_ = SkipTrimmed(text, position_);
      if (position_ == text.size()) return;
      inQuotes_ = text[position_] == '"';
      ++position_;
    }
    if (inQuotes_) {
      const std::size_t close = FindClosingQuote(text, position_);
      if (close == kNone) {
        position_ = text.size();
        return;
      }
      position_ = close + 1;
      inQuotes_ = false;
    } else {
      position_ = FindBlank(text, position_);
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
