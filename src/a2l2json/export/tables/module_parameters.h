// SPDX-License-Identifier: MIT
//
// What a module says about the control unit as a whole.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "a2l2json/elements/blocks/other.h"
#include "a2l2json/elements/blocks/project.h"
#include "a2l2json/export/kind_forms.h"
#include "a2l2json/export/make_table.h"
#include "a2l2json/export/rows.h"
#include "a2l2json/export/tables/shared.h"

namespace a2l::tables {

inline constexpr Row kModCommonRows[] = {
    Child("FALIGNMENT_BYTE"),
    Child("FALIGNMENT_FLOAT16_IEEE"),
    Child("FALIGNMENT_FLOAT32_IEEE"),
    Child("FALIGNMENT_FLOAT64_IEEE"),
    Child("FALIGNMENT_INT64"),
    Child("FALIGNMENT_LONG"),
    Child("FALIGNMENT_WORD"),
    Child("FBYTE_ORDER"),
    Field<&VoA2LElementModCommon::COMMENT>("FCOMMENT"),
    Child("FDATA_SIZE"),
    Child("FDEPOSIT"),
    Child("FS_REC_LAYOUT"),
};
inline constexpr ObjectTable kModCommon = MakeTable<VoA2LElementModCommon, kModCommonRows>();

inline constexpr Row kCalibrationHandleRows[] = {
    JoinedField<&VoA2LElementCalibrationHandle::HANDLE>("FHANDLE"),
    Child("FHANDLE_TEXT", ElementKind::CALIBRATION_HANDLE_TEXT),
};
inline constexpr ObjectTable kCalibrationHandle =
    MakeTable<VoA2LElementCalibrationHandle, kCalibrationHandleRows>();

inline constexpr Row kCalibrationMethodRows[] = {
    Children("FCALIBRATION_HANDLE", kCalibrationHandle),
    Field<&VoA2LElementCalibrationMethod::METHOD>("FMETHOD"),
    Field<&VoA2LElementCalibrationMethod::VERSION>("FVERSION"),
};
inline constexpr ObjectTable kCalibrationMethod =
    MakeTable<VoA2LElementCalibrationMethod, kCalibrationMethodRows>();

inline constexpr Row kMemoryLayoutRows[] = {
    AddressField<&VoA2LElementMemoryLayout::ADDRESS>("FADDRESS"),
    Children("FIF_DATA", kIfData),
    JoinedField<&VoA2LElementMemoryLayout::OFFSET>("FOFFSET"),
    Field<&VoA2LElementMemoryLayout::PRG_TYPE>("FPRG_TYPE"),
    Field<&VoA2LElementMemoryLayout::SIZE>("FSIZE"),
};
inline constexpr ObjectTable kMemoryLayout =
    MakeTable<VoA2LElementMemoryLayout, kMemoryLayoutRows>();

inline constexpr Row kMemorySegmentRows[] = {
    AddressField<&VoA2LElementMemorySegment::ADDRESS>("FADDRESS"),
    Field<&VoA2LElementMemorySegment::ATTRIBUTE>("FATTRIBUTE"),
    Children("FIF_DATA", kIfData),
    Field<&VoA2LElementMemorySegment::LONG_IDENTIFIER>("FLONG_IDENTIFIER"),
    Field<&VoA2LElementMemorySegment::MEMORY_TYPE>("FMEMORY_TYPE"),
    Field<&VoA2LElementMemorySegment::NAME>("FNAME"),
    JoinedField<&VoA2LElementMemorySegment::OFFSET>("FOFFSET"),
    Field<&VoA2LElementMemorySegment::PRG_TYPE>("FPRG_TYPE"),
    Field<&VoA2LElementMemorySegment::SIZE>("FSIZE"),
};
inline constexpr ObjectTable kMemorySegment =
    MakeTable<VoA2LElementMemorySegment, kMemorySegmentRows>();

inline constexpr Row kSystemConstantRows[] = {
    Field<&VoA2LElementSystemConstant::NAME>("FNAME"),
    Field<&VoA2LElementSystemConstant::VALUE>("FVALUE"),
};
inline constexpr ObjectTable kSystemConstant =
    MakeTable<VoA2LElementSystemConstant, kSystemConstantRows>();

// All addresses of the identification in one text; nothing where there is none.
inline const Element* FindAddrEpk(const Element& modPar) {
  return FindFirst<ElementKind::ADDR_EPK>(modPar) != nullptr ? &modPar : nullptr;
}
inline constexpr ClassForm kAddrEpk = {BuiltTextForm{[](const Element& modPar, std::string& text) {
  std::vector<std::uint32_t> addresses;
  ForEachChild<&VoA2LElementAddrEPK::ADDR_EPK>(
      modPar, [&addresses](std::uint32_t address) { addresses.push_back(address); });
  AppendJoined(text, addresses);
}}};
inline constexpr Row kModParRows[] = {
    Found("FADDR_EPK", FindAddrEpk, kAddrEpk),
    Children("FCALIBRATION_METHOD", kCalibrationMethod),
    Field<&VoA2LElementModPar::COMMENT>("FCOMMENT"),
    Child("FCPU_TYPE"),
    Child("FCUSTOMER"),
    Child("FCUSTOMER_NO"),
    Child("FECU"),
    Child("FECU_CALIBRATION_OFFSET"),
    Child("FEPK"),
    Children("FMEMORY_LAYOUT", kMemoryLayout),
    Children("FMEMORY_SEGMENT", kMemorySegment),
    Child("FNO_OF_INTERFACES"),
    Child("FPHONE_NO"),
    Child("FSUPPLIER"),
    Children("FSYSTEM_CONSTANT", kSystemConstant),
    Child("FUSER"),
    Child("FVERSION"),
};
inline constexpr ObjectTable kModPar = MakeTable<VoA2LElementModPar, kModParRows>();

}  // namespace a2l::tables
