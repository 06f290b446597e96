// SPDX-License-Identifier: MIT
#include "a2l2json/elements/blocks/other.h"

#include <cstdint>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "a2l2json/elements/properties/flags.h"
#include "a2l2json/elements/properties/identifiers.h"
#include "a2l2json/elements/properties/numbers.h"
#include "a2l2json/elements/properties/texts.h"
#include "tests/support/parsing.h"

namespace a2l::test {
namespace {

std::string Block(const std::string& head, const std::string& lines) {
  return "/begin " + head + "\n" + lines + "/end " + head.substr(0, head.find(' ')) + "\n";
}

TEST(Frame, StopsAtTheFirstWrongNumber) {
  const ParseRow rows[] = {
      {"FRAME", R"( F "a b" 0x3 100 x)", true, " x", Block("FRAME F \"a b\"", "  3 100\n")},
      {"FRAME", R"( F "" x 100)", false, " 100", Block("FRAME F \"\"", "  0 0\n")},
      {"FRAME", R"( F "" 3)", false, "", Block("FRAME F \"\"", "  3 0\n")},
  };
  ExpectParse(rows);
}

TEST(Annotation, TakesNothing) {
  ExpectParse({"ANNOTATION", " \"a\" b", true, " \"a\" b", Block("ANNOTATION", "")});
}

TEST(ArComponent, TakesAText) {
  const ParseRow rows[] = {
      {"AR_COMPONENT", R"( "a b" x)", true, " x", Block("AR_COMPONENT", "  \"a b\"\n")},
      {"AR_COMPONENT", " bare", true, "", Block("AR_COMPONENT", "  \"\"\n")},
      {"AR_COMPONENT", "", true, "", Block("AR_COMPONENT", "  \"\"\n")},
  };
  ExpectParse(rows);
}

TEST(CalibrationMethod, TakesATextAndANumber) {
  const ParseRow rows[] = {
      {"CALIBRATION_METHOD", R"( "a b" 0x10 x)", true, " x",
       Block("CALIBRATION_METHOD", "  \"a b\" 16\n")},
      {"CALIBRATION_METHOD", R"( "a" x)", false, "", Block("CALIBRATION_METHOD", "  \"a\" 0\n")},
      {"CALIBRATION_METHOD", "", false, "", Block("CALIBRATION_METHOD", "  \"\" 0\n")},
  };
  ExpectParse(rows);
}

TEST(CalibrationHandle, TakesNumbersToTheEnd) {
  const std::string keyword = "CALIBRATION_HANDLE";
  const ParseRow rows[] = {
      {keyword, " 0x10 32", true, "", Block(keyword, "  0x10\n  0x20\n")},
      {keyword, " -26 0xFFFFFFFF", true, "", Block(keyword, "  0x-1A\n  0x7FFFFFFF\n")},
      {keyword, "", true, "", Block(keyword, "")},
      // A wrong number ends the list and stays as 0.
      {keyword, " 1 x 3", false, " 3", Block(keyword, "  0x1\n  0x0\n")},
      // A text behind the numbers becomes a child, even if its keyword is part of a longer word.
      {keyword, R"( 0x10 CALIBRATION_HANDLE_TEXT "a b" 5)", true, " 5",
       Block(keyword, "  0x10\n  CALIBRATION_ACCESS \"a b\"\n")},
      {keyword, R"( X_CALIBRATION_HANDLE_TEXT_1 "a")", true, "",
       Block(keyword, "  CALIBRATION_ACCESS \"a\"\n")},
      {keyword, " CALIBRATION_HANDLE_TEXT", true, "",
       Block(keyword, "  CALIBRATION_ACCESS \"\"\n")},
      {keyword, " CALIBRATION_HANDLE", false, "", Block(keyword, "  0x0\n")},
  };
  ExpectParse(rows);
}

TEST(CalibrationHandle, MakesItsTextAChildLikeAnyOther) {
  Made<VoA2LElementCalibrationHandle> handle("1 2 CALIBRATION_HANDLE_TEXT \"a\" 3");
  ASSERT_EQ(handle->ChildCount(), 1U);
  const auto* text = dynamic_cast<const VoA2LElementCalibrationHandleText*>(handle->Child(0));
  ASSERT_NE(text, nullptr);
  EXPECT_EQ(text->parent, &*handle);
  EXPECT_EQ(text->kind, ElementKind::CALIBRATION_HANDLE_TEXT);
  EXPECT_EQ(text->HANDLE_TEXT, "a");
  EXPECT_EQ((std::vector<std::int32_t>(handle->HANDLE.begin(), handle->HANDLE.end())),
            (std::vector<std::int32_t>{1, 2}));

  EXPECT_TRUE(handle.Parse("7"));
  EXPECT_EQ(handle->HANDLE.size(), 1U);
}

TEST(Transformer, ForgetsWhatFollowsTheExecutables) {
  const ParseRow rows[] = {
      {"TRANSFORMER", R"( T "1.0" "a.dll" "b c.dll" 500 ON_CHANGE INV x)", true, " x",
       Block("TRANSFORMER T", "  1.0 a.dll b c.dll 0  \n")},
      {"TRANSFORMER", R"( T "1.0" a.dll "")", false, "", Block("TRANSFORMER T", "  1.0   0  \n")},
      {"TRANSFORMER", R"( T "1" "" "" x ON_CHANGE INV)", false, " ON_CHANGE INV",
       Block("TRANSFORMER T", "  1   0  \n")},
      {"TRANSFORMER", R"( T "1" "" "" 0)", true, "", Block("TRANSFORMER T", "  1   0  \n")},
  };
  ExpectParse(rows);
  Made<VoA2LElementTransformer> transformer(R"(T "1" "2" "3" 500 ON_CHANGE INV)");
  EXPECT_EQ(transformer->TIMEOUT, 0U);
  EXPECT_EQ(transformer->TRIGGER, TransformerTrigger::UNKNOWN);
  EXPECT_EQ(transformer->INVERSE_TRANSFORMER, "");
  transformer->TIMEOUT = 500;
  transformer->TRIGGER = TransformerTrigger::ON_USER_REQUEST;
  transformer->INVERSE_TRANSFORMER = "INV";
  EXPECT_EQ(transformer.Written(), Block("TRANSFORMER T", "  1 2 3 500 ON_USER_REQUEST INV\n"));
  transformer->TRIGGER = TransformerTrigger::ON_CHANGE;
  EXPECT_EQ(transformer.Written(), Block("TRANSFORMER T", "  1 2 3 500 ON_CHANGE INV\n"));
}

TEST(Unit, TakesFourParameters) {
  const ParseRow rows[] = {
      {"UNIT", R"( kms "speed" "km/s" DERIVED x)", true, " x",
       Block("UNIT kms \"speed\"", "  \"km/s\" DERIVED\n")},
      {"UNIT", R"( m "" "m" EXTENDED_SI_UNIT)", true, "",
       Block("UNIT m \"\"", "  \"m\" EXTENDED_SI\n")},
      {"UNIT", R"( m "" "m" EXTENDED_SI_DERIVED)", true, "",
       Block("UNIT m \"\"", "  \"m\" DERIVED\n")},
      {"UNIT", R"( m "" "m" BASE)", true, "", Block("UNIT m \"\"", "  \"m\" \n")},
      {"UNIT", " m long m", true, "", Block("UNIT m \"\"", "  \"\" \n")},
      {"UNIT", "", true, "", Block("UNIT  \"\"", "  \"\" \n")},
  };
  ExpectParse(rows);
  EXPECT_EQ(Made<VoA2LElementUnit>(R"(m "" "" EXTENDED_SI)")->UNIT_TYPE, UnitType::EXTENDED_SI);
}

TEST(Unit, WritesItsChildrenOneLevelDeeper) {
  const Made<VoA2LElementUnit> unit(R"(kms "speed" "km/s" DERIVED)");
  auto* reference = unit->Store().Create<VoA2LElementRefUnit>(&*unit);
  reference->REF_UNIT = "m";
  auto* conversion = unit->Store().Create<VoA2LElementUnitConversion>(&*unit);
  conversion->GRADIENT = 1000;
  ASSERT_TRUE(unit->AddChild(reference) && unit->AddChild(conversion));
  EXPECT_EQ(unit.Written(),
            "/begin UNIT kms \"speed\"\n"
            "  \"km/s\" DERIVED\n"
            "  REF_UNIT m\n"
            "  UNIT_CONVERSION 1000 0\n"
            "/end UNIT\n");
}

TEST(UserRights, TakesALevel) {
  const std::string name(1024, 'n');
  const ParseRow rows[] = {
      {"USER_RIGHTS", " engineers x", true, " x", Block("USER_RIGHTS", "  engineers\n")},
      {"USER_RIGHTS", R"( "a b")", true, "", Block("USER_RIGHTS", "  \"a b\"\n")},
      {"USER_RIGHTS", name + "cut", true, "", Block("USER_RIGHTS", "  " + name + "\n")},
      {"USER_RIGHTS", "", true, "", Block("USER_RIGHTS", "  \n")},
  };
  ExpectParse(rows);
  const Made<VoA2LElementUserRights> rights("engineers");
  ASSERT_TRUE(rights->AddChild(rights->Store().Create<VoA2LElementReadOnly>(&*rights)));
  EXPECT_EQ(rights.Written(1),
            "  /begin USER_RIGHTS\n"
            "    engineers\n"
            "    READ_ONLY\n"
            "  /end USER_RIGHTS\n");
}

TEST(Virtual, TakesNamesToTheEnd) {
  const std::string name(1024, 'n');
  const ParseRow rows[] = {
      {"VIRTUAL", R"( a "b c")", true, "", Block("VIRTUAL", "  a\n  \"b c\"\n")},
      {"VIRTUAL", name + "cut", true, "", Block("VIRTUAL", "  " + name + "\n")},
      {"VIRTUAL", "", true, "", Block("VIRTUAL", "")},
  };
  ExpectParse(rows);
  Made<VoA2LElementVirtual> list("a b");
  EXPECT_TRUE(list.Parse("c"));
  ASSERT_EQ(list->VIRTUAL.size(), 1U);
  EXPECT_EQ(list->VIRTUAL[0], "c");
}

}  // namespace
}  // namespace a2l::test
