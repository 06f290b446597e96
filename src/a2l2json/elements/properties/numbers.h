// SPDX-License-Identifier: MIT
//
// Properties with numbers. The first one that is missing or is not a number makes the property
// wrong; those behind it keep their defaults.
#pragma once

#include <algorithm>
#include <cstdint>

#include "a2l2json/elements/element_class.h"

namespace a2l {

/// Address of the identification of the program version.
struct VoA2LElementAddrEPK final : Property<VoA2LElementAddrEPK, Kind::ADDR_EPK> {
  std::uint32_t ADDR_EPK = 0;
  static constexpr auto parameters = Parameters(Unsigned(&Self::ADDR_EPK));
  static constexpr std::string_view line = "ADDR_EPK 0x{0:X}";
};

/// Alignment of bytes, in bytes.
struct VoA2LElementAlignmentByte final : Property<VoA2LElementAlignmentByte, Kind::ALIGNMENT_BYTE> {
  std::uint32_t ALIGNMENT_BYTE = 1;
  static constexpr auto parameters = Parameters(Unsigned(&Self::ALIGNMENT_BYTE));
  static constexpr std::string_view line = "ALIGNMENT_BYTE {0:d}";
};

/// Alignment of 16-bit floats, in bytes.
struct VoA2LElementAlignmentFloat16IEEE final
    : Property<VoA2LElementAlignmentFloat16IEEE, Kind::ALIGNMENT_FLOAT16_IEEE> {
  std::uint32_t ALIGNMENT_FLOAT16_IEEE = 2;
  static constexpr auto parameters = Parameters(Unsigned(&Self::ALIGNMENT_FLOAT16_IEEE));
  static constexpr std::string_view line = "ALIGNMENT_FLOAT16_IEEE {0:d}";
  static constexpr auto revision = kRevision171;
};

/// Alignment of 32-bit floats, in bytes.
struct VoA2LElementAlignmentFloat32IEEE final
    : Property<VoA2LElementAlignmentFloat32IEEE, Kind::ALIGNMENT_FLOAT32_IEEE> {
  std::uint32_t ALIGNMENT_FLOAT32_IEEE = 4;
  static constexpr auto parameters = Parameters(Unsigned(&Self::ALIGNMENT_FLOAT32_IEEE));
  static constexpr std::string_view line = "ALIGNMENT_FLOAT32_IEEE {0:d}";
};

/// Alignment of 64-bit floats, in bytes.
struct VoA2LElementAlignmentFloat64IEEE final
    : Property<VoA2LElementAlignmentFloat64IEEE, Kind::ALIGNMENT_FLOAT64_IEEE> {
  std::uint32_t ALIGNMENT_FLOAT64_IEEE = 8;
  static constexpr auto parameters = Parameters(Unsigned(&Self::ALIGNMENT_FLOAT64_IEEE));
  static constexpr std::string_view line = "ALIGNMENT_FLOAT64_IEEE {0:d}";
};

/// Alignment of 64-bit integers, in bytes.
struct VoA2LElementAlignmentInt64 final
    : Property<VoA2LElementAlignmentInt64, Kind::ALIGNMENT_INT64> {
  std::uint32_t ALIGNMENT_INT64 = 8;
  static constexpr auto parameters = Parameters(Unsigned(&Self::ALIGNMENT_INT64));
  static constexpr std::string_view line = "ALIGNMENT_INT64 {0:d}";
};

/// Alignment of 32-bit integers, in bytes.
struct VoA2LElementAlignmentLong final : Property<VoA2LElementAlignmentLong, Kind::ALIGNMENT_LONG> {
  std::uint32_t ALIGNMENT_LONG = 4;
  static constexpr auto parameters = Parameters(Unsigned(&Self::ALIGNMENT_LONG));
  static constexpr std::string_view line = "ALIGNMENT_LONG {0:d}";
};

/// Alignment of 16-bit integers, in bytes.
struct VoA2LElementAlignmentWord final : Property<VoA2LElementAlignmentWord, Kind::ALIGNMENT_WORD> {
  std::uint32_t ALIGNMENT_WORD = 2;
  static constexpr auto parameters = Parameters(Unsigned(&Self::ALIGNMENT_WORD));
  static constexpr std::string_view line = "ALIGNMENT_WORD {0:d}";
};

/// Number of values of a measurement; at most 32767.
struct VoA2LElementArraySize final : Property<VoA2LElementArraySize, Kind::ARRAY_SIZE> {
  std::uint32_t ARRAY_SIZE = 0;
  static constexpr auto parameters = Parameters(Unsigned(&Self::ARRAY_SIZE));
  static constexpr std::string_view line = "ARRAY_SIZE {0:d}";

  bool ParseParameters(std::string_view& text) override {
    const bool ok = Property::ParseParameters(text);
    ARRAY_SIZE = std::min(ARRAY_SIZE, std::uint32_t{32767});
    return ok;
  }
};

/// Bits of the raw value that belong to an object.
struct VoA2LElementBitMask final : Property<VoA2LElementBitMask, Kind::BIT_MASK> {
  std::uint64_t BIT_MASK = 0;
  static constexpr auto parameters = Parameters(Unsigned64(&Self::BIT_MASK));
  static constexpr std::string_view line = "BIT_MASK 0x{0:X}";
};

/// Word size of the processor, in bits.
struct VoA2LElementDataSize final : Property<VoA2LElementDataSize, Kind::DATA_SIZE> {
  std::uint32_t DATA_SIZE = 0;
  static constexpr auto parameters = Parameters(Unsigned(&Self::DATA_SIZE));
  static constexpr std::string_view line = "DATA_SIZE {0:d}";
};

/// Number for values that a conversion table does not list.
struct VoA2LElementDefaultValueNumeric final
    : Property<VoA2LElementDefaultValueNumeric, Kind::DEFAULT_VALUE_NUMERIC> {
  double DEFAULT_VALUE_NUMERIC = 0;
  static constexpr auto parameters = Parameters(Real(&Self::DEFAULT_VALUE_NUMERIC));
  static constexpr std::string_view line = "DEFAULT_VALUE_NUMERIC {0}";
};

/// Where a measurement lies in the control unit's memory.
struct VoA2LElementECUAddress final : Property<VoA2LElementECUAddress, Kind::ECU_ADDRESS> {
  std::uint32_t ECU_ADDRESS = 0;
  static constexpr auto parameters = Parameters(Unsigned(&Self::ECU_ADDRESS));
  static constexpr std::string_view line = "ECU_ADDRESS 0x{0:X}";
};

/// What is needed beside the address to find an object.
struct VoA2LElementECUAddressExtension final
    : Property<VoA2LElementECUAddressExtension, Kind::ECU_ADDRESS_EXTENSION> {
  std::int32_t ECU_ADDRESS_EXTENSION = 0;
  static constexpr auto parameters = Parameters(Signed(&Self::ECU_ADDRESS_EXTENSION));
  static constexpr std::string_view line = "ECU_ADDRESS_EXTENSION {0:d}";
};

/// Offset from addresses in the file to those in the control unit. A negative one is written
/// with the minus sign behind the 0x.
struct VoA2LElementECUCalibrationOffset final
    : Property<VoA2LElementECUCalibrationOffset, Kind::ECU_CALIBRATION_OFFSET> {
  std::int32_t ECU_CALIBRATION_OFFSET = 0;
  static constexpr auto parameters = Parameters(Signed(&Self::ECU_CALIBRATION_OFFSET));
  static constexpr std::string_view line = "ECU_CALIBRATION_OFFSET 0x{0:X}";
};

/// Bits of the raw value that mark it as wrong.
struct VoA2LElementErrorMask final : Property<VoA2LElementErrorMask, Kind::ERROR_MASK> {
  std::uint64_t ERROR_MASK = 0;
  static constexpr auto parameters = Parameters(Unsigned64(&Self::ERROR_MASK));
  static constexpr std::string_view line = "ERROR_MASK 0x{0:X}";
};

/// Positions to shift the raw value to the left.
struct VoA2LElementLeftShift final : Property<VoA2LElementLeftShift, Kind::LEFT_SHIFT> {
  std::uint32_t LEFT_SHIFT = 0;
  static constexpr auto parameters = Parameters(Unsigned(&Self::LEFT_SHIFT));
  static constexpr std::string_view line = "LEFT_SHIFT {0:d}";
};

/// Largest gradient of an axis.
struct VoA2LElementMaxGrad final : Property<VoA2LElementMaxGrad, Kind::MAX_GRAD> {
  double MAX_GRAD = 0;
  static constexpr auto parameters = Parameters(Real(&Self::MAX_GRAD));
  static constexpr std::string_view line = "MAX_GRAD {0}";
};

/// Number of interfaces of the control unit.
struct VoA2LElementNoOfInterfaces final
    : Property<VoA2LElementNoOfInterfaces, Kind::NO_OF_INTERFACES> {
  std::uint32_t NO_OF_INTERFACES = 0;
  static constexpr auto parameters = Parameters(Unsigned(&Self::NO_OF_INTERFACES));
  static constexpr std::string_view line = "NO_OF_INTERFACES {0:d}";
};

/// Number of values or characters of a characteristic.
struct VoA2LElementNumber final : Property<VoA2LElementNumber, Kind::NUMBER> {
  std::uint32_t NUMBER = 0;
  static constexpr auto parameters = Parameters(Unsigned(&Self::NUMBER));
  static constexpr std::string_view line = "NUMBER {0:d}";
};

/// Positions to shift the raw value to the right.
struct VoA2LElementRightShift final : Property<VoA2LElementRightShift, Kind::RIGHT_SHIFT> {
  std::uint32_t RIGHT_SHIFT = 0;
  static constexpr auto parameters = Parameters(Unsigned(&Self::RIGHT_SHIFT));
  static constexpr std::string_view line = "RIGHT_SHIFT {0:d}";
};

/// Step for changing a value.
struct VoA2LElementStepSize final : Property<VoA2LElementStepSize, Kind::STEP_SIZE> {
  double STEP_SIZE = 0;
  static constexpr auto parameters = Parameters(Real(&Self::STEP_SIZE));
  static constexpr std::string_view line = "STEP_SIZE {0}";
};

/// Version of the A2ML language in the file.
struct VoA2LElementA2MLVersion final : Property<VoA2LElementA2MLVersion, Kind::A2ML_VERSION> {
  std::uint32_t VERSION_NO = 0;
  std::uint32_t UPGRADE_NO = 0;
  static constexpr auto parameters =
      Parameters(Unsigned(&Self::VERSION_NO), Unsigned(&Self::UPGRADE_NO));
  static constexpr std::string_view line = "A2ML_VERSION {0:d} {1:d}";
};

/// Version of the ASAP2 standard that the file follows.
struct VoA2LElementASAP2Version final : Property<VoA2LElementASAP2Version, Kind::ASAP2_VERSION> {
  std::uint32_t VERSION_NO = 0;
  std::uint32_t UPGRADE_NO = 0;
  static constexpr auto parameters =
      Parameters(Unsigned(&Self::VERSION_NO), Unsigned(&Self::UPGRADE_NO));
  static constexpr std::string_view line = "ASAP2_VERSION {0:d} {1:d}";
};

/// Fastest rate at which an object changes.
struct VoA2LElementMaxRefresh final : Property<VoA2LElementMaxRefresh, Kind::MAX_REFRESH> {
  std::uint32_t SCALING_UNIT = 0;
  std::uint32_t RATE = 0;
  static constexpr auto parameters =
      Parameters(Unsigned(&Self::SCALING_UNIT), Unsigned(&Self::RATE));
  static constexpr std::string_view line = "MAX_REFRESH {0:d} {1:d}";
};

/// Coefficients of a rational function.
struct VoA2LElementCoeffs final : Property<VoA2LElementCoeffs, Kind::COEFFS> {
  double A = 0;
  double B = 0;
  double C = 0;
  double D = 0;
  double E = 0;
  double F = 0;
  static constexpr auto parameters = Parameters(Real(&Self::A), Real(&Self::B), Real(&Self::C),
                                                Real(&Self::D), Real(&Self::E), Real(&Self::F));
  static constexpr std::string_view line = "COEFFS {0} {1} {2} {3} {4} {5}";
};

/// Coefficients of a linear function.
struct VoA2LElementCoeffsLinear final : Property<VoA2LElementCoeffsLinear, Kind::COEFFS_LINEAR> {
  double A = 0;
  double B = 0;
  static constexpr auto parameters = Parameters(Real(&Self::A), Real(&Self::B));
  static constexpr std::string_view line = "COEFFS_LINEAR {0} {1}";
};

/// Wider limits for experts.
struct VoA2LElementExtendedLimits final
    : Property<VoA2LElementExtendedLimits, Kind::EXTENDED_LIMITS> {
  double LOWER_LIMIT = 0;
  double UPPER_LIMIT = 0;
  static constexpr auto parameters = Parameters(Real(&Self::LOWER_LIMIT), Real(&Self::UPPER_LIMIT));
  static constexpr std::string_view line = "EXTENDED_LIMITS {0} {1}";
};

/// Limits that replace those of the type.
struct VoA2LElementLimits final : Property<VoA2LElementLimits, Kind::LIMITS> {
  double LOWER_LIMIT = 0;
  double UPPER_LIMIT = 0;
  static constexpr auto parameters = Parameters(Real(&Self::LOWER_LIMIT), Real(&Self::UPPER_LIMIT));
  static constexpr std::string_view line = "LIMITS {0} {1}";
  static constexpr auto revision = kRevision171;
};

/// Linear relation to the unit that is referred to.
struct VoA2LElementUnitConversion final
    : Property<VoA2LElementUnitConversion, Kind::UNIT_CONVERSION> {
  double GRADIENT = 0;
  double OFFSET = 0;
  static constexpr auto parameters = Parameters(Real(&Self::GRADIENT), Real(&Self::OFFSET));
  static constexpr std::string_view line = "UNIT_CONVERSION {0} {1}";
};

/// Axis points as powers of two: offset, shift, number of points.
struct VoA2LElementFixAxisPar final : Property<VoA2LElementFixAxisPar, Kind::FIX_AXIS_PAR> {
  std::int32_t OFFSET = 0;
  std::int32_t SHIFT = 0;
  std::uint32_t NUMBERAPO = 0;
  static constexpr auto parameters =
      Parameters(Signed(&Self::OFFSET), Signed(&Self::SHIFT), Unsigned(&Self::NUMBERAPO));
  static constexpr std::string_view line = "FIX_AXIS_PAR {0} {1} {2:d}";
};

/// Evenly spaced axis points: offset, distance, number of points.
struct VoA2LElementFixAxisParDist final
    : Property<VoA2LElementFixAxisParDist, Kind::FIX_AXIS_PAR_DIST> {
  double OFFSET = 0;
  double DISTANCE = 0;
  std::uint32_t NUMBERAPO = 0;
  static constexpr auto parameters =
      Parameters(Real(&Self::OFFSET), Real(&Self::DISTANCE), Unsigned(&Self::NUMBERAPO));
  static constexpr std::string_view line = "FIX_AXIS_PAR_DIST {0} {1} {2:d}";
};

/// Exponents of the seven base units.
struct VoA2LElementSIExponents final : Property<VoA2LElementSIExponents, Kind::SI_EXPONENTS> {
  std::int32_t LENGTH = 0;
  std::int32_t MASS = 0;
  std::int32_t TIME = 0;
  std::int32_t ELECTRIC_CURRENT = 0;
  std::int32_t TEMPERATURE = 0;
  std::int32_t AMOUNT_OF_SUBSTANCE = 0;
  std::int32_t LUMINOUS_INTENSITY = 0;
  static constexpr auto parameters =
      Parameters(Signed(&Self::LENGTH), Signed(&Self::MASS), Signed(&Self::TIME),
                 Signed(&Self::ELECTRIC_CURRENT), Signed(&Self::TEMPERATURE),
                 Signed(&Self::AMOUNT_OF_SUBSTANCE), Signed(&Self::LUMINOUS_INTENSITY));
  static constexpr std::string_view line = "SI_EXPONENTS {0:d} {1:d} {2:d} {3:d} {4:d} {5:d} {6:d}";
};

/// Name of an object in the linker map and an offset to it.
struct VoA2LElementSymbolLink final : Property<VoA2LElementSymbolLink, Kind::SYMBOL_LINK> {
  std::string_view SYMBOL_NAME;
  std::int32_t OFFSET = 0;
  static constexpr auto parameters = Parameters(Text(&Self::SYMBOL_NAME), Signed(&Self::OFFSET));
  static constexpr std::string_view line = "SYMBOL_LINK {0} {1:d}";
};

}  // namespace a2l
