// SPDX-License-Identifier: MIT
#include "app/mend/encoding.h"

#include <algorithm>
#include <array>
#include <span>

#if defined(A2LMEND_HAS_ICONV)
#include <cerrno>

#include <iconv.h>
#elif defined(_WIN32)
#include <charconv>

#include <windows.h>
#endif

#include "a2l2json/mend/encodings.h"

namespace a2l {
namespace {

// The name without what its spellings differ in: ISO-8859-1, iso_8859-1, ISO8859-1.
std::string Simplified(std::string_view name) {
  std::string simple;
  for (const char c : name) {
    if (c == '-' || c == '_' || c == ' ') continue;
    simple += c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
  }
  return simple;
}

// ---------------------------------------------------------------------------------------------
// Our own: the ones that most A2L files outside of UTF-8 are in. The iconv of a program that is
// linked statically reads its tables from files, which need not be there.

// A byte that is not the character of its own number; 0 for none.
struct Replaced {
  unsigned char byte;
  char16_t character;
};

struct OwnEncoding {
  /// Simplified.
  std::array<std::string_view, 4> names;
  std::span<const Replaced> replaced;
};

constexpr std::array kLatin9 = {
    Replaced{0xA4, 0x20AC}, Replaced{0xA6, 0x0160}, Replaced{0xA8, 0x0161}, Replaced{0xB4, 0x017D},
    Replaced{0xB8, 0x017E}, Replaced{0xBC, 0x0152}, Replaced{0xBD, 0x0153}, Replaced{0xBE, 0x0178}};
constexpr std::array kWindows1252 = {
    Replaced{0x80, 0x20AC}, Replaced{0x81, 0},      Replaced{0x82, 0x201A}, Replaced{0x83, 0x0192},
    Replaced{0x84, 0x201E}, Replaced{0x85, 0x2026}, Replaced{0x86, 0x2020}, Replaced{0x87, 0x2021},
    Replaced{0x88, 0x02C6}, Replaced{0x89, 0x2030}, Replaced{0x8A, 0x0160}, Replaced{0x8B, 0x2039},
    Replaced{0x8C, 0x0152}, Replaced{0x8D, 0},      Replaced{0x8E, 0x017D}, Replaced{0x8F, 0},
    Replaced{0x90, 0},      Replaced{0x91, 0x2018}, Replaced{0x92, 0x2019}, Replaced{0x93, 0x201C},
    Replaced{0x94, 0x201D}, Replaced{0x95, 0x2022}, Replaced{0x96, 0x2013}, Replaced{0x97, 0x2014},
    Replaced{0x98, 0x02DC}, Replaced{0x99, 0x2122}, Replaced{0x9A, 0x0161}, Replaced{0x9B, 0x203A},
    Replaced{0x9C, 0x0153}, Replaced{0x9D, 0},      Replaced{0x9E, 0x017E}, Replaced{0x9F, 0x0178}};
constexpr std::array kOwn = {
    OwnEncoding{{"ISO88591", "LATIN1", "L1", "ISO88591:1987"}, {}},
    OwnEncoding{{"ISO885915", "LATIN9", "ISO885915:1998", "ISO885915:1999"}, kLatin9},
    OwnEncoding{{"WINDOWS1252", "CP1252", "MSANSI", "1252"}, kWindows1252},
};

const OwnEncoding* OwnEncodingOf(std::string_view name) {
  const std::string simple = Simplified(name);
  const auto* const found = std::ranges::find_if(kOwn, [&simple](const OwnEncoding& own) {
    return std::ranges::find(own.names, simple) != own.names.end();
  });
  return found == kOwn.end() ? nullptr : found;
}

Converted FromOwn(const OwnEncoding& own, std::string_view bytes) {
  std::array<char16_t, 256> characters{};
  for (std::size_t i = 0; i < characters.size(); ++i) characters[i] = static_cast<char16_t>(i);
  for (const Replaced& replaced : own.replaced) characters[replaced.byte] = replaced.character;
  Converted converted;
  std::string& text = converted.text;
  text.reserve(bytes.size() + bytes.size() / 8);
  for (const char c : bytes) {
    const char16_t character = characters[static_cast<unsigned char>(c)];
    if (character == 0 && c != '\0') return converted;
    mending::AppendUtf8(text, character);
    ++converted.good;
  }
  converted.isDone = true;
  return converted;
}

// ---------------------------------------------------------------------------------------------
// Those of the system

#if defined(A2LMEND_HAS_ICONV)

class Converter {
 public:
  explicit Converter(const std::string& name) : handle_(iconv_open("UTF-8", name.c_str())) {}
  ~Converter() {
    if (IsOpen()) iconv_close(handle_);
  }
  Converter(const Converter&) = delete;
  Converter& operator=(const Converter&) = delete;

  // What iconv_open gives for a failure is no pointer.
  [[nodiscard]] bool IsOpen() const {
    return handle_ != reinterpret_cast<iconv_t>(-1);  // NOLINT(*-int-to-ptr)
  }
  [[nodiscard]] iconv_t Handle() const { return handle_; }

 private:
  iconv_t handle_;
};

bool SystemKnows(const std::string& name) { return Converter(name).IsOpen(); }

Converted FromSystem(const std::string& name, std::string_view bytes) {
  Converted converted;
  const Converter converter(name);
  if (!converter.IsOpen()) return converted;
  constexpr auto kFailed = static_cast<std::size_t>(-1);
  converted.text.reserve(bytes.size() + bytes.size() / 8);
  std::array<char, 65536> piece{};
  // It takes bytes that it does not change by a pointer to bytes that may change.
  char* in = const_cast<char*>(bytes.data());  // NOLINT(*-const-cast)
  std::size_t left = bytes.size();
  while (true) {
    char* out = piece.data();
    std::size_t room = piece.size();
    const bool isLast = left == 0;
    const std::size_t result =
        iconv(converter.Handle(), isLast ? nullptr : &in, isLast ? nullptr : &left, &out, &room);
    converted.text.append(piece.data(), piece.size() - room);
    converted.good = bytes.size() - left;
    if (result == kFailed && errno != E2BIG) return converted;
    converted.isDone = result != kFailed && isLast;
    if (converted.isDone) return converted;
  }
}

#elif defined(_WIN32)

// Encodings in which ASCII is ASCII, so that lines can be converted one by one.
struct CodePage {
  std::string_view name;  // simplified
  UINT number;
};
constexpr std::array kCodePages = {
    CodePage{"UTF8", CP_UTF8}, CodePage{"SHIFTJIS", 932}, CodePage{"SJIS", 932},
    CodePage{"GBK", 936},      CodePage{"GB2312", 936},   CodePage{"GB18030", 54936},
    CodePage{"BIG5", 950},     CodePage{"EUCKR", 949},    CodePage{"EUCJP", 20932},
    CodePage{"KOI8R", 20866},  CodePage{"ASCII", 20127},  CodePage{"USASCII", 20127},
};

// The number that follows `prefix` in the name; 0 where there is none.
UINT NumberBehind(std::string_view prefix, std::string_view name) {
  UINT number = 0;
  if (!name.starts_with(prefix)) return 0;
  name.remove_prefix(prefix.size());
  const auto [end, error] = std::from_chars(name.data(), name.data() + name.size(), number);
  return error == std::errc() && end == name.data() + name.size() ? number : 0;
}

// 0 for none.
UINT CodePageOf(std::string_view name) {
  const std::string simple = Simplified(name);
  for (const CodePage& page : kCodePages) {
    if (page.name == simple) return page.number;
  }
  UINT number = std::max(NumberBehind("CP", simple), NumberBehind("WINDOWS", simple));
  const UINT part = NumberBehind("ISO8859", simple);
  if (part > 0 && part < 16) number = 28590 + part;
  // UTF-16 and UTF-7 have no ASCII.
  return number < 65000 && IsValidCodePage(number) != 0 ? number : 0;
}

bool SystemKnows(const std::string& name) { return CodePageOf(name) != 0; }

bool AppendLine(UINT page, std::string_view line, std::string& text) {
  if (std::ranges::all_of(line, [](char c) { return static_cast<unsigned char>(c) < 0x80; })) {
    text += line;
    return true;
  }
  const auto size = static_cast<int>(line.size());
  std::wstring wide(line.size(), L'\0');
  const int count = MultiByteToWideChar(page, MB_ERR_INVALID_CHARS, line.data(), size, wide.data(),
                                        static_cast<int>(wide.size()));
  if (count <= 0) return false;
  std::string utf8(static_cast<std::size_t>(count) * 3, '\0');
  const int bytes = WideCharToMultiByte(CP_UTF8, 0, wide.data(), count, utf8.data(),
                                        static_cast<int>(utf8.size()), nullptr, nullptr);
  text.append(utf8, 0, static_cast<std::size_t>(bytes));
  return bytes > 0;
}

Converted FromSystem(const std::string& name, std::string_view bytes) {
  // Windows takes no more at once, and no line is as long.
  constexpr std::size_t kLongest = std::size_t{1} << 28;
  const UINT page = CodePageOf(name);
  Converted converted;
  if (page == 0) return converted;
  converted.text.reserve(bytes.size() + bytes.size() / 8);
  while (converted.good < bytes.size()) {
    const std::size_t end =
        std::min(bytes.find('\n', converted.good), bytes.size() - 1) + 1 - converted.good;
    const std::string_view line = bytes.substr(converted.good, end);
    if (line.size() > kLongest || !AppendLine(page, line, converted.text)) return converted;
    converted.good += end;
  }
  converted.isDone = true;
  return converted;
}

#else

bool SystemKnows(const std::string& /*name*/) { return false; }

Converted FromSystem(const std::string& /*name*/, std::string_view /*bytes*/) { return {}; }

#endif

}  // namespace

bool KnowsEncoding(const std::string& name) {
  return OwnEncodingOf(name) != nullptr || SystemKnows(name);
}

Converted ToUtf8(const std::string& name, std::string_view bytes) {
  const OwnEncoding* const own = OwnEncodingOf(name);
  return own != nullptr ? FromOwn(*own, bytes) : FromSystem(name, bytes);
}

}  // namespace a2l
