// SPDX-License-Identifier: MIT
#include "a2l2json/export/json_schema.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <string_view>
#include <utility>
#include <variant>

#include "a2l2json/export/document_table.h"
#include "a2l2json/export/key_origins.h"

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
    return Text(Type("object"), R"(, "propertyNames": {"type": "string", "pattern": "^F"}, )"
                                R"("additionalProperties": {"type": "string"})");
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

// Markdown without its links.
std::string WithoutLinks(std::string text) {
  for (std::size_t begin = text.find('['); begin != std::string::npos; begin = text.find('[')) {
    const std::size_t middle = text.find("](", begin);
    const std::size_t end = text.find(')', middle);
    text = Text(text.substr(0, begin), text.substr(begin + 1, middle - begin - 1),
                text.substr(end + 1));
  }
  return text;
}

// What a word of `words` can be that a reader would not expect.
std::string AboutWords(const WordTable& words) {
  std::string text;
  const std::string_view fallback = words.ToText(words.fallback);
  text = fallback.empty() ? "Empty where the file has no known word."
                          : Text("`", fallback, "` where the file has no known word.");
  for (const Word& word : words.words) {
    if (!IsNeverRead(words, word)) continue;
    text += Text(" No file gives `", word.text, "`: `", words.Find(word.text)->text,
                 "`, which is part of it, is read instead. Only code can set it.");
  }
  return text;
}

// What docs/json.md says of the key, as sentences.
std::string Description(const DocumentObject& object, const Row& row) {
  if (std::holds_alternative<std::monostate>(row.form) && row.source == Source::Element) {
    return "Always null.";
  }
  std::string text = WithoutLinks(OriginOf(object.Name(), row));
  if (text.front() >= 'a' && text.front() <= 'z')
    text.front() = static_cast<char>(text.front() - 'a' + 'A');
  if (const std::string_view absent = AbsentValue(row); !absent.empty()) {
    text += Text("; ", absent, " without it");
  }
  text += '.';
  const auto* word = std::get_if<WordForm>(&row.form);
  if (word != nullptr && !text.starts_with("Always")) {
    text += Text(" ", AboutWords(*word->words));
  }
  return text;
}

// The members of the schema of an object, each line behind `indent`.
std::string SchemaOf(const std::vector<DocumentObject>& objects, const DocumentObject& object,
                     std::string_view indent) {
  std::vector<std::string> required;
  std::string properties;
  for (const Row& row : object.table->rows) {
    if (row.absent != Absent::Omit) required.push_back(Quoted(row.key));
    properties += Text(indent, "  ", Quoted(row.key), ": {\n", indent, R"(    "description": )",
                       Quoted(Description(object, row)), ",\n", indent, "    ",
                       SchemaOf(objects, row), "\n", indent, "  },\n");
  }
  properties.erase(properties.size() - 2, 1);
  std::string text =
      Text(indent, "\"type\": \"object\",\n", indent, "\"additionalProperties\": false,\n");
  if (!required.empty()) {
    const std::string start = Text(indent, R"("required": [)");
    text += Text(start, Joined(required, start.size(), start.size()), "],\n");
  }
  return Text(text, indent, "\"properties\": {\n", properties, indent, "}");
}

// The keywords that an object is made of.
std::string KeywordsOf(const DocumentObject& object) {
  std::string text;
  for (const ElementKind kind : object.kinds) {
    text += Text(text.empty() ? "" : ", ", "`", KindToKeyword(kind), "`");
  }
  return Text(text, ".");
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
  for (const DocumentObject& object : std::span(objects).subspan(1)) {
    definitions.emplace_back(
        object.Name(),
        Text("    ", Quoted(object.Name()), ": {\n", R"(      "description": )",
             Quoted(KeywordsOf(object)), ",\n", SchemaOf(objects, object, "      "), "\n    }"));
  }
  std::ranges::sort(definitions);
  // Some readers of schemas take the root for an object only where it is one itself.
  std::string text = Text(R"({
  "$schema": "https://json-schema.org/draft/2020-12/schema",
  "title": "A document of a2l2json",
  "description": "What a2l2json makes of one A2L file. Generated from the tables of the program.",
)",
                          SchemaOf(objects, objects.front(), "  "), ",\n  \"$defs\": {\n");
  for (const auto& [name, schema] : definitions) text += Text(schema, ",\n");
  text.erase(text.size() - 2, 1);
  return Text(text, "  }\n}\n");
}

}  // namespace a2l
