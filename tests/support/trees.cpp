// SPDX-License-Identifier: MIT
#include "tests/support/trees.h"

#include <sstream>

#include <gtest/gtest.h>

namespace a2l::test {

Reading Read(std::string_view text) {
  Reading reading{false, Tree(NewTree()), {}};
  std::istringstream in{std::string(text)};
  reading.ok = reading.reader.Parse(in, reading.root.get());
  return reading;
}

std::string Written(VoA2LElement& element, int level) {
  std::ostringstream out;
  EXPECT_TRUE(element.Write(level, out));
  return out.str();
}

}  // namespace a2l::test
