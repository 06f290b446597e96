// SPDX-License-Identifier: MIT
//
// The whole library, except for the document as a json11 value (export/json11_document.h):
//
//   const a2l::ReadResult file = a2l::ReadFile("engine.a2l");
//   for (const a2l::Diagnostic& diagnostic : file.diagnostics) std::cerr << diagnostic.Text();
//   for (const auto& measurement : a2l::Descendants<a2l::VoA2LElementMeasurement>(*file.tree))
//     if (const auto* address = a2l::FirstChild<a2l::VoA2LElementECUAddress>(measurement))
//       std::cout << measurement.NAME << " at " << address->ECU_ADDRESS << '\n';
//   if (file) a2l::WriteJson(*file.tree, std::cout);
//
// a2l::Mend(text, options) tells what the layout of a text costs in its document, and mends it.
//
// Do not use the names in a2l::detail: they may change. If a name of the library is a macro in your
// file, as BYTE_ORDER is with some headers of Linux, write it with an underscore at its end; see
// names_begin.h.
#pragma once

#include "a2l2json/elements/elements.h"
#include "a2l2json/export/json_writer.h"
#include "a2l2json/mend/mend.h"
#include "a2l2json/model/name_index.h"
#include "a2l2json/model/tree.h"
#include "a2l2json/model/version.h"
#include "a2l2json/reader/a2l_reader.h"
#include "a2l2json/reader/read.h"
