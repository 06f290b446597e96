// SPDX-License-Identifier: MIT
//
// Files that include others.
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "a2l2json/mend/mend.h"
#include "tests/mend/mending.h"

namespace a2l::test {
namespace {

void Expect(std::string_view text, const Files& files, std::string_view mended,
            std::string_view findings) {
  const MendRun run = RunMend(text, files);
  EXPECT_EQ(run.mended.text, mended) << text;
  EXPECT_EQ(run.Short(), findings) << text << "\n" << run.Texts();
}

TEST(MendInclude, PutsTheFileInItsPlace) {
  Expect("/begin PROJECT p \"\"\n/include \"a.a2l\"\n/end PROJECT\n",
         {{"a.a2l", "/begin MODULE m \"\"\n/end MODULE\n"}},
         "/begin PROJECT p \"\"\n  /begin MODULE m \"\"\n  /end MODULE\n/end PROJECT\n",
         "include@2:1");
}

TEST(MendInclude, TakesNamesInAllTheirForms) {
  for (const std::string_view directive :
       {"/include a.a2l", "/INCLUDE \"a.a2l\"", "/Include\n\"a.a2l\"", "/include\"a.a2l\""}) {
    Expect(std::string(directive) + " 71", {{"a.a2l", "ASAP2_VERSION 1"}}, "ASAP2_VERSION 1 71\n",
           "include@1:1");
  }
  Expect(R"(/include "with blank\and.a2l")", {{R"(with blank\and.a2l)", "ASAP2_VERSION 1 71"}},
         "ASAP2_VERSION 1 71\n", "include@1:1");
  Expect("/include with blank.a2l  \n", {{"with blank.a2l", "ASAP2_VERSION 1 71"}},
         "ASAP2_VERSION 1 71\n", "include@1:1");
}

TEST(MendInclude, TakesCommentsAroundTheName) {
  for (const std::string_view directive : {"/include/**/a.a2l", "/include // a\n /* b */ \"a.a2l\"",
                                           "/include a.a2l/* c */", "/include a.a2l// c\n"}) {
    Expect(std::string(directive) + " 71", {{"a.a2l", "ASAP2_VERSION 1"}}, "ASAP2_VERSION 1 71\n",
           "include@1:1");
    const MendRun run = RunMend(directive);
    EXPECT_TRUE(run.mended.text == "/include a.a2l\n" || run.mended.text == "/include \"a.a2l\"\n")
        << run.mended.text;
    EXPECT_EQ(run.Short(), "include-missing@1:1");
  }
  EXPECT_EQ(RunMend("/include /* a").Short(), "include-missing@1:1 comment-without-end@1:10");
}

TEST(MendInclude, MayStandBeforeAMarkerWithoutAName) {
  Expect("ASAP2_VERSION 1 71 x /include/begin PROJECT p \"\"\n/end PROJECT\n", {},
         "ASAP2_VERSION 1 71 x\n/begin PROJECT p \"\"\n/end PROJECT\n",
         "before-begin@1:1 unknown-keyword@1:20 include-missing@1:22");
}

// Written without its name, it would take the next word for one.
TEST(MendInclude, IsLeftOutWithoutAName) {
  Expect("/include a\nASAP2_VERSION 1 71\n", {{"a", "/include"}}, "ASAP2_VERSION 1 71\n",
         "include@1:1 include-missing@1:1");
  // It is kept in a text that is kept, but it is no /include any more.
  Expect("/begin IF_DATA X\n 1 /include/end IF_DATA\n", {},
         "/begin IF_DATA X\n 1 / include\n/end IF_DATA\n", "refused@1:8 include-missing@2:4");
}

// To the converter, a marker in the name is one.
TEST(MendInclude, IsLeftOutWithAMarkerInTheName) {
  for (const std::string_view name : {"parts/endurance.a2l", "\"parts/endurance.a2l\""}) {
    Expect("ASAP2_VERSION 1 71\n/include " + std::string(name), {}, "ASAP2_VERSION 1 71\n",
           "include-missing@2:1");
  }
  Expect("/begin IF_DATA X\n /include parts/endurance.a2l\n/end IF_DATA\n", {},
         "/begin IF_DATA X\n / include parts/ endurance.a2l\n/end IF_DATA\n",
         "refused@1:8 include-missing@2:2");
  Expect("/include parts/endurance.a2l", {{"parts/endurance.a2l", "ASAP2_VERSION 1 71"}},
         "ASAP2_VERSION 1 71\n", "include@1:1");
}

TEST(MendInclude, MayHaveAnEmptyName) {
  Expect("/include \"\"\n", {}, "/include \"\"\n", "include-missing@1:1");
}

TEST(MendInclude, TakesANameWithoutQuotesAndWithTwoSlashes) {
  for (const std::string_view file : {"dir//a.a2l", "dir//a.a2l // old", "dir//a.a2l /* old */"}) {
    Expect("/include " + std::string(file) + "\n", {{"dir//a.a2l", "ASAP2_VERSION 1 71"}},
           "ASAP2_VERSION 1 71\n", "include@1:1");
  }
  // Where no such file is there, they begin a comment.
  Expect("/include a.a2l//old\n", {{"a.a2l", "ASAP2_VERSION 1 71"}}, "ASAP2_VERSION 1 71\n",
         "include@1:1");
}

TEST(MendInclude, IsNoWordThatOnlyBeginsSo) {
  Expect("/included 1", {{"1", "x"}}, "/included 1\n", "unknown-keyword@1:1");
}

TEST(MendInclude, GoesOnBehindTheDirective) {
  Expect("ASAP2_VERSION /include a.a2l 71\n", {{"a.a2l", "1"}}, "ASAP2_VERSION 1 71\n",
         "include@1:15 same-line@1:30");
}

TEST(MendInclude, KeepsWhatFollowsFilesInInterfaceData) {
  const auto expect = [](std::string_view text, const Files& files, std::string_view mended) {
    const MendRun run =
        RunMend("/begin IF_DATA X " + std::string(text) + "\n/end IF_DATA\n", files);
    EXPECT_EQ(run.mended.text, "/begin IF_DATA X\n" + std::string(mended) + "\n/end IF_DATA\n");
    EXPECT_EQ(RunMend(run.mended.text).mended.text, run.mended.text);
  };
  // Not in the comment at the end of the file, nor in its last word.
  expect("/include a 2", {{"a", "1 // end"}}, " 1 // end\n 2");
  expect("/include \"a\"2", {{"a", "1"}}, " 1\n2");
  expect("1 /include \"a\" 3", {{"a", "2"}}, " 1 \n2\n 3");
  expect("/include \"a\" 2", {{"a", "1\n"}}, " 1\n 2");
  // Blank lines before all content go, wherever they stand.
  expect("/include a\n2", {{"a", "\n\n"}}, " 2");
  expect("/include a 2", {{"a", "\n\n 1"}}, " 1\n 2");
  expect("0\n  /include a\r\n2", {{"a", "1"}}, " 0\n  1\r\n2");
  // Behind other bytes of a word, it is a part of it, as it is elsewhere.
  expect("1/include a 2", {{"a", "3"}}, " 1/include a 2");
  // A comment in the file is none behind the text.
  expect(R"("\\" /include a)", {{"a", "// 1"}}, " \"\\\\\" \n// 1");
}

TEST(MendInclude, TakesANameWithBlanksWhoseFirstWordIsThatOfAFolder) {
  MendOptions options;
  options.open = [](std::string_view name, std::string_view /*from*/) {
    IncludedFile file;
    const bool isFile = name == "my files/a.a2l";
    file.status = isFile ? IncludedFile::Status::Read : IncludedFile::Status::Refused;
    file.path = "a.a2l";
    file.bytes = "1 71";
    return file;
  };
  EXPECT_EQ(Mend("ASAP2_VERSION\n/include my files/a.a2l\n", options).text, "ASAP2_VERSION 1 71\n");
}

TEST(MendInclude, FollowsFilesInFiles) {
  Expect("/include \"a\"\n", {{"a", "ASAP2_VERSION /include \"b\"\n 71"}, {"b", "1"}},
         "ASAP2_VERSION 1 71\n", "include@1:1");
}

TEST(MendInclude, TellsOfFilesThatAreNotThere) {
  const MendRun run = RunMend("/begin PROJECT p \"\"\n  /include \"a\"\n/end PROJECT\n");
  EXPECT_EQ(run.mended.text, "/begin PROJECT p \"\"\n  /include \"a\"\n/end PROJECT\n");
  EXPECT_EQ(run.Texts(),
            "file.a2l:2:3: cannot be mended: the file a cannot be read: it is not there "
            "[include-missing]\n");
}

TEST(MendInclude, EndsCircles) {
  const Files files = {{"a", "ASAP2_VERSION /include b"}, {"b", "1 /include \"a\" 71"}};
  const MendRun run = RunMend("/include a", files);
  EXPECT_EQ(run.mended.text, "ASAP2_VERSION 1 71\n");
  EXPECT_EQ(run.Texts(),
            "file.a2l:1:1: lost: /include a is not followed [include]\n"
            "b:1:3: cannot be mended: the file a includes itself [include-circle]\n");
  Expect("/include file.a2l", {{"file.a2l", "x"}}, "/include file.a2l\n", "include-circle@1:1");
}

TEST(MendInclude, EndsFilesThatIncludeOthersManyTimes) {
  // Sixteen files each of which includes the next one twice would make 65536 of the last.
  Files files;
  for (int i = 0; i < 16; ++i) {
    const std::string next = std::to_string(i + 1);
    files[std::to_string(i)] = "/include " + next + " /include " + next + "\n";
  }
  files["16"] = "ASAP2_VERSION 1 71\n";
  const MendRun run = RunMend("/include 0", files);
  EXPECT_EQ(run.findings.back().rule, MendRule::IncludeLimit);
  EXPECT_LT(run.mended.text.size(), std::size_t{100000});
}

TEST(MendInclude, PutsInterfaceDataInTheirPlace) {
  Expect(
      "/begin PROJECT p \"\"\n/begin MODULE m \"\"\n/begin A2ML\n/include \"x.aml\"\n/end A2ML\n"
      "/end MODULE\n/end PROJECT\n",
      {{"x.aml", "block \"IF_DATA\"\n\tstruct {};\n"}},
      "/begin PROJECT p \"\"\n  /begin MODULE m \"\"\n    /begin A2ML\n block \"IF_DATA\"\n"
      "\tstruct {};\n    /end A2ML\n  /end MODULE\n/end PROJECT\n",
      "include@4:1");
}

TEST(MendInclude, NamesTheFileOfAFinding) {
  const MendRun run = RunMend("/include a", {{"a", "\n  ASAP2_VERSION x 71"}});
  EXPECT_EQ(run.Texts(),
            "file.a2l:1:1: lost: /include a is not followed [include]\n"
            "a:2:17: cannot be mended: x of ASAP2_VERSION is not a number [not-a-number]\n");
}

TEST(MendInclude, ReadsOtherEncodings) {
  std::string utf16 = "\xFF\xFE";
  for (const char c : std::string_view("ASAP2_VERSION 1 71")) utf16 += {c, '\0'};
  Expect("/include a", {{"a", utf16}}, "ASAP2_VERSION 1 71\n", "include@1:1");
  Expect("/include a",
         {{"a",
           "\xEF\xBB\xBF"
           "ASAP2_VERSION 1 71"}},
         "ASAP2_VERSION 1 71\n", "include@1:1");
  Expect("/include a", {{"a", "// old\rASAP2_VERSION 1 71"}}, "ASAP2_VERSION 1 71\n",
         "include@1:1");
}

TEST(MendInclude, CountsWhatIsInTheFileAsLost) {
  const MendRun run = RunMend("/include a", {{"a", "ASAP2_VERSION 1 71"}});
  EXPECT_EQ(run.mended.lostValues, 2U);
}

}  // namespace
}  // namespace a2l::test
