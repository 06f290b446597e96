// SPDX-License-Identifier: MIT
#include "a2l2json/elements/properties/numbers.h"

#include <string>

#include <gtest/gtest.h>

#include "a2l2json/reader/element_factory.h"
#include "tests/support/kinds.h"
#include "tests/support/parsing.h"
#include "tests/support/trees.h"

namespace a2l::test {
namespace {

// A keyword with one number, a token for it, and the number as it is written.
struct NumberRow {
  std::string keyword, token, written;
};

TEST(NumberProperties, AreWrittenInTheirForm) {
  const NumberRow rows[] = {
      {"ADDR_EPK", "0x1F00", "0x1F00"},
      {"ADDR_EPK", "7936", "0x1F00"},
      {"ALIGNMENT_BYTE", "0x10", "16"},
      {"ALIGNMENT_FLOAT16_IEEE", "0x10", "16"},
      {"ALIGNMENT_FLOAT32_IEEE", "0x10", "16"},
      {"ALIGNMENT_FLOAT64_IEEE", "0x10", "16"},
      {"ALIGNMENT_INT64", "0x10", "16"},
      {"ALIGNMENT_LONG", "0x10", "16"},
      {"ALIGNMENT_WORD", "0x10", "16"},
      {"ARRAY_SIZE", "40000", "32767"},
      {"ARRAY_SIZE", "32768", "32767"},
      {"ARRAY_SIZE", "32767", "32767"},
      {"ARRAY_SIZE", "32766", "32766"},
      {"ARRAY_SIZE", "-1", "32767"},
      {"ARRAY_SIZE", "0", "0"},
      {"BIT_MASK", "0xFFFFFFFFFFFFFFFF", "0xFFFFFFFFFFFFFFFF"},
      {"BIT_MASK", "0x0ff", "0xFF"},
      {"BIT_MASK", "-1", "0xFFFFFFFFFFFFFFFF"},
      {"DATA_SIZE", "0x20", "32"},
      {"DEFAULT_VALUE_NUMERIC", "1E3", "1000"},
      {"ECU_ADDRESS", "0x1F00", "0x1F00"},
      {"ECU_ADDRESS", "7936", "0x1F00"},
      {"ECU_ADDRESS", "010", "0x8"},
      {"ECU_ADDRESS", "0", "0x0"},
      {"ECU_ADDRESS", "0x123456789", "0xFFFFFFFF"},
      {"ECU_ADDRESS", "0xabcd_ef", "0xABCD"},
      {"ECU_ADDRESS_EXTENSION", "-1", "-1"},
      {"ECU_ADDRESS_EXTENSION", "0xFFFFFFFF", "2147483647"},
      {"ECU_CALIBRATION_OFFSET", "26", "0x1A"},
      {"ECU_CALIBRATION_OFFSET", "-26", "0x-1A"},
      {"ERROR_MASK", "0x100000000", "0x100000000"},
      {"LEFT_SHIFT", "4", "4"},
      {"MAX_GRAD", "0.10", "0.1"},
      {"NO_OF_INTERFACES", "2", "2"},
      {"NUMBER", "4294967295", "4294967295"},
      {"RIGHT_SHIFT", "8", "8"},
      {"STEP_SIZE", "1e20", "1e+20"},
      {"STEP_SIZE", "100", "100"},
      {"STEP_SIZE", ".5", "0.5"},
      {"FIX_NO_AXIS_PTS_X", "0x10", "16"},
  };
  for (const NumberRow& row : rows) {
    ExpectParse(
        {row.keyword, " " + row.token + " x", true, " x", row.keyword + " " + row.written + "\n"});
  }
}

TEST(NumberProperties, AreWrongWithoutANumberAndStoreZero) {
  for (const std::string& keyword :
       Words("ADDR_EPK ALIGNMENT_BYTE ALIGNMENT_FLOAT16_IEEE ALIGNMENT_FLOAT32_IEEE "
             "ALIGNMENT_FLOAT64_IEEE ALIGNMENT_INT64 ALIGNMENT_LONG ALIGNMENT_WORD ARRAY_SIZE "
             "BIT_MASK DATA_SIZE DEFAULT_VALUE_NUMERIC ECU_ADDRESS ECU_ADDRESS_EXTENSION "
             "ECU_CALIBRATION_OFFSET ERROR_MASK LEFT_SHIFT MAX_GRAD NO_OF_INTERFACES NUMBER "
             "RIGHT_SHIFT STEP_SIZE")) {
    const bool hexadecimal = keyword == "ADDR_EPK" || keyword == "BIT_MASK" ||
                             keyword == "ECU_ADDRESS" || keyword == "ECU_CALIBRATION_OFFSET" ||
                             keyword == "ERROR_MASK";
    const std::string zero = keyword + (hexadecimal ? " 0x0\n" : " 0\n");
    const ParseRow rows[] = {
        {keyword, " zz 5", false, " 5", zero},
        {keyword, " \"5\" 6", false, " 6", zero},
        {keyword, " - 5", false, " 5", zero},
        {keyword, "", false, "", zero},
    };
    ExpectParse(rows);
  }
}

TEST(NumberProperties, HaveDefaultsUntilTheyAreRead) {
  const NumberRow rows[] = {
      {"ALIGNMENT_BYTE", "", "1"},
      {"ALIGNMENT_FLOAT16_IEEE", "", "2"},
      {"ALIGNMENT_FLOAT32_IEEE", "", "4"},
      {"ALIGNMENT_FLOAT64_IEEE", "", "8"},
      {"ALIGNMENT_INT64", "", "8"},
      {"ALIGNMENT_LONG", "", "4"},
      {"ALIGNMENT_WORD", "", "2"},
      {"ARRAY_SIZE", "", "0"},
      {"BIT_MASK", "", "0x0"},
      {"ECU_ADDRESS", "", "0x0"},
      {"ECU_CALIBRATION_OFFSET", "", "0x0"},
      {"MAX_GRAD", "", "0"},
      {"COEFFS", "", "0 0 0 0 0 0"},
      {"SI_EXPONENTS", "", "0 0 0 0 0 0 0"},
      {"ASAP2_VERSION", "", "0 0"},
      {"FIX_AXIS_PAR_DIST", "", "0 0 0"},
  };
  Tree root(NewTree());
  for (const NumberRow& row : rows) {
    EXPECT_EQ(Written(*CreateElement(KeywordToKind(row.keyword), *root)),
              row.keyword + " " + row.written + "\n");
  }
}

// The first malformed number ends the read. The values behind it keep their defaults.
TEST(NumberProperties, WithSeveralNumbersStopAtTheFirstWrongOne) {
  const ParseRow rows[] = {
      {"A2ML_VERSION", " 1 31 x", true, " x", "A2ML_VERSION 1 31\n"},
      {"A2ML_VERSION", " 1", false, "", "A2ML_VERSION 1 0\n"},
      {"ASAP2_VERSION", " 1 0x47", true, "", "ASAP2_VERSION 1 71\n"},
      {"ASAP2_VERSION", " x 71", false, " 71", "ASAP2_VERSION 0 0\n"},
      {"MAX_REFRESH", " 3 100", true, "", "MAX_REFRESH 3 100\n"},
      {"MAX_REFRESH", " 3 x", false, "", "MAX_REFRESH 3 0\n"},
      {"COEFFS", " 0 1.50 -2 1e3 .5 6 7", true, " 7", "COEFFS 0 1.5 -2 1000 0.5 6\n"},
      {"COEFFS", " 1 2 x 4 5 6", false, " 4 5 6", "COEFFS 1 2 0 0 0 0\n"},
      {"COEFFS_LINEAR", " 0.25 -40", true, "", "COEFFS_LINEAR 0.25 -40\n"},
      {"COEFFS_LINEAR", " 2 ", false, "", "COEFFS_LINEAR 2 0\n"},
      {"EXTENDED_LIMITS", " -1e308 1e308", true, "", "EXTENDED_LIMITS -1e+308 1e+308\n"},
      {"EXTENDED_LIMITS", " 1 \"2\"", false, "", "EXTENDED_LIMITS 1 0\n"},
      {"LIMITS", " 0.10 1E3", true, "", "LIMITS 0.1 1000\n"},
      {"LIMITS", " low 5", false, " 5", "LIMITS 0 0\n"},
      {"UNIT_CONVERSION", " 1000 0", true, "", "UNIT_CONVERSION 1000 0\n"},
      {"UNIT_CONVERSION", "", false, "", "UNIT_CONVERSION 0 0\n"},
      {"FIX_AXIS_PAR", " -5 0x2 07", true, "", "FIX_AXIS_PAR -5 2 7\n"},
      {"FIX_AXIS_PAR", " 1.9 2.9 3.9", true, "", "FIX_AXIS_PAR 1 2 3\n"},
      {"FIX_AXIS_PAR", " 1 x 3", false, " 3", "FIX_AXIS_PAR 1 0 0\n"},
      {"FIX_AXIS_PAR_DIST", " 1.9 0.5 3.9", true, "", "FIX_AXIS_PAR_DIST 1.9 0.5 3\n"},
      {"FIX_AXIS_PAR_DIST", " 1 2", false, "", "FIX_AXIS_PAR_DIST 1 2 0\n"},
      {"SI_EXPONENTS", " 1 2 -2 3 -4 5 6", true, "", "SI_EXPONENTS 1 2 -2 3 -4 5 6\n"},
      {"SI_EXPONENTS", " 1 0 -2", false, "", "SI_EXPONENTS 1 0 -2 0 0 0 0\n"},
  };
  ExpectParse(rows);
}

TEST(NumberProperties, StoreEachNumberInItsField) {
  const Made<VoA2LElementCoeffs> coefficients("1 2 3 4 5 6");
  EXPECT_EQ(coefficients->A, 1);
  EXPECT_EQ(coefficients->F, 6);
  const Made<VoA2LElementSIExponents> exponents("1 2 3 4 5 6 7");
  EXPECT_EQ(exponents->LENGTH, 1);
  EXPECT_EQ(exponents->MASS, 2);
  EXPECT_EQ(exponents->TIME, 3);
  EXPECT_EQ(exponents->ELECTRIC_CURRENT, 4);
  EXPECT_EQ(exponents->TEMPERATURE, 5);
  EXPECT_EQ(exponents->AMOUNT_OF_SUBSTANCE, 6);
  EXPECT_EQ(exponents->LUMINOUS_INTENSITY, 7);
  const Made<VoA2LElementMaxRefresh> refresh("3 100");
  EXPECT_EQ(refresh->SCALING_UNIT, 3U);
  EXPECT_EQ(refresh->RATE, 100U);
  const Made<VoA2LElementFixAxisParDist> axis("1 2 3");
  EXPECT_EQ(axis->OFFSET, 1);
  EXPECT_EQ(axis->DISTANCE, 2);
  EXPECT_EQ(axis->NUMBERAPO, 3U);
  const Made<VoA2LElementUnitConversion> conversion("1 2");
  EXPECT_EQ(conversion->GRADIENT, 1);
  EXPECT_EQ(conversion->OFFSET, 2);
}

TEST(SymbolLink, TakesATextAndANumber) {
  const ParseRow rows[] = {
      {"SYMBOL_LINK", R"( "a b" -0x10 x)", true, " x", "SYMBOL_LINK \"a b\" -16\n"},
      {"SYMBOL_LINK", R"( "_sym[0]" 4)", true, "", "SYMBOL_LINK \"_sym[0]\" 4\n"},
      {"SYMBOL_LINK", " bare 4", true, "", "SYMBOL_LINK \"\" 4\n"},
      {"SYMBOL_LINK", R"( "a" x)", false, "", "SYMBOL_LINK \"a\" 0\n"},
      {"SYMBOL_LINK", R"( "a")", false, "", "SYMBOL_LINK \"a\" 0\n"},
      {"SYMBOL_LINK", "", false, "", "SYMBOL_LINK \"\" 0\n"},
  };
  ExpectParse(rows);
}

}  // namespace
}  // namespace a2l::test
