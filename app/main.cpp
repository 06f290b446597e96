// SPDX-License-Identifier: MIT
#include <cstdio>
#include <iostream>
#include <string>

#include "a2l2json/export/json_writer.h"
#include "a2l2json/model/element.h"
#include "a2l2json/reader/a2l_reader.h"
#include "app/system.h"

namespace {

// What the process returns. Scripts rely on these values.
enum ExitCode { kSuccess = 0, kUsage = -1, kNotRead = -2, kNotWritten = -3 };

// If a conversion fails, the process ends without destroying the tree: the system takes the memory
// back faster than we could, and every text was flushed when it was printed.
int Convert(const std::string& a2lPath, const std::string& jsonPath) {
  a2l::A2LReader reader;
  a2l::JsonWriter writer;
  a2l::VoA2LElement* root = a2l::NewTree();
  if (!reader.Parse(a2lPath, root)) {
    std::cout << "Failed: " << reader.message << std::endl;
    a2l::EndAtOnce(kNotRead);
  }
  if (!writer.Export(jsonPath, root)) {
    std::cout << "Failed: "
              << "Can not write access json file " << jsonPath << std::endl;
    a2l::EndAtOnce(kNotWritten);
  }
  std::cout << "Success." << std::endl << reader.message << std::endl;
  a2l::DestroyTree(root);
  return kSuccess;
}

}  // namespace

int main(int argc, char* argv[]) {
  a2l::BeginProcess(argc, argv);
  if (argc != 3) {
    std::printf("Failed: using %s [in]a2l_file [out]json_file\n", argv[0]);
    return kUsage;
  }
  return Convert(argv[1], argv[2]);
}
