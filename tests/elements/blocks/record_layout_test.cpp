// SPDX-License-Identifier: MIT
#include "a2l2json/elements/blocks/record_layout.h"

#include <string>

#include <gtest/gtest.h>

#include "a2l2json/reader/element_factory.h"
#include "tests/support/parsing.h"

namespace a2l::test {
namespace {

TEST(RecordLayout, TakesAName) {
  const std::string name(1024, 'n');
  const ParseRow rows[] = {
      {"RECORD_LAYOUT", " R x", true, " x", "/begin RECORD_LAYOUT R\n/end RECORD_LAYOUT\n"},
      {"RECORD_LAYOUT", R"( "R 1")", true, "",
       "/begin RECORD_LAYOUT \"R 1\"\n/end RECORD_LAYOUT\n"},
      {"RECORD_LAYOUT", name + "cut", true, "",
       "/begin RECORD_LAYOUT " + name + "\n/end RECORD_LAYOUT\n"},
      {"RECORD_LAYOUT", "", true, "", "/begin RECORD_LAYOUT \n/end RECORD_LAYOUT\n"},
  };
  ExpectParse(rows);
}

TEST(RecordLayout, KeepsTheOrderOfItsEntries) {
  const Made<VoA2LElementRecordLayout> layout("R");
  for (const ElementKind kind : {ElementKind::FNC_VALUES, ElementKind::AXIS_PTS_Y,
                                 ElementKind::RESERVED, ElementKind::AXIS_PTS_X}) {
    ASSERT_TRUE(layout->AddChild(CreateElement(kind, *layout)));
  }
  EXPECT_EQ(layout.Written(1),
            "  /begin RECORD_LAYOUT R\n"
            "    FNC_VALUES 0 UBYTE  PBYTE\n"
            "    AXIS_PTS_Y 0 UBYTE INDEX_INCR PBYTE\n"
            "    RESERVED 0 BYTE\n"
            "    AXIS_PTS_X 0 UBYTE INDEX_INCR PBYTE\n"
            "  /end RECORD_LAYOUT\n");
}

}  // namespace
}  // namespace a2l::test
