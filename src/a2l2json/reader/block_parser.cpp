// SPDX-License-Identifier: MIT
#include "a2l2json/reader/block_parser.h"

#include <algorithm>
#include <string>
#include <utility>

#include "a2l2json/elements/declarations.h"
#include "a2l2json/model/keywords.h"
#include "a2l2json/reader/element_factory.h"

namespace a2l {
namespace {

constexpr std::size_t kNone = std::string_view::npos;

constexpr std::string_view kBegin = "/begin";
constexpr std::string_view kEnd = "/end";

// `kind` is that of an element.
bool KeepsRawText(ElementKind kind) { return detail::DeclarationOf(kind)->KeepsRawText(); }

}  // namespace

bool BlockParser::Run() {
  for (std::string_view line; ReadPhysicalLine(line);) {
    LineSource::Slashes slashes = lines_.SlashesOfLine();
    if (slashes.first == kNone) {
      if (!HandlePlain(line)) return false;
      continue;
    }
    if (!RemoveComments(line, slashes)) {
      return !lines_.Failed() && Fail(DiagnosticKind::UnterminatedComment);
    }
    if (!HandleLine(line, slashes)) return false;
    while (!remainder_.empty()) {
      if (!HandleLine(std::exchange(remainder_, {}), remainderSlashes_)) return false;
    }
  }
  return !lines_.Failed();
}

bool BlockParser::RemoveComments(std::string_view& line, LineSource::Slashes& slashes) {
  if (slashes.first == slashes.last && !OpensComment(line, slashes.first)) return true;
  if (!comments_.Remove(line, nextPhysicalLine_)) return false;
  slashes = {line.find('/'), line.rfind('/')};
  return true;
}

bool BlockParser::ReadPhysicalLine(std::string_view& line) {
  if (!lines_.Next(line)) return false;
  ++lineNo_;
  return true;
}

BlockParser::MarkerPlace BlockParser::FindMarker(std::string_view line,
                                                 LineSource::Slashes slashes) {
  std::size_t slash = slashes.first;
  while (slash != kNone) {
    const std::string_view rest = line.substr(slash);
    if (rest.starts_with(kBegin)) return {Marker::Begin, slash, slash + kBegin.size()};
    if (rest.starts_with(kEnd)) return {Marker::End, slash, slash + kEnd.size()};
    slash = slash < slashes.last ? line.find('/', slash + 1) : kNone;
  }
  return {};
}

bool BlockParser::HandleLine(std::string_view line, LineSource::Slashes slashes) {
  MarkerPlace place;
  if (state_ == State::PendingBegin || state_ == State::PendingEnd) {
    // The marker left over from the line before stands in front of this one.
    place.marker = state_ == State::PendingBegin ? Marker::Begin : Marker::End;
    state_ = State::Idle;
  } else {
    place = FindMarker(line, slashes);
    if (place.marker == Marker::None) return HandlePlain(line);
    slashes.first = place.position < slashes.last ? line.find('/', place.end) : kNone;
  }
  if (slashes.first != kNone) {
    const MarkerPlace next = FindMarker(line, slashes);
    if (next.marker != Marker::None) {
      remainder_ = line.substr(next.position);
      remainderSlashes_ = {0, slashes.last - next.position};
      line = line.substr(0, next.position);
    }
  }
  const std::string_view text = line.substr(place.end);
  return place.marker == Marker::Begin ? HandleBegin(line, text) : HandleEnd(line, text);
}

bool BlockParser::HandleBegin(std::string_view line, std::string_view text) {
  if (state_ == State::RawContent) {
    collected_.Append('\n', line);
    ++rawDepth_;
    return true;
  }
  if (!CloseCollection(DiagnosticKind::NoParent)) return false;
  const std::string_view keyword = NextPaddedToken(text);
  const ElementKind kind = PaddedKeywordToKind(keyword);
  if (keyword.empty() && remainder_.empty()) {
    state_ = State::PendingBegin;
    return true;
  }
  // With another marker behind it, a marker without a keyword would never get one.
  if (keyword.empty() || IsProperty(kind)) {
    return Fail(DiagnosticKind::UnexpectedBegin,
                std::to_string(static_cast<std::int32_t>(current_->kind)));
  }
  VoA2LElement* element = CreateElement(kind, *current_);
  if (!Attach(element, keyword)) return false;
  current_ = element;
  if (!HasTokens(text, element->paramCount)) {
    const bool open = element->paramCount == kOpenParameterList;
    rawDepth_ = 0;
    StartCollecting(!open                ? State::CollectParams
                    : KeepsRawText(kind) ? State::RawContent
                                         : State::CollectOpen,
                    text, element->paramCount);
  } else {
    CompleteParameters(text);
  }
  return true;
}

bool BlockParser::HandleEnd(std::string_view line, std::string_view text) {
  if (state_ == State::RawContent && rawDepth_ > 0) {
    collected_.Append('\n', line);
    --rawDepth_;
    return true;
  }
  if (!CloseCollection(DiagnosticKind::NoParentAtEnd)) return false;
  const std::string_view keyword = NextPaddedToken(text);
  if (keyword.empty() && remainder_.empty()) {
    state_ = State::PendingEnd;
    return true;
  }
  while (IsProperty(current_->kind)) {
    if (!ReturnToParent(DiagnosticKind::NoParentAtEnd)) return false;
  }
  if (keyword.empty() || PaddedKeywordToKind(keyword) != current_->kind) {
    return Fail(DiagnosticKind::EndDoesNotMatch, KindToKeyword(current_->kind));
  }
  return ReturnToParent(DiagnosticKind::NoParentAtEnd);
}

bool BlockParser::HandlePlain(std::string_view line) {
  switch (state_) {
    case State::RawContent:
      collected_.Append('\n', line);
      return true;
    case State::CollectParams:
    case State::CollectPropertyParams:
    case State::CollectMoreParams:
      collected_.Append(' ', line);
      return !finder_.Find(collected_.View(), needed_) || CompleteCollection();
    case State::PendingBegin:
      state_ = State::Idle;
      return HandleBegin(line, line);
    case State::PendingEnd:
      state_ = State::Idle;
      return HandleEnd(line, line);
    case State::CollectOpen:
    case State::Idle:
      break;
  }
  std::string_view text = line;
  const std::string_view keyword = NextPaddedToken(text);
  const ElementKind kind = PaddedKeywordToKind(keyword);
  if (state_ == State::CollectOpen) {
    if (kind == KIND_UNKNOWN) {
      collected_.Append(' ', line);
      return true;
    }
    if (!CloseCollection(DiagnosticKind::NoParent)) return false;
  }
  if (keyword.empty()) return true;
  if (kind == KIND_UNKNOWN) {
    Warn(DiagnosticKind::UnexpectedElement, keyword);
    return true;
  }
  return HandleProperty(kind, keyword, text);
}

bool BlockParser::HandleProperty(ElementKind kind, std::string_view keyword,
                                 std::string_view text) {
  VoA2LElement* property = IsProperty(kind) ? CreateElement(kind, *current_) : nullptr;
  if (property == nullptr) return Fail(DiagnosticKind::BeginMissing, keyword);
  if (!Attach(property, keyword)) return false;
  if (!HasTokens(text, property->paramCount)) {
    current_ = property;
    StartCollecting(property->paramCount == kOpenParameterList ? State::CollectOpen
                                                               : State::CollectPropertyParams,
                    text, property->paramCount);
  } else if (TokenReader tokens = finder_.Tokens(text); !property->TakeParameters(store_, tokens)) {
    // The property never became the current element: the warning names its block, and it is
    // the block's parent whose validity is at stake.
    WrongParameters();
  }
  return true;
}

bool BlockParser::Attach(VoA2LElement* element, std::string_view keyword) {
  return current_->AddChild(element) || Fail(DiagnosticKind::RefusedElement, keyword);
}

bool BlockParser::HasTokens(std::string_view text, std::size_t needed) {
  finder_.Reset();
  // An open list waits for more tokens than there are bytes in most lines.
  return needed <= text.size() && finder_.Find(text, needed);
}

void BlockParser::CompleteParameters(std::string_view text) {
  VoA2LElement& element = *current_;
  state_ = State::Idle;
  TokenReader tokens = finder_.Tokens(text);
  if (!element.TakeParameters(store_, tokens)) WrongParameters();
  if (!element.HasMoreParameters()) return;
  text = tokens.Rest();
  const auto needed = static_cast<std::size_t>(std::max(element.MoreParameterCount(), 0));
  if (!HasTokens(text, needed)) {
    StartCollecting(State::CollectMoreParams, text, needed);
    return;
  }
  TokenReader more = finder_.Tokens(text);
  if (!element.TakeMoreParameters(store_, more)) WrongParameters();
}

void BlockParser::StartCollecting(State state, std::string_view text, std::size_t needed) {
  state_ = state;
  collected_.Set(text);
  needed_ = needed;
}

bool BlockParser::CompleteCollection() {
  const std::string_view text = collected_.View();
  TokenReader tokens = finder_.Tokens(text);
  switch (std::exchange(state_, State::Idle)) {
    case State::CollectParams:
      CompleteParameters(text);
      return true;
    case State::CollectMoreParams:
      if (!current_->TakeMoreParameters(store_, tokens)) WrongParameters();
      return true;
    case State::CollectPropertyParams:
      if (!current_->TakeParameters(store_, tokens)) WrongParameters();
      return ReturnToParent(DiagnosticKind::NoParent);
    case State::Idle:
    case State::CollectOpen:
    case State::RawContent:
    case State::PendingBegin:
    case State::PendingEnd:
      break;
  }
  return true;
}

bool BlockParser::CloseCollection(DiagnosticKind ifNoParent) {
  TokenReader tokens(collected_.View());
  switch (std::exchange(state_, State::Idle)) {
    case State::Idle:
    case State::PendingBegin:
    case State::PendingEnd:
      return true;
    case State::CollectParams:
      Warn(DiagnosticKind::NeedMoreParameters, std::to_string(current_->paramCount));
      if (!current_->TakeParameters(store_, tokens)) ClearValidOfParent();
      return true;
    case State::CollectMoreParams:
      Warn(DiagnosticKind::NeedMoreParameters, std::to_string(current_->MoreParameterCount()));
      return true;
    case State::CollectPropertyParams:
      Warn(DiagnosticKind::NeedMoreParameters, std::to_string(current_->paramCount));
      current_->TakeParameters(store_, tokens);
      return ReturnToParent(ifNoParent);
    case State::CollectOpen:
      if (!current_->TakeParameters(store_, tokens)) WrongParameters();
      return !IsProperty(current_->kind) || ReturnToParent(ifNoParent);
    case State::RawContent:
      if (!current_->TakeParameters(store_, tokens)) {
        Warn(DiagnosticKind::WrongRawContent, KindToKeyword(current_->kind));
      }
      return true;
  }
  return true;
}

bool BlockParser::ReturnToParent(DiagnosticKind ifNone) {
  if (current_->parent == nullptr) return Fail(ifNone);
  current_ = current_->parent;
  return true;
}

void BlockParser::WrongParameters() {
  Warn(DiagnosticKind::WrongParameters, KindToKeyword(current_->kind));
  ClearValidOfParent();
}

void BlockParser::ClearValidOfParent() {
  VoA2LElement* parent = current_->parent;
  if (parent != nullptr && IsCalibrationObject(*parent)) parent->valid = 0;
}

void BlockParser::Warn(DiagnosticKind kind, std::string_view subject) {
  report_({kind, lineNo_, std::string(subject)});
}

bool BlockParser::Fail(DiagnosticKind kind, std::string_view subject) {
  report_({kind, lineNo_, std::string(subject)});
  return false;
}

}  // namespace a2l
