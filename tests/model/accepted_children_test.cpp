// SPDX-License-Identifier: MIT
//
// Which keyword may stand in which block. A block must accept every keyword that belongs to it and
// refuse all others, so that a misplaced keyword is reported and does not vanish.
#include <cstddef>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "a2l2json/model/element.h"
#include "a2l2json/reader/element_factory.h"
#include "tests/generator/grammar.h"
#include "tests/support/kinds.h"
#include "tests/support/trees.h"

namespace a2l::test {
namespace {

using Children = std::vector<std::string_view>;

// The children of the root, and of every element without its own list of children.
const Children kBase = {"PROJECT", "A2ML_VERSION", "ASAP2_VERSION"};

// Those of the tests' own grammar, and ENCODING, which is not in the grammar because a file with it
// is refused: two blocks would accept one.
Children ChildrenOf(const Keyword& keyword) {
  if (keyword.children.empty()) return kBase;
  Children children = keyword.children;
  if (keyword.text == "CHARACTERISTIC" || keyword.text == "TYPEDEF_CHARACTERISTIC")
    children.push_back("ENCODING");
  return children;
}

// All possible children: all keywords, an unknown block, and a root.
std::vector<ElementKind> AllKinds() {
  std::vector<ElementKind> kinds = {KIND_ROOT, KIND_UNKNOWN};
  for (const NumberedKeyword& keyword : AllKeywords())
    kinds.push_back(static_cast<ElementKind>(keyword.number));
  return kinds;
}

VoA2LElement* MakeChild(ElementKind kind, VoA2LElement& parent) {
  if (VoA2LElement* child = CreateElement(kind, parent)) return child;
  auto* child = parent.Store().Create<VoA2LElement>(&parent);
  child->kind = kind;
  return child;
}

void ExpectAccepts(VoA2LElement& block, const Children& children) {
  std::set<ElementKind> accepted = {KIND_UNKNOWN};
  for (const std::string_view keyword : children) {
    ASSERT_NE(KeywordToKind(keyword), KIND_UNKNOWN) << keyword;
    accepted.insert(KeywordToKind(keyword));
  }
  for (const ElementKind kind : AllKinds()) {
    VoA2LElement* child = MakeChild(kind, block);
    const std::size_t before = block.ChildCount();
    const bool accepts = accepted.contains(kind);
    EXPECT_EQ(block.AddChild(child), accepts) << Shown(kind);
    EXPECT_EQ(block.ChildCount(), before + (accepts ? 1 : 0)) << Shown(kind);
    EXPECT_EQ(block.Child(before), accepts ? child : nullptr) << Shown(kind);
  }
}

class AcceptedChildren : public testing::TestWithParam<std::string_view> {};

TEST_P(AcceptedChildren, AreThoseOfTheFormat) {
  Tree root(NewTree());
  VoA2LElement* block = CreateElement(KeywordToKind(GetParam()), *root);
  ASSERT_NE(block, nullptr);
  ExpectAccepts(*block, ChildrenOf(Find(GetParam())));
}

std::vector<std::string_view> Blocks() {
  std::vector<std::string_view> blocks;
  for (const Keyword& keyword : Grammar()) {
    if (keyword.isBlock) blocks.push_back(keyword.text);
  }
  return blocks;
}

INSTANTIATE_TEST_SUITE_P(Blocks, AcceptedChildren, testing::ValuesIn(Blocks()),
                         [](const auto& instance) { return std::string(instance.param); });

// Without this, a keyword that is missing in the grammar would not be tested at all.
TEST(TheGrammarOfTheTests, HasEveryKeywordOnce) {
  std::set<std::string> expected;
  for (const NumberedKeyword& keyword : AllKeywords()) {
    if (keyword.keyword != "ENCODING") expected.insert(keyword.keyword);
  }
  std::set<std::string> keywords;
  for (const Keyword& keyword : Grammar()) {
    EXPECT_TRUE(keywords.insert(std::string(keyword.text)).second) << keyword.text;
    EXPECT_EQ(keyword.isBlock, IsBlock(KeywordToKind(keyword.text))) << keyword.text;
  }
  EXPECT_EQ(keywords, expected)
      << "a keyword is missing in tests/generator/grammar.cpp or tests/support/kinds.h";
}

TEST(AcceptedChildrenOf, ARootAndAnUnknownBlock) {
  Tree root(NewTree());
  ExpectAccepts(*root, kBase);
  ExpectAccepts(*CreateElement(KIND_UNKNOWN, *root), kBase);
}

TEST(AcceptedChildrenOf, EveryProperty) {
  Tree root(NewTree());
  for (const ElementKind kind : KindsWithAClass()) {
    if (!IsProperty(kind)) continue;
    SCOPED_TRACE(Shown(kind));
    ExpectAccepts(*CreateElement(kind, *root), kBase);
  }
}

}  // namespace
}  // namespace a2l::test
