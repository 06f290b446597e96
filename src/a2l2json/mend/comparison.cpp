// SPDX-License-Identifier: MIT
#include "a2l2json/mend/comparison.h"

#include <algorithm>

#include "a2l2json/mend/encodings.h"

namespace a2l::mending {
namespace {

using Role = LineWord::Role;
using Why = LineWord::Why;

bool IsNumeric(detail::ParameterType type) {
  using Type = detail::ParameterType;
  return type == Type::Unsigned || type == Type::Signed || type == Type::Unsigned64 ||
         type == Type::Real;
}

MendRule RuleOf(Why why) {
  switch (why) {
    case Why::BehindParameters:
    case Why::InList:
      return MendRule::SameLine;
    case Why::BeforeBegin:
      return MendRule::BeforeBegin;
    case Why::BeforeEnd:
      return MendRule::BeforeEnd;
    case Why::BehindEnd:
      return MendRule::BehindEnd;
    case Why::UnknownLine:
      return MendRule::BehindUnknown;
  }
  return MendRule::Otherwise;
}

}  // namespace

Comparison::Comparison(std::string_view text, std::string_view name, LineEnds lineEnds,
                       Reporter& reporter)
    : text_(text), name_(name), lineEnds_(lineEnds), reporter_(reporter), rules_(text) {
  if (IsReadable()) Advance();
}

void Comparison::Keyword(const Word& word, Role role, const Element& parent, Element& element) {
  const LineWord& found = At(word);
  if (!word.isInMain || !IsReadable() || parent.isLost) {
    element.isLost = !word.isInMain || !IsReadable() || parent.isLost;
  } else if (!isInterrupted_) {
    element.isLost = found.role != role || found.kind != element.kind ||
                     found.owner != parent.begin || found.end != word.end;
    if (element.isLost) Report(RuleFor(word, found, role), word, parent);
  }
  const bool isFlag = element.declaration != nullptr && element.declaration->paramCount == 0;
  if (element.isLost && isFlag && IsProperty(element.kind)) ++lost_;
}

void Comparison::Parameter(const Word& word, Element& element, std::size_t index,
                           const detail::Parameter& declared) {
  const bool isList = declared.isList;
  const LineWord& found = At(word, isList ? MendRule::ListKeyword : MendRule::ReadEnds, &element);
  if (element.isLost || !word.isInMain) {
    ++lost_;
    return;
  }
  if (!IsCompared(word)) return;
  const bool isTaken = found.role == Role::Parameter && found.owner == element.begin &&
                       IsAllOf(word, found, declared);
  if (isTaken && (isList || found.index == index)) return;
  ++lost_;
  const bool isKnown = isTaken && element.isShifted;
  element.isShifted = true;
  if (isKnown || element.reportedLine == word.line) return;
  element.reportedLine = word.line;
  // What is peculiar about a text has been told already.
  if (word.type == WordType::Text && reporter_.HasReported(word)) return;
  Report(RuleFor(word, found, Role::Parameter), word, element);
}

// White space that the converter takes for a part of a number does not change the number.
bool Comparison::IsAllOf(const Word& word, const LineWord& found,
                         const detail::Parameter& declared) const {
  if (found.end == word.end) return true;
  if (!IsNumeric(declared.type) || found.end == kNowhere || found.end < word.end) return false;
  return std::ranges::all_of(text_.substr(word.end, found.end - word.end), &IsWhite);
}

void Comparison::InterfaceName(const Word& word, Element& element) {
  const LineWord& found = At(word);
  if (element.isLost || !word.isInMain) {
    ++lost_;
    return;
  }
  if (!IsCompared(word) || (found.owner == element.begin && found.end == word.end)) return;
  ++lost_;
  Report(MendRule::InterfaceName, word, element);
}

void Comparison::End(const Word& word, const Element& element) {
  const LineWord& found = At(word);
  if (!IsCompared(word) || element.isLost) return;
  if (found.role == Role::End && found.owner == element.begin) return;
  if (!reporter_.HasReported(word)) Report(MendRule::Otherwise, word, element);
}

bool Comparison::Surplus(const Word& word) {
  const LineWord& found = At(word);
  if (!IsCompared(word)) return false;
  if (found.role == Role::Dropped) {
    const bool mayBeginALine = found.why == Why::UnknownLine || found.why == Why::InList;
    return !mayBeginALine || !word.isFirst;
  }
  if (found.role != Role::Nothing && !reporter_.HasReported(word)) {
    Report(MendRule::Otherwise, word, {});
  }
  return false;
}

void Comparison::RawEnd(const Word& word, Element& element) {
  if (!IsCompared(word) || element.isLost) {
    At(word);
    return;
  }
  AdvanceIfUsed();
  for (; next_->begin < word.begin; Advance()) {
    if (next_->role == Role::ReadEnds) return ReadEnds(word, MendRule::InterfaceText, element);
    ++lost_;
    if (element.isShifted) continue;
    element.isShifted = true;
    const bool isDropped = next_->role == Role::Dropped;
    ReportPlace(isDropped ? RuleOf(next_->why) : MendRule::InterfaceText, *next_, element);
  }
  End(word, element);
}

void Comparison::EndOfText(const Word& end) {
  if (!IsCompared(end)) return;
  AdvanceIfUsed();
  for (; next_->role != Role::Nothing && next_->role != Role::ReadEnds; Advance()) Skip();
  if (next_->role == Role::ReadEnds) ReadEnds(end, MendRule::ReadEnds, {});
}

const LineWord& Comparison::At(const Word& word, MendRule ifReadEnds, const Element* owner) {
  if (!IsCompared(word)) return kNoWord;
  AdvanceIfUsed();
  for (; next_->begin < word.begin && next_->role != Role::ReadEnds; Advance()) {
    Skip();
  }
  if (next_->role == Role::ReadEnds && next_->begin < word.end) {
    ReadEnds(word, next_->begin == word.begin ? ifReadEnds : MendRule::ReadEnds,
             owner == nullptr ? Element{} : *owner);
    return kNoWord;
  }
  anchor_ = word.begin;
  anchorLine_ = word.line;
  anchorLineStart_ = word.begin + 1 - word.column;
  if (next_->begin != word.begin) return kNoWord;
  isUsed_ = true;
  return *next_;
}

// The converter has a word where there is none.
void Comparison::Skip() {
  if (next_->role != Role::Dropped) ReportPlace(MendRule::Otherwise, *next_, {});
}

void Comparison::ReadEnds(const Word& word, MendRule rule, const Element& owner) {
  isInterrupted_ = true;
  if (next_->begin < word.begin) {
    ReportPlace(rule, *next_, owner);
  } else if (!reporter_.HasReported(word)) {
    Report(rule, word, owner);
  }
}

void Comparison::Resume(const Word& word, std::span<const OpenBlock> open) {
  isInterrupted_ = false;
  rules_.Restart(word.begin, open);
  Advance();
}

MendRule Comparison::RuleFor(const Word& word, const LineWord& found, Role role) const {
  if (lineEnds_ == LineEnds::CarriageReturns) return MendRule::LineEnds;
  const auto joinedBy = [](char c) {
    return c == '\t' ? MendRule::Tab : c == '/' ? MendRule::Comment : MendRule::WhiteSpace;
  };
  if (found.role == Role::Nothing) {
    if (word.begin == kByteOrderMark.size() && text_.starts_with(kByteOrderMark)) {
      return MendRule::ByteOrderMark;
    }
    std::size_t gap = word.begin;
    while (gap > 0 && IsWhite(text_[gap - 1]) && text_[gap - 1] != ' ' && text_[gap - 1] != '\n') {
      --gap;
    }
    const char before = gap > 0 ? text_[gap - 1] : '\n';
    if (before == ' ' || before == '\n') {
      // Tabs do no harm there.
      const std::string_view between = text_.substr(gap, word.begin - gap);
      const bool isHarmless = between.find_first_not_of('\t') == std::string_view::npos;
      return isHarmless ? MendRule::InsideText : MendRule::WhiteSpace;
    }
    if (gap < word.begin) return joinedBy(text_[gap]);
    return before == '/' ? MendRule::Comment : MendRule::InsideText;
  }
  if (found.end != word.end) {
    if (word.type == WordType::Text) return MendRule::InsideText;
    return word.end < text_.size() && word.end < found.end ? joinedBy(text_[word.end])
                                                           : MendRule::Otherwise;
  }
  if (found.role == Role::Dropped) return RuleOf(found.why);
  if (role != Role::Parameter && found.role == Role::Parameter) return MendRule::TakenAsValue;
  return MendRule::Otherwise;
}

void Comparison::Report(MendRule rule, const Word& word, const Element& owner) {
  Finding finding = FindingAt(rule, word);
  finding.owner = owner.keyword;
  finding.ownerName = owner.name;
  reporter_.Report(finding);
}

void Comparison::ReportPlace(MendRule rule, const LineWord& found, const Element& owner) {
  if (found.begin < told_) return;
  for (; anchor_ < found.begin; ++anchor_) {
    if (text_[anchor_] != '\n') continue;
    ++anchorLine_;
    anchorLineStart_ = anchor_ + 1;
  }
  Word word;
  word.file = name_;
  word.begin = found.begin;
  const std::size_t end = found.end == kNowhere ? found.begin + 1 : found.end;
  word.text = text_.substr(found.begin, end - found.begin);
  word.line = anchorLine_;
  word.column = found.begin + 1 - anchorLineStart_;
  if (!reporter_.HasReported(word)) Report(rule, word, owner);
}

}  // namespace a2l::mending
