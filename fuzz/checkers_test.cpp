// SPDX-License-Identifier: MIT
//
// Checks the checks of the fuzz targets, with values worked out by hand.
#include <cstddef>
#include <cstdint>
#include <deque>
#include <iterator>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "a2l2json/export/json_writer.h"
#include "a2l2json/model/tree.h"
#include "fuzz/a2l_mutator.h"
#include "fuzz/naive_tokenizer.h"
#include "fuzz/reading.h"
#include "fuzz/round_trips.h"
#include "tests/generator/generator.h"

namespace a2l::fuzz {
namespace {

TEST(NaiveTokenizer, FollowsTheRules) {
  std::string text = " a\tb \"c d\"\"e\\\"\"f \"open";
  for (const char* token : {"a\tb", R"("c d""e\"")", "f", "\"open", ""}) {
    EXPECT_EQ(naive::NextToken(text).text, token);
  }
  EXPECT_EQ(naive::CountTokens(R"(a "b c" d "e)"), 3U);
  EXPECT_EQ(naive::Unquote(R"("a""b\"c\n\d\\")"), "a\"b\"c\n\\d\\");
  EXPECT_EQ(naive::Unquote("a"), "");
  EXPECT_EQ(naive::Lines("a\n\nb\r\nc"), (std::deque<std::string>{"a", "", "b\r", "c"}));

  std::deque<std::string> lines = {"b */ \"/* c\" // d", "e"};
  EXPECT_EQ(naive::WithoutComments("a /* \" ", lines), "a  \"/* c\" ");
  EXPECT_EQ(lines.size(), 1U);
  EXPECT_EQ(naive::WithoutComments("/*", lines), std::nullopt);
}

// Every reason why a text may change, one after the other. All but the reason makes the round trip.
TEST(RoundTrips, IsNotPromisedForTextsThatChange) {
  const auto module = [](const std::string& content) {
    Reading reading = Read("/begin PROJECT p \"\"\n/begin MODULE m \"\"\n" + content +
                           "\n/end MODULE\n/end PROJECT\n");
    EXPECT_TRUE(reading.ok) << content;
    return RoundTrips(*reading.root);
  };
  const auto parameters = [&](const std::string& content) {
    return module("/begin MOD_PAR \"\"\n" + content + "\n/end MOD_PAR");
  };
  const auto measurement = [&](const std::string& content) {
    return module("/begin MEASUREMENT m \"\" UBYTE c 0 0 0 255\n" + content + "\n/end MEASUREMENT");
  };
  const auto rights = [&](const std::string& name) {
    return module("/begin USER_RIGHTS " + name + "\n/end USER_RIGHTS");
  };
  const auto groups = [&](const std::string& names) {
    return module("/begin USER_RIGHTS u\n/begin REF_GROUP " + names +
                  "\n/end REF_GROUP\n/end USER_RIGHTS");
  };
  const auto handle = [&](const std::string& content) {
    return parameters("/begin CALIBRATION_METHOD \"\" 1\n/begin CALIBRATION_HANDLE " + content +
                      "\n/end CALIBRATION_HANDLE\n/end CALIBRATION_METHOD");
  };
  EXPECT_TRUE(parameters("CUSTOMER \"it's // a \\\"text\\\" /* \\\\x\"\nADDR_EPK 1"));
  EXPECT_FALSE(parameters(R"(CUSTOMER "a\\" ")"));
  EXPECT_TRUE(parameters("ECU_CALIBRATION_OFFSET 26"));
  EXPECT_FALSE(parameters("ECU_CALIBRATION_OFFSET -26"));
  EXPECT_TRUE(handle("1 2"));
  EXPECT_FALSE(handle("1 -2"));
  EXPECT_FALSE(handle("1\nCALIBRATION_HANDLE_TEXT \"t\""));
  EXPECT_FALSE(module("/begin TRANSFORMER t \"\" \"\" \"\" 1 ON_CHANGE i\n/end TRANSFORMER"));
  EXPECT_FALSE(module("/begin A2ML\n/end A2ML"));
  EXPECT_TRUE(module("/begin MOD_COMMON \"\"\nBYTE_ORDER MSB_LAST\n/end MOD_COMMON"));
  EXPECT_FALSE(module("/begin MOD_COMMON \"\"\nBYTE_ORDER z\n/end MOD_COMMON"));

  EXPECT_TRUE(measurement("FORMAT \"%5.2\""));
  EXPECT_FALSE(measurement("FORMAT \"\""));

  EXPECT_TRUE(rights("name"));
  EXPECT_TRUE(rights("\"a // name\""));
  EXPECT_TRUE(rights("MODULE"));
  EXPECT_FALSE(rights(""));
  EXPECT_FALSE(rights("a\"b"));
  EXPECT_FALSE(rights("\"open"));
  EXPECT_FALSE(rights(std::string(1023, 'n') + "\tb"));
  EXPECT_TRUE(groups("a b"));
  EXPECT_FALSE(groups("a MODULE"));
  EXPECT_FALSE(groups("a\" // b"));

  EXPECT_TRUE(module("/begin COMPU_TAB t \"\" TAB_INTP 1 2 3\n/end COMPU_TAB"));
  EXPECT_FALSE(module("/begin COMPU_TAB t \"\" TAB_INTP 2 2 3\n/end COMPU_TAB"));
  EXPECT_TRUE(module("/begin IF_DATA X \"a // b\"\n c\n/end IF_DATA"));
  EXPECT_FALSE(module("\" /begin IF_DATA X // b\n c\n/end IF_DATA"));
  EXPECT_TRUE(module("/begin IF_DATA\nX\nY b\n/end IF_DATA"));
  EXPECT_FALSE(module("/begin IF_DATA\nX\r\nY b\n/end IF_DATA"));
  EXPECT_FALSE(module("/begin IF_DATA\nX/begin b\n/end b\n/end IF_DATA"));

  EXPECT_TRUE(RoundTrips(*Read("ASAP2_VERSION 1 2").root));
  EXPECT_FALSE(RoundTrips(*Read("ASAP2_VERSION 1 2\nASAP2_VERSION 1 3").root));
}

// Elements that prevent the round trip are removed, with everything in them. All others stay.
TEST(RoundTrips, KeepsTheRest) {
  Reading reading = Read(R"(ASAP2_VERSION 1 2
ASAP2_VERSION 1 3
/begin PROJECT p ""
/begin MODULE m ""
/begin A2ML
/end A2ML
/begin X
/begin X
/end X
/end X
/begin USER_RIGHTS u
/begin REF_GROUP a MODULE
/end REF_GROUP
READ_ONLY
/end USER_RIGHTS
/begin USER_RIGHTS ""
/begin REF_GROUP a
/end REF_GROUP
/end USER_RIGHTS
/begin USER_RIGHTS v"w
READ_ONLY
/end USER_RIGHTS
/end MODULE
/end PROJECT
)");
  EXPECT_TRUE(reading.ok);
  EXPECT_FALSE(RoundTrips(*reading.root));
  VoA2LElement* const project = reading.root->children[2];
  project->children[0]->valid = 0;
  KeepWhatRoundTrips(*reading.root);
  EXPECT_TRUE(RoundTrips(*reading.root));
  EXPECT_EQ(project->children[0]->valid, 1);
  EXPECT_EQ(Written(*reading.root), R"(ASAP2_VERSION 1 2
/begin PROJECT p ""
  /begin MODULE m ""
    /begin USER_RIGHTS
      u
      READ_ONLY
    /end USER_RIGHTS
    /begin USER_RIGHTS
      ""
      /begin REF_GROUP
        a )"
                                    R"(
      /end REF_GROUP
    /end USER_RIGHTS
  /end MODULE
/end PROJECT
)");
}

std::size_t CountElements(const VoA2LElement& root) {
  const auto all = Descendants<VoA2LElement>(root);
  return static_cast<std::size_t>(std::ranges::distance(all));
}

// Most of a file takes part in the check, even if the file holds something of everything.
TEST(RoundTrips, KeepMostOfGeneratedFiles) {
  std::size_t all = 0;
  std::size_t kept = 0;
  for (std::uint64_t seed = 0; seed < 100; ++seed) {
    Reading first = Read(test::Generate(seed).text);
    all += CountElements(*first.root);
    KeepWhatRoundTrips(*first.root);
    kept += CountElements(*first.root);
    const std::string written = Written(*first.root);
    Reading second = Read(written);
    EXPECT_EQ(second.reader.message, "") << seed;
    EXPECT_EQ(Written(*second.root), written) << seed;
    EXPECT_EQ(ToJson(*second.root), ToJson(*first.root)) << seed;
  }
  EXPECT_GE(kept * 10, all * 7) << kept << " of " << all;
}

TEST(Mutator, ChangesTextsInManyWaysAndKeepsToTheSize) {
  const std::string text = test::Generate(4).text;
  std::set<std::string> results;
  for (std::uint64_t seed = 0; seed < 300; ++seed) {
    const std::string mutated = Mutated(text, seed, text.size() + 100);
    EXPECT_LE(mutated.size(), text.size() + 100);
    EXPECT_EQ(mutated, Mutated(text, seed, text.size() + 100));
    results.insert(mutated);
  }
  EXPECT_GE(results.size(), 250U);
  EXPECT_EQ(Mutated(text, 1, 7).size(), 7U);
}

TEST(Mutator, MakesSomethingOfNothing) {
  std::set<std::string> results;
  for (std::uint64_t seed = 0; seed < 100; ++seed) results.insert(Mutated("", seed, 1000));
  EXPECT_GE(results.size(), 30U);
}

}  // namespace
}  // namespace a2l::fuzz
