// SPDX-License-Identifier: MIT
#include "a2l2json/elements/blocks/characteristic.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/kinds.h"
#include "tests/support/parsing.h"

namespace a2l::test {
namespace {

std::string Block(const std::string& keyword, const std::string& lines) {
  return "/begin " + keyword + lines + "/end " + keyword.substr(0, keyword.find(' ')) + "\n";
}

TEST(Characteristic, KnowsItsTypes) {
  std::uint32_t code = 0;
  for (const std::string& type : Words("ASCII CURVE MAP CUBOID CUBE_4 CUBE_5 VAL_BLK VALUE")) {
    ++code;
    for (const std::string& word : {type, type + "_X", "X" + type}) {
      const Made<VoA2LElementCharacteristic> made("K \"\" " + word + " 0 D 0 C 0 0");
      EXPECT_EQ(made->CHARACTERISTIC_TYPE, static_cast<CharacteristicType>(code)) << word;
      EXPECT_EQ(made.Written(), Block("CHARACTERISTIC K \"\"", "\n  " + type + " 0x0 D 0 C 0 0\n"));
    }
  }
  EXPECT_EQ(Made<VoA2LElementCharacteristic>("K \"\" VALUE_MAP 0 D 0 C 0 0")->CHARACTERISTIC_TYPE,
            CharacteristicType::MAP);
  EXPECT_EQ(Made<VoA2LElementCharacteristic>("K \"\" TABLE 0 D 0 C 0 0")->CHARACTERISTIC_TYPE,
            CharacteristicType::UNKNOWN);
}

TEST(Objects, ReadAllParametersWhateverIsWrong) {
  const ParseRow rows[] = {
      {"CHARACTERISTIC", R"( K "a b" VAL_BLK_X 0x1f D 0.5 C -1 1 x)", true, " x",
       Block("CHARACTERISTIC K \"a b\"", "\n  VAL_BLK 0x1F D 0.5 C -1 1\n")},
      {"CHARACTERISTIC", R"( K "" VALUE zz D x C y 7)", false, "",
       Block("CHARACTERISTIC K \"\"", "\n  VALUE 0x0 D 0 C 0 7\n")},
      {"CHARACTERISTIC", R"( K "" WORD 1 "D 1" 2 "C 1" 3 4)", true, "",
       Block("CHARACTERISTIC K \"\"", "\n   0x1 \"D 1\" 2 \"C 1\" 3 4\n")},
      {"CHARACTERISTIC", "", false, "", Block("CHARACTERISTIC  \"\"", "\n   0x0  0  0 0\n")},
      {"AXIS_PTS", R"( A "a b" 0x1f Q D 0.5 C 010 -1 1 x)", true, " x",
       Block("AXIS_PTS A \"a b\"", "\n  0x1F Q D 0.5 C 8 -1 1\n")},
      {"AXIS_PTS", R"( A "" x Q D y C z w 7)", false, "",
       Block("AXIS_PTS A \"\"", "\n  0x0 Q D 0 C 0 0 7\n")},
      {"AXIS_PTS", " A", false, "", Block("AXIS_PTS A \"\"", "\n  0x0   0  0 0 0\n")},
      {"BLOB", R"( B "a b" 0x1f 0x100 x)", true, " x", Block("BLOB B \"a b\"", "\n  0x1F 256\n")},
      {"BLOB", R"( B "" x 5)", false, "", Block("BLOB B \"\"", "\n  0x0 5\n")},
      {"BLOB", R"( B "" 5 x)", false, "", Block("BLOB B \"\"", "\n  0x5 0\n")},
  };
  ExpectParse(rows);
}

TEST(Objects, AreNotValidWithoutTheirNumbers) {
  EXPECT_EQ(Made<VoA2LElementCharacteristic>("K \"\" VALUE 1 D 2 C 3 4")->valid, 1);
  EXPECT_EQ(Made<VoA2LElementAxisPts>("A \"\" 1 Q D 2 C 3 4 5")->valid, 1);
  EXPECT_EQ(Made<VoA2LElementBlob>("B \"\" 1 2")->valid, 1);
  for (const char* text : {"K \"\" VALUE x D 2 C 3 4", "K \"\" VALUE 1 D x C 3 4",
                           "K \"\" VALUE 1 D 2 C x 4", "K \"\" VALUE 1 D 2 C 3 x"}) {
    EXPECT_EQ(Made<VoA2LElementCharacteristic>(text)->valid, 0) << text;
  }
  for (const char* text :
       {"A \"\" x Q D 2 C 3 4 5", "A \"\" 1 Q D x C 3 4 5", "A \"\" 1 Q D 2 C x 4 5",
        "A \"\" 1 Q D 2 C 3 x 5", "A \"\" 1 Q D 2 C 3 4"}) {
    EXPECT_EQ(Made<VoA2LElementAxisPts>(text)->valid, 0) << text;
  }
  for (const char* text : {"B \"\" x 2", "B \"\" 1 x", "B"})
    EXPECT_EQ(Made<VoA2LElementBlob>(text)->valid, 0) << text;
}

TEST(AxisDescr, StopsAtTheFirstWrongNumber) {
  const ParseRow rows[] = {
      {"AXIS_DESCR", " STD_AXIS Q C 5 -1 1 x", true, " x",
       Block("AXIS_DESCR", "\n  STD_AXIS Q C 5 -1 1\n")},
      {"AXIS_DESCR", " CURVE_AXIS_STD_AXIS Q C 5 -1 1", true, "",
       Block("AXIS_DESCR", "\n  CURVE_AXIS Q C 5 -1 1\n")},
      {"AXIS_DESCR", " COM_AXIS Q C x 1 2", false, " 1 2",
       Block("AXIS_DESCR", "\n  COM_AXIS Q C 0 0 0\n")},
      {"AXIS_DESCR", " FIX_AXIS Q C 5 x 2", false, " 2",
       Block("AXIS_DESCR", "\n  FIX_AXIS Q C 5 0 0\n")},
      {"AXIS_DESCR", " RES_AXIS Q C 5 1", false, "",
       Block("AXIS_DESCR", "\n  RES_AXIS Q C 5 1 0\n")},
      {"AXIS_DESCR", " AXIS Q C 5 1 2", true, "", Block("AXIS_DESCR", "\n   Q C 5 1 2\n")},
      {"AXIS_DESCR", "", false, "", Block("AXIS_DESCR", "\n     0 0 0\n")},
  };
  ExpectParse(rows);
  const Made<VoA2LElementAxisDescr> axis("FIX_AXIS Q C x 1 2");
  EXPECT_EQ(axis->ATTRIBUTE, AxisAttribute::FIX_AXIS);
  EXPECT_EQ(axis->valid, 1) << "an axis is always valid";
}

TEST(DependentCharacteristic, TakesAFormulaAndNames) {
  const ParseRow rows[] = {
      {"DEPENDENT_CHARACTERISTIC", R"( "a + b" x "y z")", true, "",
       Block("DEPENDENT_CHARACTERISTIC", "\n  \"a + b\"\n  x \n  \"y z\" \n")},
      {"DEPENDENT_CHARACTERISTIC", R"( "a")", true, "",
       Block("DEPENDENT_CHARACTERISTIC", "\n  \"a\"\n")},
      {"DEPENDENT_CHARACTERISTIC", " f x", true, "",
       Block("DEPENDENT_CHARACTERISTIC", "\n  \"\"\n  x \n")},
      {"DEPENDENT_CHARACTERISTIC", "", true, "", Block("DEPENDENT_CHARACTERISTIC", "\n  \"\"\n")},
      // The names of a virtual characteristic have no blank behind them.
      {"VIRTUAL_CHARACTERISTIC", R"( "a + b" x "y z")", true, "",
       Block("VIRTUAL_CHARACTERISTIC", "\n  \"a + b\"\n  x\n  \"y z\"\n")},
      {"VIRTUAL_CHARACTERISTIC", "", true, "", Block("VIRTUAL_CHARACTERISTIC", "\n  \"\"\n")},
  };
  ExpectParse(rows);
}

template <class Class>
void ExpectFormulaBeginsAnew() {
  const std::string name(1024, 'n');
  Made<Class> made("\"f\" a b " + name + "cut");
  EXPECT_EQ(made->CHARACTERISTIC[2], name);
  EXPECT_TRUE(made.Parse("\"g\" c"));
  EXPECT_EQ(made->FORMULA, "g");
  ASSERT_EQ(made->CHARACTERISTIC.size(), 1U);
  EXPECT_EQ(made->CHARACTERISTIC[0], "c");
}

TEST(DependentCharacteristic, BeginsAnewWhenReadAgain) {
  ExpectFormulaBeginsAnew<VoA2LElementDependentCharacteristic>();
  ExpectFormulaBeginsAnew<VoA2LElementVirtualCharacteristic>();
}

TEST(FixAxisParList, EndsAtTheFirstWrongNumberWhichStaysAsZero) {
  const ParseRow rows[] = {
      {"FIX_AXIS_PAR_LIST", " 0 1.50 -2e3 0x10", true, "",
       Block("FIX_AXIS_PAR_LIST", "\n  0 \n  1.5 \n  -2000 \n  16 \n")},
      {"FIX_AXIS_PAR_LIST", " 0 1 x 3", false, " 3",
       Block("FIX_AXIS_PAR_LIST", "\n  0 \n  1 \n  0 \n")},
      {"FIX_AXIS_PAR_LIST", " - 1", false, " 1", Block("FIX_AXIS_PAR_LIST", "\n  0 \n")},
      {"FIX_AXIS_PAR_LIST", "", true, "", Block("FIX_AXIS_PAR_LIST", "\n")},
  };
  ExpectParse(rows);
  Made<VoA2LElementFixAxisParList> list("1 2 3");
  EXPECT_TRUE(list.Parse("4"));
  EXPECT_EQ((std::vector<double>(list->FIX_AXIS_PAR_LIST.begin(), list->FIX_AXIS_PAR_LIST.end())),
            std::vector<double>{4});
}

}  // namespace
}  // namespace a2l::test
