// SPDX-License-Identifier: MIT
//
// Any bytes are mended: once is enough, what has no finding keeps its document, and a document that
// changes has a finding.
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "a2l2json/export/json_writer.h"
#include "a2l2json/mend/mend.h"
#include "fuzz/check.h"
#include "fuzz/reading.h"

namespace a2l::fuzz {
namespace {

struct Run {
  Mended mended;
  std::size_t findings = 0;
  std::string last;  // the text of the last finding that can be mended
};

// A file that includes itself by other names would be read thousands of times.
constexpr std::size_t kMostFiles = 32;

// Every file that is included is what stands behind the first zero byte.
Run RunMend(std::string_view text, std::string_view included) {
  Run run;
  MendOptions options;
  options.name = "file";
  options.report = [&run](const Finding& finding) {
    Check(finding.line > 0 && finding.column > 0, "a finding has a place");
    ++run.findings;
    const std::string what = TextWithPlace(finding);
    if (RowOf(finding.rule).outcome != MendOutcome::Unmendable) run.last = what;
  };
  std::size_t files = 0;
  options.open = [included, &files](std::string_view name, std::string_view /*from*/) {
    IncludedFile file;
    if (included.empty() || ++files > kMostFiles) return file;
    file.status = IncludedFile::Status::Read;
    file.path = name.substr(0, 2);
    file.bytes = included;
    return file;
  };
  run.mended = Mend(text, options);
  Check(run.findings == run.mended.lost + run.mended.mended + run.mended.unmendable,
        "the findings are counted");
  return run;
}

// White space apart, which mending changes in texts that are kept.
std::optional<std::string> DocumentOf(std::string_view text) {
  const Reading reading = Read(text);
  if (!reading.ok) return {};
  const std::string json = ToJson(*reading.root);
  std::string document;
  for (std::size_t i = 0; i < json.size(); ++i) {
    if (json[i] == ' ') continue;
    if (json[i] == '\\' && i + 1 < json.size()) {
      const std::string_view rest = std::string_view(json).substr(i);
      const bool isWhite = rest[1] == 'n' || rest[1] == 'r' || rest[1] == 't' || rest[1] == 'f';
      const bool isCode = rest.starts_with("\\u000b");
      if (!isWhite && !isCode) document += rest.substr(0, 2);
      i += isCode ? 5 : 1;
      continue;
    }
    document += json[i];
  }
  return document;
}

void CheckMending(std::string_view bytes) {
  const std::size_t zero = bytes.find('\0');
  const std::string_view included =
      zero == std::string_view::npos ? std::string_view{} : bytes.substr(zero + 1);
  const Run once = RunMend(bytes, included);
  const Run twice = RunMend(once.mended.text, {});
  CheckSame(twice.mended.text, once.mended.text, "what is mended twice");
  // In blocks that are kept as text, quotes and comments without a partner may still mislead the
  // converter; where the grammar is intact, nothing does.
  if (once.mended.unmendable == 0 && once.mended.mended == 0) {
    CheckSame(twice.last, "", "what a mended file has to be mended");
  }
  if (once.findings > 0) return;
  const auto before = DocumentOf(bytes);
  const auto after = DocumentOf(once.mended.text);
  Check(before.has_value() == after.has_value(), "whether there is a document");
  if (before) CheckSame(*after, *before, "the document of a file without findings");
}

}  // namespace
}  // namespace a2l::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  a2l::fuzz::CheckMending(a2l::fuzz::Input(data, size, 65536));
  return 0;
}
