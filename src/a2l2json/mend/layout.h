// SPDX-License-Identifier: MIT
//
// The mended text: words on lines from which the converter takes all of them.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

#include "a2l2json/mend/line_map.h"
#include "a2l2json/mend/source.h"
#include "a2l2json/model/large_pages.h"

namespace a2l::mending {

/// A text with its quotes, in the form in which the converter can read it: white space around a
/// line end is one blank, a marker has a blank behind its slash, and a quote that closes, or is
/// doubled, one before it where a backslash stands there.
[[nodiscard]] std::string MendedText(std::string_view text, const TextTraits& traits);

class Layout {
 public:
  /// Makes room for what a text of `size` bytes is likely to become. `lines` may be null.
  Layout(std::size_t size, LineMap* lines) : lines_(lines) {
    text_.reserve(size + size / 8);
    detail::AskForLargePages(text_.data(), text_.capacity());
  }

  /// Where the words that come next stand in the source.
  void SetPlace(std::string_view file, std::size_t line) {
    file_ = file;
    line_ = line;
  }
  /// The line that raw bytes have reached; only where lines are mapped.
  [[nodiscard]] std::size_t Line() const { return line_; }

  /// Begins a line, with the indentation of blocks that lie in `level` others.
  void BeginLine(std::size_t level) {
    EndLine();
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

  /// A text with its quotes, in the form in which the converter can read it. If it needs a line of
  /// its own, that is indented as words are in `level` blocks.
  void Text(std::string_view text, const TextTraits& traits, std::size_t level) {
    // Behind a word with a quote in it, the converter takes a comment sign for one.
    if (hasLooseQuote_ && traits.hasCommentSign) BeginLine(level);
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
    rawBeginsLine_ = true;
    return text_.size();
  }
  /// Bytes whose first one is at the place that is set; those behind line ends are on the lines
  /// that follow it.
  void Raw(std::string_view bytes) {
    if (lines_ != nullptr) MapRaw(bytes);
    text_ += bytes;
  }
  [[nodiscard]] bool LineHasBytes() const { return !text_.empty() && text_.back() != '\n'; }
  [[nodiscard]] bool LineHasWords() const {
    const std::size_t last = text_.find_last_not_of(" \t\v\f\r");
    return last != std::string::npos && text_[last] != '\n';
  }
  void EndRaw(std::size_t start) {
    while (text_.size() > start && IsWhite(text_.back())) {
      if (text_.back() == '\n') UnmapRaw();
      text_.pop_back();
    }
    lineIsEmpty_ = text_.size() == start;
    if (lineIsEmpty_) UnmapRaw();
  }

  /// The whole text, its last line ended.
  [[nodiscard]] std::string Take() {
    EndLine();
    return std::move(text_);
  }

 private:
  void Separate() {
    if (!lineIsEmpty_) {
      text_ += ' ';
    } else if (lines_ != nullptr) {
      lines_->BeginLine(file_, line_);
    }
    lineIsEmpty_ = false;
  }
  void MapRaw(std::string_view bytes);
  /// A line end is taken away.
  void UnmapRaw() {
    if (lines_ != nullptr && !rawBeginsLine_) lines_->DropLine();
    rawBeginsLine_ = false;
  }

  std::string text_;
  LineMap* lines_;
  std::string_view file_;
  std::size_t line_ = 1;
  bool lineIsEmpty_ = true;
  /// The next raw byte is the first of its line.
  bool rawBeginsLine_ = false;
  /// A word of the line has a quote in it, and is no text.
  bool hasLooseQuote_ = false;
};

}  // namespace a2l::mending
