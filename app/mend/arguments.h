// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace a2l {

/// How findings are printed.
enum class FindingFormat : std::uint8_t { Text, Json, Sarif };

/// What the command line of a2lmend asks for.
struct MendArguments {
  std::string in;
  /// Empty where nothing is to be written.
  std::string out;
  /// Folders in which included files are looked for, behind that of the file that names them.
  std::vector<std::string> folders;
  /// The name of an encoding to read from; empty for UTF-8, and for bytes that are passed on.
  std::string encoding;
  FindingFormat format = FindingFormat::Text;
  bool allowOutside = false;
  bool quiet = false;
};

/// The arguments; or nothing, where the process is to end with `exitCode`, and what there is to say
/// has been printed.
std::optional<MendArguments> ReadArguments(int argc, const char* const* argv, int& exitCode);

}  // namespace a2l
