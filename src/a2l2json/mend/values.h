// SPDX-License-Identifier: MIT
//
// Values that the document cannot have as the file has them, however the file is laid out.
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

/// What is wrong with the value `word` of the parameter `parameter` of the keyword `kind`; nothing
/// for most.
[[nodiscard]] std::optional<ValueTrouble> CheckValue(ElementKind kind,
                                                     const detail::Parameter& parameter,
                                                     std::string_view word);

/// Whether the converter reads the word as a number, a rest included.
[[nodiscard]] bool IsNumber(const detail::Parameter& parameter, std::string_view word);

}  // namespace a2l::mending
