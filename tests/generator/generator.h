// SPDX-License-Identifier: MIT
//
// Random files, and what must come of them. A file holds every keyword of the format where it may
// stand, in every way to lay it out: comments of both kinds, over several lines too, parameters
// that go on over lines, several blocks on one line, both line ends. Some of what it says is
// broken on purpose; the generator remembers what is to be reported, and where.
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
  /// Set where not all parameters are there, or one of them is wrong.
  bool isBroken = false;
  /// False where the file ends before the parameters do, which are then never read.
  bool isRead = true;
  /// Of the fixed parameters.
  std::vector<Value> values;
  /// Of the open list, or of the rows, one behind the other.
  std::vector<Value> items;
  /// Of the blocks that keep text.
  std::string content;
};

struct GeneratedFile {
  std::string text;
  Node root;
  /// Everything that must be reported, one line each.
  std::string message;
  /// False when the file holds an error, which ends the read.
  bool ok = true;
};

GeneratedFile Generate(std::uint64_t seed);

/// One block with everything in it, or one property, as lines that are not broken: for tests that
/// put files together themselves.
std::string GenerateLines(std::string_view keyword, std::uint64_t seed);

/// The number that stands for a keyword.
std::int32_t NumberOf(std::string_view keyword);

}  // namespace a2l::test
