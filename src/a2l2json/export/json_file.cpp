// SPDX-License-Identifier: MIT
//
// The part of the export that opens files. Builds for systems without files leave it out.
#include <fstream>

#include "a2l2json/export/json_writer.h"
#include "a2l2json/model/file_path.h"

namespace a2l {

// NOLINTNEXTLINE(readability-convert-member-functions-to-static): callers have a writer
bool JsonWriter::Export(const std::string& path, const VoA2LElement* root) {
  if (root == nullptr || root->kind != KIND_ROOT) return false;
  std::ofstream out(FilePath(path), std::ios::binary | std::ios::trunc);
  if (!out.is_open()) return false;
  WriteJson(*root, out);
  return true;
}

}  // namespace a2l
