// SPDX-License-Identifier: MIT
#include "a2l2json/model/value_sets.h"

#include <algorithm>

namespace a2l {

const Word* WordTable::Find(std::string_view token) const {
  const auto found = std::ranges::find_if(
      words, [token](const Word& word) { return token.find(word.text) != std::string_view::npos; });
  return found != words.end() ? &*found : nullptr;
}

std::uint32_t WordTable::FromText(std::string_view token) const {
  const Word* word = Find(token);
  return word != nullptr ? word->code : fallback;
}

std::string_view WordTable::ToText(std::uint32_t code) const {
  const auto found = std::ranges::find(words, code, &Word::code);
  return found != words.end() ? found->text : std::string_view{};
}

DataType DataTypeFromText(std::string_view text) { return words::kDataType.FromText(text); }
IndexOrder IndexOrderFromText(std::string_view text) { return words::kIndexOrder.FromText(text); }
AddrType AddrTypeFromText(std::string_view text) { return words::kAddrType.FromText(text); }

std::string_view DataTypeToText(DataType code) { return words::kDataType.ToText(code); }
std::string_view IndexOrderToText(IndexOrder code) { return words::kIndexOrder.ToText(code); }
std::string_view AddrTypeToText(AddrType code) { return words::kAddrType.ToText(code); }
std::string_view DataSizeToText(DataSize code) { return words::kDataSize.ToText(code); }

}  // namespace a2l
