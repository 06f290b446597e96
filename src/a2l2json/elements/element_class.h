// SPDX-License-Identifier: MIT
//
// What an element class is made of. A class derives from Block or Property, with itself and its
// kind as arguments, and states what is special about its keyword; everything that the reader
// and the A2L writer do with it follows from that:
//
//   parameters   the fixed parameters (fields.h); none by default
//   onBadNumber  what a wrong number among them does; the first one ends the read by default
//   openParameterList  set where a class reads an open list by itself
//   rows         the second run of values of the conversion tables
//   revision     the revision of the standard, where it is not 1.6.0
//   accepts      blocks: the kinds of children, KIND_UNKNOWN understood; by default those of
//                the base element
//   lines        blocks: the head behind "/begin" and the lines of parameters below it
//   item         blocks: the line of each item of an open list
//   rowLine      blocks: the line of each row
//   keepsChildrenSilent  blocks: set where children do not appear in A2L text
//   line         properties: the line
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>
#include <string_view>
#include <tuple>
#include <type_traits>

#include "a2l2json/elements/fields.h"
#include "a2l2json/model/element.h"

namespace a2l {

using Kind = ElementKind;

/// What a number that cannot be read does. Either way the read is wrong as a whole.
enum class OnBadNumber {
  Stop,        ///< the read ends, later fields keep their defaults
  MarkAndGoOn  ///< the element is marked as not valid, every parameter is read
};

/// The lines that a block writes: first what follows "/begin", then lines one level deeper. The
/// parameters fill the places of all lines in order.
class Lines {
 public:
  constexpr explicit Lines(std::string_view head, std::string_view first = {},
                           std::string_view second = {})
      : formats_{head, first, second} {}

  [[nodiscard]] constexpr std::string_view Head() const { return formats_[0]; }
  [[nodiscard]] constexpr std::span<const std::string_view> Below() const {
    return std::span(formats_).subspan(1);
  }
  [[nodiscard]] constexpr std::size_t Places() const {
    std::size_t places = 0;
    for (const std::string_view format : formats_) places += CountPlaces(format);
    return places;
  }

 private:
  std::array<std::string_view, 3> formats_;
};

/// What blocks and properties have in common: the parameters.
template <class Class>
class ElementClass : public VoA2LElement {
 public:
  using Self = Class;

  static constexpr auto parameters = Parameters();
  static constexpr auto onBadNumber = OnBadNumber::Stop;
  static constexpr bool openParameterList = false;
  static constexpr ElementKind childInList = KIND_ROOT;
  static constexpr auto rows = nullptr;
  static constexpr std::uint32_t revision = kRevision160;

  bool ParseParameters(std::string_view& text) override {
    Self& self = This();
    return std::apply(
        [&](const auto&... field) {
          if constexpr (Self::onBadNumber == OnBadNumber::Stop) {
            return (field.Read(self, text) && ...);
          } else {
            bool ok = true;
            ((ok = field.Read(self, text) && ok), ...);
            if (!ok) self.valid = 0;
            return ok;
          }
        },
        Self::parameters);
  }

  bool ParseMoreParameters(std::string_view& text) override {
    if constexpr (kHasRows) {
      Self& self = This();
      const auto readRow = [&](const auto&... column) { return (column.Read(self, text) && ...); };
      // The declared count may be any number; the rows that are there end the loop.
      for (std::uint32_t row = 0; row < self.*(Self::rows.count); ++row) {
        if (!std::apply(readRow, Self::rows.columns)) return false;
      }
      return true;
    }
    return VoA2LElement::ParseMoreParameters(text);
  }

  [[nodiscard]] std::int32_t MoreParameterCount() const override {
    if constexpr (kHasRows) {
      return static_cast<std::int32_t>(This().*(Self::rows.count) * Self::rows.kColumns);
    }
    return VoA2LElement::MoreParameterCount();
  }

 protected:
  explicit ElementClass(ElementKind elementKind) {
    kind = elementKind;
    version = Self::revision;
    paramCount = ParameterCount();
    hasMoreParameters = kHasRows ? 1 : 0;
  }

  [[nodiscard]] int LevelsToChildren() const override { return 1; }

  [[nodiscard]] Self& This() { return static_cast<Self&>(*this); }
  [[nodiscard]] const Self& This() const { return static_cast<const Self&>(*this); }

  /// The values of all fields, in order.
  [[nodiscard]] Arguments FieldValues() const {
    Arguments arguments;
    AppendFieldValues(arguments);
    return arguments;
  }
  void AppendFieldValues(Arguments& arguments) const {
    std::apply([&](const auto&... field) { (field.Append(This(), arguments), ...); },
               Self::parameters);
  }

  /// Number of values that the fields give to format strings.
  static constexpr std::size_t Places() {
    return std::apply([](const auto&... field) { return (std::size_t{0} + ... + field.kPlaces); },
                      Self::parameters);
  }

 public:
  // A list makes the count open, whatever stands before it.
  static constexpr std::uint32_t ParameterCount() {
    if (Self::openParameterList) return kOpenParameterList;
    return std::apply(
        [](const auto&... field) {
          return std::min((std::uint32_t{0} + ... + field.kTokens), kOpenParameterList);
        },
        Self::parameters);
  }

 private:
  static constexpr bool kHasRows = !std::is_same_v<decltype(Class::rows), const std::nullptr_t>;
};

/// A keyword between /begin and /end.
template <class Class, ElementKind kKind>
class Block : public ElementClass<Class> {
 public:
  static constexpr std::array kinds = {kKind};
  static constexpr const KindSet& accepts = kBaseChildren;
  static constexpr std::string_view item{};
  static constexpr std::string_view rowLine{};
  static constexpr bool keepsChildrenSilent = false;

  Block() : ElementClass<Class>(kKind) {}

  bool AddChild(VoA2LElement* child) override { return this->Attach(child, kAccepted); }

 protected:
  void WriteOpening(int level, std::ostream& out) const override {
    static_assert(Class::lines.Places() == Class::Places(), "lines and parameters differ");
    const Arguments values = this->FieldValues();
    std::span<const Argument> rest = values;
    const auto fill = [&rest](std::string_view format) {
      const std::size_t places = CountPlaces(format);
      std::string text = Format(format, rest.first(places));
      rest = rest.subspan(places);
      return text;
    };
    WriteLine(out, level, "/begin" + fill(Class::lines.Head()));
    for (const std::string_view format : Class::lines.Below()) {
      if (!format.empty()) WriteLine(out, level + 1, fill(format));
    }
    WriteItems(level + 1, out);
    WriteRows(level + 1, out);
  }

  void WriteClosing(int level, std::ostream& out) const override {
    WriteLine(out, level, "/end " + std::string(KindToKeyword(kKind)));
  }

  [[nodiscard]] bool WritesChildren() const override { return !Class::keepsChildrenSilent; }

 private:
  static constexpr KindSet kAccepted = Class::accepts.With(KIND_UNKNOWN);

  void WriteItems(int level, std::ostream& out) const {
    const auto writeItem = [&](const Argument& value) {
      WriteLine(out, level, Format(Class::item, std::span(&value, 1)));
    };
    const auto writeList = [&](const auto& field) {
      if constexpr (requires { field.ForEachItem(this->This(), writeItem); }) {
        field.ForEachItem(this->This(), writeItem);
      }
    };
    if constexpr (!Class::item.empty()) {
      std::apply([&](const auto&... field) { (writeList(field), ...); }, Class::parameters);
    }
  }

  void WriteRows(int level, std::ostream& out) const {
    if constexpr (!Class::rowLine.empty()) {
      std::apply(
          [&](const auto&... column) {
            // A read that failed half way leaves lists of unequal length.
            const std::size_t count = std::min({column.Size(this->This())...});
            for (std::size_t row = 0; row < count; ++row) {
              Arguments values;
              (column.Append(this->This(), row, values), ...);
              WriteLine(out, level, Format(Class::rowLine, values));
            }
          },
          Class::rows.columns);
    }
  }
};

/// A keyword with its parameters on a line of its own.
template <class Class, ElementKind kKind>
class Property : public ElementClass<Class> {
 public:
  static constexpr std::array kinds = {kKind};

  Property() : ElementClass<Class>(kKind) {}

 protected:
  void WriteOpening(int level, std::ostream& out) const override {
    static_assert(CountPlaces(Class::line) == Class::Places(), "line and parameters differ");
    WriteLine(out, level, Format(Class::line, this->FieldValues()));
  }
  [[nodiscard]] bool WritesChildren() const override { return false; }
};

/// A property with a keyword per axis. One class serves them all: the constructor takes the kind
/// (by default the first, that of the X axis), and the line begins with the keyword of that kind.
template <class Class, ElementKind... kKinds>
class AxisProperty : public ElementClass<Class> {
 public:
  static constexpr std::array kinds = {kKinds...};

  explicit AxisProperty(ElementKind axisKind = kinds[0]) : ElementClass<Class>(axisKind) {}

 protected:
  void WriteOpening(int level, std::ostream& out) const override {
    static_assert(CountPlaces(Class::line) == Class::Places() + 1, "line and parameters differ");
    Arguments values = {std::string(KindToKeyword(this->kind))};
    this->AppendFieldValues(values);
    WriteLine(out, level, Format(Class::line, values));
  }
  [[nodiscard]] bool WritesChildren() const override { return false; }
};

}  // namespace a2l
