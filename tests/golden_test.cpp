// SPDX-License-Identifier: MIT
//
// The golden cases: tests/cases/<topic>/<name>.a2l with its expected files beside it.
//
// The name begins with ok_ (exit code 0, no message), warn_ (0, with warnings) or fail_ (-2).
//
//   <name>.out      the console text, for warn_ and fail_; for ok_ it is always the same
//   <name>.json     the document, for ok_ and warn_, with a line feed before every key: see
//                   tests/support/golden_document.h
//   <name>.written  optional: the tree, written back as A2L text
//
// A new case needs no code. With A2L2JSON_UPDATE_CASES=1 in the environment, the output of the
// program replaces the expected files. That is for reading the difference, never for making a test
// pass.
#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <filesystem>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "a2l2json/export/json11_document.h"
#include "a2l2json/export/json_writer.h"
#include "capi/a2l2json.h"
#include "tests/support/files.h"
#include "tests/support/golden_document.h"
#include "tests/support/programs.h"
#include "tests/support/trees.h"

namespace a2l::test {
namespace {

namespace fs = std::filesystem;

// The console text without messages.
constexpr std::string_view kSuccess = "Success.\n\n";

struct Case {
  fs::path path;  // of the .a2l file

  [[nodiscard]] fs::path With(const char* extension) const {
    return fs::path(path).replace_extension(extension);
  }
  [[nodiscard]] bool Is(const char* prefix) const {
    return path.filename().string().starts_with(prefix);
  }
  [[nodiscard]] std::string Name() const {
    return path.parent_path().filename().string() + "_" + path.stem().string();
  }
};

void PrintTo(const Case& golden, std::ostream* out) { *out << golden.Name(); }

std::vector<Case> AllCases() {
  std::vector<Case> cases;
  for (const auto& entry : fs::recursive_directory_iterator(A2L2JSON_CASES)) {
    if (entry.path().extension() == ".a2l") cases.push_back({entry.path()});
  }
  std::ranges::sort(cases, {}, &Case::path);
  return cases;
}

// NOLINTNEXTLINE(concurrency-mt-unsafe): no test sets the environment
bool Updates() { return std::getenv("A2L2JSON_UPDATE_CASES") != nullptr; }

void ExpectFile(const fs::path& path, const std::string& actual) {
  if (Updates()) {
    WriteFile(path, actual);
  } else {
    EXPECT_EQ(ReadFile(path), actual) << path;
  }
}

// Compares both in their golden form, so that a failure shows the lines that differ. Only line
// feeds are dropped from the file, and the document has none, so no other difference can be missed.
void ExpectDocument(const fs::path& path, const std::string& document) {
  EXPECT_EQ(document.find('\n'), std::string::npos) << "a document is one line";
  if (Updates()) {
    WriteFile(path, GoldenForm(document));
  } else {
    EXPECT_EQ(GoldenForm(ReadGoldenDocument(path)), GoldenForm(document)) << path;
  }
}

class Golden : public testing::TestWithParam<Case> {};

TEST_P(Golden, ProgramGivesConsoleTextExitCodeAndDocument) {
  const Case& golden = GetParam();
  const TemporaryFolder folder;
  const fs::path json = folder / "out.json";
  const RunResult run = RunProgram({golden.path, json});

  EXPECT_EQ(run.err, "");
  if (!golden.Is("ok_")) ExpectFile(golden.With(".out"), run.out);
  if (golden.Is("fail_")) {
    EXPECT_EQ(run.exitCode, 254);
    EXPECT_FALSE(fs::exists(json));
    EXPECT_FALSE(fs::exists(golden.With(".json"))) << "a failing case has no document";
    return;
  }
  EXPECT_TRUE(golden.Is("ok_") || golden.Is("warn_")) << "unknown prefix";
  EXPECT_EQ(run.exitCode, 0);
  EXPECT_EQ(run.out == kSuccess, golden.Is("ok_")) << "the name disagrees with " << run.out;
  ExpectDocument(golden.With(".json"), ReadFile(json));
}

TEST_P(Golden, CInterfaceGivesTheSame) {
  const Case& golden = GetParam();
  a2l2json_result* result = nullptr;
  const a2l2json_code code = a2l2json_convert_file(golden.path.string().c_str(), nullptr, &result);
  std::size_t size = 0;
  const char* messages = a2l2json_messages(result, &size);
  const char* const said = golden.Is("fail_") ? "Failed: " : "Success.\n";
  EXPECT_EQ(said + std::string(messages, size) + "\n",
            golden.Is("ok_") ? kSuccess : ReadFile(golden.With(".out")));
  const char* document = a2l2json_document(result, &size);
  EXPECT_EQ(document == nullptr, golden.Is("fail_"));
  EXPECT_EQ(code == A2L2JSON_NOT_CONVERTED, golden.Is("fail_"));
  if (document != nullptr) {
    EXPECT_TRUE(code == A2L2JSON_OK || code == A2L2JSON_NOT_A2L) << code;
    EXPECT_EQ(std::string_view(document, size), ReadGoldenDocument(golden.With(".json")));
  }
  a2l2json_free(result);
}

TEST_P(Golden, LibraryGivesTheSameDocumentThroughJson11) {
  const Case& golden = GetParam();
  Reading reading = Read(ReadFile(golden.path));
  EXPECT_EQ(reading.ok, !golden.Is("fail_"));
  if (reading.ok) {
    EXPECT_EQ(ToJson(*reading.root), ToJson11(*reading.root).dump());
  }
}

TEST_P(Golden, TreeIsWrittenBack) {
  const Case& golden = GetParam();
  if (!fs::exists(golden.With(".written"))) return;
  Reading reading = Read(ReadFile(golden.path));
  ASSERT_TRUE(reading.ok);
  ExpectFile(golden.With(".written"), Written(*reading.root));
}

INSTANTIATE_TEST_SUITE_P(Cases, Golden, testing::ValuesIn(AllCases()),
                         [](const auto& instance) { return instance.param.Name(); });

TEST(GoldenFolders, HoldNothingButCases) {
  ASSERT_FALSE(AllCases().empty());
  for (const auto& entry : fs::recursive_directory_iterator(A2L2JSON_CASES)) {
    if (entry.is_directory()) {
      EXPECT_FALSE(fs::is_empty(entry.path())) << entry.path();
      continue;
    }
    const std::string extension = entry.path().extension().string();
    EXPECT_TRUE(extension == ".a2l" || extension == ".out" || extension == ".json" ||
                extension == ".written")
        << entry.path();
    EXPECT_TRUE(fs::exists(fs::path(entry.path()).replace_extension(".a2l"))) << entry.path();
    EXPECT_FALSE(extension == ".out" && Case{entry.path()}.Is("ok_"))
        << entry.path() << " says no more than its name";
  }
}

TEST(GoldenFolders, HaveDocumentsWithALineFeedBeforeEveryKey) {
  for (const Case& golden : AllCases()) {
    if (golden.Is("fail_")) continue;
    const std::string file = ReadFile(golden.With(".json"));
    EXPECT_EQ(file, GoldenForm(FromGoldenForm(file)))
        << golden.With(".json") << ": write a line feed before every key and at the end only";
  }
}

}  // namespace
}  // namespace a2l::test
