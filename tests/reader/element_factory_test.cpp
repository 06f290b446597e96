// SPDX-License-Identifier: MIT
#include "a2l2json/reader/element_factory.h"

#include <cctype>
#include <cstdint>
#include <string>
#include <string_view>
#include <typeinfo>

#include <gtest/gtest.h>

#include "a2l2json/elements/elements.h"
#include "a2l2json/model/keywords.h"
#include "tests/support/kinds.h"
#include "tests/support/trees.h"

namespace a2l::test {
namespace {

struct Row {
  ElementKind kind;
  std::string_view className;
  const std::type_info& type;
};

const Row kRows[] = {
#define A2L_KEYWORD(number, keyword, Class) {ElementKind::keyword, #Class, typeid(Class)},
#include "a2l2json/model/keywords.def"
};

// Letters and digits alone, in lower case: the keyword as it stands in the name of a class.
std::string Plain(std::string_view text) {
  std::string plain;
  for (const char c : text) {
    if (c != '_') plain += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  }
  return plain;
}

// The name of the class of a keyword. Keywords of a family, one per axis, have that of the X axis.
std::string ClassName(const std::string& keyword) {
  for (const char* family :
       {"AXIS_PTS_", "AXIS_RESCALE_", "DIST_OP_", "FIX_NO_AXIS_PTS_", "NO_AXIS_PTS_", "NO_RESCALE_",
        "OFFSET_", "RIP_ADDR_", "SHIFT_OP_", "SRC_ADDR_"}) {
    if (keyword.starts_with(family) && keyword.size() == std::string_view(family).size() + 1) {
      return Plain("VoA2LElement" + std::string(family) + 'X');
    }
  }
  return Plain("VoA2LElement" + keyword);
}

TEST(ElementFactory, GivesEachKeywordItsClass) {
  Tree root(NewTree());
  for (const Row& row : kRows) {
    const std::string keyword(KindToKeyword(row.kind));
    SCOPED_TRACE(keyword);
    VoA2LElement* element = CreateElement(row.kind, *root);
    if (row.kind == ElementKind::ENCODING) {
      EXPECT_EQ(element, nullptr);
      continue;
    }
    ASSERT_NE(element, nullptr);
    EXPECT_EQ(typeid(*element), row.type);
    EXPECT_EQ(Plain(row.className), ClassName(keyword));
    EXPECT_EQ(element->kind, row.kind);
    EXPECT_EQ(element->parent, root.get());
    EXPECT_EQ(&element->Store(), &root->Store());
  }
  EXPECT_EQ(root->ChildCount(), 0U);
}

TEST(ElementFactory, KeepsUnknownBlocksInAClassOfTheirOwn) {
  Tree root(NewTree());
  VoA2LElement* element = CreateElement(KIND_UNKNOWN, *root);
  ASSERT_NE(element, nullptr);
  EXPECT_EQ(typeid(*element), typeid(VoA2LElementUnknown));
  EXPECT_EQ(element->kind, KIND_UNKNOWN);
}

TEST(ElementFactory, HasNothingForOtherKinds) {
  Tree root(NewTree());
  EXPECT_EQ(CreateElement(ElementKind::ENCODING, *root), nullptr);
  EXPECT_EQ(CreateElement(KIND_ROOT, *root), nullptr);
  for (const std::int32_t number : NumbersBesideTheKinds())
    EXPECT_EQ(CreateElement(static_cast<ElementKind>(number), *root), nullptr) << number;
}

}  // namespace
}  // namespace a2l::test
