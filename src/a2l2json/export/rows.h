// SPDX-License-Identifier: MIT
//
// The rows of the tables, by what their values are made of. A row that contradicts itself ends the
// build at its line: the compiler then names one of the functions in `no_such_row`.
#pragma once

#include <algorithm>
#include <array>
#include <string_view>

#include "a2l2json/export/forms.h"
#include "a2l2json/export/keyword_keys.h"
#include "a2l2json/export/object_table.h"
#include "a2l2json/model/keywords.h"

namespace a2l {

// Only their names matter: they tell the reader of an error what is wrong. A call of one of them
// ends the build, because it is not a constant expression.
namespace no_such_row {
void TheKeyHoldsNoKeyword_GiveTheKindBehindIt();
void TheKeyHoldsAKeyword_ItsKindCannotBeAnother();
void TheTableIsThatOfAnotherKeyword();
void TheFormIsThatOfAnotherKeyword();
}  // namespace no_such_row

/// The kind of the keyword in `key`, which must hold one.
consteval ElementKind KindInKey(std::string_view key) {
  const ElementKind kind = KindOfKey(key);
  if (kind == KIND_UNKNOWN) no_such_row::TheKeyHoldsNoKeyword_GiveTheKindBehindIt();
  return kind;
}

/// A value of the element itself: a field of its class, or what elements of every class have.
consteval Row Field(std::string_view key, const ClassForm& value) {
  return {.key = key,
          .form = value.form,
          .owner = value.kinds.empty() ? KIND_ROOT : value.kinds.front(),
          .field = value.field};
}

/// A field of the element, as what it is.
template <auto kMember>
consteval Row Field(std::string_view key) {
  return Field(key, Value<kMember>());
}

/// A field of the element, as an address.
template <auto kMember>
consteval Row AddressField(std::string_view key) {
  return Field(key, AddressOf<kMember>());
}

/// A list of the element, as one text.
template <auto kMember>
consteval Row JoinedField(std::string_view key) {
  return Field(key, Joined<kMember>());
}

/// What `value` makes of all children of the keyword in the key.
consteval Row FromChildren(std::string_view key, const ClassForm& value) {
  return {.key = key, .kind = KindInKey(key), .form = value.form};
}

/// Whether there is a child of the keyword in the key.
consteval Row Flag(std::string_view key) {
  return {.key = key, .source = Source::Presence, .kind = KindInKey(key)};
}

/// The kind of the keyword in `key`, which `table` must be made for.
consteval ElementKind KindInKey(std::string_view key, const ObjectTable& table) {
  const ElementKind kind = KindInKey(key);
  if (std::ranges::find(table.kinds, kind) == table.kinds.end()) {
    no_such_row::TheTableIsThatOfAnotherKeyword();
  }
  return kind;
}

/// The first child of the keyword in the key, as an object.
consteval Row ChildObject(std::string_view key, const ObjectTable& table) {
  return {.key = key, .source = Source::FirstChild, .kind = KindInKey(key, table), .form = &table};
}

/// All children of the keyword in the key, as an array of objects.
consteval Row Children(std::string_view key, const ObjectTable& table,
                       Absent absent = Absent::EmptyArray) {
  return {.key = key,
          .source = Source::Children,
          .absent = absent,
          .kind = KindInKey(key, table),
          .form = &table};
}

/// All children of the kind of `table` in the children of `kind`, as an array of objects.
consteval Row Grandchildren(std::string_view key, ElementKind kind, const ObjectTable& table) {
  return {.key = key,
          .source = Source::Grandchildren,
          .absent = Absent::EmptyArray,
          .kind = kind,
          .grandchild = table.kinds.front(),
          .form = &table};
}

/// What `value` makes of the element that `find` looks for among the children of the keyword in
/// the key; null when it finds none.
consteval Row Found(std::string_view key, const VoA2LElement* (*find)(const VoA2LElement&),
                    const ClassForm& value) {
  const ElementKind kind = KindInKey(key);
  if (!value.kinds.empty() && value.kinds.front() != kind) {
    no_such_row::TheFormIsThatOfAnotherKeyword();
  }
  return {.key = key, .source = Source::Found, .kind = kind, .form = value.form, .find = find};
}

/// The first element, in the order of the file, that a path of kinds leads to from `element`.
template <ElementKind kKind, ElementKind... kRest>
const VoA2LElement* FindFirst(const VoA2LElement& element) {
  for (const VoA2LElement* child : element.children) {
    if (child->kind != kKind) continue;
    if constexpr (sizeof...(kRest) == 0) {
      return child;
    } else if (const VoA2LElement* found = FindFirst<kRest...>(*child); found != nullptr) {
      return found;
    }
  }
  return nullptr;
}

/// A field of that element; null when there is no such element.
template <auto kMember, ElementKind kKind, ElementKind... kRest>
consteval Row FirstField(std::string_view key) {
  constexpr ElementKind kLast = std::array{kKind, kRest...}.back();
  static_assert(MemberOf<decltype(kMember)>::Element::kinds.front() == kLast,
                "the field is not one of the elements that the path leads to");
  return {.key = key,
          .source = Source::Found,
          .kind = kKind,
          .form = Value<kMember>().form,
          .find = FindFirst<kKind, kRest...>};
}

/// A key that never has a value, though its keyword, if it holds one, may be accepted.
consteval Row Never(std::string_view key) {
  const ElementKind kind = KindOfKey(key);
  return {.key = key, .kind = kind == KIND_UNKNOWN ? KIND_ROOT : kind};
}

}  // namespace a2l
