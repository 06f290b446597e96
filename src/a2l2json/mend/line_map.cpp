// SPDX-License-Identifier: MIT
#include "a2l2json/mend/line_map.h"

#include <algorithm>

namespace a2l {

SourceLine LineMap::Of(std::size_t mended) const {
  if (runs_.empty()) return {};
  const std::size_t line = std::clamp(mended - std::min(mended, before_), std::size_t{1}, lines_);
  const auto behind = std::ranges::upper_bound(runs_, line, {}, &Run::first);
  const Run& run = *(behind - 1);
  return {files_[run.file], run.line + (line - run.first)};
}

LineMap LineMap::Through(const LineMap& next) const {
  LineMap map;
  for (std::size_t line = 1; line <= next.before_ + next.lines_; ++line) {
    const SourceLine source = Of(next.Of(line).line);
    map.BeginLine(source.file, source.line);
  }
  return map;
}

void LineMap::BeginLine(std::string_view file, std::size_t line) {
  ++lines_;
  if (!runs_.empty()) {
    const Run& last = runs_.back();
    if (last.line + (lines_ - last.first) == line && files_[last.file] == file) return;
  }
  std::size_t index = runs_.empty() ? 0 : runs_.back().file;
  if (files_.empty() || files_[index] != file) {
    // Files are few, but one may be included often.
    const auto known = std::ranges::find(files_, file);
    index = static_cast<std::size_t>(known - files_.begin());
    if (known == files_.end()) files_.emplace_back(file);
  }
  runs_.push_back({lines_, line, index});
}

void LineMap::DropLine() {
  if (runs_.back().first == lines_) runs_.pop_back();
  --lines_;
}

}  // namespace a2l
