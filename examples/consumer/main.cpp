// SPDX-License-Identifier: MIT
#include <iostream>

#include <a2l2json/a2l2json.h>

int main(int argc, char* argv[]) {
  if (argc != 2) return 2;
  const a2l::ReadResult file = a2l::ReadFile(argv[1]);

  for (const a2l::Diagnostic& diagnostic : file.diagnostics) {
    const bool isError = diagnostic.GetSeverity() == a2l::Severity::Error;
    std::cerr << argv[1] << ':' << diagnostic.line << (isError ? ": error: " : ": warning: ")
              << diagnostic.What() << '\n';
  }
  if (file.fileError != a2l::FileError::None) {
    std::cerr << argv[1] << ": error: " << a2l::What(file.fileError) << '\n';
  }
  for (const auto& measurement : a2l::Descendants<a2l::VoA2LElementMeasurement>(*file.tree)) {
    if (const auto* address = a2l::FirstChild<a2l::VoA2LElementECUAddress>(measurement)) {
      std::cerr << measurement.NAME << " at " << address->ECU_ADDRESS << '\n';
    }
  }
  if (file) a2l::WriteJson(*file.tree, std::cout);
  return file ? 0 : 1;
}
