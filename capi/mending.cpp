// SPDX-License-Identifier: MIT
#include "capi/mending.h"

#include <optional>
#include <string>

#include "a2l2json/mend/mend.h"
#ifdef A2L2JSON_HAS_FILES
#include "a2l2json/mend/include_reader.h"
#endif

namespace a2l::capi {
void MendInto(a2l2json_result& result, std::string_view text, const Input& input, LineMap& lines) {
  std::string_view file;  // of the last finding, as it is kept
  MendOptions options;
  options.name = input.name;
  options.path = input.path;
  options.lines = &lines;
#ifdef A2L2JSON_HAS_FILES
  std::optional<IncludeReader> reader;
  if (!input.path.empty()) {
    reader.emplace(IncludeOptions{.path = input.path, .folders = {}, .decode = {}});
    options.path = reader->MainPath();
    options.open = [&reader](std::string_view name, std::string_view from) {
      return reader->Open(name, from);
    };
  }
#endif
  options.report = [&](const Finding& finding) {
    const MendRuleRow& row = RowOf(finding.rule);
    if (result.findings.empty() || finding.file != file) file = result.Keep(finding.file);
    const std::string_view sentence = result.Keep(Message(finding));
    result.findings.push_back({result.Keep(row.name).data(), file.data(), finding.line,
                               finding.column, sentence.data(), sentence.size(),
                               row.outcome == MendOutcome::Unmendable ? 0 : 1});
  };
  result.mended = Mend(text, options).text;
}

}  // namespace a2l::capi
