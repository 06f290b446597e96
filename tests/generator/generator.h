// SPDX-License-Identifier: MIT
//
// Random files, and their expected results. A file holds every keyword of the format where it may
// stand, in every layout: with comments of both kinds, also over several lines, parameters that go
// on over lines, several blocks on one line, and both line ends. Some parts are broken on purpose.
// The generator knows which messages they must cause, and for which lines.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "tests/generator/values.h"

namespace a2l::test {

/// An element as it must be read. The root has the keyword "", an unknown block "?".
struct Node {
  std::string keyword;
  Node* parent = nullptr;
  std::vector<std::unique_ptr<Node>> children;
  bool valid = true;
  /// Set if parameters are missing, or one of them is wrong.
  bool isBroken = false;
  /// False if the file ends before the parameters, so that they are never read.
  bool isRead = true;
  /// The values of the fixed parameters.
  std::vector<Value> values;
  /// The values of the open list, or of all rows, one after the other.
  std::vector<Value> items;
  /// The text of blocks that keep text.
  std::string content;
};

struct GeneratedFile {
  std::string text;
  Node root;
  /// All expected messages, one line each.
  std::string message;
  /// False if the file holds an error, which ends the read.
  bool ok = true;
};

GeneratedFile Generate(std::uint64_t seed);

/// One block with everything in it, or one property, without mistakes: for tests that put files
/// together themselves.
std::string GenerateLines(std::string_view keyword, std::uint64_t seed);

/// The number of a keyword.
std::int32_t NumberOf(std::string_view keyword);

}  // namespace a2l::test
