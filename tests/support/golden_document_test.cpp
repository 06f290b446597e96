// SPDX-License-Identifier: MIT
#include "tests/support/golden_document.h"

#include <string>

#include <gtest/gtest.h>

namespace a2l::test {
namespace {

struct Forms {
  std::string document, golden;
};

const Forms kForms[] = {
    {"", "\n"},
    {"{}", "{}\n"},
    {R"({"A": null})", "{\n\"A\": null}\n"},
    {R"({"A": null, "B": [1, 2]})", "{\n\"A\": null,\n \"B\": [1, 2]}\n"},
    {R"({"A": [{"B": "b"}, {"B": "c"}], "D": {}})",
     "{\n\"A\": [{\n\"B\": \"b\"}, {\n\"B\": \"c\"}],\n \"D\": {}}\n"},
    // A text may hold something that looks like a key, and a key may hold quotes.
    {R"({"A": "\"B\": 1, \"C\": \\"})", "{\n\"A\": \"\\\"B\\\": 1, \\\"C\\\": \\\\\"}\n"},
    {R"({"A\"": "a\\", "B\n": ""})", "{\n\"A\\\"\": \"a\\\\\",\n \"B\\n\": \"\"}\n"},
    // If the document is cut off, nothing beyond its end is read.
    {R"({"A)", "{\"A\n"},
    {R"({"A\)", "{\"A\\\n"},
};

TEST(GoldenDocument, HasALineFeedBeforeEveryKey) {
  for (const Forms& forms : kForms) EXPECT_EQ(GoldenForm(forms.document), forms.golden);
}

TEST(GoldenDocument, IsTheDocumentWithoutItsLineFeeds) {
  for (const Forms& forms : kForms) EXPECT_EQ(FromGoldenForm(forms.golden), forms.document);
}

}  // namespace
}  // namespace a2l::test
