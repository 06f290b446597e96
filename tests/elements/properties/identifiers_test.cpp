// SPDX-License-Identifier: MIT
#include "a2l2json/elements/properties/identifiers.h"

#include <string>

#include <gtest/gtest.h>

#include "tests/support/kinds.h"
#include "tests/support/parsing.h"

namespace a2l::test {
namespace {

TEST(IdentifierProperties, TakeOneTokenAsItIs) {
  for (const std::string& keyword :
       Words("AR_PROTOTYPE_OF AXIS_PTS_REF COMPARISON_QUANTITY COMPU_TAB_REF CONVERSION "
             "CURVE_AXIS_REF DISPLAY_IDENTIFIER INPUT_QUANTITY PROJECT_NO REF_MEMORY_SEGMENT "
             "REF_UNIT S_REC_LAYOUT STATUS_STRING_REF VAR_MEASUREMENT "
             "VAR_SELECTION_CHARACTERISTIC")) {
    const std::string name(1024, 'n');
    const ParseRow rows[] = {
        {keyword, " a.b[0] c", true, " c", keyword + " a.b[0]\n"},
        {keyword, R"( "a b" c)", true, " c", keyword + " \"a b\"\n"},
        {keyword, " a\tb c", true, " c", keyword + " a\tb\n"},
        {keyword, "", true, "", keyword + " \n"},
        {keyword, " " + name + "cut off c", true, " off c", keyword + " " + name + "\n"},
    };
    ExpectParse(rows);
  }
}

TEST(IdentifierProperties, StoreTheToken) {
  EXPECT_EQ(Made<VoA2LElementRefUnit>(" m/s x")->REF_UNIT, "m/s");
  EXPECT_EQ(Made<VoA2LElementSRecLayout>("L")->S_REC_LAYOUT, "L");
}

}  // namespace
}  // namespace a2l::test
