// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "tests/generator/grammar.h"
#include "tests/generator/random.h"

namespace a2l::test {

/// A value as the document has it; nothing for null.
using Value = std::variant<std::monostate, std::string, std::int32_t, double>;

/// A parameter as it stands in a file, and its meaning.
struct MadeValue {
  std::string token;
  Value value;
  bool ok = true;  ///< false for a malformed number
};

/// A value for `parameter`, in one of the many ways to write it.
MadeValue MakeValue(const Parameter& parameter, Random& random);

/// The same, but a wrong value. Only numbers and the words of some enumerations can be wrong.
MadeValue MakeWrongValue(const Parameter& parameter, Random& random);
bool CanBeWrong(const Parameter& parameter);

/// The values of a keyword that is given `made`, which may be too few.
struct Evaluation {
  std::vector<Value> values;
  bool ok = true;
};
Evaluation Evaluate(const Keyword& keyword, const std::vector<MadeValue>& made);

}  // namespace a2l::test
