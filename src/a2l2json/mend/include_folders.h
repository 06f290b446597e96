// SPDX-License-Identifier: MIT
//
// Where the files lie that a file includes.
#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "a2l2json/mend/options.h"

namespace a2l {

struct IncludeOptions {
  /// The path of the file that is mended, in UTF-8 on Windows; or, ending in "/-", a folder that
  /// text of no file is taken to lie in. "-" alone is the folder that the process works in.
  std::string path;
  /// Where to look behind the folder of the file that names another.
  std::vector<std::string> folders;
  /// Makes UTF-8 of the bytes of an included file; nothing where they are not in the encoding.
  /// Without it, they are taken as they are.
  std::function<std::optional<std::string>(std::string_view bytes)> decode;
  /// Files may also lie outside of the folder of the file, and of `folders`.
  bool allowOutside = false;
};

/// Finds the files that others include: in the folder of the file that names them, then in those
/// that are given. Reads regular files only and, unless told otherwise, none outside of these
/// folders and that of the first file, wherever links lead.
class IncludeFolders {
 public:
  explicit IncludeFolders(IncludeOptions options);

  /// Where the first file lies; for MendOptions::path.
  [[nodiscard]] const std::string& MainPath() const { return mainPath_; }
  /// For MendOptions::open.
  [[nodiscard]] IncludedFile Open(std::string_view name, std::string_view from) const;

 private:
  [[nodiscard]] bool IsInside(const std::filesystem::path& path) const;

  IncludeOptions options_;
  std::vector<std::filesystem::path> folders_;
  std::vector<std::filesystem::path> allowed_;
  std::string mainPath_;
};

/// Reads a regular file to its end, without `bytes` ever being much longer than it. False where
/// that cannot be done.
[[nodiscard]] bool ReadRegularFile(const std::filesystem::path& path, std::string& bytes);

}  // namespace a2l
