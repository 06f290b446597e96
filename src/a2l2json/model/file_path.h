// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string_view>

namespace a2l {

/// The path of the file called `name`. On Windows, `name` is UTF-8, and invalid UTF-8 gives an
/// empty path, which no file has. On other systems it may be any bytes.
[[nodiscard]] std::filesystem::path FilePath(std::string_view name);

}  // namespace a2l
