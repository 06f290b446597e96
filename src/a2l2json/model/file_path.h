// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string_view>

namespace a2l {

/// The path of the file called `name`, in UTF-8 where the system's own names are wide characters,
/// as on Windows, and in any bytes elsewhere. What is no UTF-8 there gives the empty path, which
/// no file has.
[[nodiscard]] std::filesystem::path FilePath(std::string_view name);

}  // namespace a2l
