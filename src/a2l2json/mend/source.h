// SPDX-License-Identifier: MIT
//
// A file on its way through the lexer, and what the ASAP2 standard takes for white space, markers
// and texts in it.
#pragma once

#include <cstddef>
#include <string_view>

#include "a2l2json/text/bytes.h"

namespace a2l::mending {

inline constexpr std::string_view kBegin = "/begin";
inline constexpr std::string_view kEnd = "/end";

/// Blank, tab, line feed, vertical tab, form feed and carriage return.
[[nodiscard]] constexpr bool IsWhite(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

/// A file, and how far it is read.
struct Source {
  std::string_view text;
  /// How findings name it.
  std::string_view name;
  /// What names of files in it are relative to.
  std::string_view path;
  std::size_t position = 0;
  std::size_t line = 1;
  std::size_t lineStart = 0;
  /// True until the first word of the line has been taken.
  bool atLineStart = true;
  /// True for the file itself, as against one that it includes.
  bool isMain = false;

  [[nodiscard]] bool AtEnd() const { return position >= text.size(); }
  [[nodiscard]] std::string_view Rest() const { return text.substr(position); }
  /// Moves on to the first of these bytes, or to the end.
  template <char... kBytes>
  void MoveTo() {
    const char* const end = text.data() + text.size();
    position =
        static_cast<std::size_t>(bytes::Find<kBytes...>(text.data() + position, end) - text.data());
  }
  [[nodiscard]] bool HasComment() const {
    return text[position] == '/' && position + 1 < text.size() &&
           (text[position + 1] == '/' || text[position + 1] == '*');
  }
  /// To be called at a line feed.
  void EndLine() {
    ++line;
    lineStart = position + 1;
    atLineStart = true;
  }
};

/// A file from its first byte on.
[[nodiscard]] Source MakeSource(std::string_view text, std::string_view name,
                                std::string_view path);

/// Where the first byte up to a blank, slash or quote stands from `begin` on; `end` where none
/// does.
[[nodiscard]] const char* FindEndOfWord(const char* begin, const char* end);

/// Moves behind white space; counts lines.
void SkipWhite(Source& source);

/// Moves behind the comment that begins here. False when the file ends in it.
bool SkipComment(Source& source);

/// What is peculiar about a text.
struct TextTraits {
  bool isClosed = true;
  bool hasLineEnd = false;
  /// White space beside a line end in it, which the converter keeps.
  bool hasUnevenLines = false;
  /// Only at the end of its first line, where the converter takes it away if the keyword that the
  /// text belongs to stands there, too.
  bool hasWhiteFirstEnd = false;
  /// "/begin" or "/end" in it.
  bool hasMarker = false;
  /// "//" or "/*" in it, and behind a line end in it.
  bool hasCommentSign = false;
  bool hasComment = false;
  /// An even number of backslashes before a quote, which they therefore do not escape.
  bool hasBackslashQuote = false;

  [[nodiscard]] bool IsPlain() const {
    return isClosed && !hasLineEnd && !hasMarker && !hasBackslashQuote;
  }
};

/// Moves behind the text whose opening quote is here. A text that would take in a line that begins
/// with /begin or /end and the keyword of a block, or the one given, ends before that line, and is
/// not closed, unless the next quote clearly closes it; so is one that goes on to the end of the
/// file. With a keyword, for blocks that are kept as text, that quote does not count: texts stay
/// open there, and what follows them may become something else.
TextTraits SkipText(Source& source, std::string_view keyword = {});

}  // namespace a2l::mending
