// SPDX-License-Identifier: MIT
#include "a2l2json/reader/read.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <type_traits>

#include <gtest/gtest.h>

#include "tests/support/files.h"
#include "tests/support/trees.h"

namespace a2l::test {
namespace {

constexpr std::string_view kFile =
    "/begin PROJECT P \"\"\n"
    "  WORD\n"
    "/end PROJECT\n";
constexpr std::string_view kWritten =
    "/begin PROJECT P \"\"\n"
    "/end PROJECT\n";

TEST(ReadText, GivesTreeDiagnosticsAndSuccess) {
  ReadResult result = a2l::Read(kFile);
  EXPECT_TRUE(result.ok);
  EXPECT_TRUE(static_cast<bool>(result));
  static_assert(!std::is_convertible_v<ReadResult, bool>, "it is no number");
  EXPECT_EQ(result.fileError, FileError::None);
  ASSERT_EQ(result.diagnostics.size(), 1U);
  EXPECT_EQ(result.diagnostics[0].kind, DiagnosticKind::UnexpectedElement);
  EXPECT_EQ(result.diagnostics[0].line, 2U);
  EXPECT_EQ(result.Message(), "Warning: Line(2) unexpected element WORD\n");
  EXPECT_EQ(Written(*result.tree), kWritten);
}

TEST(ReadText, GivesWhatStandsBeforeAnError) {
  ReadResult result = a2l::Read("/begin PROJECT P \"\"\nWORD\n/end MODULE\nFORMAT \"\"\n");
  EXPECT_FALSE(result.ok);
  EXPECT_FALSE(static_cast<bool>(result));
  EXPECT_EQ(result.fileError, FileError::None) << "there is no file";
  EXPECT_EQ(result.Message(),
            "Warning: Line(2) unexpected element WORD\n"
            "Error: Line(3) /end don't equal /begin PROJECT\n");
  EXPECT_EQ(Written(*result.tree), kWritten);
}

TEST(ReadText, TakesAnEmptyOne) {
  const ReadResult result = a2l::Read({});
  EXPECT_TRUE(result.ok);
  EXPECT_EQ(result.Message(), "");
  EXPECT_EQ(result.tree->ChildCount(), 0U);
}

TEST(ReadFromFile, GivesTheSameAsItsText) {
  const TemporaryFolder folder;
  WriteFile(folder / "in.a2l", kFile);
  ReadResult result = a2l::ReadFile((folder / "in.a2l").string());
  EXPECT_TRUE(result.ok);
  EXPECT_EQ(result.fileError, FileError::None);
  EXPECT_EQ(result.Message(), "Warning: Line(2) unexpected element WORD\n");
  EXPECT_EQ(Written(*result.tree), kWritten);
}

TEST(ReadFromFile, SaysWhyThereIsNothing) {
  const TemporaryFolder folder;
  WriteFile(folder / "in.a2l", kFile);
  const struct {
    std::filesystem::path path;
    FileError error;
    std::string_view message;
  } rows[] = {
      {folder / "missing.a2l", FileError::NotFound, "there is no such file\n"},
      {folder / "missing/in.a2l", FileError::NotFound, "there is no such file\n"},
      {"", FileError::NotFound, "there is no such file\n"},
      {folder.Path(), FileError::IsFolder, "this is a folder, not a file\n"},
#ifdef __linux__
      {folder / "in.a2l/in.a2l", FileError::NotFound, "there is no such file\n"},
      {folder / std::string(300, 'x'), FileError::NotOpened, "the file cannot be opened\n"},
      // The first page of a process is never mapped.
      {"/proc/self/mem", FileError::ReadFailed, "the file cannot be read to its end\n"},
#endif
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.path.string());
    const ReadResult result = a2l::ReadFile(row.path.string());
    EXPECT_FALSE(result.ok);
    EXPECT_EQ(result.fileError, row.error);
    EXPECT_EQ(result.Message(), row.message);
    EXPECT_TRUE(result.diagnostics.empty());
    EXPECT_EQ(result.tree->ChildCount(), 0U);
  }
}

TEST(ReadFromFile, SaysThatThereIsNoPermission) {
  const TemporaryFolder folder;
  const std::filesystem::path path = folder / "in.a2l";
  WriteFile(path, kFile);
  std::filesystem::permissions(path, std::filesystem::perms::none);
  const ReadResult result = a2l::ReadFile(path.string());
  if (result.ok) GTEST_SKIP() << "this user may read everything";
  EXPECT_EQ(result.fileError, FileError::NoPermission);
  EXPECT_EQ(result.Message(), "there is no permission to read the file\n");
}

}  // namespace
}  // namespace a2l::test
