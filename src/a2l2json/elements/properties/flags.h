// SPDX-License-Identifier: MIT
//
// Properties without parameters: their presence is what they say.
#pragma once

#include "a2l2json/elements/element_class.h"

namespace a2l {

/// A structure is to be exchanged as a whole.
struct VoA2LElementConsistentExchange final
    : Property<VoA2LElementConsistentExchange, Kind::CONSISTENT_EXCHANGE> {
  static constexpr std::string_view line = "CONSISTENT_EXCHANGE";
  static constexpr auto revision = kRevision171;
};

/// Values are not to be interpolated.
struct VoA2LElementDiscrete final : Property<VoA2LElementDiscrete, Kind::DISCRETE> {
  static constexpr std::string_view line = "DISCRETE";
};

/// The outer values of an axis or a map must not be changed.
struct VoA2LElementGuardRails final : Property<VoA2LElementGuardRails, Kind::GUARD_RAILS> {
  static constexpr std::string_view line = "GUARD_RAILS";
};

/// An object must not be changed.
struct VoA2LElementReadOnly final : Property<VoA2LElementReadOnly, Kind::READ_ONLY> {
  static constexpr std::string_view line = "READ_ONLY";
};

/// A measurement may be written to.
struct VoA2LElementReadWrite final : Property<VoA2LElementReadWrite, Kind::READ_WRITE> {
  static constexpr std::string_view line = "READ_WRITE";
};

/// A group stands at the top of the group tree.
struct VoA2LElementRoot final : Property<VoA2LElementRoot, Kind::ROOT> {
  static constexpr std::string_view line = "ROOT";
};

/// The sign is extended after the bit operations.
struct VoA2LElementSignExtend final : Property<VoA2LElementSignExtend, Kind::SIGN_EXTEND> {
  static constexpr std::string_view line = "SIGN_EXTEND";
};

/// The addresses in a record do not depend on the number of points.
struct VoA2LElementStaticAddressOffsets final
    : Property<VoA2LElementStaticAddressOffsets, Kind::STATIC_ADDRESS_OFFSETS> {
  static constexpr std::string_view line = "STATIC_ADDRESS_OFFSETS";
  static constexpr auto revision = kRevision171;
};

/// A record keeps its size, whatever the number of points.
struct VoA2LElementStaticRecordLayout final
    : Property<VoA2LElementStaticRecordLayout, Kind::STATIC_RECORD_LAYOUT> {
  static constexpr std::string_view line = "STATIC_RECORD_LAYOUT";
};

}  // namespace a2l
