// SPDX-License-Identifier: MIT
#include "a2l2json/elements/blocks/measurement.h"

#include <string>

#include <gtest/gtest.h>

#include "a2l2json/elements/properties/flags.h"
#include "a2l2json/elements/properties/numbers.h"
#include "tests/support/parsing.h"

namespace a2l::test {
namespace {

std::string Block(const std::string& head, const std::string& line) {
  return "/begin MEASUREMENT " + head + "\n  " + line + "\n/end MEASUREMENT\n";
}

TEST(Measurement, ReadsAllParametersWhateverIsWrong) {
  const ParseRow rows[] = {
      {"MEASUREMENT", R"( M "a b" SWORD "C M" 0x10 0.5 -1e308 1e308 x)", true, " x",
       Block("M \"a b\"", "SWORD \"C M\" 16 0.5 -1e+308 1e+308")},
      {"MEASUREMENT", R"( M "" FLOAT32_IEEE_X NO_COMPU_METHOD 1 100 0 1e30)", true, "",
       Block("M \"\"", "FLOAT32_IEEE NO_COMPU_METHOD 1 100 0 1e+30")},
      {"MEASUREMENT", R"( M "" INT C 1 0 0 1)", true, "", Block("M \"\"", "UBYTE C 1 0 0 1")},
      {"MEASUREMENT", R"( M "" UWORD C 1 abc 2 3)", false, "", Block("M \"\"", "UWORD C 1 0 2 3")},
      {"MEASUREMENT", R"( M "" UWORD C x y 2 z w)", false, " w",
       Block("M \"\"", "UWORD C 0 0 2 0")},
      {"MEASUREMENT", R"( M "a")", false, "", Block("M \"a\"", "UBYTE  0 0 0 0")},
      {"MEASUREMENT", "", false, "", Block(" \"\"", "UBYTE  0 0 0 0")},
  };
  ExpectParse(rows);
}

TEST(Measurement, IsNotValidWithoutItsNumbers) {
  const Made<VoA2LElementMeasurement> good(R"(M "d" SLONG C 2 0.5 -1 1)");
  EXPECT_EQ(good->valid, 1);
  EXPECT_EQ(good->NAME, "M");
  EXPECT_EQ(good->LONG_IDENTIFIER, "d");
  EXPECT_EQ(good->DATATYPE, DataType::SLONG);
  EXPECT_EQ(good->CONVERSION, "C");
  EXPECT_EQ(good->RESOLUTION, 2U);
  EXPECT_EQ(good->ACCURACY, 0.5);
  EXPECT_EQ(good->LOWER_LIMIT, -1);
  EXPECT_EQ(good->UPPER_LIMIT, 1);
  for (const char* text : {R"(M "" SLONG C x 0 0 0)", R"(M "" SLONG C 1 x 0 0)",
                           R"(M "" SLONG C 1 0 x 0)", R"(M "" SLONG C 1 0 0)"}) {
    EXPECT_EQ(Made<VoA2LElementMeasurement>(text)->valid, 0) << text;
  }
}

TEST(Measurement, HasAResolutionOfOneUntilItIsRead) {
  const Made<VoA2LElementMeasurement> measurement;
  EXPECT_EQ(measurement->RESOLUTION, 1U);
  EXPECT_EQ(measurement.Written(), Block(" \"\"", "UBYTE  1 0 0 0"));
  EXPECT_EQ(Made<VoA2LElementMeasurement>("M \"\"")->RESOLUTION, 0U);
}

TEST(BitOperation, HoldsItsOperationsInOrder) {
  Made<VoA2LElementBitOperation> operation("  1 2");
  EXPECT_TRUE(operation.ok);
  EXPECT_EQ(operation.rest, "  1 2");
  auto* shift = operation->Store().Create<VoA2LElementLeftShift>(&*operation);
  shift->LEFT_SHIFT = 4;
  ASSERT_TRUE(operation->AddChild(shift));
  ASSERT_TRUE(operation->AddChild(operation->Store().Create<VoA2LElementSignExtend>(&*operation)));
  EXPECT_EQ(operation.Written(1),
            "  /begin BIT_OPERATION\n"
            "    LEFT_SHIFT 4\n"
            "    SIGN_EXTEND\n"
            "  /end BIT_OPERATION\n");
}

}  // namespace
}  // namespace a2l::test
