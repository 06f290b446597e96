// SPDX-License-Identifier: MIT
#include "a2l2json/mend/finding.h"

#include <algorithm>

namespace a2l {
namespace {

// A text may be as long as its file; a message must not be. Control characters would break lines.
void AppendShort(std::string& text, std::string_view word) {
  constexpr std::size_t kMost = 60;
  std::size_t size = std::min(word.size(), kMost);
  // Not in the middle of a character of UTF-8.
  while (size < word.size() && size > 0 &&
         (static_cast<unsigned char>(word[size]) & 0xC0U) == 0x80U)
    --size;
  for (const char c : word.substr(0, size)) {
    text += static_cast<unsigned char>(c) < ' ' || c == '\x7F' ? ' ' : c;
  }
  if (size < word.size()) text += "...";
}

}  // namespace

std::string Message(const Finding& finding) {
  const MendRuleRow& row = RowOf(finding.rule);
  std::string text;
  for (std::size_t i = 0; i < row.text.size(); ++i) {
    if (row.text[i] != '{') {
      text += row.text[i];
      continue;
    }
    switch (row.text[i + 1]) {
      case '0':
        AppendShort(text, finding.word);
        break;
      case '1':
        AppendShort(text, finding.owner.empty() ? "the file" : finding.owner);
        if (!finding.ownerName.empty()) {
          text += ' ';
          AppendShort(text, finding.ownerName);
        }
        break;
      default:
        AppendShort(text, finding.detail);
    }
    i += 2;
  }
  return text;
}

std::string Text(const Finding& finding) {
  const MendRuleRow& row = RowOf(finding.rule);
  std::string text(NameOf(row.outcome));
  text += ": ";
  text += Message(finding);
  text += " [";
  text += row.name;
  text += ']';
  return text;
}

std::string TextWithPlace(const Finding& finding) {
  std::string text(finding.file);
  text += ':';
  text += std::to_string(finding.line);
  text += ':';
  text += std::to_string(finding.column);
  text += ": ";
  text += Text(finding);
  return text;
}

}  // namespace a2l
