// SPDX-License-Identifier: MIT
#include "a2l2json/mend/line_rules.h"

#include <limits>
#include <utility>

#include "a2l2json/mend/source.h"
#include "a2l2json/text/bytes.h"
#include "a2l2json/text/numbers.h"
#include "a2l2json/text/tokenizer.h"

namespace a2l::mending {
namespace {

constexpr std::size_t kNone = std::string_view::npos;
constexpr std::size_t kNoEnd = static_cast<std::size_t>(-1);

using Role = LineWord::Role;
using Why = LineWord::Why;

std::size_t TrimmedEnd(std::string_view line, std::size_t begin, std::size_t end) {
  while (end > begin && IsTrimmed(line[end - 1])) --end;
  return end;
}

}  // namespace

void LineRules::Restart(std::size_t position, std::span<const OpenBlock> open) {
  lines_.Restart(position);
  open_.assign(open.begin(), open.end());
  count_ = handedOut_ = 0;
  isOver_ = false;
  line_ = {};
  marker_ = pending_ = Marker::None;
  task_ = Task::NextPiece;
  state_ = State::Idle;
  textIsOpen_ = nameIsOpen_ = false;
}

bool LineRules::FindMore() {
  count_ = handedOut_ = 0;
  while (count_ < kEnough && !isOver_) Step();
  return count_ > 0;
}

void LineRules::Step() {
  switch (task_) {
    case Task::NextPiece:
      return marker_ == Marker::None ? NextLine() : NextPiece(markerBegin_);
    case Task::Collect:
      return Collect();
    case Task::Drop:
      return Drop();
  }
}

void LineRules::NextLine() {
  if (!lines_.Next()) {
    if (lines_.CommentIsOpen()) return Fail(lines_.Begin());
    isOver_ = true;
    return;
  }
  line_ = lines_.Line();
  cursor_ = pieceBegin_ = 0;
  onKeywordPiece_ = false;
  FindMarker(lines_.FirstSlash());
  if (pending_ != Marker::None) {
    return std::exchange(pending_, Marker::None) == Marker::Begin ? BeginPiece() : EndPiece();
  }
  if (marker_ == Marker::None) return PlainLine();
  // What stands before the marker is dropped, but in a text that is kept.
  const bool isKept = state_ == State::Raw && (marker_ == Marker::Begin || rawDepth_ > 0);
  if (isKept) return NextPiece(0);
  Close();
  DropRest(marker_ == Marker::Begin ? Why::BeforeBegin : Why::BeforeEnd);
}

void LineRules::NextPiece(std::size_t begin) {
  const Marker marker = marker_;
  pieceBegin_ = begin;
  cursor_ = markerEnd_;
  FindMarker(cursor_);
  marker == Marker::Begin ? BeginPiece() : EndPiece();
}

void LineRules::FindMarker(std::size_t from) {
  marker_ = Marker::None;
  pieceEnd_ = line_.size();
  for (std::size_t i = line_.find('/', from); i != kNone; i = line_.find('/', i + 1)) {
    const std::string_view rest = line_.substr(i, kBegin.size());
    const bool isBegin = rest.starts_with(kBegin);
    if (!isBegin && !rest.starts_with(kEnd)) continue;
    marker_ = isBegin ? Marker::Begin : Marker::End;
    markerBegin_ = pieceEnd_ = i;
    markerEnd_ = i + (isBegin ? kBegin.size() : kEnd.size());
    return;
  }
}

void LineRules::BeginPiece() {
  task_ = Task::NextPiece;
  if (state_ == State::Raw) {
    RawPiece();
    ++rawDepth_;
    return;
  }
  Close();
  Taken keyword;
  if (!Take(keyword)) {
    if (marker_ != Marker::None) return Fail(lines_.PositionOf(pieceBegin_));
    pending_ = Marker::Begin;
    return;
  }
  const ElementKind kind = KeywordToKind(TextOf(keyword));
  if (IsProperty(kind) || !OpenDeclaration().accepts.Contains(kind)) {
    return Fail(lines_.PositionOf(keyword.begin));
  }
  OpenElement(kind, keyword, Role::Begin);
}

void LineRules::EndPiece() {
  task_ = Task::NextPiece;
  if (state_ == State::Raw && rawDepth_ > 0) {
    RawPiece();
    --rawDepth_;
    return;
  }
  Close();
  Taken keyword;
  if (!Take(keyword)) {
    if (marker_ != Marker::None) return Fail(lines_.PositionOf(pieceBegin_));
    pending_ = Marker::End;
    return;
  }
  const std::size_t begin = lines_.PositionOf(keyword.begin);
  const ElementKind kind = KeywordToKind(TextOf(keyword));
  if (open_.empty() || kind != open_.back().kind) return Fail(begin);
  LineWord word;
  word.role = Role::End;
  word.kind = kind;
  word.begin = begin;
  word.end = lines_.EndOf(keyword.end);
  word.owner = OpenBegin();
  Emit(word);
  open_.pop_back();
  DropRest(Why::BehindEnd);
}

void LineRules::PlainLine() {
  if (state_ == State::Raw) return RawPiece();
  if (state_ == State::Fixed || state_ == State::Rows) {
    return ContinueCollecting();
  }
  Taken keyword;
  const bool isBlank = !Take(keyword);
  const ElementKind kind = isBlank ? KIND_UNKNOWN : KeywordToKind(TextOf(keyword));
  if (state_ == State::List && kind == KIND_UNKNOWN) {
    cursor_ = 0;
    return ContinueCollecting();
  }
  Close();
  if (isBlank) return;
  if (kind == KIND_UNKNOWN) {
    cursor_ = 0;
    return DropRest(Why::UnknownLine);
  }
  const bool isKnown = IsProperty(kind) && detail::DeclarationOf(kind) != nullptr;
  if (!isKnown || !OpenDeclaration().accepts.Contains(kind)) {
    return Fail(lines_.PositionOf(keyword.begin));
  }
  OpenElement(kind, keyword, Role::Property);
}

bool LineRules::Take(Taken& taken) {
  const std::string_view piece = line_.substr(0, pieceEnd_);
  std::size_t begin = cursor_;
  if (begin == 0) {
    begin = static_cast<std::size_t>(
        bytes::SkipAll<' '>(piece.data(), piece.data() + piece.size()) - piece.data());
  }
  while (begin < piece.size() && IsTrimmed(piece[begin])) ++begin;
  cursor_ = begin;
  if (begin == piece.size()) return false;
  taken.begin = begin;
  taken.isClosed = true;
  if (piece[cursor_] == '"') {
    const std::size_t close = FindClosingQuote(piece, cursor_ + 1);
    taken.isClosed = close != kNone;
    cursor_ = taken.isClosed ? close + 1 : pieceEnd_;
  } else {
    const char* const end = piece.data() + piece.size();
    cursor_ = static_cast<std::size_t>(bytes::Find<' '>(piece.data() + begin, end) - piece.data());
  }
  taken.end = TrimmedEnd(line_, taken.begin, cursor_);
  return true;
}

void LineRules::OpenElement(ElementKind kind, const Taken& keyword, Role role) {
  LineWord word;
  word.role = role;
  word.kind = kind;
  word.begin = lines_.PositionOf(keyword.begin);
  word.end = lines_.EndOf(keyword.end);
  word.owner = OpenBegin();
  Emit(word);
  if (role == Role::Begin) open_.push_back({kind, word.begin});
  declaration_ = detail::DeclarationOf(kind);
  owner_ = word.begin;
  index_ = 0;
  rows_ = 0;
  rowsFillLine_ = false;
  onKeywordPiece_ = true;
  task_ = Task::Collect;
  if (declaration_->KeepsRawText()) return OpenRaw();
  state_ = declaration_->IsOpenList() ? State::List : State::Fixed;
  needed_ = declaration_->IsOpenList() ? kNoEnd : declaration_->paramCount;
  mayHoldChild_ = true;
  if (needed_ == 0) EndOfFixed();
}

void LineRules::OpenRaw() {
  task_ = Task::NextPiece;
  // A line that fills the largest count of all is complete at once.
  if (pieceEnd_ - cursor_ > kOpenParameterList &&
      CountTokens(line_.substr(cursor_, pieceEnd_ - cursor_)) >= kOpenParameterList) {
    return;
  }
  state_ = State::Raw;
  rawDepth_ = 0;
  nameIsOpen_ = declaration_->parameters.size() > 1;
  openBegin_ = kNowhere;
  // Of this line, the white space at its end does not count.
  if (nameIsOpen_) ContinueName(cursor_, TrimmedEnd(line_, cursor_, pieceEnd_));
}

void LineRules::RawPiece() {
  if (nameIsOpen_) ContinueName(pieceBegin_, pieceEnd_);
}

// The name ends at the first blank behind it; line ends are none.
void LineRules::ContinueName(std::size_t offset, std::size_t pieceEnd) {
  const auto emit = [this](std::size_t end) {
    LineWord word;
    word.role = Role::Parameter;
    word.begin = openBegin_;
    word.end = end;
    word.owner = owner_;
    Emit(word);
    nameIsOpen_ = false;
  };
  if (openBegin_ == kNowhere) {
    while (offset < pieceEnd && IsTrimmed(line_[offset])) ++offset;
    if (offset == pieceEnd) return;
    openBegin_ = lines_.PositionOf(offset);
    openEnd_ = openBegin_;
    if (line_[offset] == '"') {
      const std::size_t close = FindClosingQuote(line_.substr(0, pieceEnd), offset + 1);
      return emit(close == kNone ? kNowhere : lines_.EndOf(close + 1));
    }
  }
  const std::size_t blank = std::min(line_.find(' ', offset), pieceEnd);
  const std::size_t end = TrimmedEnd(line_, offset, blank);
  if (end > offset) openEnd_ = lines_.EndOf(end);
  if (blank < pieceEnd) emit(openEnd_);
}

void LineRules::Collect() {
  Taken taken;
  if (!Take(taken)) return EndOfPiece();
  const std::size_t begin = lines_.PositionOf(taken.begin);
  if (!taken.isClosed) {
    textIsOpen_ = true;
    openBegin_ = begin;
    return EndOfPiece();
  }
  CollectWord(TextOf(taken), begin, lines_.EndOf(taken.end));
}

void LineRules::CollectWord(std::string_view word, std::size_t begin, std::size_t end) {
  LineWord found;
  found.role = Role::Parameter;
  found.begin = begin;
  found.end = end;
  found.owner = owner_;
  found.index = index_;
  const ElementKind child = state_ == State::List && mayHoldChild_
                                ? declaration_->parameters.back().childInList
                                : KIND_ROOT;
  if (child != KIND_ROOT && word.find(KindToKeyword(child)) != kNone) {
    found.role = Role::Property;
    found.kind = child;
    Emit(found);
    declaration_ = detail::DeclarationOf(child);
    mayHoldChild_ = false;
    owner_ = begin;
    index_ = 0;
    needed_ = declaration_->paramCount;
    return;
  }
  if (state_ == State::List && index_ >= needed_) {
    found.role = Role::Dropped;
    found.why = Why::InList;
  }
  Emit(found);
  if (state_ == State::Fixed && declaration_->HasRows() && index_ == declaration_->rowCount) {
    rows_ = ReadUnsigned(word).value;
  }
  ++index_;
  // A handle that is no number ends the list: no keyword is looked for behind it.
  if (child != KIND_ROOT && !ReadSigned(word).ok) mayHoldChild_ = false;
  if (index_ != needed_) return;
  if (state_ == State::Fixed) {
    EndOfFixed();
  } else if (state_ == State::Rows && !rowsFillLine_) {
    state_ = State::Idle;
    DropRest(Why::BehindParameters);
  }
}

// The rows that a table declares may be more than their count can hold. Then those on the line
// that satisfies the count are read, whatever their number.
void LineRules::EndOfFixed() {
  if (declaration_->HasRows()) {
    const auto columns = static_cast<std::uint32_t>(declaration_->columns.size());
    const std::uint32_t needed = rows_ * columns;
    const bool isNegative =
        needed > static_cast<std::uint32_t>(std::numeric_limits<std::int32_t>::max());
    rowsFillLine_ = isNegative || std::uint64_t{rows_} * columns != needed;
    if (rowsFillLine_ || needed > 0) {
      state_ = State::Rows;
      needed_ = index_ + (isNegative ? 0 : needed);
      return;
    }
  }
  state_ = State::Idle;
  DropRest(Why::BehindParameters);
}

void LineRules::EndOfPiece() {
  task_ = Task::NextPiece;
  const bool isFullLine = state_ == State::List && onKeywordPiece_ && index_ >= kOpenParameterList;
  const bool isFullTable = state_ == State::Rows && rowsFillLine_ && index_ >= needed_;
  if (isFullLine || isFullTable) Close();
}

void LineRules::ContinueCollecting() {
  task_ = Task::Collect;
  if (!textIsOpen_) return;
  // The text goes on in this line, behind a blank.
  std::size_t close = kNone;
  if (line_.empty()) {
    // nothing of it is here
  } else if (line_[0] != '"') {
    close = FindClosingQuote(line_, 1);
  } else if (line_.size() > 1 && line_[1] == '"') {
    close = FindClosingQuote(line_, 2);
  } else {
    close = 0;
  }
  if (close == kNone) {
    task_ = Task::NextPiece;
    return;
  }
  textIsOpen_ = false;
  cursor_ = close + 1;
  CollectWord({}, openBegin_, lines_.EndOf(cursor_));
}

void LineRules::Close() {
  if (textIsOpen_ || nameIsOpen_) CloseOpenWord();
  state_ = State::Idle;
}

void LineRules::CloseOpenWord() {
  if (textIsOpen_ || openBegin_ != kNowhere) {
    LineWord word;
    word.role = Role::Parameter;
    word.begin = openBegin_;
    word.end = nameIsOpen_ ? openEnd_ : kNowhere;
    word.owner = owner_;
    word.index = nameIsOpen_ ? 0 : index_;
    Emit(word);
  }
  textIsOpen_ = nameIsOpen_ = false;
}

void LineRules::Drop() {
  Taken taken;
  if (!Take(taken)) {
    task_ = Task::NextPiece;
    return;
  }
  LineWord word;
  word.role = Role::Dropped;
  word.why = why_;
  word.begin = lines_.PositionOf(taken.begin);
  word.end = lines_.EndOf(taken.end);
  Emit(word);
}

void LineRules::DropRest(Why why) {
  task_ = Task::Drop;
  why_ = why;
}

void LineRules::Fail(std::size_t position) {
  LineWord word;
  word.role = Role::ReadEnds;
  word.begin = position;
  Emit(word);
  isOver_ = true;
}

const detail::Declaration& LineRules::OpenDeclaration() const {
  return *detail::DeclarationOf(open_.empty() ? KIND_ROOT : open_.back().kind);
}

}  // namespace a2l::mending
