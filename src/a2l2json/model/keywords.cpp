// SPDX-License-Identifier: MIT
#include "a2l2json/model/keywords.h"

#include <array>

namespace a2l {
namespace {

struct Keyword {
  ElementKind kind;
  std::string_view text;
};

constexpr std::array kKeywords = {
#define A2L_KEYWORD(number, keyword, Class) Keyword{ElementKind::keyword, #keyword},
#include "a2l2json/model/keywords.def"
};

constexpr bool StandsAtItsIndex() {
  for (std::size_t i = 0; i < kKeywords.size(); ++i) {
    if (KindIndex(kKeywords[i].kind) != i) return false;
  }
  return true;
}
static_assert(StandsAtItsIndex(), "the keyword list has a gap, a double or a wrong order");

// Keywords are looked up once per line of a file, so the table is hashed at compile time: five
// characters and the length tell nearly all keywords apart, and a miss mostly ends at the first
// slot.
constexpr std::size_t kSlotCount = 1024;
constexpr std::uint16_t kFree = 0xFFFF;

constexpr std::size_t FirstSlot(std::string_view text) {
  const auto byte = [&](std::size_t i) {
    return static_cast<std::uint32_t>(static_cast<unsigned char>(text[i]));
  };
  const std::size_t n = text.size();
  auto hash = static_cast<std::uint32_t>(n);
  for (const std::size_t i : {std::size_t{0}, n / 4, n / 2, n - n / 4 - 1, n - 1}) {
    hash = (hash ^ byte(i)) * 0x9E3779B1U;
  }
  return hash >> 22;
}
static_assert(kSlotCount == std::size_t{1} << 10, "FirstSlot keeps the upper 10 of 32 bits");

consteval auto MakeSlots() {
  std::array<std::uint16_t, kSlotCount> slots{};
  slots.fill(kFree);
  for (std::size_t i = 0; i < kKeywords.size(); ++i) {
    std::size_t slot = FirstSlot(kKeywords[i].text);
    while (slots[slot] != kFree) slot = (slot + 1) % kSlotCount;
    slots[slot] = static_cast<std::uint16_t>(i);
  }
  return slots;
}
constexpr auto kSlots = MakeSlots();

constexpr const Keyword* Find(std::string_view text) {
  if (text.empty()) return nullptr;
  for (std::size_t slot = FirstSlot(text); kSlots[slot] != kFree; slot = (slot + 1) % kSlotCount) {
    const Keyword& keyword = kKeywords[kSlots[slot]];
    if (keyword.text == text) return &keyword;
  }
  return nullptr;
}

constexpr bool EveryKeywordIsFoundAsItself() {
  for (const Keyword& keyword : kKeywords) {
    if (Find(keyword.text) != &keyword) return false;
  }
  return true;
}
static_assert(EveryKeywordIsFoundAsItself(), "a keyword stands twice in the list");

}  // namespace

ElementKind KeywordToKind(std::string_view keyword) {
  const Keyword* found = Find(keyword);
  return found != nullptr ? found->kind : KIND_UNKNOWN;
}

std::string_view KindToKeyword(ElementKind kind) {
  const std::size_t index = KindIndex(kind);
  return index < kKeywords.size() ? kKeywords[index].text : std::string_view{};
}

}  // namespace a2l
