// SPDX-License-Identifier: MIT
//
// The files that a2lmend reads and writes.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "a2l2json/mend/options.h"
#include "app/mend/arguments.h"

namespace a2l {

/// What kept something from being done, in a few words; empty where it was done.
using Problem = std::string;

/// All bytes of the file to mend, or of standard input for "-", in UTF-8 if the arguments give an
/// encoding. A file that can be no A2L file at all, as one without a byte or one that is
/// compressed, is a problem as well.
Problem ReadInput(const MendArguments& arguments, std::string& bytes);

/// Writes a file beside `name` and gives it that name when it is complete, so that there is all of
/// it or what there was before. To standard output for "-".
Problem WriteOutput(const std::string& name, std::string_view bytes);

/// Finds the files that others include: in the folder of the file that names them, then in those
/// of -I. Reads regular files only and, unless told otherwise, none outside of these folders and
/// that of the first file, wherever links lead.
class IncludeFolders {
 public:
  explicit IncludeFolders(const MendArguments& arguments);

  /// Where the first file lies.
  [[nodiscard]] const std::string& MainPath() const { return mainPath_; }
  [[nodiscard]] IncludedFile Open(std::string_view name, std::string_view from) const;

 private:
  [[nodiscard]] bool MayLookAt(const std::filesystem::path& path) const;
  [[nodiscard]] bool IsInside(const std::filesystem::path& path) const;
  [[nodiscard]] IncludedFile Read(const std::filesystem::path& path) const;

  std::vector<std::filesystem::path> folders_;
  std::vector<std::filesystem::path> allowed_;
  std::string mainPath_;
  std::string encoding_;
  bool allowOutside_;
};

}  // namespace a2l
