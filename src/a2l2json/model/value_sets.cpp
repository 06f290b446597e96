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

namespace {

template <class Enumeration>
Enumeration FromText(std::string_view text) {
  return static_cast<Enumeration>(detail::kWordTable<Enumeration>->FromText(text));
}

template <class Enumeration>
std::string_view ToText(Enumeration value) {
  return detail::kWordTable<Enumeration>->ToText(static_cast<std::uint32_t>(value));
}

}  // namespace

DataType DataTypeFromText(std::string_view text) { return FromText<DataType>(text); }
IndexOrder IndexOrderFromText(std::string_view text) { return FromText<IndexOrder>(text); }
AddrType AddrTypeFromText(std::string_view text) { return FromText<AddrType>(text); }

std::string_view DataTypeToText(DataType value) { return ToText(value); }
std::string_view IndexOrderToText(IndexOrder value) { return ToText(value); }
std::string_view AddrTypeToText(AddrType value) { return ToText(value); }
std::string_view DataSizeToText(DataSize value) { return ToText(value); }

}  // namespace a2l
