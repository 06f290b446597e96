// SPDX-License-Identifier: MIT
#include "a2l2json/elements/properties/choices.h"

#include <cstdint>
#include <string>

#include <gtest/gtest.h>

#include "tests/support/parsing.h"

#include "a2l2json/names_begin.h"

namespace a2l::test {
namespace {

// A word in a file, and the word that it is read as.
struct WordRow {
  std::string keyword, word, readAs;
};

TEST(Choices, KnowTheirWords) {
  const WordRow rows[] = {
      {"BYTE_ORDER", "LITTLE_ENDIAN", "LITTLE_ENDIAN"},
      {"BYTE_ORDER", "BIG_ENDIAN", "BIG_ENDIAN"},
      {"BYTE_ORDER", "MSB_LAST", "MSB_LAST"},
      {"BYTE_ORDER", "MSB_FIRST", "MSB_FIRST"},
      {"BYTE_ORDER", "MSB_FIRST_MSW_LAST", "MSB_FIRST"},
      {"BYTE_ORDER", "MSB_FIRST/MSB_LAST", "MSB_LAST"},
      {"CALIBRATION_ACCESS", "CALIBRATION", "CALIBRATION"},
      // The first word is part of two others.
      {"CALIBRATION_ACCESS", "NO_CALIBRATION", "CALIBRATION"},
      {"CALIBRATION_ACCESS", "OFFLINE_CALIBRATION", "CALIBRATION"},
      {"CALIBRATION_ACCESS", "NOT_IN_MCD_SYSTEM", "NOT_IN_MCD_SYSTEM"},
      {"DEPOSIT", "ABSOLUTE", "ABSOLUTE"},
      {"DEPOSIT", "DIFFERENCE", "DIFFERENCE"},
      {"DEPOSIT", "DIFFERENCE_ABSOLUTE", "ABSOLUTE"},
      {"DEPOSIT", "RELATIVE", ""},
      {"LAYOUT", "ROW_DIR", "ROW_DIR"},
      {"LAYOUT", "COLUMN_DIR", "COLUMN_DIR"},
      {"LAYOUT", "DIAGONAL", ""},
      {"MONOTONY", "MON_DECREASE", "MON_DECREASE"},
      {"MONOTONY", "MON_INCREASE", "MON_INCREASE"},
      {"MONOTONY", "STRICT_DECREASE", "STRICT_DECREASE"},
      {"MONOTONY", "STRICT_INCREASE", "STRICT_INCREASE"},
      {"MONOTONY", "MONOTONOUS", "MONOTONOUS"},
      {"MONOTONY", "STRICT_MON", "STRICT_MON"},
      {"MONOTONY", "NOT_MON", "NOT_MON"},
      {"MONOTONY", "NOT_MONOTONOUS", "MONOTONOUS"},
      {"MONOTONY", "STRICT_MON_INCREASE", "MON_INCREASE"},
      {"MONOTONY", "CONSTANT", ""},
      {"MONOTONY", "not_mon", ""},
      {"VAR_NAMING", "NUMERIC", "NUMERIC"},
      {"VAR_NAMING", "ALPHANUMERIC", "NUMERIC"},
      {"VAR_NAMING", "ALPHA", ""},
      {"ADDRESS_TYPE", "PBYTE", "PBYTE"},
      {"ADDRESS_TYPE", "PWORD", "PWORD"},
      {"ADDRESS_TYPE", "PLONG", "PLONG"},
      {"ADDRESS_TYPE", "PLONGLONG", "PLONG"},
      {"ADDRESS_TYPE", "DIRECT", "DIRECT"},
      {"ADDRESS_TYPE", "POINTER", "DIRECT"},
  };
  for (const WordRow& row : rows) {
    ExpectParse(
        {row.keyword, " " + row.word + " x", true, " x", row.keyword + " " + row.readAs + "\n"});
  }
}

TEST(Choices, AreWrongWithoutARequiredWord) {
  const ParseRow rows[] = {
      {"BYTE_ORDER", " MSB x", false, " x", "BYTE_ORDER \n"},
      {"BYTE_ORDER", "", false, "", "BYTE_ORDER \n"},
      {"CALIBRATION_ACCESS", " NONE x", false, " x", "CALIBRATION_ACCESS \n"},
      {"CALIBRATION_ACCESS", "", false, "", "CALIBRATION_ACCESS \n"},
      {"DEPOSIT", "", true, "", "DEPOSIT \n"},
      {"LAYOUT", "", true, "", "LAYOUT \n"},
      {"MONOTONY", "", true, "", "MONOTONY \n"},
      {"VAR_NAMING", "", true, "", "VAR_NAMING \n"},
      {"ADDRESS_TYPE", "", true, "", "ADDRESS_TYPE DIRECT\n"},
  };
  ExpectParse(rows);
}

TEST(Choices, HaveDefaultsUntilTheyAreRead) {
  EXPECT_EQ(Made<VoA2LElementByteOrder>()->BYTE_ORDER, ByteOrder::UNKNOWN);
  EXPECT_EQ(Made<VoA2LElementCalibrationAccess>()->CALIBRATION_ACCESS, CalibrationAccess::UNKNOWN);
  EXPECT_EQ(Made<VoA2LElementDeposit>()->DEPOSIT, Deposit::UNKNOWN);
  EXPECT_EQ(Made<VoA2LElementLayout>()->LAYOUT, Layout::ROW_DIR);
  EXPECT_EQ(Made<VoA2LElementMonotony>()->MONOTONY, Monotony::UNKNOWN);
  EXPECT_EQ(Made<VoA2LElementVarNaming>()->VAR_NAMING, VarNaming::UNKNOWN);
  EXPECT_EQ(Made<VoA2LElementAddressType>()->ADDRESS_TYPE, AddrType::DIRECT);
}

TEST(Choices, AreStoredAsCodes) {
  EXPECT_EQ(Made<VoA2LElementByteOrder>("MSB_FIRST")->BYTE_ORDER, ByteOrder::MSB_FIRST);
  EXPECT_EQ(Made<VoA2LElementCalibrationAccess>("NO_CALIBRATION")->CALIBRATION_ACCESS,
            CalibrationAccess::CALIBRATION);
  EXPECT_EQ(Made<VoA2LElementCalibrationAccess>("NOT_IN_MCD_SYSTEM")->CALIBRATION_ACCESS,
            CalibrationAccess::NOT_IN_MCD_SYSTEM);
  EXPECT_EQ(Made<VoA2LElementDeposit>("DIFFERENCE")->DEPOSIT, Deposit::DIFFERENCE_);
  EXPECT_EQ(Made<VoA2LElementLayout>("COLUMN_DIR")->LAYOUT, Layout::COLUMN_DIR);
  EXPECT_EQ(Made<VoA2LElementLayout>("")->LAYOUT, Layout::UNKNOWN);
  EXPECT_EQ(Made<VoA2LElementMonotony>("NOT_MON")->MONOTONY, Monotony::NOT_MON);
  EXPECT_EQ(Made<VoA2LElementVarNaming>("NUMERIC")->VAR_NAMING, VarNaming::NUMERIC);
  EXPECT_EQ(Made<VoA2LElementAddressType>("PLONGLONG")->ADDRESS_TYPE, AddrType::PLONG);
}

// Code can set words that reading never gives. They are written.
TEST(Choices, WriteCodesThatReadingNeverGives) {
  Made<VoA2LElementCalibrationAccess> access;
  access->CALIBRATION_ACCESS = CalibrationAccess::OFFLINE_CALIBRATION;
  EXPECT_EQ(access.Written(), "CALIBRATION_ACCESS OFFLINE_CALIBRATION\n");
  access->CALIBRATION_ACCESS = CalibrationAccess::NO_CALIBRATION;
  EXPECT_EQ(access.Written(), "CALIBRATION_ACCESS NO_CALIBRATION\n");
  access->CALIBRATION_ACCESS = static_cast<CalibrationAccess>(5);
  EXPECT_EQ(access.Written(), "CALIBRATION_ACCESS \n");
  Made<VoA2LElementAddressType> type;
  type->ADDRESS_TYPE = AddrType::PLONGLONG;
  EXPECT_EQ(type.Written(), "ADDRESS_TYPE PLONGLONG\n");
}

}  // namespace
}  // namespace a2l::test
