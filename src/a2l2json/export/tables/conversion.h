// SPDX-License-Identifier: MIT
//
// Conversion methods, their tables, and units.
#pragma once

#include "a2l2json/elements/blocks/conversion.h"
#include "a2l2json/elements/blocks/other.h"
#include "a2l2json/export/kind_forms.h"
#include "a2l2json/export/make_table.h"
#include "a2l2json/export/rows.h"
#include "a2l2json/export/tables/shared.h"

namespace a2l::tables {

inline constexpr Row kFormulaRows[] = {
    Field<&VoA2LElementFormula::FORMULA>("FFORMULA"),
    Child("FFORMULA_INV"),
};
inline constexpr ObjectTable kFormula = MakeTable<VoA2LElementFormula, kFormulaRows>();

inline constexpr Row kCompuMethodRows[] = {
    Child("FCOEFFS"),
    Child("FCOEFFS_LINEAR"),
    Child("FCOMPU_TAB_REF"),
    Field<&VoA2LElementCompuMethod::CONVERSION_TYPE>("FCONVERSION_TYPE"),
    Field<&VoA2LElementCompuMethod::FORMAT>("FFORMAT"),
    ChildObject("FFORMULA", kFormula),
    Field<&VoA2LElementCompuMethod::LONG_IDENTIFIER>("FLONG_IDENTIFIER"),
    Field<&VoA2LElementCompuMethod::NAME>("FNAME"),
    Child("FREF_UNIT"),
    Child("FSTATUS_STRING_REF"),
    Field<&VoA2LElementCompuMethod::UNIT>("FUNIT"),
};
inline constexpr ObjectTable kCompuMethod = MakeTable<VoA2LElementCompuMethod, kCompuMethodRows>();

inline constexpr Row kCompuTabRows[] = {
    Field<&VoA2LElementCompuTab::CONVERSION_TYPE>("FCONVERSION_TYPE"),
    Child("FDEFAULT_VALUE"),
    Child("FDEFAULT_VALUE_NUMERIC"),
    Field<&VoA2LElementCompuTab::IN_VAL>("FIN_VAL"),
    Field<&VoA2LElementCompuTab::LONG_IDENTIFIER>("FLONG_IDENTIFIER"),
    Field<&VoA2LElementCompuTab::NAME>("FNAME"),
    Field<&VoA2LElementCompuTab::NUMBER_VALUE_PAIRS>("FNUMBER_VALUE_PAIRS"),
    Field<&VoA2LElementCompuTab::OUT_VAL>("FOUT_VAL"),
};
inline constexpr ObjectTable kCompuTab = MakeTable<VoA2LElementCompuTab, kCompuTabRows>();

inline constexpr Row kCompuVtabRows[] = {
    Field<&VoA2LElementCompuVtab::CONVERSION_TYPE>("FCONVERSION_TYPE"),
    Child("FDEFAULT_VALUE"),
    Field<&VoA2LElementCompuVtab::IN_VAL>("FIN_VAL"),
    Field<&VoA2LElementCompuVtab::LONG_IDENTIFIER>("FLONG_IDENTIFIER"),
    Field<&VoA2LElementCompuVtab::NAME>("FNAME"),
    Field<&VoA2LElementCompuVtab::NUMBER_VALUE_PAIRS>("FNUMBER_VALUE_PAIRS"),
    Field<&VoA2LElementCompuVtab::OUT_VAL>("FOUT_VAL"),
};
inline constexpr ObjectTable kCompuVtab = MakeTable<VoA2LElementCompuVtab, kCompuVtabRows>();

inline constexpr Row kCompuVtabRangeRows[] = {
    Child("FDEFAULT_VALUE"),
    Field<&VoA2LElementCompuVtabRange::IN_VAL_MAX>("FIN_VAL_MAX"),
    Field<&VoA2LElementCompuVtabRange::IN_VAL_MIN>("FIN_VAL_MIN"),
    Field<&VoA2LElementCompuVtabRange::LONG_IDENTIFIER>("FLONG_IDENTIFIER"),
    Field<&VoA2LElementCompuVtabRange::NAME>("FNAME"),
    Field<&VoA2LElementCompuVtabRange::NUMBER_VALUE_TRIPLES>("FNUMBER_VALUE_TRIPLES"),
    Field<&VoA2LElementCompuVtabRange::OUT_VAL>("FOUT_VAL"),
};
inline constexpr ObjectTable kCompuVtabRange =
    MakeTable<VoA2LElementCompuVtabRange, kCompuVtabRangeRows>();

inline constexpr Row kUnitRows[] = {
    Field<&VoA2LElementUnit::DISPLAY>("FDISPLAY"),
    Field<&VoA2LElementUnit::LONG_IDENTIFIER>("FLONG_IDENTIFIER"),
    Field<&VoA2LElementUnit::NAME>("FNAME"),
    Child("FREF_UNIT"),
    Child("FSI_EXPONENTS"),
    Child("FUNIT_CONVERSION"),
    Field<&VoA2LElementUnit::UNIT_TYPE>("FUNIT_TYPE"),
};
inline constexpr ObjectTable kUnit = MakeTable<VoA2LElementUnit, kUnitRows>();

}  // namespace a2l::tables
