// SPDX-License-Identifier: MIT
//
// How raw values become physical ones: conversion methods and the tables that they refer to.
#pragma once

#include <cstdint>

#include "a2l2json/elements/element_class.h"
#include "a2l2json/model/value_sets.h"

namespace a2l {

struct VoA2LElementCompuMethod final
    : detail::Block<VoA2LElementCompuMethod, ElementKind::COMPU_METHOD> {
  std::string_view NAME;
  std::string_view LONG_IDENTIFIER;
  ConversionType CONVERSION_TYPE{};
  std::string_view FORMAT;
  std::string_view UNIT;
  static constexpr Parameter parameters[] = {
      Identifier<&Self::NAME>,
      Text<&Self::LONG_IDENTIFIER>,
      NextLine(Word<&Self::CONVERSION_TYPE>),
      Text<&Self::FORMAT>,
      Text<&Self::UNIT>,
  };
  static constexpr ElementKind accepts[] = {
      ElementKind::COEFFS,  ElementKind::COEFFS_LINEAR, ElementKind::COMPU_TAB_REF,
      ElementKind::FORMULA, ElementKind::REF_UNIT,      ElementKind::STATUS_STRING_REF,
  };
};

/// A table from numbers to numbers.
struct VoA2LElementCompuTab final : detail::Block<VoA2LElementCompuTab, ElementKind::COMPU_TAB> {
  std::string_view NAME;
  std::string_view LONG_IDENTIFIER;
  TableType CONVERSION_TYPE{};
  std::uint32_t NUMBER_VALUE_PAIRS = 0;  ///< as declared, whatever the number of rows
  List<double> IN_VAL;
  List<double> OUT_VAL;
  static constexpr Parameter parameters[] = {
      Identifier<&Self::NAME>,
      Text<&Self::LONG_IDENTIFIER>,
      NextLine(Word<&Self::CONVERSION_TYPE>),
      RowCount<&Self::NUMBER_VALUE_PAIRS>,
  };
  static constexpr Parameter columns[] = {RealList<&Self::IN_VAL>, RealList<&Self::OUT_VAL>};
  static constexpr ElementKind accepts[] = {ElementKind::DEFAULT_VALUE,
                                            ElementKind::DEFAULT_VALUE_NUMERIC};
};

/// A table from numbers to texts.
struct VoA2LElementCompuVtab final : detail::Block<VoA2LElementCompuVtab, ElementKind::COMPU_VTAB> {
  std::string_view NAME;
  std::string_view LONG_IDENTIFIER;
  VerbalTableType CONVERSION_TYPE{};
  std::uint32_t NUMBER_VALUE_PAIRS = 0;
  List<double> IN_VAL;
  List<std::string_view> OUT_VAL;
  static constexpr Parameter parameters[] = {
      Identifier<&Self::NAME>,
      Text<&Self::LONG_IDENTIFIER>,
      NextLine(Word<&Self::CONVERSION_TYPE>),
      RowCount<&Self::NUMBER_VALUE_PAIRS>,
  };
  static constexpr Parameter columns[] = {RealList<&Self::IN_VAL>, Texts<&Self::OUT_VAL>};
  static constexpr ElementKind accepts[] = {ElementKind::DEFAULT_VALUE};
};

/// A table from ranges of numbers to texts.
struct VoA2LElementCompuVtabRange final
    : detail::Block<VoA2LElementCompuVtabRange, ElementKind::COMPU_VTAB_RANGE> {
  std::string_view NAME;
  std::string_view LONG_IDENTIFIER;
  std::uint32_t NUMBER_VALUE_TRIPLES = 0;
  List<double> IN_VAL_MIN;
  List<double> IN_VAL_MAX;
  List<std::string_view> OUT_VAL;
  static constexpr Parameter parameters[] = {
      Identifier<&Self::NAME>,
      Text<&Self::LONG_IDENTIFIER>,
      NextLine(RowCount<&Self::NUMBER_VALUE_TRIPLES>),
  };
  static constexpr Parameter columns[] = {RealList<&Self::IN_VAL_MIN>, RealList<&Self::IN_VAL_MAX>,
                                          Texts<&Self::OUT_VAL>};
  static constexpr ElementKind accepts[] = {ElementKind::DEFAULT_VALUE};
};

struct VoA2LElementFormula final : detail::Block<VoA2LElementFormula, ElementKind::FORMULA> {
  std::string_view FORMULA;
  static constexpr Parameter parameters[] = {NextLine(Text<&Self::FORMULA>)};
  static constexpr ElementKind accepts[] = {ElementKind::FORMULA_INV};
};

}  // namespace a2l
