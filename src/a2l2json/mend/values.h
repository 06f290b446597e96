// SPDX-License-Identifier: MIT
//
// Finds values that the document cannot hold as the file has them, whatever the layout.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "a2l2json/elements/declarations.h"
#include "a2l2json/mend/rules.h"

namespace a2l::mending {

struct ValueTrouble {
  MendRule rule;
  std::string becomes;
};

/// What is wrong with `word` as a value of that parameter of the keyword `kind`; nothing if it is
/// right.
[[nodiscard]] std::optional<ValueTrouble> CheckValue(ElementKind kind,
                                                     const detail::Parameter& parameter,
                                                     std::string_view word);

/// Whether the converter reads a number from the word, even if more than the number is in it.
[[nodiscard]] bool IsNumber(const detail::Parameter& parameter, std::string_view word);

}  // namespace a2l::mending
