// SPDX-License-Identifier: MIT
#include "tests/support/parsing.h"

#include <gtest/gtest.h>

#include "a2l2json/reader/element_factory.h"

namespace a2l::test {

void ExpectParse(const ParseRow& row) {
  SCOPED_TRACE(row.keyword + " with " + testing::PrintToString(row.text));
  Tree root(NewTree());
  VoA2LElement* element = CreateElement(KeywordToKind(row.keyword), *root);
  ASSERT_NE(element, nullptr);
  std::string copy = row.text;
  std::string_view text = copy;
  EXPECT_EQ(element->ParseParameters(text), row.ok);
  EXPECT_EQ(text, row.rest);
  copy.assign(copy.size(), '#');
  EXPECT_EQ(Written(*element), row.written);
}

}  // namespace a2l::test
