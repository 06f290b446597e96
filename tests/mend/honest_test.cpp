// SPDX-License-Identifier: MIT
//
// Wherever the document changes by mending, there is a finding: not somewhere in the file, but on
// the lines of the keyword whose value is another one, or else on those of its object.
#include <algorithm>
#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>
#include <json11.hpp>

#include "a2l2json/model/keywords.h"
#include "tests/mend/mending.h"
#include "tests/mend/relayout.h"
#include "tests/mend/samples.h"

namespace a2l::test {
namespace {

using json11::Json;

struct PlacedWord {
  std::string_view text;
  std::size_t line = 1;
};

std::vector<PlacedWord> PlacedWords(std::string_view text) {
  std::vector<PlacedWord> words;
  std::size_t line = 1;
  const char* counted = text.data();
  for (const std::string_view word : WordsOf(text)) {
    line += static_cast<std::size_t>(std::count(counted, word.data(), '\n'));
    counted = word.data();
    words.push_back({word, line});
  }
  return words;
}

// The words of an object, from its /begin on.
using Object = std::vector<PlacedWord>;

// All objects, by keyword and name, in the order of the file.
std::map<std::string, std::vector<Object>> ObjectsOf(const std::vector<PlacedWord>& words) {
  std::map<std::string, std::vector<Object>> objects;
  for (std::size_t i = 0; i + 2 < words.size(); ++i) {
    if (words[i].text != "/begin") continue;
    const std::string_view keyword = words[i + 1].text;
    Object object;
    for (std::size_t k = i; k < words.size(); ++k) {
      object.push_back(words[k]);
      if (words[k].text == keyword && words[k - 1].text == "/end") break;
    }
    objects[std::string(keyword) + " " + std::string(words[i + 2].text)].push_back(
        std::move(object));
  }
  return objects;
}

bool HasFinding(const MendRun& run, std::size_t first, std::size_t last) {
  return std::ranges::any_of(run.findings, [=](const KeptFinding& finding) {
    return finding.line >= first && finding.line <= last;
  });
}

// From the line of the keyword to that of the next one. Only for a keyword that the object has once
// and no parameter of the object shares the member with.
bool HasFindingAtKeyword(const MendRun& run, const Object& object, std::string_view keyword) {
  const auto isKeyword = [](const PlacedWord& word) {
    return word.text.starts_with('/') || KeywordToKind(word.text) != KIND_UNKNOWN;
  };
  const auto isWanted = [=](const PlacedWord& word) { return word.text == keyword; };
  const bool isShared =
      keyword == "DEPOSIT" || keyword == "CONVERSION" || keyword == "INPUT_QUANTITY";
  if (!IsProperty(KeywordToKind(keyword)) || isShared) return true;
  if (std::count_if(object.begin(), object.end(), isWanted) != 1) return true;
  const auto found = std::find_if(object.begin(), object.end(), isWanted);
  const auto next = std::find_if(found + 1, object.end(), isKeyword);
  const std::size_t last = next == object.end() ? object.back().line : next->line;
  return HasFinding(run, found->line, last);
}

void ExpectFindings(const MendRun& run, const Object& object, const Json& before, const Json& after,
                    const std::string& context) {
  EXPECT_TRUE(HasFinding(run, object.front().line, object.back().line)) << context;
  for (const auto& [key, value] : after.object_items()) {
    if (before[key] == value || !before.is_object()) continue;
    EXPECT_TRUE(HasFindingAtKeyword(run, object, key.substr(1))) << key << " in " << context;
  }
}

std::string NameOf(const Json& object) {
  return object["FNAME"].is_string() ? object["FNAME"].string_value()
                                     : object["FGROUP_NAME"].string_value();
}

// The objects of an array, by name; more than one where a name is given more than once.
std::map<std::string, std::vector<Json>> ByName(const Json& array) {
  std::map<std::string, std::vector<Json>> objects;
  for (const Json& object : array.array_items()) objects[NameOf(object)].push_back(object);
  return objects;
}

void CompareModules(const MendRun& run, const Json& before, const Json& after,
                    const std::string& text, const std::string& name) {
  const auto objects = ObjectsOf(PlacedWords(text));
  for (const auto& [key, value] : after.object_items()) {
    if (!value.is_array() || key == "FIF_DATA") continue;
    const auto earlier = ByName(before[key]);
    for (const auto& [objectName, all] : ByName(value)) {
      const auto place = objects.find(key.substr(1) + " " + objectName);
      if (place == objects.end()) continue;
      const auto old = earlier.find(objectName);
      const std::string context = name + ": " + place->first + "\n" + run.Texts() + "\n" + text;
      // Of several objects of one name, some of which are lost, nobody knows which.
      if (old != earlier.end() && old->second.size() != all.size()) {
        EXPECT_TRUE(std::ranges::any_of(place->second, [&run](const Object& object) {
          return HasFinding(run, object.front().line, object.back().line);
        })) << context;
        continue;
      }
      for (std::size_t i = 0; i < all.size() && i < place->second.size(); ++i) {
        const Json was = old != earlier.end() && i < old->second.size() ? old->second[i] : Json();
        if (was == all[i]) continue;
        ExpectFindings(run, place->second[i], was, all[i], context);
      }
    }
  }
}

TEST(MendHonest, WhereTheDocumentChangesThereIsAFinding) {
  std::size_t files = 0;
  for (const Sample& sample : MendSamples()) {
    const MendRun run = RunMend(sample.text);
    const auto before = DocumentOf(sample.text);
    const auto after = DocumentOf(run.mended.text);
    if (SameDocument(before, after)) continue;
    ++files;
    EXPECT_FALSE(run.findings.empty()) << sample.name;
    if (!before || !after) continue;
    std::string error;
    const Json old = Json::parse(Collapsed(*before), error);
    const Json mended = Json::parse(Collapsed(*after), error);
    const auto& modules = mended["FModules"].array_items();
    // A module that is lost as a whole is told at its own line.
    const std::size_t count = std::min(modules.size(), old["FModules"].array_items().size());
    for (std::size_t i = 0; i < count; ++i) {
      CompareModules(run, old["FModules"][i], modules[i], sample.text, sample.name);
    }
  }
  RecordProperty("files", std::to_string(files));
}

}  // namespace
}  // namespace a2l::test
