// SPDX-License-Identifier: MIT
#include "a2l2json/model/element.h"

#include <cstddef>
#include <cstdint>
#include <fstream>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <type_traits>
#include <typeinfo>
#include <vector>

#include <gtest/gtest.h>

#include "a2l2json/elements/blocks/functions.h"
#include "a2l2json/elements/blocks/project.h"
#include "a2l2json/elements/properties/numbers.h"
#include "a2l2json/elements/properties/record_layout_entries.h"
#include "a2l2json/reader/a2l_reader.h"
#include "a2l2json/reader/element_factory.h"
#include "tests/generator/grammar.h"
#include "tests/support/files.h"
#include "tests/support/kinds.h"
#include "tests/support/trees.h"

namespace a2l::test {
namespace {

class ElementTest : public testing::Test {
 protected:
  Tree root_{NewTree()};

  // An element of `kind` below the root's link, not yet attached.
  VoA2LElement* Make(ElementKind kind) { return CreateElement(kind, *root_); }

  // An element of the base class with this kind.
  VoA2LElement* MakePlain(ElementKind kind, VoA2LElement* parent = nullptr) {
    auto* element = root_->Store().Create<VoA2LElement>(parent);
    element->kind = kind;
    return element;
  }

  VoA2LElementASAP2Version* MakeVersion(VoA2LElement& parent, std::uint32_t upgrade) {
    auto* version = root_->Store().Create<VoA2LElementASAP2Version>(&parent);
    version->VERSION_NO = 1;
    version->UPGRADE_NO = upgrade;
    return version;
  }
};

TEST_F(ElementTest, BaseHasDefaults) {
  EXPECT_EQ(root_->kind, KIND_ROOT);
  EXPECT_EQ(root_->Version(), 67072U);
  EXPECT_EQ(root_->paramCount, 0U);
  EXPECT_EQ(root_->hasMoreParameters, 0);
  EXPECT_EQ(root_->valid, 1);
  EXPECT_EQ(root_->parent, nullptr);
  EXPECT_TRUE(root_->children.empty());
  EXPECT_EQ(root_->Parent(), nullptr);
  EXPECT_EQ(root_->ChildCount(), 0U);
  EXPECT_EQ(root_->Child(0), nullptr);
  EXPECT_EQ(root_->ParamCount(), 0U);
  EXPECT_FALSE(root_->HasMoreParameters());
}

// There are millions of them. Where pointers are larger than four bytes, they take most of it.
TEST_F(ElementTest, IsSmall) { static_assert(sizeof(VoA2LElement) <= 4 * sizeof(std::uint64_t)); }

// Its children and its parent point to it, so a copy would be an element that no tree knows.
TEST_F(ElementTest, IsNotCopied) {
  static_assert(
      !std::is_copy_constructible_v<VoA2LElement> && !std::is_move_constructible_v<VoA2LElement> &&
      !std::is_copy_assignable_v<VoA2LElement> && !std::is_move_assignable_v<VoA2LElement>);
  static_assert(!std::is_copy_constructible_v<VoA2LElementFunction> &&
                !std::is_move_assignable_v<VoA2LElementFunction>);
}

TEST_F(ElementTest, BaseReadsNothing) {
  std::string_view text = " 1 2";
  EXPECT_TRUE(root_->ParseParameters(text));
  EXPECT_EQ(text, " 1 2");
  EXPECT_FALSE(root_->ParseMoreParameters(text));
  EXPECT_EQ(root_->MoreParameterCount(), -1);

  root_->hasMoreParameters = 1;
  EXPECT_TRUE(root_->HasMoreParameters());
  EXPECT_TRUE(root_->ParseMoreParameters(text));
  EXPECT_EQ(root_->MoreParameterCount(), 0);
  EXPECT_EQ(text, " 1 2");
}

TEST_F(ElementTest, AcceptedChildrenStandInOrder) {
  VoA2LElement* project = Make(ElementKind::PROJECT);
  VoA2LElement* version = Make(ElementKind::ASAP2_VERSION);
  EXPECT_TRUE(root_->AddChild(project));
  EXPECT_TRUE(root_->AddChild(version));
  EXPECT_EQ(root_->ChildCount(), 2U);
  EXPECT_EQ(root_->Child(0), project);
  EXPECT_EQ(root_->Child(1), version);
  EXPECT_EQ(root_->Child(2), nullptr);
  EXPECT_EQ(root_->Child(static_cast<std::size_t>(-1)), nullptr);
}

TEST_F(ElementTest, ChildWithoutParentGetsOneEvenWhenRefused) {
  VoA2LElement* project = MakePlain(ElementKind::PROJECT);
  EXPECT_TRUE(root_->AddChild(project));
  EXPECT_EQ(project->Parent(), root_.get());

  VoA2LElement* module = MakePlain(ElementKind::MODULE);
  EXPECT_FALSE(root_->AddChild(module));
  EXPECT_EQ(module->Parent(), root_.get());
  EXPECT_EQ(root_->ChildCount(), 1U);
}

TEST_F(ElementTest, ChildOfAnotherParentIsRefusedUnchanged) {
  VoA2LElement* project = Make(ElementKind::PROJECT);
  for (const ElementKind kind : {ElementKind::HEADER, ElementKind::FORMAT}) {
    VoA2LElement* child = Make(kind);
    EXPECT_FALSE(project->AddChild(child));
    EXPECT_EQ(child->Parent(), root_.get());
    EXPECT_EQ(project->ChildCount(), 0U);
  }
}

TEST_F(ElementTest, NoChildIsRefused) {
  VoA2LElement root;
  EXPECT_FALSE(root.AddChild(nullptr));
  EXPECT_EQ(root.ChildCount(), 0U);
}

TEST_F(ElementTest, ChildAddedTwiceIsListedTwice) {
  VoA2LElement* version = Make(ElementKind::ASAP2_VERSION);
  EXPECT_TRUE(root_->AddChild(version));
  EXPECT_TRUE(root_->AddChild(version));
  EXPECT_EQ(root_->ChildCount(), 2U);
  EXPECT_EQ(root_->Child(0), version);
  EXPECT_EQ(root_->Child(1), version);
}

TEST_F(ElementTest, CalibrationObjectsAreTheFiveKindsWithATrackedValidity) {
  const std::set<std::int32_t> objects = {2, 3, 4, 13, 14};
  for (std::int32_t number = -2; number < 2000; ++number) {
    const VoA2LElement* element = MakePlain(static_cast<ElementKind>(number));
    EXPECT_EQ(IsCalibrationObject(*element), objects.contains(number)) << number;
  }
  EXPECT_FALSE(IsCalibrationObject(*MakePlain(KIND_UNKNOWN)));
}

TEST_F(ElementTest, WriteOfTheRootPutsTheVersionFirst) {
  auto* project = root_->Store().Create<VoA2LElementProject>(root_.get());
  project->NAME = "P";
  VoA2LElement* version = MakeVersion(*root_, 71);
  ASSERT_TRUE(root_->AddChild(project));
  ASSERT_TRUE(root_->AddChild(version));

  EXPECT_EQ(Written(*root_),
            "ASAP2_VERSION 1 71\n"
            "/begin PROJECT P \"\"\n"
            "/end PROJECT\n");
  // They stay in their places.
  EXPECT_EQ(root_->Child(0), version);
  EXPECT_EQ(root_->Child(1), project);
}

// Each one is moved to the front when it is found, so the last one comes first.
TEST_F(ElementTest, WriteOfTheRootTakesSeveralVersionsToTheFrontOneByOne) {
  VoA2LElement* project = Make(ElementKind::PROJECT);
  VoA2LElement* unknown = Make(KIND_UNKNOWN);
  VoA2LElement* language = Make(ElementKind::A2ML_VERSION);
  const std::vector<VoA2LElement*> added = {
      MakeVersion(*root_, 1), project, language,
      MakeVersion(*root_, 2), unknown, MakeVersion(*root_, 3)};
  for (VoA2LElement* child : added) ASSERT_TRUE(root_->AddChild(child));
  Written(*root_);
  const std::vector<VoA2LElement*> order(root_->children.begin(), root_->children.end());
  EXPECT_EQ(order,
            (std::vector<VoA2LElement*>{added[5], added[3], added[0], project, language, unknown}));
}

TEST_F(ElementTest, WriteOfTheBaseAddsNoIndentation) {
  VoA2LElement* outer = MakePlain(KIND_UNKNOWN, root_.get());
  VoA2LElement* inner = MakePlain(KIND_UNKNOWN, outer);
  ASSERT_TRUE(root_->AddChild(outer));
  ASSERT_TRUE(outer->AddChild(inner));
  ASSERT_TRUE(inner->AddChild(CreateElement(ElementKind::PROJECT, *inner)));
  ASSERT_TRUE(inner->AddChild(MakeVersion(*inner, 60)));
  EXPECT_EQ(Written(*root_, 1),
            "  ASAP2_VERSION 1 60\n"
            "  /begin PROJECT  \"\"\n"
            "  /end PROJECT\n");
}

TEST_F(ElementTest, WriteIndentsByTwoBlanksPerLevel) {
  auto* project = root_->Store().Create<VoA2LElementProject>(root_.get());
  auto* module = root_->Store().Create<VoA2LElementModule>(project);
  auto* function = root_->Store().Create<VoA2LElementFunction>(module);
  ASSERT_TRUE(root_->AddChild(project) && project->AddChild(module) && module->AddChild(function));
  EXPECT_EQ(Written(*project, 1),
            "  /begin PROJECT  \"\"\n"
            "    /begin MODULE  \"\"\n"
            "      /begin FUNCTION  \"\"\n"
            "      /end FUNCTION\n"
            "    /end MODULE\n"
            "  /end PROJECT\n");
}

// An unknown block has nothing to write, so it cannot fail. The root fails whatever it holds.
TEST_F(ElementTest, WriteFailsOnAFileThatIsNotOpen) {
  std::ofstream closed;
  std::fstream closedBothWays;
  std::filebuf closedFile;
  std::ostream onAClosedFile(&closedFile);
  std::iostream bothWaysOnAClosedFile(&closedFile);
  for (std::ostream* out :
       {static_cast<std::ostream*>(&closed), static_cast<std::ostream*>(&closedBothWays),
        &onAClosedFile, static_cast<std::ostream*>(&bothWaysOnAClosedFile)}) {
    SCOPED_TRACE(typeid(*out).name());
    ASSERT_TRUE(out->good()) << "the state of the stream does not show that its file is not open";
    for (const ElementKind kind : KindsWithAClass()) {
      EXPECT_EQ(Make(kind)->Write(0, *out), kind == KIND_UNKNOWN) << Shown(kind);
    }
    Tree root;
    EXPECT_FALSE(root->Write(0, *out));
    ASSERT_TRUE(root->AddChild(CreateElement(KIND_UNKNOWN, *root)));
    EXPECT_FALSE(root->Write(0, *out));
  }
}

TEST_F(ElementTest, WriteFailsOnAStreamThatTakesNothing) {
  std::ostringstream failed;
  failed.setstate(std::ios::failbit);
  EXPECT_FALSE(root_->Write(0, failed));
  std::ostream nowhere(nullptr);
  EXPECT_FALSE(root_->Write(0, nowhere));
  EXPECT_FALSE(Make(ElementKind::PROJECT)->Write(0, nowhere));
  EXPECT_TRUE(Make(KIND_UNKNOWN)->Write(0, nowhere));
}

// This holds whatever has opened the file, and for all streams that write to it.
TEST_F(ElementTest, WriteReachesAFileThroughAnyStream) {
  ASSERT_TRUE(root_->AddChild(MakeVersion(*root_, 71)));
  const TemporaryFolder folder;
  const auto mode = std::ios::in | std::ios::out | std::ios::trunc | std::ios::binary;
  {
    std::fstream file(folder / "one.a2l", mode);
    EXPECT_TRUE(root_->Write(0, file));
    std::filebuf buffer;
    ASSERT_NE(buffer.open(folder / "two.a2l", mode), nullptr);
    std::ostream out(&buffer);
    EXPECT_TRUE(root_->Write(0, out));
  }
  EXPECT_EQ(ReadFile(folder / "one.a2l"), "ASAP2_VERSION 1 71\n");
  EXPECT_EQ(ReadFile(folder / "two.a2l"), "ASAP2_VERSION 1 71\n");
}

TEST_F(ElementTest, WriteSucceedsOnAnOpenStream) {
  for (const ElementKind kind : KindsWithAClass()) {
    SCOPED_TRACE(Shown(kind));
    std::ostringstream out;
    EXPECT_TRUE(Make(kind)->Write(0, out));
    // An unknown block is not written. Everything else is written under a keyword.
    EXPECT_EQ(out.str().empty(), kind == KIND_UNKNOWN);
  }
  std::ostringstream out;
  EXPECT_TRUE(root_->Write(0, out));
  EXPECT_EQ(out.str(), "");
}

TEST_F(ElementTest, WriteReachesTheFileBeforeItIsClosed) {
  ASSERT_TRUE(root_->AddChild(MakeVersion(*root_, 71)));
  const TemporaryFolder folder;
  std::ofstream file(folder / "out.a2l", std::ios::binary);
  EXPECT_TRUE(root_->Write(2, file));
  EXPECT_EQ(ReadFile(folder / "out.a2l"), "    ASAP2_VERSION 1 71\n");
  file.close();
  EXPECT_FALSE(root_->Write(2, file));
  EXPECT_EQ(ReadFile(folder / "out.a2l"), "    ASAP2_VERSION 1 71\n");
}

TEST_F(ElementTest, DestroyTreeDoesNothingForNull) { DestroyTree(nullptr); }

TEST_F(ElementTest, DestroyTreeTakesAnElementOutOfItsParent) {
  VoA2LElement* first = Make(ElementKind::PROJECT);
  VoA2LElement* twice = Make(KIND_UNKNOWN);
  VoA2LElement* last = Make(ElementKind::A2ML_VERSION);
  for (VoA2LElement* child : {twice, first, twice, last}) ASSERT_TRUE(root_->AddChild(child));
  ASSERT_TRUE(twice->AddChild(CreateElement(ElementKind::PROJECT, *twice)));
  DestroyTree(twice);
  ASSERT_EQ(root_->ChildCount(), 2U);
  EXPECT_EQ(root_->Child(0), first);
  EXPECT_EQ(root_->Child(1), last);
}

TEST_F(ElementTest, DestroyTreeLeavesTheParentOfARefusedChildAlone) {
  VoA2LElement* project = Make(ElementKind::PROJECT);
  ASSERT_TRUE(root_->AddChild(project));
  VoA2LElement* module = Make(ElementKind::MODULE);
  ASSERT_FALSE(root_->AddChild(module));
  DestroyTree(module);
  DestroyTree(MakePlain(ElementKind::MODULE));  // never had a parent
  ASSERT_EQ(root_->ChildCount(), 1U);
  EXPECT_EQ(root_->Child(0), project);
}

// An application may keep the root, or any single element, where it likes.
TEST(ElementOnTheStack, CanBeTheRootOfATree) {
  VoA2LElement root;
  DestroyTree(&root);  // there is nothing to release yet
  for (int round = 0; round < 2; ++round) {
    A2LReader reader;
    std::istringstream in("/begin PROJECT P \"\"\n/end PROJECT\nASAP2_VERSION 1 71\n");
    EXPECT_TRUE(reader.Parse(in, &root));
    EXPECT_EQ(root.ChildCount(), 2U);
    EXPECT_EQ(Written(root),
              "ASAP2_VERSION 1 71\n"
              "/begin PROJECT P \"\"\n"
              "/end PROJECT\n");
    DestroyTree(&root);
    EXPECT_EQ(root.ChildCount(), 0U);
    EXPECT_EQ(root.Child(0), nullptr);
  }
}

TEST(ElementOnTheStack, CanReadItsParameters) {
  VoA2LElementFunction function;
  std::string line = " F \"d\" x";
  std::string_view text = line;
  EXPECT_TRUE(function.ParseParameters(text));
  line.assign(line.size(), '#');
  EXPECT_EQ(Written(function), "/begin FUNCTION F \"d\"\n/end FUNCTION\n");
  DestroyTree(&function);
}

TEST(ElementOnTheStack, OfAnAxisFamilyIsMadeWithItsKind) {
  VoA2LElementAxisPtsX points(ElementKind::AXIS_PTS_5);
  EXPECT_EQ(points.kind, ElementKind::AXIS_PTS_5);
  EXPECT_EQ(Written(points), "AXIS_PTS_5 0 UBYTE INDEX_INCR PBYTE\n");
  EXPECT_EQ(VoA2LElementAxisPtsX().kind, ElementKind::AXIS_PTS_X);
  EXPECT_EQ(VoA2LElementRipAddrX().kind, ElementKind::RIP_ADDR_X);
  EXPECT_EQ(VoA2LElementRipAddrX(ElementKind::RIP_ADDR_W).kind, ElementKind::RIP_ADDR_W);
}

// Blocks may be nested as deep as the file is long.
TEST_F(ElementTest, DeepTreesAreWrittenAndDestroyed) {
  VoA2LElement* innermost = root_.get();
  for (int depth = 0; depth < 300000; ++depth) {
    VoA2LElement* element = MakePlain(KIND_UNKNOWN, innermost);
    ASSERT_TRUE(innermost->AddChild(element));
    innermost = element;
  }
  ASSERT_TRUE(innermost->AddChild(MakeVersion(*innermost, 71)));
  std::ostringstream out;
  EXPECT_TRUE(root_->Write(0, out));
  EXPECT_TRUE(out.str() == "ASAP2_VERSION 1 71\n") << out.str().size() << " bytes";
  DestroyTree(root_.release());
}

// The number of tokens that a keyword waits for; without a limit for lists and for raw text.
TEST_F(ElementTest, EveryKeywordWaitsForItsParameters) {
  for (const Keyword& keyword : Grammar()) {
    const bool isOpen = keyword.isRaw || !keyword.list.empty();
    EXPECT_EQ(Make(KeywordToKind(keyword.text))->ParamCount(),
              isOpen ? 65535U : keyword.parameters.size())
        << keyword.text;
  }
  EXPECT_EQ(Make(KIND_UNKNOWN)->ParamCount(), 65535U);
}

TEST_F(ElementTest, KeywordsOfTheLaterStandardSaySo) {
  std::set<std::string> later;
  for (const std::string& keyword :
       Words("ADDRESS_TYPE ALIGNMENT_FLOAT16_IEEE AR_COMPONENT AR_PROTOTYPE_OF BLOB "
             "CONSISTENT_EXCHANGE CONVERSION INPUT_QUANTITY INSTANCE LIMITS MODEL_LINK OVERWRITE "
             "STATIC_ADDRESS_OFFSETS STRUCTURE_COMPONENT SYMBOL_TYPE_LINK TRANSFORMER "
             "TRANSFORMER_IN_OBJECTS TRANSFORMER_OUT_OBJECTS TYPEDEF_AXIS TYPEDEF_BLOB "
             "TYPEDEF_CHARACTERISTIC TYPEDEF_MEASUREMENT TYPEDEF_STRUCTURE")) {
    later.insert(keyword);
  }
  EXPECT_EQ(later.size(), 23U);
  for (const ElementKind kind : KindsWithAClass()) {
    EXPECT_EQ(Make(kind)->Version(), later.contains(Shown(kind)) ? 67329U : 67072U) << Shown(kind);
  }
}

TEST_F(ElementTest, TablesAloneHaveASecondRun) {
  const std::set<ElementKind> tables = {ElementKind::COMPU_TAB, ElementKind::COMPU_VTAB,
                                        ElementKind::COMPU_VTAB_RANGE};
  for (const ElementKind kind : KindsWithAClass()) {
    SCOPED_TRACE(Shown(kind));
    VoA2LElement* element = Make(kind);
    const bool table = tables.contains(kind);
    EXPECT_EQ(element->hasMoreParameters, table ? 1 : 0);
    EXPECT_EQ(element->MoreParameterCount(), table ? 0 : -1);
    std::string_view text = " 1 2 3";
    EXPECT_EQ(element->ParseMoreParameters(text), table);
    EXPECT_EQ(text, " 1 2 3");
  }
}

TEST_F(ElementTest, EveryNewElementIsValidAndEmpty) {
  for (const ElementKind kind : KindsWithAClass()) {
    SCOPED_TRACE(Shown(kind));
    VoA2LElement* element = Make(kind);
    EXPECT_EQ(element->kind, kind);
    EXPECT_EQ(element->valid, 1);
    EXPECT_EQ(element->Parent(), root_.get());
    EXPECT_EQ(element->ChildCount(), 0U);
    EXPECT_EQ(&element->Store(), &root_->Store());
  }
  EXPECT_EQ(root_->ChildCount(), 0U) << "creating a child does not attach it";
}

// Elements do not need a store: trees can be built from plain objects.
TEST(PlainElement, SharesTheStoreOfItsParent) {
  VoA2LElement root;
  VoA2LElementProject project;
  ASSERT_TRUE(root.AddChild(&project));
  std::string_view text = "P \"d\"";
  EXPECT_TRUE(project.ParseParameters(text));
  EXPECT_EQ(project.NAME, "P");
  EXPECT_EQ(&project.Store(), &root.Store());
  DestroyTree(&root);
  EXPECT_EQ(root.ChildCount(), 0U);
}

TEST(PlainElement, WithAStoreOfItsOwnLeavesItsParent) {
  VoA2LElementProject project;
  std::string_view text = "P \"d\"";
  EXPECT_TRUE(project.ParseParameters(text));
  VoA2LElement root;
  ASSERT_TRUE(root.AddChild(&project));
  DestroyTree(&project);
  EXPECT_EQ(root.ChildCount(), 0U);
  DestroyTree(&root);
}

}  // namespace
}  // namespace a2l::test
