// SPDX-License-Identifier: MIT
#include "a2l2json/mend/logical_line.h"

#include <algorithm>

#include "a2l2json/text/bytes.h"
#include "a2l2json/text/tokenizer.h"

namespace a2l::mending {
namespace {

constexpr std::size_t kNone = std::string_view::npos;

bool OpensComment(std::string_view line, std::size_t slash) {
  return slash + 1 < line.size() && (line[slash + 1] == '/' || line[slash + 1] == '*');
}

// Position of the first comment outside of texts. A text that its line does not close hides the
// rest of the line.
std::size_t FindComment(std::string_view line) {
  for (std::size_t i = 0; i < line.size(); ++i) {
    if (line[i] == '"') {
      i = FindClosingQuote(line, i + 1);
      if (i == kNone) return kNone;
    } else if (line[i] == '/' && OpensComment(line, i)) {
      return i;
    }
  }
  return kNone;
}

}  // namespace

bool LogicalLines::NextPhysical(std::string_view& line) {
  if (next_ >= text_.size()) return false;
  const std::size_t end = std::min(text_.find('\n', next_), text_.size());
  line = text_.substr(next_, end - next_);
  next_ = std::min(end + 1, text_.size());
  return true;
}

// Most lines hold no slash, and most others no comment: one search looks for the end of the line
// and for slashes.
bool LogicalLines::Next() {
  begin_ = next_;
  pieces_.clear();
  if (next_ >= text_.size()) return false;
  const char* const begin = text_.data() + begin_;
  const char* const end = text_.data() + text_.size();
  const char* firstSlash = nullptr;
  const char* at = bytes::Find<'\n', '/'>(begin, end);
  for (; at != end && *at == '/'; at = bytes::Find<'\n', '/'>(at + 1, end)) {
    if (firstSlash == nullptr) firstSlash = at;
    if (at + 1 == end || (at[1] != '/' && at[1] != '*')) continue;
    // The texts in it say whether this is a comment.
    NextPhysical(line_);
    return RemoveComments(line_);
  }
  line_ = {begin, static_cast<std::size_t>(at - begin)};
  firstSlash_ = static_cast<std::size_t>((firstSlash == nullptr ? at : firstSlash) - begin);
  next_ = std::min(begin_ + line_.size() + 1, text_.size());
  return true;
}

bool LogicalLines::RemoveComments(std::string_view line) {
  joined_.clear();
  std::size_t comment = FindComment(line);
  while (comment != kNone && line[comment + 1] == '*') {
    Append(line.substr(0, comment));
    line.remove_prefix(comment + 2);
    if (!SkipBlockComment(line)) {
      commentIsOpen_ = true;
      return false;
    }
    comment = FindComment(line);
  }
  Append(line.substr(0, comment));
  line_ = joined_;
  firstSlash_ = std::min(line_.find('/'), line_.size());
  return true;
}

// Moves `line` behind the end of the comment that it begins in. A star that ends one line and a
// slash that begins the next end it as well.
bool LogicalLines::SkipBlockComment(std::string_view& line) {
  for (bool starBefore = false;;) {
    if (starBefore && line.starts_with('/')) {
      line.remove_prefix(1);
      return true;
    }
    if (const std::size_t end = line.find("*/"); end != kNone) {
      line.remove_prefix(end + 2);
      return true;
    }
    if (!line.empty()) starBefore = line.back() == '*';
    if (!NextPhysical(line)) return false;
  }
}

void LogicalLines::Append(std::string_view piece) {
  pieces_.push_back({joined_.size(), PositionIn(piece)});
  joined_ += piece;
}

std::size_t LogicalLines::PositionInPieces(std::size_t offset) const {
  const auto behind = std::upper_bound(
      pieces_.begin(), pieces_.end(), offset,
      [](std::size_t wanted, const Piece& piece) { return wanted < piece.offset; });
  const Piece& piece = *(behind - 1);
  return piece.position + (offset - piece.offset);
}

}  // namespace a2l::mending
