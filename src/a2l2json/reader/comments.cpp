// SPDX-License-Identifier: MIT
#include "a2l2json/reader/comments.h"

#include <cstddef>

#include "a2l2json/text/bytes.h"
#include "a2l2json/text/tokenizer.h"

namespace a2l {
namespace {

constexpr std::size_t kNone = std::string_view::npos;

// Position of the first comment outside of quoted texts; kNone without one.
std::size_t FindComment(std::string_view text) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '"') {
      i = FindClosingQuote(text, i + 1);
      if (i == kNone) return kNone;
    } else if (text[i] == '/' && OpensComment(text, i)) {
      return i;
    }
  }
  return kNone;
}

// Most lines hold no slash, and most of the others none that could open a comment; only what is
// left is worth a look at the quotes.
bool MayHoldComment(std::string_view text) {
  for (std::size_t i = text.find('/'); i != kNone; i = text.find('/', i + 1)) {
    if (OpensComment(text, i)) return true;
  }
  return false;
}

// Moves `text` behind the "*/" that ends the block comment it begins in, over further lines.
bool SkipBlockComment(std::string_view& text, const CommentRemover::NextLine& nextLine) {
  for (bool starBefore = false;;) {
    if (starBefore && text.starts_with('/')) {
      text.remove_prefix(1);
      return true;
    }
    if (const std::size_t end = text.find("*/"); end != kNone) {
      text.remove_prefix(end + 2);
      return true;
    }
    if (!text.empty()) starBefore = text.back() == '*';
    if (!nextLine(text)) return false;
  }
}

}  // namespace

bool CommentRemover::Remove(std::string_view& line, const NextLine& nextLine) {
  if (!MayHoldComment(line)) return true;
  text_.clear();
  std::size_t comment = FindComment(line);
  while (comment != kNone && line[comment + 1] == '*') {
    text_ += line.substr(0, comment);
    line.remove_prefix(comment + 2);
    if (!SkipBlockComment(line, nextLine)) return false;
    comment = FindComment(line);
  }
  text_ += line.substr(0, comment);  // the whole line where there is no comment left
  const std::size_t size = text_.size();
  text_.append(bytes::kBlock, ' ');
  line = std::string_view(text_).substr(0, size);
  return true;
}

}  // namespace a2l
