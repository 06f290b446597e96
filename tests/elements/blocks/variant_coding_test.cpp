// SPDX-License-Identifier: MIT
#include "a2l2json/elements/blocks/variant_coding.h"

#include <string>

#include <gtest/gtest.h>

#include "tests/support/parsing.h"

namespace a2l::test {
namespace {

std::string Block(const std::string& head, const std::string& lines) {
  return "/begin " + head + "\n" + lines + "/end " + head.substr(0, head.find(' ')) + "\n";
}

TEST(VariantCoding, TakesNothing) {
  ExpectParse({"VARIANT_CODING", " a b", true, " a b", Block("VARIANT_CODING", "")});
}

TEST(VarCriterion, TakesANameADescriptionAndValues) {
  const std::string name(1024, 'n');
  const ParseRow rows[] = {
      {"VAR_CRITERION", R"( C "a b" Limousine "x y")", true, "",
       Block("VAR_CRITERION C \"a b\"", "  Limousine \n  \"x y\" \n")},
      {"VAR_CRITERION", R"( C "")", true, "", Block("VAR_CRITERION C \"\"", "")},
      {"VAR_CRITERION", " C a b", true, "", Block("VAR_CRITERION C \"\"", "  b \n")},
      {"VAR_CRITERION", name + "cut \"\" " + name + "cut", true, "",
       Block("VAR_CRITERION " + name + " \"\"", "  " + name + " \n")},
      {"VAR_CRITERION", "", true, "", Block("VAR_CRITERION  \"\"", "")},
  };
  ExpectParse(rows);
}

TEST(VarCharacteristic, TakesANameAndCriteria) {
  const ParseRow rows[] = {
      {"VAR_CHARACTERISTIC", " V Car Gear", true, "",
       Block("VAR_CHARACTERISTIC V", "  Car \n  Gear \n")},
      {"VAR_CHARACTERISTIC", " V", true, "", Block("VAR_CHARACTERISTIC V", "")},
      {"VAR_CHARACTERISTIC", "", true, "", Block("VAR_CHARACTERISTIC ", "")},
  };
  ExpectParse(rows);
}

TEST(VarAddress, EndsAtTheFirstWrongNumberWhichIsDropped) {
  const ParseRow rows[] = {
      {"VAR_ADDRESS", " 0x8000 0x8010 32800", true, "",
       Block("VAR_ADDRESS", "  0x8000 \n  0x8010 \n  0x8020 \n")},
      {"VAR_ADDRESS", " 0x8000 xyz 5", false, " 5", Block("VAR_ADDRESS", "  0x8000 \n")},
      {"VAR_ADDRESS", "", true, "", Block("VAR_ADDRESS", "")},
  };
  ExpectParse(rows);
}

// A second read appends to the lists.
TEST(VariantCoding, ListsGrowWithASecondRead) {
  Made<VoA2LElementVarCriterion> criterion(R"(C "a" x)");
  EXPECT_TRUE(criterion.Parse(R"(D "b" y)"));
  EXPECT_EQ(criterion.Written(), Block("VAR_CRITERION D \"b\"", "  x \n  y \n"));
  Made<VoA2LElementVarCharacteristic> characteristic("V Car");
  EXPECT_TRUE(characteristic.Parse("W Gear"));
  EXPECT_EQ(characteristic.Written(), Block("VAR_CHARACTERISTIC W", "  Car \n  Gear \n"));
  Made<VoA2LElementVarAddress> address("1");
  EXPECT_TRUE(address.Parse("2"));
  EXPECT_EQ(address.Written(), Block("VAR_ADDRESS", "  0x1 \n  0x2 \n"));
  Made<VoA2LElementVarForbiddenComb> combination("Car a");
  EXPECT_TRUE(combination.Parse("Gear b"));
  EXPECT_EQ(combination.Written(), Block("VAR_FORBIDDEN_COMB", "  Car a\n  Gear b\n"));
}

TEST(VarForbiddenComb, TakesPairs) {
  const ParseRow rows[] = {
      {"VAR_FORBIDDEN_COMB", " Car Limousine Gear Manual", true, "",
       Block("VAR_FORBIDDEN_COMB", "  Car Limousine\n  Gear Manual\n")},
      {"VAR_FORBIDDEN_COMB", " Car Limousine Gear", false, "",
       Block("VAR_FORBIDDEN_COMB", "  Car Limousine\n")},
      {"VAR_FORBIDDEN_COMB", " Car", false, "", Block("VAR_FORBIDDEN_COMB", "")},
      {"VAR_FORBIDDEN_COMB", "", true, "", Block("VAR_FORBIDDEN_COMB", "")},
  };
  ExpectParse(rows);
  const std::string name(1024, 'n');
  const Made<VoA2LElementVarForbiddenComb> combination(name + "cut " + name + "cut Gear");
  ASSERT_EQ(combination->CRITERION_NAME.size(), 2U) << "a name without a value stays";
  ASSERT_EQ(combination->VALUE.size(), 1U);
  EXPECT_EQ(combination->CRITERION_NAME[0], name);
  EXPECT_EQ(combination->CRITERION_NAME[1], "Gear");
  EXPECT_EQ(combination->VALUE[0], name);
}

}  // namespace
}  // namespace a2l::test
