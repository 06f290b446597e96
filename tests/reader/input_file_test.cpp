// SPDX-License-Identifier: MIT
#include "a2l2json/reader/input_file.h"

#include <istream>
#include <iterator>
#include <string>

#include <gtest/gtest.h>

#include "tests/support/files.h"

namespace a2l::test {
namespace {

TEST(InputFile, GivesTheBytesOfTheFileAsTheyAre) {
  const TemporaryFolder folder;
  std::string bytes = "a\r\nb\n\x1a\xff";
  bytes += '\0';
  for (int i = 0; i < 3000; ++i) bytes += std::to_string(i);
  WriteFile(folder / "in", bytes);

  InputFile file((folder / "in").string());
  EXPECT_EQ(file.Error(), FileError::None);
  std::istream in(&file);
  EXPECT_EQ(std::string(std::istreambuf_iterator<char>(in), {}), bytes) << "byte by byte";
  EXPECT_EQ(file.Error(), FileError::None);

  InputFile again((folder / "in").string());
  std::istream pieces(&again);
  std::string read(bytes.size() + 10, '#');
  EXPECT_EQ(pieces.peek(), 'a');
  pieces.read(read.data(), 5);
  pieces.read(read.data() + 5, static_cast<std::streamsize>(read.size()) - 5);
  read.resize(5 + static_cast<std::size_t>(pieces.gcount()));
  EXPECT_EQ(read, bytes) << "in pieces, behind a look at the first byte";
  EXPECT_TRUE(pieces.eof());
  EXPECT_FALSE(pieces.bad());
}

TEST(InputFile, IsEmptyWhereItCannotBeOpened) {
  const TemporaryFolder folder;
  InputFile file((folder / "missing").string());
  EXPECT_EQ(file.Error(), FileError::NotFound);
  std::istream in(&file);
  EXPECT_EQ(in.get(), std::istream::traits_type::eof());
}

#ifdef __linux__
TEST(InputFile, TellsAReadThatFailedFromTheEnd) {
  const TemporaryFolder folder;
  InputFile file(folder.Path().string());
  std::istream in(&file);
  char byte = 0;
  in.read(&byte, 1);
  EXPECT_TRUE(in.bad());
  EXPECT_EQ(file.Error(), FileError::IsFolder);

  InputFile memory("/proc/self/mem");
  std::istream broken(&memory);
  EXPECT_EQ(broken.get(), std::istream::traits_type::eof());
  EXPECT_TRUE(broken.bad());
  EXPECT_EQ(memory.Error(), FileError::ReadFailed);
}
#endif

}  // namespace
}  // namespace a2l::test
