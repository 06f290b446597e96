// SPDX-License-Identifier: MIT
#include "a2l2json/reader/diagnostics.h"

#include <array>

namespace a2l {
namespace {

struct Row {
  DiagnosticKind kind;
  Severity severity;
  std::string_view prefix;
  std::string_view text;  // the subject follows it
};

// The texts are part of what users build on: not a byte of them changes. A comment that is not
// closed ends the read although its message has always begun with "Warning".
constexpr std::array kRows = {
    Row{DiagnosticKind::WrongParameters, Severity::Warning, "Warning", "wrong parameters "},
    Row{DiagnosticKind::NeedMoreParameters, Severity::Warning, "Warning",
        "element need more parameters "},
    Row{DiagnosticKind::WrongRawContent, Severity::Warning, "Warning", "IF_DATA "},
    Row{DiagnosticKind::UnexpectedElement, Severity::Warning, "Warning", "unexpected element "},
    Row{DiagnosticKind::UnterminatedComment, Severity::Error, "Warning",
        "Cannot find comment end */ "},
    Row{DiagnosticKind::UnexpectedBegin, Severity::Error, "Error",
        "unexpected element with /begin "},
    Row{DiagnosticKind::RefusedElement, Severity::Error, "Error",
        "unexpected property of element "},
    Row{DiagnosticKind::EndDoesNotMatch, Severity::Error, "Error", "/end don't equal /begin "},
    Row{DiagnosticKind::BeginMissing, Severity::Error, "Error",
        "unexpected element, this element need /begin "},
    Row{DiagnosticKind::NoParentAtEnd, Severity::Error, "Error", "unexpected NULL pointer"},
    Row{DiagnosticKind::NoParent, Severity::Error, "Error", "unexpected NULL PTR"},
};

constexpr bool StandsAtItsIndex() {
  for (std::size_t i = 0; i < kRows.size(); ++i) {
    if (static_cast<std::size_t>(kRows[i].kind) != i) return false;
  }
  return true;
}
static_assert(StandsAtItsIndex(), "the messages are not in the order of their kinds");

const Row& RowOf(DiagnosticKind kind) { return kRows[static_cast<std::size_t>(kind)]; }

}  // namespace

Severity Diagnostic::GetSeverity() const { return RowOf(kind).severity; }

std::string Diagnostic::What() const {
  std::string what(RowOf(kind).text);
  what += subject;
  return what;
}

std::string Diagnostic::Text() const {
  std::string text(RowOf(kind).prefix);
  text += ": Line(";
  text += std::to_string(line);
  text += ") ";
  text += What();
  text += '\n';
  return text;
}

std::string_view What(FileError error) {
  switch (error) {
    case FileError::None:
      return {};
    case FileError::NotFound:
      return "there is no such file";
    case FileError::NoPermission:
      return "there is no permission to read the file";
    case FileError::IsFolder:
      return "this is a folder, not a file";
    case FileError::NotOpened:
      return "the file cannot be opened";
    case FileError::ReadFailed:
      return "the file cannot be read to its end";
  }
  return {};
}

}  // namespace a2l
