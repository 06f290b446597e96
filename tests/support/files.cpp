// SPDX-License-Identifier: MIT
#include "tests/support/files.h"

#include <atomic>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <random>

#include <gtest/gtest.h>

#ifndef _WIN32
#include <sys/wait.h>
#endif

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

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

std::string Quoted(const std::filesystem::path& path) { return "\"" + path.string() + "\""; }

RunResult RunProgram(const std::string& arguments) {
  const TemporaryFolder folder;
  std::string command = Quoted(A2L2JSON_PROGRAM) + " " + arguments + " >" + Quoted(folder / "out") +
                        " 2>" + Quoted(folder / "err");
#ifdef _WIN32
  command = "\"" + command + "\"";
  const int exitCode = std::system(command.c_str());
#else
  // NOLINTNEXTLINE(concurrency-mt-unsafe): tests run one after the other
  const int status = std::system(command.c_str());
  const int exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
#endif
  return {exitCode, ReadFile(folder / "out"), ReadFile(folder / "err")};
}

}  // namespace a2l::test
