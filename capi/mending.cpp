// SPDX-License-Identifier: MIT
#include "capi/mending.h"

#include "capi/result.h"

#ifdef A2L2JSON_HAS_MEND

#include <string>

#include "a2l2json/mend/mend.h"

namespace a2l::capi {
namespace {

// The text without what the other members of the finding say: "lost: ECU_ADDRESS ... [same-line]".
std::string_view Sentence(std::string_view text, const MendRuleRow& row) {
  text.remove_prefix(NameOf(row.outcome).size() + std::string_view(": ").size());
  text.remove_suffix(row.name.size() + std::string_view(" []").size());
  return text;
}

}  // namespace

bool CanMend() { return true; }

void MendInto(a2l2json_result& result, std::string_view text, std::string_view name) {
  std::string_view file;  // of the last finding, as it is kept
  MendOptions options;
  options.name = name;
  options.path = name;
  options.report = [&](const Finding& finding) {
    const MendRuleRow& row = RowOf(finding.rule);
    if (result.findings.empty() || finding.file != file) file = result.Keep(finding.file);
    const std::string_view sentence = result.Keep(Sentence(Text(finding), row));
    result.findings.push_back({result.Keep(row.name).data(), file.data(), finding.line,
                               finding.column, sentence.data(), sentence.size(),
                               row.outcome == MendOutcome::Unmendable ? 0 : 1});
  };
  result.mended = Mend(text, options).text;
}

}  // namespace a2l::capi

#else

namespace a2l::capi {

bool CanMend() { return false; }

void MendInto(a2l2json_result& /*result*/, std::string_view /*text*/, std::string_view /*name*/) {}

}  // namespace a2l::capi

#endif
