// SPDX-License-Identifier: MIT
//
// How raw values become physical ones: conversion methods and the tables that they refer to.
#pragma once

#include <cstdint>

#include "a2l2json/elements/element_class.h"
#include "a2l2json/model/value_sets.h"

namespace a2l {

namespace words {

/// Kind of a conversion method; 0 is no word.
inline constexpr Word kConversionTypeWords[] = {
    {1, "IDENTICAL"}, {2, "FORM"},       {3, "LINEAR"},  {4, "RAT_FUNC"},
    {5, "TAB_INTP"},  {6, "TAB_NOINTP"}, {7, "TAB_VERB"}};
inline constexpr WordTable kConversionType{kConversionTypeWords, 0};

/// Kind of a numeric table; 0 is no word.
inline constexpr Word kTableTypeWords[] = {{1, "TAB_INTP"}, {2, "TAB_NOINTP"}};
inline constexpr WordTable kTableType{kTableTypeWords, 0};

/// Kind of a table of texts; 0 is no word.
inline constexpr Word kVerbalTableTypeWords[] = {{1, "TAB_VERB"}};
inline constexpr WordTable kVerbalTableType{kVerbalTableTypeWords, 0};

}  // namespace words

struct VoA2LElementCompuMethod final : Block<VoA2LElementCompuMethod, Kind::COMPU_METHOD> {
  std::string_view NAME;
  std::string_view LONG_IDENTIFIER;
  std::uint32_t CONVERSION_TYPE = 0;
  std::string_view FORMAT;
  std::string_view UNIT;
  static constexpr auto parameters =
      Parameters(Identifier(&Self::NAME), Text(&Self::LONG_IDENTIFIER),
                 Choice(&Self::CONVERSION_TYPE, words::kConversionType), Text(&Self::FORMAT),
                 Text(&Self::UNIT));
  static constexpr KindSet accepts = {Kind::COEFFS,  Kind::COEFFS_LINEAR, Kind::COMPU_TAB_REF,
                                      Kind::FORMULA, Kind::REF_UNIT,      Kind::STATUS_STRING_REF};
  static constexpr Lines lines{" COMPU_METHOD {0} {1}", "{0} {1} {2}"};
};

/// A table from numbers to numbers.
struct VoA2LElementCompuTab final : Block<VoA2LElementCompuTab, Kind::COMPU_TAB> {
  std::string_view NAME;
  std::string_view LONG_IDENTIFIER;
  std::uint32_t CONVERSION_TYPE = 0;
  std::uint32_t NUMBER_VALUE_PAIRS = 0;  ///< as declared, whatever the number of rows
  List<double> IN_VAL;
  List<double> OUT_VAL;
  static constexpr auto parameters = Parameters(
      Identifier(&Self::NAME), Text(&Self::LONG_IDENTIFIER),
      Choice(&Self::CONVERSION_TYPE, words::kTableType), Unsigned(&Self::NUMBER_VALUE_PAIRS));
  static constexpr auto rows =
      Rows(&Self::NUMBER_VALUE_PAIRS, RealColumn(&Self::IN_VAL), RealColumn(&Self::OUT_VAL));
  static constexpr KindSet accepts = {Kind::DEFAULT_VALUE, Kind::DEFAULT_VALUE_NUMERIC};
  static constexpr Lines lines{" COMPU_TAB {0} {1}", "{0} {1:d}"};
  static constexpr std::string_view rowLine = "{0} {1}";
};

/// A table from numbers to texts.
struct VoA2LElementCompuVtab final : Block<VoA2LElementCompuVtab, Kind::COMPU_VTAB> {
  std::string_view NAME;
  std::string_view LONG_IDENTIFIER;
  std::uint32_t CONVERSION_TYPE = 0;
  std::uint32_t NUMBER_VALUE_PAIRS = 0;
  List<double> IN_VAL;
  List<std::string_view> OUT_VAL;
  static constexpr auto parameters = Parameters(
      Identifier(&Self::NAME), Text(&Self::LONG_IDENTIFIER),
      Choice(&Self::CONVERSION_TYPE, words::kVerbalTableType), Unsigned(&Self::NUMBER_VALUE_PAIRS));
  static constexpr auto rows =
      Rows(&Self::NUMBER_VALUE_PAIRS, RealColumn(&Self::IN_VAL), TextColumn(&Self::OUT_VAL));
  static constexpr KindSet accepts = {Kind::DEFAULT_VALUE};
  static constexpr Lines lines{" COMPU_VTAB {0} {1}", "{0} {1:d}"};
  static constexpr std::string_view rowLine = "{0} {1}";
};

/// A table from ranges of numbers to texts.
struct VoA2LElementCompuVtabRange final
    : Block<VoA2LElementCompuVtabRange, Kind::COMPU_VTAB_RANGE> {
  std::string_view NAME;
  std::string_view LONG_IDENTIFIER;
  std::uint32_t NUMBER_VALUE_TRIPLES = 0;
  List<double> IN_VAL_MIN;
  List<double> IN_VAL_MAX;
  List<std::string_view> OUT_VAL;
  static constexpr auto parameters = Parameters(
      Identifier(&Self::NAME), Text(&Self::LONG_IDENTIFIER), Unsigned(&Self::NUMBER_VALUE_TRIPLES));
  static constexpr auto rows = Rows(&Self::NUMBER_VALUE_TRIPLES, RealColumn(&Self::IN_VAL_MIN),
                                    RealColumn(&Self::IN_VAL_MAX), TextColumn(&Self::OUT_VAL));
  static constexpr KindSet accepts = {Kind::DEFAULT_VALUE};
  static constexpr Lines lines{" COMPU_VTAB_RANGE {0} {1}", "{0:d}"};
  static constexpr std::string_view rowLine = "{0} {1} {2}";
};

struct VoA2LElementFormula final : Block<VoA2LElementFormula, Kind::FORMULA> {
  std::string_view FORMULA;
  static constexpr auto parameters = Parameters(Text(&Self::FORMULA));
  static constexpr KindSet accepts = {Kind::FORMULA_INV};
  static constexpr Lines lines{" FORMULA", "{0}"};
};

}  // namespace a2l
