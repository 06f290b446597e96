// SPDX-License-Identifier: MIT
//
// A second implementation of lines, comments and tokens, to compare the reader with. It is as plain
// as possible: it owns its strings, goes byte by byte, and takes quadratic time if that is clearer.
// It shares no code with the reader.
#pragma once

#include <cstddef>
#include <deque>
#include <optional>
#include <string>
#include <vector>

namespace a2l::naive {

inline bool IsBlank(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; }

inline std::string Trim(std::string text) {
  while (!text.empty() && IsBlank(text.front())) text.erase(0, 1);
  while (!text.empty() && IsBlank(text.back())) text.pop_back();
  return text;
}

/// The position of the quote that closes the quoted text that begins at `open`.
inline std::optional<std::size_t> ClosingQuote(const std::string& text, std::size_t open) {
  std::size_t i = open + 1;
  while (i < text.size()) {
    const bool isQuote = text[i] == '"';
    const bool behindBackslash = text[i - 1] == '\\';
    const bool doubled = i + 1 < text.size() && text[i + 1] == '"';
    if (isQuote && !behindBackslash && !doubled) return i;
    i += isQuote && !behindBackslash ? 2 : 1;
  }
  return std::nullopt;
}

struct Token {
  std::string text;
  bool closed = true;  ///< false for a quoted text without its closing quote
};

/// Takes the next token off `text`.
inline Token NextToken(std::string& text) {
  text = Trim(text);
  if (text.empty()) return {};
  std::size_t size = 0;
  bool closed = true;
  if (text.front() == '"') {
    const std::optional<std::size_t> close = ClosingQuote(text, 0);
    closed = close.has_value();
    size = closed ? *close + 1 : text.size();
  } else {
    while (size < text.size() && text[size] != ' ') ++size;
  }
  Token token{Trim(text.substr(0, size)), closed};
  text.erase(0, size);
  return token;
}

inline std::size_t CountTokens(std::string text) {
  std::size_t count = 0;
  while (true) {
    const Token token = NextToken(text);
    if (token.text.empty() || !token.closed) return count;
    ++count;
  }
}

inline std::string Unquote(const std::string& token) {
  if (token.empty() || token.front() != '"') return {};
  std::string text;
  for (std::size_t i = 1; i < token.size();) {
    const std::string pair = token.substr(i, 2);
    if (pair == "\"\"" || pair == "\\\"") {
      text += '"';
    } else if (pair == "\\\\") {
      text += '\\';
    } else if (pair == "\\'") {
      text += '\'';
    } else if (pair == "\\n") {
      text += '\n';
    } else if (pair == "\\r") {
      text += '\r';
    } else if (pair == "\\t") {
      text += '\t';
    } else if (pair.front() == '"') {
      break;
    } else {
      text += pair.front();
      i += 1;
      continue;
    }
    i += 2;
  }
  return text;
}

/// The physical lines of a file. Each ends with a line feed, except that the last one need not if
/// it is not empty.
inline std::deque<std::string> Lines(const std::string& bytes) {
  std::deque<std::string> lines;
  std::string line;
  for (const char c : bytes) {
    if (c == '\n') {
      lines.push_back(line);
      line.clear();
    } else {
      line += c;
    }
  }
  if (!line.empty()) lines.push_back(line);
  return lines;
}

/// A line without its comments, or nothing if the file ends inside a comment. If a comment goes on
/// in further lines, these are removed from `following`.
inline std::optional<std::string> WithoutComments(std::string line,
                                                  std::deque<std::string>& following) {
  std::size_t i = 0;
  while (i + 2 <= line.size()) {
    if (line[i] == '"') {
      const std::optional<std::size_t> close = ClosingQuote(line, i);
      if (!close.has_value()) return line;
      i = *close + 1;
    } else if (line.compare(i, 2, "//") == 0) {
      return line.substr(0, i);
    } else if (line.compare(i, 2, "/*") == 0) {
      std::size_t end = line.find("*/", i + 2);
      while (end == std::string::npos) {
        if (following.empty()) return std::nullopt;
        line += following.front();
        following.pop_front();
        end = line.find("*/", i + 2);
      }
      line.erase(i, end + 2 - i);
    } else {
      ++i;
    }
  }
  return line;
}

}  // namespace a2l::naive
