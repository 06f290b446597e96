// SPDX-License-Identifier: MIT
//
// Which keyword may stand in which block. A block must accept every keyword that belongs to it and
// refuse all others, so that a misplaced keyword is reported and does not vanish.
#include <cstddef>
#include <cstdint>
#include <map>
#include <ostream>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "a2l2json/model/element.h"
#include "a2l2json/reader/element_factory.h"
#include "tests/support/kinds.h"
#include "tests/support/trees.h"

namespace a2l::test {
namespace {

// The children of a block, without unknown blocks, which every block accepts.
struct Block {
  std::string_view keyword;
  std::string_view children;
};

// The children of the root, and of every element without its own list of children.
constexpr std::string_view kBase = "PROJECT A2ML_VERSION ASAP2_VERSION";

constexpr Block kBlocks[] = {
    {"PROJECT", "HEADER MODULE"},
    {"HEADER", "PROJECT_NO VERSION"},
    {"MODULE",
     "A2ML AXIS_PTS BLOB CHARACTERISTIC COMPU_METHOD COMPU_TAB COMPU_VTAB COMPU_VTAB_RANGE FRAME "
     "FUNCTION GROUP IF_DATA INSTANCE MEASUREMENT MOD_COMMON MOD_PAR RECORD_LAYOUT TRANSFORMER "
     "TYPEDEF_AXIS TYPEDEF_BLOB TYPEDEF_CHARACTERISTIC TYPEDEF_MEASUREMENT TYPEDEF_STRUCTURE UNIT "
     "USER_RIGHTS VARIANT_CODING"},
    {"MOD_PAR",
     "ADDR_EPK CALIBRATION_METHOD CPU_TYPE CUSTOMER CUSTOMER_NO ECU ECU_CALIBRATION_OFFSET EPK "
     "MEMORY_LAYOUT MEMORY_SEGMENT NO_OF_INTERFACES PHONE_NO SUPPLIER SYSTEM_CONSTANT USER "
     "VERSION"},
    {"MOD_COMMON",
     "ALIGNMENT_BYTE ALIGNMENT_FLOAT16_IEEE ALIGNMENT_FLOAT32_IEEE ALIGNMENT_FLOAT64_IEEE "
     "ALIGNMENT_INT64 ALIGNMENT_LONG ALIGNMENT_WORD BYTE_ORDER DATA_SIZE DEPOSIT S_REC_LAYOUT"},
    {"MEMORY_LAYOUT", "IF_DATA"},
    {"MEMORY_SEGMENT", "IF_DATA"},
    {"MEASUREMENT",
     "ADDRESS_TYPE ANNOTATION ARRAY_SIZE BIT_MASK BIT_OPERATION BYTE_ORDER DISCRETE "
     "DISPLAY_IDENTIFIER ECU_ADDRESS ECU_ADDRESS_EXTENSION ERROR_MASK FORMAT FUNCTION_LIST IF_DATA "
     "LAYOUT MATRIX_DIM MAX_REFRESH MODEL_LINK PHYS_UNIT READ_WRITE REF_MEMORY_SEGMENT SYMBOL_LINK "
     "VIRTUAL"},
    {"BIT_OPERATION", "LEFT_SHIFT RIGHT_SHIFT SIGN_EXTEND"},
    {"CHARACTERISTIC",
     "ANNOTATION AXIS_DESCR BIT_MASK BYTE_ORDER CALIBRATION_ACCESS COMPARISON_QUANTITY "
     "DEPENDENT_CHARACTERISTIC DISCRETE DISPLAY_IDENTIFIER ECU_ADDRESS_EXTENSION ENCODING "
     "EXTENDED_LIMITS FORMAT FUNCTION_LIST GUARD_RAILS IF_DATA MAP_LIST MATRIX_DIM MAX_REFRESH "
     "MODEL_LINK NUMBER PHYS_UNIT READ_ONLY REF_MEMORY_SEGMENT STEP_SIZE SYMBOL_LINK "
     "VIRTUAL_CHARACTERISTIC"},
    {"AXIS_DESCR",
     "ANNOTATION AXIS_PTS_REF BYTE_ORDER CURVE_AXIS_REF DEPOSIT EXTENDED_LIMITS FIX_AXIS_PAR "
     "FIX_AXIS_PAR_DIST FIX_AXIS_PAR_LIST FORMAT MAX_GRAD MONOTONY PHYS_UNIT READ_ONLY STEP_SIZE"},
    {"AXIS_PTS",
     "ANNOTATION BYTE_ORDER CALIBRATION_ACCESS DEPOSIT DISPLAY_IDENTIFIER ECU_ADDRESS_EXTENSION "
     "EXTENDED_LIMITS FORMAT FUNCTION_LIST GUARD_RAILS IF_DATA MAX_REFRESH MODEL_LINK MONOTONY "
     "PHYS_UNIT READ_ONLY REF_MEMORY_SEGMENT STEP_SIZE SYMBOL_LINK"},
    {"BLOB",
     "ADDRESS_TYPE ANNOTATION CALIBRATION_ACCESS DISPLAY_IDENTIFIER ECU_ADDRESS_EXTENSION IF_DATA "
     "MAX_REFRESH MODEL_LINK SYMBOL_LINK"},
    {"COMPU_METHOD", "COEFFS COEFFS_LINEAR COMPU_TAB_REF FORMULA REF_UNIT STATUS_STRING_REF"},
    {"COMPU_TAB", "DEFAULT_VALUE DEFAULT_VALUE_NUMERIC"},
    {"COMPU_VTAB", "DEFAULT_VALUE"},
    {"COMPU_VTAB_RANGE", "DEFAULT_VALUE"},
    {"FORMULA", "FORMULA_INV"},
    {"RECORD_LAYOUT",
     "ALIGNMENT_BYTE ALIGNMENT_FLOAT16_IEEE ALIGNMENT_FLOAT32_IEEE ALIGNMENT_FLOAT64_IEEE "
     "ALIGNMENT_INT64 ALIGNMENT_LONG ALIGNMENT_WORD AXIS_PTS_* AXIS_RESCALE_* DIST_OP_* "
     "FIX_NO_AXIS_PTS_* FNC_VALUES IDENTIFICATION NO_AXIS_PTS_* NO_RESCALE_* OFFSET_* RESERVED "
     "RIP_ADDR_W RIP_ADDR_* SHIFT_OP_* SRC_ADDR_* STATIC_ADDRESS_OFFSETS STATIC_RECORD_LAYOUT"},
    {"FUNCTION",
     "ANNOTATION AR_COMPONENT DEF_CHARACTERISTIC FUNCTION_VERSION IF_DATA IN_MEASUREMENT "
     "LOC_MEASUREMENT OUT_MEASUREMENT REF_CHARACTERISTIC SUB_FUNCTION"},
    {"GROUP", "ANNOTATION FUNCTION_LIST IF_DATA REF_CHARACTERISTIC REF_MEASUREMENT ROOT SUB_GROUP"},
    {"FRAME", "FRAME_MEASUREMENT IF_DATA"},
    {"INSTANCE",
     "ADDRESS_TYPE ANNOTATION CALIBRATION_ACCESS DISPLAY_IDENTIFIER ECU_ADDRESS_EXTENSION IF_DATA "
     "LAYOUT MATRIX_DIM MAX_REFRESH MODEL_LINK OVERWRITE READ_WRITE SYMBOL_LINK"},
    {"OVERWRITE", "CONVERSION EXTENDED_LIMITS FORMAT INPUT_QUANTITY LIMITS MONOTONY PHYS_UNIT"},
    {"STRUCTURE_COMPONENT", "ADDRESS_TYPE LAYOUT MATRIX_DIM SYMBOL_TYPE_LINK"},
    {"ANNOTATION", "ANNOTATION_LABEL ANNOTATION_ORIGIN ANNOTATION_TEXT"},
    {"AR_COMPONENT", "AR_PROTOTYPE_OF"},
    {"CALIBRATION_METHOD", "CALIBRATION_HANDLE"},
    {"CALIBRATION_HANDLE", "CALIBRATION_HANDLE_TEXT"},
    {"TRANSFORMER", "TRANSFORMER_IN_OBJECTS TRANSFORMER_OUT_OBJECTS"},
    {"TYPEDEF_AXIS", "BYTE_ORDER DEPOSIT EXTENDED_LIMITS FORMAT MONOTONY PHYS_UNIT STEP_SIZE"},
    {"TYPEDEF_BLOB", "ADDRESS_TYPE"},
    {"TYPEDEF_CHARACTERISTIC",
     "AXIS_DESCR BIT_MASK BYTE_ORDER DISCRETE ENCODING EXTENDED_LIMITS FORMAT MATRIX_DIM NUMBER "
     "PHYS_UNIT STEP_SIZE"},
    {"TYPEDEF_MEASUREMENT",
     "ADDRESS_TYPE BIT_MASK BIT_OPERATION BYTE_ORDER DISCRETE ERROR_MASK FORMAT LAYOUT MATRIX_DIM "
     "PHYS_UNIT"},
    {"TYPEDEF_STRUCTURE", "ADDRESS_TYPE CONSISTENT_EXCHANGE STRUCTURE_COMPONENT SYMBOL_TYPE_LINK"},
    {"UNIT", "REF_UNIT SI_EXPONENTS UNIT_CONVERSION"},
    {"VARIANT_CODING",
     "VAR_CHARACTERISTIC VAR_CRITERION VAR_FORBIDDEN_COMB VAR_NAMING VAR_SEPARATOR"},
    {"VAR_CRITERION", "VAR_MEASUREMENT VAR_SELECTION_CHARACTERISTIC"},
    {"VAR_CHARACTERISTIC", "VAR_ADDRESS"},
    {"USER_RIGHTS", "REF_GROUP READ_ONLY"},
    // Lists and raw blocks.
    {"DEPENDENT_CHARACTERISTIC", kBase},
    {"FIX_AXIS_PAR_LIST", kBase},
    {"DEF_CHARACTERISTIC", kBase},
    {"FUNCTION_LIST", kBase},
    {"IN_MEASUREMENT", kBase},
    {"LOC_MEASUREMENT", kBase},
    {"MAP_LIST", kBase},
    {"OUT_MEASUREMENT", kBase},
    {"REF_CHARACTERISTIC", kBase},
    {"REF_GROUP", kBase},
    {"REF_MEASUREMENT", kBase},
    {"SUB_FUNCTION", kBase},
    {"SUB_GROUP", kBase},
    {"ANNOTATION_TEXT", kBase},
    {"TRANSFORMER_IN_OBJECTS", kBase},
    {"TRANSFORMER_OUT_OBJECTS", kBase},
    {"A2ML", kBase},
    {"VAR_ADDRESS", kBase},
    {"VAR_FORBIDDEN_COMB", kBase},
    {"IF_DATA", kBase},
    {"VIRTUAL", kBase},
    {"VIRTUAL_CHARACTERISTIC", kBase},
};

// All possible children: all keywords, an unknown block, and a root.
std::vector<ElementKind> AllKinds() {
  std::vector<ElementKind> kinds = {KIND_ROOT, KIND_UNKNOWN};
  for (const NumberedKeyword& keyword : AllKeywords())
    kinds.push_back(static_cast<ElementKind>(keyword.number));
  return kinds;
}

VoA2LElement* MakeChild(ElementKind kind, VoA2LElement& parent) {
  if (VoA2LElement* child = CreateElement(kind, parent)) return child;
  auto* child = parent.store->Create<VoA2LElement>(&parent);
  child->kind = kind;
  return child;
}

void ExpectAccepts(VoA2LElement& block, std::string_view children) {
  std::set<ElementKind> accepted = {KIND_UNKNOWN};
  for (const std::string& keyword : Words(children)) {
    ASSERT_NE(KeywordToKind(keyword), KIND_UNKNOWN) << keyword;
    accepted.insert(KeywordToKind(keyword));
  }
  const std::vector<ElementKind> offered = AllKinds();
  ASSERT_EQ(offered.size(), 207U);
  for (const ElementKind kind : offered) {
    VoA2LElement* child = MakeChild(kind, block);
    const std::size_t before = block.ChildCount();
    const bool accepts = accepted.contains(kind);
    EXPECT_EQ(block.AddChild(child), accepts) << Shown(kind);
    EXPECT_EQ(block.ChildCount(), before + (accepts ? 1 : 0)) << Shown(kind);
    EXPECT_EQ(block.Child(before), accepts ? child : nullptr) << Shown(kind);
  }
}

void PrintTo(const Block& block, std::ostream* out) { *out << block.keyword; }

class AcceptedChildren : public testing::TestWithParam<Block> {};

TEST_P(AcceptedChildren, AreThoseOfTheFormat) {
  Tree root(NewTree());
  VoA2LElement* block = CreateElement(KeywordToKind(GetParam().keyword), *root);
  ASSERT_NE(block, nullptr);
  ExpectAccepts(*block, GetParam().children);
}

INSTANTIATE_TEST_SUITE_P(Blocks, AcceptedChildren, testing::ValuesIn(kBlocks),
                         [](const auto& instance) { return std::string(instance.param.keyword); });

TEST(AcceptedChildrenTable, HasEveryBlockOnce) {
  std::set<std::string_view> blocks;
  for (const Block& block : kBlocks) EXPECT_TRUE(blocks.insert(block.keyword).second);
  EXPECT_EQ(blocks.size(), 62U);
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
