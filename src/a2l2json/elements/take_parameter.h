// SPDX-License-Identifier: MIT
//
// How a parameter that is no list is taken off the front of parameter text. Most of a file is such
// parameters, so this is compiled anew for every one of them: in its element class, its type and
// its field are constants, and little is left of what follows.
#pragma once

#include <algorithm>
#include <cstdint>
#include <span>
#include <string_view>

#include "a2l2json/elements/declarations.h"
#include "a2l2json/elements/parameter_text.h"
#include "a2l2json/text/numbers.h"
#include "a2l2json/text/tokenizer.h"

namespace a2l::detail {

/// Stores a number that was read; false if it is wrong.
template <class Number>
bool StoreNumber(Converted<Number> read, Number& field) {
  field = read.value;
  return read.ok;
}

/// Whether a token is right for a parameter that is not kept.
inline bool IsRightWhenDropped(const Parameter& parameter, std::string_view token) {
  switch (parameter.type) {
    case ParameterType::Unsigned:
    case ParameterType::Signed:
    case ParameterType::Unsigned64:
      return ReadUnsigned(token).ok;
    case ParameterType::Real:
      return ReadReal(token).ok;
    case ParameterType::Word:
      return !parameter.isRequired || parameter.words->Find(token) != nullptr;
    case ParameterType::Identifier:
    case ParameterType::Text:
    case ParameterType::UnquotedText:
    case ParameterType::NamedValue:
    case ParameterType::RawText:
      return true;
  }
  return true;
}

/// Stores the next token as the parameter, which is no list; false if it is wrong.
[[gnu::always_inline]] inline bool TakeValue(const Parameter& parameter, VoA2LElement& element,
                                             TreeStore& store, TokenReader& tokens) {
  if (parameter.isDropped) return IsRightWhenDropped(parameter, tokens.Next());
  const FieldPlace& place = parameter.place;
  switch (parameter.type) {
    case ParameterType::Identifier:
      element.*place.text = ReadIdentifier(store, tokens);
      return true;
    case ParameterType::Text:
    case ParameterType::UnquotedText:
      element.*place.text = ReadText(store, tokens);
      return true;
    case ParameterType::Unsigned:
      return StoreNumber(ReadUnsigned(tokens.Next()), element.*place.number);
    case ParameterType::Signed:
      if (parameter.count == 1)
        return StoreNumber(ReadSigned(tokens.Next()), element.*place.signedNumber);
      return std::ranges::all_of(place.signedNumbers->change(element), [&](std::int32_t& number) {
        return StoreNumber(ReadSigned(tokens.Next()), number);
      });
    case ParameterType::Unsigned64:
      return StoreNumber(ReadUnsigned64(tokens.Next()), element.*place.number64);
    case ParameterType::Real:
      return StoreNumber(ReadReal(tokens.Next()), element.*place.real);
    case ParameterType::Word: {
      const Word* const word = parameter.words->Find(tokens.Next());
      place.word->set(element, word != nullptr ? word->code : parameter.words->fallback);
      return word != nullptr || !parameter.isRequired;
    }
    case ParameterType::NamedValue:
      return true;  // is always a list
    case ParameterType::RawText:
      element.*place.text = store.Copy(tokens.Rest());
      return true;
  }
  return true;
}

}  // namespace a2l::detail
