// SPDX-License-Identifier: MIT
//
// How one element, or one field of it, becomes a JSON value. Nothing here knows how JSON is made.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>

#include "a2l2json/model/element.h"
#include "a2l2json/model/value_sets.h"
#include "a2l2json/text/numbers.h"

namespace a2l {

struct ObjectTable;

/// An address in memory, written as a string: "0x1F00".
struct Address {
  std::uint32_t value;
};

/// A word of an enumeration, taken as its code: the word of the code, and the empty text where the
/// enumeration has none for it.
struct WordForm {
  std::uint32_t (*code)(const VoA2LElement&);
  const WordTable* words;

  /// The word of a field, out of the words of its type. There is no other way to make this form, so
  /// no field can get the words of another.
  template <auto kMember>
  static constexpr WordForm Of();

 private:
  constexpr WordForm(std::uint32_t (*take)(const VoA2LElement&), const WordTable& table)
      : code(take), words(&table) {}
};

/// Names and values that become the members of one object; the shorter list counts.
struct NamedValues {
  std::span<const std::string_view> names;
  std::span<const std::string_view> values;
};

// What a value is made of, each a function that takes it from an element. The element is of the
// class that the function belongs to; the tables see to that.
using TextForm = std::string_view (*)(const VoA2LElement&);
using AddressForm = Address (*)(const VoA2LElement&);
using IntegerForm = std::int32_t (*)(const VoA2LElement&);
using BoolForm = bool (*)(const VoA2LElement&);
using RealForm = double (*)(const VoA2LElement&);
using TextArrayForm = std::span<const std::string_view> (*)(const VoA2LElement&);
using RealArrayForm = std::span<const double> (*)(const VoA2LElement&);
using IntegerArrayForm = std::span<const std::uint32_t> (*)(const VoA2LElement&);
using NamedValuesForm = NamedValues (*)(const VoA2LElement&);
/// A text that is put together: appended to the string.
using BuiltTextForm = void (*)(const VoA2LElement&, std::string&);
/// An object with a table of its own, filled from the element.
using ObjectForm = const ObjectTable*;

/// How a value is taken from an element; monostate gives null.
using Form = std::variant<std::monostate, TextForm, WordForm, AddressForm, BoolForm, IntegerForm,
                          RealForm, TextArrayForm, RealArrayForm, IntegerArrayForm, NamedValuesForm,
                          BuiltTextForm, ObjectForm>;

/// A form, and the class of the elements that it takes its value from.
struct ClassForm {
  Form form;
  /// The kinds of the class; none where elements of every class have the value.
  std::span<const ElementKind> kinds = {};
  /// Tells one field from another; null where the value is not that of one field.
  const char* field = nullptr;
};

template <class Member>
struct MemberOf;
template <class Class, class Value>
struct MemberOf<Value Class::*> {
  using Element = Class;
  using Type = Value;
};

/// The field `kMember` of an element.
template <auto kMember>
const auto& FieldOf(const VoA2LElement& element) {
  using Element = typename MemberOf<decltype(kMember)>::Element;
  return static_cast<const Element&>(element).*kMember;
}

template <auto kMember>
constexpr WordForm WordForm::Of() {
  using Type = typename MemberOf<decltype(kMember)>::Type;
  static_assert(detail::kWordTable<Type> != nullptr, "the class declares no words for this field");
  return {[](const VoA2LElement& element) {
            return static_cast<std::uint32_t>(FieldOf<kMember>(element));
          },
          *detail::kWordTable<Type>};
}

/// The kinds of a class.
template <class Class>
inline constexpr std::span<const ElementKind> kKindsOf = Class::kinds;

/// Its address stands for a field.
template <auto kMember>
inline constexpr char kFieldMark = 0;

/// `form` as that of a field.
template <auto kMember>
constexpr ClassForm OfField(Form form) {
  return {form, kKindsOf<typename MemberOf<decltype(kMember)>::Element>, &kFieldMark<kMember>};
}

/// A field as what it is: a text, a word, a number, or an array of texts or numbers. Whole numbers
/// become the 32-bit signed integer of their low bits, the only integer that the document has.
template <auto kMember>
constexpr ClassForm Value() {
  using Type = typename MemberOf<decltype(kMember)>::Type;
  if constexpr (std::is_same_v<Type, std::string_view>) {
    return OfField<kMember>(
        TextForm{[](const VoA2LElement& element) { return FieldOf<kMember>(element); }});
  } else if constexpr (std::is_same_v<Type, double>) {
    return OfField<kMember>(
        RealForm{[](const VoA2LElement& element) { return FieldOf<kMember>(element); }});
  } else if constexpr (std::is_enum_v<Type>) {
    return OfField<kMember>(WordForm::Of<kMember>());
  } else if constexpr (std::is_integral_v<Type>) {
    return OfField<kMember>(IntegerForm{[](const VoA2LElement& element) {
      return static_cast<std::int32_t>(FieldOf<kMember>(element));
    }});
  } else if constexpr (std::is_same_v<Type, List<std::string_view>>) {
    return OfField<kMember>(TextArrayForm{[](const VoA2LElement& element) {
      return std::span<const std::string_view>(FieldOf<kMember>(element));
    }});
  } else if constexpr (std::is_same_v<Type, List<double>>) {
    return OfField<kMember>(RealArrayForm{[](const VoA2LElement& element) {
      return std::span<const double>(FieldOf<kMember>(element));
    }});
  } else {
    static_assert(std::is_same_v<Type, List<std::uint32_t>>,
                  "a field of this type has no JSON value of its own: Joined makes a text of it");
    return OfField<kMember>(IntegerArrayForm{[](const VoA2LElement& element) {
      return std::span<const std::uint32_t>(FieldOf<kMember>(element));
    }});
  }
}

/// A field as an address.
template <auto kMember>
constexpr ClassForm AddressOf() {
  return OfField<kMember>(
      AddressForm{[](const VoA2LElement& element) { return Address{FieldOf<kMember>(element)}; }});
}

/// The text of an address: "0x" and upper-case digits without leading zeros.
class HexText {
 public:
  explicit HexText(std::uint32_t value) {
    do {
      text_[--begin_] = "0123456789ABCDEF"[value % 16];
      value /= 16;
    } while (value != 0);
    text_[--begin_] = 'x';
    text_[--begin_] = '0';
  }
  [[nodiscard]] std::string_view View() const {
    return std::string_view(text_.data(), text_.size()).substr(begin_);
  }

 private:
  std::array<char, 10> text_{};
  std::size_t begin_ = text_.size();
};

inline void AppendItem(std::string& text, std::string_view item) { text += item; }
inline void AppendItem(std::string& text, double item) { AppendShortest(text, item); }
inline void AppendItem(std::string& text, std::uint32_t item) { text += std::to_string(item); }
inline void AppendItem(std::string& text, std::int32_t item) { text += std::to_string(item); }

/// Items joined by commas, whole numbers in decimal, reals in their shortest form.
template <class Items>
void AppendJoined(std::string& text, const Items& items) {
  bool first = true;
  for (const auto& item : items) {
    if (!first) text += ',';
    first = false;
    AppendItem(text, item);
  }
}

/// A list field as one text, its items joined by commas.
template <auto kMember>
constexpr ClassForm Joined() {
  return OfField<kMember>(BuiltTextForm{[](const VoA2LElement& element, std::string& text) {
    AppendJoined(text, FieldOf<kMember>(element));
  }});
}

/// A list of texts as one text, its items joined without a separator.
template <auto kMember>
constexpr ClassForm Concatenated() {
  return OfField<kMember>(BuiltTextForm{[](const VoA2LElement& element, std::string& text) {
    for (const std::string_view item : FieldOf<kMember>(element)) text += item;
  }});
}

/// Several number fields of one class as one text, joined by commas.
template <auto kFirst, auto... kMember>
constexpr ClassForm JoinedFields() {
  using Element = typename MemberOf<decltype(kFirst)>::Element;
  static_assert((std::is_same_v<typename MemberOf<decltype(kMember)>::Element, Element> && ...),
                "the fields of one text are of different classes");
  return {BuiltTextForm{[](const VoA2LElement& element, std::string& text) {
            AppendItem(text, FieldOf<kFirst>(element));
            ((text += ',', AppendItem(text, FieldOf<kMember>(element))), ...);
          }},
          kKindsOf<Element>};
}

/// Two lists of texts of one class as the names and the values of the members of an object.
template <auto kNames, auto kValues>
constexpr ClassForm NamedFields() {
  using Element = typename MemberOf<decltype(kNames)>::Element;
  static_assert(std::is_same_v<typename MemberOf<decltype(kValues)>::Element, Element>,
                "names and values of one object are of different classes");
  return {NamedValuesForm{[](const VoA2LElement& element) {
            return NamedValues{FieldOf<kNames>(element), FieldOf<kValues>(element)};
          }},
          kKindsOf<Element>};
}

/// Hands `take` the field of each child that is of the class of the field.
template <auto kMember, class Take>
void ForEachChild(const VoA2LElement& element, Take take) {
  constexpr auto& kKinds = MemberOf<decltype(kMember)>::Element::kinds;
  static_assert(kKinds.size() == 1, "children of one keyword only can be put together");
  for (const VoA2LElement* child : element.children) {
    if (child->kind == kKinds.front()) take(FieldOf<kMember>(*child));
  }
}

/// The keyword of the elements of a class.
template <class Class>
constexpr ClassForm KeywordOf() {
  return {TextForm{[](const VoA2LElement& element) { return KindToKeyword(element.kind); }},
          kKindsOf<Class>};
}

/// A number that is the same in every object.
template <std::int32_t kNumber>
constexpr ClassForm Constant() {
  return {IntegerForm{[](const VoA2LElement& /*element*/) { return kNumber; }}};
}

}  // namespace a2l
