// SPDX-License-Identifier: MIT
//
// What the compiler checks of the declarations of an element class, once for the whole library:
// the rules that a class cannot check by itself before it is complete.
#pragma once

#include <algorithm>
#include <functional>
#include <string_view>
#include <type_traits>

#include "a2l2json/elements/element_class.h"
#include "a2l2json/model/keywords.h"

namespace a2l::detail {

constexpr std::string_view KeywordOf(ElementKind kind) {
  switch (kind) {
#define A2L_KEYWORD(number, keyword, Class) \
  case ElementKind::keyword:                \
    return #keyword;
#include "a2l2json/model/keywords.def"
    case ElementKind::KIND_ROOT:
    case ElementKind::KIND_UNKNOWN:
      break;
  }
  return {};
}

template <class Class>
consteval bool AcceptsInOrder() {
  if constexpr (requires { Class::accepts; }) {
    return std::ranges::adjacent_find(Class::accepts, std::ranges::greater_equal(), KeywordOf) ==
           std::ranges::end(Class::accepts);
  }
  return true;
}

constexpr bool IsOpen(const Parameter& parameter) {
  return parameter.isList || parameter.type == ParameterType::RawText;
}

template <class Class>
consteval bool OnlyTheLastIsOpen() {
  const auto& parameters = kParameters<Class>;
  return std::ranges::count_if(parameters, IsOpen) == 0 ||
         (std::ranges::count_if(parameters, IsOpen) == 1 && IsOpen(parameters.back()));
}

template <class Class>
consteval bool RowsHaveACount() {
  const auto counts = std::ranges::count_if(kParameters<Class>, &Parameter::countsRows);
  return counts == (kColumns<Class>.empty() ? 0 : 1);
}

// Columns are read in a quicker way, which knows these two types.
template <class Class>
consteval bool ColumnsAreTextsOrReals() {
  return std::ranges::all_of(kColumns<Class>, [](const Parameter& column) {
    return column.isList &&
           (column.type == ParameterType::Text || column.type == ParameterType::Real);
  });
}

/// The declaration of the class of a keyword; null for the class void.
template <class Class, ElementKind kKind>
consteval const Declaration* Checked() {
  if constexpr (std::is_void_v<Class>) {
    return nullptr;
  } else {
    static_assert(std::ranges::find(Class::kinds, kKind) != Class::kinds.end(),
                  "keywords.def gives a keyword the class of another");
    static_assert(AcceptsInOrder<Class>(),
                  "the kinds that a class accepts are to stand in the order of their keywords");
    static_assert(OnlyTheLastIsOpen<Class>(),
                  "only the last parameter can be an open list, or text that is kept as it is");
    static_assert(RowsHaveACount<Class>(),
                  "a class with columns needs one parameter that is a RowCount, others need none");
    static_assert(ColumnsAreTextsOrReals<Class>(), "columns are made with Texts or RealList");
    return &kDeclaration<Class>;
  }
}

}  // namespace a2l::detail
