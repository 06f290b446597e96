// SPDX-License-Identifier: MIT
//
// What the converter makes of the words of a text by its line rules: the same words in the same
// roles as those that its reader hands to the elements, but with the places where they stand, and
// with the words that it drops. docs/reading-a2l.md has the rules in words.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "a2l2json/elements/declarations.h"
#include "a2l2json/mend/logical_line.h"

namespace a2l::mending {

/// Stands for the root of the tree, and for what has no place in the text.
inline constexpr std::size_t kNowhere = static_cast<std::size_t>(-1);

/// What the converter takes a word for.
struct LineWord {
  enum class Role : std::uint8_t {
    Nothing,    ///< there are no more words
    Begin,      ///< the keyword behind /begin
    Property,   ///< a keyword without /begin
    Parameter,  ///< a value of the keyword at `owner`, or the name of an IF_DATA
    End,        ///< the keyword behind /end, which closes the block whose keyword is at `owner`
    Dropped,
    ReadEnds,  ///< an error; nothing more is read
  };
  /// Where a word stands that is dropped.
  enum class Why : std::uint8_t {
    BehindParameters,
    BeforeBegin,
    BeforeEnd,
    BehindEnd,
    InList,  ///< behind a child that a list ends with, on whatever line
    UnknownLine
  };

  Role role = Role::Nothing;
  Why why = Why::BehindParameters;
  ElementKind kind = KIND_ROOT;
  std::size_t begin = kNowhere;
  /// Behind its last byte; kNowhere for a text that is not closed.
  std::size_t end = kNowhere;
  /// Where the keyword stands that it belongs to; for a keyword, that of the open block.
  std::size_t owner = kNowhere;
  /// Number of the parameter, from 0.
  std::size_t index = 0;
};

inline constexpr LineWord kNoWord;

/// A block whose /end has not come.
struct OpenBlock {
  ElementKind kind = KIND_ROOT;
  std::size_t begin = kNowhere;  ///< of its keyword
};

// There is one of it at a time: its members stand by what they are for, not by their sizes.
// NOLINTNEXTLINE(clang-analyzer-optin.performance.Padding)
class LineRules {
 public:
  explicit LineRules(std::string_view text) : lines_(text) {}

  /// Goes on at `position`, as if a line began there, with these blocks open, the outermost first.
  void Restart(std::size_t position, std::span<const OpenBlock> open);

  /// The next word, in the order of their places. After an error, and at the end, Nothing. Valid
  /// until the next call.
  const LineWord& Next() {
    if (handedOut_ == count_ && !FindMore()) return kNoWord;
    return found_[handedOut_++];
  }

 private:
  enum class Marker : std::uint8_t { None, Begin, End };
  enum class State : std::uint8_t { Idle, Fixed, Rows, List, Raw };
  /// What is done with the words of the piece of a line that is at hand.
  enum class Task : std::uint8_t { NextPiece, Collect, Drop };

  bool FindMore();

  // Lines, and the pieces between their markers.
  void Step();
  void NextPiece(std::size_t begin);
  void NextLine();
  void FindMarker(std::size_t from);
  void BeginPiece();
  void EndPiece();
  void PlainLine();
  void RawPiece();

  // Words of a piece.
  struct Taken {
    std::size_t begin = 0;
    std::size_t end = 0;  // offsets into the line
    bool isClosed = true;
  };
  bool Take(Taken& taken);
  [[nodiscard]] std::string_view TextOf(const Taken& taken) const {
    return line_.substr(taken.begin, taken.end - taken.begin);
  }

  void OpenElement(ElementKind kind, const Taken& keyword, LineWord::Role role);
  void OpenRaw();
  void Collect();
  void CollectWord(std::string_view word, std::size_t begin, std::size_t end);
  void EndOfFixed();
  void EndOfPiece();
  void ContinueCollecting();
  void ContinueName(std::size_t offset, std::size_t pieceEnd);
  void Close();
  void CloseOpenWord();
  void Drop();
  void DropRest(LineWord::Why why);
  void Fail(std::size_t position);
  void Emit(const LineWord& word) { found_[count_++] = word; }
  [[nodiscard]] const detail::Declaration& OpenDeclaration() const;
  [[nodiscard]] std::size_t OpenBegin() const {
    return open_.empty() ? kNowhere : open_.back().begin;
  }

  LogicalLines lines_;
  /// Words that are found at once; those of a file would be too many.
  static constexpr std::size_t kEnough = 16;
  /// A step may close a text that is open, open a block and find the name in it.
  static constexpr std::size_t kMostOfAStep = 3;
  std::array<LineWord, kEnough - 1 + kMostOfAStep> found_;
  std::size_t count_ = 0;
  std::size_t handedOut_ = 0;
  bool isOver_ = false;

  std::string_view line_;
  std::size_t cursor_ = 0;
  std::size_t pieceBegin_ = 0;
  std::size_t pieceEnd_ = 0;
  /// The marker behind the piece.
  Marker marker_ = Marker::None;
  std::size_t markerBegin_ = 0;
  std::size_t markerEnd_ = 0;
  /// A marker that stood last on the line before.
  Marker pending_ = Marker::None;
  Task task_ = Task::NextPiece;
  LineWord::Why why_ = LineWord::Why::BehindParameters;

  std::vector<OpenBlock> open_;
  // What is being collected: parameters of the innermost block, or of a property in it.
  State state_ = State::Idle;
  const detail::Declaration* declaration_ = nullptr;
  std::size_t owner_ = kNowhere;
  std::size_t index_ = 0;
  std::size_t needed_ = 0;
  std::uint32_t rows_ = 0;
  /// The rows go on to the end of the line on which enough of them are there.
  bool rowsFillLine_ = false;
  bool onKeywordPiece_ = false;
  /// A list may end at the keyword of a child among its values.
  bool mayHoldChild_ = false;
  /// A text that its line does not close, or the name of an IF_DATA that goes on.
  bool textIsOpen_ = false;
  bool nameIsOpen_ = false;
  std::size_t openBegin_ = kNowhere;
  std::size_t openEnd_ = 0;
  std::size_t rawDepth_ = 0;
};

}  // namespace a2l::mending
