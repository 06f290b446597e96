// SPDX-License-Identifier: MIT
//
// The grammar as data: what the element classes declare about their keywords, to be looked at
// while the program runs. Nothing here is declared a second time; it all follows from the classes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "a2l2json/model/element.h"
#include "a2l2json/model/kind_set.h"
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

/// One parameter of a keyword, or one column of its rows.
struct Parameter {
  ParameterType type = ParameterType::Identifier;
  /// How many such parameters follow each other, each one token.
  std::uint8_t count = 1;
  /// An open list: all tokens that are left are such parameters, none at all included.
  bool isList = false;
  /// A word must be one of the enumeration. Of the other types, numbers must be numbers, and
  /// nothing else can be wrong.
  bool isRequired = false;
  /// A number is written in hexadecimal digits behind 0x.
  bool isHex = false;
  /// It is read and checked, but not kept.
  bool isDropped = false;
  /// The enumeration of a word; null for the other types.
  const WordTable* words = nullptr;
  /// A keyword that may stand in a list, where it ends the list: the rest of the text is the
  /// parameters of that child. KIND_ROOT where there is none.
  ElementKind childInList = KIND_ROOT;
};

/// What the class of a keyword declares.
struct Declaration {
  /// The keywords that the class serves: more than one where there is one per axis.
  std::span<const ElementKind> kinds;
  /// In the order of the file.
  std::span<const Parameter> parameters;
  /// The columns of the rows that follow the parameters; empty where there are none.
  std::span<const Parameter> columns;
  /// The index of the parameter that tells how many rows there are; of no meaning without columns.
  std::size_t rowCount = 0;
  /// Tokens that must be there before the parameters are read, or kOpenParameterList.
  std::uint32_t paramCount = 0;
  /// Revision of the ASAP2 standard that the keyword belongs to.
  std::uint32_t revision = kRevision160;
  /// The kinds of children, KIND_UNKNOWN included.
  KindSet accepts;

  /// Whether the last parameter is an open list: it runs up to a line that begins with a known
  /// keyword, to the next /begin or to /end.
  [[nodiscard]] bool IsOpenList() const { return paramCount == kOpenParameterList; }
  /// Whether what stands in the block is kept as text, blocks inside it included.
  [[nodiscard]] bool KeepsRawText() const {
    return !parameters.empty() && parameters.back().type == ParameterType::RawText;
  }
  [[nodiscard]] bool HasRows() const { return !columns.empty(); }
};

/// What the class of `kind` declares. The root (KIND_ROOT) and unknown blocks (KIND_UNKNOWN) have
/// a declaration, too: the former has no keyword, the latter any keyword that is not known. Null
/// for kinds that no element can have: ENCODING, which the reader does not support, and numbers
/// that are no keyword's. Whether a kind is a block or a property, IsBlock and IsProperty tell.
[[nodiscard]] const Declaration* DeclarationOf(ElementKind kind);

}  // namespace a2l::detail
