// SPDX-License-Identifier: MIT
#include "a2l2json/reader/diagnostics.h"

#include <cstddef>
#include <limits>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

namespace a2l::test {
namespace {

struct Row {
  DiagnosticKind kind;
  Severity severity;
  std::string_view subject;
  std::string_view text;
};

// Scripts look for these texts.
constexpr Row kRows[] = {
    {DiagnosticKind::WrongParameters, Severity::Warning, "LIMITS",
     "Warning: Line(7) wrong parameters LIMITS\n"},
    {DiagnosticKind::NeedMoreParameters, Severity::Warning, "8",
     "Warning: Line(7) element need more parameters 8\n"},
    {DiagnosticKind::WrongRawContent, Severity::Warning, "IF_DATA",
     "Warning: Line(7) IF_DATA IF_DATA\n"},
    {DiagnosticKind::UnexpectedElement, Severity::Warning, "WORD",
     "Warning: Line(7) unexpected element WORD\n"},
    {DiagnosticKind::UnterminatedComment, Severity::Error, "",
     "Warning: Line(7) Cannot find comment end */ \n"},
    {DiagnosticKind::UnexpectedBegin, Severity::Error, "17",
     "Error: Line(7) unexpected element with /begin 17\n"},
    {DiagnosticKind::RefusedElement, Severity::Error, "FORMAT",
     "Error: Line(7) unexpected property of element FORMAT\n"},
    {DiagnosticKind::EndDoesNotMatch, Severity::Error, "PROJECT",
     "Error: Line(7) /end don't equal /begin PROJECT\n"},
    {DiagnosticKind::BeginMissing, Severity::Error, "UNIT",
     "Error: Line(7) unexpected element, this element need /begin UNIT\n"},
    {DiagnosticKind::NoParentAtEnd, Severity::Error, "",
     "Error: Line(7) unexpected NULL pointer\n"},
    {DiagnosticKind::NoParent, Severity::Error, "", "Error: Line(7) unexpected NULL PTR\n"},
};

TEST(Diagnostic, HasAFixedTextAndSeverity) {
  for (const Row& row : kRows) {
    const Diagnostic diagnostic{row.kind, 7, std::string(row.subject)};
    EXPECT_EQ(diagnostic.Text(), row.text);
    EXPECT_EQ(diagnostic.GetSeverity(), row.severity) << row.text;
  }
}

// For programs that write severity and line in their own form.
TEST(Diagnostic, SaysWhatWithoutSeverityAndLine) {
  for (const Row& row : kRows) {
    const Diagnostic diagnostic{row.kind, 7, std::string(row.subject)};
    std::string what(row.text.substr(row.text.find(") ") + 2));
    what.pop_back();  // the line feed
    EXPECT_EQ(diagnostic.What(), what);
  }
}

TEST(Diagnostic, MayHaveAnEmptySubject) {
  EXPECT_EQ((Diagnostic{DiagnosticKind::EndDoesNotMatch, 1, ""}.Text()),
            "Error: Line(1) /end don't equal /begin \n");
  EXPECT_EQ((Diagnostic{DiagnosticKind::WrongParameters, 1, ""}.Text()),
            "Warning: Line(1) wrong parameters \n");
}

TEST(Diagnostic, NamesAnyLineAndSubject) {
  const Diagnostic diagnostic{DiagnosticKind::UnexpectedElement, 4294967296U, "a\tb\"%s{0}\xFF"};
  EXPECT_EQ(diagnostic.Text(), "Warning: Line(4294967296) unexpected element a\tb\"%s{0}\xFF\n");
}

}  // namespace
}  // namespace a2l::test
