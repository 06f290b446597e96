// SPDX-License-Identifier: MIT
//
// docs/design.md says which room knows which other ones. The sources include no headers of others.
#include <filesystem>
#include <map>
#include <regex>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "tests/support/files.h"

namespace a2l::test {
namespace {

namespace fs = std::filesystem;

const fs::path kRepository = fs::path(A2L2JSON_CASES).parent_path().parent_path();

std::set<std::string> Matches(const std::string& text, const std::regex& pattern) {
  std::set<std::string> found;
  for (std::sregex_iterator match(text.begin(), text.end(), pattern), end; match != end; ++match) {
    found.insert((*match)[1]);
  }
  return found;
}

// Per room of the table in docs/design.md, the rooms and headers in its last column.
std::map<std::string, std::set<std::string>> KnownRooms() {
  const std::string page = ReadFile(kRepository / "docs" / "design.md");
  const std::regex row("\\| `([a-z/]+)/` \\|[^\n]*\\| ([^|\n]*) \\|\n");
  std::map<std::string, std::set<std::string>> known;
  for (std::sregex_iterator match(page.begin(), page.end(), row), end; match != end; ++match) {
    known[(*match)[1]] = Matches((*match)[2], std::regex("`([^`]+)`"));
  }
  return known;
}

fs::path FolderOf(const std::string& room) {
  const fs::path inside = kRepository / "src" / "a2l2json" / room;
  return fs::is_directory(inside) ? inside : kRepository / room;
}

TEST(Rooms, OfTheLibraryAreInTheTable) {
  for (const auto& folder : fs::directory_iterator(kRepository / "src" / "a2l2json")) {
    if (!folder.is_directory()) continue;
    EXPECT_TRUE(KnownRooms().contains(folder.path().filename().string())) << folder;
  }
}

TEST(Rooms, IncludeOnlyWhatTheyKnow) {
  const std::regex include(R"x(#include "(?:a2l2json/)?([a-z0-9_]+(?:\.h)?)[/"])x");
  std::size_t sources = 0;
  for (const auto& [room, known] : KnownRooms()) {
    ASSERT_TRUE(fs::is_directory(FolderOf(room))) << room;
    fs::recursive_directory_iterator files(FolderOf(room));
    for (const auto& file : files) {
      if (file.path().filename() == "node_modules") files.disable_recursion_pending();
      const fs::path extension = file.path().extension();
      if (extension != ".h" && extension != ".cpp") continue;
      // A room inside another one has a row of its own.
      const fs::path folder = file.path().parent_path();
      if (folder != FolderOf(room) &&
          KnownRooms().contains(room + "/" + folder.filename().string())) {
        continue;
      }
      ++sources;
      for (const std::string& included : Matches(ReadFile(file.path()), include)) {
        const bool isOwn = room.starts_with(included) || included.starts_with("names_");
        EXPECT_TRUE(isOwn || known.contains(included)) << file << " includes " << included;
      }
    }
  }
  EXPECT_GT(sources, 100U);
}

}  // namespace
}  // namespace a2l::test
