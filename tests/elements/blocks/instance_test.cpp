// SPDX-License-Identifier: MIT
#include "a2l2json/elements/blocks/instance.h"

#include <string>

#include <gtest/gtest.h>

#include "tests/support/parsing.h"

namespace a2l::test {
namespace {

std::string Block(const std::string& head, const std::string& lines) {
  return "/begin " + head + "\n" + lines + "/end " + head.substr(0, head.find(' ')) + "\n";
}

TEST(Instance, IsNotValidWithoutAnAddress) {
  const ParseRow rows[] = {
      {"INSTANCE", R"( I "a b" T 0x1f x)", true, " x", Block("INSTANCE I \"a b\"", "  T 0x1F\n")},
      {"INSTANCE", R"( I "" T x 5)", false, " 5", Block("INSTANCE I \"\"", "  T 0x0\n")},
      {"INSTANCE", " I", false, "", Block("INSTANCE I \"\"", "   0x0\n")},
  };
  ExpectParse(rows);
  EXPECT_EQ(Made<VoA2LElementInstance>("I \"\" T 1")->valid, 1);
  const Made<VoA2LElementInstance> wrong("I \"d\" T x");
  EXPECT_EQ(wrong->valid, 0);
  EXPECT_EQ(wrong->NAME, "I");
  EXPECT_EQ(wrong->LONG_IDENTIFIER, "d");
  EXPECT_EQ(wrong->TYPEDEF_NAME, "T");
}

TEST(Overwrite, TakesANameAndANumber) {
  const ParseRow rows[] = {
      {"OVERWRITE", " O 0x2 x", true, " x", Block("OVERWRITE O 2", "")},
      {"OVERWRITE", " O x", false, "", Block("OVERWRITE O 0", "")},
      {"OVERWRITE", "", false, "", Block("OVERWRITE  0", "")},
  };
  ExpectParse(rows);
  EXPECT_EQ(Made<VoA2LElementOverwrite>("O x")->valid, 1);
}

TEST(StructureComponent, TakesTwoNamesAndAnOffset) {
  const ParseRow rows[] = {
      {"STRUCTURE_COMPONENT", " S T 0x10 x", true, " x",
       Block("STRUCTURE_COMPONENT S", "  T 16\n")},
      {"STRUCTURE_COMPONENT", " S \"T 1\" x", false, "",
       Block("STRUCTURE_COMPONENT S", "  \"T 1\" 0\n")},
      {"STRUCTURE_COMPONENT", " S", false, "", Block("STRUCTURE_COMPONENT S", "   0\n")},
  };
  ExpectParse(rows);
}

TEST(Typedefs, StopAtTheFirstWrongNumber) {
  const ParseRow rows[] = {
      {"TYPEDEF_AXIS", R"( A "a b" Q R 0.5 C 0x10 -1 1 x)", true, " x",
       Block("TYPEDEF_AXIS A \"a b\"", "  Q R 0.5 C 16 -1 1\n")},
      {"TYPEDEF_AXIS", R"( A "" Q R x C 5 1 2)", false, " C 5 1 2",
       Block("TYPEDEF_AXIS A \"\"", "  Q R 0  0 0 0\n")},
      {"TYPEDEF_AXIS", R"( A "" Q R 1 C x 1 2)", false, " 1 2",
       Block("TYPEDEF_AXIS A \"\"", "  Q R 1 C 0 0 0\n")},
      {"TYPEDEF_AXIS", R"( A "" Q R 1 C 5 1)", false, "",
       Block("TYPEDEF_AXIS A \"\"", "  Q R 1 C 5 1 0\n")},
      {"TYPEDEF_BLOB", R"( B "a b" 0x20 x)", true, " x", Block("TYPEDEF_BLOB B \"a b\"", "  32\n")},
      {"TYPEDEF_BLOB", R"( B "" x 1)", false, " 1", Block("TYPEDEF_BLOB B \"\"", "  0\n")},
      {"TYPEDEF_CHARACTERISTIC", R"( K "a b" MAP_X R 0.5 C -1 1 x)", true, " x",
       Block("TYPEDEF_CHARACTERISTIC K \"a b\"", "  MAP R 0.5 C -1 1\n")},
      {"TYPEDEF_CHARACTERISTIC", R"( K "" TABLE R x C 1 2)", false, " C 1 2",
       Block("TYPEDEF_CHARACTERISTIC K \"\"", "   R 0  0 0\n")},
      {"TYPEDEF_CHARACTERISTIC", R"( K "" VALUE R 1 C x 2)", false, " 2",
       Block("TYPEDEF_CHARACTERISTIC K \"\"", "  VALUE R 1 C 0 0\n")},
      {"TYPEDEF_MEASUREMENT", R"( M "a b" A_INT64 C 010 0.5 -1 1 x)", true, " x",
       Block("TYPEDEF_MEASUREMENT M \"a b\"", "  A_INT64 C 8 0.5 -1 1\n")},
      {"TYPEDEF_MEASUREMENT", R"( M "" UWORD C x 1 2 3)", false, " 1 2 3",
       Block("TYPEDEF_MEASUREMENT M \"\"", "  UWORD C 0 0 0 0\n")},
      {"TYPEDEF_MEASUREMENT", R"( M "" UWORD C 1 2 x 3)", false, " 3",
       Block("TYPEDEF_MEASUREMENT M \"\"", "  UWORD C 1 2 0 0\n")},
      {"TYPEDEF_STRUCTURE", R"( S "a b" 0x100 x)", true, " x",
       Block("TYPEDEF_STRUCTURE S \"a b\"", "  256\n")},
      {"TYPEDEF_STRUCTURE", " S", false, "", Block("TYPEDEF_STRUCTURE S \"\"", "  0\n")},
  };
  ExpectParse(rows);
}

TEST(Typedefs, HaveDefaultsUntilTheyAreRead) {
  EXPECT_EQ(Made<VoA2LElementTypedefMeasurement>()->RESOLUTION, 0U);
  EXPECT_EQ(Made<VoA2LElementTypedefMeasurement>().Written(),
            Block("TYPEDEF_MEASUREMENT  \"\"", "  UBYTE  0 0 0 0\n"));
  EXPECT_EQ(Made<VoA2LElementTypedefMeasurement>("M \"\" UWORD C x")->valid, 1);
}

TEST(TypedefStructure, WritesItsComponentsInOrder) {
  const Made<VoA2LElementTypedefStructure> structure("S \"\" 8");
  for (const char* name : {"b", "a"}) {
    auto* component = structure->Store().Create<VoA2LElementStructureComponent>(&*structure);
    component->NAME = name;
    component->TYPEDEF_NAME = "T";
    ASSERT_TRUE(structure->AddChild(component));
  }
  EXPECT_EQ(structure.Written(1),
            "  /begin TYPEDEF_STRUCTURE S \"\"\n"
            "    8\n"
            "    /begin STRUCTURE_COMPONENT b\n"
            "      T 0\n"
            "    /end STRUCTURE_COMPONENT\n"
            "    /begin STRUCTURE_COMPONENT a\n"
            "      T 0\n"
            "    /end STRUCTURE_COMPONENT\n"
            "  /end TYPEDEF_STRUCTURE\n");
}

}  // namespace
}  // namespace a2l::test
