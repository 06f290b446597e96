// SPDX-License-Identifier: MIT
#include "a2l2json/elements/element_class.h"

#include <algorithm>
#include <limits>
#include <ostream>
#include <string>

#include "a2l2json/elements/parameter_text.h"
#include "a2l2json/model/keywords.h"
#include "a2l2json/text/a2l_text.h"
#include "a2l2json/text/numbers.h"
#include "a2l2json/text/tokenizer.h"

namespace a2l::detail {
bool DeclaredElement::ParseParameters(std::string_view& text) {
  TokenReader tokens(text);
  const bool ok = TakeParameters(Store(), tokens);
  text = tokens.Rest();
  return ok;
}

bool DeclaredElement::ParseMoreParameters(std::string_view& text) {
  TokenReader tokens(text);
  const bool ok = TakeMoreParameters(Store(), tokens);
  text = tokens.Rest();
  return ok;
}

template <class Item, class ReadItem>
bool DeclaredElement::ReadList(const Parameter& parameter, List<Item>& list, TreeStore& store,
                               TokenReader& tokens, ReadItem readItem) {
  if (!parameter.addsItems) list.Clear();
  for (std::string_view token = tokens.Next(); !token.empty(); token = tokens.Next()) {
    if (parameter.childInList != KIND_ROOT &&
        token.find(KindToKeyword(parameter.childInList)) != std::string_view::npos) {
      VoA2LElement* const child = MakeChildInList();
      child->TakeParameters(store, tokens);
      return AddChild(child);
    }
    const Converted<Item> item = readItem(token);
    if (item.ok || parameter.keepsWrongItem) list.PushBack(store, item.value);
    if (!item.ok) return false;
  }
  return true;
}

bool DeclaredElement::ReadList(const Parameter& parameter, TreeStore& store, TokenReader& tokens) {
  using TextItem = Converted<std::string_view>;
  switch (parameter.type) {
    case ParameterType::Identifier:
      return ReadList(parameter, this->*parameter.place.texts, store, tokens,
                      [&store](std::string_view token) {
                        return TextItem{KeepIdentifier(store, token), true};
                      });
    case ParameterType::Text:
    case ParameterType::UnquotedText:
      return ReadList(parameter, this->*parameter.place.texts, store, tokens,
                      [&store](std::string_view token) {
                        return TextItem{KeepText(store, token), true};
                      });
    case ParameterType::Unsigned:
      return ReadList(parameter, this->*parameter.place.numbers, store, tokens, ReadUnsigned);
    case ParameterType::Signed:
      return ReadList(parameter, this->*parameter.place.signedNumberList, store, tokens,
                      ReadSigned);
    case ParameterType::Real:
      return ReadList(parameter, this->*parameter.place.reals, store, tokens, ReadReal);
    case ParameterType::NamedValue:
      return ReadNamedValues(parameter, store, tokens);
    case ParameterType::Unsigned64:
    case ParameterType::Word:
    case ParameterType::RawText:
      break;  // there are no lists of these
  }
  return true;
}

bool DeclaredElement::ReadNamedValues(const Parameter& parameter, TreeStore& store,
                                      TokenReader& tokens) {
  List<std::string_view>& names = this->*parameter.place.namedValues->names;
  List<std::string_view>& values = this->*parameter.place.namedValues->values;
  if (!parameter.addsItems) {
    names.Clear();
    values.Clear();
  }
  for (std::string_view name = tokens.Next(); !name.empty(); name = tokens.Next()) {
    names.PushBack(store, KeepIdentifier(store, name));
    const std::string_view value = ReadIdentifier(store, tokens);
    if (value.empty()) return false;
    values.PushBack(store, value);
  }
  return true;
}

bool DeclaredElement::TakeMoreParameters(TreeStore& store, TokenReader& tokens) {
  const Declaration& declaration = Declared();
  if (!declaration.HasRows()) return VoA2LElement::TakeMoreParameters(store, tokens);
  const std::uint32_t rows = this->*declaration.parameters[declaration.rowCount].place.number;
  // The declared count may be any number; the rows that are there end the loop.
  for (std::uint32_t row = 0; row < rows; ++row) {
    for (const Parameter& column : declaration.columns) {
      if (!ReadCell(column, store, tokens)) return false;
    }
  }
  return true;
}

bool DeclaredElement::ReadCell(const Parameter& column, TreeStore& store, TokenReader& tokens) {
  if (column.type == ParameterType::Text) {
    (this->*column.place.texts).PushBack(store, ReadText(store, tokens));
    return true;
  }
  const Converted<double> number = ReadReal(tokens.Next());
  (this->*column.place.reals).PushBack(store, number.value);
  return number.ok;
}

std::int32_t DeclaredElement::MoreParameterCount() const {
  const Declaration& declaration = Declared();
  if (!declaration.HasRows()) return VoA2LElement::MoreParameterCount();
  const std::uint32_t rows = this->*declaration.parameters[declaration.rowCount].place.number;
  return static_cast<std::int32_t>(rows * static_cast<std::uint32_t>(declaration.columns.size()));
}

bool DeclaredElement::AddChild(VoA2LElement* child) { return Attach(child, Declared().accepts); }

VoA2LElement* DeclaredElement::MakeChildInList() { return nullptr; }

namespace {

void AppendText(std::string& line, const Parameter& parameter, std::string_view text) {
  if (parameter.type == ParameterType::Text) {
    AppendQuoted(line, text);
  } else {
    line += text;
  }
}

template <class Number>
void AppendNumber(std::string& line, const Parameter& parameter, Number number) {
  if (parameter.isHex) {
    AppendHex(line, number);
  } else {
    line += std::to_string(number);
  }
}

void AppendNumbers(std::string& line, const Parameter& parameter,
                   std::span<const std::int32_t> numbers) {
  for (const std::int32_t& number : numbers) {
    if (&number != numbers.data()) line += ' ';
    AppendNumber(line, parameter, number);
  }
}

void AppendValue(std::string& line, const Parameter& parameter, const VoA2LElement& element) {
  const FieldPlace& place = parameter.place;
  switch (parameter.type) {
    case ParameterType::Identifier:
    case ParameterType::Text:
    case ParameterType::UnquotedText:
    case ParameterType::RawText:
      return AppendText(line, parameter, element.*place.text);
    case ParameterType::Unsigned:
      return AppendNumber(line, parameter, element.*place.number);
    case ParameterType::Signed:
      if (parameter.count == 1) {
        return AppendNumber(line, parameter, element.*place.signedNumber);
      }
      return AppendNumbers(line, parameter, place.signedNumbers->get(element));
    case ParameterType::Unsigned64:
      return AppendNumber(line, parameter, element.*place.number64);
    case ParameterType::Real:
      return AppendShortest(line, element.*place.real);
    case ParameterType::Word:
      line += parameter.words->ToText(place.word->get(element));
      return;
    case ParameterType::NamedValue:
      return;  // is always a list
  }
}

std::size_t CountItems(const Parameter& parameter, const VoA2LElement& element) {
  const FieldPlace& place = parameter.place;
  switch (parameter.type) {
    case ParameterType::Unsigned:
      return (element.*place.numbers).size();
    case ParameterType::Signed:
      return (element.*place.signedNumberList).size();
    case ParameterType::Real:
      return (element.*place.reals).size();
    case ParameterType::NamedValue:
      // A read that failed half way leaves lists of unequal length.
      return std::min((element.*place.namedValues->names).size(),
                      (element.*place.namedValues->values).size());
    case ParameterType::Identifier:
    case ParameterType::Text:
    case ParameterType::UnquotedText:
      return (element.*place.texts).size();
    case ParameterType::Unsigned64:
    case ParameterType::Word:
    case ParameterType::RawText:
      break;  // there are no lists of these
  }
  return 0;
}

// Appends the item at `index` of a list, or the cell in that row of a column.
void AppendItem(std::string& line, const Parameter& parameter, const VoA2LElement& element,
                std::size_t index) {
  const FieldPlace& place = parameter.place;
  switch (parameter.type) {
    case ParameterType::Unsigned:
      return AppendNumber(line, parameter, (element.*place.numbers)[index]);
    case ParameterType::Signed:
      return AppendNumber(line, parameter, (element.*place.signedNumberList)[index]);
    case ParameterType::Real:
      return AppendShortest(line, (element.*place.reals)[index]);
    case ParameterType::NamedValue:
      line += (element.*place.namedValues->names)[index];
      line += ' ';
      line += (element.*place.namedValues->values)[index];
      return;
    case ParameterType::Identifier:
    case ParameterType::Text:
    case ParameterType::UnquotedText:
      return AppendText(line, parameter, (element.*place.texts)[index]);
    case ParameterType::Unsigned64:
    case ParameterType::Word:
    case ParameterType::RawText:
      return;  // there are no lists of these
  }
}

}  // namespace

void DeclaredElement::WriteOpening(int level, std::ostream& out) const {
  const Declaration& declaration = Declared();
  const bool isBlock = !IsProperty(kind);
  std::string line(isBlock ? "/begin " : "");
  line += KindToKeyword(declaration.writtenAs != KIND_ROOT ? declaration.writtenAs : kind);
  int levelOfLine = level;
  for (const Parameter& parameter : declaration.parameters) {
    if (parameter.isList) continue;
    if (parameter.beginsLine) {
      WriteLine(out, levelOfLine, line);
      line.clear();
      levelOfLine = parameter.isUnindented ? 0 : level + 1;
    } else {
      line += ' ';
    }
    AppendValue(line, parameter, *this);
  }
  if (isBlock) {
    WriteLine(out, levelOfLine, line);
    WriteItems(level + 1, out);
    WriteRows(level + 1, out);
  } else {
    WriteItemsBehind(line, level, out);
  }
}

// Each item on a line of its own.
void DeclaredElement::WriteItems(int level, std::ostream& out) const {
  for (const Parameter& parameter : Declared().parameters) {
    if (!parameter.isList) continue;
    const std::size_t items = CountItems(parameter, *this);
    for (std::size_t i = 0; i < items; ++i) {
      std::string line;
      AppendItem(line, parameter, *this, i);
      if (parameter.hasBlankBehindItems) line += ' ';
      WriteLine(out, level, line);
    }
  }
}

// The first item behind the keyword of a property, the others below it; without items, or without
// a list, the line as it is.
void DeclaredElement::WriteItemsBehind(std::string line, int level, std::ostream& out) const {
  const std::string blanks(line.size(), ' ');
  for (const Parameter& parameter : Declared().parameters) {
    if (!parameter.isList) continue;
    const std::size_t items = CountItems(parameter, *this);
    for (std::size_t i = 0; i < items; ++i) {
      if (i > 0) {
        WriteLine(out, level, line);
        line = blanks;
      }
      line += ' ';
      AppendItem(line, parameter, *this, i);
    }
  }
  WriteLine(out, level, line);
}

void DeclaredElement::WriteRows(int level, std::ostream& out) const {
  const std::span<const Parameter> columns = Declared().columns;
  if (columns.empty()) return;
  // A read that failed half way leaves lists of unequal length.
  std::size_t rows = std::numeric_limits<std::size_t>::max();
  for (const Parameter& column : columns) rows = std::min(rows, CountItems(column, *this));
  for (std::size_t row = 0; row < rows; ++row) {
    std::string line;
    for (const Parameter& column : columns) {
      if (&column != columns.data()) line += ' ';
      AppendItem(line, column, *this, row);
    }
    WriteLine(out, level, line);
  }
}

void DeclaredElement::WriteClosing(int level, std::ostream& out) const {
  if (IsProperty(kind)) return;
  WriteLine(out, level, "/end " + std::string(KindToKeyword(kind)));
}

}  // namespace a2l::detail
