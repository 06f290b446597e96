// SPDX-License-Identifier: MIT
//
// A program that has names of its own which are the library's, too: macros, some from <endian.h>
// and from the command line (VERSION is "1.0" there), and headers. Neither side is to notice the
// other.
#if __has_include(<endian.h>)
#include <endian.h>
#else
#define LITTLE_ENDIAN 1234
#define BIG_ENDIAN 4321
#define BYTE_ORDER LITTLE_ENDIAN
#endif
#define GROUP_NAME 0x80
#define ABSOLUTE 1
#define DIFFERENCE 11

#include <bit>
#include <iostream>
#include <string_view>

#include <a2l2json/a2l2json.h>

#include "elements/elements.h"
#include "export/json_writer.h"
#include "model/element.h"
#include "model/keywords.h"
#include "model/tree.h"
#include "reader/a2l_reader.h"
#include "reader/diagnostics.h"
#include "text/tokenizer.h"

#if BYTE_ORDER == LITTLE_ENDIAN
static_assert(std::endian::native == std::endian::little, "BYTE_ORDER is another's");
#elif BYTE_ORDER == BIG_ENDIAN
static_assert(std::endian::native == std::endian::big, "BYTE_ORDER is another's");
#else
#error "BYTE_ORDER is lost"
#endif
static_assert(std::string_view(VERSION) == "1.0", "VERSION is another's");
static_assert(GROUP_NAME == 0x80 && ABSOLUTE == 1 && DIFFERENCE == 11, "a macro is another's");
static_assert(BYTE_ORDER == LITTLE_ENDIAN || BYTE_ORDER == BIG_ENDIAN, "BYTE_ORDER is another's");

namespace {

constexpr std::string_view kText = R"(ASAP2_VERSION 1 71
/begin PROJECT P ""
/begin HEADER ""
VERSION "V2"
/end HEADER
/begin MODULE M ""
/begin MOD_COMMON ""
BYTE_ORDER MSB_LAST
/end MOD_COMMON
/begin GROUP G ""
/end GROUP
/end MODULE
/end PROJECT
)";

int failures = 0;

void Expect(bool condition, std::string_view what) {
  if (condition) return;
  std::cout << "not so: " << what << '\n';
  ++failures;
}

}  // namespace

int main() {
  const int own = OwnTree() + OwnElement() + OwnKeywords() + OwnA2lReader() + OwnDiagnostics() +
                  OwnJsonWriter() + OwnElements() + OwnTokenizer();
  Expect(own == 8, "its own headers are there");

  const a2l::ReadResult text = a2l::Read(kText);
  Expect(text.ok && text.diagnostics.empty(), "the text is read");
  for (const auto& order : a2l::Descendants<a2l::VoA2LElementByteOrder>(*text.tree)) {
    Expect(order.kind == a2l::ElementKind::BYTE_ORDER_, "a kind has a name that is no macro");
  }
  const auto* order = a2l::Descendants<a2l::VoA2LElementByteOrder>(*text.tree).First();
  Expect(order != nullptr && static_cast<int>(order->BYTE_ORDER_()) == 3, "so has a number");
  const auto* version = a2l::Descendants<a2l::VoA2LElementVersion>(*text.tree).First();
  Expect(version != nullptr && version->VERSION_() == "V2", "so has a text");
  const auto* group = a2l::FindByName<a2l::VoA2LElementGroup>(*text.tree, "G");
  Expect(group != nullptr && group->GROUP_NAME_() == "G", "so has a name");
  Expect(a2l::ToJson(*text.tree).find("\"FBYTE_ORDER\": \"MSB_LAST\"") != std::string::npos,
         "the document has them all");
  return failures;
}
