// SPDX-License-Identifier: MIT
#include "tests/support/files.h"

#include <fstream>
#include <iterator>
#include <random>

#include <gtest/gtest.h>

#include "a2l2json/model/file_path.h"

namespace a2l::test {

std::string ReadFile(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  EXPECT_TRUE(in.is_open()) << path;
  return {std::istreambuf_iterator<char>(in), {}};
}

void WriteFile(const std::filesystem::path& path, std::string_view bytes) {
  std::ofstream out(path, std::ios::binary);
  out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  EXPECT_TRUE(out.good()) << path;
}

TemporaryFolder::TemporaryFolder() {
  std::random_device random;
  do {
    path_ = std::filesystem::temp_directory_path() /
            ("a2l2json-test-" + std::to_string(random()) + std::to_string(random()));
  } while (!std::filesystem::create_directory(path_));
}

std::filesystem::path TemporaryFolder::operator/(std::string_view name) const {
  return path_ / FilePath(name);
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

}  // namespace a2l::test
