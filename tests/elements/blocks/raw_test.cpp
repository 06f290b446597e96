// SPDX-License-Identifier: MIT
#include "a2l2json/elements/blocks/raw.h"

#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "tests/support/parsing.h"

namespace a2l::test {
namespace {

using namespace std::string_view_literals;

TEST(IfData, SplitsOffItsName) {
  const std::string name(1024, 'n');
  const struct {
    std::string text, name, content;
  } rows[] = {
      {" XCP a\n\t b  c", "XCP", " a\n\t b  c"},
      {" XCP", "XCP", ""},
      {"", "", ""},
      // The white space that ends a name is removed with it, and so is that at the end of the text.
      {"\n XCP\r\n /begin X\n", "XCP", " /begin X"},
      {"\n\"X CP\" a", "\"X CP\"", " a"},
      // A line feed does not end a name.
      {" XCP\nDAQ a", "XCP\nDAQ", " a"},
      {name + "cut a", name, " a"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(testing::PrintToString(row.text));
    const Made<VoA2LElementIfData> made(row.text);
    EXPECT_TRUE(made.ok);
    EXPECT_EQ(made->NAME, row.name);
    EXPECT_EQ(made->IF_DATA, row.content);
    EXPECT_EQ(made.Written(2),
              "    /begin IF_DATA " + row.name + "\n" + row.content + "\n    /end IF_DATA\n");
  }
}

TEST(A2ml, KeepsItsTextWhole) {
  const Made<VoA2LElementA2ML> made("\n  block \"IF_DATA\" x;\n\t");
  EXPECT_TRUE(made.ok);
  EXPECT_EQ(made->A2ML, "\n  block \"IF_DATA\" x;\n\t");
  EXPECT_EQ(Made<VoA2LElementA2ML>("a\nb").Written(1),
            "  /begin A2ML\n"
            "    a\n"
            "b\n"
            "  /end A2ML\n");
  EXPECT_EQ(Made<VoA2LElementA2ML>().Written(), "/begin A2ML\n  \n/end A2ML\n");
}

TEST(Unknown, KeepsItsTextWholeAndIsNotWritten) {
  const Made<VoA2LElementUnknown> made(" a \0b\n "sv);
  EXPECT_TRUE(made.ok);
  EXPECT_EQ(made->TEXT, " a \0b\n "sv);
  EXPECT_EQ(made.Written(1), "");
}

}  // namespace
}  // namespace a2l::test
