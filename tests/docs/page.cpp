// SPDX-License-Identifier: MIT
#include "tests/docs/page.h"

#include <algorithm>
#include <cstddef>
#include <sstream>
#include <utility>

#include "tests/support/files.h"

namespace a2l::test {

namespace fs = std::filesystem;

Page::Page(const fs::path& path) : Page(path.filename().string(), ReadFile(path)) {}

Page::Page(std::string partName, std::string partText)
    : name(std::move(partName)), text(std::move(partText)) {
  TakeApart();
}

void Page::TakeApart() {
  std::istringstream in(text);
  bool inBlock = false;
  bool waits = false;
  for (std::string line; std::getline(in, line);) {
    if (line.starts_with("```")) {
      inBlock = !inBlock;
      waits = !inBlock;
      if (inBlock) blocks.push_back({line.substr(3), {}, {}});
    } else if (inBlock) {
      blocks.back().lines.push_back(line);
    } else {
      lines.push_back(line);
      if (waits && !line.empty()) {
        blocks.back().below = line;
        waits = false;
      }
    }
  }
}

fs::path Docs() { return fs::path(A2L2JSON_CASES).parent_path().parent_path() / "docs"; }

std::string OneLine(std::string_view text) {
  std::string line;
  for (const char c : text) {
    const bool blank = c == ' ' || c == '\t' || c == '\n' || c == '\r';
    if (!blank) line += c;
    if (blank && !line.empty() && line.back() != ' ') line += ' ';
  }
  if (line.ends_with(' ')) line.pop_back();
  return line;
}

bool IsExcerpt(const std::string& excerpt, const std::string& text) {
  constexpr std::string_view kGap = "...";
  std::size_t from = 0;
  for (std::size_t begin = 0; begin <= excerpt.size();) {
    const std::size_t end = std::min(excerpt.find(kGap, begin), excerpt.size());
    const std::string piece = OneLine(excerpt.substr(begin, end - begin));
    const std::size_t found = text.find(piece, from);
    if (piece.empty() || found == std::string::npos) return false;
    from = found + piece.size();
    begin = end + kGap.size();
  }
  return true;
}

}  // namespace a2l::test
