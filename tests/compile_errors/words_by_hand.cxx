// SPDX-License-Identifier: MIT
// The data type of a measurement with the words of a unit.
// Expected: private
#include "a2l2json/elements/elements.h"
#include "a2l2json/export/forms.h"

namespace a2l {

constexpr WordForm kForm = {[](const VoA2LElement& element) {
                              return static_cast<std::uint32_t>(FieldOf<&VoA2LElementMeasurement::DATATYPE>(element));
                            },
                            words::kUnitType};

}  // namespace a2l
