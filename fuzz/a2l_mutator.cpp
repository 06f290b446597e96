// SPDX-License-Identifier: MIT
#include "fuzz/a2l_mutator.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "tests/generator/generator.h"
#include "tests/generator/grammar.h"
#include "tests/generator/random.h"
#include "tests/generator/values.h"

namespace a2l::fuzz {
namespace {

using Lines = std::vector<std::string>;

// The lines, each with its line end.
Lines Split(std::string_view text) {
  Lines lines;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size() - 1) + 1;
    lines.emplace_back(text.substr(0, end));
    text.remove_prefix(end);
  }
  if (lines.empty()) lines.emplace_back();
  return lines;
}

class Mutation {
 public:
  Mutation(Lines lines, std::uint64_t seed) : random_(seed), lines_(std::move(lines)) {}

  Lines Apply() {
    switch (random_.Below(12)) {
      case 0:
      case 1:
        Insert(AnyLines());
        break;
      case 2:
        Insert(AnyLine());
        break;
      case 3: {
        const auto [begin, end] = AnyRange();
        const Lines range(begin, end);
        lines_.insert(AnyPlace(), range.begin(), range.end());
        break;
      }
      case 4: {
        const auto [begin, end] = AnyRange();
        lines_.erase(begin, end);
        break;
      }
      case 5:
        std::swap(AnyOldLine(), AnyOldLine());
        break;
      case 6: {
        const auto [begin, end] = AnyRange();
        std::rotate(begin, begin + (end - begin) / 2, end);
        break;
      }
      case 7:
        Break(AnyOldLine());
        break;
      case 8: {
        std::string& line = AnyOldLine();
        while (line.ends_with('\n') || line.ends_with('\r')) line.pop_back();
        line += random_.OneIn(2) ? " " : "";
        break;
      }
      default:
        ReplaceToken(AnyOldLine());
    }
    return std::move(lines_);
  }

 private:
  Lines::iterator AnyPlace() {
    return lines_.begin() + static_cast<std::ptrdiff_t>(random_.Below(lines_.size() + 1));
  }
  std::string& AnyOldLine() { return lines_[random_.Below(lines_.size())]; }

  std::pair<Lines::iterator, Lines::iterator> AnyRange() {
    const std::size_t size = 1 + random_.Below(random_.OneIn(2) ? 2 : lines_.size());
    const std::size_t begin = random_.Below(lines_.size());
    const std::size_t end = std::min(begin + size, lines_.size());
    return {lines_.begin() + static_cast<std::ptrdiff_t>(begin),
            lines_.begin() + static_cast<std::ptrdiff_t>(end)};
  }

  void Insert(const std::string& text) { lines_.insert(AnyPlace(), text); }

  // A whole block or property with everything in it.
  std::string AnyLines() {
    return test::GenerateLines(random_.Pick(test::Grammar()).text, random_.Next());
  }

  // One line, which begins or ends a block, or is a property.
  std::string AnyLine() {
    const test::Keyword& keyword = random_.Pick(test::Grammar());
    constexpr const char* kMarkers[] = {"/begin ", "/end ", "", "/begin", "/end"};
    std::string line = random_.Pick(kMarkers);
    line += keyword.text;
    for (const test::Parameter& parameter : keyword.parameters) {
      if (random_.OneIn(12)) break;
      line += " " + test::MakeValue(parameter, random_).token;
    }
    return line + (random_.OneIn(4) ? "\r\n" : "\n");
  }

  std::string AnyToken() {
    constexpr const char* kTokens[] = {
        "/begin",    "/end", "\"",  "\"\"",       "\\\"",       "//",           "/*",      "*/",
        "0",         "-1",   "0x",  "4294967295", "1073741823", "nan",          "-1e+309", "\t",
        "\r",        "",     "\\",  "\"a b",      "\xE2",       "\xE2\x80\xA8", "1e-320",  "077",
        "PLONGLONG", "zz",   "/be", "gin",        "'",          R"("\\")"};
    switch (random_.Below(4)) {
      case 0:
        return std::string(random_.Pick(test::Grammar()).text);
      case 1: {
        const test::Keyword& keyword = random_.Pick(test::Grammar());
        if (!keyword.parameters.empty()) {
          return test::MakeValue(random_.Pick(keyword.parameters), random_).token;
        }
        break;
      }
      default:
        break;
    }
    return random_.Pick(kTokens);
  }

  // Where the words of a line begin.
  static std::vector<std::size_t> WordsOf(const std::string& line) {
    std::vector<std::size_t> words;
    for (std::size_t i = 0; i < line.size(); ++i) {
      const bool isFirst = i == 0 || line[i - 1] == ' ';
      if (isFirst && line[i] != ' ' && line[i] != '\r' && line[i] != '\n') words.push_back(i);
    }
    return words;
  }

  void Break(std::string& line) {
    const std::vector<std::size_t> words = WordsOf(line);
    if (!words.empty()) line.insert(random_.Pick(words), random_.OneIn(4) ? "\r\n" : "\n");
  }

  void ReplaceToken(std::string& line) {
    const std::vector<std::size_t> words = WordsOf(line);
    if (words.empty()) {
      line.insert(0, AnyToken());
      return;
    }
    const std::size_t begin = random_.Pick(words);
    const std::size_t size = std::min(line.find_first_of(" \r\n", begin), line.size()) - begin;
    // Instead of the word, or before it, with or without a blank.
    const bool replaces = random_.OneIn(2);
    line.replace(begin, replaces ? size : 0,
                 AnyToken() + (replaces || random_.OneIn(3) ? "" : " "));
  }

  test::Random random_;
  Lines lines_;
};

}  // namespace

std::string Mutated(std::string_view text, std::uint64_t seed, std::size_t mostBytes) {
  std::string mutated;
  for (const std::string& line : Mutation(Split(text), seed).Apply()) mutated += line;
  mutated.resize(std::min(mutated.size(), mostBytes));
  return mutated;
}

}  // namespace a2l::fuzz
