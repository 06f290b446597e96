// SPDX-License-Identifier: MIT
//
// Files, for tests.
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
  /// Something in the folder; the name is UTF-8 (see FilePath).
  [[nodiscard]] std::filesystem::path operator/(std::string_view name) const;

 private:
  std::filesystem::path path_;
};

}  // namespace a2l::test
