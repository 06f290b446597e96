// SPDX-License-Identifier: MIT
#include "a2l2json/export/json_schema.h"

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <json11.hpp>

#include "a2l2json/export/json11_document.h"
#include "a2l2json/export/key_origins.h"
#include "tests/support/files.h"
#include "tests/support/trees.h"

namespace a2l::test {
namespace {

namespace fs = std::filesystem;
using json11::Json;

const fs::path kRepository = fs::path(A2L2JSON_CASES).parent_path().parent_path();

Json Parsed(const std::string& text) {
  std::string error;
  Json json = Json::parse(text, error);
  EXPECT_EQ(error, "");
  return json;
}

// A validator for this schema, without patterns and bounds.
class Validator {
 public:
  explicit Validator(Json schema) : schema_(std::move(schema)) {}

  [[nodiscard]] bool Conforms(const Json& document) const { return Conforms(document, schema_); }

 private:
  static std::string TypeName(const Json& value) {
    switch (value.type()) {
      case Json::NUL:
        return "null";
      case Json::BOOL:
        return "boolean";
      case Json::STRING:
        return "string";
      case Json::ARRAY:
        return "array";
      case Json::OBJECT:
        return "object";
      case Json::NUMBER:
        return "number";
    }
    return "";
  }

  static bool HasType(const Json& value, const Json& type) {
    if (type.is_array()) {
      return std::ranges::any_of(type.array_items(),
                                 [&](const Json& one) { return HasType(value, one); });
    }
    const std::string& name = type.string_value();
    if (name == "integer") return value.is_number() && value.int_value() == value.number_value();
    return name == TypeName(value);
  }

  [[nodiscard]] bool Conforms(const Json& value, const Json& schema) const {
    if (!Knows(schema)) return false;
    if (const Json& reference = schema["$ref"]; reference.is_string()) {
      constexpr std::string_view kStart = "#/$defs/";
      EXPECT_TRUE(reference.string_value().starts_with(kStart)) << reference.string_value();
      const Json& definition = schema_["$defs"][reference.string_value().substr(kStart.size())];
      EXPECT_TRUE(definition.is_object()) << reference.string_value();
      if (!Conforms(value, definition)) return false;
    }
    if (const Json& anyOf = schema["anyOf"]; anyOf.is_array()) {
      return std::ranges::any_of(anyOf.array_items(),
                                 [&](const Json& one) { return Conforms(value, one); });
    }
    if (const Json& words = schema["enum"]; words.is_array()) {
      return std::ranges::count(words.array_items(), value) > 0;
    }
    if (const Json& type = schema["type"]; !type.is_null() && !HasType(value, type)) return false;
    if (value.is_array() && schema["items"].is_object()) {
      return std::ranges::all_of(value.array_items(),
                                 [&](const Json& item) { return Conforms(item, schema["items"]); });
    }
    return !value.is_object() || ObjectConforms(value.object_items(), schema);
  }

  [[nodiscard]] bool ObjectConforms(const Json::object& object, const Json& schema) const {
    for (const Json& key : schema["required"].array_items()) {
      if (!object.contains(key.string_value())) return false;
    }
    const Json::object& properties = schema["properties"].object_items();
    return std::ranges::all_of(object, [&](const Json::object::value_type& member) {
      const auto& [key, value] = member;
      const auto property = properties.find(key);
      if (property != properties.end()) return Conforms(value, property->second);
      const Json& others = schema["additionalProperties"];
      return others.is_object() ? Conforms(value, others) : others != Json(false);
    });
  }

  // If the validator ignored a keyword, it would accept too much.
  static bool Knows(const Json& schema) {
    static const std::set<std::string> kKnown = {
        "$schema",      "title",   "description", "$ref",    "$defs",
        "type",         "enum",    "required",    "items",   "properties",
        "anyOf",        "minimum", "maximum",     "pattern", "additionalProperties",
        "propertyNames"};
    return std::ranges::all_of(schema.object_items(), [](const auto& member) {
      EXPECT_TRUE(kKnown.contains(member.first)) << member.first;
      return kKnown.contains(member.first);
    });
  }

  Json schema_;
};

TEST(JsonSchema, IsTheFileOfTheDocumentation) {
  EXPECT_EQ(ReadFile(kRepository / "docs/json.schema.json"), JsonSchema())
      << "run generate_json_docs docs";
}

// The schema of an object; that of the whole document stands at the root.
Json Definition(const Json& schema, const std::string& object) {
  return object == "document" ? schema : schema["$defs"][object];
}

// A schema without its description.
Json WithoutDescription(const Json& schema) {
  Json::object members = schema.object_items();
  members.erase("description");
  return members;
}

TEST(JsonSchema, HasAnObjectPerTable) {
  const Json schema = Parsed(JsonSchema());
  const std::vector<DocumentObject> objects = DocumentObjects();
  ASSERT_FALSE(objects.empty());
  EXPECT_EQ(objects.front().Name(), "document");
  EXPECT_EQ(schema["$ref"], Json()) << "the root is the object itself";
  EXPECT_EQ(schema["$defs"].object_items().size(), objects.size() - 1) << "two share a name";
  for (const DocumentObject& object : objects) {
    EXPECT_NE(object.Name(), "");
    EXPECT_EQ(ObjectName(objects, *object.table), object.Name());
    const Json definition = Definition(schema, object.Name());
    EXPECT_EQ(definition["type"], Json("object")) << object.Name();
    EXPECT_EQ(definition["properties"].object_items().size(), object.table->rows.size());
    EXPECT_EQ(definition["additionalProperties"], Json(false)) << object.Name();
  }
}

TEST(JsonSchema, NamesFamiliesAfterTheirFirstKeyword) {
  const std::vector<DocumentObject> objects = DocumentObjects();
  const auto object = std::ranges::find(objects, "AXIS_PTS_X", &DocumentObject::Name);
  ASSERT_NE(object, objects.end());
  const std::vector<ElementKind> kinds = {ElementKind::AXIS_PTS_X, ElementKind::AXIS_PTS_Y,
                                          ElementKind::AXIS_PTS_Z, ElementKind::AXIS_PTS_4,
                                          ElementKind::AXIS_PTS_5};
  EXPECT_EQ(object->kinds, kinds);
  EXPECT_EQ(ObjectName(objects, ObjectTable{}), "");
}

TEST(JsonSchema, SaysTypePresenceAndAbsence) {
  const Json schema = Parsed(JsonSchema());
  static constexpr struct {
    const char* object;
    const char* key;
    const char* schema;
  } kRows[] = {
      {"document", "FBaseA2LName", R"({"type": "null"})"},
      {"document", "FProject_Name", R"({"type": ["string", "null"]})"},
      {"document", "FModules", R"({"type": "array", "items": {"$ref": "#/$defs/MODULE"}})"},
      {"document", "FASAP2_VERSION_VERSION_NO",
       R"({"type": ["integer", "null"], "minimum": -2147483648, "maximum": 2147483647})"},
      {"MODULE", "FMOD_PAR", R"({"anyOf": [{"$ref": "#/$defs/MOD_PAR"}, {"type": "null"}]})"},
      {"MEASUREMENT", "FDISCRETE", R"({"type": "boolean"})"},
      {"MEASUREMENT", "FISVALID", R"({"type": "boolean"})"},
      {"MEASUREMENT", "FLOWER_LIMIT", R"({"type": ["number", "null"]})"},
      {"MEASUREMENT", "FECU_ADDRESS",
       R"({"type": ["string", "null"], "pattern": "^0x(0|[1-9A-F][0-9A-F]{0,7})$"})"},
      {"MEASUREMENT", "FLAYOUT", R"({"enum": ["ROW_DIR", "COLUMN_DIR", "", null]})"},
      {"MEASUREMENT", "FVIRTUAL", R"({"type": ["string", "null"]})"},
      {"MEASUREMENT", "FMATRIX_DIM",
       R"({"type": "array", "items":
           {"type": "integer", "minimum": -2147483648, "maximum": 2147483647}})"},
      {"CHARACTERISTIC", "FADDRESS",
       R"({"type": "string", "pattern": "^0x(0|[1-9A-F][0-9A-F]{0,7})$"})"},
      {"CHARACTERISTIC", "FMAP_LIST",
       R"({"type": ["array", "null"], "items": {"type": "string"}})"},
      {"COMPU_TAB", "FIN_VAL", R"({"type": "array", "items": {"type": ["number", "null"]}})"},
      {"AXIS_PTS_X", "FINDEX_INCR", R"({"enum": ["INDEX_INCR", "INDEX_DECR"]})"},
      {"INSTANCE", "FOVERWRITE",
       R"({"type": ["array", "null"], "items": {"$ref": "#/$defs/OVERWRITE"}})"},
      {"FUNCTION", "FAR_PROTOTYPE_OF", R"({"type": ["string", "null"]})"},
      {"USER_RIGHTS", "FREF_GROUP", R"({"type": "string"})"},
      {"RECORD_LAYOUT", "FALIGNMENT_WORD",
       R"({"anyOf": [{"type": ["integer", "null"], "minimum": -2147483648, "maximum": 2147483647},
                     {"$ref": "#/$defs/IDENTIFICATION"}]})"},
      {"VARIANT_CODING", "FVAR_FORBIDDEN_COMB",
       R"({"type": "array", "items": {"type": "object", "propertyNames":
           {"type": "string", "pattern": "^F"},
           "additionalProperties": {"type": "string"}}})"},
  };
  for (const auto& row : kRows) {
    const Json property = Definition(schema, row.object)["properties"][row.key];
    EXPECT_EQ(WithoutDescription(property), Parsed(row.schema))
        << row.object << " " << row.key << ": " << property.dump();
  }
}

TEST(JsonSchema, RequiresEveryKeyButThoseThatAreLeftOut) {
  const Json schema = Parsed(JsonSchema());
  for (const DocumentObject& object : DocumentObjects()) {
    const std::string name = object.Name();
    const Json definition = Definition(schema, name);
    const std::size_t keys = definition["properties"].object_items().size();
    const std::size_t required = definition["required"].array_items().size();
    EXPECT_EQ(required, name == "ANNOTATION" ? 0U : keys) << name;
  }
}

TEST(JsonSchema, DescribesEveryObjectAndEveryKey) {
  const Json schema = Parsed(JsonSchema());
  for (const DocumentObject& object : DocumentObjects()) {
    const Json definition = Definition(schema, object.Name());
    EXPECT_NE(definition["description"].string_value(), "") << object.Name();
    for (const auto& [key, property] : definition["properties"].object_items()) {
      const std::string& text = property["description"].string_value();
      EXPECT_TRUE(text.size() > 1 && text.ends_with('.')) << object.Name() << " " << key;
      EXPECT_EQ(text.find("]("), std::string::npos) << object.Name() << " " << key;
    }
  }
  EXPECT_EQ(OriginsWithoutKey(), std::vector<std::string>{});
}

TEST(JsonSchema, DescribesKeysAsThePageDoes) {
  const Json schema = Parsed(JsonSchema());
  static constexpr struct {
    const char* object;
    const char* key;
    const char* description;
  } kRows[] = {
      {"document", "FBaseA2LName", "Always null."},
      {"document", "FProject_Name", "`PROJECT`, first parameter; null without it."},
      {"MEASUREMENT", "FISVALID", "False where the reader found wrong parameters."},
      {"MEASUREMENT", "FNAME", "Parameter."},
      {"MEASUREMENT", "FDISCRETE", "`DISCRETE`; false without it."},
      {"MEASUREMENT", "FANNOTATION", "All `ANNOTATION`; [] without it."},
      {"ANNOTATION", "FANNOTATION_LABEL", "`ANNOTATION_LABEL`; no key without it."},
      {"UNIT", "FUNIT_TYPE", "Parameter. Empty where the file has no known word."},
      {"AXIS_PTS_X", "FDATA_TYPE", "Parameter. `UBYTE` where the file has no known word."},
      {"AXIS_PTS_X", "FADDRESSING",
       "Parameter. `DIRECT` where the file has no known word. No file gives `PLONGLONG`: `PLONG`, "
       "which is part of it, is read instead. Only code can set it."},
      {"TRANSFORMER", "FTRIGGER", "Always empty."},
  };
  for (const auto& row : kRows) {
    EXPECT_EQ(Definition(schema, row.object)["properties"][row.key]["description"].string_value(),
              row.description);
  }
}

TEST(JsonSchema, HasTheWordsThatOnlyCodeCanSet) {
  const Json schema = Parsed(JsonSchema());
  static constexpr struct {
    const char* object;
    const char* key;
    const char* word;
  } kRows[] = {
      {"BLOB", "FADDRESS_TYPE", "PLONGLONG"},
      {"FNC_VALUES", "FADDRESS_TYPE", "PLONGLONG"},
      {"CHARACTERISTIC", "FCALIBRATION_ACCESS", "NO_CALIBRATION"},
      {"MEMORY_SEGMENT", "FPRG_TYPE", "OFFLINE_DATA"},
  };
  for (const auto& row : kRows) {
    const Json words = Definition(schema, row.object)["properties"][row.key]["enum"];
    EXPECT_EQ(std::ranges::count(words.array_items(), Json(row.word)), 1) << row.word;
  }
}

TEST(JsonSchema, EveryGoldenDocumentConforms) {
  const Validator validator(Parsed(JsonSchema()));
  std::size_t count = 0;
  for (const char* folder : {"tests/cases", "examples"}) {
    for (const auto& entry : fs::recursive_directory_iterator(kRepository / folder)) {
      if (entry.path().extension() != ".json") continue;
      EXPECT_TRUE(validator.Conforms(Parsed(ReadFile(entry.path())))) << entry.path();
      ++count;
    }
  }
  EXPECT_GT(count, 100U);
}

TEST(JsonSchema, FindsWhatDoesNotConform) {
  const Validator validator(Parsed(JsonSchema()));
  const Reading reading = Read("ASAP2_VERSION 1 71\n");
  const Json document = ToJson11(*reading.root);
  EXPECT_TRUE(validator.Conforms(document));
  const auto with = [&](const char* key, const Json& value) {
    Json::object members = document.object_items();
    members[key] = value;
    return Json(members);
  };
  EXPECT_TRUE(validator.Conforms(with("FProject_Name", "p")));
  EXPECT_FALSE(validator.Conforms(with("FProject_Name", 1)));
  EXPECT_FALSE(validator.Conforms(with("FModules", Json())));
  EXPECT_FALSE(validator.Conforms(with("FModules", Json::array{Json::object{}})));
  EXPECT_FALSE(validator.Conforms(with("FBaseA2LName", "base")));
  EXPECT_FALSE(validator.Conforms(with("FASAP2_VERSION_VERSION_NO", 1.5)));
  EXPECT_FALSE(validator.Conforms(with("FExtra", Json())));
  Json::object members = document.object_items();
  members.erase("FDatabaseName");
  EXPECT_FALSE(validator.Conforms(Json(members)));
}

}  // namespace
}  // namespace a2l::test
