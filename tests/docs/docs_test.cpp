// SPDX-License-Identifier: MIT
//
// The pages of docs/: what they name is there, and what they show is so.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include <gtest/gtest.h>

#include "a2l2json/export/json_schema.h"
#include "a2l2json/reader/diagnostics.h"
#include "a2l2json/reader/element_factory.h"
#include "tests/docs/page.h"
#include "tests/mend/mending.h"
#include "tests/support/files.h"
#include "tests/support/golden_document.h"
#include "tests/support/kinds.h"
#include "tests/support/trees.h"

namespace a2l::test {
namespace {

namespace fs = std::filesystem;

const fs::path kCases = A2L2JSON_CASES;
const fs::path kDocs = Docs();

// The cases that show a statement stand behind it, in a comment that readers of the page do not
// see:
// <!-- cases: topic/name, topic/name -->
const std::regex kMarker("<!-- cases: ([^>]*) -->");
const std::regex kCaseName("[a-z_]+/(ok|warn|fail)_[a-z0-9_]+");

std::vector<Page> AllPages() {
  std::vector<Page> pages;
  for (const auto& entry : fs::directory_iterator(kDocs)) {
    if (entry.path().extension() == ".md") pages.emplace_back(entry.path());
  }
  return pages;
}

// Group `group` of everything in `text` that `pattern` matches.
std::vector<std::string> Matches(const std::string& text, const std::regex& pattern,
                                 std::size_t group = 1) {
  std::vector<std::string> found;
  for (std::sregex_iterator match(text.begin(), text.end(), pattern), end; match != end; ++match) {
    found.push_back((*match)[group].str());
  }
  return found;
}

// The cases that the markers in `text` name.
std::vector<std::string> CasesIn(const std::string& text) {
  std::vector<std::string> cases;
  for (const std::string& marker : Matches(text, kMarker)) {
    std::istringstream names(marker);
    for (std::string name; std::getline(names >> std::ws, name, ',');) cases.push_back(name);
  }
  return cases;
}

// The statements of a page, each on one line: its paragraphs, the items of its lists, and the
// rows of its tables.
std::vector<std::string> Statements(const Page& page) {
  std::vector<std::string> statements(1);
  for (const std::string& line : page.lines) {
    const bool begins =
        line.empty() || line.starts_with("- ") || line.starts_with("|") || line.starts_with("#");
    if (begins) statements.emplace_back();
    statements.back() += (begins ? "" : " ") + line;
  }
  return statements;
}

// The name that a heading is linked by.
std::string Anchor(std::string_view heading) {
  std::string anchor;
  for (const char c : heading) {
    if (c == ' ') anchor += '-';
    if (c == '-' || c == '_' || (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z')) anchor += c;
    if (c >= 'A' && c <= 'Z') anchor += static_cast<char>(c - 'A' + 'a');
  }
  return anchor;
}

std::set<std::string> Anchors(const Page& page) {
  std::set<std::string> anchors;
  for (const std::string& line : page.lines) {
    if (!line.starts_with("#")) continue;
    const std::size_t begin = line.find_first_not_of("# ");
    EXPECT_TRUE(anchors.insert(Anchor(line.substr(begin))).second) << page.name << ": " << line;
  }
  return anchors;
}

TEST(Docs, LinksLeadSomewhere) {
  const std::regex link(R"(\]\(([^)#]*)(#[^)]*)?\))");
  std::map<std::string, std::set<std::string>> anchors;
  for (const Page& page : AllPages()) anchors[page.name] = Anchors(page);
  for (const Page& page : AllPages()) {
    for (const std::string& line : page.lines) {
      for (std::sregex_iterator match(line.begin(), line.end(), link), end; match != end; ++match) {
        const std::string target = (*match)[1];
        const std::string anchor = (*match)[2];
        if (target.starts_with("http")) continue;
        EXPECT_TRUE(fs::exists(kDocs / target)) << page.name << ": " << target;
        if (anchor.empty()) continue;
        const std::string name = target.empty() ? page.name : target;
        EXPECT_TRUE(anchors[name].contains(anchor.substr(1))) << page.name << ": " << anchor;
      }
    }
  }
}

TEST(Docs, CasesThatAreNamedExist) {
  for (const Page& page : AllPages()) {
    const std::vector<std::string> cases = CasesIn(page.text);
    for (const std::string& name : cases) {
      EXPECT_TRUE(fs::exists(kCases / (name + ".a2l"))) << page.name << ": " << name;
    }
    // On a page with markers, nobody would look at a name outside of them.
    if (cases.empty()) continue;
    const std::string unmarked = std::regex_replace(page.text, kMarker, "");
    EXPECT_EQ(Matches(unmarked, kCaseName, 0), std::vector<std::string>{}) << page.name;
  }
}

TEST(ReadingPage, EveryStatementNamesACase) {
  std::size_t count = 0;
  for (const std::string& statement : Statements(Page(kDocs / "reading-a2l.md"))) {
    const bool item = statement.starts_with("- ") && !statement.starts_with("- [");
    const bool row = statement.starts_with("| `");
    if (!item && !row) continue;
    EXPECT_FALSE(CasesIn(statement).empty()) << statement;
    ++count;
  }
  EXPECT_GT(count, 50U);
}

// Of the cases that show a statement, some has a finding of each rule that the statement names.
TEST(ReadingPage, RulesAreThoseOfTheirCases) {
  const std::regex rule(R"(\[([a-z0-9-]+)\]\(mending\.md#([a-z0-9-]+)\))");
  const Files included = {{"modules.a2l", ""}, {"names.a2l", "a b"}};
  std::size_t count = 0;
  for (const std::string& statement : Statements(Page(kDocs / "reading-a2l.md"))) {
    if (!statement.starts_with("- ")) continue;
    std::string found;
    for (const std::string& name : CasesIn(statement)) {
      found += RunMend(ReadFile(kCases / (name + ".a2l")), included).Texts();
    }
    for (std::sregex_iterator match(statement.begin(), statement.end(), rule), end; match != end;
         ++match) {
      const std::string name = (*match)[1];
      if (name == "a2lmend") continue;  // a link in a sentence
      EXPECT_EQ(name, (*match)[2].str());
      EXPECT_NE(found.find(" [" + name + "]\n"), std::string::npos) << statement << "\n" << found;
      ++count;
    }
  }
  EXPECT_GT(count, 40U);
}

TEST(ReadingPage, HasEveryMessage) {
  const std::string text = Page(kDocs / "reading-a2l.md").text;
  constexpr auto kLast = static_cast<std::uint8_t>(DiagnosticKind::NoParent);
  for (std::uint8_t kind = 0; kind <= kLast; ++kind) {
    std::string message = Diagnostic{static_cast<DiagnosticKind>(kind), 12, ""}.Text();
    message.pop_back();  // the line feed
    EXPECT_NE(text.find("`" + message), std::string::npos) << message;
  }
}

// Every case that a message is shown by prints it.
TEST(ReadingPage, MessagesAreThoseOfTheirCases) {
  const std::regex row(R"(^\| `([A-Z][a-z]+): Line\([0-9]+\) ([^`]*)` \|.*)");
  std::size_t count = 0;
  for (const std::string& line : Page(kDocs / "reading-a2l.md").lines) {
    std::smatch match;
    if (!std::regex_match(line, match, row)) continue;
    // What follows the text of the message differs from the example: its last word.
    std::string text = match[2];
    if (!text.ends_with(' ')) text.resize(text.rfind(' ') + 1);
    for (const std::string& name : CasesIn(line)) {
      const std::string out = ReadFile(kCases / (name + ".out"));
      EXPECT_NE(out.find(match[1].str() + ": Line("), std::string::npos) << name;
      EXPECT_NE(out.find(") " + text), std::string::npos) << name;
      ++count;
    }
  }
  EXPECT_GE(count, 12U);
}

// An example is some A2L lines, and below them what they become in the document of the case.
TEST(JsonPage, ExamplesAreThoseOfTheirCases) {
  std::size_t count = 0;
  for (const Block& block : Page(kDocs / "json.md").blocks) {
    if (!block.language.empty()) continue;
    const std::vector<std::string> names = CasesIn(block.below);
    ASSERT_EQ(names.size(), 1U) << block.below;
    ASSERT_GE(block.lines.size(), 2U) << names.front();
    std::string a2l;
    for (std::size_t i = 0; i + 1 < block.lines.size(); ++i) a2l += block.lines[i] + " ";
    EXPECT_TRUE(IsExcerpt(a2l, OneLine(ReadFile(kCases / (names.front() + ".a2l"))))) << a2l;
    EXPECT_TRUE(
        IsExcerpt(block.lines.back(), ReadGoldenDocument(kCases / (names.front() + ".json"))))
        << block.lines.back() << "\n"
        << names.front();
    ++count;
  }
  EXPECT_GT(count, 20U);
}

// The lines of a section, without its heading.
std::string Section(const Page& page, const std::string& heading) {
  const std::size_t begin = page.text.find("\n### " + heading + "\n");
  EXPECT_NE(begin, std::string::npos) << heading;
  return page.text.substr(begin + 1, page.text.find("\n### ", begin + 1) - begin);
}

// What stands in backquotes.
std::set<std::string> CodeIn(const std::string& text) {
  const std::vector<std::string> found = Matches(text, std::regex("`([^`\n]+)`"));
  return {found.begin(), found.end()};
}

// Found by their own means, not by a row for their kind.
bool IsShownOtherwise(ElementKind parent, ElementKind child) {
  return (parent == ElementKind::MOD_PAR && child == ElementKind::ADDR_EPK) ||
         (parent == ElementKind::USER_RIGHTS && child == ElementKind::REF_GROUP) ||
         (parent == ElementKind::VAR_CHARACTERISTIC && child == ElementKind::VAR_ADDRESS);
}

TEST(JsonPage, NamesWhatIsReadButNotShown) {
  const std::set<std::string> named =
      CodeIn(Section(Page(kDocs / "json.md"), "Read, but not shown"));
  for (const DocumentObject& object : DocumentObjects()) {
    for (const ElementKind kind : object.kinds) {
      for (const ElementKind childKind : KindsWithAClass()) {
        Tree tree;
        VoA2LElement* element = CreateElement(kind, *tree);
        VoA2LElement* child = CreateElement(childKind, *element);
        const bool isShown = object.table->rowOfKind[KindIndex(childKind)] != 0 ||
                             kBaseChildren.Contains(childKind) || IsShownOtherwise(kind, childKind);
        if (isShown || !element->AddChild(child)) continue;
        EXPECT_TRUE(named.contains(Shown(kind)) && named.contains(Shown(childKind)))
            << Shown(childKind) << " in " << Shown(kind);
      }
    }
  }
}

// The type that JSON has for the value of a row.
std::string JsonType(const Form& form) {
  struct Name {
    std::string operator()(std::monostate /*nothing*/) const { return "null"; }
    std::string operator()(TextForm /*form*/) const { return "string"; }
    std::string operator()(BuiltTextForm /*form*/) const { return "string"; }
    std::string operator()(AddressForm /*form*/) const { return "string"; }
    std::string operator()(WordForm /*form*/) const { return "string"; }
    std::string operator()(BoolForm /*form*/) const { return "boolean"; }
    std::string operator()(IntegerForm /*form*/) const { return "integer"; }
    std::string operator()(RealForm /*form*/) const { return "real"; }
    std::string operator()(TextArrayForm /*form*/) const { return "array of strings"; }
    std::string operator()(RealArrayForm /*form*/) const { return "array of reals"; }
    std::string operator()(IntegerArrayForm /*form*/) const { return "array of integers"; }
    std::string operator()(NamedValuesForm /*form*/) const { return "object"; }
    std::string operator()(ObjectForm /*form*/) const { return "object"; }
  };
  return std::visit(Name{}, form);
}
std::string JsonType(const Row& row) {
  switch (row.source) {
    case Source::Presence:
      return "boolean";
    case Source::Children:
    case Source::Grandchildren:
      return "array of objects";
    case Source::Element:
    case Source::FirstChild:
    case Source::Found:
      break;
  }
  return JsonType(row.form) + (row.otherKind != KIND_ROOT ? " or another" : "");
}

TEST(JsonPage, NamesTheArraysThatMayBeNull) {
  std::set<std::string> arrays;
  for (const DocumentObject& object : DocumentObjects()) {
    for (const Row& row : object.table->rows) {
      const bool isNull = row.source != Source::Element && row.absent == Absent::Null;
      if (isNull && JsonType(row).starts_with("array")) arrays.emplace(row.key);
    }
  }
  std::set<std::string> named = CodeIn(Section(Page(kDocs / "json.md"), "Arrays that may be null"));
  for (const char* other : {"[]", "FMATRIX_DIM"}) named.erase(other);
  EXPECT_EQ(named, arrays);
}

TEST(JsonPage, NamesTheKeysWithTwoMeanings) {
  std::map<std::string, std::set<std::string>> types;
  for (const DocumentObject& object : DocumentObjects()) {
    for (const Row& row : object.table->rows) {
      if (JsonType(row) != "null") types[std::string(row.key)].insert(JsonType(row));
    }
  }
  const std::set<std::string> named =
      CodeIn(Section(Page(kDocs / "json.md"), "One key, two meanings"));
  for (const auto& [key, ofKey] : types) {
    EXPECT_TRUE(ofKey.size() == 1 || named.contains(key)) << key;
  }
}

}  // namespace
}  // namespace a2l::test
