// SPDX-License-Identifier: MIT
//
// Properties with numbers. The first one that is missing or is not a number makes the property
// wrong; those behind it keep their defaults.
#pragma once

#include <algorithm>
#include <cstdint>

#include "a2l2json/elements/element_class.h"

#include "a2l2json/names_begin.h"

namespace a2l {

/// Address of the identification of the program version.
struct VoA2LElementAddrEPK final : detail::Property<VoA2LElementAddrEPK, ElementKind::ADDR_EPK> {
  std::uint32_t ADDR_EPK = 0;
  static constexpr Parameter parameters[] = {Hex<&Self::ADDR_EPK>};
};

/// Alignment of bytes, in bytes.
struct VoA2LElementAlignmentByte final
    : detail::Property<VoA2LElementAlignmentByte, ElementKind::ALIGNMENT_BYTE> {
  std::uint32_t ALIGNMENT_BYTE = 1;
  static constexpr Parameter parameters[] = {Unsigned<&Self::ALIGNMENT_BYTE>};
};

/// Alignment of 16-bit floats, in bytes.
struct VoA2LElementAlignmentFloat16IEEE final
    : detail::Property<VoA2LElementAlignmentFloat16IEEE, ElementKind::ALIGNMENT_FLOAT16_IEEE> {
  std::uint32_t ALIGNMENT_FLOAT16_IEEE = 2;
  static constexpr Parameter parameters[] = {Unsigned<&Self::ALIGNMENT_FLOAT16_IEEE>};
  static constexpr std::uint32_t revision = kRevision171;
};

/// Alignment of 32-bit floats, in bytes.
struct VoA2LElementAlignmentFloat32IEEE final
    : detail::Property<VoA2LElementAlignmentFloat32IEEE, ElementKind::ALIGNMENT_FLOAT32_IEEE> {
  std::uint32_t ALIGNMENT_FLOAT32_IEEE = 4;
  static constexpr Parameter parameters[] = {Unsigned<&Self::ALIGNMENT_FLOAT32_IEEE>};
};

/// Alignment of 64-bit floats, in bytes.
struct VoA2LElementAlignmentFloat64IEEE final
    : detail::Property<VoA2LElementAlignmentFloat64IEEE, ElementKind::ALIGNMENT_FLOAT64_IEEE> {
  std::uint32_t ALIGNMENT_FLOAT64_IEEE = 8;
  static constexpr Parameter parameters[] = {Unsigned<&Self::ALIGNMENT_FLOAT64_IEEE>};
};

/// Alignment of 64-bit integers, in bytes.
struct VoA2LElementAlignmentInt64 final
    : detail::Property<VoA2LElementAlignmentInt64, ElementKind::ALIGNMENT_INT64> {
  std::uint32_t ALIGNMENT_INT64 = 8;
  static constexpr Parameter parameters[] = {Unsigned<&Self::ALIGNMENT_INT64>};
};

/// Alignment of 32-bit integers, in bytes.
struct VoA2LElementAlignmentLong final
    : detail::Property<VoA2LElementAlignmentLong, ElementKind::ALIGNMENT_LONG> {
  std::uint32_t ALIGNMENT_LONG = 4;
  static constexpr Parameter parameters[] = {Unsigned<&Self::ALIGNMENT_LONG>};
};

/// Alignment of 16-bit integers, in bytes.
struct VoA2LElementAlignmentWord final
    : detail::Property<VoA2LElementAlignmentWord, ElementKind::ALIGNMENT_WORD> {
  std::uint32_t ALIGNMENT_WORD = 2;
  static constexpr Parameter parameters[] = {Unsigned<&Self::ALIGNMENT_WORD>};
};

/// Number of values of a measurement; at most 32767.
struct VoA2LElementArraySize final
    : detail::Property<VoA2LElementArraySize, ElementKind::ARRAY_SIZE> {
  std::uint32_t ARRAY_SIZE = 0;
  static constexpr Parameter parameters[] = {Unsigned<&Self::ARRAY_SIZE>};

  bool TakeParameters(TreeStore& store, TokenReader& tokens) override {
    const bool ok = Property::TakeParameters(store, tokens);
    ARRAY_SIZE = std::min(ARRAY_SIZE, std::uint32_t{32767});
    return ok;
  }
};

/// Bits of the raw value that belong to an object.
struct VoA2LElementBitMask final : detail::Property<VoA2LElementBitMask, ElementKind::BIT_MASK> {
  std::uint64_t BIT_MASK = 0;
  static constexpr Parameter parameters[] = {Hex<&Self::BIT_MASK>};
};

/// Word size of the processor, in bits.
struct VoA2LElementDataSize final : detail::Property<VoA2LElementDataSize, ElementKind::DATA_SIZE> {
  std::uint32_t DATA_SIZE = 0;
  static constexpr Parameter parameters[] = {Unsigned<&Self::DATA_SIZE>};
};

/// Number for values that a conversion table does not list.
struct VoA2LElementDefaultValueNumeric final
    : detail::Property<VoA2LElementDefaultValueNumeric, ElementKind::DEFAULT_VALUE_NUMERIC> {
  double DEFAULT_VALUE_NUMERIC = 0;
  static constexpr Parameter parameters[] = {Real<&Self::DEFAULT_VALUE_NUMERIC>};
};

/// Where a measurement lies in the control unit's memory.
struct VoA2LElementECUAddress final
    : detail::Property<VoA2LElementECUAddress, ElementKind::ECU_ADDRESS> {
  std::uint32_t ECU_ADDRESS = 0;
  static constexpr Parameter parameters[] = {Hex<&Self::ECU_ADDRESS>};
};

/// What is needed beside the address to find an object.
struct VoA2LElementECUAddressExtension final
    : detail::Property<VoA2LElementECUAddressExtension, ElementKind::ECU_ADDRESS_EXTENSION> {
  std::int32_t ECU_ADDRESS_EXTENSION = 0;
  static constexpr Parameter parameters[] = {Signed<&Self::ECU_ADDRESS_EXTENSION>};
};

/// Offset from addresses in the file to those in the control unit. A negative one is written
/// with the minus sign behind the 0x.
struct VoA2LElementECUCalibrationOffset final
    : detail::Property<VoA2LElementECUCalibrationOffset, ElementKind::ECU_CALIBRATION_OFFSET> {
  std::int32_t ECU_CALIBRATION_OFFSET = 0;
  static constexpr Parameter parameters[] = {Hex<&Self::ECU_CALIBRATION_OFFSET>};
};

/// Bits of the raw value that mark it as wrong.
struct VoA2LElementErrorMask final
    : detail::Property<VoA2LElementErrorMask, ElementKind::ERROR_MASK> {
  std::uint64_t ERROR_MASK = 0;
  static constexpr Parameter parameters[] = {Hex<&Self::ERROR_MASK>};
};

/// Positions to shift the raw value to the left.
struct VoA2LElementLeftShift final
    : detail::Property<VoA2LElementLeftShift, ElementKind::LEFT_SHIFT> {
  std::uint32_t LEFT_SHIFT = 0;
  static constexpr Parameter parameters[] = {Unsigned<&Self::LEFT_SHIFT>};
};

/// Largest gradient of an axis.
struct VoA2LElementMaxGrad final : detail::Property<VoA2LElementMaxGrad, ElementKind::MAX_GRAD> {
  double MAX_GRAD = 0;
  static constexpr Parameter parameters[] = {Real<&Self::MAX_GRAD>};
};

/// Number of interfaces of the control unit.
struct VoA2LElementNoOfInterfaces final
    : detail::Property<VoA2LElementNoOfInterfaces, ElementKind::NO_OF_INTERFACES> {
  std::uint32_t NO_OF_INTERFACES = 0;
  static constexpr Parameter parameters[] = {Unsigned<&Self::NO_OF_INTERFACES>};
};

/// Number of values or characters of a characteristic.
struct VoA2LElementNumber final : detail::Property<VoA2LElementNumber, ElementKind::NUMBER> {
  std::uint32_t NUMBER = 0;
  static constexpr Parameter parameters[] = {Unsigned<&Self::NUMBER>};
};

/// Positions to shift the raw value to the right.
struct VoA2LElementRightShift final
    : detail::Property<VoA2LElementRightShift, ElementKind::RIGHT_SHIFT> {
  std::uint32_t RIGHT_SHIFT = 0;
  static constexpr Parameter parameters[] = {Unsigned<&Self::RIGHT_SHIFT>};
};

/// Step for changing a value.
struct VoA2LElementStepSize final : detail::Property<VoA2LElementStepSize, ElementKind::STEP_SIZE> {
  double STEP_SIZE = 0;
  static constexpr Parameter parameters[] = {Real<&Self::STEP_SIZE>};
};

/// Version of the A2ML language in the file.
struct VoA2LElementA2MLVersion final
    : detail::Property<VoA2LElementA2MLVersion, ElementKind::A2ML_VERSION> {
  std::uint32_t VERSION_NO = 0;
  std::uint32_t UPGRADE_NO = 0;
  static constexpr Parameter parameters[] = {
      Unsigned<&Self::VERSION_NO>,
      Unsigned<&Self::UPGRADE_NO>,
  };
};

/// Version of the ASAP2 standard that the file follows.
struct VoA2LElementASAP2Version final
    : detail::Property<VoA2LElementASAP2Version, ElementKind::ASAP2_VERSION> {
  std::uint32_t VERSION_NO = 0;
  std::uint32_t UPGRADE_NO = 0;
  static constexpr Parameter parameters[] = {
      Unsigned<&Self::VERSION_NO>,
      Unsigned<&Self::UPGRADE_NO>,
  };
};

/// Fastest rate at which an object changes.
struct VoA2LElementMaxRefresh final
    : detail::Property<VoA2LElementMaxRefresh, ElementKind::MAX_REFRESH> {
  std::uint32_t SCALING_UNIT = 0;
  std::uint32_t RATE = 0;
  static constexpr Parameter parameters[] = {Unsigned<&Self::SCALING_UNIT>, Unsigned<&Self::RATE>};
};

/// Coefficients of a rational function.
struct VoA2LElementCoeffs final : detail::Property<VoA2LElementCoeffs, ElementKind::COEFFS> {
  double A = 0;
  double B = 0;
  double C = 0;
  double D = 0;
  double E = 0;
  double F = 0;
  static constexpr Parameter parameters[] = {
      Real<&Self::A>, Real<&Self::B>, Real<&Self::C>,
      Real<&Self::D>, Real<&Self::E>, Real<&Self::F>,
  };
};

/// Coefficients of a linear function.
struct VoA2LElementCoeffsLinear final
    : detail::Property<VoA2LElementCoeffsLinear, ElementKind::COEFFS_LINEAR> {
  double A = 0;
  double B = 0;
  static constexpr Parameter parameters[] = {Real<&Self::A>, Real<&Self::B>};
};

/// Wider limits for experts.
struct VoA2LElementExtendedLimits final
    : detail::Property<VoA2LElementExtendedLimits, ElementKind::EXTENDED_LIMITS> {
  double LOWER_LIMIT = 0;
  double UPPER_LIMIT = 0;
  static constexpr Parameter parameters[] = {Real<&Self::LOWER_LIMIT>, Real<&Self::UPPER_LIMIT>};
};

/// Limits that replace those of the type.
struct VoA2LElementLimits final : detail::Property<VoA2LElementLimits, ElementKind::LIMITS> {
  double LOWER_LIMIT = 0;
  double UPPER_LIMIT = 0;
  static constexpr Parameter parameters[] = {Real<&Self::LOWER_LIMIT>, Real<&Self::UPPER_LIMIT>};
  static constexpr std::uint32_t revision = kRevision171;
};

/// Linear relation to the unit that is referred to.
struct VoA2LElementUnitConversion final
    : detail::Property<VoA2LElementUnitConversion, ElementKind::UNIT_CONVERSION> {
  double GRADIENT = 0;
  double OFFSET = 0;
  static constexpr Parameter parameters[] = {Real<&Self::GRADIENT>, Real<&Self::OFFSET>};
};

/// Axis points as powers of two: offset, shift, number of points.
struct VoA2LElementFixAxisPar final
    : detail::Property<VoA2LElementFixAxisPar, ElementKind::FIX_AXIS_PAR> {
  std::int32_t OFFSET = 0;
  std::int32_t SHIFT = 0;
  std::uint32_t NUMBERAPO = 0;
  static constexpr Parameter parameters[] = {
      Signed<&Self::OFFSET>,
      Signed<&Self::SHIFT>,
      Unsigned<&Self::NUMBERAPO>,
  };
};

/// Evenly spaced axis points: offset, distance, number of points.
struct VoA2LElementFixAxisParDist final
    : detail::Property<VoA2LElementFixAxisParDist, ElementKind::FIX_AXIS_PAR_DIST> {
  double OFFSET = 0;
  double DISTANCE = 0;
  std::uint32_t NUMBERAPO = 0;
  static constexpr Parameter parameters[] = {
      Real<&Self::OFFSET>,
      Real<&Self::DISTANCE>,
      Unsigned<&Self::NUMBERAPO>,
  };
};

/// Exponents of the seven base units.
struct VoA2LElementSIExponents final
    : detail::Property<VoA2LElementSIExponents, ElementKind::SI_EXPONENTS> {
  std::int32_t LENGTH = 0;
  std::int32_t MASS = 0;
  std::int32_t TIME = 0;
  std::int32_t ELECTRIC_CURRENT = 0;
  std::int32_t TEMPERATURE = 0;
  std::int32_t AMOUNT_OF_SUBSTANCE = 0;
  std::int32_t LUMINOUS_INTENSITY = 0;
  static constexpr Parameter parameters[] = {
      Signed<&Self::LENGTH>,
      Signed<&Self::MASS>,
      Signed<&Self::TIME>,
      Signed<&Self::ELECTRIC_CURRENT>,
      Signed<&Self::TEMPERATURE>,
      Signed<&Self::AMOUNT_OF_SUBSTANCE>,
      Signed<&Self::LUMINOUS_INTENSITY>,
  };
};

/// Name of an object in the linker map and an offset to it.
struct VoA2LElementSymbolLink final
    : detail::Property<VoA2LElementSymbolLink, ElementKind::SYMBOL_LINK> {
  std::string_view SYMBOL_NAME;
  std::int32_t OFFSET = 0;
  static constexpr Parameter parameters[] = {Text<&Self::SYMBOL_NAME>, Signed<&Self::OFFSET>};
};

}  // namespace a2l

#include "a2l2json/names_end.h"
