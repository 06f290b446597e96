// SPDX-License-Identifier: MIT
//
// Reads the files that a file includes.
#pragma once

#include <filesystem>
#include <functional>
#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

#include "a2l2json/mend/options.h"

namespace a2l {

struct IncludeOptions {
  /// The path of the file that is mended, in UTF-8 on Windows. "-" is text that lies in the folder
  /// that the process works in; with a folder before it, as in "parts/-", in that.
  std::string path;
  /// Where to look behind the folder of the file that names another.
  std::vector<std::string> folders;
  /// Makes UTF-8 of the bytes of an included file, or tells in a few words why it cannot. Without
  /// it, they are taken as they are.
  std::function<std::string(std::string& bytes)> decode;
  /// Files may also lie outside of the folder of the file, and of `folders`.
  bool allowOutside = false;
};

/// Finds the files that others include: in the folder of the file that names them, then in those
/// that are given. Reads regular files only and, unless told otherwise, none outside of these
/// folders and that of the first file, wherever links lead.
class IncludeReader {
 public:
  explicit IncludeReader(IncludeOptions options);

  /// Where the first file lies; for MendOptions::path.
  [[nodiscard]] const std::string& MainPath() const { return mainPath_; }
  /// For MendOptions::open.
  [[nodiscard]] IncludedFile Open(std::string_view name, std::string_view from) const;

 private:
  [[nodiscard]] bool MayLookAt(const std::filesystem::path& path) const;
  [[nodiscard]] bool IsInside(const std::filesystem::path& path) const;
  [[nodiscard]] IncludedFile Read(const std::filesystem::path& path) const;

  IncludeOptions options_;
  std::vector<std::filesystem::path> folders_;
  std::vector<std::filesystem::path> allowed_;
  std::string mainPath_;
};

/// Why the system did not do what it was asked for last, in a few words.
[[nodiscard]] std::string LastProblem();

/// Puts all bytes of a stream behind `bytes`. False where that is not possible.
[[nodiscard]] bool ReadToEnd(std::istream& in, std::string& bytes);

/// Puts all bytes of a file, or of a pipe, behind `bytes`. Gives what kept it from that, in a few
/// words; nothing where it is done.
[[nodiscard]] std::string ReadWholeFile(const std::filesystem::path& path, std::string& bytes);

}  // namespace a2l
