// SPDX-License-Identifier: MIT
//
// Prints the words of the format for libFuzzer to put together: the keywords, the words of the
// enumerations, and what else stands in files.
#include <iostream>
#include <set>
#include <string>
#include <string_view>

#include "a2l2json/elements/declarations.h"
#include "a2l2json/model/keywords.h"

namespace a2l {
namespace {

constexpr ElementKind kKinds[] = {
#define A2L_KEYWORD(number, keyword, Class) ElementKind::keyword,
#include "a2l2json/model/keywords.def"
};

// As libFuzzer reads them: a backslash before backslashes and quotes, and bytes in hexadecimal.
constexpr std::string_view kOthers[] = {
    "/begin ",
    "/end ",
    "/begin",
    "/end",
    "//",
    "/*",
    "*/",
    R"(\"\")",
    R"(\\\")",
    R"(\\n)",
    R"(\x0D\x0A)",
    R"(\x0A)",
    R"(\x09)",
    "0x",
    "4294967295",
    "-2147483648",
    "1e+308",
    "nan",
    "inf",
    R"(\xE2\x80\xA8)",
    R"(\xE2\x80\xA9)",
};

std::set<std::string_view> Words() {
  std::set<std::string_view> words(std::begin(kOthers), std::end(kOthers));
  for (const ElementKind kind : kKinds) {
    words.insert(KindToKeyword(kind));
    const detail::Declaration* declaration = detail::DeclarationOf(kind);
    if (declaration == nullptr) continue;
    for (const detail::Parameter& parameter : declaration->parameters) {
      if (parameter.words == nullptr) continue;
      for (const Word& word : parameter.words->words) words.insert(word.text);
    }
  }
  return words;
}

}  // namespace
}  // namespace a2l

int main() {
  for (const std::string_view word : a2l::Words()) std::cout << '"' << word << "\"\n";
  return std::cout.flush() ? 0 : 1;
}
