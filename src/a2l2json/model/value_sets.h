// SPDX-License-Identifier: MIT
//
// The enumerations of parameter words. Each is a type of the elements' fields and, from the same
// list, the table of its words.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace a2l {

/// A parameter word of an enumeration and the number that stands for it.
struct Word {
  std::uint32_t code = 0;
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

namespace detail {

/// The words of a list of enumerators, "UNKNOWN, RAM, ROM_", with their places in it as codes.
/// UNKNOWN is no word, and an underscore at the end is not part of the word.
template <std::size_t kWords>
consteval std::array<Word, kWords> SplitWords(std::string_view list) {
  std::array<Word, kWords> words;
  std::size_t word = 0;
  for (std::uint32_t code = 0; !list.empty(); ++code) {
    const std::string_view text = list.substr(0, list.find(','));
    list.remove_prefix(text.size() < list.size() ? text.size() + 2 : text.size());
    if (text == "UNKNOWN") continue;
    words[word++] = {code, text.substr(0, text.size() - (text.ends_with('_') ? 1 : 0))};
  }
  return words;
}

consteval std::size_t CountWords(std::string_view list) {
  std::size_t words = list.starts_with("UNKNOWN") ? 0 : 1;
  for (const char c : list) words += c == ',' ? 1 : 0;
  return words;
}

/// The code that a token without a word is read as: that of the first enumerator, unless another is
/// named below.
template <class Enumeration>
inline constexpr std::uint32_t kFallback = 0;

/// The table of the words of `Enumeration`; declared for the enumerations below.
template <class Enumeration>
inline constexpr const WordTable* kWordTable = nullptr;

}  // namespace detail

// An enumeration, words::k<Name> as the table of its words, and detail::kWordTable<Name>. The words
// are numbered from 0 on; UNKNOWN, where it is the first, is no word. Words that are macros on some
// system (LITTLE_ENDIAN in the headers of Linux, ABSOLUTE in those of Windows) have an underscore
// behind them, so that users can name them there, too.
#define A2L_WORDS(Name, ...)                                                          \
  enum class Name : std::uint32_t { __VA_ARGS__ };                                    \
  namespace words {                                                                   \
  inline constexpr auto k##Name##Words =                                              \
      detail::SplitWords<detail::CountWords(#__VA_ARGS__)>(#__VA_ARGS__);             \
  inline constexpr WordTable k##Name{k##Name##Words, detail::kFallback<::a2l::Name>}; \
  }                                                                                   \
  template <>                                                                         \
  inline constexpr const WordTable* detail::kWordTable<Name> = &words::k##Name

/// Data types of values in memory.
A2L_WORDS(DataType, UBYTE, SBYTE, UWORD, SWORD, ULONG, SLONG, A_UINT64, A_INT64, FLOAT32_IEEE,
          FLOAT64_IEEE);

/// Order of axis points by address.
A2L_WORDS(IndexOrder, INDEX_INCR, INDEX_DECR);

enum class AddrType : std::uint32_t;
template <>
inline constexpr std::uint32_t detail::kFallback<AddrType> = 4;  // DIRECT

/// Addressing modes; any other word is taken as DIRECT. PLONGLONG is never read, only set by code:
/// PLONG comes first and is part of it.
A2L_WORDS(AddrType, PBYTE, PWORD, PLONG, PLONGLONG, DIRECT);
static_assert(static_cast<std::uint32_t>(AddrType::DIRECT) == detail::kFallback<AddrType>,
              "an unknown addressing mode is to be taken as DIRECT");

/// Sizes of reserved places in a record.
A2L_WORDS(DataSize, BYTE, WORD, LONG);

/// Order of the bytes in memory.
A2L_WORDS(ByteOrder, UNKNOWN, LITTLE_ENDIAN_, BIG_ENDIAN_, MSB_LAST, MSB_FIRST);

/// Whether an object may be calibrated. CALIBRATION comes first and is part of two others, which
/// are therefore never read.
A2L_WORDS(CalibrationAccess, UNKNOWN, CALIBRATION, NO_CALIBRATION, NOT_IN_MCD_SYSTEM,
          OFFLINE_CALIBRATION);

/// How the points of an axis are stored.
A2L_WORDS(Deposit, UNKNOWN, ABSOLUTE_, DIFFERENCE_);

/// Order of the values of an array.
A2L_WORDS(Layout, UNKNOWN, ROW_DIR, COLUMN_DIR);

/// How the points of an axis follow each other.
A2L_WORDS(Monotony, UNKNOWN, MON_DECREASE, MON_INCREASE, STRICT_DECREASE, STRICT_INCREASE,
          MONOTONOUS, STRICT_MON, NOT_MON);

/// How variant-coded objects are named.
A2L_WORDS(VarNaming, UNKNOWN, NUMERIC);

/// How the values of a record follow each other.
A2L_WORDS(IndexMode, UNKNOWN, ALTERNATE_CURVES, ALTERNATE_WITH_X, ALTERNATE_WITH_Y, COLUMN_DIR,
          ROW_DIR);

/// Shape of a characteristic.
A2L_WORDS(CharacteristicType, UNKNOWN, ASCII, CURVE, MAP, CUBOID, CUBE_4, CUBE_5, VAL_BLK, VALUE);

/// Kind of an axis.
A2L_WORDS(AxisAttribute, UNKNOWN, CURVE_AXIS, COM_AXIS, FIX_AXIS, RES_AXIS, STD_AXIS);

/// Kind of a conversion method.
A2L_WORDS(ConversionType, UNKNOWN, IDENTICAL, FORM, LINEAR, RAT_FUNC, TAB_INTP, TAB_NOINTP,
          TAB_VERB);

/// Kind of a table from numbers to numbers.
A2L_WORDS(TableType, UNKNOWN, TAB_INTP, TAB_NOINTP);

/// Kind of a table from numbers to texts.
A2L_WORDS(VerbalTableType, UNKNOWN, TAB_VERB);

/// Kind of a unit.
A2L_WORDS(UnitType, UNKNOWN, DERIVED, EXTENDED_SI);

/// Use of a part of memory.
A2L_WORDS(LayoutProgramType, UNKNOWN, PRG_CODE, PRG_DATA, PRG_RESERVED);

/// Use of a memory segment. OFFLINE_DATA is never read: DATA comes first and is part of it.
A2L_WORDS(SegmentProgramType, UNKNOWN, CALIBRATION_VARIABLES, CODE, DATA, EXCLUDE_FROM_FLASH,
          OFFLINE_DATA, RESERVED, SERAM, VARIABLES);

/// Kind of memory.
A2L_WORDS(MemoryType, UNKNOWN, EEPROM, EPROM, FLASH, RAM, ROM, REGISTER);

/// Where memory lies, seen from the processor.
A2L_WORDS(MemoryAttribute, UNKNOWN, INTERN, EXTERN);

/// What makes a transformer run.
A2L_WORDS(TransformerTrigger, UNKNOWN, ON_CHANGE, ON_USER_REQUEST);

#undef A2L_WORDS

/// The value of the word that `text` holds.
[[nodiscard]] DataType DataTypeFromText(std::string_view text);
[[nodiscard]] IndexOrder IndexOrderFromText(std::string_view text);
[[nodiscard]] AddrType AddrTypeFromText(std::string_view text);

/// The word of a value; empty for a number outside the enumeration.
[[nodiscard]] std::string_view DataTypeToText(DataType value);
[[nodiscard]] std::string_view IndexOrderToText(IndexOrder value);
[[nodiscard]] std::string_view AddrTypeToText(AddrType value);
[[nodiscard]] std::string_view DataSizeToText(DataSize value);

}  // namespace a2l
