// SPDX-License-Identifier: MIT
//
// Bytes, sixteen at a time. A conversion looks at every byte of a file for the ends of lines and
// tokens, and at every byte of a document for what needs an escape: that is most of its work. So
// the code that is written for the processor lies here, behind searches and copies that read like
// any other. Tests and a fuzz target compare each of them with a plain loop.
//
// Processors with vectors that every program may use (x86-64, ARM64) compare sixteen bytes in one
// step, all others eight. Nothing outside of a text is read, except by what asks for a padded one:
// a text behind whose end at least kBlock more bytes may be read, whatever they are. The reader has
// its lines in memory that is larger than they are, and so their ends cost no tests.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>
#include <utility>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace a2l::bytes {

/// The number of bytes in a Block.
inline constexpr std::size_t kBlock = 16;

/// The bytes from `from` on as one number, the first of them lowest.
template <class Number>
[[nodiscard]] constexpr Number Load(const char* from) {
  Number number = 0;
  if (std::is_constant_evaluated() || std::endian::native == std::endian::big) {
    for (std::size_t i = sizeof number; i-- > 0;) {
      number = number << 8 | static_cast<unsigned char>(from[i]);
    }
  } else {
    std::memcpy(&number, from, sizeof number);
  }
  return number;
}

/// Up to 16 bytes as two numbers, the first byte lowest; zeros behind the last.
struct Words {
  std::uint64_t low = 0;
  std::uint64_t high = 0;

  /// `size` bytes, fewer than 16, by two words that overlap.
  [[nodiscard, gnu::always_inline]] static constexpr Words LoadPart(const char* from,
                                                                    std::size_t size) {
    if (size >= 8) {
      // Two shifts: one by 64 bits is not defined.
      return {Load<std::uint64_t>(from),
              Load<std::uint64_t>(from + size - 8) >> 8 >> (8 * (15 - size))};
    }
    if (size >= 4) {
      return {Load<std::uint32_t>(from) | std::uint64_t{Load<std::uint32_t>(from + size - 4)}
                                              << (8 * (size - 4))};
    }
    if (size == 0) return {};
    const auto byte = [from](std::size_t i) {
      return std::uint64_t{static_cast<unsigned char>(from[i])} << (8 * i);
    };
    return {byte(0) | byte(size / 2) | byte(size - 1)};
  }

  /// `size` bytes, at most 16, of a padded text.
  [[nodiscard, gnu::always_inline]] static Words LoadPadded(const char* from, std::size_t size) {
    static constexpr auto kMask = [] {
      std::array<char, 32> mask{};
      for (std::size_t i = 0; i < 16; ++i) mask[i] = '\xFF';
      return mask;
    }();
    const char* const mask = kMask.data() + 16 - size;
    return {Load<std::uint64_t>(from) & Load<std::uint64_t>(mask),
            Load<std::uint64_t>(from + 8) & Load<std::uint64_t>(mask + 8)};
  }

  friend constexpr bool operator==(const Words&, const Words&) = default;
  friend Words operator|(Words a, Words b) { return {a.low | b.low, a.high | b.high}; }
};

/// Sixteen bytes. A comparison gives the set of the bytes for which it holds; sets are joined by |
/// and end as Bits.
class Block {
#if defined(__SSE2__) || defined(__ARM_NEON)
 public:
  using Vector = unsigned char __attribute__((vector_size(kBlock)));
  using Set = decltype(std::declval<Vector>() == Vector{});

  [[nodiscard]] static Block Load(const char* from) {
    Block block;
    std::memcpy(&block.bytes_, from, kBlock);
    return block;
  }
  /// `size` bytes, fewer than 16, and zeros behind them.
  [[nodiscard, gnu::always_inline]] static Block LoadPart(const char* from, std::size_t size) {
    using Vector64 = std::uint64_t __attribute__((vector_size(kBlock)));
    const Words words = Words::LoadPart(from, size);
    Block block;
    block.bytes_ = std::bit_cast<Vector>(Vector64{words.low, words.high});
    return block;
  }
  void Store(char* to) const { std::memcpy(to, &bytes_, kBlock); }

  [[nodiscard]] Set Equal(char c) const { return bytes_ == Each(c); }
  /// The bytes below `c`, as unsigned numbers; `c` is at most 0x80.
  [[nodiscard]] Set Below(char c) const { return bytes_ < Each(c); }

 private:
  static Vector Each(char c) { return Vector{} + static_cast<unsigned char>(c); }

  Vector bytes_ = {};
#else
 public:
  using Set = Words;

  [[nodiscard]] static Block Load(const char* from) {
    return Block{{bytes::Load<std::uint64_t>(from), bytes::Load<std::uint64_t>(from + 8)}};
  }
  [[nodiscard, gnu::always_inline]] static Block LoadPart(const char* from, std::size_t size) {
    return Block{Words::LoadPart(from, size)};
  }
  void Store(char* to) const {
    std::memcpy(to, &bytes_.low, 8);
    std::memcpy(to + 8, &bytes_.high, 8);
  }

  [[nodiscard]] Set Equal(char c) const {
    // Where the byte is the one that is looked for, the difference is 0; adding to the other bits
    // of it sets the top one in every other case.
    const auto equal = [c](std::uint64_t word) {
      const std::uint64_t other = word ^ Each(c);
      return ~(((other & ~kTop) + ~kTop) | other) & kTop;
    };
    return {equal(bytes_.low), equal(bytes_.high)};
  }
  [[nodiscard]] Set Below(char c) const {
    const auto below = [c](std::uint64_t word) {
      return ~(((word & ~kTop) + (kTop - Each(c))) | word) & kTop;
    };
    return {below(bytes_.low), below(bytes_.high)};
  }

 private:
  static constexpr std::uint64_t kTop = 0x8080808080808080;
  static constexpr std::uint64_t Each(char c) {
    return std::uint64_t{0x0101010101010101} * static_cast<unsigned char>(c);
  }

  explicit Block(Words bytes) : bytes_(bytes) {}

  Words bytes_;
#endif
};

/// One bit for each byte of the set, that of the first byte lowest.
[[nodiscard]] inline std::uint32_t Bits(Block::Set set) {
#if defined(__SSE2__)
  return static_cast<std::uint32_t>(_mm_movemask_epi8(std::bit_cast<__m128i>(set)));
#else
  // One bit of each byte, moved to the top byte of the product, beside one another.
  const auto bits = [](std::uint64_t word) {
    return static_cast<std::uint32_t>((word >> 7 & 0x0101010101010101) * 0x0102040810204080 >> 56);
  };
  const auto words = std::bit_cast<Words>(set);
  return bits(words.low) | bits(words.high) << 8;
#endif
}

/// Position of the first bit that is set, of which there must be one.
[[nodiscard]] inline std::size_t FirstBit(std::uint64_t bits) {
  return static_cast<std::size_t>(std::countr_zero(bits));
}

/// And of the last one.
[[nodiscard]] inline std::size_t LastBit(std::uint64_t bits) {
  return static_cast<std::size_t>(63 - std::countl_zero(bits));
}

/// Where the first of these bytes stands from `begin` on; `end` where none does.
template <char... kBytes>
[[nodiscard]] inline const char* Find(const char* begin, const char* end) {
  static_assert(((kBytes != 0) && ...), "zeros stand behind a part of a block");
  const auto found = [](const Block& block) { return Bits((block.Equal(kBytes) | ...)); };
  for (; static_cast<std::size_t>(end - begin) >= kBlock; begin += kBlock) {
    if (const std::uint32_t bits = found(Block::Load(begin))) return begin + FirstBit(bits);
  }
  const std::uint32_t bits = found(Block::LoadPart(begin, static_cast<std::size_t>(end - begin)));
  return bits != 0 ? begin + FirstBit(bits) : end;
}

/// The same in a padded text.
template <char... kBytes>
[[nodiscard]] inline const char* FindPadded(const char* begin, const char* end) {
  for (; begin < end; begin += kBlock) {
    const Block block = Block::Load(begin);
    if (const std::uint32_t bits = Bits((block.Equal(kBytes) | ...))) {
      const char* const found = begin + FirstBit(bits);
      return found < end ? found : end;
    }
  }
  return end;
}

/// Where the first byte other than this one stands, as long as whole blocks are left: `end` is not
/// reached, and what is left behind them may begin with more of the bytes.
template <char kByte>
[[nodiscard]] inline const char* SkipAll(const char* begin, const char* end) {
  for (; static_cast<std::size_t>(end - begin) >= kBlock; begin += kBlock) {
    const std::uint32_t others = ~Bits(Block::Load(begin).Equal(kByte)) & 0xFFFFU;
    if (others != 0) return begin + FirstBit(others);
  }
  return begin;
}

/// Copies `size` bytes in whole blocks: up to kBlock more can be read and written over.
inline void CopyInBlocks(char* to, const char* from, std::size_t size) {
  std::size_t i = 0;
  do {
    Block::Load(from + i).Store(to + i);
    i += kBlock;
  } while (i < size);
}

/// Copies `size` bytes, as memcpy does. Texts of a file are short: their copy takes fewer steps
/// than a call.
inline void Copy(char* to, const char* from, std::size_t size) {
  if (size < kBlock) {
    if (size >= 8) {
      std::uint64_t first = 0;
      std::uint64_t last = 0;
      std::memcpy(&first, from, 8);
      std::memcpy(&last, from + size - 8, 8);
      std::memcpy(to, &first, 8);
      std::memcpy(to + size - 8, &last, 8);
    } else {
      for (std::size_t i = 0; i < size; ++i) to[i] = from[i];
    }
    return;
  }
  const Block last = Block::Load(from + size - kBlock);
  for (std::size_t i = 0; i + kBlock < size; i += kBlock) Block::Load(from + i).Store(to + i);
  last.Store(to + size - kBlock);
}

/// Asks the processor for `size` bytes that are read soon. Changes nothing but the time of that.
inline void Prefetch(const void* from, std::size_t size) {
  constexpr std::size_t kCacheLine = 64;
  for (std::size_t i = 0; i < size; i += kCacheLine) {
    __builtin_prefetch(static_cast<const char*>(from) + i);
  }
}

}  // namespace a2l::bytes
