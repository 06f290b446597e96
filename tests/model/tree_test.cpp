// SPDX-License-Identifier: MIT
#include "a2l2json/model/tree.h"

#include <algorithm>
#include <iterator>
#include <ranges>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "a2l2json/elements/elements.h"
#include "a2l2json/model/name_index.h"
#include "tests/support/trees.h"

namespace a2l::test {
namespace {

constexpr std::string_view kFile =
    "ASAP2_VERSION 1 71\n"
    "/begin PROJECT P \"\"\n"
    "  /begin MODULE one \"\"\n"
    "    /begin MEASUREMENT a \"\" UBYTE C 1 0 0 1\n"
    "      ECU_ADDRESS 0x10\n"
    "      ECU_ADDRESS 0x20\n"
    "    /end MEASUREMENT\n"
    "    /begin CHARACTERISTIC k \"\" VALUE 0x30 L 0 C 0 1\n"
    "    /end CHARACTERISTIC\n"
    "    /begin MEASUREMENT b \"\" UBYTE C 1 0 0 1\n"
    "    /end MEASUREMENT\n"
    "    /begin RECORD_LAYOUT L\n"
    "      AXIS_PTS_X 1 UBYTE INDEX_INCR DIRECT\n"
    "      AXIS_PTS_Y 2 UBYTE INDEX_INCR DIRECT\n"
    "      FNC_VALUES 3 UBYTE ROW_DIR DIRECT\n"
    "    /end RECORD_LAYOUT\n"
    "  /end MODULE\n"
    "  /begin MODULE two \"\"\n"
    "    /begin MEASUREMENT c \"\" UBYTE C 1 0 0 1\n"
    "    /end MEASUREMENT\n"
    "  /end MODULE\n"
    "/end PROJECT\n";

// The names of the elements of a walk.
template <class Range>
std::vector<std::string> Names(const Range& range) {
  std::vector<std::string> names;
  for (const auto& element : range) names.emplace_back(element.NAME);
  return names;
}
using NameList = std::vector<std::string>;

TEST(Tree, IsEmptyAtFirst) {
  Tree tree;
  ASSERT_NE(tree.get(), nullptr);
  EXPECT_EQ(tree->kind, KIND_ROOT);
  EXPECT_EQ(tree->ChildCount(), 0U);
  EXPECT_EQ(&*tree, tree.get());
}

TEST(Tree, OwnsItsElements) {
  static_assert(!std::is_copy_constructible_v<Tree> && !std::is_copy_assignable_v<Tree>);
  Tree tree;
  VoA2LElement* const root = tree.get();
  Tree other = std::move(tree);
  EXPECT_EQ(other.get(), root);
  other = Tree();
  EXPECT_NE(other.get(), root);
}

TEST(Tree, IsMovedWithoutALoss) {
  static_assert(std::is_nothrow_move_constructible_v<Tree> &&
                std::is_nothrow_move_assignable_v<Tree>);
  Tree tree;
  VoA2LElement* const root = tree.get();
  Tree& same = tree;
  tree = std::move(same);
  EXPECT_EQ(tree.get(), root);
  const Tree other = std::move(tree);
  EXPECT_EQ(other.get(), root);
  EXPECT_EQ(tree.get(), nullptr);  // NOLINT(bugprone-use-after-move): what is left is known
  tree = Tree();
  EXPECT_NE(tree.get(), nullptr);
}

TEST(Tree, ThatIsConstHasAConstRoot) {
  static_assert(std::is_same_v<decltype(*std::declval<const Tree&>()), const VoA2LElement&>);
  static_assert(std::is_same_v<decltype(std::declval<const Tree&>().get()), const VoA2LElement*>);
  static_assert(
      std::is_same_v<decltype(std::declval<const Tree&>().operator->()), const VoA2LElement*>);
  static_assert(std::is_same_v<decltype(*std::declval<Tree&>()), VoA2LElement&>);
  const Tree tree;
  EXPECT_EQ(&*tree, tree.get());
}

TEST(Tree, TakesOverATreeThatIsThere) {
  VoA2LElement* const root = NewTree();
  Tree tree(root);
  EXPECT_EQ(tree.get(), root);
}

TEST(Tree, MayBeGivenAway) {
  Tree tree;
  VoA2LElement* const root = tree.get();
  EXPECT_EQ(tree.release(), root);
  EXPECT_EQ(tree.get(), nullptr);
  DestroyTree(root);
}

TEST(As, GivesAnElementAsItsClass) {
  Reading reading = Read(kFile);
  VoA2LElement& project = *reading.root->Child(1);
  ASSERT_NE(As<VoA2LElementProject>(project), nullptr);
  EXPECT_EQ(As<VoA2LElementProject>(project)->NAME, "P");
  EXPECT_EQ(As<VoA2LElementModule>(project), nullptr);
  EXPECT_EQ(As<VoA2LElementProject>(*reading.root), nullptr);
  EXPECT_EQ(As<VoA2LElement>(project), &project);
  EXPECT_TRUE(HasClass<VoA2LElementProject>(project));
  EXPECT_FALSE(HasClass<VoA2LElementModule>(project));

  static_assert(std::is_same_v<decltype(As<VoA2LElementProject>(project)), VoA2LElementProject*>);
  const VoA2LElement& constant = project;
  static_assert(
      std::is_same_v<decltype(As<VoA2LElementProject>(constant)), const VoA2LElementProject*>);
}

TEST(FirstChild, IsTheFirstOfItsClass) {
  const Reading reading = Read(kFile);
  const auto* version = FirstChild<VoA2LElementASAP2Version>(*reading.root);
  ASSERT_NE(version, nullptr);
  EXPECT_EQ(version->UPGRADE_NO, 71U);
  EXPECT_EQ(FirstChild<VoA2LElementModule>(*reading.root), nullptr) << "a grandchild";

  const auto* module = FirstChild<VoA2LElementModule>(*reading.root->Child(1));
  ASSERT_NE(module, nullptr);
  EXPECT_EQ(module->NAME, "one");
  const auto* measurement = FirstChild<VoA2LElementMeasurement>(*module);
  ASSERT_NE(measurement, nullptr);
  const auto* address = FirstChild<VoA2LElementECUAddress>(*measurement);
  ASSERT_NE(address, nullptr);
  EXPECT_EQ(address->ECU_ADDRESS, 0x10U);
}

TEST(ChildrenOf, AreThoseOfTheClassInTheOrderOfTheFile) {
  const Reading reading = Read(kFile);
  VoA2LElement& project = *reading.root->Child(1);
  EXPECT_EQ(Names(ChildrenOf<VoA2LElementModule>(project)), (NameList{"one", "two"}));
  VoA2LElement& module = *project.Child(0);
  EXPECT_EQ(Names(ChildrenOf<VoA2LElementMeasurement>(module)), (NameList{"a", "b"}));
  EXPECT_EQ(Names(ChildrenOf<VoA2LElementBlob>(module)), NameList());
  EXPECT_EQ(Names(ChildrenOf<VoA2LElementMeasurement>(project)), NameList()) << "grandchildren";
  EXPECT_EQ(std::ranges::distance(ChildrenOf<VoA2LElement>(module)), 4);
}

// The keywords of the axes share a class.
TEST(ChildrenOf, HaveAnyKindOfTheClass) {
  const Reading reading = Read(kFile);
  std::vector<std::string> keywords;
  for (const auto& layout : Descendants<VoA2LElementRecordLayout>(*reading.root)) {
    for (const auto& entry : ChildrenOf<VoA2LElementAxisPtsX>(layout)) {
      keywords.emplace_back(KindToKeyword(entry.kind));
    }
  }
  EXPECT_EQ(keywords, (std::vector<std::string>{"AXIS_PTS_X", "AXIS_PTS_Y"}));
}

TEST(Descendants, AreThoseOfTheClassOnEveryLevel) {
  const Reading reading = Read(kFile);
  const VoA2LElement& root = *reading.root;
  EXPECT_EQ(Names(Descendants<VoA2LElementMeasurement>(root)), (NameList{"a", "b", "c"}));
  EXPECT_EQ(Names(Descendants<VoA2LElementMeasurement>(*root.Child(1)->Child(1))), NameList{"c"});
  EXPECT_EQ(Names(Descendants<VoA2LElementProject>(root)), NameList{"P"});
  EXPECT_EQ(Names(Descendants<VoA2LElementProject>(*root.Child(1))), NameList())
      << "an element is not its own descendant";
  EXPECT_EQ(Names(Descendants<VoA2LElementMeasurement>(*Tree())), NameList());
}

// A parent comes before its children, these before its next sibling.
TEST(Descendants, ComeInTheOrderOfTheFile) {
  const Reading reading = Read(kFile);
  std::string keywords;
  for (const auto& element : Descendants<VoA2LElement>(*reading.root)) {
    keywords += std::string(KindToKeyword(element.kind)) + " ";
  }
  EXPECT_EQ(keywords,
            "ASAP2_VERSION PROJECT MODULE MEASUREMENT ECU_ADDRESS ECU_ADDRESS CHARACTERISTIC "
            "MEASUREMENT RECORD_LAYOUT AXIS_PTS_X AXIS_PTS_Y FNC_VALUES MODULE MEASUREMENT ");
}

TEST(Descendants, AreFoundHoweverDeepTheyAre) {
  constexpr int kLevels = 100000;
  Tree tree;
  VoA2LElement* innermost = tree.get();
  for (int i = 0; i < kLevels; ++i) {
    auto* project = tree->Store().Create<VoA2LElementProject>(innermost);
    innermost->children.PushBack(tree->Store(), project);
    innermost = project;
  }
  EXPECT_EQ(std::ranges::distance(Descendants<VoA2LElementProject>(*tree)), kLevels);
}

TEST(Walks, GiveElementsThatMayBeChangedWhereTheTreeMay) {
  Reading reading = Read(kFile);
  for (auto& measurement : Descendants<VoA2LElementMeasurement>(*reading.root)) {
    measurement.NAME = "renamed";
  }
  EXPECT_EQ(Names(Descendants<VoA2LElementMeasurement>(*reading.root)),
            (NameList{"renamed", "renamed", "renamed"}));

  const VoA2LElement& constant = *reading.root;
  static_assert(std::is_same_v<decltype(*Descendants<VoA2LElementUnit>(constant).begin()),
                               const VoA2LElementUnit&>);
  static_assert(std::is_same_v<decltype(*ChildrenOf<VoA2LElementUnit>(constant).begin()),
                               const VoA2LElementUnit&>);
}

TEST(Walks, AreRanges) {
  const Reading reading = Read(kFile);
  const auto measurements = Descendants<VoA2LElementMeasurement>(*reading.root);
  static_assert(std::ranges::input_range<decltype(measurements)>);
  const auto isB = [](const VoA2LElementMeasurement& measurement) {
    return measurement.NAME == "b";
  };
  EXPECT_EQ(std::ranges::find_if(measurements, isB)->NAME, "b");
  EXPECT_EQ(std::ranges::count_if(measurements, isB), 1);
  EXPECT_EQ(std::ranges::count_if(measurements, isB), 1) << "a walk may be repeated";
  EXPECT_EQ(measurements.First()->NAME, "a");
  EXPECT_EQ(Descendants<VoA2LElementUnit>(*reading.root).First(), nullptr);
}

TEST(FindByName, IsTheFirstOfItsClassWithThatName) {
  Reading reading = Read(
      "/begin PROJECT P \"\"\n"
      "/begin MODULE M \"\"\n"
      "/begin CHARACTERISTIC a \"\" VALUE 0x30 L 0 C 0 1\n/end CHARACTERISTIC\n"
      "/begin MEASUREMENT a \"first\" UBYTE C 1 0 0 1\n/end MEASUREMENT\n"
      "/begin MEASUREMENT b \"\" UBYTE C 1 0 0 1\n/end MEASUREMENT\n"
      "/begin GROUP a \"of a\"\n/end GROUP\n"
      "/begin MEASUREMENT a \"second\" UBYTE C 1 0 0 1\n/end MEASUREMENT\n"
      "/end MODULE\n"
      "/end PROJECT\n");
  VoA2LElement& root = *reading.root;
  auto* const a = FindByName<VoA2LElementMeasurement>(root, "a");
  ASSERT_NE(a, nullptr);
  EXPECT_EQ(a->LONG_IDENTIFIER, "first");
  EXPECT_EQ(FindByName<VoA2LElementMeasurement>(root, "b")->NAME, "b");
  EXPECT_EQ(FindByName<VoA2LElementMeasurement>(root, "A"), nullptr) << "letters count as they are";
  EXPECT_EQ(FindByName<VoA2LElementMeasurement>(root, ""), nullptr);
  EXPECT_EQ(FindByName<VoA2LElementBlob>(root, "a"), nullptr);
  EXPECT_EQ(FindByName<VoA2LElementMeasurement>(*a, "a"), nullptr) << "not below itself";

  const VoA2LElement& constant = root;
  static_assert(std::is_same_v<decltype(a), VoA2LElementMeasurement* const>);
  static_assert(std::is_same_v<decltype(FindByName<VoA2LElementMeasurement>(constant, "a")),
                               const VoA2LElementMeasurement*>);

  const NameIndex<VoA2LElementMeasurement> index(constant);
  EXPECT_EQ(index.Find("a"), a);
  EXPECT_EQ(index.Find("b"), FindByName<VoA2LElementMeasurement>(constant, "b"));
  EXPECT_EQ(index.Find("c"), nullptr);
  EXPECT_EQ(index.size(), 2U);
  EXPECT_EQ(NameIndex<VoA2LElementBlob>(constant).size(), 0U);
  EXPECT_EQ(FindByName<VoA2LElementGroup>(root, "a"), NameIndex<VoA2LElementGroup>(root).Find("a"));
  EXPECT_EQ(FindByName<VoA2LElementGroup>(root, "a")->GROUP_LONG_IDENTIFIER, "of a");
}

}  // namespace
}  // namespace a2l::test
