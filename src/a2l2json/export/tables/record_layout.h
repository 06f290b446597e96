// SPDX-License-Identifier: MIT
//
// Record layouts.
#pragma once

#include "a2l2json/elements/blocks/record_layout.h"
#include "a2l2json/export/kind_forms.h"
#include "a2l2json/export/make_table.h"
#include "a2l2json/export/rows.h"
#include "a2l2json/export/tables/shared.h"

namespace a2l::tables {

// The size of a reserved place goes by the name of a data type.
inline constexpr Row kReservedRows[] = {
    Field<&VoA2LElementReserved::DATA_SIZE>("FDATA_TYPE"),
    Field<&VoA2LElementReserved::POSITION>("FPOSITION"),
};
inline constexpr ObjectTable kReserved = MakeTable<VoA2LElementReserved, kReservedRows>();

// IDENTIFICATION has always gone under "FALIGNMENT_WORD", where it competes with ALIGNMENT_WORD,
// and never under its own key.
inline constexpr Row kRecordLayoutRows[] = {
    Child("FALIGNMENT_BYTE"),
    Child("FALIGNMENT_FLOAT16_IEEE"),
    Child("FALIGNMENT_FLOAT32_IEEE"),
    Child("FALIGNMENT_FLOAT64_IEEE"),
    Child("FALIGNMENT_INT64"),
    Child("FALIGNMENT_LONG"),
    EitherChild("FALIGNMENT_WORD", ElementKind::IDENTIFICATION),
    Child("FAXIS_PTS_4"),
    Child("FAXIS_PTS_5"),
    Child("FAXIS_PTS_X"),
    Child("FAXIS_PTS_Y"),
    Child("FAXIS_PTS_Z"),
    Child("FAXIS_RESCALE_4"),
    Child("FAXIS_RESCALE_5"),
    Child("FAXIS_RESCALE_X"),
    Child("FAXIS_RESCALE_Y"),
    Child("FAXIS_RESCALE_Z"),
    Child("FDIST_OP_4"),
    Child("FDIST_OP_5"),
    Child("FDIST_OP_X"),
    Child("FDIST_OP_Y"),
    Child("FDIST_OP_Z"),
    Child("FFIX_NO_AXIS_PTS_4"),
    Child("FFIX_NO_AXIS_PTS_5"),
    Child("FFIX_NO_AXIS_PTS_X"),
    Child("FFIX_NO_AXIS_PTS_Y"),
    Child("FFIX_NO_AXIS_PTS_Z"),
    Child("FFNC_VALUES"),
    Never("FIDENTIFICATION"),
    Field<&VoA2LElementRecordLayout::NAME>("FNAME"),
    Child("FNO_AXIS_PTS_4"),
    Child("FNO_AXIS_PTS_5"),
    Child("FNO_AXIS_PTS_X"),
    Child("FNO_AXIS_PTS_Y"),
    Child("FNO_AXIS_PTS_Z"),
    Child("FNO_RESCALE_4"),
    Child("FNO_RESCALE_5"),
    Child("FNO_RESCALE_X"),
    Child("FNO_RESCALE_Y"),
    Child("FNO_RESCALE_Z"),
    Child("FOFFSET_4"),
    Child("FOFFSET_5"),
    Child("FOFFSET_X"),
    Child("FOFFSET_Y"),
    Child("FOFFSET_Z"),
    Children("FRESERVED", kReserved),
    Child("FRIP_ADDR_4"),
    Child("FRIP_ADDR_5"),
    Child("FRIP_ADDR_W"),
    Child("FRIP_ADDR_X"),
    Child("FRIP_ADDR_Y"),
    Child("FRIP_ADDR_Z"),
    Child("FSHIFT_OP_4"),
    Child("FSHIFT_OP_5"),
    Child("FSHIFT_OP_X"),
    Child("FSHIFT_OP_Y"),
    Child("FSHIFT_OP_Z"),
    Child("FSRC_ADDR_4"),
    Child("FSRC_ADDR_5"),
    Child("FSRC_ADDR_X"),
    Child("FSRC_ADDR_Y"),
    Child("FSRC_ADDR_Z"),
    Flag("FSTATIC_ADDRESS_OFFSETS"),
    Flag("FSTATIC_RECORD_LAYOUT"),
};
inline constexpr ObjectTable kRecordLayout =
    MakeTable<VoA2LElementRecordLayout, kRecordLayoutRows>();

}  // namespace a2l::tables
