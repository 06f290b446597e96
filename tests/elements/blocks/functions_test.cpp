// SPDX-License-Identifier: MIT
#include "a2l2json/elements/blocks/functions.h"

#include <string>

#include <gtest/gtest.h>

#include "a2l2json/reader/element_factory.h"
#include "tests/support/kinds.h"
#include "tests/support/parsing.h"

namespace a2l::test {
namespace {

TEST(Group, HasFieldsOfItsOwn) {
  const Made<VoA2LElementGroup> group(R"(G "the group")");
  EXPECT_EQ(group->GROUP_NAME, "G");
  EXPECT_EQ(group->GROUP_LONG_IDENTIFIER, "the group");
}

TEST(NameLists, KeepNamesAsTheyAre) {
  for (const std::string& keyword :
       Words("DEF_CHARACTERISTIC FUNCTION_LIST IN_MEASUREMENT LOC_MEASUREMENT MAP_LIST "
             "OUT_MEASUREMENT REF_CHARACTERISTIC REF_GROUP REF_MEASUREMENT SUB_FUNCTION "
             "SUB_GROUP")) {
    const std::string begin = "/begin " + keyword + "\n";
    const std::string end = "/end " + keyword + "\n";
    const std::string name(1024, 'n');
    const ParseRow rows[] = {
        {keyword, " a \"b c\"  d.e[0]\t", true, "", begin + "  a \n  \"b c\" \n  d.e[0] \n" + end},
        {keyword, " a\n b\r\n c", true, "", begin + "  a \n  b \n  c \n" + end},
        {keyword, name + "cut x", true, "", begin + "  " + name + " \n  x \n" + end},
        {keyword, "", true, "", begin + end},
    };
    ExpectParse(rows);
  }
}

TEST(TextLists, TakeQuotedTexts) {
  const std::string longText(3000, 't');
  for (const std::string& keyword :
       Words("ANNOTATION_TEXT TRANSFORMER_IN_OBJECTS TRANSFORMER_OUT_OBJECTS")) {
    // Only the lines of an annotation are written with quotes.
    const std::string quote = keyword == "ANNOTATION_TEXT" ? "\"" : "";
    const std::string begin = "/begin " + keyword + "\n  ";
    const std::string end = "/end " + keyword + "\n";
    const ParseRow rows[] = {
        {keyword, R"( "a b" "c")", true, "",
         begin + quote + "a b" + quote + " \n  " + quote + "c" + quote + " \n" + end},
        // A word without quotes is not a text, but it is an entry.
        {keyword, R"( a "b")", true, "",
         begin + quote + quote + " \n  " + quote + "b" + quote + " \n" + end},
        {keyword, R"("a""b" "")", true, "",
         begin + (quote.empty() ? R"(a"b)" : R"("a\"b")") + " \n  " + quote + quote + " \n" + end},
        {keyword, '"' + longText + '"', true, "", begin + quote + longText + quote + " \n" + end},
        {keyword, "", true, "", "/begin " + keyword + "\n" + end},
    };
    ExpectParse(rows);
  }
}

TEST(Lists, BeginAnewWhenReadAgain) {
  Made<VoA2LElementDefCharacteristic> names("a b c");
  EXPECT_TRUE(names.Parse("d"));
  ASSERT_EQ(names->IDENTIFIER_LIST.size(), 1U);
  EXPECT_EQ(names->IDENTIFIER_LIST[0], "d");
  Made<VoA2LElementAnnotationText> texts(R"("a" "b")");
  EXPECT_TRUE(texts.Parse(""));
  EXPECT_TRUE(texts->TEXT_LIST.empty());
}

TEST(Lists, WriteNoChildren) {
  for (const std::string& keyword :
       Words("DEF_CHARACTERISTIC SUB_GROUP ANNOTATION_TEXT TRANSFORMER_IN_OBJECTS "
             "DEPENDENT_CHARACTERISTIC FIX_AXIS_PAR_LIST VIRTUAL VIRTUAL_CHARACTERISTIC "
             "VAR_ADDRESS VAR_FORBIDDEN_COMB IF_DATA A2ML")) {
    Tree root(NewTree());
    VoA2LElement* list = CreateElement(KeywordToKind(keyword), *root);
    ASSERT_TRUE(list->AddChild(CreateElement(ElementKind::A2ML_VERSION, *list))) << keyword;
    EXPECT_EQ(Written(*list).find("A2ML_VERSION"), std::string::npos) << keyword;
  }
}

}  // namespace
}  // namespace a2l::test
