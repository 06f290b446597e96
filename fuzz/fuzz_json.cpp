// SPDX-License-Identifier: MIT
//
// Compares the JSON text with that of json11, byte by byte: for the tree of the input, and for
// single values made of its bytes.
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <map>
#include <string>
#include <string_view>

#include <json11.hpp>

#include "a2l2json/export/json11_document.h"
#include "a2l2json/export/json_text.h"
#include "a2l2json/export/json_writer.h"
#include "fuzz/check.h"
#include "fuzz/reading.h"

namespace a2l::fuzz {
namespace {

using json11::Json;

template <class Function>
std::string TextOf(Function write) {
  std::string text;
  JsonText json([&text](std::string_view piece) { text += piece; });
  write(json);
  json.Flush();
  return text;
}

void CheckString(std::string_view bytes) {
  CheckSame(TextOf([&](JsonText& json) { json.String(bytes); }), Json(std::string(bytes)).dump(),
            "a string");
}

// Texts are escaped in pieces and go through a buffer. This repeats the same bytes at every place
// of a text that is longer than both pieces and buffer (which are small in the libFuzzer programs).
void CheckLongString(std::string_view bytes) {
  // Only a few bytes meet at an edge, so short inputs will do. Long ones are for the document.
  if (bytes.size() < 2 || bytes.size() > 64) return;
  const auto first = static_cast<unsigned char>(bytes[0]);
  std::string text(first, 'x');
  while (text.size() < 2500) text += bytes;
  CheckString(text);
}

// The bytes as numbers, one after the other, each with these bytes in memory.
template <class Number, class Write>
void CheckNumbers(std::string_view bytes, Write write) {
  Json::array numbers;
  const std::string text = TextOf([&](JsonText& json) {
    json.BeginArray();
    for (; bytes.size() >= sizeof(Number); bytes.remove_prefix(sizeof(Number))) {
      Number number;
      std::memcpy(&number, bytes.data(), sizeof(Number));
      numbers.emplace_back(number);
      json.Item();
      write(json, number);
    }
    json.EndArray();
  });
  CheckSame(text, Json(numbers).dump(), "an array of numbers");
}

// Each line is a key, and its value.
void CheckMembers(std::string_view bytes) {
  std::map<std::string, Json> members;
  while (!bytes.empty()) {
    const std::string line(bytes.substr(0, bytes.find('\n')));
    members.emplace(line, line);
    bytes.remove_prefix(std::min(line.size() + 1, bytes.size()));
  }
  const std::string text = TextOf([&](JsonText& json) {
    json.BeginObject();
    for (const auto& [key, value] : members) {
      json.Key(key);
      json.String(value.string_value());
    }
    json.EndObject();
  });
  CheckSame(text, Json(members).dump(), "an object");
}

void CheckAgainstJson11(std::string_view bytes) {
  CheckString(bytes);
  CheckLongString(bytes);
  const std::string_view numbers = bytes.substr(0, 256);
  CheckNumbers<double>(numbers, [](JsonText& json, double number) { json.Real(number); });
  CheckNumbers<std::int32_t>(numbers,
                             [](JsonText& json, std::int32_t number) { json.Integer(number); });
  CheckMembers(bytes);

  const Reading reading = Read(bytes);
  CheckSame(ToJson(*reading.root), ToJson11(*reading.root).dump(), "the document");
}

}  // namespace
}  // namespace a2l::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  a2l::fuzz::CheckAgainstJson11(a2l::fuzz::Input(data, size, 65536));
  return 0;
}
