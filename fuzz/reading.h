// SPDX-License-Identifier: MIT
#pragma once

#include <sstream>
#include <string>
#include <string_view>

#include "a2l2json/model/tree.h"
#include "a2l2json/reader/a2l_reader.h"
#include "fuzz/check.h"

namespace a2l::fuzz {

/// The result of reading a text.
struct Reading {
  bool ok = false;
  Tree root;
  A2LReader reader;
};

inline Reading Read(std::string_view text) {
  Reading reading;
  std::istringstream in{std::string(text)};
  reading.ok = reading.reader.Parse(in, reading.root.get());
  return reading;
}

/// The tree as A2L text.
inline std::string Written(VoA2LElement& root) {
  std::ostringstream out;
  Check(root.Write(0, out), "Write takes a stream that is open");
  return out.str();
}

}  // namespace a2l::fuzz
