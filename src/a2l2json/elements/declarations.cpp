// SPDX-License-Identifier: MIT
#include "a2l2json/elements/declarations.h"

#include <array>

#include "a2l2json/elements/declaration_checks.h"
#include "a2l2json/elements/elements.h"
#include "a2l2json/model/keywords.h"

namespace a2l::detail {
namespace {

constexpr std::array kKindOfRoot = {KIND_ROOT};
constexpr Declaration kRoot = {.kinds = kKindOfRoot,
                               .parameters = {},
                               .columns = {},
                               .accepts = kBaseChildren,
                               .writesChildren = true};

// In the order of KindIndex.
constexpr std::array<const Declaration*, kKindIndexCount> kDeclarations = {
#define A2L_KEYWORD(number, keyword, Class) Checked<Class, ElementKind::keyword>(),
#include "a2l2json/model/keywords.def"
    Checked<VoA2LElementUnknown, KIND_UNKNOWN>(),
    nullptr,
};

}  // namespace

const Declaration* DeclarationOf(ElementKind kind) {
  if (kind == KIND_ROOT) return &kRoot;
  // The list comes from keywords.def, which static analysis does not read as pointers.
  // cppcheck-suppress CastIntegerToAddressAtReturn
  return kDeclarations[KindIndex(kind)];
}

}  // namespace a2l::detail
