// SPDX-License-Identifier: MIT
#include "a2l2json/mend/include_reader.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

#include <gtest/gtest.h>

#include "tests/support/files.h"

namespace a2l::test {
namespace {

namespace fs = std::filesystem;
using Status = IncludedFile::Status;

class IncludeReaderTest : public testing::Test {
 protected:
  void SetUp() override {
    fs::create_directories(folder_ / "main/sub");
    fs::create_directories(folder_ / "main2");
    WriteFile(folder_ / "main/engine.a2l", "");
    WriteFile(folder_ / "main/sub/a.a2l", "a");
    WriteFile(folder_ / "main/sub/b.a2l", "b");
    WriteFile(folder_ / "main2/c.a2l", "c");
  }

  [[nodiscard]] std::string Path(std::string_view name) const {
    return fs::canonical(folder_ / name).generic_string();
  }
  [[nodiscard]] IncludeOptions Options() const {
    IncludeOptions options;
    options.path = (folder_ / "main/engine.a2l").string();
    return options;
  }
  [[nodiscard]] IncludedFile Open(std::string_view name) const {
    const IncludeReader folders(Options());
    return folders.Open(name, folders.MainPath());
  }

  TemporaryFolder folder_;
};

TEST_F(IncludeReaderTest, FindsFilesBesideTheOneThatNamesThem) {
  const IncludeReader folders(Options());
  EXPECT_EQ(folders.MainPath(), Path("main/engine.a2l"));
  const IncludedFile a = folders.Open("sub\\a.a2l", folders.MainPath());
  EXPECT_EQ(a.status, Status::Read);
  EXPECT_EQ(a.bytes, "a");
  EXPECT_EQ(a.path, Path("main/sub/a.a2l"));
  EXPECT_EQ(folders.Open("b.a2l", a.path).bytes, "b");
  EXPECT_EQ(folders.Open("../sub/./b.a2l", a.path).path, Path("main/sub/b.a2l"));
  const IncludedFile missing = folders.Open("b.a2l", folders.MainPath());
  EXPECT_EQ(missing.status, Status::Missing);
  EXPECT_EQ(missing.problem, "there is no such file");
}

TEST_F(IncludeReaderTest, StaysInTheFolder) {
  const IncludedFile outside = Open("../main2/c.a2l");
  EXPECT_EQ(outside.status, Status::Refused);
  EXPECT_EQ(outside.problem, "it lies outside of the folders that are given");
  EXPECT_EQ(outside.bytes, "");
  EXPECT_EQ(Open(Path("main2/c.a2l")).status, Status::Refused);

  std::error_code error;
  fs::create_symlink(folder_ / "main2/c.a2l", folder_ / "main/link.a2l", error);
  if (error) GTEST_SKIP() << "this system makes no links";
  EXPECT_EQ(Open("link.a2l").status, Status::Refused);
}

TEST_F(IncludeReaderTest, LeavesItWhereThatIsAllowed) {
  IncludeOptions options = Options();
  options.allowOutside = true;
  const IncludeReader anywhere(options);
  EXPECT_EQ(anywhere.Open("../main2/c.a2l", anywhere.MainPath()).bytes, "c");
  options = Options();
  options.folders = {(folder_ / "main2").string() + "/"};
  const IncludeReader two(options);
  EXPECT_EQ(two.Open("c.a2l", two.MainPath()).bytes, "c");
  EXPECT_EQ(two.Open("../main2/c.a2l", two.MainPath()).bytes, "c");
}

TEST_F(IncludeReaderTest, TakesAFolderForTextOfNoFile) {
  IncludeOptions options;
  options.path = (folder_ / "main").string() + "/-";
  const IncludeReader folders(options);
  EXPECT_EQ(folders.Open("sub/a.a2l", folders.MainPath()).bytes, "a");
  EXPECT_EQ(folders.Open("../main2/c.a2l", folders.MainPath()).status, Status::Refused);
}

TEST_F(IncludeReaderTest, AllowsNothingOutsideOfAFolderThatIsNotThere) {
  for (const std::string_view path : {"no such folder/-", "-", "", "/no such folder/-"}) {
    IncludeOptions options;
    options.path = path;
    const IncludeReader folders(options);
    const IncludedFile file = folders.Open(Path("main2/c.a2l"), folders.MainPath());
    EXPECT_EQ(file.status, Status::Refused) << path;
  }
}

TEST_F(IncludeReaderTest, ReadsRegularFilesOnly) {
  const IncludedFile folder = Open("sub");
  EXPECT_EQ(folder.status, Status::Refused);
  EXPECT_EQ(folder.problem, "it is no regular file");
}

TEST_F(IncludeReaderTest, DecodesWhatItReads) {
  IncludeOptions options = Options();
  options.decode = [](std::string& bytes) -> std::string {
    if (bytes == "b") return "it is in another one";
    bytes += "!";
    return {};
  };
  const IncludeReader folders(options);
  EXPECT_EQ(folders.Open("sub/a.a2l", folders.MainPath()).bytes, "a!");
  const IncludedFile wrong = folders.Open("sub/b.a2l", folders.MainPath());
  EXPECT_EQ(wrong.status, Status::Missing);
  EXPECT_EQ(wrong.problem, "it is in another one");
}

TEST_F(IncludeReaderTest, KnowsNamesThatNoFileCanHave) {
  using namespace std::string_view_literals;
  EXPECT_EQ(Open("sub/a.a2l\0"sv).status, Status::Missing);
  EXPECT_EQ(Open("").status, Status::Missing);
}

TEST_F(IncludeReaderTest, TellsWhyAFileCannotBeRead) {
  std::string bytes;
  EXPECT_EQ(ReadWholeFile(folder_ / "main", bytes), "it is a folder");
  EXPECT_EQ(ReadWholeFile(folder_ / "missing", bytes), "No such file or directory");
  EXPECT_EQ(bytes, "");
  EXPECT_EQ(ReadWholeFile(folder_ / "main/sub/a.a2l", bytes), "");
  EXPECT_EQ(bytes, "a");
}

TEST_F(IncludeReaderTest, ReadsLongFiles) {
  const std::string text(300000, 'x');
  WriteFile(folder_ / "main/long.a2l", text);
  EXPECT_EQ(Open("long.a2l").bytes, text);
}

}  // namespace
}  // namespace a2l::test
