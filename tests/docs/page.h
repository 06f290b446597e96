// SPDX-License-Identifier: MIT
//
// The project's pages, for tests that hold them against the program.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace a2l::test {

/// A code block of a page.
struct Block {
  std::string language;
  std::vector<std::string> lines;
  std::string below;  ///< the next line that is not blank
};

/// A page of Markdown, its code blocks apart.
struct Page {
  explicit Page(const std::filesystem::path& path);
  /// Of a part of a page.
  Page(std::string partName, std::string partText);

  std::string name;
  std::string text;
  std::vector<std::string> lines;
  std::vector<Block> blocks;

 private:
  void TakeApart();
};

/// The folder of the pages.
std::filesystem::path Docs();

/// Neighbouring blanks and line ends as one blank.
std::string OneLine(std::string_view text);

/// Whether the pieces of `excerpt`, with "..." between them, stand in `text` in their order.
bool IsExcerpt(const std::string& excerpt, const std::string& text);

}  // namespace a2l::test
