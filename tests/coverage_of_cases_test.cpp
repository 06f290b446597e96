// SPDX-License-Identifier: MIT
//
// The golden cases must cover the program: a case must read each keyword and show it in its
// document, and a case must give each message. Exceptions are listed here with their reasons. An
// exception that is no longer needed is a failure.
#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "a2l2json/reader/diagnostics.h"
#include "tests/support/files.h"
#include "tests/support/kinds.h"

namespace a2l::test {
namespace {

namespace fs = std::filesystem;

struct GoldenFiles {
  std::set<std::string> keywords;     // read in cases that succeed, at places for keywords
  std::set<std::string> keys;         // of their documents, with a value other than the default
  std::vector<std::string> consoles;  // the lines of all console texts
};

// The words of a file at which the reader looks for a keyword: the first word of a line, and the
// word behind "/begin".
void AddKeywords(const std::string& a2l, std::set<std::string>& keywords) {
  std::istringstream lines(a2l);
  for (std::string line; std::getline(lines, line);) {
    bool expected = true;
    std::istringstream words(line);
    for (std::string word; words >> word;) {
      if (expected) keywords.insert(word);
      expected = word == "/begin";
    }
  }
}

// The keys of a document whose value is not the default for something absent.
void AddKeys(const std::string& json, std::set<std::string>& keys) {
  constexpr std::string_view kBehindKey = "\": ";
  for (std::size_t end = json.find(kBehindKey); end != std::string::npos;
       end = json.find(kBehindKey, end + 1)) {
    const std::size_t begin = json.rfind('"', end - 1) + 1;
    const std::string_view value = std::string_view(json).substr(end + kBehindKey.size());
    if (!value.starts_with("null") && !value.starts_with("false") && !value.starts_with("[]"))
      keys.insert(json.substr(begin, end - begin));
  }
}

GoldenFiles ReadGoldenFiles() {
  GoldenFiles files;
  for (const auto& entry : fs::recursive_directory_iterator(A2L2JSON_CASES)) {
    const std::string extension = entry.path().extension().string();
    if (extension == ".out") {
      std::istringstream lines(ReadFile(entry.path()));
      for (std::string line; std::getline(lines, line);) files.consoles.push_back(line);
    } else if (extension == ".json") {
      // Only a case that succeeds has a document.
      AddKeys(ReadFile(entry.path()), files.keys);
      AddKeywords(ReadFile(fs::path(entry.path()).replace_extension(".a2l")), files.keywords);
    }
  }
  return files;
}

// Keywords whose content is not under the key of the same name.
struct OtherKey {
  std::string_view keyword, key;
};
constexpr OtherKey kOtherKeys[] = {
    {"A2ML_VERSION", "FA2ML_VERSION_VERSION_NO"},
    {"ASAP2_VERSION", "FASAP2_VERSION_VERSION_NO"},
    {"PROJECT", "FProject_Name"},
    {"HEADER", "FProject_HEADER_COMMENT"},
    {"PROJECT_NO", "FProject_HEADER_PROJECT_NO"},
    {"MODULE", "FModules"},
    {"CALIBRATION_HANDLE_TEXT", "FHANDLE_TEXT"},
    {"IDENTIFICATION", "FALIGNMENT_WORD"},
};

// Keywords that no case can cover.
struct Exemption {
  std::string_view keyword, reason;
};
constexpr Exemption kNeverRead[] = {
    {"ENCODING", "a file with this keyword is not accepted"},
};

TEST(GoldenCases, CoverEveryKeyword) {
  const GoldenFiles files = ReadGoldenFiles();
  for (const NumberedKeyword& entry : AllKeywords()) {
    const std::string& keyword = entry.keyword;
    const auto* exempt = std::ranges::find(kNeverRead, keyword, &Exemption::keyword);
    if (exempt != std::end(kNeverRead)) {
      EXPECT_FALSE(files.keywords.contains(keyword)) << keyword << " needs no exemption";
      EXPECT_FALSE(files.keys.contains("F" + keyword)) << keyword << " needs no exemption";
      continue;
    }
    EXPECT_TRUE(files.keywords.contains(keyword)) << keyword << " is not read in any case";
    const auto* other = std::ranges::find(kOtherKeys, keyword, &OtherKey::keyword);
    if (other != std::end(kOtherKeys)) {
      EXPECT_FALSE(files.keys.contains("F" + keyword)) << keyword << " has a key of its own";
      EXPECT_TRUE(files.keys.contains(std::string(other->key)))
          << other->key << " is not in any document";
    } else {
      EXPECT_TRUE(files.keys.contains("F" + keyword)) << keyword << " is not shown in any document";
    }
  }
}

TEST(GoldenCases, ExemptOnlyKeywords) {
  std::set<std::string_view> exempt;
  for (const Exemption& entry : kNeverRead) EXPECT_TRUE(exempt.insert(entry.keyword).second);
  for (const OtherKey& entry : kOtherKeys) EXPECT_TRUE(exempt.insert(entry.keyword).second);
  for (const std::string_view keyword : exempt)
    EXPECT_NE(KeywordToKind(keyword), KIND_UNKNOWN) << keyword;
}

// Messages that no file can cause: the content of a raw block is never wrong, and every element
// that the reader attaches has a parent.
constexpr DiagnosticKind kNeverGiven[] = {
    DiagnosticKind::WrongRawContent,
    DiagnosticKind::NoParentAtEnd,
    DiagnosticKind::NoParent,
};

// True if `line` is a message of the same kind as `message`, which names line 0.
bool IsSameMessage(std::string_view line, std::string_view message) {
  constexpr std::string_view kLineNumber = "Line(";
  const std::size_t number = message.find(kLineNumber) + kLineNumber.size();
  const std::size_t start = line.find(message.substr(0, number));
  if (start == std::string_view::npos) return false;
  const std::size_t end = line.find(')', start);
  std::string_view text = message.substr(message.find(')', number));
  text.remove_suffix(1);  // the line feed
  return end != std::string_view::npos && line.substr(end).starts_with(text);
}

TEST(GoldenCases, CoverEveryMessage) {
  const GoldenFiles files = ReadGoldenFiles();
  for (int number = 0; number <= static_cast<int>(DiagnosticKind::NoParent); ++number) {
    const auto kind = static_cast<DiagnosticKind>(number);
    const std::string message = Diagnostic{kind, 0, ""}.Text();
    const bool given = std::ranges::any_of(
        files.consoles, [&](const std::string& line) { return IsSameMessage(line, message); });
    const bool exempt = std::ranges::find(kNeverGiven, kind) != std::end(kNeverGiven);
    EXPECT_EQ(given, !exempt) << message << (exempt ? "needs no exemption" : "is in no case");
  }
}

}  // namespace
}  // namespace a2l::test
