// SPDX-License-Identifier: MIT
#include "tests/mend/mending.h"

#include <cctype>
#include <utility>

#include <gtest/gtest.h>

#include "a2l2json/export/json11_document.h"
#include "a2l2json/export/json_writer.h"
#include "tests/support/trees.h"

namespace a2l::test {
namespace {

std::string CollapsedText(const std::string& text) {
  std::string collapsed;
  for (const char c : text) {
    const bool isWhite = std::isspace(static_cast<unsigned char>(c)) != 0;
    if (!isWhite) {
      collapsed += c;
    } else if (!collapsed.empty() && collapsed.back() != ' ') {
      collapsed += ' ';
    }
  }
  if (collapsed.ends_with(' ')) collapsed.pop_back();
  return collapsed;
}

json11::Json CollapsedValue(const json11::Json& value, bool isInterface) {
  if (value.is_string() && isInterface) return CollapsedText(value.string_value());
  if (value.is_array()) {
    json11::Json::array items;
    for (const json11::Json& item : value.array_items()) {
      items.push_back(CollapsedValue(item, isInterface));
    }
    return items;
  }
  if (value.is_object()) {
    json11::Json::object members;
    for (const auto& [key, member] : value.object_items()) {
      members[key] = CollapsedValue(member, key == "FIF_DATA" || key == "FA2ML");
    }
    return members;
  }
  return value;
}

}  // namespace

std::string KeptFinding::Short() const {
  return std::string(RowOf(rule).name) + "@" + std::to_string(line) + ":" + std::to_string(column);
}

std::string MendRun::Short() const {
  std::string all;
  for (const KeptFinding& finding : findings) all += (all.empty() ? "" : " ") + finding.Short();
  return all;
}

std::string MendRun::Texts() const {
  std::string all;
  for (const KeptFinding& finding : findings) all += finding.text + "\n";
  return all;
}

MendRun RunMend(std::string_view text, const Files& files) {
  MendRun run;
  MendOptions options;
  options.name = "file.a2l";
  options.path = "file.a2l";
  options.lines = &run.lines;
  options.report = [&run](const Finding& finding) {
    run.findings.push_back({finding.rule, std::string(finding.file), finding.line, finding.column,
                            std::string(finding.word), TextWithPlace(finding)});
  };
  options.open = [&files](std::string_view name, std::string_view /*from*/) {
    IncludedFile file;
    const auto found = files.find(std::string(name));
    if (found == files.end()) {
      file.problem = "it is not there";
    } else {
      file.status = IncludedFile::Status::Read;
      file.path = found->first;
      file.bytes = found->second;
    }
    return file;
  };
  run.mended = Mend(text, options);
  return run;
}

std::optional<std::string> DocumentOf(std::string_view text) {
  const Reading reading = Read(text);
  if (!reading.ok) return {};
  return ToJson(*reading.root);
}

std::string Collapsed(const std::string& document) {
  std::string error;
  const json11::Json value = json11::Json::parse(document, error);
  // Bytes that are no UTF-8 pass as well.
  EXPECT_EQ(error, "") << document;
  return CollapsedValue(value, false).dump();
}

bool SameDocument(const std::optional<std::string>& a, const std::optional<std::string>& b) {
  if (!a || !b) return a.has_value() == b.has_value();
  return *a == *b || Collapsed(*a) == Collapsed(*b);
}

}  // namespace a2l::test
