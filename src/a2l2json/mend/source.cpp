// SPDX-License-Identifier: MIT
#include "a2l2json/mend/source.h"

#include <algorithm>

#include "a2l2json/model/keywords.h"
#include "a2l2json/text/tokenizer.h"

namespace a2l::mending {
namespace {

// True where a line begins with a marker and the keyword of a block, which no text would.
bool BeginsWithBlock(std::string_view line, std::string_view keyword) {
  std::size_t i = 0;
  while (i < line.size() && (line[i] == ' ' || line[i] == '\t')) ++i;
  line.remove_prefix(i);
  const std::string_view marker = line.starts_with(kBegin) ? kBegin : kEnd;
  if (!line.starts_with(marker)) return false;
  line.remove_prefix(marker.size());
  std::size_t begin = 0;
  while (begin < line.size() && IsWhite(line[begin])) ++begin;
  std::size_t end = begin;
  // No keyword is as long.
  while (end < line.size() && end - begin < 64 && !IsWhite(line[end]) && line[end] != '/') ++end;
  if (begin == 0) return false;
  const bool isGiven = !keyword.empty() && line.substr(begin).starts_with(keyword);
  return isGiven || IsBlock(KeywordToKind(line.substr(begin, end - begin)));
}

// True where the first quote from `begin` on looks like one that closes a text, and not like one
// that opens the next: a word ends at it, and none begins.
bool IsClosedBehind(std::string_view text, std::size_t begin) {
  const char* const end = text.data() + text.size();
  for (std::size_t i = begin;; ++i) {
    i = static_cast<std::size_t>(bytes::Find<'"', '\\'>(text.data() + i, end) - text.data());
    if (i == text.size()) return false;
    const char next = i + 1 < text.size() ? text[i + 1] : '\n';
    const bool isPair = text[i] == '"' ? next == '"' : next == '\\' || next == '"';
    if (isPair) ++i;
    if (text[i] == '"' && !isPair) return !IsWhite(text[i - 1]) && IsWhite(next);
  }
}

}  // namespace

Source MakeSource(std::string_view text, std::string_view name, std::string_view path) {
  Source source;
  source.text = text;
  source.name = name;
  source.path = path;
  return source;
}

const char* FindEndOfWord(const char* begin, const char* end) {
  using bytes::Block;
  const auto found = [](const Block& block) {
    return bytes::Bits(block.Below(' ' + 1) | block.Equal('/') | block.Equal('"'));
  };
  for (; static_cast<std::size_t>(end - begin) >= bytes::kBlock; begin += bytes::kBlock) {
    if (const auto bits = found(Block::Load(begin))) return begin + bytes::FirstBit(bits);
  }
  const auto left = static_cast<std::size_t>(end - begin);
  // Zeros stand behind a part of a block, and are found as well.
  const auto bits = found(Block::LoadPart(begin, left));
  return bits != 0 ? std::min(begin + bytes::FirstBit(bits), end) : end;
}

void SkipWhite(Source& source) {
  const std::string_view text = source.text;
  std::size_t i = source.position;
  for (; i < text.size() && IsWhite(text[i]); ++i) {
    if (text[i] != '\n') continue;
    source.position = i;
    source.EndLine();
    // Most lines are indented.
    const char* const behind = text.data() + i + 1;
    i = static_cast<std::size_t>(bytes::SkipAll<' '>(behind, text.data() + text.size()) -
                                 text.data()) -
        1;
  }
  source.position = i;
}

bool SkipComment(Source& source) {
  if (source.text[source.position + 1] == '/') {
    source.position = std::min(source.text.find('\n', source.position), source.text.size());
    return true;
  }
  for (source.position += 2; !source.AtEnd(); ++source.position) {
    const char c = source.text[source.position];
    if (c == '*' && source.Rest().starts_with("*/")) {
      source.position += 2;
      return true;
    }
    if (c == '\n') {
      // What follows the comment joins the line that it began on.
      const bool atLineStart = source.atLineStart;
      source.EndLine();
      source.atLineStart = atLineStart;
    }
  }
  return false;
}

TextTraits SkipText(Source& source, std::string_view keyword) {
  TextTraits traits;
  bool mayBeOpen = true;
  source.atLineStart = false;
  const std::string_view text = source.text;
  std::size_t& i = source.position;
  ++i;
  while (true) {
    source.MoveTo<'"', '\\', '/', '\n'>();
    if (i == text.size()) break;
    const char c = text[i];
    if (c == '"') {
      if (i + 1 >= text.size() || text[i + 1] != '"') {
        ++i;
        return traits;
      }
      i += 2;
    } else if (c == '\\') {
      std::size_t count = 1;
      while (i + count < text.size() && text[i + count] == '\\') ++count;
      i += count;
      if (i < text.size() && text[i] == '"') {
        if (count % 2 == 0) {
          traits.hasBackslashQuote = true;
        } else {
          ++i;
        }
      }
    } else if (c == '/') {
      const std::string_view rest = text.substr(i, kBegin.size());
      if (rest.starts_with(kBegin) || rest.starts_with(kEnd)) traits.hasMarker = true;
      if (source.HasComment()) {
        traits.hasCommentSign = true;
        traits.hasComment = traits.hasComment || traits.hasLineEnd;
      }
      ++i;
    } else {
      if (c == '\n') {
        if (mayBeOpen && BeginsWithBlock(text.substr(i + 1), keyword)) {
          traits.isClosed = keyword.empty() && IsClosedBehind(text, i + 1);
          if (!traits.isClosed) return traits;
          mayBeOpen = false;
        }
        std::size_t last = i - 1;
        while (!traits.hasLineEnd && IsTrimmed(text[last])) --last;
        traits.hasWhiteFirstEnd = traits.hasWhiteFirstEnd || last != i - 1;
        const bool isEven = !IsWhite(text[last]) && i + 1 < text.size() && !IsWhite(text[i + 1]);
        traits.hasUnevenLines = traits.hasUnevenLines || !isEven;
        traits.hasLineEnd = true;
        source.EndLine();
        source.atLineStart = false;
      }
      ++i;
    }
  }
  traits.isClosed = false;
  return traits;
}

}  // namespace a2l::mending
