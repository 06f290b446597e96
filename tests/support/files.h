// SPDX-License-Identifier: MIT
//
// Files and programs, for tests.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace a2l::test {

/// The bytes of a file; a test failure and the empty text when it cannot be read.
std::string ReadFile(const std::filesystem::path& path);

void WriteFile(const std::filesystem::path& path, std::string_view bytes);

/// A folder of its own for one test, removed with everything in it.
class TemporaryFolder {
 public:
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  [[nodiscard]] const std::filesystem::path& Path() const { return path_; }
  [[nodiscard]] std::filesystem::path operator/(std::string_view name) const {
    return path_ / name;
  }

 private:
  std::filesystem::path path_;
};

/// What a run of the program left behind.
struct RunResult {
  int exitCode;  ///< as the system reports it: -1 is 255
  std::string out;
  std::string err;
};

/// Runs the built program with `arguments`, a shell text.
RunResult RunProgram(const std::string& arguments);

/// `path` in quotes for the shell.
std::string Quoted(const std::filesystem::path& path);

}  // namespace a2l::test
