// SPDX-License-Identifier: MIT
#include "a2l2json/reader/read.h"

#include <utility>

#include "a2l2json/reader/a2l_reader.h"

namespace a2l {
namespace {

template <class Parse>
ReadResult ReadWith(Parse parse) {
  ReadResult result;
  A2LReader reader;
  result.ok = parse(reader, result.tree.get());
  result.diagnostics = std::move(reader.diagnostics);
  result.fileError = reader.fileError;
  return result;
}

}  // namespace

std::string ReadResult::Message() const {
  std::string message;
  for (const Diagnostic& diagnostic : diagnostics) message += diagnostic.Text();
  if (fileError != FileError::None) message.append(What(fileError)).append("\n");
  return message;
}

ReadResult Read(std::string_view text) {
  return ReadWith(
      [text](A2LReader& reader, VoA2LElement* root) { return reader.ParseText(text, root); });
}

ReadResult ReadFile(const std::string& path) {
  return ReadWith(
      [&path](A2LReader& reader, VoA2LElement* root) { return reader.Parse(path, root); });
}

}  // namespace a2l
