// SPDX-License-Identifier: MIT
#include "capi/input.h"

#include <algorithm>
#include <array>

#include "a2l2json/mend/packed.h"

namespace a2l::capi {
namespace {

struct Beginning {
  std::string_view begin;
  std::string_view sentence;
  bool isReadByMending = false;
};

constexpr std::string_view kUtf16 =
    "It is UTF-16 text: convert it to UTF-8 first, or turn mending on.";

// What people hand in by mistake, besides what is packed.
constexpr std::array kBeginnings = {
    Beginning{"\x7F\x45LF", "It is a program in the ELF format, not its description."},
    Beginning{"\xFF\xFE", kUtf16, true},
    Beginning{"\xFE\xFF", kUtf16, true},
    Beginning{"<?xml", "It is XML."},
    Beginning{"\xEF\xBB\xBF<?xml", "It is XML."},
    Beginning{R"({")", "It is JSON: was the output handed in?"},
};

constexpr auto kFits = [](const auto& known) { return known.begin.size() <= kLookedAt; };
static_assert(std::ranges::all_of(kBeginnings, kFits) && std::ranges::all_of(kPackers, kFits),
              "a beginning has more bytes than are looked at");

}  // namespace

std::string WhyNoA2l(std::string_view bytes, bool isMended) {
  if (bytes.empty()) return "It is empty.";
  if (const std::string_view packer = PackedWith(bytes); !packer.empty()) {
    return "It is packed with " + std::string(packer) + ": unpack it first.";
  }
  for (const Beginning& known : kBeginnings) {
    if (isMended && known.isReadByMending) continue;
    if (bytes.starts_with(known.begin)) return std::string(known.sentence);
  }
  return {};
}

}  // namespace a2l::capi
