// SPDX-License-Identifier: MIT
#include "a2l2json/model/file_path.h"

#include <string>
#include <system_error>

namespace a2l {

std::filesystem::path FilePath(std::string_view name) {
  try {
    return std::u8string(name.begin(), name.end());
  } catch (const std::system_error&) {
    return {};
  }
}

}  // namespace a2l
