// SPDX-License-Identifier: MIT
//
// The part of the reader that opens files. Builds for systems without files leave it out.
#include <istream>

#include "a2l2json/reader/a2l_reader.h"
#include "a2l2json/reader/input_file.h"

namespace a2l {

bool A2LReader::Parse(const std::string& path, VoA2LElement* root) {
  fileError = FileError::None;
  if (root == nullptr) return false;
  InputFile file(path);
  bool ok = false;
  if (file.Error() == FileError::None) {
    std::istream in(&file);
    ok = Parse(in, root);
  }
  fileError = file.Error();
  return ok;
}

}  // namespace a2l
