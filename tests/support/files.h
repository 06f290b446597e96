// SPDX-License-Identifier: MIT
//
// Files, for tests.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace a2l::test {

/// The bytes of a file. If it cannot be read, the test fails, and the text is empty.
std::string ReadFile(const std::filesystem::path& path);

void WriteFile(const std::filesystem::path& path, std::string_view bytes);

/// A folder for one test, which is removed with everything in it.
class TemporaryFolder {
 public:
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  [[nodiscard]] const std::filesystem::path& Path() const { return path_; }
  /// The path of something in the folder. The name is UTF-8 (see FilePath).
  [[nodiscard]] std::filesystem::path operator/(std::string_view name) const;

 private:
  std::filesystem::path path_;
};

}  // namespace a2l::test
