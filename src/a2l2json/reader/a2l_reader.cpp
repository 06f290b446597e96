// SPDX-License-Identifier: MIT
#include "a2l2json/reader/a2l_reader.h"

#include <istream>
#include <streambuf>

#include "a2l2json/reader/block_parser.h"
#include "a2l2json/reader/line_source.h"

namespace a2l {
namespace {

/// A stream of bytes that are in memory already.
class TextBuffer : public std::streambuf {
 public:
  explicit TextBuffer(std::string_view text) {
    // Stream buffers take no constant bytes, not even those that are only read.
    char* const begin = const_cast<char*>(text.data());  // NOLINT(*-const-cast)
    setg(begin, begin, begin + text.size());
  }
};

}  // namespace

bool A2LReader::Parse(std::istream& in, VoA2LElement* root) {
  fileError = in.fail() ? FileError::NotOpened : FileError::None;
  if (root == nullptr || in.fail()) return false;
  LineSource lines(in);
  BlockParser parser(lines, *root, [this](const Diagnostic& diagnostic) { Report(diagnostic); });
  const bool ok = parser.Run();
  if (lines.Failed()) fileError = FileError::ReadFailed;
  return ok;
}

bool A2LReader::ParseText(std::string_view text, VoA2LElement* root) {
  TextBuffer buffer(text);
  std::istream in(&buffer);
  return Parse(in, root);
}

void A2LReader::Report(const Diagnostic& diagnostic) {
  message += diagnostic.Text();
  diagnostics.push_back(diagnostic);
}

}  // namespace a2l
