// SPDX-License-Identifier: MIT
//
// A tree, written as A2L text, and read again: the same text comes of it, and the same document,
// wherever that is promised. Everywhere else, what was written can at least be read to some end.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "export/json_writer.h"
#include "fuzz/check.h"
#include "fuzz/reading.h"
#include "fuzz/round_trips.h"

namespace a2l::fuzz {
namespace {

void CheckRoundTrip(std::string_view bytes) {
  const Reading first = Read(bytes);
  const bool roundTrips = RoundTrips(*first.root);
  const std::string json = ToJson(*first.root);
  const std::string written = Written(*first.root);
  const Reading second = Read(written);
  const std::string again = Written(*second.root);
  if (!roundTrips) return;
  Check(second.ok, "what was written can be read");
  CheckSame(again, written, "the text of the second round");
  // A message means that something was not understood or not valid, and the text does not say so.
  if (first.reader.message.empty() && IsWrittenWhole(*first.root)) {
    CheckSame(ToJson(*second.root), json, "the document of the second round");
  }
}

}  // namespace
}  // namespace a2l::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  a2l::fuzz::CheckRoundTrip(a2l::fuzz::Input(data, size, 65536));
  return 0;
}
