// SPDX-License-Identifier: MIT
#include "a2l2json/model/file_path.h"

#include <filesystem>
#include <string_view>

#include <gtest/gtest.h>

namespace a2l::test {
namespace {

TEST(FilePath, IsTheNameInTheCharactersOfTheSystem) {
  EXPECT_TRUE(FilePath("").empty());
  EXPECT_EQ(FilePath("C:/a b/c.a2l"), std::filesystem::path("C:/a b/c.a2l"));
  EXPECT_EQ(FilePath("m\xC3\xBCller \xE6\xB1\xBD \xF0\x9F\x9A\x97.a2l"),
            std::filesystem::path(u8"m\u00FCller \u6C7D \U0001F697.a2l"));
}

TEST(FilePath, TakesBytesThatAreNotUtf8AsTheSystemDoes) {
  constexpr std::string_view kLatin1 = "m\xFCller.a2l";
#ifdef _WIN32
  EXPECT_TRUE(FilePath(kLatin1).empty());
#else
  EXPECT_EQ(FilePath(kLatin1).native(), kLatin1);
#endif
}

}  // namespace
}  // namespace a2l::test
