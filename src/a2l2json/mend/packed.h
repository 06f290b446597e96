// SPDX-License-Identifier: MIT
//
// Files that hold others in a packed form. People hand them in by mistake.
#pragma once

#include <array>
#include <string_view>

namespace a2l {

/// What the files of a packer begin with.
struct Packer {
  std::string_view begin;
  std::string_view name;
};

inline constexpr std::array kPackers = {
    Packer{"\x1F\x8B", "gzip"},
    Packer{"PK\x03\x04", "zip"},
    Packer{"BZh", "bzip2"},
    Packer{"\xFD\x37zXZ", "xz"},
    Packer{"7z\xBC\xAF\x27\x1C", "7-Zip"},
    Packer{"\x28\xB5\x2F\xFD", "zstd"},
};

/// The name of what packed these bytes, as in "gzip", by their first eight; empty where they are
/// not packed.
[[nodiscard]] constexpr std::string_view PackedWith(std::string_view bytes) {
  for (const Packer& packer : kPackers) {
    if (bytes.starts_with(packer.begin)) return packer.name;
  }
  return {};
}

}  // namespace a2l
