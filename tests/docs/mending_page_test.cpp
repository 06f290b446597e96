// SPDX-License-Identifier: MIT
//
// docs/mending.md: it has every rule, and what its examples show is so.
#include <algorithm>
#include <cstddef>
#include <optional>
#include <regex>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "a2l2json/mend/mend.h"
#include "tests/docs/page.h"
#include "tests/mend/mending.h"
#include "tests/support/trees.h"

namespace a2l::test {
namespace {

// A rule on the page: the part below its heading.
struct Section {
  std::string chapter;
  std::string rule;
  std::string text;
};

std::vector<Section> Sections() {
  std::vector<Section> sections;
  std::string chapter;
  std::string* text = nullptr;
  bool inBlock = false;
  const std::string page = Page(Docs() / "mending.md").text;
  for (std::size_t begin = 0, end = 0; begin < page.size(); begin = end + 1) {
    end = page.find('\n', begin);
    const std::string line = page.substr(begin, end - begin);
    if (line.starts_with("```")) inBlock = !inBlock;
    if (!inBlock && line.starts_with("## ")) {
      chapter = line.substr(3);
      text = nullptr;
    } else if (!inBlock && line.starts_with("### ")) {
      sections.push_back({chapter, line.substr(4), {}});
      text = &sections.back().text;
    } else if (text != nullptr) {
      *text += line + "\n";
    }
  }
  return sections;
}

// What the page shows of a file, of the findings, and of the mended file.
struct Example {
  std::string file;
  std::string findings;
  std::string mended;
};

Example ExampleOf(const Block& block) {
  const std::regex finding(R"([a-z0-9]+\.a2l:[0-9]+:[0-9]+: .*)");
  Example example;
  for (const std::string& line : block.lines) {
    const bool isFinding = std::regex_match(line, finding);
    std::string& part = isFinding                  ? example.findings
                        : example.findings.empty() ? example.file
                                                   : example.mended;
    part += line + "\n";
  }
  if (example.mended.empty()) example.mended = example.file;
  return example;
}

void ReplaceAll(std::string& text, std::string_view what, std::string_view by) {
  for (std::size_t i = text.find(what); i != std::string::npos; i = text.find(what, i + by.size()))
    text.replace(i, what.size(), by);
}

// The bytes that the signs of the page stand for.
std::string BytesOf(std::string text) {
  ReplaceAll(text, "␉", "\t");
  ReplaceAll(text, "␌", "\f");
  ReplaceAll(text, "␍\n", "\r");
  ReplaceAll(text, "␍", "\r");
  ReplaceAll(text, "⟨BOM⟩", "\xEF\xBB\xBF");
  std::smatch match;
  while (std::regex_search(text, match, std::regex("⟨([0-9]+) × ([a-z])⟩"))) {
    const std::string many(std::stoul(match[1]), match[2].str()[0]);
    text = match.prefix().str() + many + match.suffix().str();
  }
  constexpr std::string_view kUtf16 = "⟨UTF-16⟩";
  if (!text.starts_with(kUtf16)) return text;
  std::string utf16 = "\xFF\xFE";
  for (const char c : text.substr(kUtf16.size())) utf16 += {c, '\0'};
  return utf16;
}

// Examples stand in a module, unless they begin a file themselves.
bool IsWhole(const std::string& text) {
  return text.starts_with("⟨BOM⟩") || text.starts_with("⟨UTF-16⟩") ||
         text.starts_with("ASAP2_VERSION") || text.starts_with("/begin PROJECT");
}

std::string FileOf(const std::string& shown, bool isWhole) {
  const std::string bytes = BytesOf(shown);
  if (isWhole) return bytes;
  return "/begin PROJECT p \"\"\n  /begin MODULE m \"\"\n" + bytes +
         "  /end MODULE\n/end PROJECT\n";
}

// The indentation of what stands in a module is not shown.
std::string WithoutIndentation(std::string text) {
  ReplaceAll(text, "\n    ", "\n");
  return text;
}

// Files that examples include: one that the section shows, and endlessly many with numbers.
IncludedFile OpenForPage(std::string_view section, std::string_view name) {
  IncludedFile file;
  file.path = name;
  std::smatch match;
  const std::string text(section);
  if (name == "engine.a2l") {
    file.status = IncludedFile::Status::Read;
  } else if (name.starts_with("../")) {
    file.status = IncludedFile::Status::Refused;
    file.problem = "it lies outside of the folders that are given";
  } else if (name.find_first_not_of("0123456789") == name.find(".a2l")) {
    file.status = IncludedFile::Status::Read;
    file.bytes = "/include " + std::to_string(std::stoul(std::string(name)) + 1) + ".a2l\n";
  } else if (std::regex_search(text, match, std::regex("`([a-z.0-9]+)` holds `([^`]*)`")) &&
             match[1].str() == name) {
    file.status = IncludedFile::Status::Read;
    file.bytes = match[2];
  } else {
    file.problem = "there is no such file";
  }
  return file;
}

struct PageRun {
  Mended mended;
  std::string findings;
  std::vector<std::string_view> rules;
};

PageRun RunExample(const std::string& file, const std::string& section) {
  PageRun run;
  MendOptions options;
  options.name = options.path = "engine.a2l";
  options.open = [&section](std::string_view name, std::string_view /*from*/) {
    return OpenForPage(section, name);
  };
  options.report = [&run](const Finding& finding) {
    run.findings += TextWithPlace(finding) + "\n";
    run.rules.push_back(RowOf(finding.rule).name);
  };
  run.mended = Mend(file, options);
  return run;
}

// Code in a sentence that begins with `beginning`.
std::vector<std::string> CodeWith(const std::regex& beginning, const std::string& prose) {
  std::vector<std::string> found;
  const std::regex code("`([^`]+)`");
  for (std::sregex_iterator match(prose.begin(), prose.end(), code), end; match != end; ++match) {
    const std::string said = (*match)[1];
    if (std::regex_search(said, beginning)) found.push_back(said);
  }
  return found;
}

// What a section says of messages and documents. One part of a document is there before and after,
// or where there is none before, after; of two, the first becomes the second.
void ExpectSaid(const std::string& prose, const std::string& before, const std::string& after,
                const MendRuleRow& row) {
  const Reading reading = Read(before);
  for (const std::string& said : CodeWith(std::regex("^(Warning|Error): "), prose)) {
    EXPECT_NE(reading.reader.message.find(said), std::string::npos)
        << row.name << ": " << reading.reader.message;
  }
  const auto old = DocumentOf(before);
  const auto mended = DocumentOf(after);
  if (row.outcome == MendOutcome::Lost) {
    EXPECT_NE(old, mended) << row.name;
  } else if (row.outcome == MendOutcome::Unmendable && old) {
    EXPECT_EQ(old, mended) << row.name;
  }
  const auto has = [](const std::optional<std::string>& document, const std::string& part) {
    return document && document->find(part) != std::string::npos;
  };
  const std::vector<std::string> parts = CodeWith(std::regex("^\"F"), prose);
  ASSERT_LE(parts.size(), 2U) << row.name;
  if (parts.empty()) return;
  const std::string context = std::string(row.name) + ": " + parts[0] + "\n" + old.value_or("");
  EXPECT_EQ(has(old, parts.front()), old.has_value()) << context;
  EXPECT_EQ(has(mended, parts.front()), parts.size() == 1) << context;
  EXPECT_TRUE(has(mended, parts.back())) << context;
  EXPECT_EQ(has(old, parts.back()), parts.size() == 1 && old) << context;
}

TEST(MendingPage, HasEveryRuleOnceWhereItBelongs) {
  std::vector<std::string> expected;
  const auto add = [&expected](std::string_view chapter, MendOutcome outcome) {
    for (const MendRuleRow& row : MendRules()) {
      if (row.outcome == outcome) expected.push_back(std::string(chapter) + ": " + row.name.data());
    }
  };
  add("Lost, unless it is mended", MendOutcome::Lost);
  add("Mended in other bytes", MendOutcome::Mended);
  add("What no layout can mend", MendOutcome::Unmendable);
  std::vector<std::string> found;
  for (const Section& section : Sections()) found.push_back(section.chapter + ": " + section.rule);
  EXPECT_EQ(found, expected);
}

const MendRuleRow* RowNamed(std::string_view name) {
  for (const MendRuleRow& row : MendRules()) {
    if (row.name == name) return &row;
  }
  return nullptr;
}

TEST(MendingPage, ExamplesAreSo) {
  for (const Section& section : Sections()) {
    const MendRuleRow* row = RowNamed(section.rule);
    ASSERT_NE(row, nullptr) << section.rule;
    const Page part(section.rule, section.text);
    ASSERT_EQ(part.blocks.size(), 1U) << section.rule;
    std::string prose;
    for (const std::string& line : part.lines) prose += line + "\n";
    std::string plain = OneLine(prose);
    ReplaceAll(plain, "`", "");
    EXPECT_TRUE(plain.starts_with(row->meaning.substr(0, row->meaning.size() - 1))) << prose << "\n"
                                                                                    << row->meaning;

    const Example example = ExampleOf(part.blocks.front());
    const bool isWhole = IsWhole(example.file);
    const std::string file = FileOf(example.file, isWhole);
    const PageRun run = RunExample(file, section.text);
    EXPECT_EQ(run.findings, BytesOf(example.findings)) << section.rule;
    EXPECT_NE(std::ranges::find(run.rules, row->name), run.rules.end()) << section.rule;
    EXPECT_EQ(WithoutIndentation(run.mended.text), FileOf(example.mended, isWhole)) << section.rule;
    ExpectSaid(prose, file, run.mended.text, *row);
  }
}

// It begins with the commands, a file with the finding and the mended file, and a part of the
// document.
TEST(Readme, ExampleIsSo) {
  const std::vector<Block> blocks = Page(Docs().parent_path() / "README.md").blocks;
  ASSERT_GE(blocks.size(), 3U);
  const Example example = ExampleOf(blocks[1]);
  const PageRun run = RunExample(FileOf(example.file, false), "");
  EXPECT_EQ(run.findings, example.findings);
  EXPECT_EQ(WithoutIndentation(run.mended.text), FileOf(example.mended, false));
  std::string json;
  for (const std::string& line : blocks[2].lines) json += line + " ";
  json.resize(json.rfind("..."));
  EXPECT_TRUE(IsExcerpt(json, DocumentOf(run.mended.text).value_or(""))) << json;
  const std::string before = DocumentOf(FileOf(example.file, false)).value_or("");
  EXPECT_NE(before.find("\"FECU_ADDRESS\": null"), std::string::npos) << before;
}

}  // namespace
}  // namespace a2l::test
