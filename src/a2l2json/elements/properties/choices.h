// SPDX-License-Identifier: MIT
//
// Properties with a word of an enumeration. The word may be part of a longer one, and the words
// are tried in the order of the tables: NO_CALIBRATION and OFFLINE_CALIBRATION are therefore
// read as CALIBRATION. Code 0 is no word and writes nothing, but in ADDRESS_TYPE, where it is
// PBYTE.
#pragma once

#include <cstdint>

#include "a2l2json/elements/element_class.h"
#include "a2l2json/model/value_sets.h"

namespace a2l {

namespace words {

inline constexpr Word kByteOrderWords[] = {
    {1, "LITTLE_ENDIAN"}, {2, "BIG_ENDIAN"}, {3, "MSB_LAST"}, {4, "MSB_FIRST"}};
inline constexpr WordTable kByteOrder{kByteOrderWords, 0};
inline constexpr Word kCalibrationAccessWords[] = {{1, "CALIBRATION"},
                                                   {2, "NO_CALIBRATION"},
                                                   {3, "NOT_IN_MCD_SYSTEM"},
                                                   {4, "OFFLINE_CALIBRATION"}};
inline constexpr WordTable kCalibrationAccess{kCalibrationAccessWords, 0};
inline constexpr Word kDepositWords[] = {{1, "ABSOLUTE"}, {2, "DIFFERENCE"}};
inline constexpr WordTable kDeposit{kDepositWords, 0};
inline constexpr Word kLayoutWords[] = {{1, "ROW_DIR"}, {2, "COLUMN_DIR"}};
inline constexpr WordTable kLayout{kLayoutWords, 0};
inline constexpr Word kMonotonyWords[] = {
    {1, "MON_DECREASE"}, {2, "MON_INCREASE"}, {3, "STRICT_DECREASE"}, {4, "STRICT_INCREASE"},
    {5, "MONOTONOUS"},   {6, "STRICT_MON"},   {7, "NOT_MON"}};
inline constexpr WordTable kMonotony{kMonotonyWords, 0};
inline constexpr Word kVarNamingWords[] = {{1, "NUMERIC"}};
inline constexpr WordTable kVarNaming{kVarNamingWords, 0};

}  // namespace words

/// Order of the bytes in memory. An unknown word is wrong.
struct VoA2LElementByteOrder final : Property<VoA2LElementByteOrder, Kind::BYTE_ORDER> {
  std::uint32_t BYTE_ORDER = 0;
  static constexpr auto parameters = Parameters(Choice(&Self::BYTE_ORDER, words::kByteOrder, true));
  static constexpr std::string_view line = "BYTE_ORDER {0}";
};

/// Whether an object may be calibrated. An unknown word is wrong.
struct VoA2LElementCalibrationAccess final
    : Property<VoA2LElementCalibrationAccess, Kind::CALIBRATION_ACCESS> {
  std::uint32_t CALIBRATION_ACCESS = 0;
  static constexpr auto parameters =
      Parameters(Choice(&Self::CALIBRATION_ACCESS, words::kCalibrationAccess, true));
  static constexpr std::string_view line = "CALIBRATION_ACCESS {0}";
};

/// How the points of an axis are stored.
struct VoA2LElementDeposit final : Property<VoA2LElementDeposit, Kind::DEPOSIT> {
  std::uint32_t DEPOSIT = 0;
  static constexpr auto parameters = Parameters(Choice(&Self::DEPOSIT, words::kDeposit));
  static constexpr std::string_view line = "DEPOSIT {0}";
};

/// Order of the values of an array; without a word, or with an unknown one, neither.
struct VoA2LElementLayout final : Property<VoA2LElementLayout, Kind::LAYOUT> {
  std::uint32_t LAYOUT = 1;
  static constexpr auto parameters = Parameters(Choice(&Self::LAYOUT, words::kLayout));
  static constexpr std::string_view line = "LAYOUT {0}";
};

/// How the points of an axis follow each other.
struct VoA2LElementMonotony final : Property<VoA2LElementMonotony, Kind::MONOTONY> {
  std::uint32_t MONOTONY = 0;
  static constexpr auto parameters = Parameters(Choice(&Self::MONOTONY, words::kMonotony));
  static constexpr std::string_view line = "MONOTONY {0}";
};

/// How variant-coded objects are named.
struct VoA2LElementVarNaming final : Property<VoA2LElementVarNaming, Kind::VAR_NAMING> {
  std::uint32_t VAR_NAMING = 0;
  static constexpr auto parameters = Parameters(Choice(&Self::VAR_NAMING, words::kVarNaming));
  static constexpr std::string_view line = "VAR_NAMING {0}";
};

/// How an object is addressed.
struct VoA2LElementAddressType final : Property<VoA2LElementAddressType, Kind::ADDRESS_TYPE> {
  std::uint32_t ADDRESS_TYPE = 4;
  static constexpr auto parameters = Parameters(Choice(&Self::ADDRESS_TYPE, words::kAddrType));
  static constexpr std::string_view line = "ADDRESS_TYPE {0}";
  static constexpr auto revision = kRevision171;
};

}  // namespace a2l
