// SPDX-License-Identifier: MIT
#include "a2l2json/elements/properties/flags.h"

#include <string>

#include <gtest/gtest.h>

#include "tests/support/kinds.h"
#include "tests/support/parsing.h"

namespace a2l::test {
namespace {

TEST(Flags, TakeNothingAndAreWrittenAsTheirKeyword) {
  for (const std::string& keyword :
       Words("CONSISTENT_EXCHANGE DISCRETE GUARD_RAILS READ_ONLY READ_WRITE ROOT SIGN_EXTEND "
             "STATIC_ADDRESS_OFFSETS STATIC_RECORD_LAYOUT")) {
    const ParseRow rows[] = {
        {keyword, "", true, "", keyword + "\n"},
        {keyword, "  x \"y\" ", true, "  x \"y\" ", keyword + "\n"},
    };
    ExpectParse(rows);
  }
}

TEST(Flags, AreIndented) {
  EXPECT_EQ(Made<VoA2LElementReadOnly>("").Written(3), "      READ_ONLY\n");
}

}  // namespace
}  // namespace a2l::test
