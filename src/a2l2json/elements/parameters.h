// SPDX-License-Identifier: MIT
//
// The words in which element classes declare their parameters, in the order in which a file holds
// them:
//
//   static constexpr Parameter parameters[] = {
//       Identifier<&Self::NAME>, Text<&Self::LONG_IDENTIFIER>,  //
//       NextLine(Hex<&Self::ADDRESS>), Unsigned<&Self::SIZE>,
//   };
//
// From them follow the number of tokens that the keyword waits for, how they are read, what makes
// them wrong, and the lines that are written. A field of the wrong type does not compile.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <type_traits>

#include "a2l2json/elements/declarations.h"

namespace a2l::detail {

template <class Member>
struct MemberTraits;
template <class Class, class Value>
struct MemberTraits<Value Class::*> {
  using Owner = Class;
  using Field = Value;
};
template <auto kMember>
using FieldType = typename MemberTraits<decltype(kMember)>::Field;
template <auto kMember>
using FieldOwner = typename MemberTraits<decltype(kMember)>::Owner;

template <class Array>
inline constexpr std::size_t kArraySize = 0;
template <class Item, std::size_t kSize>
inline constexpr std::size_t kArraySize<std::array<Item, kSize>> = kSize;

// Functions, not lambdas: their bodies wait until the class of the member is complete.
template <auto kMember>
std::uint32_t GetWord(const VoA2LElement& element) {
  return static_cast<std::uint32_t>(static_cast<const FieldOwner<kMember>&>(element).*kMember);
}
template <auto kMember>
void SetWord(VoA2LElement& element, std::uint32_t code) {
  static_cast<FieldOwner<kMember>&>(element).*kMember = static_cast<FieldType<kMember>>(code);
}
template <auto kMember>
inline constexpr WordField kWordField = {&GetWord<kMember>, &SetWord<kMember>};

template <auto kMember>
std::span<const std::int32_t> GetNumbers(const VoA2LElement& element) {
  return static_cast<const FieldOwner<kMember>&>(element).*kMember;
}
template <auto kMember>
std::span<std::int32_t> ChangeNumbers(VoA2LElement& element) {
  return static_cast<FieldOwner<kMember>&>(element).*kMember;
}
template <auto kMember>
inline constexpr SeveralNumbers kSeveralNumbers = {&GetNumbers<kMember>, &ChangeNumbers<kMember>};

template <auto kNames, auto kValues>
inline constexpr NamedValueFields kNamedValueFields = {
    static_cast<List<std::string_view> VoA2LElement::*>(kNames),
    static_cast<List<std::string_view> VoA2LElement::*>(kValues)};

/// The words, for an element class `Class`.
template <class Class>
struct ParameterWords {
 private:
  using Parameter = detail::Parameter;

  // Class is complete only when the place is asked for.
  template <auto kMember>
  static constexpr FieldPlace Place() {
    static_assert(std::is_base_of_v<FieldOwner<kMember>, Class>,
                  "a parameter names a field of another class");
    using Type = FieldType<kMember>;
    if constexpr (std::is_same_v<Type, std::string_view>) {
      return {.text = static_cast<Type VoA2LElement::*>(kMember)};
    } else if constexpr (std::is_same_v<Type, std::uint32_t>) {
      return {.number = static_cast<Type VoA2LElement::*>(kMember)};
    } else if constexpr (std::is_same_v<Type, std::int32_t>) {
      return {.signedNumber = static_cast<Type VoA2LElement::*>(kMember)};
    } else if constexpr (std::is_same_v<Type, std::uint64_t>) {
      return {.number64 = static_cast<Type VoA2LElement::*>(kMember)};
    } else if constexpr (std::is_same_v<Type, double>) {
      return {.real = static_cast<Type VoA2LElement::*>(kMember)};
    } else if constexpr (std::is_enum_v<Type>) {
      return {.word = &kWordField<kMember>};
    } else if constexpr (kArraySize<Type> > 0) {
      return {.signedNumbers = &kSeveralNumbers<kMember>};
    } else if constexpr (std::is_same_v<Type, List<std::string_view>>) {
      return {.texts = static_cast<Type VoA2LElement::*>(kMember)};
    } else if constexpr (std::is_same_v<Type, List<std::uint32_t>>) {
      return {.numbers = static_cast<Type VoA2LElement::*>(kMember)};
    } else if constexpr (std::is_same_v<Type, List<std::int32_t>>) {
      return {.signedNumberList = static_cast<Type VoA2LElement::*>(kMember)};
    } else {
      return {.reals = static_cast<Type VoA2LElement::*>(kMember)};
    }
  }

  template <auto kMember, class Type>
  static consteval Parameter TextParameter(ParameterType type) {
    static_assert(std::is_same_v<FieldType<kMember>, Type>,
                  "names and texts are kept in a std::string_view, lists of them in a "
                  "List<std::string_view>");
    return {.type = type,
            .isList = !std::is_same_v<Type, std::string_view>,
            .hasBlankBehindItems = true,
            .locate = &Place<kMember>};
  }

  template <auto kMember, class Type>
  static consteval Parameter NumberParameter(ParameterType type) {
    static_assert(std::is_same_v<FieldType<kMember>, Type>,
                  "Unsigned is for a std::uint32_t, Signed for a std::int32_t, Real for a double, "
                  "and their lists for a List of these");
    return {.type = type,
            .isList = !std::is_arithmetic_v<Type>,
            .hasBlankBehindItems = true,
            .locate = &Place<kMember>};
  }

  template <auto kMember>
  static consteval Parameter SeveralSigned() {
    using Type = FieldType<kMember>;
    static_assert(std::is_same_v<Type, std::array<std::int32_t, kArraySize<Type>>>,
                  "SignedNumbers is for a std::array of std::int32_t");
    return {.type = ParameterType::Signed, .count = kArraySize<Type>, .locate = &Place<kMember>};
  }

  template <auto kMember>
  static consteval Parameter HexParameter() {
    using Type = FieldType<kMember>;
    constexpr bool kNumber = std::is_same_v<Type, std::uint32_t>;
    constexpr bool kSigned = std::is_same_v<Type, std::int32_t>;
    constexpr bool k64 = std::is_same_v<Type, std::uint64_t>;
    static_assert(kNumber || kSigned || k64,
                  "Hex is for a std::uint32_t, a std::int32_t or a std::uint64_t");
    return {.type = kNumber   ? ParameterType::Unsigned
                    : kSigned ? ParameterType::Signed
                              : ParameterType::Unsigned64,
            .isHex = true,
            .locate = &Place<kMember>};
  }

  template <auto kMember>
  static consteval Parameter WordParameter() {
    static_assert(kWordTable<FieldType<kMember>> != nullptr,
                  "Word is for a field of one of the enumerations in model/value_sets.h");
    return {.type = ParameterType::Word,
            .words = kWordTable<FieldType<kMember>>,
            .locate = &Place<kMember>};
  }

  template <auto kNames, auto kValues>
  static constexpr FieldPlace NamedValuesPlace() {
    return {.namedValues = &kNamedValueFields<kNames, kValues>};
  }

 public:
  /// A name of an object.
  template <auto kMember>
  static constexpr Parameter Identifier =
      TextParameter<kMember, std::string_view>(ParameterType::Identifier);
  /// A text in double quotes; stored without them and written with them.
  template <auto kMember>
  static constexpr Parameter Text = TextParameter<kMember, std::string_view>(ParameterType::Text);
  /// A text that is read in double quotes but written without them.
  template <auto kMember>
  static constexpr Parameter UnquotedText =
      TextParameter<kMember, std::string_view>(ParameterType::UnquotedText);
  /// All that is left of the text, as it stands.
  template <auto kMember>
  static constexpr Parameter RawText =
      TextParameter<kMember, std::string_view>(ParameterType::RawText);

  // Numbers. One that is wrong is stored as 0.
  template <auto kMember>
  static constexpr Parameter Unsigned =
      NumberParameter<kMember, std::uint32_t>(ParameterType::Unsigned);
  template <auto kMember>
  static constexpr Parameter Signed = NumberParameter<kMember, std::int32_t>(ParameterType::Signed);
  template <auto kMember>
  static constexpr Parameter Real = NumberParameter<kMember, double>(ParameterType::Real);
  /// A whole number of any type that is written as 0x1F.
  template <auto kMember>
  static constexpr Parameter Hex = HexParameter<kMember>();
  /// As many signed numbers as the array has places. The read ends at the first that is wrong.
  template <auto kMember>
  static constexpr Parameter SignedNumbers = SeveralSigned<kMember>();
  /// The number of rows behind the parameters, as the file declares it.
  template <auto kMember>
  static constexpr Parameter RowCount = [] {
    Parameter parameter = Unsigned<kMember>;
    parameter.countsRows = true;
    return parameter;
  }();

  /// A word of an enumeration. An unknown one is not wrong.
  template <auto kMember>
  static constexpr Parameter Word = WordParameter<kMember>();
  /// A word that must be one of the enumeration.
  template <auto kMember>
  static constexpr Parameter RequiredWord = [] {
    Parameter parameter = Word<kMember>;
    parameter.isRequired = true;
    return parameter;
  }();

  // Open lists: all tokens that are left. A number that is wrong makes the read wrong and ends the
  // list before it. The same words name the columns of a table, which take a token per row.
  template <auto kMember>
  static constexpr Parameter Identifiers =
      TextParameter<kMember, List<std::string_view>>(ParameterType::Identifier);
  template <auto kMember>
  static constexpr Parameter Texts =
      TextParameter<kMember, List<std::string_view>>(ParameterType::Text);
  template <auto kMember>
  static constexpr Parameter UnquotedTexts =
      TextParameter<kMember, List<std::string_view>>(ParameterType::UnquotedText);
  template <auto kMember>
  static constexpr Parameter UnsignedList =
      NumberParameter<kMember, List<std::uint32_t>>(ParameterType::Unsigned);
  template <auto kMember>
  static constexpr Parameter SignedList =
      NumberParameter<kMember, List<std::int32_t>>(ParameterType::Signed);
  template <auto kMember>
  static constexpr Parameter RealList = NumberParameter<kMember, List<double>>(ParameterType::Real);
  /// Names and their values in turn. A name at the end without a value is wrong; it stays in its
  /// list all the same.
  template <auto kNames, auto kValues>
  static constexpr Parameter NamedValues = [] {
    Parameter parameter = Identifiers<kNames>;
    static_cast<void>(Identifiers<kValues>);
    parameter.type = ParameterType::NamedValue;
    parameter.locate = &NamedValuesPlace<kNames, kValues>;
    return parameter;
  }();

  // What else a parameter can be.

  /// It begins the next of the lines that a block writes.
  static consteval Parameter NextLine(Parameter parameter) {
    parameter.beginsLine = true;
    return parameter;
  }
  /// It begins the next line, which is not indented.
  static consteval Parameter NextLineUnindented(Parameter parameter) {
    parameter.beginsLine = true;
    parameter.isUnindented = true;
    return parameter;
  }
  /// It is read and checked, but not kept: the field keeps its default.
  static consteval Parameter Dropped(Parameter parameter) {
    parameter.isDropped = true;
    return parameter;
  }
  /// The items are written as 0x1F.
  static consteval Parameter InHex(Parameter list) {
    list.isHex = true;
    return list;
  }
  /// Every read adds to the items that are there.
  static consteval Parameter Adding(Parameter list) {
    list.addsItems = true;
    return list;
  }
  /// A number that is wrong stays in the list, as 0.
  static consteval Parameter KeepingWrong(Parameter list) {
    list.keepsWrongItem = true;
    return list;
  }
  /// The items of a block are written without a blank behind them.
  static consteval Parameter WithoutBlanks(Parameter list) {
    list.hasBlankBehindItems = false;
    return list;
  }
  /// The keyword `kind` may stand in the list and ends it. The class makes the child, in
  /// MakeChildInList.
  static consteval Parameter EndedBy(ElementKind kind, Parameter list) {
    list.childInList = kind;
    return list;
  }
};

}  // namespace a2l::detail
