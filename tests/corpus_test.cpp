// SPDX-License-Identifier: MIT
//
// Files as users have them, if they lie beside the repository. The table in their README says which
// exit code and how many messages each must give.
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "a2l2json/export/json11_document.h"
#include "a2l2json/export/json_writer.h"
#include "tests/support/files.h"
#include "tests/support/programs.h"
#include "tests/support/trees.h"

namespace a2l::test {
namespace {

namespace fs = std::filesystem;

const fs::path kCorpus = A2L2JSON_CORPUS;

struct Expectation {
  long exitCode = -1;
  long messages = -1;
};

std::vector<std::string> Cells(const std::string& row) {
  std::vector<std::string> cells;
  std::istringstream in(row);
  for (std::string cell; std::getline(in, cell, '|');) {
    const std::size_t begin = cell.find_first_not_of(' ');
    const std::size_t end = cell.find_last_not_of(' ');
    cells.push_back(begin == std::string::npos ? "" : cell.substr(begin, end - begin + 1));
  }
  return cells;
}

// The rows of the table, by file name. The headings say which column is which.
std::map<std::string, Expectation> ReadTable() {
  std::map<std::string, Expectation> table;
  std::vector<std::string> headings;
  std::istringstream lines(ReadFile(kCorpus / "README.md"));
  for (std::string line; std::getline(lines, line);) {
    const std::vector<std::string> cells = Cells(line);
    if (headings.empty()) {
      if (std::ranges::find(cells, "exit") != cells.end()) headings = cells;
      continue;
    }
    if (cells.size() != headings.size()) continue;
    std::string file;
    Expectation expectation;
    for (std::size_t i = 0; i < cells.size(); ++i) {
      if (headings[i] == "file") file = cells[i];
      if (headings[i] == "exit") expectation.exitCode = std::strtol(cells[i].c_str(), nullptr, 10);
      if (headings[i] == "messages")
        expectation.messages = std::strtol(cells[i].c_str(), nullptr, 10);
    }
    if (file.ends_with(".a2l")) table[file] = expectation;
  }
  return table;
}

long CountMessages(const std::string& console) {
  long count = 0;
  for (const std::string_view marker : {"Warning: Line(", "Error: Line("}) {
    for (std::size_t i = console.find(marker); i != std::string::npos;
         i = console.find(marker, i + 1)) {
      ++count;
    }
  }
  return count;
}

class Corpus : public testing::Test {
 protected:
  void SetUp() override {
    if (!fs::is_directory(kCorpus)) GTEST_SKIP() << "There is no folder of users' files here.";
  }
};

TEST_F(Corpus, IsConvertedAsItsTableSays) {
  const std::map<std::string, Expectation> table = ReadTable();
  ASSERT_FALSE(table.empty());
  std::set<std::string> files;
  for (const auto& entry : fs::directory_iterator(kCorpus)) {
    if (entry.path().extension() == ".a2l") files.insert(entry.path().filename().string());
  }
  for (const auto& [file, expectation] : table) EXPECT_TRUE(files.contains(file)) << file;

  const TemporaryFolder folder;
  for (const std::string& file : files) {
    SCOPED_TRACE(file);
    ASSERT_TRUE(table.contains(file));
    const Expectation& expected = table.at(file);
    const fs::path json = folder / (file + ".json");
    const RunResult run = RunProgram({kCorpus / file, json});
    EXPECT_EQ(run.exitCode, expected.exitCode);
    EXPECT_EQ(CountMessages(run.out), expected.messages) << run.out;
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(fs::exists(json), expected.exitCode == 0);
  }
}

// The document is well-formed, and the same as that of json11.
TEST_F(Corpus, GivesTheDocumentOfJson11) {
  for (const auto& entry : fs::directory_iterator(kCorpus)) {
    if (entry.path().extension() != ".a2l") continue;
    SCOPED_TRACE(entry.path().filename());
    const Reading reading = Read(ReadFile(entry.path()));
    if (!reading.ok) continue;
    const std::string json = ToJson(*reading.root);
    const json11::Json document = ToJson11(*reading.root);
    EXPECT_TRUE(json == document.dump());
    std::string error;
    EXPECT_TRUE(json11::Json::parse(json, error) == document) << error;
  }
}

}  // namespace
}  // namespace a2l::test
