// SPDX-License-Identifier: MIT
//
// What an element class is made of. A class derives from detail::Block, detail::Property or
// detail::AxisProperty, with itself and its kinds as arguments, and states what is special about
// its keyword; everything that the reader and the A2L writer do with it follows from that:
//
//   parameters   the parameters, in the words of parameters.h; none by default
//   columns      the columns of the rows behind the parameters; none by default
//   accepts      blocks: the kinds of children, in the order of their keywords (KIND_UNKNOWN is
//                always accepted); by default those of the base element, which are not written
//   onBadNumber  what a wrong number among the parameters does; by default, the first one ends
//                the read
//   revision     the revision of the standard, if it is not 1.6.0
//   writtenAs    the keyword that is written, if it is another one
//
// The few classes that differ in something else override one operation, beside their declaration.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "a2l2json/elements/declarations.h"
#include "a2l2json/elements/parameters.h"
#include "a2l2json/elements/take_parameter.h"
#include "a2l2json/model/element.h"

namespace a2l::detail {

/// An element with a declaration, by which it is read and written.
class DeclaredElement : public VoA2LElement {
 public:
  bool ParseParameters(std::string_view& text) override;
  bool ParseMoreParameters(std::string_view& text) override;
  bool TakeMoreParameters(TreeStore& store, TokenReader& tokens) override;
  bool AddChild(VoA2LElement* child) override;
  [[nodiscard]] std::int32_t MoreParameterCount() const override;
  [[nodiscard]] std::uint32_t Version() const override { return Declared().revision; }

 protected:
  DeclaredElement(ElementKind elementKind, const Declaration& declaration) {
    kind = elementKind;
    paramCount = declaration.paramCount;
    hasMoreParameters = declaration.HasRows() ? 1 : 0;
  }

  [[nodiscard]] virtual const Declaration& Declared() const = 0;

  /// Makes the child that a list ends with (EndedBy).
  virtual VoA2LElement* MakeChildInList();

  void WriteOpening(int level, std::ostream& out) const override;
  void WriteClosing(int level, std::ostream& out) const override;
  [[nodiscard]] int LevelsToChildren() const override { return 1; }
  [[nodiscard]] bool WritesChildren() const override { return Declared().writesChildren; }

  /// Stores all tokens that are left as the items of a list; false at one that is wrong.
  bool ReadList(const Parameter& parameter, TreeStore& store, TokenReader& tokens);

 private:
  template <class Item, class ReadItem>
  bool ReadList(const Parameter& parameter, List<Item>& list, TreeStore& store, TokenReader& tokens,
                ReadItem readItem);
  bool ReadNamedValues(const Parameter& parameter, TreeStore& store, TokenReader& tokens);
  bool ReadCell(const Parameter& column, TreeStore& store, TokenReader& tokens);
  void WriteItems(int level, std::ostream& out) const;
  void WriteItemsBehind(std::string line, int level, std::ostream& out) const;
  void WriteRows(int level, std::ostream& out) const;
};

/// The parameters that a class declares, with the places of their fields.
template <std::size_t kCount>
consteval std::array<Parameter, kCount> Locate(std::span<const Parameter, kCount> parameters) {
  std::array<Parameter, kCount> located{};
  std::ranges::copy(parameters, located.begin());
  for (Parameter& parameter : located) {
    parameter.place = parameter.locate();
    parameter.locate = nullptr;
  }
  return located;
}
template <class Class>
inline constexpr auto kParameters = Locate(std::span(Class::parameters));
template <class Class>
inline constexpr auto kColumns = Locate(std::span(Class::columns));

template <class Class>
consteval Declaration Declare() {
  Declaration declaration;
  declaration.kinds = Class::kinds;
  declaration.parameters = kParameters<Class>;
  declaration.columns = kColumns<Class>;
  for (const Parameter& parameter : declaration.parameters) {
    const bool open = parameter.isList || parameter.type == ParameterType::RawText;
    declaration.paramCount =
        open ? kOpenParameterList
             : static_cast<std::uint16_t>(declaration.paramCount + parameter.count);
  }
  if (declaration.HasRows()) {
    const auto count = std::ranges::find_if(declaration.parameters, &Parameter::countsRows);
    declaration.rowCount = static_cast<std::size_t>(count - declaration.parameters.begin());
  }
  declaration.revision = Class::revision;
  declaration.onBadNumber = Class::onBadNumber;
  declaration.writtenAs = Class::writtenAs;
  declaration.accepts = kBaseChildren;
  if constexpr (requires { Class::accepts; }) {
    declaration.accepts = KindSet(Class::accepts).With(KIND_UNKNOWN);
    declaration.writesChildren = true;
  }
  return declaration;
}
template <class Class>
inline constexpr Declaration kDeclaration = Declare<Class>();

/// The part of an element class that its own declarations fill.
template <class Class, ElementKind... kKinds>
class ElementClass : public DeclaredElement, protected ParameterWords<Class> {
 protected:
  using OnBadNumber = detail::OnBadNumber;
  using Parameter = detail::Parameter;

 public:
  using Self = Class;
  // With its type in full: GCC for Windows would put it into another section where it deduces that.
  static constexpr std::array<ElementKind, sizeof...(kKinds)> kinds = {kKinds...};
  static constexpr std::array<Parameter, 0> parameters{};
  static constexpr std::array<Parameter, 0> columns{};
  static constexpr OnBadNumber onBadNumber = OnBadNumber::Stop;
  static constexpr std::uint32_t revision = kRevision160;
  static constexpr ElementKind writtenAs = KIND_ROOT;

  bool TakeParameters(TreeStore& store, TokenReader& tokens) override {
    constexpr bool kGoesOn = Class::onBadNumber == OnBadNumber::MarkAndGoOn;
    bool ok = true;
    const auto take = [&](const Parameter& parameter) __attribute__((always_inline)) {
      ok = (parameter.isList ? this->ReadList(parameter, store, tokens)
                             : TakeValue(parameter, *this, store, tokens)) &&
           ok;
      return ok || kGoesOn;
    };
    [&]<std::size_t... kIndexes>(std::index_sequence<kIndexes...>) __attribute__((always_inline)) {
      static_cast<void>((take(kParameters<Class>[kIndexes]) && ...));
    }
    (std::make_index_sequence<kParameters<Class>.size()>());
    if (!ok && kGoesOn) this->valid = 0;
    return ok;
  }

 protected:
  explicit ElementClass(ElementKind elementKind)
      : DeclaredElement(elementKind, kDeclaration<Class>) {}

  [[nodiscard]] const Declaration& Declared() const final { return kDeclaration<Class>; }
};

/// A keyword between /begin and /end.
template <class Class, ElementKind kKind>
class Block : public ElementClass<Class, kKind> {
  static_assert(!IsProperty(kKind), "the number of this keyword is that of a property");

 protected:
  Block() : ElementClass<Class, kKind>(kKind) {}
};

/// A keyword with its parameters on a line of its own.
template <class Class, ElementKind kKind>
class Property : public ElementClass<Class, kKind> {
  static_assert(IsProperty(kKind), "the number of this keyword is that of a block");

 protected:
  Property() : ElementClass<Class, kKind>(kKind) {}
};

/// A property with a keyword per axis. One class serves them all: the constructor takes the kind,
/// by default the first, that of the X axis.
template <class Class, ElementKind kFirstKind, ElementKind... kKinds>
class AxisProperty : public ElementClass<Class, kFirstKind, kKinds...> {
  static_assert(IsProperty(kFirstKind) && (IsProperty(kKinds) && ...),
                "the number of one of these keywords is that of a block");

 public:
  explicit AxisProperty(ElementKind axisKind = kFirstKind)
      : ElementClass<Class, kFirstKind, kKinds...>(axisKind) {}
};

}  // namespace a2l::detail
