// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace a2l {

/// A parameter word of an enumeration and the number that stands for it.
struct Word {
  std::uint32_t code;
  std::string_view text;
};

/// An enumeration of parameter words. A word is recognised when it occurs anywhere in a token,
/// and the words are tried in the order of the table: generators decorate their words
/// (FLOAT32_IEEE_X), and the first hit decides (PLONGLONG holds PLONG and is read as that).
struct WordTable {
  std::span<const Word> words;
  /// Code of a token that holds none of the words.
  std::uint32_t fallback;

  /// The word that `token` holds; null when it holds none.
  [[nodiscard]] const Word* Find(std::string_view token) const;
  [[nodiscard]] std::uint32_t FromText(std::string_view token) const;
  /// The word of a code; empty for a code without one.
  [[nodiscard]] std::string_view ToText(std::uint32_t code) const;
};

namespace words {

inline constexpr Word kDataTypeWords[] = {
    {0, "UBYTE"}, {1, "SBYTE"},    {2, "UWORD"},   {3, "SWORD"},        {4, "ULONG"},
    {5, "SLONG"}, {6, "A_UINT64"}, {7, "A_INT64"}, {8, "FLOAT32_IEEE"}, {9, "FLOAT64_IEEE"}};
inline constexpr Word kIndexOrderWords[] = {{0, "INDEX_INCR"}, {1, "INDEX_DECR"}};
inline constexpr Word kAddrTypeWords[] = {
    {0, "PBYTE"}, {1, "PWORD"}, {2, "PLONG"}, {3, "PLONGLONG"}, {4, "DIRECT"}};
inline constexpr Word kDataSizeWords[] = {{0, "BYTE"}, {1, "WORD"}, {2, "LONG"}};

/// Data types of values in memory; an unknown word is taken as UBYTE.
inline constexpr WordTable kDataType{kDataTypeWords, 0};
/// Order of axis points by address; an unknown word is taken as INDEX_INCR.
inline constexpr WordTable kIndexOrder{kIndexOrderWords, 0};
/// Addressing modes; an unknown word is taken as DIRECT. PLONGLONG is never read, only set by
/// code: PLONG comes first and is part of it.
inline constexpr WordTable kAddrType{kAddrTypeWords, 4};
/// Sizes of reserved places in a record; an unknown word is taken as BYTE.
inline constexpr WordTable kDataSize{kDataSizeWords, 0};

}  // namespace words

// The codes as numbers, as elements store them.
using DataType = std::uint32_t;
using IndexOrder = std::uint32_t;
using AddrType = std::uint32_t;
using DataSize = std::uint32_t;

[[nodiscard]] DataType DataTypeFromText(std::string_view text);
[[nodiscard]] IndexOrder IndexOrderFromText(std::string_view text);
[[nodiscard]] AddrType AddrTypeFromText(std::string_view text);

/// The word of a code; empty for a number outside the table.
[[nodiscard]] std::string_view DataTypeToText(DataType code);
[[nodiscard]] std::string_view IndexOrderToText(IndexOrder code);
[[nodiscard]] std::string_view AddrTypeToText(AddrType code);
[[nodiscard]] std::string_view DataSizeToText(DataSize code);

}  // namespace a2l
