// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "a2l2json/mend/rules.h"

namespace a2l {

/// One finding of mending. The views are valid while the finding is reported.
struct Finding {
  MendRule rule = MendRule::Otherwise;
  /// The file as it was named: by the caller, or by the /include that led to it.
  std::string_view file;
  std::size_t line = 1;
  /// In bytes of the file, from 1. In UTF-16, of the UTF-8 that was made of it.
  std::size_t column = 1;
  /// What it is about: as a rule the word at that place, shortened where it is long.
  std::string_view word;
  /// The keyword that the word belongs to, and its name where it is an object's.
  std::string_view owner;
  std::string_view ownerName;
  /// What becomes of it, or why; empty for most rules.
  std::string_view detail;
};

/// What the finding says, as in
/// "ECU_ADDRESS stands behind the parameters of MEASUREMENT m on one line".
[[nodiscard]] std::string Message(const Finding& finding);

/// The message with what becomes of the words, and the rule, as in
/// "lost: ECU_ADDRESS stands behind the parameters of MEASUREMENT m on one line [same-line]".
[[nodiscard]] std::string Text(const Finding& finding);

/// The same behind its place, as compilers write it: "engine.a2l:12:59: lost: ...".
[[nodiscard]] std::string TextWithPlace(const Finding& finding);

}  // namespace a2l
