// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string_view>
#include <utility>

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
  static constexpr std::size_t kBufferSize = std::size_t{64} * 1024;

  void Open(char bracket);
  void Close(char bracket);
  void Put(std::string_view text);
  void Reserve(std::size_t size) {
    if (kBufferSize - used_ < size)
      Flush();
  }

  Output output_;
  std::unique_ptr<char[]> buffer_ = std::make_unique_for_overwrite<char[]>(kBufferSize);
  std::size_t used_ = 0;
  bool first_ = true;  // of the items of the innermost bracket
};

}  // namespace a2l
