// SPDX-License-Identifier: MIT
#include <iostream>

#include "elements/blocks/measurement.h"
#include "elements/properties/numbers.h"
#include "export/json_writer.h"
#include "reader/a2l_reader.h"

static void Print(const a2l::VoA2LElementMeasurement& measurement) {
  for (const a2l::VoA2LElement* child : measurement.children)
    if (const auto* address = dynamic_cast<const a2l::VoA2LElementECUAddress*>(child))
      std::cerr << measurement.NAME << " 0x" << std::hex << address->ECU_ADDRESS << '\n';
}

int main(int argc, char* argv[]) {
  a2l::A2LReader reader;
  a2l::VoA2LElement* root = a2l::NewTree();
  const bool ok = argc == 2 && reader.Parse(argv[1], root);
  for (const a2l::Diagnostic& d : reader.diagnostics)
    std::cerr << d.line << ' ' << int(d.GetSeverity()) << ' ' << int(d.kind) << ' ' << d.Text();
  for (const a2l::VoA2LElement* project : root->children)
    for (const a2l::VoA2LElement* part : project->children)
      for (const a2l::VoA2LElement* object : part->children)
        if (const auto* found = dynamic_cast<const a2l::VoA2LElementMeasurement*>(object))
          Print(*found);
  if (ok) a2l::WriteJson(*root, std::cout);
  a2l::DestroyTree(root);
  return ok ? 0 : 1;
}
