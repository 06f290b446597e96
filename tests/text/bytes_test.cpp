// SPDX-License-Identifier: MIT
#include "a2l2json/text/bytes.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/padded.h"

namespace a2l::bytes {
namespace {

// A text in memory of its own, so that AddressSanitizer notices a read next to it.
class Alone {
 public:
  explicit Alone(std::string_view text) : bytes_(text.begin(), text.end()) {}
  [[nodiscard]] const char* begin() const { return bytes_.data(); }
  [[nodiscard]] const char* end() const { return bytes_.data() + bytes_.size(); }
  char* begin() { return bytes_.data(); }

 private:
  std::vector<char> bytes_;
};

TEST(Bytes, LoadTakesTheFirstByteAsTheLowest) {
  EXPECT_EQ(Load<std::uint32_t>("\x01\x02\x03\x04"), 0x04030201U);
  EXPECT_EQ(Load<std::uint64_t>("\x01\x02\x03\x04\x05\x06\x07\xF8"), 0xF807060504030201U);
}

TEST(Bytes, FindGivesTheFirstOfTheBytesWhereverItStands) {
  for (std::size_t size = 0; size < 70; ++size) {
    for (std::size_t place = 0; place < size; ++place) {
      std::string text(size, 'x');
      text[place] = '"';
      text.back() = text.back() == 'x' ? ' ' : text.back();
      const Alone alone(text);
      ASSERT_EQ((Find<' ', '"'>(alone.begin(), alone.end())), alone.begin() + place);
      ASSERT_EQ(Find<' '>(alone.begin(), alone.end()),
                place + 1 == size ? alone.end() : alone.end() - 1);
    }
    const Alone none(std::string(size, '\xA0'));
    ASSERT_EQ((Find<' ', '"'>(none.begin(), none.end())), none.end());
  }
}

// Each of the 256 bytes is found at its place, and no other byte is taken for it.
TEST(Bytes, ComparisonsTellEveryByteFromEveryOther) {
  constexpr std::array kBytes = {'\n', ' ', '"', '/', '\\', '\xE2', '\x7F', '\x80', '\0'};
  for (int first = 0; first < 256; first += static_cast<int>(kBlock)) {
    std::array<char, kBlock> all{};
    for (std::size_t i = 0; i < kBlock; ++i)
      all[i] = static_cast<char>(first + static_cast<int>(i));
    const Block block = Block::Load(all.data());
    for (const char c : kBytes) {
      std::uint32_t equal = 0;
      std::uint32_t below = 0;
      for (std::size_t i = 0; i < kBlock; ++i) {
        const auto byte = static_cast<unsigned char>(all[i]);
        equal |= byte == static_cast<unsigned char>(c) ? 1U << i : 0;
        below |= byte < static_cast<unsigned char>(c) ? 1U << i : 0;
      }
      ASSERT_EQ(Bits(block.Equal(c)), equal) << first;
      if (static_cast<unsigned char>(c) <= 0x80) {
        ASSERT_EQ(Bits(block.Below(c)), below) << first;
      }
    }
  }
}

TEST(Bytes, ABlockHoldsPartOfATextAndZeros) {
  constexpr std::string_view kText = "0123456789ABCDEF";
  for (std::size_t size = 0; size < kBlock; ++size) {
    const Alone alone(kText.substr(0, size));
    std::array<char, kBlock> stored{};
    Block::LoadPart(alone.begin(), size).Store(stored.data());
    EXPECT_EQ(std::string_view(stored.data(), size), kText.substr(0, size));
    EXPECT_TRUE(std::all_of(stored.begin() + static_cast<std::ptrdiff_t>(size), stored.end(),
                            [](char c) { return c == 0; }))
        << size;
  }
}

TEST(Bytes, SkipAllStopsAtAnotherByteOrBeforeAPartOfABlock) {
  for (std::size_t size = 0; size < 70; ++size) {
    for (std::size_t place = 0; place <= size; ++place) {
      std::string text(size, ' ');
      if (place < size) text[place] = '\t';
      const Alone alone(text);
      const std::size_t blocks = size / kBlock * kBlock;
      ASSERT_EQ(SkipAll<' '>(alone.begin(), alone.end()), alone.begin() + std::min(place, blocks));
    }
  }
}

// What stands behind a padded text is never found, whatever it is.
TEST(Bytes, FindPaddedGivesTheFirstOfTheBytesInTheText) {
  for (std::size_t size = 0; size < 70; ++size) {
    for (std::size_t place = 0; place <= size; ++place) {
      std::string text(size, 'x');
      if (place < size) text[place] = '"';
      const test::Padded padded(text);
      const char* const begin = padded.View().data();
      ASSERT_EQ((FindPadded<' ', '"'>(begin, begin + size)), begin + place);
      ASSERT_EQ(FindPadded<'/'>(begin, begin + size), begin + size);
    }
  }
}

TEST(Bytes, LoadPaddedGivesTheSameWordsAsLoadPart) {
  const std::string text = "0123456789abcdef";
  for (std::size_t size = 0; size < kBlock; ++size) {
    const test::Padded padded(text.substr(0, size));
    EXPECT_EQ(Words::LoadPadded(padded.View().data(), size), Words::LoadPart(text.data(), size));
  }
}

TEST(Bytes, CopyCopiesTextsOfAnyLength) {
  std::string text;
  for (std::size_t size = 0; size < 100; ++size) {
    const Alone from(text);
    Alone to(std::string(size, '.'));
    Copy(to.begin(), from.begin(), size);
    ASSERT_TRUE(std::equal(from.begin(), from.end(), to.begin())) << size;
    text += static_cast<char>('0' + size % 43);
  }
}

}  // namespace
}  // namespace a2l::bytes
