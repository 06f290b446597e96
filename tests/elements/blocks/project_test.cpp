// SPDX-License-Identifier: MIT
#include "a2l2json/elements/blocks/project.h"

#include <string>

#include <gtest/gtest.h>

#include "tests/support/kinds.h"
#include "tests/support/parsing.h"

namespace a2l::test {
namespace {

TEST(NamedBlocks, TakeANameAndADescription) {
  for (const std::string& keyword : Words("PROJECT MODULE FUNCTION GROUP")) {
    const std::string end = "/end " + keyword + "\n";
    const std::string name(1024, 'n');
    const ParseRow rows[] = {
        {keyword, R"( N "a \"b\"" c)", true, " c",
         "/begin " + keyword + " N \"a \\\"b\\\"\"\n" + end},
        {keyword, R"( "N 1" bare c)", true, " c", "/begin " + keyword + " \"N 1\" \"\"\n" + end},
        {keyword, " N", true, "", "/begin " + keyword + " N \"\"\n" + end},
        {keyword, "", true, "", "/begin " + keyword + "  \"\"\n" + end},
        {keyword, name + "cut \"d\"", true, "",
         "/begin " + keyword + " " + name + " \"d\"\n" + end},
    };
    ExpectParse(rows);
  }
}

TEST(CommentedBlocks, TakeAComment) {
  for (const std::string& keyword : Words("HEADER MOD_PAR MOD_COMMON")) {
    const std::string end = "/end " + keyword + "\n";
    const ParseRow rows[] = {
        {keyword, R"( "a b" c)", true, " c", "/begin " + keyword + " \"a b\"\n" + end},
        {keyword, " bare c", true, " c", "/begin " + keyword + " \"\"\n" + end},
        {keyword, "", true, "", "/begin " + keyword + " \"\"\n" + end},
    };
    ExpectParse(rows);
  }
}

TEST(NamedBlocks, StoreTextsWithoutQuotes) {
  const Made<VoA2LElementModule> module(R"(M "it\'s")");
  EXPECT_EQ(module->NAME, "M");
  EXPECT_EQ(module->LONG_IDENTIFIER, "it's");
  EXPECT_EQ(Made<VoA2LElementModPar>(R"("c\n")")->COMMENT, "c\n");
}

// The lines of a memory layout with this line of parameters.
std::string Layout(const std::string& line) {
  return "/begin MEMORY_LAYOUT\n  " + line + "\n/end MEMORY_LAYOUT\n";
}

TEST(MemoryLayout, TakesATypeAndSevenNumbers) {
  const ParseRow rows[] = {
      {"MEMORY_LAYOUT", " PRG_CODE 0x8000 0x100 -1 -1 -1 -1 -1 x", true, " x",
       Layout("PRG_CODE 0x8000 0x100 -1 -1 -1 -1 -1")},
      {"MEMORY_LAYOUT", " PRG_DATA 31 037 1 2 3 4 5 6", true, " 6",
       Layout("PRG_DATA 0x1F 0x1F 1 2 3 4 5")},
      {"MEMORY_LAYOUT", " PRG_RESERVED 12abc 0 0 0 0 0 0", true, "",
       Layout("PRG_RESERVED 0xC 0x0 0 0 0 0 0")},
      {"MEMORY_LAYOUT", " PRG_RESERVED_PRG_DATA 1 2 3 4 5 6 7", true, "",
       Layout("PRG_DATA 0x1 0x2 3 4 5 6 7")},
      // An unknown type is not an error.
      {"MEMORY_LAYOUT", " CODE 1 2 3 4 5 6 7", true, "", Layout(" 0x1 0x2 3 4 5 6 7")},
      // The first malformed number ends the read.
      {"MEMORY_LAYOUT", " PRG_DATA abc 2 3 4 5 6 7", false, " 2 3 4 5 6 7",
       Layout("PRG_DATA 0x0 0x0 0 0 0 0 0")},
      {"MEMORY_LAYOUT", " PRG_DATA 1 x 3 4 5 6 7", false, " 3 4 5 6 7",
       Layout("PRG_DATA 0x1 0x0 0 0 0 0 0")},
      {"MEMORY_LAYOUT", " PRG_DATA 1 2 3 x 5 6 7", false, " 5 6 7",
       Layout("PRG_DATA 0x1 0x2 3 0 0 0 0")},
      {"MEMORY_LAYOUT", " PRG_DATA 1 2 3 4 5 6", false, "", Layout("PRG_DATA 0x1 0x2 3 4 5 6 0")},
      {"MEMORY_LAYOUT", "", false, "", Layout(" 0x0 0x0 0 0 0 0 0")},
  };
  ExpectParse(rows);
}

TEST(MemoryLayout, StoresItsFields) {
  const Made<VoA2LElementMemoryLayout> layout("PRG_DATA 1 2 3 4 5 6 -7");
  EXPECT_EQ(layout->PRG_TYPE, LayoutProgramType::PRG_DATA);
  EXPECT_EQ(layout->ADDRESS, 1U);
  EXPECT_EQ(layout->SIZE, 2U);
  EXPECT_EQ(layout->OFFSET, (MirrorOffsets{3, 4, 5, 6, -7}));
}

// The lines of a memory segment with these words and nothing else.
std::string Segment(const std::string& words) {
  return "/begin MEMORY_SEGMENT S \"\"\n  " + words +
         " 0x0 0x0\n  0 0 0 0 0\n/end MEMORY_SEGMENT\n";
}

TEST(MemorySegment, KnowsItsWords) {
  const struct {
    std::string words, readAs;
  } rows[] = {
      {"CALIBRATION_VARIABLES EEPROM INTERN", "CALIBRATION_VARIABLES EEPROM INTERN"},
      {"CODE EPROM EXTERN", "CODE EPROM EXTERN"},
      {"DATA FLASH INTERN", "DATA FLASH INTERN"},
      {"EXCLUDE_FROM_FLASH RAM INTERN", "EXCLUDE_FROM_FLASH RAM INTERN"},
      {"RESERVED ROM INTERN", "RESERVED ROM INTERN"},
      {"SERAM REGISTER INTERN", "SERAM REGISTER INTERN"},
      {"VARIABLES ROM INTERN", "VARIABLES ROM INTERN"},
      // A word may be part of a longer one. The first one that fits counts.
      {"OFFLINE_DATA MY_FLASH_AREA INTERNAL", "DATA FLASH INTERN"},
      {"DATA_CODE ROM_RAM EXTERN_INTERN", "CODE RAM INTERN"},
      {"CALIBRATION_VARIABLES_CODE SRAM EXTERNAL", "CALIBRATION_VARIABLES RAM EXTERN"},
      {"X Y Z", "  "},
      {"code flash intern", "  "},
  };
  for (const auto& row : rows) {
    ExpectParse({"MEMORY_SEGMENT", " S \"\" " + row.words + " 0 0 0 0 0 0 0", true, "",
                 Segment(row.readAs)});
  }
}

TEST(MemorySegment, TakesItsParametersInOrder) {
  const ParseRow rows[] = {
      {"MEMORY_SEGMENT", R"( S "a b" CODE ROM INTERN 0x10 32 -1 2 0x3 04 5 x)", true, " x",
       "/begin MEMORY_SEGMENT S \"a b\"\n  CODE ROM INTERN 0x10 0x20\n  -1 2 3 4 5\n"
       "/end MEMORY_SEGMENT\n"},
      {"MEMORY_SEGMENT", R"( S "" CODE ROM INTERN 1 2 3 4 5 6)", false, "",
       "/begin MEMORY_SEGMENT S \"\"\n  CODE ROM INTERN 0x1 0x2\n  3 4 5 6 0\n"
       "/end MEMORY_SEGMENT\n"},
      {"MEMORY_SEGMENT", R"( S "" CODE ROM INTERN x 2 3 4 5 6 7)", false, " 2 3 4 5 6 7",
       Segment("CODE ROM INTERN")},
      {"MEMORY_SEGMENT", R"( S "" CODE)", false, "", Segment("CODE  ")},
  };
  ExpectParse(rows);
  const Made<VoA2LElementMemorySegment> segment(R"(S "" DATA REGISTER EXTERN 1 2 3 4 5 6 7)");
  EXPECT_EQ(segment->PRG_TYPE, SegmentProgramType::DATA);
  EXPECT_EQ(segment->MEMORY_TYPE, MemoryType::REGISTER);
  EXPECT_EQ(segment->ATTRIBUTE, MemoryAttribute::EXTERN);
  EXPECT_EQ(segment->valid, 1);
  EXPECT_EQ(Made<VoA2LElementMemorySegment>("S \"\" DATA ROM EXTERN x")->valid, 1)
      << "only objects can become invalid";
}

TEST(MemorySegment, WritesATypeThatReadingNeverGives) {
  Made<VoA2LElementMemorySegment> segment("S \"\" DATA ROM INTERN 0 0 0 0 0 0 0");
  segment->PRG_TYPE = SegmentProgramType::OFFLINE_DATA;
  EXPECT_EQ(segment.Written(), Segment("OFFLINE_DATA ROM INTERN"));
  segment->PRG_TYPE = static_cast<SegmentProgramType>(9);
  EXPECT_EQ(segment.Written(), Segment(" ROM INTERN"));
}

}  // namespace
}  // namespace a2l::test
