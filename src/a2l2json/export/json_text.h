// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <functional>
#include <memory>
#include <string_view>
#include <utility>

#include "a2l2json/export/object_table.h"
#include "a2l2json/text/bytes.h"

namespace a2l {

/// Writes JSON text as it comes: one line, ", " between items and ": " behind keys, control
/// characters, the line separator U+2028 and the paragraph separator U+2029 escaped, every other
/// byte as it is, reals with 17 significant digits, infinities and NaN as null.
///
/// The text passes through a buffer of fixed size, so that the document is never held whole.
class JsonText {
 public:
  /// Receives the text, piece by piece.
  using Output = std::function<void(std::string_view text)>;

  explicit JsonText(Output output) : output_(std::move(output)) {}

  void BeginObject() { Open('{'); }
  void EndObject() { Close('}'); }
  void BeginArray() { Open('['); }
  void EndArray() { Close(']'); }

  /// The key of a row, and in front of it the members of the rows from `next` on, without a value.
  void Key(const ObjectTable& table, std::size_t next, std::size_t row) {
    PutPrepared(table.text + table.texts[next].begin, table.text + table.texts[row].value);
  }
  /// The members of the rows from `next` to before `end`, without a value.
  void Absent(const ObjectTable& table, std::size_t next, std::size_t end) {
    if (next == end) return;
    PutPrepared(table.text + table.texts[next].begin, table.text + table.texts[end].begin);
  }
  /// A key that is escaped.
  void Key(std::string_view key);
  void Item();

  void Null() { Put("null"); }
  void Bool(bool value) { Put(value ? std::string_view("true") : std::string_view("false")); }
  void Integer(std::int32_t value);
  void Real(double value);
  void String(std::string_view text);

  /// Hands on what is still in the buffer.
  void Flush();

 private:
#ifdef A2L2JSON_SMALL_BUFFERS
  static constexpr std::size_t kBufferSize = 1024;
#else
  static constexpr std::size_t kBufferSize = std::size_t{64} * 1024;
#endif
  // Texts are escaped in pieces that surely fit the buffer.
  static constexpr std::size_t kPieceSize = kBufferSize / 64;
  static constexpr std::string_view kSeparator = kMemberSeparator;

  void Open(char bracket) {
    PutByte(bracket);
    first_ = true;
  }
  void Close(char bracket) {
    PutByte(bracket);
    first_ = false;
  }
  // Members that begin with a separator; the first one of an object goes without it.
  void PutPrepared(const char* begin, const char* end);
  void PutByte(char c) {
    Reserve(1);
    buffer_[used_++] = c;
  }
  void Put(std::string_view text);
  // A text of any length with any escapes.
  void EscapedString(std::string_view text);
  void Reserve(std::size_t size) {
    if (kBufferSize - used_ < size) Flush();
  }
  [[nodiscard]] char* End() { return buffer_.get() + used_; }
  void SetEnd(const char* end) { used_ = static_cast<std::size_t>(end - buffer_.get()); }

  Output output_;
  std::unique_ptr<char[]> buffer_ = std::make_unique_for_overwrite<char[]>(kBufferSize);
  std::size_t used_ = 0;
  bool first_ = true;  // of the items of the innermost bracket
};

}  // namespace a2l
