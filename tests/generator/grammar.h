// SPDX-License-Identifier: MIT
//
// The keywords of the format for the generator of test files: their parameters, and what may stand
// inside them. They are written out a second time, independently of the program's tables.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace a2l::test {

/// The words of an enumeration that can be read (a word that holds an earlier one cannot).
struct WordSet {
  std::string_view name;
  std::vector<std::string_view> words;
  /// The word that any other word counts as.
  std::string_view fallback;
  /// Set if any other word is wrong.
  bool required = false;
};

enum class ParameterType {
  Name,      ///< an identifier
  Text,      ///< a text in double quotes
  Unsigned,  ///< 32 bits
  Address,   ///< 32 bits, in the document as "0x1F"
  Signed,    ///< 32 bits
  Mask,      ///< 64 bits, in the document the lower 32
  Real,
  Word,       ///< of an enumeration
  Checked,    ///< an unsigned number that is checked and not kept
  Discarded,  ///< any word, not kept
};

struct Parameter {
  std::string_view name;  ///< without the F of the document
  ParameterType type = ParameterType::Name;
  const WordSet* words = nullptr;
};

/// The effect of a wrong number among the fixed parameters.
enum class OnWrongNumber { Stop, MarkAndGoOn };

struct Keyword {
  std::string_view text;
  bool isBlock = false;
  std::vector<Parameter> parameters;
  OnWrongNumber onWrongNumber = OnWrongNumber::Stop;
  /// The types of the items of the open list at the end, repeated. Empty if there is no list.
  std::vector<Parameter> list;
  /// The columns of the rows that follow the parameters. The last parameter is their number.
  std::vector<Parameter> columns;
  /// Set for blocks that keep their content as text.
  bool isRaw = false;
  std::vector<std::string_view> children;

  [[nodiscard]] bool Accepts(std::string_view child) const;
};

/// All keywords but ENCODING, which no file may hold.
const std::vector<Keyword>& Grammar();

/// The keyword with this text, which must be a keyword.
const Keyword& Find(std::string_view text);

}  // namespace a2l::test
