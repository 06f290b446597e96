// SPDX-License-Identifier: MIT
//
// The kinds of parameter that keywords have. An element class lists its parameters once, as
// values of these types in the order in which a file holds them:
//
//   static constexpr auto parameters =
//       Parameters(Identifier(&Self::NAME), Text(&Self::LONG_IDENTIFIER), Unsigned(&Self::SIZE));
//
// From the list follow the number of tokens the keyword waits for, how they are read, what
// makes them wrong, and the values of the lines that are written.
//
// Every kind has: kTokens, the tokens it takes; Read, which takes them off the text and stores
// the value, false when it is wrong (a number is then stored as 0); kPlaces and Append, the
// values it gives to format strings. A list takes all tokens that are left and has ForEachItem
// in place of the values.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <tuple>

#include "a2l2json/elements/declarations.h"
#include "a2l2json/model/element.h"
#include "a2l2json/model/tree_store.h"
#include "a2l2json/model/value_sets.h"
#include "a2l2json/text/a2l_text.h"
#include "a2l2json/text/numbers.h"
#include "a2l2json/text/tokenizer.h"

namespace a2l {

/// Identifiers are cut to this length.
inline constexpr std::size_t kMostIdentifierBytes = 1024;

/// The next token of `text` as an identifier: cut, its quotes (if any) kept.
inline std::string_view ReadIdentifier(TreeStore& store, std::string_view& text) {
  return store.Copy(NextToken(text).substr(0, kMostIdentifierBytes));
}

/// The next token of `text` without its quotes; empty when it is not quoted.
inline std::string_view ReadText(TreeStore& store, std::string_view& text) {
  const std::string_view token = NextToken(text);
  if (token.size() < 2 || token.front() != '"') return {};
  const std::string_view inside = token.substr(1, token.size() - 2);
  const bool plain =
      inside.find('"') == std::string_view::npos && inside.find('\\') == std::string_view::npos;
  if (token.back() == '"' && plain) return store.Copy(inside);
  char* const bytes = store.AllocateBytes(token.size());
  return {bytes, UnquoteInto(token, bytes)};
}

/// A name of an object.
template <class Self>
struct Identifier {
  std::string_view Self::*member;
  constexpr explicit Identifier(std::string_view Self::*field) : member(field) {}

  static constexpr std::uint32_t kTokens = 1;
  static constexpr std::size_t kPlaces = 1;
  constexpr detail::Parameter Describe() const {
    return {.type = detail::ParameterType::Identifier};
  }
  bool Read(Self& self, std::string_view& text) const {
    self.*member = ReadIdentifier(self.Store(), text);
    return true;
  }
  void Append(const Self& self, Arguments& arguments) const {
    arguments.emplace_back(std::string(self.*member));
  }
};

/// A text in double quotes; stored without them and written with them.
template <class Self>
struct Text {
  std::string_view Self::*member;
  constexpr explicit Text(std::string_view Self::*field) : member(field) {}

  static constexpr std::uint32_t kTokens = 1;
  static constexpr std::size_t kPlaces = 1;
  constexpr detail::Parameter Describe() const { return {.type = detail::ParameterType::Text}; }
  bool Read(Self& self, std::string_view& text) const {
    self.*member = ReadText(self.Store(), text);
    return true;
  }
  void Append(const Self& self, Arguments& arguments) const {
    arguments.emplace_back(Quote(self.*member));
  }
};

/// A text that is read in double quotes but written without them.
template <class Self>
struct UnquotedText : Text<Self> {
  using Text<Self>::Text;
  constexpr detail::Parameter Describe() const {
    return {.type = detail::ParameterType::UnquotedText};
  }
  void Append(const Self& self, Arguments& arguments) const {
    arguments.emplace_back(std::string(self.*(this->member)));
  }
};
template <class Self>
UnquotedText(std::string_view Self::*) -> UnquotedText<Self>;

namespace detail {
template <class Value>
inline constexpr ParameterType kTypeOf =
    std::is_same_v<Value, std::uint32_t>  ? ParameterType::Unsigned
    : std::is_same_v<Value, std::int32_t> ? ParameterType::Signed
    : std::is_same_v<Value, double>       ? ParameterType::Real
                                          : ParameterType::Unsigned64;
}  // namespace detail

/// A number, read by `kRead`.
template <class Self, class Value, Converted<Value> (*kRead)(std::string_view)>
struct NumberField {
  Value Self::*member;

  static constexpr std::uint32_t kTokens = 1;
  static constexpr std::size_t kPlaces = 1;
  constexpr detail::Parameter Describe() const { return {.type = detail::kTypeOf<Value>}; }
  bool Read(Self& self, std::string_view& text) const {
    const auto [value, ok] = kRead(NextToken(text));
    self.*member = value;
    return ok;
  }
  void Append(const Self& self, Arguments& arguments) const {
    if constexpr (std::is_same_v<Value, double>) {
      arguments.emplace_back(ShortestText(self.*member));
    } else {
      arguments.emplace_back(self.*member);
    }
  }
};

template <class Self>
constexpr auto Unsigned(std::uint32_t Self::*member) {
  return NumberField<Self, std::uint32_t, ReadUnsigned>{member};
}
template <class Self>
constexpr auto Signed(std::int32_t Self::*member) {
  return NumberField<Self, std::int32_t, ReadSigned>{member};
}
template <class Self>
constexpr auto Unsigned64(std::uint64_t Self::*member) {
  return NumberField<Self, std::uint64_t, ReadUnsigned64>{member};
}
template <class Self>
constexpr auto Real(double Self::*member) {
  return NumberField<Self, double, ReadReal>{member};
}

/// Several signed numbers in a row, ending at the first that is wrong.
template <class Self, std::size_t kCount>
struct SignedNumbers {
  std::array<std::int32_t, kCount> Self::*member;
  constexpr explicit SignedNumbers(std::array<std::int32_t, kCount> Self::*field) : member(field) {}

  static constexpr std::uint32_t kTokens = kCount;
  static constexpr std::size_t kPlaces = kCount;
  constexpr detail::Parameter Describe() const {
    return {.type = detail::ParameterType::Signed, .count = kCount};
  }
  bool Read(Self& self, std::string_view& text) const {
    for (std::int32_t& number : self.*member) {
      const auto [value, ok] = ReadSigned(NextToken(text));
      number = value;
      if (!ok) return false;
    }
    return true;
  }
  void Append(const Self& self, Arguments& arguments) const {
    for (const std::int32_t number : self.*member) arguments.emplace_back(number);
  }
};

/// A word of an enumeration, stored as its code. An unknown word is not wrong unless the word is
/// `required`; it is stored as the table's fallback.
template <class Self>
struct Choice {
  std::uint32_t Self::*member;
  const WordTable& table;
  bool required;
  constexpr Choice(std::uint32_t Self::*field, const WordTable& words, bool mustMatch = false)
      : member(field), table(words), required(mustMatch) {}

  static constexpr std::uint32_t kTokens = 1;
  static constexpr std::size_t kPlaces = 1;
  constexpr detail::Parameter Describe() const {
    return {.type = detail::ParameterType::Word, .isRequired = required, .words = &table};
  }
  bool Read(Self& self, std::string_view& text) const {
    const Word* word = table.Find(NextToken(text));
    self.*member = word != nullptr ? word->code : table.fallback;
    return word != nullptr || !required;
  }
  void Append(const Self& self, Arguments& arguments) const {
    arguments.emplace_back(std::string(table.ToText(self.*member)));
  }
};

/// A parameter that is read and checked, but not kept: the field keeps its value.
template <class Field>
struct Dropped : Field {
  constexpr explicit Dropped(Field field) : Field(field) {}

  constexpr detail::Parameter Describe() const {
    detail::Parameter parameter = Field::Describe();
    parameter.isDropped = true;
    return parameter;
  }
  template <class Self>
  bool Read(Self& self, std::string_view& text) const {
    const auto kept = self.*(this->member);
    const bool ok = Field::Read(self, text);
    self.*(this->member) = kept;
    return ok;
  }
};

/// What a list does with the items that it has from an earlier read.
enum class OldItems { Drop, Keep };

/// All remaining tokens, each turned into an item by `kRead`. `kQuoted` says how text items are
/// written.
template <class Self, class Item, Item (*kRead)(TreeStore&, std::string_view&), bool kQuoted,
          OldItems kOldItems = OldItems::Drop>
struct TokenList {
  List<Item> Self::*member;

  static constexpr std::uint32_t kTokens = kOpenParameterList;
  static constexpr std::size_t kPlaces = 0;
  constexpr detail::Parameter Describe() const {
    return {.type = kRead == &ReadIdentifier ? detail::ParameterType::Identifier
                    : kQuoted                ? detail::ParameterType::Text
                                             : detail::ParameterType::UnquotedText,
            .isList = true};
  }
  bool Read(Self& self, std::string_view& text) const {
    if constexpr (kOldItems == OldItems::Drop) (self.*member).Clear();
    for (text = Trim(text); !text.empty(); text = Trim(text)) {
      (self.*member).PushBack(self.Store(), kRead(self.Store(), text));
    }
    return true;
  }
  void Append(const Self& /*self*/, Arguments& /*arguments*/) const {}
  template <class Function>
  void ForEachItem(const Self& self, Function function) const {
    for (const Item& item : self.*member) {
      function(Argument(kQuoted ? Quote(item) : std::string(item)));
    }
  }
};

/// A list of names.
template <class Self>
constexpr auto Identifiers(List<std::string_view> Self::*member) {
  return TokenList<Self, std::string_view, ReadIdentifier, false>{member};
}
/// A list of names to which every read adds.
template <class Self>
constexpr auto MoreIdentifiers(List<std::string_view> Self::*member) {
  return TokenList<Self, std::string_view, ReadIdentifier, false, OldItems::Keep>{member};
}
/// A list of texts in double quotes, written with them.
template <class Self>
constexpr auto Texts(List<std::string_view> Self::*member) {
  return TokenList<Self, std::string_view, ReadText, true>{member};
}
/// A list of texts in double quotes, written without them.
template <class Self>
constexpr auto UnquotedTexts(List<std::string_view> Self::*member) {
  return TokenList<Self, std::string_view, ReadText, false>{member};
}

/// What a list of numbers does with the first that is wrong; the list ends there either way.
enum class BadItem { Drop, KeepAsZero };

/// All remaining tokens as numbers, read by `kRead`; wrong at the first that is none.
template <class Self, class Value, Converted<Value> (*kRead)(std::string_view), BadItem kBadItem,
          OldItems kOldItems>
struct NumberList {
  List<Value> Self::*member;

  static constexpr std::uint32_t kTokens = kOpenParameterList;
  static constexpr std::size_t kPlaces = 0;
  constexpr detail::Parameter Describe() const {
    return {.type = detail::kTypeOf<Value>, .isList = true};
  }
  bool Read(Self& self, std::string_view& text) const {
    if constexpr (kOldItems == OldItems::Drop) (self.*member).Clear();
    for (text = Trim(text); !text.empty(); text = Trim(text)) {
      const auto [value, ok] = kRead(NextToken(text));
      if (ok || kBadItem == BadItem::KeepAsZero) (self.*member).PushBack(self.Store(), value);
      if (!ok) return false;
    }
    return true;
  }
  void Append(const Self& /*self*/, Arguments& /*arguments*/) const {}
  template <class Function>
  void ForEachItem(const Self& self, Function function) const {
    for (const Value value : self.*member) {
      if constexpr (std::is_same_v<Value, double>) {
        function(Argument(ShortestText(value)));
      } else {
        function(Argument(value));
      }
    }
  }
};

/// A list of numbers to which every read adds.
template <class Self>
constexpr auto MoreUnsigned(List<std::uint32_t> Self::*member) {
  return NumberList<Self, std::uint32_t, ReadUnsigned, BadItem::Drop, OldItems::Keep>{member};
}
template <class Self>
constexpr auto RealList(List<double> Self::*member) {
  return NumberList<Self, double, ReadReal, BadItem::KeepAsZero, OldItems::Drop>{member};
}

/// All remaining tokens, each two of them a name and its value, to which every read adds. A name at
/// the end without a value is wrong; it stays in its list all the same.
template <class Self>
struct PairList {
  List<std::string_view> Self::*names;
  List<std::string_view> Self::*values;
  constexpr PairList(List<std::string_view> Self::*nameField,
                     List<std::string_view> Self::*valueField)
      : names(nameField), values(valueField) {}

  static constexpr std::uint32_t kTokens = kOpenParameterList;
  static constexpr std::size_t kPlaces = 0;
  constexpr detail::Parameter Describe() const {
    return {.type = detail::ParameterType::NamedValue, .isList = true};
  }
  bool Read(Self& self, std::string_view& text) const {
    for (text = Trim(text); !text.empty(); text = Trim(text)) {
      (self.*names).PushBack(self.Store(), ReadIdentifier(self.Store(), text));
      const std::string_view value = ReadIdentifier(self.Store(), text);
      if (value.empty()) return false;
      (self.*values).PushBack(self.Store(), value);
    }
    return true;
  }
  void Append(const Self& /*self*/, Arguments& /*arguments*/) const {}
  template <class Function>
  void ForEachItem(const Self& self, Function function) const {
    for (std::size_t i = 0; i < std::min((self.*names).size(), (self.*values).size()); ++i) {
      function(Argument(std::string((self.*names)[i]) + ' ' + std::string((self.*values)[i])));
    }
  }
};

/// The parameters of a keyword in file order.
template <class... Field>
constexpr auto Parameters(Field... fields) {
  return std::tuple<Field...>(fields...);
}

/// A column of a conversion table, one list of the element. Read takes one token and appends;
/// a number that is wrong is appended as 0 before the read ends.
template <class Self>
struct RealColumn {
  List<double> Self::*member;
  constexpr explicit RealColumn(List<double> Self::*field) : member(field) {}

  constexpr detail::Parameter Describe() const { return {.type = detail::ParameterType::Real}; }
  bool Read(Self& self, std::string_view& text) const {
    const auto [value, ok] = ReadReal(NextToken(text));
    (self.*member).PushBack(self.Store(), value);
    return ok;
  }
  std::size_t Size(const Self& self) const { return (self.*member).size(); }
  void Append(const Self& self, std::size_t row, Arguments& arguments) const {
    arguments.emplace_back(ShortestText((self.*member)[row]));
  }
};

template <class Self>
struct TextColumn {
  List<std::string_view> Self::*member;
  constexpr explicit TextColumn(List<std::string_view> Self::*field) : member(field) {}

  constexpr detail::Parameter Describe() const { return {.type = detail::ParameterType::Text}; }
  bool Read(Self& self, std::string_view& text) const {
    (self.*member).PushBack(self.Store(), ReadText(self.Store(), text));
    return true;
  }
  std::size_t Size(const Self& self) const { return (self.*member).size(); }
  void Append(const Self& self, std::size_t row, Arguments& arguments) const {
    arguments.emplace_back(Quote((self.*member)[row]));
  }
};

/// The rows that follow the fixed parameters of a conversion table: `count` of them are
/// declared, each with one token per column.
template <class Self, class... Column>
struct TableRows {
  std::uint32_t Self::*count;
  std::tuple<Column...> columns;

  static constexpr std::uint32_t kColumns = sizeof...(Column);
};
template <class Self, class... Column>
constexpr auto Rows(std::uint32_t Self::*count, Column... columns) {
  return TableRows<Self, Column...>{count, std::tuple<Column...>(columns...)};
}

}  // namespace a2l
