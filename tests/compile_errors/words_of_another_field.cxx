// SPDX-License-Identifier: MIT
// A word of a field that does not hold words.
// Expected: has no words|declares no words
#include "a2l2json/elements/elements.h"
#include "a2l2json/export/forms.h"

namespace a2l {

constexpr WordForm kForm = WordForm::Of<&VoA2LElementMeasurement::RESOLUTION>();

}  // namespace a2l
