// SPDX-License-Identifier: MIT
//
// Makes the table of an object, and holds its rows against the element class that they describe.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>

#include "a2l2json/export/exporter.h"
#include "a2l2json/export/json_text.h"
#include "a2l2json/export/keyword_keys.h"
#include "a2l2json/export/object_table.h"
#include "a2l2json/model/element.h"
#include "a2l2json/model/kind_set.h"

namespace a2l {

template <const auto& kRows>
inline constexpr PreparedRows<kRows> kPrepared;

template <const auto& kRows, std::size_t... kIndex>
consteval auto MakeRowWriters(std::index_sequence<kIndex...> /*rows*/) {
  return std::array<RowWriter, sizeof...(kIndex)>{
      &Exporter<JsonText>::WriteRowOf<kRows, kIndex>...};
}
template <const auto& kRows>
inline constexpr auto kRowWriters =
    MakeRowWriters<kRows>(std::make_index_sequence<std::size(kRows)>());

namespace table_checks {

constexpr bool IsSortedWithoutDoubles(std::span<const Row> rows) {
  for (std::size_t i = 1; i < rows.size(); ++i) {
    if (!(rows[i - 1].key < rows[i].key)) return false;
  }
  return true;
}

constexpr bool HasNoFieldTwice(std::span<const Row> rows) {
  for (std::size_t i = 0; i < rows.size(); ++i) {
    for (std::size_t k = 0; k < i; ++k) {
      if (rows[i].field != nullptr && rows[i].field == rows[k].field) return false;
    }
  }
  return true;
}

// The first of `kinds`; the kind of the root for a class without.
template <class Class>
constexpr ElementKind FirstKind() {
  if constexpr (std::is_same_v<Class, VoA2LElement>) {
    return KIND_ROOT;
  } else {
    return Class::kinds.front();
  }
}

// The children of a class that need a key. A class that declares no children accepts those of the
// root, because a file may have them anywhere, but no object shows them.
template <class Class>
constexpr KindSet Children() {
  if constexpr (std::is_same_v<Class, VoA2LElement>) {
    return kBaseChildren;
  } else if constexpr (requires { Class::accepts; }) {
    return KindSet(Class::accepts);
  } else {
    return {};
  }
}

// The kind that each check finds, which the compiler prints; KIND_ROOT if nothing is wrong.
struct Faults {
  ElementKind ownerOfField = KIND_ROOT;
  ElementKind notAccepted = KIND_ROOT;
  ElementKind inTwoRows = KIND_ROOT;
  ElementKind withoutRow = KIND_ROOT;
  ElementKind hasRow = KIND_ROOT;
};

constexpr Faults FindFaults(ElementKind firstKind, const KindSet& accepted,
                            std::span<const Row> rows, std::span<const ElementKind> withoutKey) {
  Faults faults;
  std::array<bool, kKindIndexCount> shown{};
  std::array<bool, kKindIndexCount> taken{};
  for (const Row& row : rows) {
    if (row.owner != KIND_ROOT && row.owner != firstKind) faults.ownerOfField = row.owner;
    const bool never =
        std::holds_alternative<std::monostate>(row.form) && row.source == Source::Element;
    for (const ElementKind kind : {row.kind, row.otherKind}) {
      if (kind == KIND_ROOT) continue;
      shown[KindIndex(kind)] = true;
      if (!never && !accepted.Contains(kind)) faults.notAccepted = kind;
      if (!TakesChildren(row)) continue;
      if (taken[KindIndex(kind)]) faults.inTwoRows = kind;
      taken[KindIndex(kind)] = true;
    }
  }
  for (const ElementKind kind : withoutKey) {
    if (shown[KindIndex(kind)] || !accepted.Contains(kind)) faults.hasRow = kind;
    shown[KindIndex(kind)] = true;
  }
  for (const KeywordKey& keyword : kKeywordKeys) {
    if (accepted.Contains(keyword.kind) && !shown[KindIndex(keyword.kind)]) {
      faults.withoutRow = keyword.kind;
    }
  }
  return faults;
}

template <ElementKind kOwner>
struct FieldOfAnotherClass {
  static_assert(kOwner == KIND_ROOT, "a row takes a field of another class than its table");
};
template <ElementKind kKind>
struct ChildNotAccepted {
  static_assert(kKind == KIND_ROOT, "a row shows a child that its class does not accept");
};
template <ElementKind kKind>
struct ChildInTwoRows {
  static_assert(kKind == KIND_ROOT, "two rows take the same child");
};
template <ElementKind kKind>
struct ChildWithoutRow {
  static_assert(kKind == KIND_ROOT,
                "the class accepts a child that no row shows: give it a row, or name it behind "
                "the rows in MakeTable");
};
template <ElementKind kKind>
struct ChildNamedInVain {
  static_assert(kKind == KIND_ROOT,
                "MakeTable is told of a child without a row that has one or is not accepted");
};

// Ends the build where the rows are not right for the class.
template <class Class, const auto& kRows, ElementKind... kWithoutKey>
consteval void Check() {
  static_assert(IsSortedWithoutDoubles(kRows), "the keys of a table are not in ascending order");
  static_assert(HasNoFieldTwice(kRows), "two rows of a table take the same field");
  constexpr std::array<ElementKind, sizeof...(kWithoutKey)> kWithout = {kWithoutKey...};
  constexpr Faults kFaults = FindFaults(FirstKind<Class>(), Children<Class>(), kRows, kWithout);
  static_cast<void>(FieldOfAnotherClass<kFaults.ownerOfField>());
  static_cast<void>(ChildNotAccepted<kFaults.notAccepted>());
  static_cast<void>(ChildInTwoRows<kFaults.inTwoRows>());
  static_cast<void>(ChildWithoutRow<kFaults.withoutRow>());
  static_cast<void>(ChildNamedInVain<kFaults.hasRow>());
}

}  // namespace table_checks

/// The table of the objects that elements of `Class` become. `kWithoutKey` are the children that
/// the class accepts and no key shows.
template <class Class, const auto& kRows, ElementKind... kWithoutKey>
consteval ObjectTable MakeTable() {
  table_checks::Check<Class, kRows, kWithoutKey...>();
  static_assert(std::size(kRows) <= RowSet::kMost, "a table has more rows than a RowSet can hold");
  ObjectTable table{{}, kRows, kRowWriters<kRows>, kPrepared<kRows>.Text(), kPrepared<kRows>.Rows(),
                    {}, {}};
  if constexpr (!std::is_same_v<Class, VoA2LElement>) table.kinds = Class::kinds;
  for (std::size_t i = 0; i < table.rows.size(); ++i) {
    if (AbsentText(table.rows[i]).empty() || table.rows[i].source == Source::Found) {
      table.always.Add(i);
    }
    if (!TakesChildren(table.rows[i])) continue;
    for (const ElementKind kind : {table.rows[i].kind, table.rows[i].otherKind}) {
      if (kind != KIND_ROOT) table.rowOfKind[KindIndex(kind)] = static_cast<std::uint8_t>(i + 1);
    }
  }
  return table;
}

}  // namespace a2l
