// SPDX-License-Identifier: MIT
#include "a2l2json/reader/element_factory.h"

#include <array>
#include <type_traits>

#include "a2l2json/elements/elements.h"
#include "a2l2json/model/keywords.h"

namespace a2l {
namespace {

using Creator = VoA2LElement* (*)(VoA2LElement& parent, ElementKind kind);

template <class Class>
VoA2LElement* Create(VoA2LElement& parent, [[maybe_unused]] ElementKind kind) {
  if constexpr (Class::kinds.size() > 1) {
    return parent.Store().Create<Class>(&parent, kind);
  } else {
    return parent.Store().Create<Class>(&parent);
  }
}

template <class Class>
constexpr Creator CreatorOf() {
  if constexpr (std::is_void_v<Class>) {
    return nullptr;
  } else {
    return &Create<Class>;
  }
}

// In the order of KindIndex.
constexpr std::array<Creator, kKindIndexCount> kCreators = {
#define A2L_KEYWORD(number, keyword, Class) CreatorOf<Class>(),
#include "a2l2json/model/keywords.def"
    CreatorOf<VoA2LElementUnknown>(),
    nullptr,
};

}  // namespace

VoA2LElement* CreateElement(ElementKind kind, VoA2LElement& parent) {
  const Creator create = kCreators[KindIndex(kind)];
  return create != nullptr ? create(parent, kind) : nullptr;
}

}  // namespace a2l
