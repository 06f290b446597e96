// SPDX-License-Identifier: MIT
#include "a2l2json/elements/properties/texts.h"

#include <string>

#include <gtest/gtest.h>

#include "tests/support/kinds.h"
#include "tests/support/parsing.h"

namespace a2l::test {
namespace {

TEST(TextProperties, TakeOneQuotedText) {
  for (const std::string& keyword :
       Words("ANNOTATION_LABEL ANNOTATION_ORIGIN CALIBRATION_HANDLE_TEXT CPU_TYPE CUSTOMER "
             "CUSTOMER_NO DEFAULT_VALUE ECU EPK FORMAT FORMULA_INV FUNCTION_VERSION MODEL_LINK "
             "PHONE_NO PHYS_UNIT SUPPLIER SYMBOL_TYPE_LINK USER VAR_SEPARATOR VERSION")) {
    // The text of a handle is written under another keyword.
    const std::string line = keyword == "CALIBRATION_HANDLE_TEXT" ? "CALIBRATION_ACCESS" : keyword;
    // A FORMAT without a text is an error.
    const bool mayBeEmpty = keyword != "FORMAT";
    const std::string longText(3000, 'x');
    const ParseRow rows[] = {
        {keyword, R"( "a \"b\" c" d)", true, " d",
         line + R"( "a \"b\" c")"
                "\n"},
        {keyword, "\t\"m\xC2\xB2/s\"\r", true, "", line + " \"m\xC2\xB2/s\"\n"},
        {keyword, " \"a\tb\"", true, "",
         line + R"( "a\tb")"
                "\n"},
        {keyword, R"( "" "b")", mayBeEmpty, R"( "b")",
         line + R"( "")"
                "\n"},
        {keyword, " bare word", mayBeEmpty, " word",
         line + R"( "")"
                "\n"},
        {keyword, "", mayBeEmpty, "",
         line + R"( "")"
                "\n"},
        {keyword, " \"" + longText + '"', true, "", line + " \"" + longText + "\"\n"},
    };
    ExpectParse(rows);
  }
}

TEST(TextProperties, StoreTheTextWithoutQuotesAndEscapes) {
  const Made<VoA2LElementCustomer> customer(R"( "say ""hi"" \'\\\n" x)");
  EXPECT_TRUE(customer.ok);
  EXPECT_EQ(customer->CUSTOMER, "say \"hi\" '\\\n");
  EXPECT_EQ(customer.rest, " x");

  const Made<VoA2LElementCalibrationHandleText> handle(R"( "torque")");
  EXPECT_EQ(handle->HANDLE_TEXT, "torque");
  EXPECT_EQ(handle.Written(2), "    CALIBRATION_ACCESS \"torque\"\n");
}

TEST(SystemConstant, TakesTwoQuotedTexts) {
  const ParseRow rows[] = {
      {"SYSTEM_CONSTANT", R"( "N 1" "42" x)", true, " x", "SYSTEM_CONSTANT \"N 1\" \"42\"\n"},
      {"SYSTEM_CONSTANT", R"("a""b")", true, "", "SYSTEM_CONSTANT \"a\\\"b\" \"\"\n"},
      {"SYSTEM_CONSTANT", R"("a"b)", true, "", "SYSTEM_CONSTANT \"a\" \"\"\n"},
      {"SYSTEM_CONSTANT", " N 42", true, "", "SYSTEM_CONSTANT \"\" \"\"\n"},
      {"SYSTEM_CONSTANT", R"( N "42")", true, "", "SYSTEM_CONSTANT \"\" \"42\"\n"},
      {"SYSTEM_CONSTANT", "", true, "", "SYSTEM_CONSTANT \"\" \"\"\n"},
  };
  ExpectParse(rows);
}

}  // namespace
}  // namespace a2l::test
