// SPDX-License-Identifier: MIT
#include "a2l2json/mend/layout.h"

namespace a2l::mending {
namespace {

bool BeginsMarker(std::string_view rest) {
  return rest.starts_with(kBegin) || rest.starts_with(kEnd);
}

}  // namespace

void Layout::MapRaw(std::string_view bytes) {
  while (!bytes.empty()) {
    if (rawBeginsLine_) lines_->BeginLine(file_, line_);
    const std::size_t end = bytes.find('\n');
    rawBeginsLine_ = end != std::string_view::npos;
    if (!rawBeginsLine_) return;
    ++line_;
    bytes.remove_prefix(end + 1);
  }
}

std::string MendedText(std::string_view text, const TextTraits& traits) {
  std::string mended;
  if (!traits.isClosed) {
    while (text.size() > 1 && IsWhite(text.back())) text.remove_suffix(1);
  }
  mended += text.front();
  std::size_t backslashes = 0;
  std::size_t i = 1;
  while (i < text.size()) {
    const char c = text[i];
    if (IsWhite(c)) {
      std::size_t end = i;
      bool hasLineEnd = false;
      for (; end < text.size() && IsWhite(text[end]); ++end) hasLineEnd |= text[end] == '\n';
      if (hasLineEnd) {
        mended += ' ';
      } else {
        mended += text.substr(i, end - i);
      }
      backslashes = 0;
      i = end;
      continue;
    }
    if (c == '"' && backslashes > 0 && backslashes % 2 == 0) mended += ' ';
    mended += c;
    if (c == '/' && BeginsMarker(text.substr(i))) mended += ' ';
    backslashes = c == '\\' ? backslashes + 1 : 0;
    ++i;
  }
  if (!traits.isClosed) {
    if (backslashes > 0) mended += ' ';
    mended += '"';
  }
  return mended;
}

}  // namespace a2l::mending
