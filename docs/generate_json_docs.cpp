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
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "a2l2json/export/json_schema.h"
#include "a2l2json/export/key_origins.h"

namespace a2l {
namespace {

constexpr std::string_view kBegin = "<!-- generated: the tables of keys -->\n";
constexpr std::string_view kEnd = "<!-- end of what is generated -->\n";

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
    for (const std::string& origin : OriginsWithoutKey()) {
      throw std::logic_error("no such key: " + origin);
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
      text += "| " + Code(row.key) + " | " + TypeOf(row) + " | " + OriginOf(object.Name(), row) +
              " | " + std::string(AbsentValue(row)) + " |\n";
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
        std::string neverRead;
        for (const Word& word : form.words->words) {
          if (IsNeverRead(*form.words, word)) {
            neverRead += (neverRead.empty() ? "; only [set by code](#words): " : ", ");
            neverRead += Code(word.text);
          } else {
            text += std::exchange(comma, ", ") + Code(word.text);
          }
        }
        if (form.words->ToText(form.words->fallback).empty()) text += " or empty";
        return text + neverRead;
      }
    };
    return std::visit(Name{*this}, form);
  }

  std::vector<DocumentObject> objects_ = DocumentObjects();
  std::vector<Section> sections_;
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
