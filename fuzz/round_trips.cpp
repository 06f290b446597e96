// SPDX-License-Identifier: MIT
#include "fuzz/round_trips.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "a2l2json/elements/blocks/raw.h"
#include "a2l2json/elements/declarations.h"
#include "a2l2json/elements/parameter_text.h"
#include "a2l2json/elements/properties/texts.h"
#include "a2l2json/model/tree.h"
#include "a2l2json/text/tokenizer.h"
#include "fuzz/naive_tokenizer.h"

namespace a2l::fuzz {
namespace {

using detail::Declaration;
using detail::Parameter;
using detail::ParameterType;

bool HasMarker(std::string_view text) {
  return text.find("/begin") != std::string_view::npos ||
         text.find("/end") != std::string_view::npos;
}

bool SurvivesAsText(std::string_view text) { return !text.ends_with('\\') && !HasMarker(text); }

bool SurvivesAsName(std::string_view name) {
  if (name.empty() || IsTrimmed(name.back()) || HasMarker(name)) return false;
  if (name.front() == '"') {
    std::string rest(name);
    const naive::Token token = naive::NextToken(rest);
    return token.closed && rest.empty();
  }
  return name.find('"') == std::string_view::npos && name.find("//") == std::string_view::npos &&
         name.find("/*") == std::string_view::npos;
}

bool SurvivesAtLineStart(std::string_view name) {
  return SurvivesAsName(name) && KeywordToKind(name) == KIND_UNKNOWN;
}

// True when no line of a kept text holds a comment.
bool SurvivesAsRawText(std::string_view text) {
  for (const std::string& line : naive::Lines(std::string(text))) {
    std::deque<std::string> none;
    if (naive::WithoutComments(line, none) != line) return false;
  }
  return true;
}

// A number that is written as 0x-1A is read as 0.
template <class Number>
bool SurvivesAsNumber(const Parameter& parameter, Number number) {
  return !parameter.isHex || number >= 0;
}

bool ListSurvives(const Parameter& parameter, const VoA2LElement& element) {
  const auto& place = parameter.place;
  switch (parameter.type) {
    case ParameterType::Identifier:
      return std::ranges::all_of(element.*place.texts, SurvivesAtLineStart);
    case ParameterType::Text:
      return std::ranges::all_of(element.*place.texts, SurvivesAsText);
    case ParameterType::UnquotedText:
      return (element.*place.texts).empty();
    case ParameterType::Signed:
      return std::ranges::all_of(element.*place.signedNumberList, [&](std::int32_t number) {
        return SurvivesAsNumber(parameter, number);
      });
    case ParameterType::NamedValue:
      return std::ranges::all_of(element.*place.namedValues->names, SurvivesAtLineStart) &&
             std::ranges::all_of(element.*place.namedValues->values, SurvivesAsName);
    case ParameterType::Unsigned:
    case ParameterType::Real:
      return true;
    case ParameterType::Unsigned64:
    case ParameterType::Word:
    case ParameterType::RawText:
      break;  // there are no lists of these
  }
  return false;
}

bool Survives(const Parameter& parameter, const VoA2LElement& element) {
  if (parameter.isList) return ListSurvives(parameter, element);
  const auto& place = parameter.place;
  switch (parameter.type) {
    case ParameterType::Identifier:
      return SurvivesAsName(element.*place.text);
    case ParameterType::Text:
      return SurvivesAsText(element.*place.text);
    case ParameterType::Signed:
      return parameter.count > 1 || SurvivesAsNumber(parameter, element.*place.signedNumber);
    case ParameterType::Word:
      return !parameter.words->ToText(place.word->get(element)).empty();
    case ParameterType::Unsigned:
    case ParameterType::Unsigned64:
    case ParameterType::Real:
      return true;
    case ParameterType::UnquotedText:
    case ParameterType::NamedValue:
    case ParameterType::RawText:
      break;
  }
  return false;
}

bool RowsSurvive(const Declaration& declaration, const VoA2LElement& element) {
  const std::uint32_t rows = element.*declaration.parameters[declaration.rowCount].place.number;
  return std::ranges::all_of(declaration.columns, [&](const Parameter& column) {
    const bool isText = column.type == ParameterType::Text;
    const std::size_t cells =
        isText ? (element.*column.place.texts).size() : (element.*column.place.reals).size();
    return cells == rows && ListSurvives(column, element);
  });
}

bool ElementSurvives(const VoA2LElement& element) {
  if (element.kind == KIND_UNKNOWN) return true;  // is not written
  if (const auto* data = As<VoA2LElementIfData>(element)) {
    const std::string_view firstLine = data->NAME.substr(0, data->NAME.find('\n'));
    if (HasMarker(data->NAME) || (!firstLine.empty() && IsTrimmed(firstLine.back()))) return false;
    return data->NAME.find('"') == std::string_view::npos &&
           data->NAME.size() < detail::kMostIdentifierBytes && SurvivesAsRawText(data->NAME) &&
           SurvivesAsRawText(data->IF_DATA);
  }
  if (const auto* format = As<VoA2LElementFormat>(element)) {
    return !format->FORMAT.empty() && SurvivesAsText(format->FORMAT);
  }
  const Declaration& declaration = *detail::DeclarationOf(element.kind);
  if (declaration.writtenAs != KIND_ROOT) return false;
  return std::ranges::all_of(
             declaration.parameters,
             [&](const Parameter& parameter) { return Survives(parameter, element); }) &&
         (!declaration.HasRows() || RowsSurvive(declaration, element));
}

bool WritesChildren(const VoA2LElement& element) {
  return detail::DeclarationOf(element.kind)->writesChildren;
}

}  // namespace

bool RoundTrips(const VoA2LElement& root) {
  if (std::ranges::count(root.children, ElementKind::ASAP2_VERSION, &VoA2LElement::kind) > 1)
    return false;
  std::vector<const VoA2LElement*> waiting(root.children.begin(), root.children.end());
  while (!waiting.empty()) {
    const VoA2LElement& element = *waiting.back();
    waiting.pop_back();
    if (!ElementSurvives(element)) return false;
    if (!WritesChildren(element)) continue;
    waiting.insert(waiting.end(), element.children.begin(), element.children.end());
  }
  return true;
}

void KeepWhatRoundTrips(VoA2LElement& root) {
  bool hasVersion = false;
  std::vector<VoA2LElement*> waiting = {&root};
  while (!waiting.empty()) {
    VoA2LElement& parent = *waiting.back();
    waiting.pop_back();
    parent.valid = 1;
    const std::vector<VoA2LElement*> children(parent.children.begin(), parent.children.end());
    parent.children.Clear();
    if (&parent != &root && !WritesChildren(parent)) continue;
    for (VoA2LElement* child : children) {
      if (child->kind == KIND_UNKNOWN || !ElementSurvives(*child)) continue;
      if (child->kind == ElementKind::ASAP2_VERSION && std::exchange(hasVersion, true)) continue;
      parent.AddChild(child);
      waiting.push_back(child);
    }
  }
}

}  // namespace a2l::fuzz
