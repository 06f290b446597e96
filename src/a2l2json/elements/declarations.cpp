// SPDX-License-Identifier: MIT
#include "a2l2json/elements/declarations.h"

#include <array>
#include <tuple>
#include <type_traits>

#include "a2l2json/elements/elements.h"

namespace a2l::detail {
namespace {

constexpr Parameter kRaw = {.type = ParameterType::RawText};
constexpr Parameter kName = {.type = ParameterType::Identifier};

template <class Class>
constexpr auto DescribeParameters() {
  return std::apply(
      [](const auto&... field) {
        std::array<Parameter, sizeof...(field)> parameters{field.Describe()...};
        for (Parameter& parameter : parameters) {
          if (parameter.isList) parameter.childInList = Class::childInList;
        }
        return parameters;
      },
      Class::parameters);
}
template <>
constexpr auto DescribeParameters<VoA2LElementA2ML>() {
  return std::array{kRaw};
}
template <>
constexpr auto DescribeParameters<VoA2LElementUnknown>() {
  return std::array{kRaw};
}
template <>
constexpr auto DescribeParameters<VoA2LElementIfData>() {
  return std::array{kName, kRaw};
}
template <class Class>
constexpr auto kParameters = DescribeParameters<Class>();

template <class Class>
constexpr bool kHasRows = !std::is_same_v<decltype(Class::rows), const std::nullptr_t>;

template <class Class>
constexpr auto DescribeColumns() {
  if constexpr (kHasRows<Class>) {
    return std::apply(
        [](const auto&... column) {
          return std::array<Parameter, sizeof...(column)>{column.Describe()...};
        },
        Class::rows.columns);
  } else {
    return std::array<Parameter, 0>{};
  }
}
template <class Class>
constexpr auto kColumns = DescribeColumns<Class>();

template <class Class>
constexpr Declaration Describe() {
  Declaration declaration;
  declaration.kinds = Class::kinds;
  declaration.parameters = kParameters<Class>;
  declaration.columns = kColumns<Class>;
  if constexpr (kHasRows<Class>) declaration.rowCount = kParameters<Class>.size() - 1;
  declaration.paramCount = Class::ParameterCount();
  declaration.revision = Class::revision;
  declaration.accepts = kBaseChildren;
  if constexpr (requires { Class::accepts; }) declaration.accepts = Class::accepts;
  declaration.accepts = declaration.accepts.With(KIND_UNKNOWN);
  return declaration;
}
template <class Class>
constexpr Declaration kDeclaration = Describe<Class>();

template <class Class>
constexpr const Declaration* Of() {
  if constexpr (std::is_void_v<Class>) {
    return nullptr;
  } else {
    return &kDeclaration<Class>;
  }
}

constexpr std::array kKindOfRoot = {KIND_ROOT};
constexpr Declaration kRoot = {
    .kinds = kKindOfRoot, .parameters = {}, .columns = {}, .accepts = kBaseChildren};

// In the order of KindIndex.
constexpr std::array<const Declaration*, kKindIndexCount> kDeclarations = {
#define A2L_KEYWORD(number, keyword, Class) Of<Class>(),
#include "a2l2json/model/keywords.def"
    &kDeclaration<VoA2LElementUnknown>,
    nullptr,
};

}  // namespace

const Declaration* DeclarationOf(ElementKind kind) {
  return kind == KIND_ROOT ? &kRoot : kDeclarations[KindIndex(kind)];
}

}  // namespace a2l::detail
