// SPDX-License-Identifier: MIT
//
// What each rule finds and what becomes of it. Expected texts and places are worked out by hand.
#include "a2l2json/mend/mend.h"

#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "tests/mend/mending.h"

namespace a2l::test {
namespace {

struct Row {
  std::string_view text;
  std::string_view mended;
  std::string_view findings;  ///< "rule@line:column", one behind the other
};

void Expect(const Row& row) {
  const MendRun run = RunMend(row.text);
  EXPECT_EQ(run.mended.text, row.mended) << row.text;
  EXPECT_EQ(run.Short(), row.findings) << row.text << "\n" << run.Texts();
}

// A module of a project, with the given lines in it.
std::string InModule(std::string_view lines) {
  return "/begin PROJECT p \"\"\n  /begin MODULE m \"\"\n" + std::string(lines) +
         "  /end MODULE\n/end PROJECT\n";
}

// The same for a text that is mended: `lines` begins in the third line of the file.
void ExpectInModule(std::string_view lines, std::string_view mended, std::string_view findings) {
  Expect({InModule(lines), InModule(mended), findings});
}

TEST(Mend, NothingGivesNothing) {
  Expect({"", "", ""});
  Expect({" \t\r\n\n", "", ""});
  Expect({"// a comment", "", ""});
}

TEST(Mend, LaysOutHeadsPropertiesAndEnds) {
  Expect(
      {"ASAP2_VERSION\n1\n71\n/begin PROJECT\np\n\"long\"\n/begin\nHEADER\n\"h\"\nVERSION \"1\"\n"
       "/end\nHEADER\n/end PROJECT",
       "ASAP2_VERSION 1 71\n/begin PROJECT p \"long\"\n  /begin HEADER \"h\"\n    VERSION \"1\"\n"
       "  /end HEADER\n/end PROJECT\n",
       ""});
}

TEST(Mend, ALineOfItsOwnForWhatStandsBehindParameters) {
  ExpectInModule(
      "/begin MEASUREMENT m \"\" UBYTE c 0 0 0 255 ECU_ADDRESS 0x51A50 READ_WRITE /end "
      "MEASUREMENT\n",
      "    /begin MEASUREMENT m \"\" UBYTE c 0 0 0 255\n      ECU_ADDRESS 0x51A50\n"
      "      READ_WRITE\n    /end MEASUREMENT\n",
      "same-line@3:43 same-line@3:63");
}

TEST(Mend, TellsWhatStandsBesideMarkers) {
  ExpectInModule("/begin GROUP g \"\"\n/begin SUB_GROUP\na b /end SUB_GROUP ROOT\n/end GROUP\n",
                 "    /begin GROUP g \"\"\n      /begin SUB_GROUP\n        a\n        b\n"
                 "      /end SUB_GROUP\n      ROOT\n    /end GROUP\n",
                 "before-end@5:1 behind-end@5:20");
  ExpectInModule("/begin GROUP g \"\"\nROOT /begin SUB_GROUP\na\n/end SUB_GROUP\n/end GROUP\n",
                 "    /begin GROUP g \"\"\n      ROOT\n      /begin SUB_GROUP\n        a\n"
                 "      /end SUB_GROUP\n    /end GROUP\n",
                 "before-begin@4:1");
}

TEST(Mend, MakesBlanksOfOtherWhiteSpace) {
  ExpectInModule("/begin MOD_COMMON \"\"\nALIGNMENT_BYTE\t1\nALIGNMENT_WORD\f2\n/end MOD_COMMON\n",
                 "    /begin MOD_COMMON \"\"\n      ALIGNMENT_BYTE 1\n      ALIGNMENT_WORD 2\n"
                 "    /end MOD_COMMON\n",
                 "tab@4:1 white-space@5:1");
  Expect({"\fASAP2_VERSION 1 71\n", "ASAP2_VERSION 1 71\n", "white-space@1:2"});
}

TEST(Mend, SeparatesWordsThatACommentJoins) {
  ExpectInModule("/begin MOD_COMMON \"\"\nALIGNMENT_BYTE/**/1\n/end MOD_COMMON\n",
                 "    /begin MOD_COMMON \"\"\n      ALIGNMENT_BYTE 1\n    /end MOD_COMMON\n",
                 "comment@4:1");
}

TEST(Mend, ReadsALineBehindAnUnknownWord) {
  ExpectInModule("/begin MOD_COMMON \"\"\nCOLOUR 3 ALIGNMENT_BYTE 1\n/end MOD_COMMON\n",
                 "    /begin MOD_COMMON \"\"\n      COLOUR 3\n      ALIGNMENT_BYTE 1\n"
                 "    /end MOD_COMMON\n",
                 "unknown-keyword@4:1 behind-unknown@4:10");
}

TEST(Mend, KeepsKeywordsInListsFromTheBeginningsOfLines) {
  ExpectInModule(
      "/begin GROUP g \"\"\n/begin SUB_GROUP\nVERSION\na\nUNIT\n/end SUB_GROUP\n/end GROUP\n",
      "    /begin GROUP g \"\"\n      /begin SUB_GROUP VERSION\n        a UNIT\n"
      "      /end SUB_GROUP\n    /end GROUP\n",
      "list-keyword@5:1");
}

TEST(Mend, TakesAKeywordForANameWhereAParameterIsDue) {
  ExpectInModule(
      "/begin RECORD_LAYOUT\nUNIT\nFNC_VALUES 1 UBYTE ROW_DIR DIRECT\n/end RECORD_LAYOUT\n",
      "    /begin RECORD_LAYOUT UNIT\n      FNC_VALUES 1 UBYTE ROW_DIR DIRECT\n"
      "    /end RECORD_LAYOUT\n",
      "");
}

TEST(Mend, EndsAListAtAKeywordThatTheBlockAccepts) {
  ExpectInModule(
      "/begin MEASUREMENT m \"\" UBYTE c 0 0 0 255\nMATRIX_DIM 2 3 READ_WRITE\n/end MEASUREMENT\n",
      "    /begin MEASUREMENT m \"\" UBYTE c 0 0 0 255\n      MATRIX_DIM 2 3\n      READ_WRITE\n"
      "    /end MEASUREMENT\n",
      "taken-as-value@4:16");
}

TEST(Mend, GivesEveryRowALine) {
  ExpectInModule(
      "/begin COMPU_VTAB t \"\" TAB_VERB 2 0 \"off\"\n1 \"on\" DEFAULT_VALUE \"?\"\n"
      "/end COMPU_VTAB\n",
      "    /begin COMPU_VTAB t \"\" TAB_VERB 2\n      0 \"off\"\n      1 \"on\"\n"
      "      DEFAULT_VALUE \"?\"\n    /end COMPU_VTAB\n",
      "same-line@4:8");
}

TEST(Mend, LeavesEncodingOut) {
  Expect(
      {"/begin PROJECT p \"\"\n/begin MODULE m \"\"\n"
       "/begin CHARACTERISTIC c \"\" ASCII 0 r 0 n 0 1 ENCODING UTF8\nNUMBER 4\n"
       "/end CHARACTERISTIC\n/end MODULE\n/end PROJECT\n",
       InModule("    /begin CHARACTERISTIC c \"\" ASCII 0 r 0 n 0 1\n      NUMBER 4\n"
                "    /end CHARACTERISTIC\n"),
       "encoding@3:46"});
}

// What stands behind it is read as if it were not there.
TEST(Mend, LeavesEncodingOutOfAList) {
  const std::string_view begin =
      "    /begin CHARACTERISTIC c \"\" ASCII 0 r 0 n 0 1\n      MATRIX_DIM 2";
  const std::string_view end = "    /end CHARACTERISTIC\n";
  ExpectInModule(
      std::string(begin) + "\n      ENCODING UTF8\n      4 NUMBER 5\n" + std::string(end),
      std::string(begin) + " 4\n      NUMBER 5\n" + std::string(end), "encoding@5:7");
  // A keyword that begins a line is one again.
  ExpectInModule(
      std::string(begin) + "\n      ENCODING UTF8\n      NUMBER 5 DISCRETE\n" + std::string(end),
      std::string(begin) + "\n      NUMBER 5\n      DISCRETE\n" + std::string(end),
      "encoding@5:7 same-line@6:16");
}

TEST(Mend, KnowsThatWhiteSpaceBehindANumberIsNoPartOfIt) {
  ExpectInModule(
      "    /begin MOD_COMMON \"\"\n      ALIGNMENT_BYTE 1\f\n      ALIGNMENT_WORD 2\f 3\n"
      "    /end MOD_COMMON\n",
      "    /begin MOD_COMMON \"\"\n      ALIGNMENT_BYTE 1\n      ALIGNMENT_WORD 2 3\n"
      "    /end MOD_COMMON\n",
      "surplus@5:25");
  // Of a name, it is one.
  ExpectInModule(
      "    /begin GROUP g \"\"\n      /begin SUB_GROUP\n        a\f\n      /end SUB_GROUP\n    "
      "/end GROUP\n",
      "    /begin GROUP g \"\"\n      /begin SUB_GROUP\n        a\n      /end SUB_GROUP\n    /end "
      "GROUP\n",
      "white-space@5:9");
}

// Texts -----------------------------------------------------------------------------------------

TEST(MendTexts, PartMarkersFromTheirSlash) {
  Expect({"/begin PROJECT p \"C:/end/begin\"\n/end PROJECT\n",
          "/begin PROJECT p \"C:/ end/ begin\"\n/end PROJECT\n", "text-marker@1:18"});
}

TEST(MendTexts, PutABlankBehindABackslashAtTheEnd) {
  Expect({"/begin PROJECT p \"C:\\\\\"\n/end PROJECT\n",
          "/begin PROJECT p \"C:\\\\ \"\n/end PROJECT\n", "text-backslash@1:18"});
  // An odd one makes a quote of the quote behind it.
  Expect({"/begin PROJECT p \"say \\\"hi\\\"\"\n/end PROJECT\n",
          "/begin PROJECT p \"say \\\"hi\\\"\"\n/end PROJECT\n", ""});
}

TEST(MendTexts, HaveABlankForALineEndAndTheWhiteSpaceAroundIt) {
  Expect({"/begin PROJECT p \"a\t \r\n  b\"\n/end PROJECT\n",
          "/begin PROJECT p \"a b\"\n/end PROJECT\n", "text-lines@1:18"});
  // A line end alone is a blank to the converter as well.
  Expect({"/begin PROJECT p \"a\nb\"\n/end PROJECT\n", "/begin PROJECT p \"a b\"\n/end PROJECT\n",
          ""});
}

TEST(MendTexts, KeepWhatLooksLikeAComment) {
  Expect({"/begin PROJECT p \"a\nhttp://b\"\n/end PROJECT\n",
          "/begin PROJECT p \"a http://b\"\n/end PROJECT\n", "text-comment@1:18"});
  Expect({"/begin PROJECT p \"a // b /* c\"\n/end PROJECT\n",
          "/begin PROJECT p \"a // b /* c\"\n/end PROJECT\n", ""});
  // A quote inside of a word opens a text as far as comments go.
  Expect({"/begin PROJECT 5\" \"a // b\"\n/end PROJECT\n",
          "/begin PROJECT 5\"\n  \"a // b\"\n/end PROJECT\n", "inside-text@1:19"});
}

TEST(MendTexts, KeepTabs) {
  Expect({"/begin PROJECT p \"a\tb\"\n/end PROJECT\n", "/begin PROJECT p \"a\tb\"\n/end PROJECT\n",
          ""});
}

// The converter takes white space at the end of a keyword's line away.
TEST(MendTexts, LoseNothingByWhiteSpaceBeforeTheirFirstLineEnd) {
  ExpectInModule("    /begin GROUP g \"a\r\nb\"\n    /end GROUP\n",
                 "    /begin GROUP g \"a b\"\n    /end GROUP\n", "");
  ExpectInModule("    /begin GROUP g \" \t\nb\"\n    /end GROUP\n",
                 "    /begin GROUP g \" b\"\n    /end GROUP\n", "");
  ExpectInModule("    /begin GROUP g \"a\r\nb\r\nc\"\n    /end GROUP\n",
                 "    /begin GROUP g \"a b c\"\n    /end GROUP\n", "text-lines@3:20");
  ExpectInModule("    /begin GROUP g \"a\f\nb\"\n    /end GROUP\n",
                 "    /begin GROUP g \"a b\"\n    /end GROUP\n", "text-lines@3:20");
  ExpectInModule("    /begin GROUP g\n\"a\r\nb\"\n    /end GROUP\n",
                 "    /begin GROUP g \"a b\"\n    /end GROUP\n", "text-lines@4:1");
}

TEST(MendTexts, AreClosedBeforeTheNextBlock) {
  Expect({"/begin PROJECT p \"\"\n/begin HEADER \"never closed\n/end HEADER\n/end PROJECT\n",
          "/begin PROJECT p \"\"\n  /begin HEADER \"never closed\"\n  /end HEADER\n/end PROJECT\n",
          "text-without-end@2:15"});
}

// The next quote decides: here, it stands behind a word and before white space.
TEST(MendTexts, MayHoldALineThatLooksLikeABlockIfTheyAreClosed) {
  ExpectInModule(
      "    /begin GROUP g \"as in\n/begin MODULE\nof \"\"p\"\" \\\"q\\\".\"\n    /end GROUP\n",
      "    /begin GROUP g \"as in / begin MODULE of \"\"p\"\" \\\"q\\\".\"\n    /end GROUP\n",
      "text-marker@3:20");
}

// The next quote opens another text: behind white space, or before a word.
TEST(MendTexts, AreNotClosedByTheNextTextThatBegins) {
  ExpectInModule(
      "    /begin GROUP g \"as in\n    /end GROUP\n    /begin GROUP h \"\"\n    /end GROUP\n"
      "    /begin GROUP i \"i\"\n    /end GROUP\n",
      "    /begin GROUP g \"as in\"\n    /end GROUP\n    /begin GROUP h \"\"\n    /end GROUP\n"
      "    /begin GROUP i \"i\"\n    /end GROUP\n",
      "text-without-end@3:20");
  ExpectInModule(
      "    /begin GROUP g \"as in\n    /end GROUP\n    /begin GROUP h \" h\"\n    /end GROUP\n",
      "    /begin GROUP g \"as in\"\n    /end GROUP\n    /begin GROUP h \" h\"\n    /end GROUP\n",
      "text-without-end@3:20");
}

TEST(MendTexts, MayHoldWhatLooksLikeAMarkerInTheMiddleOfALine) {
  Expect({"/begin PROJECT p \"a\nsee /end of it\"\n/end PROJECT\n",
          "/begin PROJECT p \"a see / end of it\"\n/end PROJECT\n", "text-marker@1:18"});
}

// Blocks that are kept as text ------------------------------------------------------------------

TEST(MendRaw, EndsTheNameOfInterfaceDataWithItsLine) {
  ExpectInModule("    /begin IF_DATA XCP\n/begin A 1 /end A\n    /end IF_DATA\n",
                 "    /begin IF_DATA XCP\n /begin A 1 /end A\n    /end IF_DATA\n",
                 "interface-name@3:20");
  ExpectInModule("    /begin IF_DATA XCP /begin A 1 /end A /end IF_DATA\n",
                 "    /begin IF_DATA XCP\n /begin A 1 /end A\n    /end IF_DATA\n",
                 "interface-name@3:20");
  // A blank ends the name.
  ExpectInModule("    /begin IF_DATA XCP 1\n2\n    /end IF_DATA\n",
                 "    /begin IF_DATA XCP\n 1\n2\n    /end IF_DATA\n", "");
}

TEST(MendRaw, KeepsLines) {
  const std::string lines =
      "    /begin IF_DATA XCP\n     0x1\t\"a // b\" /* kept */ \r\n\t\n  2\n    /end IF_DATA\n"
      "    /begin A2ML\n block \"IF_DATA\" struct { };\n    /end A2ML\n";
  ExpectInModule(lines, lines, "");
}

TEST(MendRaw, KeepsValuesBeforeTheEnd) {
  ExpectInModule("    /begin IF_DATA XCP 1\n 2 3 /end IF_DATA\n",
                 "    /begin IF_DATA XCP\n 1\n 2 3\n    /end IF_DATA\n", "before-end@4:2");
}

TEST(MendRaw, TellsOfMarkersInTexts) {
  ExpectInModule("    /begin IF_DATA XCP 1\n \"C:/endurance\"\n    /end IF_DATA\n",
                 "    /begin IF_DATA XCP\n 1\n \"C:/ endurance\"\n    /end IF_DATA\n",
                 "text-marker@4:2");
}

// To the converter the text goes on, so that the /end in the comment counts.
TEST(MendRaw, PartsABackslashFromItsQuoteBeforeAComment) {
  const std::string_view lines =
      "    /begin IF_DATA XCP\n 1 \"C:\\\\\" /* old\n /end IF_DATA */\n    /end IF_DATA\n";
  const MendRun run = RunMend(InModule(lines));
  EXPECT_EQ(run.mended.text,
            InModule("    /begin IF_DATA XCP\n 1 \n \"C:\\\\ \" /* old\n /end IF_DATA */\n"
                     "    /end IF_DATA\n"));
  EXPECT_EQ(run.Short(), "text-backslash@4:4 interface-text@5:7 read-ends@6:10");
  EXPECT_TRUE(DocumentOf(run.mended.text).has_value());
}

TEST(MendRaw, SeparatesWhatACommentBehindATextJoins) {
  ExpectInModule("    /begin IF_DATA XCP\n 1\n\"a\n// b\"/* c */\"d\"\n    /end IF_DATA\n",
                 "    /begin IF_DATA XCP\n 1\n\"a // b\"/* c */ \"d\"\n    /end IF_DATA\n",
                 "text-comment@5:1 comment@6:6");
}

TEST(MendRaw, PartsABackslashFromADoubledQuoteBeforeWhatLooksLikeAComment) {
  ExpectInModule("    /begin IF_DATA X\n \"a\\\\\"\"//b\" 1\n    /end IF_DATA\n",
                 "    /begin IF_DATA X\n \"a\\\\ \"\"//b\" 1\n    /end IF_DATA\n",
                 "text-backslash@4:2");
}

TEST(MendRaw, TakesACommentAwayThatTheConverterEndsSooner) {
  ExpectInModule("    /begin IF_DATA X\n 1 /* a *\n/ b */ 2 /**/ 3\n    /end IF_DATA\n",
                 "    /begin IF_DATA X\n 1   2 /**/ 3\n    /end IF_DATA\n", "otherwise@4:4");
  ExpectInModule("    /begin IF_DATA X\n/* a *\n/ b */\n 2\n    /end IF_DATA\n",
                 "    /begin IF_DATA X\n 2\n    /end IF_DATA\n", "otherwise@4:1");
  ExpectInModule("    /begin IF_DATA X\n 1 /*\n/ b */ 2\n    /end IF_DATA\n",
                 "    /begin IF_DATA X\n 1 /*\n/ b */ 2\n    /end IF_DATA\n", "");
}

// To the converter, the quote begins a text: what looks like a comment is none there, and is one at
// the beginning of a line.
TEST(MendRaw, TellsOfAQuoteInANameIfItHidesWhatFollows) {
  ExpectInModule("    /begin IF_DATA X\"b // c\n    /end IF_DATA\n",
                 "    /begin IF_DATA X\"b\n // c\n    /end IF_DATA\n", "otherwise@3:20");
  ExpectInModule("    /begin IF_DATA X\"b \"c // d\n    /end IF_DATA\n",
                 "    /begin IF_DATA X\"b\n \"c // d\n    /end IF_DATA\n", "otherwise@3:20");
  ExpectInModule("    /begin IF_DATA X\"b 1 / 2\n    /end IF_DATA\n",
                 "    /begin IF_DATA X\"b\n 1 / 2\n    /end IF_DATA\n", "");
}

TEST(MendRaw, TellsOfUnknownBlocks) {
  ExpectInModule("    /begin COLOUR red\n    /end COLOUR\n",
                 "    /begin COLOUR\n red\n    /end COLOUR\n", "unknown-block@3:12");
}

// Encodings -------------------------------------------------------------------------------------

TEST(MendEncodings, TakeTheByteOrderMarkAway) {
  Expect(
      {"\xEF\xBB\xBF"
       "ASAP2_VERSION 1 71\n",
       "ASAP2_VERSION 1 71\n", "byte-order-mark@1:4"});
  // Before a marker, it does no harm.
  Expect({"\xEF\xBB\xBF/begin PROJECT p \"\"\n/end PROJECT\n",
          "/begin PROJECT p \"\"\n/end PROJECT\n", ""});
}

std::string Utf16(std::string_view ascii, bool isLittle) {
  std::string text;
  for (const char c : ascii) {
    text += isLittle ? c : '\0';
    text += isLittle ? '\0' : c;
  }
  return text;
}

TEST(MendEncodings, ReadUtf16OfBothOrders) {
  const std::string_view text = "ASAP2_VERSION 1 71\n";
  Expect({"\xFF\xFE" + Utf16(text, true), text, "utf-16@1:1"});
  Expect({"\xFE\xFF" + Utf16(text, false), text, "utf-16@1:1"});
  Expect({Utf16(text, true), text, "utf-16@1:1"});
  Expect({Utf16(text, false), text, "utf-16@1:1"});
  // U+00FC, U+20AC and U+1F600.
  const std::string other = "\xFF\xFE" + Utf16("/begin PROJECT p \"", true) +
                            std::string("\xFC\x00\xAC\x20\x3D\xD8\x00\xDE", 8) +
                            Utf16("\" /end PROJECT", true);
  Expect({other, "/begin PROJECT p \"\xC3\xBC\xE2\x82\xAC\xF0\x9F\x98\x80\"\n/end PROJECT\n",
          "utf-16@1:1"});
}

TEST(MendEncodings, PassOtherBytes) {
  const std::string_view text = "/begin PROJECT p \"\xFC\x80\x01\"\n/end PROJECT\n";
  Expect({text, text, ""});
}

TEST(MendEncodings, ReadFilesWhoseLinesEndInCarriageReturns) {
  Expect({"ASAP2_VERSION 1 71 // old\r/begin PROJECT p \"\"\r/end PROJECT\r",
          "ASAP2_VERSION 1 71\n/begin PROJECT p \"\"\n/end PROJECT\n", "line-ends@2:8"});
}

// What no layout can mend -----------------------------------------------------------------------

TEST(MendValues, TellsOfNumbersThatCannotBeHeld) {
  ExpectInModule(
      "    /begin MEASUREMENT m \"\" UBYTE c 0 0 0 255\n      ECU_ADDRESS 0x1FFFFFFFF\n"
      "      BIT_MASK 0xFF00000000\n      ARRAY_SIZE 40000\n      ECU_ADDRESS_EXTENSION 1x\n"
      "    /end MEASUREMENT\n",
      "    /begin MEASUREMENT m \"\" UBYTE c 0 0 0 255\n      ECU_ADDRESS 0x1FFFFFFFF\n"
      "      BIT_MASK 0xFF00000000\n      ARRAY_SIZE 40000\n      ECU_ADDRESS_EXTENSION 1x\n"
      "    /end MEASUREMENT\n",
      "number-range@4:19 number-range@5:16 number-range@6:18 number-rest@7:29");
}

std::string TextsInModule(std::string_view lines) { return RunMend(InModule(lines)).Texts(); }

TEST(MendValues, SaysWhatBecomesOfThem) {
  EXPECT_EQ(TextsInModule("/begin MEASUREMENT m \"\" FLOAT16_IEEE c 0 0 x 1e999\n"
                          "ECU_ADDRESS 0x1FFFFFFFF\nBIT_MASK 0xFFFFFFFFFFFFFFFF\n"
                          "/end MEASUREMENT\n"),
            "file.a2l:3:25: cannot be mended: FLOAT16_IEEE of MEASUREMENT m becomes UBYTE "
            "[unknown-value]\n"
            "file.a2l:3:44: cannot be mended: x of MEASUREMENT m is not a number [not-a-number]\n"
            "file.a2l:3:46: cannot be mended: 1e999 of MEASUREMENT m is beyond what the document "
            "can hold and becomes null [number-range]\n"
            "file.a2l:4:13: cannot be mended: 0x1FFFFFFFF of ECU_ADDRESS is beyond what the "
            "document can hold and becomes 4294967295 [number-range]\n"
            "file.a2l:5:10: cannot be mended: 0xFFFFFFFFFFFFFFFF of BIT_MASK is beyond what the "
            "document can hold and becomes -1 [number-range]\n");
}

TEST(MendValues, TellsOfWordsThatTheirKeywordDoesNotKnow) {
  EXPECT_EQ(TextsInModule("/begin CHARACTERISTIC c \"\" VALUE 0 r 0 n 0 1\n"
                          "CALIBRATION_ACCESS NO_CALIBRATION\n/end CHARACTERISTIC\n"),
            "file.a2l:4:20: cannot be mended: NO_CALIBRATION of CALIBRATION_ACCESS becomes "
            "CALIBRATION [unknown-value]\n");
}

TEST(MendValues, TellsOfOctalNumbersWhoseValueIsAnother) {
  ExpectInModule(
      "    /begin MOD_COMMON \"\"\n      ALIGNMENT_BYTE 010\n      ALIGNMENT_WORD 04\n"
      "    /end MOD_COMMON\n",
      "    /begin MOD_COMMON \"\"\n      ALIGNMENT_BYTE 010\n      ALIGNMENT_WORD 04\n"
      "    /end MOD_COMMON\n",
      "octal@4:22");
}

TEST(MendValues, TellsOfNames) {
  const std::string name(1025, 'n');
  ExpectInModule("    /begin UNIT " + name + " \"\" \"\" DERIVED\n    /end UNIT\n",
                 "    /begin UNIT " + name + " \"\" \"\" DERIVED\n    /end UNIT\n",
                 "name-cut@3:17");
  ExpectInModule("    /begin UNIT a,b \"\" \"\" DERIVED\n    /end UNIT\n",
                 "    /begin UNIT a,b \"\" \"\" DERIVED\n    /end UNIT\n", "name-comma@3:17");
}

TEST(MendValues, TellsOfTextsWithoutQuotes) {
  Expect({"/begin PROJECT p long\n/end PROJECT\n", "/begin PROJECT p long\n/end PROJECT\n",
          "text-without-quotes@1:18"});
}

TEST(MendGrammar, TellsOfParametersThatAreMissing) {
  Expect({"/begin PROJECT p\n/end PROJECT\n", "/begin PROJECT p\n/end PROJECT\n",
          "parameter-missing@2:1"});
  // What follows is taken for the value that is missing, whatever the layout.
  ExpectInModule(
      "    /begin MOD_COMMON \"\"\n      ALIGNMENT_BYTE\n      ALIGNMENT_WORD 2\n"
      "    /end MOD_COMMON\n",
      "    /begin MOD_COMMON \"\"\n      ALIGNMENT_BYTE ALIGNMENT_WORD 2\n"
      "    /end MOD_COMMON\n",
      "parameter-missing@5:7 surplus@5:22");
}

TEST(MendGrammar, TellsOfInterfaceDataWithoutAName) {
  ExpectInModule("    /begin IF_DATA\n    /end IF_DATA\n", "    /begin IF_DATA\n    /end IF_DATA\n",
                 "parameter-missing@4:5");
  // The converter takes the first marker for the name.
  ExpectInModule("    /begin IF_DATA\n /begin A /end A\n    /end IF_DATA\n",
                 "    /begin IF_DATA\n /begin A /end A\n    /end IF_DATA\n",
                 "parameter-missing@4:2");
}

TEST(MendGrammar, TellsOfSurplusParameters) {
  ExpectInModule(
      "    /begin MOD_COMMON \"\" 5\n      ALIGNMENT_BYTE 1 2\n      3\n    /end MOD_COMMON\n",
      "    /begin MOD_COMMON \"\" 5\n      ALIGNMENT_BYTE 1 2 3\n    /end MOD_COMMON\n",
      "surplus@3:26 surplus@4:24");
  // Behind an /end, it is the block around it that has no place for them.
  EXPECT_EQ(
      RunMend("/begin PROJECT p \"\"\n/begin MODULE m \"\"\n/end MODULE 5\n/end PROJECT\n").Texts(),
      "file.a2l:3:13: cannot be mended: PROJECT p has no parameter for 5, which is dropped "
      "[surplus]\n");
}

TEST(MendGrammar, TellsOfMissingRows) {
  ExpectInModule("    /begin COMPU_TAB t \"\" TAB_INTP 2\n      1 2\n      3\n    /end COMPU_TAB\n",
                 "    /begin COMPU_TAB t \"\" TAB_INTP 2\n      1 2\n      3\n    /end COMPU_TAB\n",
                 "rows@6:5");
}

TEST(MendGrammar, TellsOfKeywordsWithoutAPlace) {
  ExpectInModule("    NUMBER 5\n", "    NUMBER 5\n", "refused@3:5");
  ExpectInModule("    /begin HEADER \"\"\n    /end HEADER\n",
                 "    /begin HEADER \"\"\n    /end HEADER\n", "refused@3:12");
  ExpectInModule("    UNIT u\n", "    UNIT u\n", "begin-missing@3:5");
  ExpectInModule("    /begin NUMBER 5\n", "    /begin NUMBER 5\n", "begin-refused@3:12");
}

TEST(MendGrammar, TellsOfWhatIsGivenTwice) {
  ExpectInModule(
      "    /begin MOD_COMMON \"\"\n      ALIGNMENT_BYTE 1\n      ALIGNMENT_BYTE 2\n"
      "    /end MOD_COMMON\n    /begin MOD_COMMON \"\"\n    /end MOD_COMMON\n",
      "    /begin MOD_COMMON \"\"\n      ALIGNMENT_BYTE 1\n      ALIGNMENT_BYTE 2\n"
      "    /end MOD_COMMON\n    /begin MOD_COMMON \"\"\n    /end MOD_COMMON\n",
      "second@5:7 second@7:12");
}

TEST(MendGrammar, ClosesWhatIsOpen) {
  Expect({"/begin PROJECT p \"\"\n/begin MODULE m \"\"\n/end PROJECT\n",
          "/begin PROJECT p \"\"\n  /begin MODULE m \"\"\n  /end MODULE\n/end PROJECT\n",
          "end-missing@2:8 read-ends@3:6"});
  Expect({"/begin PROJECT p \"\"\n", "/begin PROJECT p \"\"\n/end PROJECT\n", "end-missing@1:8"});
}

TEST(MendGrammar, TellsOfEndsThatCloseNothing) {
  Expect({"/begin PROJECT p \"\"\n  /end MODULE\n/end PROJECT\n",
          "/begin PROJECT p \"\"\n  /end MODULE\n/end PROJECT\n", "end-unmatched@2:8"});
}

TEST(MendGrammar, TakesAMarkerWithoutAKeywordAway) {
  Expect({"/begin PROJECT p /end /end PROJECT\n", "/begin PROJECT p\n/end PROJECT\n",
          "end-unmatched@1:18 parameter-missing@1:23"});
  Expect({"/begin PROJECT p \"\"\n/begin /begin MODULE m \"\"\n/end MODULE\n/end PROJECT\n",
          "/begin PROJECT p \"\"\n  /begin MODULE m \"\"\n  /end MODULE\n/end PROJECT\n",
          "begin-refused@2:1"});
  // It ends a block that is kept as text all the same.
  ExpectInModule(
      "    /begin IF_DATA X 1\n    /end\n    /begin GROUP g \"\"\n    /end GROUP\n",
      "    /begin IF_DATA X\n 1\n    /end IF_DATA\n    /begin GROUP g \"\"\n    /end GROUP\n",
      "end-unmatched@4:5 end-missing@3:12");
}

TEST(MendGrammar, TakesAMarkerAtTheEndOfTheFileAway) {
  Expect({"/begin PROJECT p \"\"\n/end", "/begin PROJECT p \"\"\n/end PROJECT\n",
          "end-unmatched@2:1 end-missing@1:8"});
  Expect({"/begin PROJECT p \"\"\n/begin", "/begin PROJECT p \"\"\n/end PROJECT\n",
          "begin-refused@2:1 end-missing@1:8"});
}

TEST(MendGrammar, TellsOfACommentThatIsNotClosed) {
  Expect({"ASAP2_VERSION 1 71\n/* for ever\n", "ASAP2_VERSION 1 71\n", "comment-without-end@2:1"});
}

// The whole file, whatever its layout -----------------------------------------------------------

TEST(Mend, CountsLostValues) {
  const MendRun run =
      RunMend(InModule("/begin MEASUREMENT m \"\" UBYTE c 0 0 0 255 ECU_ADDRESS 0x51A50 READ_WRITE "
                       "SYMBOL_LINK \"s\" 0 /end MEASUREMENT\n"));
  EXPECT_EQ(run.mended.lostValues, 4U);
  EXPECT_EQ(run.mended.lost, 3U);
  EXPECT_EQ(run.mended.mended, 0U);
  EXPECT_EQ(run.mended.unmendable, 0U);
}

TEST(Mend, GoesOnBehindAnErrorOfTheConverter) {
  ExpectInModule(
      "    /begin CHARACTERISTIC c \"\" ASCII 0 r 0 n 0 1\n      ENCODING UTF8\n"
      "      NUMBER 4 DISCRETE\n    /end CHARACTERISTIC\n",
      "    /begin CHARACTERISTIC c \"\" ASCII 0 r 0 n 0 1\n      NUMBER 4\n"
      "      DISCRETE\n    /end CHARACTERISTIC\n",
      "encoding@4:7 same-line@5:16");
}

// Behind the child at the end of such a list, everything is dropped, on whatever line it stands.
// To the converter these are keywords in every block, but only at the beginning of a line.
TEST(MendLists, MayHoldTheKeywordsOfTheFileAsNames) {
  ExpectInModule(
      "    /begin GROUP g \"\"\n      /begin SUB_GROUP\n        a ASAP2_VERSION A2ML_VERSION b\n"
      "      /end SUB_GROUP\n    /end GROUP\n",
      "    /begin GROUP g \"\"\n      /begin SUB_GROUP\n        a ASAP2_VERSION A2ML_VERSION\n"
      "        b\n      /end SUB_GROUP\n    /end GROUP\n",
      "");
}

TEST(Mend, LeavesSurplusWordsOfAListOnTheirLines) {
  for (const std::string_view separator : {"\t", " ", "\n"}) {
    std::string text;
    for (const std::string_view word :
         {"/begin", "CALIBRATION_HANDLE", "1", "CALIBRATION_HANDLE_TEXT", "\"a\"", "3", "/end",
          "CALIBRATION_HANDLE"}) {
      text.append(word).append(separator);
    }
    const std::string once =
        RunMend(
            "/begin PROJECT p \"\"\n/begin MODULE m \"\"\n/begin MOD_PAR \"\"\n"
            "/begin CALIBRATION_METHOD \"a\" 1\n" +
            text + "\n/end CALIBRATION_METHOD\n/end MOD_PAR\n/end MODULE\n/end PROJECT\n")
            .mended.text;
    EXPECT_EQ(RunMend(once).mended.text, once);
  }
}

}  // namespace
}  // namespace a2l::test
