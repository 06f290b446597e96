// SPDX-License-Identifier: MIT
//
// Properties whose parameters go on until the next keyword. They are written with each further
// value on a line of its own, below the first.
#pragma once

#include <cstdint>
#include <ostream>
#include <string>

#include "a2l2json/elements/element_class.h"

namespace a2l {

/// A property with an open list. `firstLine` and `nextLine` are the lines of the first and of
/// every further value; an empty list writes the keyword alone.
template <class Class, ElementKind kKind>
class ListProperty : public ElementClass<Class> {
 public:
  static constexpr std::array kinds = {kKind};

  ListProperty() : ElementClass<Class>(kKind) {}

 protected:
  void WriteOpening(int level, std::ostream& out) const override {
    std::string_view format = Class::firstLine;
    std::get<0>(Class::parameters).ForEachItem(this->This(), [&](const Argument& value) {
      WriteLine(out, level, Format(format, std::span(&value, 1)));
      format = Class::nextLine;
    });
    if (format == Class::firstLine) WriteLine(out, level, KindToKeyword(kKind));
  }
  [[nodiscard]] bool WritesChildren() const override { return false; }
};

/// The dimensions of an array. The list ends at the first token that is not a number.
struct VoA2LElementMatrixDim final : ListProperty<VoA2LElementMatrixDim, Kind::MATRIX_DIM> {
  List<std::uint32_t> MATRIX_DIM;
  static constexpr auto parameters = Parameters(MoreUnsigned(&Self::MATRIX_DIM));
  static constexpr std::string_view firstLine = "MATRIX_DIM {0:d}";
  static constexpr std::string_view nextLine = "           {0:d}";
};

/// The measurements of a frame.
struct VoA2LElementFrameMeasurement final
    : ListProperty<VoA2LElementFrameMeasurement, Kind::FRAME_MEASUREMENT> {
  List<std::string_view> FRAME_MEASUREMENT;
  static constexpr auto parameters = Parameters(Identifiers(&Self::FRAME_MEASUREMENT));
  static constexpr std::string_view firstLine = "FRAME_MEASUREMENT {0}";
  static constexpr std::string_view nextLine = "                  {0}";
};

}  // namespace a2l
