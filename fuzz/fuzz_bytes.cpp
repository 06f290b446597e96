// SPDX-License-Identifier: MIT
//
// Compares the searches and copies of bytes, and what uses them, with plain loops.
#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "a2l2json/export/json_text.h"
#include "a2l2json/model/keywords.h"
#include "a2l2json/text/bytes.h"
#include "a2l2json/text/growing_text.h"
#include "fuzz/check.h"

namespace a2l::fuzz {
namespace {

// Each text lies in memory of its own, so that a read beyond its end is found.
using Bytes = std::vector<char>;

template <char... kBytes>
void CheckFind(const Bytes& text) {
  const char* const end = text.data() + text.size();
  const auto* const first =
      std::find_if(text.data(), end, [](char c) { return ((c == kBytes) || ...); });
  CheckSame(static_cast<std::size_t>(bytes::Find<kBytes...>(text.data(), end) - text.data()),
            static_cast<std::size_t>(first - text.data()), "Find");
}

void CheckSkipAll(const Bytes& text) {
  std::size_t skipped = 0;
  while (skipped < text.size() / bytes::kBlock * bytes::kBlock && text[skipped] == ' ') ++skipped;
  const char* const begin = text.data();
  CheckSame(static_cast<std::size_t>(bytes::SkipAll<' '>(begin, begin + text.size()) - begin),
            skipped, "SkipAll");
}

// A padded text is the same with any bytes behind it.
template <char... kBytes>
void CheckFindPadded(const Bytes& text) {
  for (const char behind : {kBytes..., 'x'}) {
    Bytes padded = text;
    padded.resize(text.size() + bytes::kBlock, behind);
    const char* const begin = padded.data();
    const char* const end = begin + text.size();
    const auto* const first =
        std::find_if(begin, end, [](char c) { return ((c == kBytes) || ...); });
    CheckSame(static_cast<std::size_t>(bytes::FindPadded<kBytes...>(begin, end) - begin),
              static_cast<std::size_t>(first - begin), "FindPadded");
  }
}

void CheckCopy(const Bytes& text) {
  Bytes copy(text.size());
  bytes::Copy(copy.data(), text.data(), text.size());
  CheckSame(std::string_view(copy.data(), copy.size()), std::string_view(text.data(), text.size()),
            "Copy");
}

void CheckKeyword(std::string_view text) {
  ElementKind kind = KIND_UNKNOWN;
  for (const std::int32_t number : detail::kKeywordNumbers) {
    if (KindToKeyword(ElementKind{number}) == text) kind = ElementKind{number};
  }
  Check(KeywordToKind(text) == kind, "the kind of a keyword");
  Bytes padded(text.begin(), text.end());
  padded.resize(text.size() + bytes::kBlock, 'A');
  Check(PaddedKeywordToKind({padded.data(), text.size()}) == kind, "that of a padded keyword");
}

void CheckGrowingText(const Bytes& text) {
  GrowingText grown;
  std::string expected;
  for (std::size_t begin = 0; begin < text.size();) {
    const std::size_t size =
        std::min<std::size_t>(static_cast<unsigned char>(text[begin]) % 40, text.size() - begin);
    const Bytes line(text.begin() + static_cast<std::ptrdiff_t>(begin),
                     text.begin() + static_cast<std::ptrdiff_t>(begin + size));
    grown.Append(text[begin], {line.data(), line.size()});
    expected.append(1, text[begin]).append(line.data(), line.size());
    begin += size + 1;
  }
  CheckSame(grown.View(), expected, "GrowingText");
}

std::string Escaped(std::string_view text) {
  std::string json = "\"";
  for (std::size_t i = 0; i < text.size(); ++i) {
    constexpr std::string_view kLetters = "\"\"\\\\\bb\ff\nn\rr\tt";
    const std::string_view three = text.substr(i, 3);
    std::size_t letter = 0;
    while (letter < kLetters.size() && kLetters[letter] != text[i]) letter += 2;
    if (three == "\xE2\x80\xA8" || three == "\xE2\x80\xA9") {
      json += three.back() == '\xA8' ? "\\u2028" : "\\u2029";
      i += 2;
    } else if (letter < kLetters.size()) {
      json += {'\\', kLetters[letter + 1]};
    } else if (static_cast<unsigned char>(text[i]) < 0x20) {
      constexpr std::string_view kDigits = "0123456789abcdef";
      const auto byte = static_cast<unsigned char>(text[i]);
      json += {'\\', 'u', '0', '0', kDigits[byte / 16U], kDigits[byte % 16U]};
    } else {
      json += text[i];
    }
  }
  return json + '"';
}

void CheckEscapes(const Bytes& text) {
  std::string json;
  JsonText writer([&json](std::string_view piece) { json += piece; });
  writer.String({text.data(), text.size()});
  writer.Flush();
  CheckSame(json, Escaped({text.data(), text.size()}), "String");
}

void CheckBytes(std::string_view input) {
  // The first byte says where the text begins, so that the same bytes occur at every place.
  const std::size_t skipped =
      input.empty() ? 0 : std::min<std::size_t>(static_cast<unsigned char>(input[0]), input.size());
  const Bytes text(input.begin() + static_cast<std::ptrdiff_t>(skipped), input.end());
  CheckFind<' '>(text);
  CheckFind<' ', '"'>(text);
  CheckFind<'"', '\\', '\xFF'>(text);
  CheckSkipAll(text);
  CheckFindPadded<' '>(text);
  CheckFindPadded<'"', '\n'>(text);
  CheckCopy(text);
  CheckEscapes(text);
  CheckGrowingText(text);
  CheckKeyword({text.data(), text.size()});
}

}  // namespace
}  // namespace a2l::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  a2l::fuzz::CheckBytes(a2l::fuzz::Input(data, size, 1024));
  return 0;
}
