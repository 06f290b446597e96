// SPDX-License-Identifier: MIT
//
// The line rules as mending knows them, held against the reader: both find the same elements in
// every sample, and the read ends at the same place or not at all.
#include "a2l2json/mend/line_rules.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "tests/mend/samples.h"
#include "tests/support/trees.h"

namespace a2l::test {
namespace {

using mending::LineRules;
using mending::LineWord;
using mending::OpenBlock;
using Role = LineWord::Role;

std::string Shown(ElementKind kind) {
  return kind == KIND_UNKNOWN ? "?" : std::string(KindToKeyword(kind));
}

// "PROJECT(HEADER(VERSION)MODULE())", and whether the read ends with an error.
struct Outline {
  std::string elements;
  bool ok = true;

  bool operator==(const Outline&) const = default;
};

Outline OutlineOfWords(std::string_view text) {
  Outline outline;
  LineRules rules(text);
  std::size_t open = 0;
  for (LineWord word = rules.Next(); word.role != Role::Nothing; word = rules.Next()) {
    if (word.role == Role::Begin) outline.elements += Shown(word.kind) + "(";
    if (word.role == Role::Property) outline.elements += Shown(word.kind) + " ";
    if (word.role == Role::End) outline.elements += ")";
    if (word.role == Role::ReadEnds) outline.ok = false;
    if (word.role == Role::Begin) ++open;
    if (word.role == Role::End) --open;
  }
  outline.elements.append(open, ')');
  return outline;
}

Outline OutlineOfTree(std::string_view text) {
  const Reading reading = Read(text);
  Outline outline;
  outline.ok = reading.ok;
  struct Visit {
    const VoA2LElement* element;
    std::size_t next;
  };
  std::vector<Visit> path = {{reading.root.get(), 0}};
  while (!path.empty()) {
    Visit& visit = path.back();
    const VoA2LElement* child = visit.element->Child(visit.next++);
    if (child == nullptr) {
      if (path.size() > 1 && !IsProperty(visit.element->kind)) outline.elements += ")";
      path.pop_back();
      continue;
    }
    outline.elements += Shown(child->kind) + (IsProperty(child->kind) ? " " : "(");
    path.push_back({child, 0});
  }
  return outline;
}

TEST(LineRules, FindTheElementsThatTheReaderFinds) {
  for (const Sample& sample : MendSamples()) {
    // At the end of the file the text of a handle is not read any more.
    const bool isOpen = sample.text.find("CALIBRATION_HANDLE_TEXT") != std::string::npos &&
                        sample.text.find("/end") == std::string::npos;
    if (isOpen) continue;
    const Outline words = OutlineOfWords(sample.text);
    const Outline tree = OutlineOfTree(sample.text);
    EXPECT_EQ(words.ok, tree.ok) << sample.name << "\n" << sample.text;
    EXPECT_EQ(words.elements, tree.elements) << sample.name << "\n" << sample.text;
  }
}

// Each word as its role, its text and, of a parameter, its number; of what is dropped, why.
std::string Roles(std::string_view text) {
  constexpr std::string_view kWhy[] = {"parameters", "begin",   "end",
                                       "behind-end", "in-list", "unknown"};
  std::string roles;
  LineRules rules(text);
  for (LineWord word = rules.Next(); word.role != Role::Nothing; word = rules.Next()) {
    if (!roles.empty()) roles += " | ";
    const bool isOpen = word.end == mending::kNowhere;
    const std::string_view bytes =
        isOpen ? text.substr(word.begin, 1) : text.substr(word.begin, word.end - word.begin);
    switch (word.role) {
      case Role::Begin:
        roles += "begin ";
        break;
      case Role::Property:
        roles += "property ";
        break;
      case Role::Parameter:
        roles += std::to_string(word.index) + " ";
        break;
      case Role::End:
        roles += "end ";
        break;
      case Role::Dropped:
        roles += std::string(kWhy[static_cast<std::size_t>(word.why)]) + " ";
        break;
      case Role::ReadEnds:
        roles += "ends ";
        break;
      case Role::Nothing:
        break;
    }
    roles += bytes;
    if (isOpen && word.role == Role::Parameter) roles += "...";
  }
  return roles;
}

TEST(LineRules, SayWhatBecomesOfAWord) {
  EXPECT_EQ(Roles(""), "");
  EXPECT_EQ(Roles("ASAP2_VERSION 1 71 5\n"), "property ASAP2_VERSION | 0 1 | 1 71 | parameters 5");
  EXPECT_EQ(Roles("COLOUR red\n"), "unknown COLOUR | unknown red");
  EXPECT_EQ(Roles("a /begin PROJECT p \"\"\nb /end PROJECT c\n"),
            "begin a | begin PROJECT | 0 p | 1 \"\" | end b | end PROJECT | behind-end c");
  EXPECT_EQ(Roles("/end PROJECT\n"), "ends P");
  EXPECT_EQ(Roles("/begin PROJECT p \"a\nb\" c\n"),
            "begin PROJECT | 0 p | 1 \"a\nb\" | parameters c");
  EXPECT_EQ(Roles("/begin PROJECT p \"a\n/end PROJECT\n"),
            "begin PROJECT | 0 p | 1 \"... | end PROJECT");
}

TEST(LineRules, MapPlacesThroughComments) {
  EXPECT_EQ(Roles("ASAP2_VERSION /* a\nb */ 1 // c\n71\n"), "property ASAP2_VERSION | 0 1 | 1 71");
  EXPECT_EQ(Roles("ASAP2_VERSION/**/1 71\n"), "unknown ASAP2_VERSION/**/1 | unknown 71");
  EXPECT_EQ(Roles("A2ML_VERSION 1 /*\n"), "ends A");
}

TEST(LineRules, GoOnWhereTheyAreTold) {
  const std::string_view text = "NOTHING\n/end MODULE\n/end PROJECT\n";
  LineRules rules(text);
  const std::vector<OpenBlock> open = {{ElementKind::PROJECT, 100}, {ElementKind::MODULE, 200}};
  rules.Restart(8, open);
  LineWord word = rules.Next();
  EXPECT_EQ(word.role, Role::End);
  EXPECT_EQ(word.owner, 200U);
  word = rules.Next();
  EXPECT_EQ(word.role, Role::End);
  EXPECT_EQ(word.owner, 100U);
  EXPECT_EQ(rules.Next().role, Role::Nothing);
}

}  // namespace
}  // namespace a2l::test
