// SPDX-License-Identifier: MIT
//
// Properties without parameters: their presence is what they say.
#pragma once

#include "a2l2json/elements/element_class.h"

namespace a2l {

/// A structure is to be exchanged as a whole.
struct VoA2LElementConsistentExchange final
    : detail::Property<VoA2LElementConsistentExchange, ElementKind::CONSISTENT_EXCHANGE> {
  static constexpr std::uint32_t revision = kRevision171;
};

/// Values are not to be interpolated.
struct VoA2LElementDiscrete final : detail::Property<VoA2LElementDiscrete, ElementKind::DISCRETE> {
};

/// The outer values of an axis or a map must not be changed.
struct VoA2LElementGuardRails final
    : detail::Property<VoA2LElementGuardRails, ElementKind::GUARD_RAILS> {};

/// An object must not be changed.
struct VoA2LElementReadOnly final : detail::Property<VoA2LElementReadOnly, ElementKind::READ_ONLY> {
};

/// A measurement may be written to.
struct VoA2LElementReadWrite final
    : detail::Property<VoA2LElementReadWrite, ElementKind::READ_WRITE> {};

/// A group stands at the top of the group tree.
struct VoA2LElementRoot final : detail::Property<VoA2LElementRoot, ElementKind::ROOT> {};

/// The sign is extended after the bit operations.
struct VoA2LElementSignExtend final
    : detail::Property<VoA2LElementSignExtend, ElementKind::SIGN_EXTEND> {};

/// The addresses in a record do not depend on the number of points.
struct VoA2LElementStaticAddressOffsets final
    : detail::Property<VoA2LElementStaticAddressOffsets, ElementKind::STATIC_ADDRESS_OFFSETS> {
  static constexpr std::uint32_t revision = kRevision171;
};

/// A record keeps its size, whatever the number of points.
struct VoA2LElementStaticRecordLayout final
    : detail::Property<VoA2LElementStaticRecordLayout, ElementKind::STATIC_RECORD_LAYOUT> {};

}  // namespace a2l
