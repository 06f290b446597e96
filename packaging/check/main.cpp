// SPDX-License-Identifier: MIT
//
// Uses the installed library: reads bytes in memory, writes them as A2L text, and reads that.
// Prints the version if all documents are the expected one.
//
//   check <A2L file> <JSON file>
#include <fstream>
#include <iostream>
#include <iterator>
#include <sstream>
#include <string>

#include <a2l2json/a2l2json.h>
#include <a2l2json/export/json11_document.h>

static std::string Bytes(const char* path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

int main(int argc, char* argv[]) {
  if (argc != 3) return 2;
  a2l::ReadResult file = a2l::ReadFile(argv[1]);
  const a2l::ReadResult bytes = a2l::Read(Bytes(argv[1]));
  std::ostringstream text;
  std::ostringstream json;
  if (!file || !bytes || !file.tree->Write(0, text)) return 1;
  const a2l::ReadResult again = a2l::Read(text.str());
  a2l::WriteJson(*bytes.tree, json);
  const std::string expected = Bytes(argv[2]);
  if (!again || !again.diagnostics.empty() || json.str() != expected ||
      a2l::ToJson(*again.tree) != expected || a2l::ToJson11(*file.tree).dump() != expected) {
    return 1;
  }
  std::cout << a2l::Version();
}
