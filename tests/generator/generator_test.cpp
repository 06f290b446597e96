// SPDX-License-Identifier: MIT
//
// Compares random files with the results that the generator expects: the tree, the document, and
// every message with its line.
#include "tests/generator/generator.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>
#include <json11.hpp>

#include "a2l2json/elements/blocks/raw.h"
#include "a2l2json/export/json11_document.h"
#include "a2l2json/export/json_writer.h"
#include "a2l2json/reader/line_source.h"
#include "tests/generator/random.h"
#include "tests/support/kinds.h"
#include "tests/support/trees.h"

namespace a2l::test {
namespace {

using json11::Json;

constexpr std::uint64_t kSeeds = 800;

Json ToJson11(const Value& value) {
  if (const auto* text = std::get_if<std::string>(&value)) return *text;
  if (const auto* number = std::get_if<std::int32_t>(&value)) return *number;
  if (const auto* number = std::get_if<double>(&value)) return *number;
  return nullptr;
}

// Texts may have the bytes of any character set. They are compared as JSON text, so that a failure
// can show them.
void ExpectJson(const Json& actual, const Json& expected, const std::string& what) {
  EXPECT_EQ(actual.dump(), expected.dump()) << what;
}

std::vector<const Node*> ChildrenOf(const Node& node, std::string_view keyword) {
  std::vector<const Node*> children;
  for (const auto& child : node.children) {
    if (child->keyword == keyword) children.push_back(child.get());
  }
  return children;
}

// -----------------------------------------------------------------------------------------------
// The tree

void ExpectTree(const VoA2LElement& element, const Node& node, const std::string& path) {
  const std::string here = path + "/" + node.keyword;
  ASSERT_EQ(static_cast<std::int32_t>(element.kind), NumberOf(node.keyword)) << here;
  EXPECT_EQ(element.valid != 0, node.valid) << here;
  if (node.keyword == "IF_DATA") {
    const auto& data = static_cast<const VoA2LElementIfData&>(element);
    EXPECT_EQ(Value(std::string(data.NAME)), node.values.at(0)) << here;
    EXPECT_EQ(data.IF_DATA, node.content) << here;
  } else if (node.keyword == "A2ML") {
    EXPECT_EQ(static_cast<const VoA2LElementA2ML&>(element).A2ML, node.content) << here;
  } else if (node.keyword == "?") {
    EXPECT_EQ(static_cast<const VoA2LElementUnknown&>(element).TEXT, node.content) << here;
  }
  ASSERT_EQ(element.ChildCount(), node.children.size()) << here;
  for (std::size_t i = 0; i < node.children.size(); ++i) {
    ExpectTree(*element.Child(i), *node.children[i], here + "[" + std::to_string(i) + "]");
  }
}

// -----------------------------------------------------------------------------------------------
// The document

// The parameters of a keyword as members of an object.
void ExpectParameters(const Json& json, const Node& node, const std::string& here) {
  const Keyword& keyword = Find(node.keyword);
  for (std::size_t i = 0; i < keyword.parameters.size(); ++i) {
    const std::string name(keyword.parameters[i].name);
    if (name.size() == 2 && name[0] == 'O') continue;  // the offsets of memory
    Json expected = ToJson11(node.values.at(i));
    if (node.keyword == "MEASUREMENT" && name == "RESOLUTION") expected = 1;
    if (node.keyword == "MEASUREMENT" && name == "ACCURACY") expected = 0;
    ExpectJson(json["F" + name], expected, here + "/" + name);
  }
}

bool HasMemberOfItsOwn(const Node& node, std::string_view property) {
  // The record layout of an axis hides the keyword DEPOSIT. Identifications stand under another
  // key. The others are put together from several values or properties.
  static const std::set<std::string_view> kOthers = {
      "COEFFS",          "COEFFS_LINEAR",           "ADDR_EPK",
      "SYSTEM_CONSTANT", "IDENTIFICATION",          "RESERVED",
      "ALIGNMENT_WORD",  "CALIBRATION_HANDLE_TEXT", "FRAME_MEASUREMENT",
      "CONVERSION"};
  return !kOthers.contains(property) && property != "SIGN_EXTEND" &&
         !(node.keyword == "AXIS_PTS" && property == "DEPOSIT");
}

std::string TextOf(const Value& value) { return std::get<std::string>(value); }

std::string Join(const std::vector<Value>& items, std::string (*toText)(const Value&)) {
  std::string joined;
  for (const Value& item : items) joined += toText(item) + ',';
  if (!joined.empty()) joined.pop_back();
  return joined;
}

Json::array ArrayOf(const std::vector<Value>& items) {
  Json::array array;
  for (const Value& item : items) array.push_back(ToJson11(item));
  return array;
}

void ExpectProperty(const Json& json, const Keyword& property, const Node* first,
                    const std::string& here) {
  const Json& actual = json["F" + std::string(property.text)];
  if (first == nullptr) {
    const bool isFlag = property.parameters.empty() && property.list.empty();
    ExpectJson(actual,
               isFlag                  ? Json(false)
               : property.list.empty() ? Json()
                                       : Json(Json::array()),
               here);
  } else if (!first->isRead) {
    return;
  } else if (!property.list.empty()) {
    ExpectJson(actual, ArrayOf(first->items), here);
  } else if (property.parameters.empty()) {
    ExpectJson(actual, true, here);
  } else if (property.parameters.size() == 1 && property.parameters[0].name == property.text) {
    ExpectJson(actual, ToJson11(first->values.at(0)), here);
  } else {
    ExpectParameters(actual, *first, here);
  }
}

// Unsigned numbers as in a list that is one text.
std::string InDecimal(const Value& number) {
  return std::to_string(static_cast<std::uint32_t>(std::get<std::int32_t>(number)));
}

// Reals with commas between them, each as a text that reads back to the same real.
void ExpectReals(const Json& actual, const std::vector<Value>& reals, const std::string& here) {
  ASSERT_TRUE(actual.is_string()) << here;
  std::istringstream texts(actual.string_value());
  std::string text;
  for (const Value& real : reals) {
    std::getline(texts, text, ',');
    const double actualReal = std::strtod(text.c_str(), nullptr);
    const auto* number = std::get_if<double>(&real);
    if (number == nullptr && !std::holds_alternative<std::int32_t>(real)) {
      EXPECT_FALSE(std::isfinite(actualReal)) << here << ": " << text;
      continue;
    }
    const double expected = number != nullptr ? *number : std::get<std::int32_t>(real);
    EXPECT_EQ(std::bit_cast<std::uint64_t>(actualReal), std::bit_cast<std::uint64_t>(expected))
        << here << ": " << text << " for " << expected;
  }
  EXPECT_TRUE(reals.empty() ? actual.string_value().empty() : texts.eof()) << here;
}

// The first child of the keyword, or null.
const Node* FirstOf(const Node& node, std::string_view keyword) {
  const std::vector<const Node*> children = ChildrenOf(node, keyword);
  return children.empty() ? nullptr : children.front();
}

// The value under the key of the word alignment of a layout. If an identification comes first, it
// takes the place of the alignment.
void ExpectIdentification(const Json& json, const Node& node, const std::string& here) {
  for (const auto& child : node.children) {
    if (child->keyword == "ALIGNMENT_WORD") {
      ExpectJson(json["FALIGNMENT_WORD"], ToJson11(child->values.at(0)), here);
      return;
    }
    if (child->keyword == "IDENTIFICATION") {
      ExpectParameters(json["FALIGNMENT_WORD"], *child, here);
      return;
    }
  }
  ExpectJson(json["FALIGNMENT_WORD"], nullptr, here);
}

// The value under a key of several kinds of objects that is put together from others.
void ExpectSpecialKeys(const Json& json, const Node& node, const std::string& here) {
  const auto handle = [](const Value& item) {
    return std::to_string(std::get<std::int32_t>(item));
  };
  if (node.keyword == "MEMORY_LAYOUT" || node.keyword == "MEMORY_SEGMENT") {
    const std::vector<Value> offsets(node.values.end() - 5, node.values.end());
    ExpectJson(json["FOFFSET"], Join(offsets, handle), here);
  } else if (node.keyword == "CALIBRATION_HANDLE") {
    ExpectJson(json["FHANDLE"], Join(node.items, handle), here);
    const Node* text = FirstOf(node, "CALIBRATION_HANDLE_TEXT");
    ExpectJson(json["FHANDLE_TEXT"], text ? ToJson11(text->values.at(0)) : Json(), here);
  } else if (node.keyword == "BIT_OPERATION") {
    const bool extends = !ChildrenOf(node, "SIGN_EXTEND").empty();
    ExpectJson(json["FSIGN_EXTEND"], extends ? Json("SIGN_EXTEND") : Json(), here);
  } else if (node.keyword == "VAR_CRITERION") {
    ExpectJson(json["FVALUE"], Join(node.items, TextOf), here);
  } else if (node.keyword == "VAR_CHARACTERISTIC") {
    ExpectJson(json["FCRITERION_NAME"], Join(node.items, TextOf), here);
    const bool isFirst = !node.children.empty() && node.children.front()->keyword == "VAR_ADDRESS";
    ExpectJson(json["FVAR_ADDRESS"],
               isFirst ? Json(Join(node.children.front()->items, InDecimal)) : Json(), here);
  } else if (node.keyword == "MOD_PAR") {
    std::vector<Value> addresses;
    for (const Node* child : ChildrenOf(node, "ADDR_EPK")) {
      addresses.push_back(child->values.at(0));
    }
    ExpectJson(json["FADDR_EPK"], addresses.empty() ? Json() : Json(Join(addresses, InDecimal)),
               here);
  } else if (node.keyword == "USER_RIGHTS") {
    std::string groups;
    for (const Node* child : ChildrenOf(node, "REF_GROUP")) groups += Join(child->items, TextOf);
    ExpectJson(json["FREF_GROUP"], groups, here);
  } else if (node.keyword == "COMPU_METHOD") {
    for (const char* coefficients : {"COEFFS", "COEFFS_LINEAR"}) {
      const Json& actual = json["F" + std::string(coefficients)];
      const Node* first = FirstOf(node, coefficients);
      if (first != nullptr) ExpectReals(actual, first->values, here);
      if (first == nullptr) ExpectJson(actual, nullptr, here);
    }
  } else if (node.keyword == "RECORD_LAYOUT") {
    ExpectIdentification(json, node, here);
    ExpectJson(json["FIDENTIFICATION"], nullptr, here);
  } else if (node.keyword == "MOD_COMMON") {
    const Node* first = FirstOf(node, "ALIGNMENT_WORD");
    ExpectJson(json["FALIGNMENT_WORD"], first ? ToJson11(first->values.at(0)) : Json(), here);
  } else if (node.keyword == "OVERWRITE") {
    EXPECT_FALSE(json.object_items().contains("FCONVERSION")) << here;
  }
  // Lists that are arrays in all objects, here or one level below.
  for (const char* list : {"MAP_LIST", "TRANSFORMER_IN_OBJECTS", "TRANSFORMER_OUT_OBJECTS",
                           "FRAME_MEASUREMENT", "DEPENDENT_CHARACTERISTIC",
                           "VIRTUAL_CHARACTERISTIC", "FIX_AXIS_PAR_LIST", "AR_COMPONENT"}) {
    if (!Find(node.keyword).Accepts(list)) continue;
    const std::string key = "F" + std::string(list);
    const Node* first = FirstOf(node, list);
    if (first == nullptr) {
      ExpectJson(json[key], nullptr, here + "/" + list);
    } else if (first->keyword == "AR_COMPONENT") {
      ExpectJson(json[key], ToJson11(first->values.at(0)), here + "/" + list);
    } else if (first->keyword == "FIX_AXIS_PAR_LIST") {
      ExpectReals(json[key], first->items, here + "/" + list);
    } else if (first->values.empty()) {
      ExpectJson(json[key], ArrayOf(first->items), here + "/" + list);
    } else {
      ExpectJson(json[key]["FFORMULA"], ToJson11(first->values.at(0)), here + "/" + list);
      ExpectJson(json[key]["FCHARACTERISTIC"],
                 first->keyword == "VIRTUAL_CHARACTERISTIC" ? Json(Join(first->items, TextOf))
                                                            : Json(ArrayOf(first->items)),
                 here + "/" + list);
    }
  }
  if (node.keyword == "FUNCTION") {
    Json prototype;
    for (const Node* component : ChildrenOf(node, "AR_COMPONENT")) {
      const Node* first = FirstOf(*component, "AR_PROTOTYPE_OF");
      if (first != nullptr && prototype.is_null()) prototype = ToJson11(first->values.at(0));
    }
    ExpectJson(json["FAR_PROTOTYPE_OF"], prototype, here);
  }
}

// An annotation has a key only if it has the property.
void ExpectAnnotation(const Json& json, const Node& node, const std::string& here) {
  Json::object expected;
  for (const char* property : {"ANNOTATION_LABEL", "ANNOTATION_ORIGIN", "ANNOTATION_TEXT"}) {
    const Node* first = FirstOf(node, property);
    if (first == nullptr) continue;
    std::string text;
    for (const Value& line : first->items) text += TextOf(line);
    expected["F" + std::string(property)] =
        first->values.empty() ? Json(text) : ToJson11(first->values.at(0));
  }
  ExpectJson(json, expected, here);
}

// If a criterion is named twice, its first value counts.
void ExpectCombinations(const Json& json, const Node& node, const std::string& here) {
  Json::array expected;
  for (const Node* child : ChildrenOf(node, "VAR_FORBIDDEN_COMB")) {
    Json::object combination;
    for (std::size_t i = 0; i + 1 < child->items.size(); i += 2) {
      combination.emplace("F" + std::get<std::string>(child->items[i]),
                          ToJson11(child->items[i + 1]));
    }
    expected.emplace_back(combination);
  }
  ExpectJson(json["FVAR_FORBIDDEN_COMB"], expected, here);
}

// A list of names as one text.
void ExpectNames(const Json& json, const Keyword& list, const Node* first,
                 const std::string& here) {
  Json expected;
  if (first != nullptr) {
    expected = Join(first->items, TextOf);
  }
  ExpectJson(json["F" + std::string(list.text)], expected, here);
}

void ExpectColumns(const Json& json, const Node& node, const std::string& here) {
  const Keyword& keyword = Find(node.keyword);
  for (std::size_t column = 0; column < keyword.columns.size(); ++column) {
    Json::array expected;
    for (std::size_t i = column; i < node.items.size(); i += keyword.columns.size()) {
      expected.push_back(ToJson11(node.items[i]));
    }
    const std::string name(keyword.columns[column].name);
    ExpectJson(json["F" + name], expected, here + "/" + name);
  }
}

void ExpectObject(const Json& json, const Node& node, const std::string& here);

// Blocks or properties of one kind as an array of objects, in the order of the file.
void ExpectObjects(const Json& json, const Node& node, std::string_view keyword,
                   const std::string& path) {
  const std::string here = path + "/" + std::string(keyword);
  const std::vector<const Node*> expected = ChildrenOf(node, keyword);
  const Json& actual = json["F" + std::string(keyword)];
  const bool isNull =
      expected.empty() && (keyword == "OVERWRITE" || keyword == "STRUCTURE_COMPONENT");
  ASSERT_EQ(actual.is_array(), !isNull) << here;
  ASSERT_EQ(actual.array_items().size(), expected.size()) << here;
  for (std::size_t i = 0; i < expected.size(); ++i) {
    ExpectObject(actual[i], *expected[i], here + "[" + std::to_string(i) + "]");
  }
}

void ExpectObject(const Json& json, const Node& node, const std::string& here) {
  ASSERT_TRUE(json.is_object()) << here;
  const Keyword& keyword = Find(node.keyword);
  if (keyword.isRaw) {
    ExpectJson(json["FNAME"], ToJson11(node.values.at(0)), here);
    ExpectJson(json["FIF_DATA"], node.content, here);
    return;
  }
  if (node.keyword == "ANNOTATION") {
    ExpectAnnotation(json, node, here);
    return;
  }
  ExpectParameters(json, node, here);
  ExpectSpecialKeys(json, node, here);
  if (keyword.onWrongNumber == OnWrongNumber::MarkAndGoOn) {
    ExpectJson(json["FISVALID"], node.valid, here);
  }
  if (!keyword.columns.empty()) ExpectColumns(json, node, here);
  for (const std::string_view text : keyword.children) {
    const Keyword& child = Find(text);
    const Node* first = FirstOf(node, text);
    const std::string path = here + "/" + std::string(text);
    const bool isNames = child.parameters.empty() && child.list.size() == 1 &&
                         child.list[0].type == ParameterType::Name;
    static const std::set<std::string_view> kArrays = {
        "IF_DATA",        "AXIS_DESCR",         "OVERWRITE",          "STRUCTURE_COMPONENT",
        "ANNOTATION",     "CALIBRATION_METHOD", "MEMORY_LAYOUT",      "MEMORY_SEGMENT",
        "VAR_CRITERION",  "VAR_CHARACTERISTIC", "CALIBRATION_HANDLE", "RESERVED",
        "SYSTEM_CONSTANT"};
    if (kArrays.contains(text)) {
      ExpectObjects(json, node, text, here);
    } else if (text == "VAR_FORBIDDEN_COMB") {
      ExpectCombinations(json, node, here);
    } else if (text == "BIT_OPERATION" || text == "FORMULA") {
      const Json& object = json["F" + std::string(text)];
      if (first != nullptr) ExpectObject(object, *first, path);
      if (first == nullptr) ExpectJson(object, nullptr, path);
    } else if (child.isBlock && isNames && text != "MAP_LIST" && text != "REF_GROUP") {
      ExpectNames(json, child, first, path);
    } else if (!child.isBlock && HasMemberOfItsOwn(node, text)) {
      ExpectProperty(json, child, first, path);
    }
  }
}

void ExpectModule(const Json& json, const Node& module) {
  ExpectParameters(json, module, "MODULE");
  for (const std::string_view text : Find("MODULE").children) {
    const std::string key = "F" + std::string(text);
    const Node* first = FirstOf(module, text);
    const bool isSingle = text == "FRAME" || text == "MOD_COMMON" || text == "MOD_PAR" ||
                          text == "VARIANT_CODING" || text == "A2ML";
    if (!isSingle) {
      ExpectObjects(json, module, text, "MODULE");
    } else if (first == nullptr) {
      ExpectJson(json[key], nullptr, key);
    } else if (text == "A2ML") {
      ExpectJson(json[key], first->content, key);
    } else {
      ExpectObject(json[key], *first, key);
    }
  }
}

// The keys of the document about the project. The first value in the file counts for each key.
void ExpectProject(const Json& document, const Node& root) {
  Json::object expected = {{"FBaseA2LName", nullptr}};
  const auto enter = [&expected](const std::string& key, const Node* node, std::size_t parameter) {
    Json& value = expected[key];
    if (node != nullptr && value.is_null()) value = ToJson11(node->values.at(parameter));
  };
  for (const std::string keyword : {"A2ML_VERSION", "ASAP2_VERSION"}) {
    enter("F" + keyword + "_VERSION_NO", FirstOf(root, keyword), 0);
    enter("F" + keyword + "_UPGRADE_NO", FirstOf(root, keyword), 1);
  }
  enter("FProject_Name", FirstOf(root, "PROJECT"), 0);
  enter("FProject_LONG_IDENTIFIER", FirstOf(root, "PROJECT"), 1);
  std::vector<const Node*> headers = {nullptr};
  for (const Node* project : ChildrenOf(root, "PROJECT")) {
    for (const Node* header : ChildrenOf(*project, "HEADER")) headers.push_back(header);
  }
  for (const Node* header : headers) {
    const auto property = [header](const char* keyword) {
      return header != nullptr ? FirstOf(*header, keyword) : nullptr;
    };
    enter("FProject_HEADER_COMMENT", header, 0);
    enter("FProject_HEADER_VERSION", property("VERSION"), 0);
    enter("FProject_HEADER_PROJECT_NO", property("PROJECT_NO"), 0);
  }
  for (const auto& [key, value] : expected) {
    EXPECT_TRUE(document.object_items().contains(key)) << key;
    ExpectJson(document[key], value, key);
  }
}

void ExpectDocument(const Json& document, const Node& root) {
  ExpectProject(document, root);
  std::vector<const Node*> modules;
  for (const Node* project : ChildrenOf(root, "PROJECT")) {
    for (const Node* module : ChildrenOf(*project, "MODULE")) modules.push_back(module);
  }
  ASSERT_EQ(document["FModules"].array_items().size(), modules.size());
  for (std::size_t i = 0; i < modules.size(); ++i) {
    ExpectModule(document["FModules"][i], *modules[i]);
  }
  ExpectJson(document["FDatabaseName"],
             modules.empty() ? Json() : ToJson11(modules.front()->values.at(0)), "FDatabaseName");
}

// The same messages, `raise` lines further down.
std::string WithLinesRaised(std::string_view message, std::size_t raise) {
  std::string raised;
  while (!message.empty()) {
    const std::size_t number = message.find('(') + 1;
    const std::size_t behind = message.find(')');
    const std::size_t end = message.find('\n') + 1;
    raised += message.substr(0, number);
    raised += std::to_string(std::stoul(std::string(message.substr(number))) + raise);
    raised += message.substr(behind, end - behind);
    message.remove_prefix(end);
  }
  return raised;
}

TEST(Generator, FilesAreReadAsTheyWereMeant) {
  for (std::uint64_t seed = 0; seed < kSeeds && !testing::Test::HasFailure(); ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    const GeneratedFile file = Generate(seed);
    const Reading reading = Read(file.text);
    EXPECT_EQ(reading.ok, file.ok);
    EXPECT_EQ(reading.reader.message, file.message);
    ExpectTree(*reading.root, file.root, "");

    const std::string json = a2l::ToJson(*reading.root);
    std::string error;
    const Json document = Json::parse(json, error);
    ASSERT_EQ(error, "");
    ExpectDocument(document, file.root);
    EXPECT_EQ(json, a2l::ToJson11(*reading.root).dump());
    if (HasFailure()) ADD_FAILURE() << file.text;
  }
}

// A generator that always makes the same file would test nothing.
TEST(Generator, FilesHoldEveryKeywordAndEveryMessage) {
  std::set<std::string> keywords;
  std::set<std::string> broken;
  bool hasEncoding = false;
  std::map<std::string, int> messages;
  std::map<bool, int> results;
  std::map<std::string, std::map<bool, int>> validities;
  std::set<std::string> refused;
  bool hasCarriageReturns = false;
  for (std::uint64_t seed = 0; seed < kSeeds; ++seed) {
    const GeneratedFile file = Generate(seed);
    std::vector<const Node*> nodes = {&file.root};
    while (!nodes.empty()) {
      const Node& node = *nodes.back();
      nodes.pop_back();
      keywords.insert(node.keyword);
      ++validities[node.keyword][node.valid];
      if (node.isBroken) broken.insert(node.keyword);
      for (const auto& child : node.children) nodes.push_back(child.get());
    }
    for (std::string_view rest = file.message; !rest.empty();) {
      std::string_view line = rest.substr(0, rest.find('\n'));
      rest.remove_prefix(line.size() + 1);
      line.remove_prefix(line.find(')') + 2);
      // Up to the keyword, word or number that it names.
      const std::string_view message = line.substr(0, line.rfind(' '));
      ++messages[std::string(message)];
      if (message == "unexpected property of element") {
        refused.emplace(line.substr(message.size() + 1));
      }
    }
    ++results[file.ok];
    hasEncoding = hasEncoding || file.message.ends_with(" ENCODING\n");
    hasCarriageReturns = hasCarriageReturns || file.text.find('\r') != std::string::npos;
  }
  for (const NumberedKeyword& keyword : AllKeywords()) {
    if (keyword.keyword == "ENCODING") continue;  // which gives a message instead of an element
    EXPECT_TRUE(keywords.contains(keyword.keyword)) << keyword.keyword;
    if (std::ranges::any_of(Find(keyword.keyword).parameters, CanBeWrong)) {
      EXPECT_TRUE(broken.contains(keyword.keyword)) << keyword.keyword;
    }
  }
  EXPECT_TRUE(hasEncoding);
  EXPECT_TRUE(keywords.contains("?"));
  for (const char* message :
       {"wrong parameters", "element need more parameters", "unexpected element",
        "Cannot find comment end */", "unexpected element with /begin",
        "unexpected property of element", "/end don't equal /begin",
        "unexpected element, this element need /begin"}) {
    EXPECT_GE(messages[message], 3) << message;
  }
  EXPECT_GE(results[false], 20);
  EXPECT_GE(results[true], 200);
  for (const char* object : {"AXIS_PTS", "BLOB", "CHARACTERISTIC", "INSTANCE", "MEASUREMENT"}) {
    EXPECT_GE(validities[object][false], 10) << object;
    EXPECT_GE(validities[object][true], 10) << object;
  }
  EXPECT_GE(refused.size(), 30U) << "too few refused keywords";
  EXPECT_TRUE(hasCarriageReturns);
}

TEST(Generator, GivesTheSameFileForTheSameSeed) {
  EXPECT_EQ(Generate(7).text, Generate(7).text);
  EXPECT_NE(Generate(7).text, Generate(8).text);
}

// The reader has one piece of the file in memory at a time. A comment in front only changes the
// places in the following lines at which pieces end.
TEST(Generator, FilesAreReadTheSameWhereverTheirPiecesEnd) {
  for (std::uint64_t seed = 0; seed < 60; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    const GeneratedFile file = Generate(seed);
    const std::size_t place = Random(seed).Below(file.text.size());
    std::string padding = "/*";
    while (padding.size() + place + 100 < LineSource::kPieceSize) {
      padding += std::string(90, '.') + "*//*\n";
    }
    padding += std::string(LineSource::kPieceSize - padding.size() - place - 3, '.') + "*/\n";
    const auto lines = static_cast<std::size_t>(std::ranges::count(padding, '\n'));

    const Reading padded = Read(padding + file.text);
    EXPECT_EQ(padded.ok, file.ok);
    EXPECT_EQ(padded.reader.message, WithLinesRaised(file.message, lines));
    ExpectTree(*padded.root, file.root, "");
    EXPECT_EQ(a2l::ToJson(*padded.root), a2l::ToJson(*Read(file.text).root));
    if (HasFailure()) return;
  }
}

// Reads the lines of every keyword at a place where it may stand.
TEST(Generator, LinesOfEveryKeywordAreReadWithoutAMessage) {
  const auto parentOf = [](std::string_view child) {
    for (const Keyword& keyword : Grammar()) {
      if (keyword.Accepts(child)) return keyword.text;
    }
    return std::string_view{};
  };
  for (const Keyword& keyword : Grammar()) {
    std::string before;
    for (std::string_view parent = parentOf(keyword.text); !parent.empty();
         parent = parentOf(parent)) {
      const Keyword& block = Find(parent);
      std::string head = "/begin " + std::string(parent);
      for (const Parameter& parameter : block.parameters) {
        head += parameter.type == ParameterType::Text ? " \"\"" : " 0";
      }
      before.insert(0, head + "\n");
    }
    for (std::uint64_t seed = 0; seed < 3; ++seed) {
      const std::string lines = GenerateLines(keyword.text, seed);
      const Reading reading = Read(before + lines);
      EXPECT_TRUE(reading.ok) << before << lines;
      EXPECT_EQ(reading.reader.message, "") << before << lines;
    }
  }
}

}  // namespace
}  // namespace a2l::test
