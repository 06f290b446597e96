// SPDX-License-Identifier: MIT
#include "a2l2json/export/json_writer.h"

#include <ostream>

#include "a2l2json/export/exporter.h"
#include "a2l2json/export/json_text.h"

namespace a2l {
namespace {

void Write(const VoA2LElement& root, JsonText::Output output) {
  JsonText text(std::move(output));
  Exporter(text).Document(root);
  text.Flush();
}

}  // namespace

std::string ToJson(const VoA2LElement& root) {
  std::string json;
  Write(root, [&json](std::string_view text) { json += text; });
  return json;
}

void WriteJson(const VoA2LElement& root, std::ostream& out) {
  Write(root, [&out](std::string_view text) {
    out.write(text.data(), static_cast<std::streamsize>(text.size()));
  });
}

}  // namespace a2l
