// SPDX-License-Identifier: MIT
//
// WebAssembly has no files. This stands in for the sources of the library that open them.
#include <ostream>

#include "a2l2json/model/file_stream.h"
#include "a2l2json/reader/a2l_reader.h"

namespace a2l {

bool TakesText(const std::ostream& out) { return out.good(); }

bool A2LReader::Parse(const std::string& /*path*/, VoA2LElement* /*root*/) {
  fileError = FileError::NotOpened;
  return false;
}

}  // namespace a2l
