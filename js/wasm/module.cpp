// SPDX-License-Identifier: MIT
//
// What the module shows to JavaScript besides the functions of the C interface that look at a
// result. The document goes out piece by piece, so that it is never in the module's memory as a
// whole. A module converts once: its memory goes with it.
#include <cstddef>
#include <cstdlib>
#include <new>

#include "capi/a2l2json.h"

#define A2L2JSON_FROM_JAVASCRIPT(name) __attribute__((import_module("a2l2json"), import_name(name)))
#define A2L2JSON_TO_JAVASCRIPT(name) __attribute__((export_name(name)))

extern "C" {

// Takes a piece of the document; anything but 0 ends the conversion.
A2L2JSON_FROM_JAVASCRIPT("write") int TakePiece(const char* bytes, std::size_t size);

// Throws in JavaScript, and does not return. Otherwise the call would end without a reason.
A2L2JSON_FROM_JAVASCRIPT("outOfMemory") void OutOfMemory();

// Room for the text; null where there is none.
A2L2JSON_TO_JAVASCRIPT("allocate") void* Allocate(std::size_t size);

// Converts the text; `name` is what to call it.
A2L2JSON_TO_JAVASCRIPT("convert")
a2l2json_result* Convert(const char* text, std::size_t size, const char* name, int mend);
}

void* Allocate(std::size_t size) { return std::malloc(size); }

a2l2json_result* Convert(const char* text, std::size_t size, const char* name, int mend) {
  std::set_new_handler(OutOfMemory);
  a2l2json_options options = A2L2JSON_OPTIONS_INIT;
  options.mend = mend;
  options.name = name;
  options.write = [](void* /*context*/, const char* bytes, std::size_t count) {
    return TakePiece(bytes, count);
  };
  a2l2json_result* result = nullptr;
  a2l2json_convert_text(text, size, &options, &result);
  return result;
}
