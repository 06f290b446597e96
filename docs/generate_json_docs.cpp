// SPDX-License-Identifier: MIT
//
// Writes what the documentation takes from the tables of the export: docs/json.schema.json, and
// the tables of keys in docs/json.md between the two marker lines.
//
//   generate_json_docs <docs folder>           writes them
//   generate_json_docs --check <docs folder>   says which of them are out of date
#include <algorithm>
#include <cstddef>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "a2l2json/export/json_schema.h"

namespace a2l {
namespace {

constexpr std::string_view kBegin = "<!-- generated: the tables of keys -->\n";
constexpr std::string_view kEnd = "<!-- end of what is generated -->\n";

/// What stands in the column "From" where the table cannot tell it.
struct Origin {
  std::string_view object;  // empty for all that have the key
  std::string_view key;
  std::string_view text;
};
constexpr Origin kOrigins[] = {
    {"", "FISVALID", "false where the reader found [wrong parameters](#fisvalid)"},
    {"document", "FA2ML_VERSION_UPGRADE_NO", "`A2ML_VERSION`, second parameter"},
    {"document", "FA2ML_VERSION_VERSION_NO", "`A2ML_VERSION`, first parameter"},
    {"document", "FASAP2_VERSION_UPGRADE_NO", "`ASAP2_VERSION`, second parameter"},
    {"document", "FASAP2_VERSION_VERSION_NO", "`ASAP2_VERSION`, first parameter"},
    {"document", "FDatabaseName", "name of the first `MODULE`"},
    {"document", "FProject_HEADER_COMMENT", "`HEADER`, parameter"},
    {"document", "FProject_HEADER_PROJECT_NO", "`PROJECT_NO` in the `HEADER`"},
    {"document", "FProject_HEADER_VERSION", "`VERSION` in the `HEADER`"},
    {"document", "FProject_LONG_IDENTIFIER", "`PROJECT`, second parameter"},
    {"document", "FProject_Name", "`PROJECT`, first parameter"},
    {"MODULE", "FA2ML", "`A2ML`, all that stands in it"},
    {"IF_DATA", "FIF_DATA", "all that follows the name"},
    {"IF_DATA", "FNAME", "the first word"},
    {"ANNOTATION", "FANNOTATION_TEXT", "`ANNOTATION_TEXT`, [its texts put together](#annotations)"},
    {"AXIS_PTS", "FDEPOSIT", "parameter: [the record layout](#fdeposit)"},
    {"CHARACTERISTIC", "FDEPOSIT", "parameter: [the record layout](#fdeposit)"},
    {"MEASUREMENT", "FACCURACY", "[always 0](#fresolution-and-faccuracy)"},
    {"MEASUREMENT", "FRESOLUTION", "[always 1](#fresolution-and-faccuracy)"},
    {"BIT_OPERATION", "FSIGN_EXTEND", "`SIGN_EXTEND`: the keyword itself"},
    {"FUNCTION", "FAR_PROTOTYPE_OF", "`AR_PROTOTYPE_OF` in an `AR_COMPONENT`"},
    {"RECORD_LAYOUT", "FALIGNMENT_WORD",
     "`ALIGNMENT_WORD` or `IDENTIFICATION`, [whichever comes first]"
     "(#fidentification-and-falignment_word)"},
    {"FNC_VALUES", "FADDRESS_TYPE", "parameter: [the addressing](#fnc_values-and-freserved)"},
    {"RESERVED", "FDATA_TYPE", "parameter: [the data size](#fnc_values-and-freserved)"},
    {"TRANSFORMER", "FINVERSE_TRANSFORMER", "[always empty](#transformers)"},
    {"TRANSFORMER", "FTIMEOUT", "[always 0](#transformers)"},
    {"TRANSFORMER", "FTRIGGER", "[always empty](#transformers)"},
    {"COMPU_TAB", "FIN_VAL", "rows: first value"},
    {"COMPU_TAB", "FOUT_VAL", "rows: second value"},
    {"COMPU_VTAB", "FIN_VAL", "rows: the value"},
    {"COMPU_VTAB", "FOUT_VAL", "rows: the text"},
    {"COMPU_VTAB_RANGE", "FIN_VAL_MAX", "rows: second value"},
    {"COMPU_VTAB_RANGE", "FIN_VAL_MIN", "rows: first value"},
    {"COMPU_VTAB_RANGE", "FOUT_VAL", "rows: the text"},
    {"USER_RIGHTS", "FREF_GROUP", "all `REF_GROUP`, [put together](#joined-texts)"},
    {"MOD_PAR", "FADDR_EPK", "all `ADDR_EPK`, [in decimal](#addresses)"},
    {"VAR_CHARACTERISTIC", "FVAR_ADDRESS",
     "`VAR_ADDRESS`, [only as the first block](#fvar_address), [in decimal](#addresses)"},
};
std::string Code(std::string_view text) { return "`" + std::string(text) + "`"; }

std::string LowerCase(std::string text) {
  for (char& c : text) c = c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
  return text;
}

class KeyTables {
 public:
  /// A section per object. Objects whose tables read the same share one.
  std::string Text() {
    for (const DocumentObject& object : objects_) {
      const std::string rows = Rows(object);
      auto section = std::ranges::find(sections_, rows, &Section::rows);
      if (section == sections_.end()) {
        sections_.push_back({&object, {}, rows});
        section = sections_.end() - 1;
      }
      section->kinds.insert(section->kinds.end(), object.kinds.begin(), object.kinds.end());
    }
    std::string text;
    for (const Section& section : sections_) text += Print(section);
    if (!unusedOrigins_.empty()) {
      throw std::logic_error("no such key: " + *unusedOrigins_.begin());
    }
    return text;
  }

 private:
  struct Section {
    const DocumentObject* object;  // the first one
    std::vector<ElementKind> kinds;
    std::string rows;  // with links to the objects, not to the sections
  };

  std::string Print(const Section& section) {
    std::string text = "### " + section.object->Name() + "\n\n";
    if (section.kinds.size() > 1) {
      text += "Also";
      for (std::size_t i = 1; i < section.kinds.size(); ++i) {
        text += (i == 1 ? " " : ", ") + Code(KindToKeyword(section.kinds[i]));
      }
      text += ".\n\n";
    }
    return text + "| Key | Type | From | Without it |\n|---|---|---|---|\n" +
           Rows(*section.object) + "\n";
  }

  std::string Rows(const DocumentObject& object) {
    std::string text;
    for (const Row& row : object.table->rows) {
      text += "| " + Code(row.key) + " | " + TypeOf(row) + " | " + OriginOf(object, row) + " | " +
              AbsentValue(row) + " |\n";
    }
    return text;
  }

  // The section of an object has the heading of the first one that shares it.
  [[nodiscard]] std::string Link(const ObjectTable& table) const {
    const auto object = std::ranges::find(objects_, &table, &DocumentObject::table);
    const auto section = std::ranges::find_if(sections_, [&](const Section& candidate) {
      return std::ranges::find(candidate.kinds, object->kinds.front()) != candidate.kinds.end();
    });
    const std::string name = section != sections_.end() ? section->object->Name() : object->Name();
    return "[" + object->Name() + "](#" + LowerCase(name) + ")";
  }

  [[nodiscard]] std::string TypeOf(const Row& row) const {
    switch (row.source) {
      case Source::Presence:
        return "boolean";
      case Source::Children:
      case Source::Grandchildren:
        return "array of " + TypeOf(row.form);
      case Source::Element:
      case Source::FirstChild:
      case Source::Found:
        break;
    }
    return TypeOf(row.form) + (row.otherKind != KIND_ROOT ? " or " + TypeOf(row.otherForm) : "");
  }

  [[nodiscard]] std::string TypeOf(const Form& form) const {
    struct Name {
      const KeyTables& tables;
      std::string operator()(std::monostate /*nothing*/) const { return "null"; }
      std::string operator()(TextForm /*form*/) const { return "text"; }
      std::string operator()(BuiltTextForm /*form*/) const { return "joined text"; }
      std::string operator()(AddressForm /*form*/) const { return "address"; }
      std::string operator()(BoolForm /*form*/) const { return "boolean"; }
      std::string operator()(IntegerForm /*form*/) const { return "integer"; }
      std::string operator()(RealForm /*form*/) const { return "real"; }
      std::string operator()(TextArrayForm /*form*/) const { return "array of texts"; }
      std::string operator()(RealArrayForm /*form*/) const { return "array of reals"; }
      std::string operator()(IntegerArrayForm /*form*/) const { return "array of integers"; }
      std::string operator()(NamedValuesForm /*form*/) const {
        return "[object of texts](#forbidden-combinations)";
      }
      std::string operator()(ObjectForm table) const { return tables.Link(*table); }
      std::string operator()(WordForm form) const {
        std::string text = "word: ";
        std::string comma;
        for (const Word& word : form.words->words) {
          if (form.words->Find(word.text) != &word) continue;  // never read
          text += std::exchange(comma, ", ") + Code(word.text);
        }
        return text + (form.words->ToText(form.words->fallback).empty() ? " or empty" : "");
      }
    };
    return std::visit(Name{*this}, form);
  }

  std::string OriginOf(const DocumentObject& object, const Row& row) {
    for (const Origin& origin : kOrigins) {
      if (origin.key == row.key && (origin.object.empty() || origin.object == object.Name())) {
        unusedOrigins_.erase(NameOf(origin));
        return std::string(origin.text);
      }
    }
    switch (row.source) {
      case Source::Element:
        if (std::holds_alternative<std::monostate>(row.form)) return "[nothing](#always-null)";
        return "parameter";
      case Source::Presence:
      case Source::FirstChild:
        return Code(KindToKeyword(row.kind));
      case Source::Children:
        return "all " + Code(KindToKeyword(row.kind));
      case Source::Grandchildren:
        return "all " + Code(KindToKeyword(row.grandchild));
      case Source::Found:
        break;
    }
    throw std::logic_error("where does it come from: " + object.Name() + " " +
                           std::string(row.key));
  }

  static std::string AbsentValue(const Row& row) {
    if (row.source == Source::Presence) return "false";
    if (row.source == Source::Element) return "";
    switch (row.absent) {
      case Absent::Null:
        return "null";
      case Absent::EmptyArray:
        return "[]";
      case Absent::Omit:
        return "no key";
    }
    return "";
  }

  static std::string NameOf(const Origin& origin) {
    return std::string(origin.object) + " " + std::string(origin.key);
  }

  std::vector<DocumentObject> objects_ = DocumentObjects();
  std::vector<Section> sections_;
  std::set<std::string> unusedOrigins_ = [] {
    std::set<std::string> names;
    for (const Origin& origin : kOrigins) names.insert(NameOf(origin));
    return names;
  }();
};

std::string ReadFile(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in.is_open()) throw std::runtime_error("cannot read " + path.string());
  return {std::istreambuf_iterator<char>(in), {}};
}

void WriteFile(const std::filesystem::path& path, const std::string& text) {
  std::ofstream out(path, std::ios::binary);
  out << text;
  out.close();
  if (!out) throw std::runtime_error("cannot write " + path.string());
}

// The page with new tables of keys.
std::string WithTables(const std::string& page) {
  const std::size_t begin = page.find(kBegin);
  const std::size_t end = page.find(kEnd);
  if (begin == std::string::npos || end == std::string::npos || end < begin) {
    throw std::runtime_error("the page has no markers");
  }
  return page.substr(0, begin + kBegin.size()) + "\n" + KeyTables().Text() + page.substr(end);
}

int Run(const std::vector<std::string>& arguments) {
  const bool check = arguments.size() == 2 && arguments[0] == "--check";
  if (!check && arguments.size() != 1) {
    std::cerr << "usage: generate_json_docs [--check] <docs folder>\n";
    return 2;
  }
  const std::filesystem::path folder = arguments.back();
  const std::string page = ReadFile(folder / "json.md");
  const std::pair<const char*, std::string> files[] = {{"json.schema.json", JsonSchema()},
                                                       {"json.md", WithTables(page)}};
  int result = 0;
  for (const auto& [name, text] : files) {
    if (!check) {
      WriteFile(folder / name, text);
    } else if (ReadFile(folder / name) != text) {
      std::cerr << name << " is out of date; run generate_json_docs\n";
      result = 1;
    }
  }
  return result;
}

}  // namespace
}  // namespace a2l

int main(int argc, char* argv[]) {
  try {
    return a2l::Run({argv + 1, argv + argc});
  } catch (const std::exception& error) {
    std::cerr << "generate_json_docs: " << error.what() << "\n";
    return 2;
  }
}
