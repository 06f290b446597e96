// SPDX-License-Identifier: MIT
//
// Writes a tree as A2L text and reads that again. The second tree must give the same text and the
// same document. Elements for which this is not promised are removed first.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "a2l2json/export/json_writer.h"
#include "fuzz/check.h"
#include "fuzz/reading.h"
#include "fuzz/round_trips.h"

namespace a2l::fuzz {
namespace {

void CheckRoundTrip(std::string_view bytes) {
  Reading first = Read(bytes);
  const bool roundTrips = RoundTrips(*first.root);
  const std::string whole = Written(*first.root);
  KeepWhatRoundTrips(*first.root);
  Check(RoundTrips(*first.root), "what is left round-trips");
  const std::string written = Written(*first.root);
  if (roundTrips) CheckSame(written, whole, "the text without what is not written");
  Reading second = Read(written);
  Check(second.ok, "what was written can be read");
  CheckSame(second.reader.message, "", "the messages of the second round");
  CheckSame(Written(*second.root), written, "the text of the second round");
  CheckSame(ToJson(*second.root), ToJson(*first.root), "the document of the second round");
}

}  // namespace
}  // namespace a2l::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  a2l::fuzz::CheckRoundTrip(a2l::fuzz::Input(data, size, 65536));
  return 0;
}
