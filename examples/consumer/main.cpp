// SPDX-License-Identifier: MIT
#include <iostream>

#include "a2l2json/elements/elements.h"
#include "a2l2json/export/json_writer.h"
#include "a2l2json/model/tree.h"
#include "a2l2json/reader/a2l_reader.h"

int main(int argc, char* argv[]) {
  if (argc != 2) return 2;
  a2l::Tree tree;
  a2l::A2LReader reader;
  const bool ok = reader.Parse(argv[1], tree.get());

  for (const a2l::Diagnostic& diagnostic : reader.diagnostics) {
    const bool isError = diagnostic.GetSeverity() == a2l::Severity::Error;
    std::cerr << argv[1] << ':' << diagnostic.line << (isError ? ": error: " : ": warning: ")
              << diagnostic.What() << '\n';
  }
  for (const auto& measurement : a2l::Descendants<a2l::VoA2LElementMeasurement>(*tree)) {
    if (const auto* address = a2l::FirstChild<a2l::VoA2LElementECUAddress>(measurement)) {
      std::cerr << measurement.NAME << " at " << address->ECU_ADDRESS << '\n';
    }
  }
  if (ok) a2l::WriteJson(*tree, std::cout);
  return ok ? 0 : 1;
}
