// SPDX-License-Identifier: MIT
#include "tests/generator/grammar.h"

#include <algorithm>
#include <cctype>
#include <stdexcept>

namespace a2l::test {
namespace {

const std::vector<WordSet>& WordSets() {
  static const std::vector<WordSet> sets = {
      {"DataType",
       {"UBYTE", "SBYTE", "UWORD", "SWORD", "ULONG", "SLONG", "A_UINT64", "A_INT64", "FLOAT32_IEEE",
        "FLOAT64_IEEE"},
       "UBYTE"},
      {"IndexOrder", {"INDEX_INCR", "INDEX_DECR"}, "INDEX_INCR"},
      {"AddrType", {"PBYTE", "PWORD", "PLONG", "DIRECT"}, "DIRECT"},
      {"DataSize", {"BYTE", "WORD", "LONG"}, "BYTE"},
      {"IndexMode",
       {"ALTERNATE_CURVES", "ALTERNATE_WITH_X", "ALTERNATE_WITH_Y", "COLUMN_DIR", "ROW_DIR"},
       ""},
      {"LayoutType", {"PRG_CODE", "PRG_DATA", "PRG_RESERVED"}, ""},
      {"SegmentType",
       {"CALIBRATION_VARIABLES", "CODE", "DATA", "EXCLUDE_FROM_FLASH", "RESERVED", "SERAM",
        "VARIABLES"},
       ""},
      {"MemoryType", {"EEPROM", "EPROM", "FLASH", "RAM", "ROM", "REGISTER"}, ""},
      {"MemoryAttribute", {"INTERN", "EXTERN"}, ""},
      {"CharacteristicType",
       {"ASCII", "CURVE", "MAP", "CUBOID", "CUBE_4", "CUBE_5", "VAL_BLK", "VALUE"},
       ""},
      {"AxisAttribute", {"CURVE_AXIS", "COM_AXIS", "FIX_AXIS", "RES_AXIS", "STD_AXIS"}, ""},
      {"MethodType",
       {"IDENTICAL", "FORM", "LINEAR", "RAT_FUNC", "TAB_INTP", "TAB_NOINTP", "TAB_VERB"},
       ""},
      {"TableType", {"TAB_INTP", "TAB_NOINTP"}, ""},
      {"VerbalType", {"TAB_VERB"}, ""},
      {"UnitType", {"DERIVED", "EXTENDED_SI"}, ""},
      {"ByteOrder", {"LITTLE_ENDIAN", "BIG_ENDIAN", "MSB_LAST", "MSB_FIRST"}, "", true},
      {"CalibrationAccess", {"CALIBRATION", "NOT_IN_MCD_SYSTEM"}, "", true},
      {"DepositMode", {"ABSOLUTE", "DIFFERENCE"}, ""},
      {"LayoutMode", {"ROW_DIR", "COLUMN_DIR"}, ""},
      {"Monotony",
       {"MON_DECREASE", "MON_INCREASE", "STRICT_DECREASE", "STRICT_INCREASE", "MONOTONOUS",
        "STRICT_MON", "NOT_MON"},
       ""},
      {"Naming", {"NUMERIC"}, ""},
  };
  return sets;
}

std::vector<std::string_view> Split(std::string_view text) {
  std::vector<std::string_view> words;
  while (!text.empty()) {
    const std::string_view word = text.substr(0, text.find(' '));
    if (!word.empty()) words.push_back(word);
    text.remove_prefix(std::min(word.size() + 1, text.size()));
  }
  return words;
}

// "NAME:n": a name, and a type by a letter or a set of words. The letters:
// n name, t text, u unsigned, a address, i signed, m mask, r real, c checked, d discarded
Parameter ReadParameter(std::string_view text) {
  const std::size_t colon = text.find(':');
  const std::string_view type = text.substr(colon + 1);
  Parameter parameter{text.substr(0, colon)};
  constexpr std::string_view kLetters = "ntuaimrcd";
  constexpr ParameterType kTypes[] = {
      ParameterType::Name,    ParameterType::Text,    ParameterType::Unsigned,
      ParameterType::Address, ParameterType::Signed,  ParameterType::Mask,
      ParameterType::Real,    ParameterType::Checked, ParameterType::Discarded};
  if (type.size() == 1) {
    parameter.type = kTypes[kLetters.find(type.front())];
    return parameter;
  }
  parameter.type = ParameterType::Word;
  const auto words = std::ranges::find(WordSets(), type, &WordSet::name);
  if (words == WordSets().end()) throw std::logic_error("no words: " + std::string(type));
  parameter.words = &*words;
  return parameter;
}

std::vector<Parameter> ReadParameters(std::string_view text) {
  std::vector<Parameter> parameters;
  for (const std::string_view word : Split(text)) parameters.push_back(ReadParameter(word));
  return parameters;
}

// "parameters | list | columns"
Keyword ReadKeyword(std::string_view text, bool isBlock, std::string_view parameters,
                    std::string_view children) {
  Keyword keyword;
  keyword.text = text;
  keyword.isBlock = isBlock;
  const auto takePart = [&parameters] {
    const std::string_view part = parameters.substr(0, parameters.find('|'));
    parameters.remove_prefix(std::min(part.size() + 1, parameters.size()));
    return ReadParameters(part);
  };
  keyword.parameters = takePart();
  keyword.list = takePart();
  keyword.columns = takePart();
  keyword.children = Split(children);
  return keyword;
}

struct BlockRow {
  std::string_view text;
  std::string_view parameters;
  std::string_view children;
};

constexpr BlockRow kBlocks[] = {
    {"PROJECT", "NAME:n LONG_IDENTIFIER:t", "HEADER MODULE"},
    {"HEADER", "COMMENT:t", "PROJECT_NO VERSION"},
    {"MODULE", "NAME:n LONG_IDENTIFIER:t",
     "A2ML AXIS_PTS BLOB CHARACTERISTIC COMPU_METHOD COMPU_TAB COMPU_VTAB COMPU_VTAB_RANGE FRAME "
     "FUNCTION GROUP IF_DATA INSTANCE MEASUREMENT MOD_COMMON MOD_PAR RECORD_LAYOUT TRANSFORMER "
     "TYPEDEF_AXIS TYPEDEF_BLOB TYPEDEF_CHARACTERISTIC TYPEDEF_MEASUREMENT TYPEDEF_STRUCTURE UNIT "
     "USER_RIGHTS VARIANT_CODING"},
    {"MOD_PAR", "COMMENT:t",
     "ADDR_EPK CALIBRATION_METHOD CPU_TYPE CUSTOMER CUSTOMER_NO ECU ECU_CALIBRATION_OFFSET EPK "
     "MEMORY_LAYOUT MEMORY_SEGMENT NO_OF_INTERFACES PHONE_NO SUPPLIER SYSTEM_CONSTANT USER "
     "VERSION"},
    {"MOD_COMMON", "COMMENT:t",
     "ALIGNMENT_BYTE ALIGNMENT_FLOAT16_IEEE ALIGNMENT_FLOAT32_IEEE ALIGNMENT_FLOAT64_IEEE "
     "ALIGNMENT_INT64 ALIGNMENT_LONG ALIGNMENT_WORD BYTE_ORDER DATA_SIZE DEPOSIT S_REC_LAYOUT"},
    {"MEMORY_LAYOUT", "PRG_TYPE:LayoutType ADDRESS:a SIZE:u O1:i O2:i O3:i O4:i O5:i", "IF_DATA"},
    {"MEMORY_SEGMENT",
     "NAME:n LONG_IDENTIFIER:t PRG_TYPE:SegmentType MEMORY_TYPE:MemoryType "
     "ATTRIBUTE:MemoryAttribute ADDRESS:a SIZE:u O1:i O2:i O3:i O4:i O5:i",
     "IF_DATA"},
    {"MEASUREMENT",
     "NAME:n LONG_IDENTIFIER:t DATATYPE:DataType CONVERSION:n RESOLUTION:u ACCURACY:r "
     "LOWER_LIMIT:r UPPER_LIMIT:r",
     "ADDRESS_TYPE ANNOTATION ARRAY_SIZE BIT_MASK BIT_OPERATION BYTE_ORDER DISCRETE "
     "DISPLAY_IDENTIFIER ECU_ADDRESS ECU_ADDRESS_EXTENSION ERROR_MASK FORMAT FUNCTION_LIST IF_DATA "
     "LAYOUT MATRIX_DIM MAX_REFRESH MODEL_LINK PHYS_UNIT READ_WRITE REF_MEMORY_SEGMENT "
     "SYMBOL_LINK VIRTUAL"},
    {"BIT_OPERATION", "", "LEFT_SHIFT RIGHT_SHIFT SIGN_EXTEND"},
    {"CHARACTERISTIC",
     "NAME:n LONG_IDENTIFIER:t CHARACTERISTIC_TYPE:CharacteristicType ADDRESS:a DEPOSIT:n "
     "MAX_DIFF:r CONVERSION:n LOWER_LIMIT:r UPPER_LIMIT:r",
     "ANNOTATION AXIS_DESCR BIT_MASK BYTE_ORDER CALIBRATION_ACCESS COMPARISON_QUANTITY "
     "DEPENDENT_CHARACTERISTIC DISCRETE DISPLAY_IDENTIFIER ECU_ADDRESS_EXTENSION EXTENDED_LIMITS "
     "FORMAT FUNCTION_LIST GUARD_RAILS IF_DATA MAP_LIST MATRIX_DIM MAX_REFRESH MODEL_LINK NUMBER "
     "PHYS_UNIT READ_ONLY REF_MEMORY_SEGMENT STEP_SIZE SYMBOL_LINK VIRTUAL_CHARACTERISTIC"},
    {"AXIS_DESCR",
     "ATTRIBUTE:AxisAttribute INPUT_QUANTITY:n CONVERSION:n MAX_AXIS_POINTS:u LOWER_LIMIT:r "
     "UPPER_LIMIT:r",
     "ANNOTATION AXIS_PTS_REF BYTE_ORDER CURVE_AXIS_REF DEPOSIT EXTENDED_LIMITS FIX_AXIS_PAR "
     "FIX_AXIS_PAR_DIST FIX_AXIS_PAR_LIST FORMAT MAX_GRAD MONOTONY PHYS_UNIT READ_ONLY STEP_SIZE"},
    {"AXIS_PTS",
     "NAME:n LONG_IDENTIFIER:t ADDRESS:a INPUT_QUANTITY:n DEPOSIT:n MAX_DIFF:r CONVERSION:n "
     "MAX_AXIS_POINTS:u LOWER_LIMIT:r UPPER_LIMIT:r",
     "ANNOTATION BYTE_ORDER CALIBRATION_ACCESS DEPOSIT DISPLAY_IDENTIFIER ECU_ADDRESS_EXTENSION "
     "EXTENDED_LIMITS FORMAT FUNCTION_LIST GUARD_RAILS IF_DATA MAX_REFRESH MODEL_LINK MONOTONY "
     "PHYS_UNIT READ_ONLY REF_MEMORY_SEGMENT STEP_SIZE SYMBOL_LINK"},
    {"BLOB", "NAME:n LONG_IDENTIFIER:t ADDRESS:a SIZE:u",
     "ADDRESS_TYPE ANNOTATION CALIBRATION_ACCESS DISPLAY_IDENTIFIER ECU_ADDRESS_EXTENSION IF_DATA "
     "MAX_REFRESH MODEL_LINK SYMBOL_LINK"},
    {"DEPENDENT_CHARACTERISTIC", "FORMULA:t | CHARACTERISTIC:n", ""},
    {"VIRTUAL_CHARACTERISTIC", "FORMULA:t | CHARACTERISTIC:n", ""},
    {"FIX_AXIS_PAR_LIST", "| FIX_AXIS_PAR_LIST:r", ""},
    {"COMPU_METHOD", "NAME:n LONG_IDENTIFIER:t CONVERSION_TYPE:MethodType FORMAT:t UNIT:t",
     "COEFFS COEFFS_LINEAR COMPU_TAB_REF FORMULA REF_UNIT STATUS_STRING_REF"},
    {"COMPU_TAB",
     "NAME:n LONG_IDENTIFIER:t CONVERSION_TYPE:TableType NUMBER_VALUE_PAIRS:u || IN_VAL:r "
     "OUT_VAL:r",
     "DEFAULT_VALUE DEFAULT_VALUE_NUMERIC"},
    {"COMPU_VTAB",
     "NAME:n LONG_IDENTIFIER:t CONVERSION_TYPE:VerbalType NUMBER_VALUE_PAIRS:u || IN_VAL:r "
     "OUT_VAL:t",
     "DEFAULT_VALUE"},
    {"COMPU_VTAB_RANGE",
     "NAME:n LONG_IDENTIFIER:t NUMBER_VALUE_TRIPLES:u || IN_VAL_MIN:r IN_VAL_MAX:r OUT_VAL:t",
     "DEFAULT_VALUE"},
    {"FORMULA", "FORMULA:t", "FORMULA_INV"},
    {"RECORD_LAYOUT", "NAME:n",
     "ALIGNMENT_BYTE ALIGNMENT_FLOAT16_IEEE ALIGNMENT_FLOAT32_IEEE ALIGNMENT_FLOAT64_IEEE "
     "ALIGNMENT_INT64 ALIGNMENT_LONG ALIGNMENT_WORD AXIS_PTS_X AXIS_PTS_Y AXIS_PTS_Z AXIS_PTS_4 "
     "AXIS_PTS_5 AXIS_RESCALE_X AXIS_RESCALE_Y AXIS_RESCALE_Z AXIS_RESCALE_4 AXIS_RESCALE_5 "
     "DIST_OP_X DIST_OP_Y DIST_OP_Z DIST_OP_4 DIST_OP_5 FIX_NO_AXIS_PTS_X FIX_NO_AXIS_PTS_Y "
     "FIX_NO_AXIS_PTS_Z FIX_NO_AXIS_PTS_4 FIX_NO_AXIS_PTS_5 FNC_VALUES IDENTIFICATION "
     "NO_AXIS_PTS_X NO_AXIS_PTS_Y NO_AXIS_PTS_Z NO_AXIS_PTS_4 NO_AXIS_PTS_5 NO_RESCALE_X "
     "NO_RESCALE_Y NO_RESCALE_Z NO_RESCALE_4 NO_RESCALE_5 OFFSET_X OFFSET_Y OFFSET_Z OFFSET_4 "
     "OFFSET_5 RESERVED RIP_ADDR_W RIP_ADDR_X RIP_ADDR_Y RIP_ADDR_Z RIP_ADDR_4 RIP_ADDR_5 "
     "SHIFT_OP_X SHIFT_OP_Y SHIFT_OP_Z SHIFT_OP_4 SHIFT_OP_5 SRC_ADDR_X SRC_ADDR_Y SRC_ADDR_Z "
     "SRC_ADDR_4 SRC_ADDR_5 STATIC_ADDRESS_OFFSETS STATIC_RECORD_LAYOUT"},
    {"FUNCTION", "NAME:n LONG_IDENTIFIER:t",
     "ANNOTATION AR_COMPONENT DEF_CHARACTERISTIC FUNCTION_VERSION IF_DATA IN_MEASUREMENT "
     "LOC_MEASUREMENT OUT_MEASUREMENT REF_CHARACTERISTIC SUB_FUNCTION"},
    {"GROUP", "GROUP_NAME:n GROUP_LONG_IDENTIFIER:t",
     "ANNOTATION FUNCTION_LIST IF_DATA REF_CHARACTERISTIC REF_MEASUREMENT ROOT SUB_GROUP"},
    {"DEF_CHARACTERISTIC", "| I:n", ""},
    {"FUNCTION_LIST", "| I:n", ""},
    {"IN_MEASUREMENT", "| I:n", ""},
    {"LOC_MEASUREMENT", "| I:n", ""},
    {"MAP_LIST", "| I:n", ""},
    {"OUT_MEASUREMENT", "| I:n", ""},
    {"REF_CHARACTERISTIC", "| I:n", ""},
    {"REF_GROUP", "| I:n", ""},
    {"REF_MEASUREMENT", "| I:n", ""},
    {"SUB_FUNCTION", "| I:n", ""},
    {"SUB_GROUP", "| I:n", ""},
    {"ANNOTATION_TEXT", "| I:t", ""},
    {"TRANSFORMER_IN_OBJECTS", "| I:t", ""},
    {"TRANSFORMER_OUT_OBJECTS", "| I:t", ""},
    {"FRAME", "NAME:n LONG_IDENTIFIER:t SCALING_UNIT:u RATE:u", "FRAME_MEASUREMENT IF_DATA"},
    {"INSTANCE", "NAME:n LONG_IDENTIFIER:t TYPEDEF_NAME:n ADDRESS:a",
     "ADDRESS_TYPE ANNOTATION CALIBRATION_ACCESS DISPLAY_IDENTIFIER ECU_ADDRESS_EXTENSION IF_DATA "
     "LAYOUT MATRIX_DIM MAX_REFRESH MODEL_LINK OVERWRITE READ_WRITE SYMBOL_LINK"},
    {"OVERWRITE", "NAME:n AXIS_NUMBER:u",
     "CONVERSION EXTENDED_LIMITS FORMAT INPUT_QUANTITY LIMITS MONOTONY PHYS_UNIT"},
    {"STRUCTURE_COMPONENT", "NAME:n TYPEDEF_NAME:n ADDRESS_OFFSET:u",
     "ADDRESS_TYPE LAYOUT MATRIX_DIM SYMBOL_TYPE_LINK"},
    {"ANNOTATION", "", "ANNOTATION_LABEL ANNOTATION_ORIGIN ANNOTATION_TEXT"},
    {"AR_COMPONENT", "COMPONENT_TYPE:t", "AR_PROTOTYPE_OF"},
    {"CALIBRATION_METHOD", "METHOD:t VERSION:u", "CALIBRATION_HANDLE"},
    {"CALIBRATION_HANDLE", "| HANDLE:i", "CALIBRATION_HANDLE_TEXT"},
    {"TRANSFORMER",
     "NAME:n VERSION:t EXECUTABLE32:t EXECUTABLE64:t TIMEOUT:c TRIGGER:d INVERSE_TRANSFORMER:d",
     "TRANSFORMER_IN_OBJECTS TRANSFORMER_OUT_OBJECTS"},
    {"TYPEDEF_AXIS",
     "NAME:n LONG_IDENTIFIER:t INPUT_QUANTITY:n RECORD_LAYOUT:n MAX_DIFF:r CONVERSION:n "
     "MAX_AXIS_POINTS:u LOWER_LIMIT:r UPPER_LIMIT:r",
     "BYTE_ORDER DEPOSIT EXTENDED_LIMITS FORMAT MONOTONY PHYS_UNIT STEP_SIZE"},
    {"TYPEDEF_BLOB", "NAME:n LONG_IDENTIFIER:t SIZE:u", "ADDRESS_TYPE"},
    {"TYPEDEF_CHARACTERISTIC",
     "NAME:n LONG_IDENTIFIER:t CHARACTERISTIC_TYPE:CharacteristicType RECORD_LAYOUT:n MAX_DIFF:r "
     "CONVERSION:n LOWER_LIMIT:r UPPER_LIMIT:r",
     "AXIS_DESCR BIT_MASK BYTE_ORDER DISCRETE EXTENDED_LIMITS FORMAT MATRIX_DIM NUMBER PHYS_UNIT "
     "STEP_SIZE"},
    {"TYPEDEF_MEASUREMENT",
     "NAME:n LONG_IDENTIFIER:t DATATYPE:DataType CONVERSION:n RESOLUTION:u ACCURACY:r "
     "LOWER_LIMIT:r UPPER_LIMIT:r",
     "ADDRESS_TYPE BIT_MASK BIT_OPERATION BYTE_ORDER DISCRETE ERROR_MASK FORMAT LAYOUT MATRIX_DIM "
     "PHYS_UNIT"},
    {"TYPEDEF_STRUCTURE", "NAME:n LONG_IDENTIFIER:t SIZE:u",
     "ADDRESS_TYPE CONSISTENT_EXCHANGE STRUCTURE_COMPONENT SYMBOL_TYPE_LINK"},
    {"UNIT", "NAME:n LONG_IDENTIFIER:t DISPLAY:t UNIT_TYPE:UnitType",
     "REF_UNIT SI_EXPONENTS UNIT_CONVERSION"},
    {"VARIANT_CODING", "",
     "VAR_CHARACTERISTIC VAR_CRITERION VAR_FORBIDDEN_COMB VAR_NAMING VAR_SEPARATOR"},
    {"VAR_CRITERION", "NAME:n LONG_IDENTIFIER:t | VALUE:n",
     "VAR_MEASUREMENT VAR_SELECTION_CHARACTERISTIC"},
    {"VAR_CHARACTERISTIC", "NAME:n | CRITERION_NAME:n", "VAR_ADDRESS"},
    {"VAR_ADDRESS", "| VAR_ADDRESS:u", ""},
    {"VAR_FORBIDDEN_COMB", "| CRITERION_NAME:n VALUE:n", ""},
    {"USER_RIGHTS", "USER_LEVEL_ID:n", "REF_GROUP READ_ONLY"},
    {"VIRTUAL", "| I:n", ""},
    {"A2ML", "", ""},
    {"IF_DATA", "", ""},
};

struct PropertyRow {
  std::string_view keywords;  // all have these parameters
  std::string_view parameters;
};

// VALUE stands for the keyword itself.
constexpr PropertyRow kProperties[] = {
    {"A2ML_VERSION ASAP2_VERSION", "VERSION_NO:u UPGRADE_NO:u"},
    {"ANNOTATION_LABEL ANNOTATION_ORIGIN CALIBRATION_HANDLE_TEXT CPU_TYPE CUSTOMER CUSTOMER_NO "
     "DEFAULT_VALUE ECU EPK FORMAT FORMULA_INV FUNCTION_VERSION MODEL_LINK PHONE_NO PHYS_UNIT "
     "SUPPLIER SYMBOL_TYPE_LINK USER VAR_SEPARATOR VERSION",
     "VALUE:t"},
    {"AR_PROTOTYPE_OF AXIS_PTS_REF COMPARISON_QUANTITY COMPU_TAB_REF CONVERSION CURVE_AXIS_REF "
     "DISPLAY_IDENTIFIER INPUT_QUANTITY PROJECT_NO REF_MEMORY_SEGMENT REF_UNIT S_REC_LAYOUT "
     "STATUS_STRING_REF VAR_MEASUREMENT VAR_SELECTION_CHARACTERISTIC",
     "VALUE:n"},
    {"ADDR_EPK ALIGNMENT_BYTE ALIGNMENT_FLOAT16_IEEE ALIGNMENT_FLOAT32_IEEE ALIGNMENT_FLOAT64_IEEE "
     "ALIGNMENT_INT64 ALIGNMENT_LONG ALIGNMENT_WORD ARRAY_SIZE DATA_SIZE LEFT_SHIFT "
     "NO_OF_INTERFACES NUMBER RIGHT_SHIFT",
     "VALUE:u"},
    {"ECU_ADDRESS", "VALUE:a"},
    {"ECU_ADDRESS_EXTENSION ECU_CALIBRATION_OFFSET", "VALUE:i"},
    {"BIT_MASK ERROR_MASK", "VALUE:m"},
    {"DEFAULT_VALUE_NUMERIC MAX_GRAD STEP_SIZE", "VALUE:r"},
    {"MAX_REFRESH", "SCALING_UNIT:u RATE:u"},
    {"COEFFS", "A:r B:r C:r D:r E:r F:r"},
    {"COEFFS_LINEAR", "A:r B:r"},
    {"EXTENDED_LIMITS LIMITS", "LOWER_LIMIT:r UPPER_LIMIT:r"},
    {"UNIT_CONVERSION", "GRADIENT:r OFFSET:r"},
    {"FIX_AXIS_PAR", "OFFSET:i SHIFT:i NUMBERAPO:u"},
    {"FIX_AXIS_PAR_DIST", "OFFSET:r DISTANCE:r NUMBERAPO:u"},
    {"SI_EXPONENTS",
     "LENGTH:i MASS:i TIME:i ELECTRIC_CURRENT:i TEMPERATURE:i AMOUNT_OF_SUBSTANCE:i "
     "LUMINOUS_INTENSITY:i"},
    {"SYMBOL_LINK", "SYMBOL_NAME:t OFFSET:i"},
    {"SYSTEM_CONSTANT", "NAME:t VALUE:t"},
    {"BYTE_ORDER", "VALUE:ByteOrder"},
    {"CALIBRATION_ACCESS", "VALUE:CalibrationAccess"},
    {"DEPOSIT", "VALUE:DepositMode"},
    {"LAYOUT", "VALUE:LayoutMode"},
    {"MONOTONY", "VALUE:Monotony"},
    {"VAR_NAMING", "VALUE:Naming"},
    {"ADDRESS_TYPE", "VALUE:AddrType"},
    {"CONSISTENT_EXCHANGE DISCRETE GUARD_RAILS READ_ONLY READ_WRITE ROOT SIGN_EXTEND "
     "STATIC_ADDRESS_OFFSETS STATIC_RECORD_LAYOUT",
     ""},
    {"MATRIX_DIM", "| VALUE:u"},
    {"FRAME_MEASUREMENT", "| VALUE:n"},
    {"AXIS_PTS_X AXIS_PTS_Y AXIS_PTS_Z AXIS_PTS_4 AXIS_PTS_5",
     "POSITION:u DATA_TYPE:DataType INDEX_INCR:IndexOrder ADDRESSING:AddrType"},
    {"AXIS_RESCALE_X AXIS_RESCALE_Y AXIS_RESCALE_Z AXIS_RESCALE_4 AXIS_RESCALE_5",
     "POSITION:u DATA_TYPE:DataType MAX_NUMBER_OF_RESCALE_PAIRS:u INDEX_INCR:IndexOrder "
     "ADDRESSING:AddrType"},
    {"FNC_VALUES", "POSITION:u DATA_TYPE:DataType INDEX_MODE:IndexMode ADDRESS_TYPE:AddrType"},
    {"DIST_OP_X DIST_OP_Y DIST_OP_Z DIST_OP_4 DIST_OP_5 NO_AXIS_PTS_X NO_AXIS_PTS_Y NO_AXIS_PTS_Z "
     "NO_AXIS_PTS_4 NO_AXIS_PTS_5 NO_RESCALE_X NO_RESCALE_Y NO_RESCALE_Z NO_RESCALE_4 "
     "NO_RESCALE_5 OFFSET_X OFFSET_Y OFFSET_Z OFFSET_4 OFFSET_5 RIP_ADDR_W RIP_ADDR_X RIP_ADDR_Y "
     "RIP_ADDR_Z RIP_ADDR_4 RIP_ADDR_5 SHIFT_OP_X SHIFT_OP_Y SHIFT_OP_Z SHIFT_OP_4 SHIFT_OP_5 "
     "SRC_ADDR_X SRC_ADDR_Y SRC_ADDR_Z SRC_ADDR_4 SRC_ADDR_5 IDENTIFICATION",
     "POSITION:u DATA_TYPE:DataType"},
    {"FIX_NO_AXIS_PTS_X FIX_NO_AXIS_PTS_Y FIX_NO_AXIS_PTS_Z FIX_NO_AXIS_PTS_4 FIX_NO_AXIS_PTS_5",
     "NUMBER_OF_AXIS_POINTS:u"},
    {"RESERVED", "POSITION:u DATA_TYPE:DataSize"},
};

std::vector<Keyword> MakeGrammar() {
  std::vector<Keyword> grammar;
  for (const BlockRow& row : kBlocks) {
    Keyword keyword = ReadKeyword(row.text, true, row.parameters, row.children);
    keyword.isRaw = row.text == "A2ML" || row.text == "IF_DATA";
    for (const char* object : {"MEASUREMENT", "CHARACTERISTIC", "AXIS_PTS", "BLOB", "INSTANCE"}) {
      if (row.text == object) keyword.onWrongNumber = OnWrongNumber::MarkAndGoOn;
    }
    grammar.push_back(std::move(keyword));
  }
  for (const PropertyRow& row : kProperties) {
    for (const std::string_view text : Split(row.keywords)) {
      Keyword keyword = ReadKeyword(text, false, row.parameters, "");
      for (Parameter& parameter : keyword.parameters) {
        if (parameter.name == "VALUE" && keyword.parameters.size() == 1) parameter.name = text;
      }
      grammar.push_back(std::move(keyword));
    }
  }
  return grammar;
}

}  // namespace

bool Keyword::Accepts(std::string_view child) const {
  return std::ranges::find(children, child) != children.end();
}

const std::vector<Keyword>& Grammar() {
  static const std::vector<Keyword> grammar = MakeGrammar();
  return grammar;
}

const Keyword& Find(std::string_view text) {
  const auto found = std::ranges::find(Grammar(), text, &Keyword::text);
  if (found == Grammar().end()) throw std::logic_error("no keyword: " + std::string(text));
  return *found;
}

}  // namespace a2l::test
