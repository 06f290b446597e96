// SPDX-License-Identifier: MIT
//
// Calls what is in the installed library: reads bytes in memory, writes them as A2L text, reads
// that, and prints the version where all documents are the one that is expected.
//
//   check <A2L file> <JSON file>
#include <fstream>
#include <iostream>
#include <iterator>
#include <sstream>
#include <string>

#include "a2l2json/elements/elements.h"
#include "a2l2json/export/json11_document.h"
#include "a2l2json/export/json_writer.h"
#include "a2l2json/model/tree.h"
#include "a2l2json/model/version.h"
#include "a2l2json/reader/a2l_reader.h"

static std::string Bytes(const char* path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

int main(int argc, char* argv[]) {
  if (argc != 3) return 2;
  a2l::Tree tree;
  a2l::Tree again;
  a2l::A2LReader reader;
  std::ostringstream text;
  std::ostringstream json;
  const bool ok = reader.ParseText(Bytes(argv[1]), tree.get()) && tree->Write(0, text) &&
                  reader.ParseText(text.str(), again.get()) && reader.diagnostics.empty();
  a2l::WriteJson(*tree, json);
  const std::string expected = Bytes(argv[2]);
  if (!ok || json.str() != expected || a2l::ToJson(*again) != expected ||
      a2l::ToJson11(*tree).dump() != expected) {
    return 1;
  }
  std::cout << a2l::Version();
}
