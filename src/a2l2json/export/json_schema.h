// SPDX-License-Identifier: MIT
//
// The JSON Schema of the documents. It is made from the tables that the documents are made from.
#pragma once

#include <string>
#include <vector>

#include "a2l2json/export/object_table.h"

namespace a2l {

/// One kind of object that a document is made of.
struct DocumentObject {
  const ObjectTable* table;
  /// The keywords that the object is made of, in the order of their numbers; none for the
  /// document itself. Entries of a record layout share an object among the axes.
  std::vector<ElementKind> kinds;

  /// The first keyword, or "document".
  [[nodiscard]] std::string Name() const;
};

/// Every object that has a table: the document first, then what it holds, level by level.
[[nodiscard]] std::vector<DocumentObject> DocumentObjects();

/// The name of an object's table.
[[nodiscard]] std::string ObjectName(const std::vector<DocumentObject>& objects,
                                     const ObjectTable& table);

/// A JSON Schema (2020-12) that every document conforms to, over several lines.
[[nodiscard]] std::string JsonSchema();

}  // namespace a2l
