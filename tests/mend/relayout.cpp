// SPDX-License-Identifier: MIT
#include "tests/mend/relayout.h"

#include <algorithm>
#include <cstddef>

namespace a2l::test {
namespace {

constexpr std::string_view kWhite = " \t\r\n\v\f";
constexpr std::string_view kSigns = ";,)}=";

bool IsWhite(char c) { return kWhite.find(c) != std::string_view::npos; }

std::size_t EndOfText(std::string_view text, std::size_t begin) {
  std::size_t end = begin + 1;
  while (end < text.size()) {
    if (text[end] == '\\' || text.substr(end).starts_with("\"\"")) {
      end += 2;
    } else if (text[end++] == '"') {
      break;
    }
  }
  return std::min(end, text.size());
}

std::size_t EndOfWord(std::string_view text, std::size_t begin) {
  std::size_t end = begin + 1;
  while (end < text.size() && !IsWhite(text[end]) && !text.substr(end).starts_with("//") &&
         !text.substr(end).starts_with("/*")) {
    ++end;
  }
  return end;
}

std::string Separator(std::size_t style, Random& random) {
  static const std::vector<std::string> kMixed = {" ",
                                                  "  ",
                                                  "\t",
                                                  "\n",
                                                  "\r\n",
                                                  " \t ",
                                                  "\n\t",
                                                  "\n  ",
                                                  " /* a comment */ ",
                                                  "/**/",
                                                  " // to the end\n",
                                                  "/* over\nlines */",
                                                  "// \"quote\n",
                                                  "\n\n",
                                                  "\f"};
  switch (style) {
    case 0:
      return " ";
    case 1:
      return "\n";
    case 2:
      return "\t";
    case 3:
      return random.OneIn(3) ? "\r\n" : " ";
    case 4:
      return random.OneIn(2) ? " /* c */ " : "// c\n";
    case 5:
      return random.OneIn(8) ? "\n" : " ";
    default:
      return random.Pick(kMixed);
  }
}

}  // namespace

std::vector<std::string_view> WordsOf(std::string_view text) {
  std::vector<std::string_view> words;
  std::size_t i = 0;
  while (i < text.size()) {
    const std::string_view rest = text.substr(i);
    if (IsWhite(rest[0])) {
      ++i;
    } else if (rest.starts_with("//")) {
      i = std::min(text.find('\n', i), text.size());
    } else if (rest.starts_with("/*")) {
      i = std::min(text.find("*/", i + 2), text.size() - 2) + 2;
    } else {
      const std::size_t end = rest[0] == '"' ? EndOfText(text, i) : EndOfWord(text, i);
      words.push_back(text.substr(i, end - i));
      i = end;
    }
  }
  return words;
}

std::string LaidOutAnew(std::string_view text, Random& random) {
  const std::size_t style = random.Below(8);
  std::string laidOut;
  const char* end = nullptr;
  for (const std::string_view word : WordsOf(text)) {
    // In interface text such a sign stands directly behind a quote, and belongs there.
    const bool belongsThere = end == word.data() && kSigns.find(word[0]) != std::string_view::npos;
    if (end != nullptr && !belongsThere) {
      const std::string separator = Separator(style, random);
      // A slash would make another comment of it.
      if (laidOut.ends_with('/') && separator.starts_with('/')) laidOut += ' ';
      laidOut += separator;
    }
    laidOut += word;
    end = word.data() + word.size();
  }
  return laidOut + "\n";
}

}  // namespace a2l::test
