// SPDX-License-Identifier: MIT
//
// Runs of programs and their results, for tests.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace a2l::test {

/// The result of a run of the program.
struct RunResult {
  int exitCode;  ///< the low eight bits, which every system reports: -1 is 255
  std::string out;
  std::string err;
};

/// Runs the built program. `launcher` is empty, or a program with its arguments that runs it. The
/// arguments may be any texts. They are paths so that each has the characters of the system.
RunResult RunProgram(const std::vector<std::filesystem::path>& arguments,
                     const std::vector<std::filesystem::path>& launcher = {});

/// The same for a2lmend; `input` is what it finds on its standard input.
RunResult RunMender(const std::vector<std::filesystem::path>& arguments,
                    const std::filesystem::path& input = {});

}  // namespace a2l::test
