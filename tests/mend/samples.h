// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace a2l::test {

struct Sample {
  std::string name;
  std::string text;
};

/// Files to mend: the golden cases, generated ones, those of users where there are any, and all of
/// them once more in a layout picked by chance.
const std::vector<Sample>& MendSamples();

}  // namespace a2l::test
