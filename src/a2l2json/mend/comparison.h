// SPDX-License-Identifier: MIT
//
// Compares what the converter takes the words of a file for with what they mean, and reports the
// differences.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "a2l2json/mend/lexer.h"
#include "a2l2json/mend/line_rules.h"
#include "a2l2json/mend/reporter.h"

namespace a2l::mending {

/// A keyword and what is known of it.
struct Element {
  ElementKind kind = KIND_ROOT;
  const detail::Declaration* declaration = nullptr;
  /// Where its keyword stands in the file itself; kNowhere for the root and in included files.
  std::size_t begin = kNowhere;
  std::string_view keyword;
  std::string_view name;
  std::string_view file;
  std::size_t line = 1;
  std::size_t column = 1;
  /// The converter does not have it, or has it elsewhere.
  bool isLost = false;
  /// Values of it are lost, so that those behind them have other places.
  bool isShifted = false;
  std::size_t reportedLine = 0;
};

/// What the lines of a file are to the converter.
enum class LineEnds : std::uint8_t {
  LineFeeds,
  CarriageReturns,  ///< all of it is one line
  Unreadable,       ///< nothing of it is read
};

class Comparison {
 public:
  Comparison(std::string_view text, std::string_view name, LineEnds lineEnds, Reporter& reporter);

  /// What is lost is counted in values: parameters, and keywords that have none.
  [[nodiscard]] std::size_t LostValues() const { return lost_; }

  // Every word of the file is given to one of these, in order.

  /// The keyword of `element`, which stands in `parent`; sets isLost.
  void Keyword(const Word& word, LineWord::Role role, const Element& parent, Element& element);
  /// The value number `index` of `element`, which is what `declared` says.
  void Parameter(const Word& word, Element& element, std::size_t index,
                 const detail::Parameter& declared);
  /// The keyword behind /end, which closes `element`.
  void End(const Word& word, const Element& element);
  /// A word that no keyword takes. Gives true where the converter, too, drops it for standing
  /// behind something else.
  bool Surplus(const Word& word);
  /// The name of an IF_DATA, and the keyword behind the /end of a block that is kept as text.
  void InterfaceName(const Word& word, Element& element);
  /// The marker behind an IF_DATA without a name, which the converter may take for it.
  void NoInterfaceName(const Word& marker) { At(marker); }
  void RawEnd(const Word& word, Element& element);

  /// The end of the file; `end` has no bytes.
  void EndOfText(const Word& end);

  /// What the converter makes of the inside of `word` has been told.
  void SetTold(const Word& word) { told_ = word.isInMain ? word.end : told_; }
  /// Behind an error of the converter: goes on as if there had been none, if `word` begins a line.
  void Resume(const Word& word, std::span<const OpenBlock> open);
  /// The converter ends here, which has been reported.
  void Interrupt() { isInterrupted_ = true; }
  [[nodiscard]] bool IsInterrupted() const { return isInterrupted_; }

 private:
  /// What the converter takes `word` for; valid until the next call.
  const LineWord& At(const Word& word, MendRule ifReadEnds = MendRule::ReadEnds,
                     const Element* owner = nullptr);
  void Advance() {
    next_ = &rules_.Next();
    isUsed_ = false;
  }
  void AdvanceIfUsed() {
    if (isUsed_) Advance();
  }
  void Skip();
  void ReadEnds(const Word& word, MendRule rule, const Element& owner);
  void Report(MendRule rule, const Word& word, const Element& owner);
  void ReportPlace(MendRule rule, const LineWord& found, const Element& owner);
  [[nodiscard]] MendRule RuleFor(const Word& word, const LineWord& found,
                                 LineWord::Role role) const;
  [[nodiscard]] bool IsAllOf(const Word& word, const LineWord& found,
                             const detail::Parameter& declared) const;
  [[nodiscard]] bool IsReadable() const { return lineEnds_ != LineEnds::Unreadable; }
  [[nodiscard]] bool IsCompared(const Word& word) const {
    return IsReadable() && !isInterrupted_ && word.isInMain;
  }

  std::string_view text_;
  std::string_view name_;
  LineEnds lineEnds_;
  bool isInterrupted_ = false;
  Reporter& reporter_;
  LineRules rules_;
  /// What the converter has next, and whether it has been held against a word already.
  const LineWord* next_ = &kNoWord;
  bool isUsed_ = false;
  std::size_t lost_ = 0;
  std::size_t told_ = 0;  // everything before this place
  // The last place whose line is known.
  std::size_t anchor_ = 0;
  std::size_t anchorLine_ = 1;
  std::size_t anchorLineStart_ = 0;
};

}  // namespace a2l::mending
