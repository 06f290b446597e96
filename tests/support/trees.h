// SPDX-License-Identifier: MIT
//
// Trees, for tests.
#pragma once

#include <string>
#include <string_view>

#include "a2l2json/model/tree.h"
#include "a2l2json/reader/a2l_reader.h"

namespace a2l::test {

/// The result of reading a text.
struct Reading {
  bool ok;
  Tree root;
  A2LReader reader;
};

Reading Read(std::string_view text);

/// The tree as A2L text.
std::string Written(VoA2LElement& element, int level = 0);

}  // namespace a2l::test
