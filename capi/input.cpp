// SPDX-License-Identifier: MIT
#include "capi/input.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace a2l::capi {
namespace {

using namespace std::string_view_literals;

struct Beginning {
  std::string_view bytes;
  std::string_view sentence;
};

// What people hand in by mistake.
constexpr std::array kBeginnings = {
    Beginning{"\x1F\x8B"sv, "It is compressed (gzip): decompress it first."},
    Beginning{"PK\x03\x04"sv, "It is a ZIP archive: take the A2L file out of it first."},
    Beginning{"7z\xBC\xAF"sv, "It is a 7z archive: take the A2L file out of it first."},
    Beginning{"BZh"sv, "It is compressed (bzip2): decompress it first."},
    Beginning{"\xFD\x37zXZ"sv, "It is compressed (xz): decompress it first."},
    Beginning{"\x28\xB5\x2F\xFD"sv, "It is compressed (zstd): decompress it first."},
    Beginning{"\x7F\x45LF"sv, "It is a program in the ELF format, not its description."},
    Beginning{"\xFF\xFE"sv, "It is UTF-16 text: convert it to UTF-8 first, or turn mending on."},
    Beginning{"\xFE\xFF"sv, "It is UTF-16 text: convert it to UTF-8 first, or turn mending on."},
    Beginning{"<?xml"sv, "It is XML."},
    Beginning{"\xEF\xBB\xBF<?xml"sv, "It is XML."},
    Beginning{R"({")"sv, "It is JSON: was the output handed in?"},
};

static_assert(std::ranges::all_of(kBeginnings,
                                  [](const Beginning& beginning) {
                                    return beginning.bytes.size() <= kLookedAt;
                                  }),
              "a beginning has more bytes than are looked at");

}  // namespace

std::string_view WhyNoA2l(std::string_view bytes) {
  if (bytes.empty()) return "It is empty.";
  for (const Beginning& beginning : kBeginnings) {
    if (bytes.starts_with(beginning.bytes)) return beginning.sentence;
  }
  return {};
}

}  // namespace a2l::capi
