// SPDX-License-Identifier: MIT
// A line of keywords.def with the class of another keyword.
// Expected: keywords.def gives a keyword the class of another
#include "a2l2json/elements/declaration_checks.h"
#include "a2l2json/elements/elements.h"

namespace a2l {

const auto* const kChecked = detail::Checked<VoA2LElementUser, ElementKind::VERSION>();

}  // namespace a2l
