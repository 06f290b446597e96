// SPDX-License-Identifier: MIT
//
// What the documentation says of each key: where its value comes from, and what the document has if
// the file has no such value.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "a2l2json/export/object_table.h"
#include "a2l2json/model/value_sets.h"

namespace a2l {

/// Where the value of a key comes from, in Markdown. The links lead to places in docs/json.md.
/// Throws std::logic_error for a row whose origin nobody has written down.
[[nodiscard]] std::string OriginOf(std::string_view object, const Row& row);

/// What the document has where the file says nothing: "null", "[]", "false" or "no key"; empty
/// for a value that is always there.
[[nodiscard]] std::string_view AbsentValue(const Row& row);

/// The origins that are written down for a key that no object has, as "OBJECT KEY".
[[nodiscard]] std::vector<std::string> OriginsWithoutKey();

/// True for a word that is never read from a file, because an earlier word of the table is part of
/// it. It gets into a document only if a program sets it.
[[nodiscard]] bool IsNeverRead(const WordTable& table, const Word& word);

}  // namespace a2l
