// SPDX-License-Identifier: MIT
//
// Converts any bytes. The reader must come to an end, its diagnostics must agree with its result
// and with each other, and its tree, whatever it holds, must give a well-formed document.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "a2l2json/export/json_writer.h"
#include "a2l2json/reader/diagnostics.h"
#include "fuzz/check.h"
#include "fuzz/reading.h"
#include "tests/support/json_check.h"

namespace a2l::fuzz {
namespace {

std::size_t CountLines(std::string_view bytes) {
  const auto lineFeeds = static_cast<std::size_t>(std::ranges::count(bytes, '\n'));
  return lineFeeds + (bytes.empty() || bytes.back() == '\n' ? 0 : 1);
}

void CheckDiagnostics(const Reading& reading, std::size_t lines) {
  const std::vector<Diagnostic>& diagnostics = reading.reader.diagnostics;
  std::string message;
  std::size_t line = 1;
  bool failed = false;
  for (const Diagnostic& diagnostic : diagnostics) {
    Check(!failed, "nothing is reported behind an error");
    failed = diagnostic.GetSeverity() == Severity::Error;
    Check(diagnostic.line >= line && diagnostic.line <= lines, "the lines are those of the file");
    line = diagnostic.line;
    message += diagnostic.Text();
  }
  CheckSame(reading.reader.message, message, "the message");
  Check(reading.ok == !failed, "the result is false exactly after an error");
}

void CheckConversion(std::string_view bytes) {
  const Reading reading = Read(bytes);
  CheckDiagnostics(reading, CountLines(bytes));
  const std::string json = ToJson(*reading.root);
  if (const std::string complaint = test::JsonCheck::Complaint(json); !complaint.empty()) {
    Fail("the document is no JSON: " + complaint + "\n  " + Shown(json));
  }
  std::ostringstream out;
  WriteJson(*reading.root, out);
  CheckSame(out.str(), json, "the document in a stream");
}

}  // namespace
}  // namespace a2l::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  a2l::fuzz::CheckConversion(a2l::fuzz::Input(data, size, 65536));
  return 0;
}
