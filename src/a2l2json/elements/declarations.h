// SPDX-License-Identifier: MIT
//
// The grammar as data: what the element classes declare about their keywords. The classes are the
// only place where it is said; reading, writing and everything else looks here.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "a2l2json/model/element.h"
#include "a2l2json/model/kind_set.h"
#include "a2l2json/model/tree_store.h"
#include "a2l2json/model/value_sets.h"

namespace a2l::detail {

/// What a parameter is: how its token is read and written.
enum class ParameterType : std::uint8_t {
  Identifier,    ///< a name; quotes are kept
  Text,          ///< a text in double quotes
  UnquotedText,  ///< a text that is read in double quotes and written without them
  Unsigned,      ///< a number of 32 bits without a sign
  Signed,        ///< a number of 32 bits
  Unsigned64,    ///< a number of 64 bits without a sign
  Real,          ///< a double
  Word,          ///< a word of an enumeration
  NamedValue,    ///< two identifiers: a name and its value
  RawText,       ///< everything up to the /end that matches, kept as it stands
};

/// The field of a word, taken as its code.
struct WordField {
  std::uint32_t (*get)(const VoA2LElement&);
  void (*set)(VoA2LElement&, std::uint32_t);
};

/// The field of several numbers.
struct SeveralNumbers {
  std::span<const std::int32_t> (*get)(const VoA2LElement&);
  std::span<std::int32_t> (*change)(VoA2LElement&);
};

/// The fields of names and their values.
struct NamedValueFields {
  List<std::string_view> VoA2LElement::*names;
  List<std::string_view> VoA2LElement::*values;
};

/// The field that a parameter is stored in. Which member it is follows from the type of the
/// parameter, and from whether it is one value, several or a list. To apply it to an element of
/// another class than the one that declares the parameter is undefined.
union FieldPlace {
  std::string_view VoA2LElement::*text;
  std::uint32_t VoA2LElement::*number;
  std::int32_t VoA2LElement::*signedNumber;
  std::uint64_t VoA2LElement::*number64;
  double VoA2LElement::*real;
  const WordField* word;
  const SeveralNumbers* signedNumbers;
  List<std::string_view> VoA2LElement::*texts;
  List<std::uint32_t> VoA2LElement::*numbers;
  List<std::int32_t> VoA2LElement::*signedNumberList;
  List<double> VoA2LElement::*reals;
  const NamedValueFields* namedValues;
};

/// One parameter of a keyword, or one column of its rows.
struct Parameter {
  ParameterType type = ParameterType::Identifier;
  /// How many such parameters follow each other, each one token.
  std::uint8_t count = 1;

  // How it is read.

  /// An open list: all tokens that are left are such parameters, none at all included.
  bool isList = false;
  /// A word must be one of the enumeration. Of the other types, numbers must be numbers, and
  /// nothing else can be wrong.
  bool isRequired = false;
  /// It is read and checked, but not kept.
  bool isDropped = false;
  /// The number of rows that follow the parameters.
  bool countsRows = false;
  /// A list to which every read adds; others forget what an earlier read left.
  bool addsItems = false;
  /// A list ends at the first number that is wrong; this one keeps it, as 0.
  bool keepsWrongItem = false;

  // How it is written.

  /// A number is written in hexadecimal digits behind 0x.
  bool isHex = false;
  /// It begins a line of its own.
  bool beginsLine = false;
  /// That line is not indented.
  bool isUnindented = false;
  /// The items of a list in a block each have a blank behind them.
  bool hasBlankBehindItems = false;

  /// A keyword that may stand in a list, where it ends the list: the rest of the text is the
  /// parameters of that child. KIND_ROOT where there is none.
  ElementKind childInList = KIND_ROOT;
  /// The enumeration of a word; null for the other types.
  const WordTable* words = nullptr;

  FieldPlace place = {.text = nullptr};
  /// Gives `place`, which can only be found when the class is complete; null once that is done.
  FieldPlace (*locate)() = nullptr;
};

/// What a number that cannot be read does. Either way the read is wrong as a whole.
enum class OnBadNumber : std::uint8_t {
  Stop,        ///< the read ends, later fields keep their defaults
  MarkAndGoOn  ///< the element is marked as not valid, every parameter is read
};

/// What the class of a keyword declares.
struct Declaration {
  /// The keywords that the class serves: more than one where there is one per axis.
  std::span<const ElementKind> kinds;
  /// In the order of the file.
  std::span<const Parameter> parameters;
  /// The columns of the rows that follow the parameters; empty where there are none.
  std::span<const Parameter> columns;
  /// The index of the parameter that tells how many rows there are; meaningless without columns.
  std::size_t rowCount = 0;
  /// Tokens that must be there before the parameters are read, or kOpenParameterList.
  std::uint16_t paramCount = 0;
  /// Revision of the ASAP2 standard that the keyword belongs to.
  std::uint32_t revision = kRevision160;
  /// The kinds of children, KIND_UNKNOWN included.
  KindSet accepts;
  OnBadNumber onBadNumber = OnBadNumber::Stop;
  /// False where children, if there are any, do not appear in A2L text.
  bool writesChildren = false;
  /// The keyword that stands in A2L text; KIND_ROOT where it is that of the element.
  ElementKind writtenAs = KIND_ROOT;

  /// Whether the last parameter is an open list: it runs up to a line that begins with a known
  /// keyword, to the next /begin or to /end.
  [[nodiscard]] constexpr bool IsOpenList() const { return paramCount == kOpenParameterList; }
  /// Whether what stands in the block is kept as text, blocks inside it included.
  [[nodiscard]] constexpr bool KeepsRawText() const {
    return !parameters.empty() && parameters.back().type == ParameterType::RawText;
  }
  [[nodiscard]] constexpr bool HasRows() const { return !columns.empty(); }
};

/// What the class of `kind` declares. The root (KIND_ROOT) and unknown blocks (KIND_UNKNOWN) have
/// a declaration, too: the former has no keyword, the latter any keyword that is not known. Null
/// for kinds that no element can have: ENCODING, which the reader does not support, and numbers
/// that are no keyword's. IsBlock and IsProperty tell whether a kind is a block or a property.
[[nodiscard]] const Declaration* DeclarationOf(ElementKind kind);

}  // namespace a2l::detail
