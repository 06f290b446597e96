// SPDX-License-Identifier: MIT
//
// Properties with a word of an enumeration. The word may be part of a longer one, and the words
// are tried in the order of the tables: NO_CALIBRATION and OFFLINE_CALIBRATION are therefore
// read as CALIBRATION. Code 0 has no word and writes nothing, except in ADDRESS_TYPE, where it is
// PBYTE.
#pragma once

#include <cstdint>

#include "a2l2json/elements/element_class.h"
#include "a2l2json/model/value_sets.h"

#include "a2l2json/names_begin.h"

namespace a2l {

/// Order of the bytes in memory. An unknown word is wrong.
struct VoA2LElementByteOrder final
    : detail::Property<VoA2LElementByteOrder, ElementKind::BYTE_ORDER> {
  ByteOrder BYTE_ORDER{};
  /// BYTE_ORDER, for files where that is a macro; see names_begin.h.
  [[nodiscard]] auto BYTE_ORDER_() const { return BYTE_ORDER; }
  static constexpr Parameter parameters[] = {RequiredWord<&Self::BYTE_ORDER>};
};

/// Whether an object may be calibrated. An unknown word is wrong.
struct VoA2LElementCalibrationAccess final
    : detail::Property<VoA2LElementCalibrationAccess, ElementKind::CALIBRATION_ACCESS> {
  CalibrationAccess CALIBRATION_ACCESS{};
  static constexpr Parameter parameters[] = {RequiredWord<&Self::CALIBRATION_ACCESS>};
};

/// How the points of an axis are stored.
struct VoA2LElementDeposit final : detail::Property<VoA2LElementDeposit, ElementKind::DEPOSIT> {
  Deposit DEPOSIT{};
  static constexpr Parameter parameters[] = {Word<&Self::DEPOSIT>};
};

/// Order of the values of an array. A missing or unknown word is read as UNKNOWN.
struct VoA2LElementLayout final : detail::Property<VoA2LElementLayout, ElementKind::LAYOUT> {
  Layout LAYOUT = Layout::ROW_DIR;
  static constexpr Parameter parameters[] = {Word<&Self::LAYOUT>};
};

/// How the points of an axis follow each other.
struct VoA2LElementMonotony final : detail::Property<VoA2LElementMonotony, ElementKind::MONOTONY> {
  Monotony MONOTONY{};
  static constexpr Parameter parameters[] = {Word<&Self::MONOTONY>};
};

/// How variant-coded objects are named.
struct VoA2LElementVarNaming final
    : detail::Property<VoA2LElementVarNaming, ElementKind::VAR_NAMING> {
  VarNaming VAR_NAMING{};
  static constexpr Parameter parameters[] = {Word<&Self::VAR_NAMING>};
};

/// How an object is addressed.
struct VoA2LElementAddressType final
    : detail::Property<VoA2LElementAddressType, ElementKind::ADDRESS_TYPE> {
  AddrType ADDRESS_TYPE = AddrType::DIRECT;
  static constexpr Parameter parameters[] = {Word<&Self::ADDRESS_TYPE>};
  static constexpr std::uint32_t revision = kRevision171;
};

}  // namespace a2l

#include "a2l2json/names_end.h"
