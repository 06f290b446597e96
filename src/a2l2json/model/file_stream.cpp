// SPDX-License-Identifier: MIT
#include "a2l2json/model/file_stream.h"

#include <fstream>
#include <ostream>

namespace a2l {

// The buffer knows whether a file is open; any kind of stream may write to one.
bool TakesText(const std::ostream& out) {
  if (const auto* file = dynamic_cast<const std::filebuf*>(out.rdbuf())) return file->is_open();
  return out.good();
}

}  // namespace a2l
