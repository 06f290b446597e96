// SPDX-License-Identifier: MIT
#include "a2l2json/export/json_schema.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <string_view>
#include <utility>
#include <variant>

#include "a2l2json/export/document_table.h"

namespace a2l {
namespace {

// The table of the object that a form makes; null for every other value.
const ObjectTable* TableOf(const Form& form) {
  const auto* table = std::get_if<ObjectForm>(&form);
  return table != nullptr ? *table : nullptr;
}

// Enters what `form` makes of the elements of `kind`.
void Enter(std::vector<DocumentObject>& objects, const Form& form, ElementKind kind) {
  const ObjectTable* table = TableOf(form);
  if (table == nullptr) return;
  auto object = std::ranges::find(objects, table, &DocumentObject::table);
  if (object == objects.end()) {
    objects.push_back({table, {}});
    object = objects.end() - 1;
  }
  if (std::ranges::find(object->kinds, kind) == object->kinds.end()) object->kinds.push_back(kind);
}

// The parts, one behind the other.
template <class... Part>
std::string Text(const Part&... parts) {
  std::string text;
  (text.append(std::string_view(parts)), ...);
  return text;
}

std::string Quoted(std::string_view text) {
  return Text("\"", text, "\"");  // nothing in the tables needs an escape
}

// Items joined by ", ", with a line feed and `indent` blanks where a line would get too long.
std::string Joined(const std::vector<std::string>& items, std::size_t indent, std::size_t used) {
  constexpr std::size_t kMostColumns = 100;
  std::string text;
  std::size_t column = used;
  for (const std::string& item : items) {
    if (!text.empty()) {
      text += ',';
      if (column + item.size() + 3 > kMostColumns) {
        text += '\n';
        text.append(indent, ' ');
        column = indent;
      } else {
        text += ' ';
        column += 2;
      }
    }
    text += item;
    column += item.size();
  }
  return text;
}

// Writes the schema of one value, without the braces around it.
class ValueSchema {
 public:
  ValueSchema(const std::vector<DocumentObject>& objects, bool orNull)
      : objects_(objects), orNull_(orNull) {}

  std::string operator()(std::monostate /*nothing*/) const { return R"("type": "null")"; }
  std::string operator()(TextForm /*form*/) const { return Type("string"); }
  std::string operator()(BuiltTextForm /*form*/) const { return Type("string"); }
  std::string operator()(AddressForm /*form*/) const {
    return Text(Type("string"), R"(, "pattern": "^0x(0|[1-9A-F][0-9A-F]{0,7})$")");
  }
  std::string operator()(BoolForm /*form*/) const { return Type("boolean"); }
  std::string operator()(IntegerForm /*form*/) const { return Text(Type("integer"), kBounds); }
  // Infinities and NaN are null.
  std::string operator()(RealForm /*form*/) const { return R"("type": ["number", "null"])"; }

  std::string operator()(WordForm form) const {
    std::string words;
    for (const Word& word : form.words->words) words += Text(Quoted(word.text), ", ");
    if (form.words->ToText(form.words->fallback).empty()) words += R"("", )";
    if (orNull_) words += "null, ";
    words.resize(words.size() - 2);
    return Text(R"("enum": [)", words, "]");
  }

  std::string operator()(TextArrayForm /*form*/) const { return Array(R"("type": "string")"); }
  std::string operator()(RealArrayForm /*form*/) const {
    return Array(R"("type": ["number", "null"])");
  }
  std::string operator()(IntegerArrayForm /*form*/) const {
    return Array(Text(R"("type": "integer")", kBounds));
  }
  std::string operator()(NamedValuesForm /*form*/) const {
    return Text(
        Type("object"),
        R"(, "propertyNames": {"pattern": "^F"}, "additionalProperties": {"type": "string"})");
  }

  std::string operator()(ObjectForm table) const {
    const std::string reference = Text(R"("$ref": "#/$defs/)", ObjectName(objects_, *table), "\"");
    return orNull_ ? Text(R"("anyOf": [{)", reference, R"(}, {"type": "null"}])") : reference;
  }

  [[nodiscard]] std::string Array(std::string_view items) const {
    return Text(Type("array"), R"(, "items": {)", items, "}");
  }

 private:
  // Whole numbers are signed and of 32 bits.
  static constexpr std::string_view kBounds = R"(, "minimum": -2147483648, "maximum": 2147483647)";

  [[nodiscard]] std::string Type(std::string_view type) const {
    const std::string quoted = Quoted(type);
    return orNull_ ? Text(R"("type": [)", quoted, R"(, "null"])") : Text(R"("type": )", quoted);
  }

  const std::vector<DocumentObject>& objects_;
  bool orNull_;
};

std::string SchemaOf(const std::vector<DocumentObject>& objects, const Form& form, bool orNull) {
  return std::visit(ValueSchema(objects, orNull), form);
}

std::string SchemaOf(const std::vector<DocumentObject>& objects, const Row& row) {
  const bool orNull = row.source != Source::Element && row.absent == Absent::Null;
  switch (row.source) {
    case Source::Presence:
      return R"("type": "boolean")";
    case Source::Children:
    case Source::Grandchildren:
      return ValueSchema(objects, orNull).Array(SchemaOf(objects, row.form, false));
    case Source::FirstChild:
      if (row.otherKind != KIND_ROOT) {
        return Text(R"("anyOf": [{)", SchemaOf(objects, row.form, orNull), "}, {",
                    SchemaOf(objects, row.otherForm, false), "}]");
      }
      break;
    case Source::Element:
    case Source::Found:
      break;
  }
  return SchemaOf(objects, row.form, orNull);
}

std::string SchemaOf(const std::vector<DocumentObject>& objects, const DocumentObject& object) {
  std::vector<std::string> required;
  std::string properties;
  for (const Row& row : object.table->rows) {
    if (row.absent != Absent::Omit) required.push_back(Quoted(row.key));
    properties += Text("        ", Quoted(row.key), ": {", SchemaOf(objects, row), "},\n");
  }
  properties.erase(properties.size() - 2, 1);
  std::string text = Text("    ", Quoted(object.Name()),
                          ": {\n"
                          "      \"type\": \"object\",\n"
                          "      \"additionalProperties\": false,\n");
  if (!required.empty()) {
    const std::string_view start = R"(      "required": [)";
    text += Text(start, Joined(required, start.size(), start.size()), "],\n");
  }
  return Text(text, "      \"properties\": {\n", properties, "      }\n    }");
}

}  // namespace

std::string DocumentObject::Name() const {
  return kinds.empty() ? "document" : std::string(KindToKeyword(kinds.front()));
}

std::vector<DocumentObject> DocumentObjects() {
  std::vector<DocumentObject> objects = {{&DocumentTable(), {}}};
  for (std::size_t i = 0; i < objects.size(); ++i) {
    for (const Row& row : objects[i].table->rows) {
      Enter(objects, row.form, row.source == Source::Grandchildren ? row.grandchild : row.kind);
      Enter(objects, row.otherForm, row.otherKind);
    }
  }
  for (DocumentObject& object : objects) std::ranges::sort(object.kinds);
  return objects;
}

std::string ObjectName(const std::vector<DocumentObject>& objects, const ObjectTable& table) {
  const auto object = std::ranges::find(objects, &table, &DocumentObject::table);
  return object != objects.end() ? object->Name() : std::string();
}

std::string JsonSchema() {
  const std::vector<DocumentObject> objects = DocumentObjects();
  std::vector<std::pair<std::string, std::string>> definitions;
  definitions.reserve(objects.size());
  for (const DocumentObject& object : objects) {
    definitions.emplace_back(object.Name(), SchemaOf(objects, object));
  }
  std::ranges::sort(definitions);
  std::string text = R"({
  "$schema": "https://json-schema.org/draft/2020-12/schema",
  "title": "A document of a2l2json",
  "description": "What a2l2json makes of one A2L file. Generated from the tables of the program.",
  "$ref": "#/$defs/document",
  "$defs": {
)";
  for (const auto& [name, schema] : definitions) text += Text(schema, ",\n");
  text.erase(text.size() - 2, 1);
  return Text(text, "  }\n}\n");
}

}  // namespace a2l
