// SPDX-License-Identifier: MIT
#include "a2l2json/model/keywords.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "a2l2json/text/bytes.h"

namespace a2l {
namespace {

// The bytes of a keyword as two words: all of them where they are fewer than 16, otherwise the
// first eight and the last.
constexpr bytes::Words EndsOf(std::string_view text) {
  if (text.size() < 16) return bytes::Words::LoadPart(text.data(), text.size());
  return {bytes::Load<std::uint64_t>(text.data()),
          bytes::Load<std::uint64_t>(text.data() + text.size() - 8)};
}

struct Keyword {
  ElementKind kind;
  std::string_view text;
  bytes::Words ends = EndsOf(text);
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

// Keywords are looked up once per line of a file, so the table is hashed at compile time, and a
// miss mostly ends at the first slot.
constexpr std::size_t kSlotCount = 1024;
constexpr std::uint16_t kFree = 0xFFFF;

constexpr std::size_t FirstSlot(bytes::Words ends) {
  const std::uint64_t mixed = ends.low ^ (ends.high * 0x9E3779B97F4A7C15U);
  return (mixed * 0xD6E8FEB86659FD93U) >> 54;
}
static_assert(kSlotCount == std::size_t{1} << 10, "FirstSlot keeps the upper 10 of 64 bits");

consteval auto MakeSlots() {
  std::array<std::uint16_t, kSlotCount> slots{};
  slots.fill(kFree);
  for (std::size_t i = 0; i < kKeywords.size(); ++i) {
    std::size_t slot = FirstSlot(kKeywords[i].ends);
    while (slots[slot] != kFree) slot = (slot + 1) % kSlotCount;
    slots[slot] = static_cast<std::uint16_t>(i);
  }
  return slots;
}
constexpr auto kSlots = MakeSlots();

// What lies between the ends of a longer text, up to the length of the longest keyword.
constexpr bytes::Words MiddleOf(std::string_view text) {
  return {bytes::Load<std::uint64_t>(text.data() + 8),
          bytes::Load<std::uint64_t>(text.data() + text.size() - 16)};
}
static_assert(std::ranges::all_of(kKeywords,
                                  [](const Keyword& keyword) { return keyword.text.size() <= 32; }),
              "two ends and two words between them hold no keyword of more than 32 characters");

constexpr bool IsText(const Keyword& keyword, std::string_view text, bytes::Words ends) {
  return keyword.ends == ends && keyword.text.size() == text.size() &&
         (text.size() <= 16 || MiddleOf(keyword.text) == MiddleOf(text));
}

constexpr const Keyword* Find(std::string_view text, bytes::Words ends) {
  for (std::size_t slot = FirstSlot(ends); kSlots[slot] != kFree; slot = (slot + 1) % kSlotCount) {
    const Keyword& keyword = kKeywords[kSlots[slot]];
    if (IsText(keyword, text, ends)) return &keyword;
  }
  return nullptr;
}

constexpr bool EveryKeywordIsFoundAsItself() {
  for (const Keyword& keyword : kKeywords) {
    if (Find(keyword.text, keyword.ends) != &keyword) return false;
  }
  return true;
}
static_assert(EveryKeywordIsFoundAsItself(), "a keyword stands twice in the list");

}  // namespace

ElementKind KeywordToKind(std::string_view keyword) {
  const Keyword* found = Find(keyword, EndsOf(keyword));
  return found != nullptr ? found->kind : KIND_UNKNOWN;
}

ElementKind PaddedKeywordToKind(std::string_view keyword) {
  const Keyword* found =
      Find(keyword, keyword.size() < 16 ? bytes::Words::LoadPadded(keyword.data(), keyword.size())
                                        : EndsOf(keyword));
  return found != nullptr ? found->kind : KIND_UNKNOWN;
}

std::string_view KindToKeyword(ElementKind kind) {
  const std::size_t index = KindIndex(kind);
  return index < kKeywords.size() ? kKeywords[index].text : std::string_view{};
}

}  // namespace a2l
