// SPDX-License-Identifier: MIT
//
// Conversion methods, their tables, and units.
#pragma once

#include "a2l2json/elements/blocks/conversion.h"
#include "a2l2json/elements/blocks/other.h"
#include "a2l2json/export/kind_forms.h"
#include "a2l2json/export/tables/shared.h"

namespace a2l::tables {

inline constexpr Row kFormulaRows[] = {
    Field("FFORMULA", Value<&VoA2LElementFormula::FORMULA>()),
    Child("FFORMULA_INV", Kind::FORMULA_INV),
};
inline constexpr ObjectTable kFormula = MakeTable<kFormulaRows>();

inline constexpr Row kCompuMethodRows[] = {
    Child("FCOEFFS", Kind::COEFFS),
    Child("FCOEFFS_LINEAR", Kind::COEFFS_LINEAR),
    Child("FCOMPU_TAB_REF", Kind::COMPU_TAB_REF),
    Field("FCONVERSION_TYPE",
          WordOf<&VoA2LElementCompuMethod::CONVERSION_TYPE, words::kConversionType>()),
    Field("FFORMAT", Value<&VoA2LElementCompuMethod::FORMAT>()),
    ChildObject("FFORMULA", Kind::FORMULA, kFormula),
    Field("FLONG_IDENTIFIER", Value<&VoA2LElementCompuMethod::LONG_IDENTIFIER>()),
    Field("FNAME", Value<&VoA2LElementCompuMethod::NAME>()),
    Child("FREF_UNIT", Kind::REF_UNIT),
    Child("FSTATUS_STRING_REF", Kind::STATUS_STRING_REF),
    Field("FUNIT", Value<&VoA2LElementCompuMethod::UNIT>()),
};
inline constexpr ObjectTable kCompuMethod = MakeTable<kCompuMethodRows>();

inline constexpr Row kCompuTabRows[] = {
    Field("FCONVERSION_TYPE", WordOf<&VoA2LElementCompuTab::CONVERSION_TYPE, words::kTableType>()),
    Child("FDEFAULT_VALUE", Kind::DEFAULT_VALUE),
    Child("FDEFAULT_VALUE_NUMERIC", Kind::DEFAULT_VALUE_NUMERIC),
    Field("FIN_VAL", Value<&VoA2LElementCompuTab::IN_VAL>()),
    Field("FLONG_IDENTIFIER", Value<&VoA2LElementCompuTab::LONG_IDENTIFIER>()),
    Field("FNAME", Value<&VoA2LElementCompuTab::NAME>()),
    Field("FNUMBER_VALUE_PAIRS", Value<&VoA2LElementCompuTab::NUMBER_VALUE_PAIRS>()),
    Field("FOUT_VAL", Value<&VoA2LElementCompuTab::OUT_VAL>()),
};
inline constexpr ObjectTable kCompuTab = MakeTable<kCompuTabRows>();

inline constexpr Row kCompuVtabRows[] = {
    Field("FCONVERSION_TYPE",
          WordOf<&VoA2LElementCompuVtab::CONVERSION_TYPE, words::kVerbalTableType>()),
    Child("FDEFAULT_VALUE", Kind::DEFAULT_VALUE),
    Field("FIN_VAL", Value<&VoA2LElementCompuVtab::IN_VAL>()),
    Field("FLONG_IDENTIFIER", Value<&VoA2LElementCompuVtab::LONG_IDENTIFIER>()),
    Field("FNAME", Value<&VoA2LElementCompuVtab::NAME>()),
    Field("FNUMBER_VALUE_PAIRS", Value<&VoA2LElementCompuVtab::NUMBER_VALUE_PAIRS>()),
    Field("FOUT_VAL", Value<&VoA2LElementCompuVtab::OUT_VAL>()),
};
inline constexpr ObjectTable kCompuVtab = MakeTable<kCompuVtabRows>();

inline constexpr Row kCompuVtabRangeRows[] = {
    Child("FDEFAULT_VALUE", Kind::DEFAULT_VALUE),
    Field("FIN_VAL_MAX", Value<&VoA2LElementCompuVtabRange::IN_VAL_MAX>()),
    Field("FIN_VAL_MIN", Value<&VoA2LElementCompuVtabRange::IN_VAL_MIN>()),
    Field("FLONG_IDENTIFIER", Value<&VoA2LElementCompuVtabRange::LONG_IDENTIFIER>()),
    Field("FNAME", Value<&VoA2LElementCompuVtabRange::NAME>()),
    Field("FNUMBER_VALUE_TRIPLES", Value<&VoA2LElementCompuVtabRange::NUMBER_VALUE_TRIPLES>()),
    Field("FOUT_VAL", Value<&VoA2LElementCompuVtabRange::OUT_VAL>()),
};
inline constexpr ObjectTable kCompuVtabRange = MakeTable<kCompuVtabRangeRows>();

inline constexpr Row kUnitRows[] = {
    Field("FDISPLAY", Value<&VoA2LElementUnit::DISPLAY>()),
    Field("FLONG_IDENTIFIER", Value<&VoA2LElementUnit::LONG_IDENTIFIER>()),
    Field("FNAME", Value<&VoA2LElementUnit::NAME>()),
    Child("FREF_UNIT", Kind::REF_UNIT),
    Child("FSI_EXPONENTS", Kind::SI_EXPONENTS),
    Child("FUNIT_CONVERSION", Kind::UNIT_CONVERSION),
    Field("FUNIT_TYPE", WordOf<&VoA2LElementUnit::UNIT_TYPE, words::kUnitType>()),
};
inline constexpr ObjectTable kUnit = MakeTable<kUnitRows>();

}  // namespace a2l::tables
