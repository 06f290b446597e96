// SPDX-License-Identifier: MIT
#include "tests/support/golden_document.h"

#include <algorithm>
#include <cstddef>

#include "tests/support/files.h"

namespace a2l::test {
namespace {

// The place behind the closing quote of the text that begins at `begin`.
std::size_t EndOfText(std::string_view document, std::size_t begin) {
  std::size_t i = begin + 1;
  while (i < document.size() && document[i] != '"') i += document[i] == '\\' ? 2U : 1U;
  return std::min(i + 1, document.size());
}

}  // namespace

std::string GoldenForm(std::string_view document) {
  std::string golden;
  for (std::size_t i = 0; i < document.size();) {
    const std::size_t end = document[i] == '"' ? EndOfText(document, i) : i + 1;
    const bool isKey = document[i] == '"' && document.substr(end).starts_with(':');
    if (isKey) golden.insert(golden.size() - (golden.ends_with(' ') ? 1U : 0U), 1, '\n');
    golden += document.substr(i, end - i);
    i = end;
  }
  return golden + '\n';
}

std::string FromGoldenForm(std::string_view golden) {
  std::string document(golden);
  std::erase(document, '\n');
  return document;
}

std::string ReadGoldenDocument(const std::filesystem::path& path) {
  return FromGoldenForm(ReadFile(path));
}

}  // namespace a2l::test
