// SPDX-License-Identifier: MIT
#include "a2l2json/mend/walk.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "a2l2json/mend/raw.h"
#include "a2l2json/mend/repeated.h"
#include "a2l2json/mend/values.h"
#include "a2l2json/text/numbers.h"
#include "a2l2json/text/tokenizer.h"

namespace a2l::mending {
namespace {

using detail::Declaration;
using detail::DeclarationOf;
using detail::ParameterType;
using Role = LineWord::Role;

// Blocks that lie deeper are not looked through for the one that an /end could mean, nor told to
// the line rules: no file in use nests as deep.
constexpr std::size_t kMostLevels = 64;

ElementKind KindOf(const Word& word) {
  return word.type == WordType::Plain ? KeywordToKind(word.text) : KIND_UNKNOWN;
}

bool LooksLikeAValue(const Word& word) {
  const char c = word.text.empty() ? '"' : word.text.front();
  return word.type != WordType::Plain || (c >= '0' && c <= '9') || c == '-' || c == '+' || c == '.';
}

bool IsText(ParameterType type) {
  return type == ParameterType::Text || type == ParameterType::UnquotedText;
}

Element ElementAt(const Word& word, ElementKind kind) {
  Element element;
  element.kind = kind;
  element.declaration = DeclarationOf(kind);
  element.begin = word.isInMain ? word.begin : kNowhere;
  element.keyword = word.text;
  element.file = word.file;
  element.line = word.line;
  element.column = word.column;
  return element;
}

}  // namespace

Walk::Walk(Lexer& lexer, Comparison& comparison, Reporter& reporter, const MendOptions& options)
    : lexer_(lexer),
      comparison_(comparison),
      reporter_(reporter),
      options_(options),
      out_(lexer.Main().text.size(), options.lines) {
  root_.declaration = DeclarationOf(KIND_ROOT);
}

std::string Walk::Run() {
  while (true) {
    const Word word = Next();
    out_.SetPlace(word.file, word.line);
    switch (word.type) {
      case WordType::Begin:
        BeginMarker(word);
        break;
      case WordType::End:
        EndMarker(word);
        break;
      case WordType::Include:
        MissingInclude(word);
        break;
      case WordType::EndOfInput:
        EndOfInput(word);
        return out_.Take();
      case WordType::Plain:
      case WordType::Text:
        if (phase_ == Phase::Keyword || phase_ == Phase::Surplus) {
          KeywordDue(word);
        } else {
          ParameterDue(word);
        }
    }
  }
}

Word Walk::Next() {
  Word word = returned_ ? *std::exchange(returned_, std::nullopt) : lexer_.Next();
  if (!word.isInMain || word.type == WordType::EndOfInput) return word;
  if (comparison_.IsInterrupted() && word.isFirst && IsBoundary(word) &&
      frames_.size() <= kMostLevels) {
    comparison_.Resume(word, OpenBlocks());
  }
  constexpr std::size_t kStep = std::size_t{1} << 20;
  if (word.begin >= progress_ + kStep) {
    progress_ = word.begin;
    if (options_.progress) options_.progress(progress_);
  }
  return word;
}

bool Walk::IsBoundary(const Word& word) const {
  return word.type == WordType::Begin || word.type == WordType::End || phase_ == Phase::Keyword ||
         phase_ == Phase::Surplus || EndsList(word);
}

std::vector<mending::OpenBlock> Walk::OpenBlocks() const {
  std::vector<mending::OpenBlock> open;
  for (const Frame& frame : frames_) open.push_back({frame.element.kind, frame.element.begin});
  return open;
}

const Declaration& Walk::OpenDeclaration() const { return *OpenElement().declaration; }

const Element& Walk::OpenElement() const {
  return frames_.empty() ? root_ : frames_.back().element;
}

bool Walk::IsKeywordHere(const Word& word) const {
  const ElementKind kind = KindOf(word);
  // The converter takes these everywhere, but where they have no place they are names like others.
  const bool isOfFile = kBaseChildren.Contains(kind) && !frames_.empty();
  return IsProperty(kind) && !isOfFile && OpenDeclaration().accepts.Contains(kind);
}

bool Walk::EndsList(const Word& word) const {
  const bool mayEnd = phase_ == Phase::List || (phase_ == Phase::Rows && rowsFillLine_);
  return mayEnd && IsKeywordHere(word);
}

// The converter finds the keyword of a child in a longer word as well.
bool Walk::HoldsChild(const Word& word) {
  const ElementKind child = Item().declaration->parameters.back().childInList;
  return child != KIND_ROOT && word.type == WordType::Plain &&
         word.text.find(KindToKeyword(child)) != std::string_view::npos;
}

// ---------------------------------------------------------------------------------------------
// Keywords

void Walk::BeginMarker(const Word& marker) {
  const Word word = lexer_.Next();
  if (word.type != WordType::Plain && word.type != WordType::Text) {
    return BadMarker(marker, word, MendRule::BeginRefused);
  }
  FinishItem(marker);
  const ElementKind kind = KindOf(word);
  if (IsProperty(kind)) {
    Report(MendRule::BeginRefused, word, OpenElement());
    comparison_.Surplus(word);
    out_.BeginLine(frames_.size());
    out_.Plain(kBegin);
    Write(word);
    mayFollow_ = false;
    phase_ = Phase::Surplus;
    return;
  }
  OpenBlock(word, kind);
}

// A marker without a keyword is left out. The converter would take the next word that is written
// for the keyword, whatever it is: even an /end that is added.
void Walk::BadMarker(const Word& marker, const Word& word, MendRule rule) {
  Report(rule, marker, OpenElement());
  comparison_.Interrupt();
  returned_ = word;
}

void Walk::OpenBlock(const Word& word, ElementKind kind) {
  const std::size_t level = frames_.size();
  Element element = ElementAt(word, kind);
  if (word.type == WordType::Text) {
    // It makes no sense, but it must look the same at the other end.
    element.keyword = kept_.emplace_back(MendedText(word.text, word.traits));
  }
  if (kind == KIND_UNKNOWN) {
    Report(MendRule::UnknownBlock, word, OpenElement());
  } else if (!OpenDeclaration().accepts.Contains(kind)) {
    Report(MendRule::Refused, word, OpenElement());
  } else if (!frames_.empty() && frames_.back().seen.Contains(kind) && !IsRepeated(kind)) {
    Report(MendRule::Second, word, OpenElement());
  }
  if (!frames_.empty()) frames_.back().seen = frames_.back().seen.With(kind);
  comparison_.Keyword(word, Role::Begin, OpenElement(), element);
  mayFollow_ = OpenDeclaration().accepts.Contains(kind) && !comparison_.IsInterrupted();
  frames_.push_back({element, {}});
  out_.BeginLine(level);
  out_.Plain(kBegin, false);
  Write(word);
  itemIsBlock_ = true;
  phase_ = Phase::Keyword;
  if (element.declaration->KeepsRawText()) return CopyRaw();
  StartParameters(*element.declaration);
}

void Walk::OpenProperty(const Word& word, ElementKind kind) {
  property_ = ElementAt(word, kind);
  const bool isFlag = property_.declaration->paramCount == 0;
  if (!frames_.empty()) {
    KindSet& seen = frames_.back().seen;
    if (seen.Contains(kind) && !isFlag && !IsRepeated(kind)) {
      Report(MendRule::Second, word, OpenElement());
    }
    seen = seen.With(kind);
  }
  comparison_.Keyword(word, Role::Property, OpenElement(), property_);
  mayFollow_ = !comparison_.IsInterrupted();
  itemIsBlock_ = false;
  out_.BeginLine(frames_.size());
  Write(word);
  StartParameters(*property_.declaration);
}

void Walk::StartParameters(const Declaration& declaration) {
  index_ = parameter_ = repeated_ = 0;
  rows_ = 0;
  phase_ = Phase::Fixed;
  if (declaration.parameters.empty()) {
    EndOfFixed();
  } else if (declaration.parameters.front().isList) {
    phase_ = Phase::List;
  }
}

void Walk::KeywordDue(const Word& word) {
  const ElementKind kind = KindOf(word);
  if (kind == ElementKind::ENCODING) {
    // The finding comes with the parameter, if there is one.
    Report(MendRule::Encoding, word, OpenElement());
    comparison_.Surplus(word);
    behindEncoding_ = phase_;
    phase_ = Phase::Encoding;
  } else if (IsProperty(kind) && OpenDeclaration().accepts.Contains(kind)) {
    OpenProperty(word, kind);
  } else {
    NotAKeyword(word, kind);
  }
}

// Words that nothing takes stay where the converter had them: on a line of their own, or behind
// something else, where it drops them without looking at them.
void Walk::NotAKeyword(const Word& word, ElementKind kind) {
  const bool isFirst = phase_ == Phase::Keyword;
  if (isFirst) {
    if (IsProperty(kind)) {
      Report(MendRule::Refused, word, OpenElement());
    } else if (IsBlock(kind)) {
      Report(MendRule::BeginMissing, word, OpenElement());
    } else if (LooksLikeAValue(word)) {
      Report(MendRule::Surplus, word, Item().keyword.empty() ? OpenElement() : Item());
    } else {
      Report(MendRule::UnknownKeyword, word, OpenElement());
    }
  }
  const bool isBehind = comparison_.Surplus(word) && mayFollow_;
  if (isFirst && !isBehind) {
    out_.BeginLine(frames_.size());
    mayFollow_ = false;
  }
  Write(word);
  phase_ = Phase::Surplus;
}

void Walk::MissingInclude(const Word& word) {
  // Where values are due, the converter would take the words for values.
  const std::string_view name = NameInInclude(word);
  if (phase_ != Phase::Keyword || !MayStay(name)) return;
  out_.BeginLine(frames_.size());
  // In the letters in which it stands there.
  out_.Plain(word.text.substr(0, std::string_view("/include").size()));
  out_.Plain(name);
}

void Walk::EndMarker(const Word& marker) {
  const bool isRaw = !frames_.empty() && frames_.back().element.declaration->KeepsRawText();
  const Word word = lexer_.Next();
  if (word.type != WordType::Plain && word.type != WordType::Text) {
    BadMarker(marker, word, MendRule::EndUnmatched);
    // The text that is kept ends there all the same.
    if (isRaw) CloseBlock(nullptr);
    return;
  }
  FinishItem(marker);
  const ElementKind kind = KindOf(word);
  const std::size_t most = std::min(frames_.size(), kMostLevels);
  std::size_t inner = 0;
  while (inner < most && frames_[frames_.size() - 1 - inner].element.kind != kind) ++inner;
  if (inner == most) {
    Report(MendRule::EndUnmatched, word, OpenElement());
    comparison_.Surplus(word);
    if (isRaw) {
      CloseBlock(&word);
    } else {
      out_.BeginLine(frames_.size());
      out_.Plain(kEnd);
      Write(word);
    }
    mayFollow_ = false;
    return;
  }
  for (; inner > 0; --inner) CloseBlock(nullptr);
  Element& element = frames_.back().element;
  if (isRaw) {
    comparison_.RawEnd(word, element);
  } else {
    comparison_.End(word, element);
  }
  CloseBlock(&word);
}

// The name of an IF_DATA stands on the line of its /begin, everything else below it.
void Walk::CopyRaw() {
  Element& element = frames_.back().element;
  Word name;
  if (element.declaration->parameters.size() > 1) {
    name = lexer_.Next();
    if (name.type == WordType::Plain || name.type == WordType::Text) {
      comparison_.InterfaceName(name, element);
      Check(name, element.declaration->parameters.front());
      element.name = name.text;
      Write(name);
    } else if (name.type == WordType::Begin || name.type == WordType::End) {
      Report(MendRule::ParameterMissing, name, element);
      comparison_.NoInterfaceName(name);
      lexer_.Return(name);
    }
  }
  const Word marker = RawText(element.keyword, lexer_, out_, reporter_).CopyToEnd(name);
  out_.SetPlace(marker.file, marker.line);
  if (marker.type == WordType::End) return EndMarker(marker);
  returned_ = marker;
}

void Walk::CloseBlock(const Word* keyword) {
  const Element& element = frames_.back().element;
  if (keyword == nullptr) ReportOpen(element);
  out_.BeginLine(frames_.size() - 1);
  out_.Plain(kEnd, false);
  if (keyword != nullptr) {
    Write(*keyword);
  } else {
    out_.Plain(element.keyword);
  }
  frames_.pop_back();
  mayFollow_ = !comparison_.IsInterrupted();
  itemIsBlock_ = false;
  property_ = {};
  phase_ = Phase::Keyword;
}

void Walk::EndOfInput(const Word& word) {
  Word end = word;
  end.text = "the end of the file";
  FinishItem(end);
  comparison_.EndOfText(end);
  while (!frames_.empty()) CloseBlock(nullptr);
}

// ---------------------------------------------------------------------------------------------
// Parameters

void Walk::ParameterDue(const Word& word) {
  if (phase_ == Phase::Encoding) {
    phase_ = behindEncoding_;
    if (IsKeywordHere(word)) return KeywordDue(word);
    comparison_.Surplus(word);
    return;
  }
  if (EndsList(word)) return KeywordDue(word);
  if (phase_ == Phase::List && HoldsChild(word)) {
    const ElementKind child = Item().declaration->parameters.back().childInList;
    Report(MendRule::UnknownValue, word, Item(), KindToKeyword(child));
    return OpenProperty(word, child);
  }
  if (word.type == WordType::Text && !word.traits.IsPlain()) CheckText(word);
  comparison_.Parameter(word, Item(), index_, DueParameter());
  switch (phase_) {
    case Phase::Fixed:
      FixedParameter(word);
      break;
    case Phase::Rows:
      RowParameter(word);
      break;
    default:
      ListParameter(word);
  }
  ++index_;
  if (phase_ == Phase::Rows && index_ == rowsEnd_ && !rowsFillLine_) phase_ = Phase::Keyword;
}

const detail::Parameter& Walk::DueParameter() {
  const Declaration& declaration = *Item().declaration;
  if (phase_ == Phase::Rows) return declaration.columns[parameter_];
  return phase_ == Phase::List ? declaration.parameters.back() : declaration.parameters[parameter_];
}

void Walk::CheckText(const Word& word) {
  const TextTraits& traits = word.traits;
  const bool keepsFirstEnd = traits.hasWhiteFirstEnd && Item().line != word.line;
  const bool isUneven =
      (traits.hasUnevenLines || keepsFirstEnd) && !traits.hasComment && word.isInMain;
  if (!traits.isClosed) Report(MendRule::TextWithoutEnd, word, Item());
  if (traits.hasMarker) Report(MendRule::TextMarker, word, Item());
  if (traits.hasBackslashQuote) Report(MendRule::TextBackslash, word, Item());
  if (traits.hasComment) Report(MendRule::TextComment, word, Item());
  if (isUneven) Report(MendRule::TextLines, word, Item());
  if (traits.hasMarker || traits.hasComment) comparison_.SetTold(word);
}

void Walk::FixedParameter(const Word& word) {
  Element& item = Item();
  const Declaration& declaration = *item.declaration;
  const detail::Parameter& parameter = DueParameter();
  Check(word, parameter);
  Write(word);
  if (itemIsBlock_ && index_ == 0 && parameter.type == ParameterType::Identifier) {
    item.name = word.text;
  }
  if (declaration.HasRows() && parameter_ == declaration.rowCount) {
    rows_ = ReadUnsigned(word.text).value;
  }
  if (++repeated_ < parameter.count) return;
  repeated_ = 0;
  ++parameter_;
  if (parameter_ == declaration.parameters.size()) {
    EndOfFixed();
  } else if (declaration.parameters[parameter_].isList) {
    phase_ = Phase::List;
  }
}

// Counted as the converter counts: see LineRules.
void Walk::EndOfFixed() {
  const Declaration& declaration = *Item().declaration;
  phase_ = Phase::Keyword;
  if (!declaration.HasRows() || rows_ == 0) return;
  const auto columns = static_cast<std::uint32_t>(declaration.columns.size());
  const std::uint64_t needed = std::uint64_t{rows_} * columns;
  rowsFillLine_ = needed > static_cast<std::uint64_t>(std::numeric_limits<std::int32_t>::max());
  rowsEnd_ = index_ + 1 + static_cast<std::size_t>(needed);
  parameter_ = 0;
  phase_ = Phase::Rows;
}

void Walk::RowParameter(const Word& word) {
  if (parameter_ == 0 && !rowsFillLine_) out_.BeginLine(frames_.size());
  Check(word, DueParameter());
  Write(word);
  parameter_ = (parameter_ + 1) % Item().declaration->columns.size();
}

// In a block, an entry has a line of its own, unless it is a keyword, which would end the list
// there.
void Walk::ListParameter(const Word& word) {
  const detail::Parameter& parameter = DueParameter();
  const bool isSecond = parameter.type == ParameterType::NamedValue && repeated_ == 1;
  if (itemIsBlock_ && !isSecond && KindOf(word) == KIND_UNKNOWN) out_.BeginLine(frames_.size());
  repeated_ = isSecond ? 0 : 1;
  Check(word, parameter);
  Write(word);
}

void Walk::Check(const Word& word, const detail::Parameter& parameter) {
  const auto trouble = CheckValue(Item().kind, parameter, word.text);
  if (!trouble) return;
  const bool isDue = IsText(parameter.type) || !IsNumber(parameter, word.text);
  if (isDue && IsKeywordHere(word)) {
    return Report(MendRule::ParameterMissing, word, Item());
  }
  Report(trouble->rule, word, Item(), trouble->becomes);
}

void Walk::FinishItem(const Word& behind) {
  if (phase_ == Phase::Encoding) phase_ = behindEncoding_;
  const bool isHalf = phase_ == Phase::List && repeated_ == 1 &&
                      Item().declaration->parameters.back().type == ParameterType::NamedValue;
  if (phase_ == Phase::Fixed || isHalf) {
    Report(MendRule::ParameterMissing, behind, Item());
  } else if (phase_ == Phase::Rows && !rowsFillLine_) {
    Report(MendRule::Rows, behind, Item());
  }
  phase_ = Phase::Keyword;
}

void Walk::Write(const Word& word) {
  if (word.type == WordType::Text) {
    out_.Text(word.text, word.traits, frames_.size());
  } else {
    out_.Plain(word.text, word.hasQuote);
  }
}

void Walk::Report(MendRule rule, const Word& word, const Element& owner, std::string_view detail) {
  Finding finding = FindingAt(rule, word);
  finding.owner = owner.keyword;
  finding.ownerName = owner.name;
  finding.detail = detail;
  reporter_.Report(finding);
}

void Walk::ReportOpen(const Element& element) {
  Finding finding;
  finding.rule = MendRule::EndMissing;
  finding.file = element.file;
  finding.line = element.line;
  finding.column = element.column;
  finding.word = element.keyword;
  finding.owner = element.keyword;
  finding.ownerName = element.name;
  reporter_.Report(finding);
}

}  // namespace a2l::mending
