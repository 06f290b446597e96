// SPDX-License-Identifier: MIT
#include "bench/document.h"

#include <cstddef>
#include <filesystem>
#include <fstream>
#include <string_view>

#include "a2l2json/export/exporter.h"
#include "a2l2json/export/json_text.h"
#include "tests/support/json_check.h"

namespace a2l::bench {

std::string Complaint(const std::string& path, const VoA2LElement& root) {
  std::string json(std::filesystem::file_size(path), '\0');
  std::ifstream(path, std::ios::binary)
      .read(json.data(), static_cast<std::streamsize>(json.size()));
  std::string_view rest = json;
  bool same = true;
  JsonText text([&](std::string_view piece) {
    same = same && rest.starts_with(piece);
    if (same) rest.remove_prefix(piece.size());
  });
  Exporter(text).Document(root);
  text.Flush();
  if (!same || !rest.empty()) return "it differs from the document of the tree";
  return test::JsonCheck::Complaint(json);
}

}  // namespace a2l::bench
