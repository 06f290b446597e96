// SPDX-License-Identifier: MIT
//
// Programs and what they leave behind, for tests.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace a2l::test {

/// What a run of the program left behind.
struct RunResult {
  int exitCode;  ///< its low eight bits, which every system reports: -1 is 255
  std::string out;
  std::string err;
};

/// Runs the built program; where there is a `launcher`, a program with its arguments, by that. The
/// arguments, which may be any texts, are paths so that each is in the characters of the system.
RunResult RunProgram(const std::vector<std::filesystem::path>& arguments,
                     const std::vector<std::filesystem::path>& launcher = {});

}  // namespace a2l::test
