// SPDX-License-Identifier: MIT
//
// The mended text: words on lines from which the converter takes all of them.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

#include "a2l2json/mend/source.h"

namespace a2l::mending {

/// A text with its quotes, in the form in which the converter can read it: white space around a
/// line end is one blank, a marker has a blank behind its slash, and a quote that closes, or is
/// doubled, one before it where a backslash stands there.
[[nodiscard]] std::string MendedText(std::string_view text, const TextTraits& traits);

class Layout {
 public:
  /// Makes room for what a text of `size` bytes is likely to become.
  explicit Layout(std::size_t size) { text_.reserve(size + size / 8); }

  /// Begins a line, with the indentation of blocks that lie in `level` others.
  void BeginLine(std::size_t level) {
    EndLine();
    level_ = level;
    // However deep blocks lie in each other, what stands before a line stays short.
    constexpr std::size_t kMostLevels = 12;
    text_.append(2 * std::min(level, kMostLevels), ' ');
  }

  /// Ends the line at hand, if there is one.
  void EndLine() {
    if (!lineIsEmpty_) text_ += '\n';
    lineIsEmpty_ = true;
    hasLooseQuote_ = false;
  }

  void Plain(std::string_view word, bool hasQuote) {
    Separate();
    text_ += word;
    hasLooseQuote_ = hasLooseQuote_ || hasQuote;
  }
  void Plain(std::string_view word) { Plain(word, word.find('"') != std::string_view::npos); }

  /// A text with its quotes, in the form in which the converter can read it.
  void Text(std::string_view text, const TextTraits& traits) {
    // Behind a word with a quote in it, the converter takes a comment sign for one.
    if (hasLooseQuote_ && traits.hasCommentSign) BeginLine(level_ + 1);
    Separate();
    if (traits.IsPlain()) {
      text_ += text;
    } else {
      text_ += MendedText(text, traits);
    }
  }

  /// Between the two, bytes are taken as they are. White space at the end of all of them goes.
  [[nodiscard]] std::size_t BeginRaw() {
    EndLine();
    return text_.size();
  }
  void Raw(std::string_view bytes) { text_ += bytes; }
  [[nodiscard]] bool LineHasWords() const {
    const std::size_t last = text_.find_last_not_of(" \t\v\f\r");
    return last != std::string::npos && text_[last] != '\n';
  }
  void EndRaw(std::size_t start) {
    while (text_.size() > start && IsWhite(text_.back())) text_.pop_back();
    lineIsEmpty_ = text_.size() == start;
  }

  /// The whole text, its last line ended.
  [[nodiscard]] std::string Take() {
    EndLine();
    return std::move(text_);
  }

 private:
  void Separate() {
    if (!lineIsEmpty_) text_ += ' ';
    lineIsEmpty_ = false;
  }

  std::string text_;
  std::size_t level_ = 0;
  bool lineIsEmpty_ = true;
  /// A word of the line has a quote in it, and is no text.
  bool hasLooseQuote_ = false;
};

}  // namespace a2l::mending
