// SPDX-License-Identifier: MIT
//
// Record layouts.
#pragma once

#include "a2l2json/elements/blocks/record_layout.h"
#include "a2l2json/export/kind_forms.h"
#include "a2l2json/export/tables/shared.h"

namespace a2l::tables {

// The size of a reserved place goes by the name of a data type.
inline constexpr Row kReservedRows[] = {
    Field("FDATA_TYPE", WordOf<&VoA2LElementReserved::DATA_SIZE, words::kDataSize>()),
    Field("FPOSITION", Value<&VoA2LElementReserved::POSITION>()),
};
inline constexpr ObjectTable kReserved = MakeTable<kReservedRows>();

// IDENTIFICATION has always gone under "FALIGNMENT_WORD", where it competes with ALIGNMENT_WORD,
// and never under its own key.
inline constexpr Row kRecordLayoutRows[] = {
    Child("FALIGNMENT_BYTE", Kind::ALIGNMENT_BYTE),
    Child("FALIGNMENT_FLOAT16_IEEE", Kind::ALIGNMENT_FLOAT16_IEEE),
    Child("FALIGNMENT_FLOAT32_IEEE", Kind::ALIGNMENT_FLOAT32_IEEE),
    Child("FALIGNMENT_FLOAT64_IEEE", Kind::ALIGNMENT_FLOAT64_IEEE),
    Child("FALIGNMENT_INT64", Kind::ALIGNMENT_INT64),
    Child("FALIGNMENT_LONG", Kind::ALIGNMENT_LONG),
    EitherChild("FALIGNMENT_WORD", Kind::ALIGNMENT_WORD, Kind::IDENTIFICATION),
    Child("FAXIS_PTS_4", Kind::AXIS_PTS_4),
    Child("FAXIS_PTS_5", Kind::AXIS_PTS_5),
    Child("FAXIS_PTS_X", Kind::AXIS_PTS_X),
    Child("FAXIS_PTS_Y", Kind::AXIS_PTS_Y),
    Child("FAXIS_PTS_Z", Kind::AXIS_PTS_Z),
    Child("FAXIS_RESCALE_4", Kind::AXIS_RESCALE_4),
    Child("FAXIS_RESCALE_5", Kind::AXIS_RESCALE_5),
    Child("FAXIS_RESCALE_X", Kind::AXIS_RESCALE_X),
    Child("FAXIS_RESCALE_Y", Kind::AXIS_RESCALE_Y),
    Child("FAXIS_RESCALE_Z", Kind::AXIS_RESCALE_Z),
    Child("FDIST_OP_4", Kind::DIST_OP_4),
    Child("FDIST_OP_5", Kind::DIST_OP_5),
    Child("FDIST_OP_X", Kind::DIST_OP_X),
    Child("FDIST_OP_Y", Kind::DIST_OP_Y),
    Child("FDIST_OP_Z", Kind::DIST_OP_Z),
    Child("FFIX_NO_AXIS_PTS_4", Kind::FIX_NO_AXIS_PTS_4),
    Child("FFIX_NO_AXIS_PTS_5", Kind::FIX_NO_AXIS_PTS_5),
    Child("FFIX_NO_AXIS_PTS_X", Kind::FIX_NO_AXIS_PTS_X),
    Child("FFIX_NO_AXIS_PTS_Y", Kind::FIX_NO_AXIS_PTS_Y),
    Child("FFIX_NO_AXIS_PTS_Z", Kind::FIX_NO_AXIS_PTS_Z),
    Child("FFNC_VALUES", Kind::FNC_VALUES),
    Never("FIDENTIFICATION"),
    Field("FNAME", Value<&VoA2LElementRecordLayout::NAME>()),
    Child("FNO_AXIS_PTS_4", Kind::NO_AXIS_PTS_4),
    Child("FNO_AXIS_PTS_5", Kind::NO_AXIS_PTS_5),
    Child("FNO_AXIS_PTS_X", Kind::NO_AXIS_PTS_X),
    Child("FNO_AXIS_PTS_Y", Kind::NO_AXIS_PTS_Y),
    Child("FNO_AXIS_PTS_Z", Kind::NO_AXIS_PTS_Z),
    Child("FNO_RESCALE_4", Kind::NO_RESCALE_4),
    Child("FNO_RESCALE_5", Kind::NO_RESCALE_5),
    Child("FNO_RESCALE_X", Kind::NO_RESCALE_X),
    Child("FNO_RESCALE_Y", Kind::NO_RESCALE_Y),
    Child("FNO_RESCALE_Z", Kind::NO_RESCALE_Z),
    Child("FOFFSET_4", Kind::OFFSET_4),
    Child("FOFFSET_5", Kind::OFFSET_5),
    Child("FOFFSET_X", Kind::OFFSET_X),
    Child("FOFFSET_Y", Kind::OFFSET_Y),
    Child("FOFFSET_Z", Kind::OFFSET_Z),
    Children("FRESERVED", Kind::RESERVED, kReserved),
    Child("FRIP_ADDR_4", Kind::RIP_ADDR_4),
    Child("FRIP_ADDR_5", Kind::RIP_ADDR_5),
    Child("FRIP_ADDR_W", Kind::RIP_ADDR_W),
    Child("FRIP_ADDR_X", Kind::RIP_ADDR_X),
    Child("FRIP_ADDR_Y", Kind::RIP_ADDR_Y),
    Child("FRIP_ADDR_Z", Kind::RIP_ADDR_Z),
    Child("FSHIFT_OP_4", Kind::SHIFT_OP_4),
    Child("FSHIFT_OP_5", Kind::SHIFT_OP_5),
    Child("FSHIFT_OP_X", Kind::SHIFT_OP_X),
    Child("FSHIFT_OP_Y", Kind::SHIFT_OP_Y),
    Child("FSHIFT_OP_Z", Kind::SHIFT_OP_Z),
    Child("FSRC_ADDR_4", Kind::SRC_ADDR_4),
    Child("FSRC_ADDR_5", Kind::SRC_ADDR_5),
    Child("FSRC_ADDR_X", Kind::SRC_ADDR_X),
    Child("FSRC_ADDR_Y", Kind::SRC_ADDR_Y),
    Child("FSRC_ADDR_Z", Kind::SRC_ADDR_Z),
    Flag("FSTATIC_ADDRESS_OFFSETS", Kind::STATIC_ADDRESS_OFFSETS),
    Flag("FSTATIC_RECORD_LAYOUT", Kind::STATIC_RECORD_LAYOUT),
};
inline constexpr ObjectTable kRecordLayout = MakeTable<kRecordLayoutRows>();

}  // namespace a2l::tables
