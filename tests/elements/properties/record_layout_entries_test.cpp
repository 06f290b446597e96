// SPDX-License-Identifier: MIT
#include "a2l2json/elements/properties/record_layout_entries.h"

#include <string>

#include <gtest/gtest.h>

#include "tests/support/kinds.h"
#include "tests/support/parsing.h"

namespace a2l::test {
namespace {

TEST(LayoutEntries, OfEveryAxisAreWrittenUnderTheirKeyword) {
  for (const std::string& keyword : Words("AXIS_PTS_*")) {
    ExpectParse({keyword, " 2 UWORD INDEX_DECR PLONGLONG x", true, " x",
                 keyword + " 2 UWORD INDEX_DECR PLONG\n"});
  }
  for (const std::string& keyword : Words("AXIS_RESCALE_*")) {
    ExpectParse({keyword, " 2 UWORD 0x10 INDEX_DECR PWORD x", true, " x",
                 keyword + " 2 UWORD 16 INDEX_DECR PWORD\n"});
  }
  for (const std::string& keyword :
       Words("DIST_OP_* NO_AXIS_PTS_* NO_RESCALE_* OFFSET_* RIP_ADDR_W RIP_ADDR_* SHIFT_OP_* "
             "SRC_ADDR_* IDENTIFICATION")) {
    const ParseRow rows[] = {
        {keyword, " 0x10 SLONG x", true, " x", keyword + " 16 SLONG\n"},
        {keyword, " 3 FLOAT16_IEEE", true, "", keyword + " 3 UBYTE\n"},
        {keyword, " 3", true, "", keyword + " 3 UBYTE\n"},
        {keyword, " x SLONG", false, " SLONG", keyword + " 0 UBYTE\n"},
        {keyword, "", false, "", keyword + " 0 UBYTE\n"},
    };
    ExpectParse(rows);
  }
  for (const std::string& keyword : Words("FIX_NO_AXIS_PTS_*")) {
    const ParseRow rows[] = {
        {keyword, " 010 x", true, " x", keyword + " 8\n"},
        {keyword, " x 8", false, " 8", keyword + " 0\n"},
        {keyword, "", false, "", keyword + " 0\n"},
    };
    ExpectParse(rows);
  }
}

TEST(LayoutEntries, AreWrongOnlyWithoutTheirNumbers) {
  const ParseRow rows[] = {
      {"AXIS_PTS_X", " 2 UWORD INDEX_INCR DIRECT", true, "",
       "AXIS_PTS_X 2 UWORD INDEX_INCR DIRECT\n"},
      {"AXIS_PTS_Z", " 2 UWORD", true, "", "AXIS_PTS_Z 2 UWORD INDEX_INCR DIRECT\n"},
      {"AXIS_PTS_4", " 2 INT DOWN NEAR", true, "", "AXIS_PTS_4 2 UBYTE INDEX_INCR DIRECT\n"},
      // Nothing behind a wrong position is read. Words that are not read have code 0.
      {"AXIS_PTS_5", " x UWORD INDEX_DECR DIRECT", false, " UWORD INDEX_DECR DIRECT",
       "AXIS_PTS_5 0 UBYTE INDEX_INCR PBYTE\n"},
      {"AXIS_RESCALE_X", " 2 UWORD x INDEX_DECR DIRECT", false, " INDEX_DECR DIRECT",
       "AXIS_RESCALE_X 2 UWORD 0 INDEX_INCR PBYTE\n"},
      {"AXIS_RESCALE_Y", " 2 UWORD 5", true, "", "AXIS_RESCALE_Y 2 UWORD 5 INDEX_INCR DIRECT\n"},
      {"FNC_VALUES", " 1 SWORD COLUMN_DIR DIRECT x", true, " x",
       "FNC_VALUES 1 SWORD COLUMN_DIR DIRECT\n"},
      {"FNC_VALUES", " 1 SWORD ROW_DIR PBYTE", true, "", "FNC_VALUES 1 SWORD ROW_DIR PBYTE\n"},
      {"FNC_VALUES", " 1 SWORD ALTERNATE_CURVES PWORD", true, "",
       "FNC_VALUES 1 SWORD ALTERNATE_CURVES PWORD\n"},
      {"FNC_VALUES", " 1 SWORD ALTERNATE_WITH_X DIRECT", true, "",
       "FNC_VALUES 1 SWORD ALTERNATE_WITH_X DIRECT\n"},
      {"FNC_VALUES", " 1 SWORD ALTERNATE_WITH_Y DIRECT", true, "",
       "FNC_VALUES 1 SWORD ALTERNATE_WITH_Y DIRECT\n"},
      {"FNC_VALUES", " 1 SWORD ROW_DIR_COLUMN_DIR DIRECT", true, "",
       "FNC_VALUES 1 SWORD COLUMN_DIR DIRECT\n"},
      {"FNC_VALUES", " 1 SWORD DIAGONAL DIRECT", true, "", "FNC_VALUES 1 SWORD  DIRECT\n"},
      {"FNC_VALUES", " 1", true, "", "FNC_VALUES 1 UBYTE  DIRECT\n"},
      {"FNC_VALUES", "", false, "", "FNC_VALUES 0 UBYTE  PBYTE\n"},
      {"RESERVED", " 5 LONG x", true, " x", "RESERVED 5 LONG\n"},
      {"RESERVED", " 5 WORD", true, "", "RESERVED 5 WORD\n"},
      {"RESERVED", " 5 UWORD", true, "", "RESERVED 5 WORD\n"},
      {"RESERVED", " 5 LONG_BYTE", true, "", "RESERVED 5 BYTE\n"},
      {"RESERVED", " 5 QUAD", true, "", "RESERVED 5 BYTE\n"},
      {"RESERVED", " x LONG", false, " LONG", "RESERVED 0 BYTE\n"},
  };
  ExpectParse(rows);
}

TEST(LayoutEntries, StoreCodes) {
  const Made<VoA2LElementAxisRescaleX> rescale("2 UWORD 5 INDEX_DECR PLONG");
  EXPECT_EQ(rescale->POSITION, 2U);
  EXPECT_EQ(rescale->DATA_TYPE, DataType::UWORD);
  EXPECT_EQ(rescale->MAX_NUMBER_OF_RESCALE_PAIRS, 5U);
  EXPECT_EQ(rescale->INDEX_INCR, IndexOrder::INDEX_DECR);
  EXPECT_EQ(rescale->ADDRESSING, AddrType::PLONG);
  EXPECT_EQ(rescale.Written(1), "  AXIS_RESCALE_X 2 UWORD 5 INDEX_DECR PLONG\n");
  const Made<VoA2LElementFncValues> values("1 SWORD COLUMN_DIR DIRECT");
  EXPECT_EQ(values->POSITION, 1U);
  EXPECT_EQ(values->DATA_TYPE, DataType::SWORD);
  EXPECT_EQ(values->INDEX_MODE, IndexMode::COLUMN_DIR);
  EXPECT_EQ(values->ADDRESSING, AddrType::DIRECT);
  const Made<VoA2LElementReserved> reserved("5 LONG");
  EXPECT_EQ(reserved->POSITION, 5U);
  EXPECT_EQ(reserved->DATA_SIZE, DataSize::LONG);
}

TEST(LayoutEntries, WriteNothingForACodeWithoutAWord) {
  Made<VoA2LElementAxisPtsX> points("1 UBYTE INDEX_INCR DIRECT");
  points->DATA_TYPE = static_cast<DataType>(10);
  points->INDEX_INCR = static_cast<IndexOrder>(2);
  points->ADDRESSING = static_cast<AddrType>(5);
  EXPECT_EQ(points.Written(), "AXIS_PTS_X 1   \n");
  Made<VoA2LElementReserved> reserved("1 BYTE");
  reserved->DATA_SIZE = static_cast<DataSize>(3);
  EXPECT_EQ(reserved.Written(), "RESERVED 1 \n");
}

TEST(LayoutEntries, HaveCodeZeroUntilTheyAreRead) {
  EXPECT_EQ(Made<VoA2LElementAxisPtsX>().Written(), "AXIS_PTS_X 0 UBYTE INDEX_INCR PBYTE\n");
  EXPECT_EQ(Made<VoA2LElementFncValues>().Written(), "FNC_VALUES 0 UBYTE  PBYTE\n");
  EXPECT_EQ(Made<VoA2LElementReserved>().Written(), "RESERVED 0 BYTE\n");
}

}  // namespace
}  // namespace a2l::test
