// SPDX-License-Identifier: MIT
//
// The text of a table's rows as it stands in the document where none of them has a value, made
// while compiling. Two thirds of a document are keys, and half of its values are null: most of it
// is written as stretches of this text, one from each value to the next.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <variant>

#include "a2l2json/export/row.h"
#include "a2l2json/text/bytes.h"

namespace a2l {

/// What stands in front of every member of an object but the first.
inline constexpr std::string_view kMemberSeparator = ", ";

/// What stands for a row without a value; empty for one that always has a value.
constexpr std::string_view AbsentText(const Row& row) {
  if (row.source == Source::Presence) return "false";
  if (row.absent == Absent::EmptyArray) return "[]";
  const bool never = std::holds_alternative<std::monostate>(row.form);
  const bool always = row.source == Source::Element && !never;
  return always || row.absent == Absent::Omit ? "" : "null";
}

/// Where the text of a row begins, and where in it the value does.
struct RowText {
  std::uint16_t begin;
  std::uint16_t value;
};

/// The texts of `kRows`, one after the other, each `, "KEY": ` and what stands for no value. As
/// many bytes as a Block has follow the last one, which a copy in blocks may read.
template <const auto& kRows>
class PreparedRows {
 public:
  consteval PreparedRows() {
    std::size_t used = 0;
    const auto append = [this, &used](std::string_view text) {
      for (const char c : text) text_[used++] = c;
    };
    for (std::size_t i = 0; i < kCount; ++i) {
      rows_[i].begin = static_cast<std::uint16_t>(used);
      append(kMemberSeparator);
      append("\"");
      append(kRows[i].key);
      append("\": ");
      rows_[i].value = static_cast<std::uint16_t>(used);
      append(AbsentText(kRows[i]));
    }
    rows_[kCount].begin = static_cast<std::uint16_t>(used);
  }

  [[nodiscard]] constexpr const char* Text() const { return text_.data(); }
  /// Of each row, and where the last one ends.
  [[nodiscard]] constexpr const auto& Rows() const { return rows_; }

 private:
  static constexpr std::size_t kCount = std::size(kRows);
  static constexpr std::size_t Size() {
    std::size_t size = 0;
    for (const Row& row : kRows) {
      size += std::string_view(", \"\": ").size() + row.key.size() + AbsentText(row).size();
    }
    return size;
  }
  static_assert(Size() <= UINT16_MAX, "the text of a table is too long for the places of its rows");

  std::array<char, Size() + bytes::kBlock> text_{};
  std::array<RowText, kCount + 1> rows_{};
};

/// Some rows of a table.
class RowSet {
 public:
  static constexpr std::size_t kMost = 128;

  constexpr void Add(std::size_t row) { words_[row / 64] |= std::uint64_t{1} << (row % 64); }
  [[nodiscard]] constexpr bool Contains(std::size_t row) const {
    return (words_[row / 64] >> (row % 64) & 1U) != 0;
  }

  /// Calls `function` with each row, in ascending order.
  // A row may hold an object with rows of its own: as deep as the tables say.
  template <class Function>
  // NOLINTNEXTLINE(misc-no-recursion)
  void ForEach(Function function) const {
    for (std::size_t i = 0; i < words_.size(); ++i) {
      for (std::uint64_t rest = words_[i]; rest != 0; rest &= rest - 1) {
        function(i * 64 + static_cast<std::size_t>(std::countr_zero(rest)));
      }
    }
  }

 private:
  std::array<std::uint64_t, kMost / 64> words_{};
};

}  // namespace a2l
