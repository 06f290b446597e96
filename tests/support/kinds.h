// SPDX-License-Identifier: MIT
//
// The kinds of elements with their numbers, for tests. They are written out independently of the
// program's own table.
#pragma once

#include <cstdint>
#include <limits>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "a2l2json/model/keywords.h"

namespace a2l::test {

/// Keywords with consecutive numbers.
struct KeywordGroup {
  std::int32_t first;
  std::string_view keywords;  ///< in the order of their numbers
};

inline constexpr std::int32_t kFirstProperty = 1001;
inline constexpr KeywordGroup kKeywordGroups[] = {
    {1,
     "AXIS_DESCR AXIS_PTS BLOB CHARACTERISTIC COMPU_METHOD COMPU_TAB COMPU_VTAB COMPU_VTAB_RANGE "
     "FRAME FUNCTION GROUP HEADER INSTANCE MEASUREMENT MOD_COMMON MOD_PAR MODULE PROJECT "
     "RECORD_LAYOUT TRANSFORMER"},
    {100,
     "IF_DATA A2ML ANNOTATION ANNOTATION_TEXT AR_COMPONENT BIT_OPERATION CALIBRATION_HANDLE "
     "CALIBRATION_METHOD DEF_CHARACTERISTIC DEPENDENT_CHARACTERISTIC FIX_AXIS_PAR_LIST FORMULA "
     "FUNCTION_LIST IN_MEASUREMENT LOC_MEASUREMENT MAP_LIST MEMORY_LAYOUT MEMORY_SEGMENT "
     "OUT_MEASUREMENT OVERWRITE REF_CHARACTERISTIC REF_GROUP REF_MEASUREMENT STRUCTURE_COMPONENT "
     "SUB_FUNCTION SUB_GROUP TRANSFORMER_IN_OBJECTS TRANSFORMER_OUT_OBJECTS TYPEDEF_AXIS "
     "TYPEDEF_BLOB TYPEDEF_CHARACTERISTIC TYPEDEF_MEASUREMENT TYPEDEF_STRUCTURE UNIT USER_RIGHTS "
     "VAR_ADDRESS VAR_CHARACTERISTIC VAR_CRITERION VAR_FORBIDDEN_COMB VARIANT_CODING VIRTUAL "
     "VIRTUAL_CHARACTERISTIC"},
    {kFirstProperty,
     "A2ML_VERSION ADDR_EPK ADDRESS_TYPE ALIGNMENT_BYTE ALIGNMENT_FLOAT16_IEEE "
     "ALIGNMENT_FLOAT32_IEEE ALIGNMENT_FLOAT64_IEEE ALIGNMENT_INT64 ALIGNMENT_LONG ALIGNMENT_WORD "
     "ANNOTATION_LABEL ANNOTATION_ORIGIN ARRAY_SIZE ASAP2_VERSION AR_PROTOTYPE_OF AXIS_PTS_REF "
     "AXIS_PTS_X AXIS_PTS_Y AXIS_PTS_Z AXIS_PTS_4 AXIS_PTS_5 "
     "AXIS_RESCALE_X AXIS_RESCALE_Y AXIS_RESCALE_Z AXIS_RESCALE_4 AXIS_RESCALE_5 "
     "BIT_MASK BYTE_ORDER CALIBRATION_ACCESS CALIBRATION_HANDLE_TEXT COEFFS COEFFS_LINEAR "
     "COMPARISON_QUANTITY COMPU_TAB_REF CONSISTENT_EXCHANGE CONVERSION CPU_TYPE CURVE_AXIS_REF "
     "CUSTOMER CUSTOMER_NO DATA_SIZE DEFAULT_VALUE DEFAULT_VALUE_NUMERIC DEPOSIT DISCRETE "
     "DISPLAY_IDENTIFIER DIST_OP_X DIST_OP_Y DIST_OP_Z DIST_OP_4 DIST_OP_5 "
     "ECU ECU_ADDRESS ECU_ADDRESS_EXTENSION ECU_CALIBRATION_OFFSET ENCODING EPK ERROR_MASK "
     "EXTENDED_LIMITS FIX_AXIS_PAR FIX_AXIS_PAR_DIST "
     "FIX_NO_AXIS_PTS_X FIX_NO_AXIS_PTS_Y FIX_NO_AXIS_PTS_Z FIX_NO_AXIS_PTS_4 FIX_NO_AXIS_PTS_5 "
     "FNC_VALUES FORMAT FORMULA_INV FRAME_MEASUREMENT FUNCTION_VERSION GUARD_RAILS IDENTIFICATION "
     "INPUT_QUANTITY LAYOUT LEFT_SHIFT LIMITS MATRIX_DIM MAX_GRAD MAX_REFRESH MODEL_LINK MONOTONY "
     "NO_AXIS_PTS_X NO_AXIS_PTS_Y NO_AXIS_PTS_Z NO_AXIS_PTS_4 NO_AXIS_PTS_5 NO_OF_INTERFACES "
     "NO_RESCALE_X NO_RESCALE_Y NO_RESCALE_Z NO_RESCALE_4 NO_RESCALE_5 NUMBER "
     "OFFSET_X OFFSET_Y OFFSET_Z OFFSET_4 OFFSET_5 PHONE_NO PHYS_UNIT PROJECT_NO READ_ONLY "
     "READ_WRITE REF_MEMORY_SEGMENT REF_UNIT RESERVED RIGHT_SHIFT "
     "RIP_ADDR_W RIP_ADDR_X RIP_ADDR_Y RIP_ADDR_Z RIP_ADDR_4 RIP_ADDR_5 ROOT "
     "SHIFT_OP_X SHIFT_OP_Y SHIFT_OP_Z SHIFT_OP_4 SHIFT_OP_5 SIGN_EXTEND SI_EXPONENTS "
     "SRC_ADDR_X SRC_ADDR_Y SRC_ADDR_Z SRC_ADDR_4 SRC_ADDR_5 STATIC_ADDRESS_OFFSETS "
     "STATIC_RECORD_LAYOUT STATUS_STRING_REF STEP_SIZE SUPPLIER SYMBOL_LINK SYMBOL_TYPE_LINK "
     "SYSTEM_CONSTANT S_REC_LAYOUT UNIT_CONVERSION USER VAR_MEASUREMENT VAR_NAMING VAR_SEPARATOR "
     "VAR_SELECTION_CHARACTERISTIC VERSION"},
};

/// The words of `text`. A word that ends in "_*" stands for the five keywords of a family, those
/// for the axes X, Y, Z, 4 and 5.
inline std::vector<std::string> Words(std::string_view text) {
  std::istringstream in{std::string(text)};
  std::vector<std::string> words;
  for (std::string word; in >> word;) {
    if (!word.ends_with("_*")) {
      words.push_back(word);
      continue;
    }
    word.pop_back();
    for (const char* axis : {"X", "Y", "Z", "4", "5"}) words.push_back(word + axis);
  }
  return words;
}

struct NumberedKeyword {
  std::int32_t number;
  std::string keyword;
};

/// All keywords, in the order of their numbers.
inline std::vector<NumberedKeyword> AllKeywords() {
  std::vector<NumberedKeyword> all;
  for (const KeywordGroup& group : kKeywordGroups) {
    std::int32_t number = group.first;
    for (const std::string& keyword : Words(group.keywords)) all.push_back({number++, keyword});
  }
  return all;
}

/// Numbers that stand for no kind: those in front of each group and behind it, those in front of
/// KIND_UNKNOWN and behind it, and the limits of the type. The 0 in front of the first group is
/// KIND_ROOT.
inline std::vector<std::int32_t> NumbersBesideTheKinds() {
  std::vector<std::int32_t> numbers = {-1, 25534, 25536, std::numeric_limits<std::int32_t>::max(),
                                       std::numeric_limits<std::int32_t>::min()};
  for (const KeywordGroup& group : kKeywordGroups) {
    if (group.first != 1) numbers.push_back(group.first - 1);
    numbers.push_back(group.first + static_cast<std::int32_t>(Words(group.keywords).size()));
  }
  return numbers;
}

/// The kinds that have elements: those of all keywords except ENCODING, and KIND_UNKNOWN.
inline std::vector<ElementKind> KindsWithAClass() {
  std::vector<ElementKind> kinds;
  for (const NumberedKeyword& keyword : AllKeywords()) {
    if (keyword.keyword != "ENCODING") kinds.push_back(static_cast<ElementKind>(keyword.number));
  }
  kinds.push_back(KIND_UNKNOWN);
  return kinds;
}

/// The keyword of `kind`, or its number; for messages.
inline std::string Shown(ElementKind kind) {
  const std::string_view keyword = KindToKeyword(kind);
  return keyword.empty() ? std::to_string(static_cast<std::int32_t>(kind)) : std::string(keyword);
}

}  // namespace a2l::test
