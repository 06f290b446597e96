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
#include "a2l2json/export/tables/shared.h"

namespace a2l::tables {

inline constexpr Row kModCommonRows[] = {
    Child("FALIGNMENT_BYTE", Kind::ALIGNMENT_BYTE),
    Child("FALIGNMENT_FLOAT16_IEEE", Kind::ALIGNMENT_FLOAT16_IEEE),
    Child("FALIGNMENT_FLOAT32_IEEE", Kind::ALIGNMENT_FLOAT32_IEEE),
    Child("FALIGNMENT_FLOAT64_IEEE", Kind::ALIGNMENT_FLOAT64_IEEE),
    Child("FALIGNMENT_INT64", Kind::ALIGNMENT_INT64),
    Child("FALIGNMENT_LONG", Kind::ALIGNMENT_LONG),
    Child("FALIGNMENT_WORD", Kind::ALIGNMENT_WORD),
    Child("FBYTE_ORDER", Kind::BYTE_ORDER),
    Field("FCOMMENT", Value<&VoA2LElementModCommon::COMMENT>()),
    Child("FDATA_SIZE", Kind::DATA_SIZE),
    Child("FDEPOSIT", Kind::DEPOSIT),
    Child("FS_REC_LAYOUT", Kind::S_REC_LAYOUT),
};
inline constexpr ObjectTable kModCommon = MakeTable<kModCommonRows>();

inline constexpr Row kCalibrationHandleRows[] = {
    Field("FHANDLE", Joined<&VoA2LElementCalibrationHandle::HANDLE>()),
    Child("FHANDLE_TEXT", Kind::CALIBRATION_HANDLE_TEXT),
};
inline constexpr ObjectTable kCalibrationHandle = MakeTable<kCalibrationHandleRows>();

inline constexpr Row kCalibrationMethodRows[] = {
    Children("FCALIBRATION_HANDLE", Kind::CALIBRATION_HANDLE, kCalibrationHandle),
    Field("FMETHOD", Value<&VoA2LElementCalibrationMethod::METHOD>()),
    Field("FVERSION", Value<&VoA2LElementCalibrationMethod::VERSION>()),
};
inline constexpr ObjectTable kCalibrationMethod = MakeTable<kCalibrationMethodRows>();

inline constexpr Row kMemoryLayoutRows[] = {
    Field("FADDRESS", AddressOf<&VoA2LElementMemoryLayout::ADDRESS>()),
    Children("FIF_DATA", Kind::IF_DATA, kIfData),
    Field("FOFFSET", Joined<&VoA2LElementMemoryLayout::OFFSET>()),
    Field("FPRG_TYPE", WordOf<&VoA2LElementMemoryLayout::PRG_TYPE, words::kLayoutProgramType>()),
    Field("FSIZE", Value<&VoA2LElementMemoryLayout::SIZE>()),
};
inline constexpr ObjectTable kMemoryLayout = MakeTable<kMemoryLayoutRows>();

inline constexpr Row kMemorySegmentRows[] = {
    Field("FADDRESS", AddressOf<&VoA2LElementMemorySegment::ADDRESS>()),
    Field("FATTRIBUTE", WordOf<&VoA2LElementMemorySegment::ATTRIBUTE, words::kMemoryAttribute>()),
    Children("FIF_DATA", Kind::IF_DATA, kIfData),
    Field("FLONG_IDENTIFIER", Value<&VoA2LElementMemorySegment::LONG_IDENTIFIER>()),
    Field("FMEMORY_TYPE", WordOf<&VoA2LElementMemorySegment::MEMORY_TYPE, words::kMemoryType>()),
    Field("FNAME", Value<&VoA2LElementMemorySegment::NAME>()),
    Field("FOFFSET", Joined<&VoA2LElementMemorySegment::OFFSET>()),
    Field("FPRG_TYPE", WordOf<&VoA2LElementMemorySegment::PRG_TYPE, words::kSegmentProgramType>()),
    Field("FSIZE", Value<&VoA2LElementMemorySegment::SIZE>()),
};
inline constexpr ObjectTable kMemorySegment = MakeTable<kMemorySegmentRows>();

inline constexpr Row kSystemConstantRows[] = {
    Field("FNAME", Value<&VoA2LElementSystemConstant::NAME>()),
    Field("FVALUE", Value<&VoA2LElementSystemConstant::VALUE>()),
};
inline constexpr ObjectTable kSystemConstant = MakeTable<kSystemConstantRows>();

// All addresses of the identification in one text; nothing where there is none.
inline const Element* FindAddrEpk(const Element& modPar) {
  for (const Element* child : modPar.children) {
    if (child->kind == Kind::ADDR_EPK) return &modPar;
  }
  return nullptr;
}
inline constexpr Form kAddrEpk = BuiltTextForm{[](const Element& modPar, std::string& text) {
  std::vector<std::uint32_t> addresses;
  for (const Element* child : modPar.children) {
    if (child->kind == Kind::ADDR_EPK) {
      addresses.push_back(FieldOf<&VoA2LElementAddrEPK::ADDR_EPK>(*child));
    }
  }
  AppendJoined(text, addresses);
}};
inline constexpr Row kModParRows[] = {
    Found("FADDR_EPK", FindAddrEpk, kAddrEpk),
    Children("FCALIBRATION_METHOD", Kind::CALIBRATION_METHOD, kCalibrationMethod),
    Field("FCOMMENT", Value<&VoA2LElementModPar::COMMENT>()),
    Child("FCPU_TYPE", Kind::CPU_TYPE),
    Child("FCUSTOMER", Kind::CUSTOMER),
    Child("FCUSTOMER_NO", Kind::CUSTOMER_NO),
    Child("FECU", Kind::ECU),
    Child("FECU_CALIBRATION_OFFSET", Kind::ECU_CALIBRATION_OFFSET),
    Child("FEPK", Kind::EPK),
    Children("FMEMORY_LAYOUT", Kind::MEMORY_LAYOUT, kMemoryLayout),
    Children("FMEMORY_SEGMENT", Kind::MEMORY_SEGMENT, kMemorySegment),
    Child("FNO_OF_INTERFACES", Kind::NO_OF_INTERFACES),
    Child("FPHONE_NO", Kind::PHONE_NO),
    Child("FSUPPLIER", Kind::SUPPLIER),
    Children("FSYSTEM_CONSTANT", Kind::SYSTEM_CONSTANT, kSystemConstant),
    Child("FUSER", Kind::USER),
    Child("FVERSION", Kind::VERSION),
};
inline constexpr ObjectTable kModPar = MakeTable<kModParRows>();

}  // namespace a2l::tables
