// SPDX-License-Identifier: MIT
//
// What the objects of the JSON document are made of: one table per object, one row per key, in
// ascending byte order of the keys, which is their order in the document.
#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "a2l2json/export/prepared_rows.h"
#include "a2l2json/export/row.h"
#include "a2l2json/model/keywords.h"

namespace a2l {

class JsonText;
class Places;
struct ObjectTable;
template <class Sink>
class Exporter;

/// Writes one row of a table as JSON text; see Exporter.
using RowWriter = std::size_t (*)(Exporter<JsonText>&, const ObjectTable&, std::size_t next,
                                  const VoA2LElement&, const Places&);

/// The table of one object.
struct ObjectTable {
  /// The kinds of the class that the object is made of; none for the whole document.
  std::span<const ElementKind> kinds;
  std::span<const Row> rows;
  /// A function for each row.
  std::span<const RowWriter> writers;
  /// The prepared text of the rows, where that of each begins, and where the last one ends.
  const char* text = nullptr;
  std::span<const RowText> texts;
  /// Per KindIndex, 1 + the row that children of the kind go to; 0 where they go nowhere.
  std::array<std::uint8_t, kKindIndexCount> rowOfKind{};
  /// The rows that are written, or looked at, whatever children there are.
  RowSet always;
};

}  // namespace a2l
