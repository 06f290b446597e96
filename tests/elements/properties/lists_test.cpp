// SPDX-License-Identifier: MIT
#include "a2l2json/elements/properties/lists.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/parsing.h"

namespace a2l::test {
namespace {

TEST(MatrixDim, TakesNumbersToTheEnd) {
  const ParseRow rows[] = {
      {"MATRIX_DIM", " 2 3 4", true, "",
       "MATRIX_DIM 2\n"
       "           3\n"
       "           4\n"},
      {"MATRIX_DIM", " 0x10 010\r", true, "",
       "MATRIX_DIM 16\n"
       "           8\n"},
      {"MATRIX_DIM", " 1", true, "", "MATRIX_DIM 1\n"},
      {"MATRIX_DIM", " 2x -1 \t", true, "",
       "MATRIX_DIM 2\n"
       "           4294967295\n"},
      // The list ends before the first malformed number.
      {"MATRIX_DIM", " 2 x 4", false, " 4", "MATRIX_DIM 2\n"},
      {"MATRIX_DIM", " x", false, "", "MATRIX_DIM\n"},
      {"MATRIX_DIM", "", true, "", "MATRIX_DIM\n"},
  };
  ExpectParse(rows);
}

// A second read appends numbers, but replaces names.
TEST(Lists, ReadASecondTime) {
  Made<VoA2LElementMatrixDim> dimensions("2 3");
  EXPECT_TRUE(dimensions.Parse("4"));
  EXPECT_EQ(dimensions.Written(),
            "MATRIX_DIM 2\n"
            "           3\n"
            "           4\n");
  Made<VoA2LElementFrameMeasurement> frame("a b");
  EXPECT_TRUE(frame.Parse("c"));
  EXPECT_EQ(frame.Written(), "FRAME_MEASUREMENT c\n");
}

TEST(MatrixDim, StoresNumbers) {
  const Made<VoA2LElementMatrixDim> dimensions("2 3");
  EXPECT_EQ(
      (std::vector<std::uint32_t>(dimensions->MATRIX_DIM.begin(), dimensions->MATRIX_DIM.end())),
      (std::vector<std::uint32_t>{2, 3}));
  EXPECT_EQ(dimensions.Written(1),
            "  MATRIX_DIM 2\n"
            "             3\n");
}

TEST(FrameMeasurement, TakesNamesToTheEnd) {
  const std::string name(1024, 'n');
  const ParseRow rows[] = {
      {"FRAME_MEASUREMENT", " a \"b c\" d", true, "",
       "FRAME_MEASUREMENT a\n"
       "                  \"b c\"\n"
       "                  d\n"},
      {"FRAME_MEASUREMENT", name + "cut " + name + "cut", true, "",
       "FRAME_MEASUREMENT " + name +
           "\n"
           "                  " +
           name + "\n"},
      {"FRAME_MEASUREMENT", "", true, "", "FRAME_MEASUREMENT\n"},
  };
  ExpectParse(rows);
}

TEST(FrameMeasurement, BeginsAnewWhenReadAgain) {
  Made<VoA2LElementFrameMeasurement> frame("a b c");
  EXPECT_TRUE(frame.Parse("d"));
  EXPECT_EQ(frame.Written(1), "  FRAME_MEASUREMENT d\n");
  EXPECT_TRUE(frame.Parse(""));
  EXPECT_TRUE(frame->FRAME_MEASUREMENT.empty());
}

}  // namespace
}  // namespace a2l::test
