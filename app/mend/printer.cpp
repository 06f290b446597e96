// SPDX-License-Identifier: MIT
#include "app/mend/printer.h"

#include <array>
#include <filesystem>
#include <initializer_list>
#include <utility>

#include "a2l2json/model/file_path.h"
#include "a2l2json/model/version.h"

namespace a2l {
namespace {

constexpr std::string_view kJsonBegin = R"({
  "findings": [
)";
constexpr std::string_view kSarifBegin = R"({
  "$schema": "https://json.schemastore.org/sarif-2.1.0.json",
  "version": "2.1.0",
  "runs": [
    {
      "tool": {
        "driver": {
          "name": "a2lmend",
          "version": )";
constexpr std::string_view kSarifRules = R"(,
          "rules": [
)";
constexpr std::string_view kSarifResults = R"(
          ]
        }
      },
      "results": [
)";

// Bytes of the character of UTF-8 that `text` begins with; 0 where it begins with none.
std::size_t CharacterSize(std::string_view text) {
  const auto byte = [text](std::size_t i) {
    return i < text.size() ? static_cast<unsigned char>(text[i]) : 0U;
  };
  const auto goesOn = [byte](std::size_t i) { return (byte(i) & 0xC0U) == 0x80U; };
  const unsigned first = byte(0);
  if (first < 0x80) return 1;
  if (first >= 0xC2 && first < 0xE0) return goesOn(1) ? 2 : 0;
  const bool isShort = first == 0xE0 && byte(1) < 0xA0;
  const bool isHalf = first == 0xED && byte(1) >= 0xA0;
  if (first >= 0xE0 && first < 0xF0) return goesOn(1) && goesOn(2) && !isShort && !isHalf ? 3 : 0;
  const bool isOut = (first == 0xF0 && byte(1) < 0x90) || (first == 0xF4 && byte(1) >= 0x90);
  if (first >= 0xF0 && first < 0xF5) return goesOn(1) && goesOn(2) && goesOn(3) && !isOut ? 4 : 0;
  return 0;
}

// A path as a URI, with "file:" where it is not relative.
std::string UriOf(std::string_view name) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  constexpr std::string_view kPlain =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~/";
  const std::filesystem::path path = FilePath(name);
  const std::u8string text = path.generic_u8string();
  std::string uri;
  if (path.is_absolute()) uri = text.starts_with(u8'/') ? "file://" : "file:///";
  for (const char8_t c : text) {
    const auto byte = static_cast<unsigned char>(c);
    const auto plain = static_cast<char>(byte);
    if (kPlain.find(plain) != std::string_view::npos || (plain == ':' && path.is_absolute())) {
      uri += plain;
    } else {
      uri += {'%', kDigits[byte / 16U], kDigits[byte % 16U]};
    }
  }
  return uri;
}

// An object whose values are JSON already.
using Members = std::initializer_list<std::pair<std::string_view, std::string>>;
std::string Object(const Members& members) {
  std::string object = "{";
  for (const auto& [name, value] : members) {
    if (object.size() > 1) object += ", ";
    object += JsonQuoted(name) + ": " + value;
  }
  return object + "}";
}

std::string ArrayOf(std::string_view value) { return std::string("[").append(value).append("]"); }

std::string JsonOf(const Finding& finding) {
  const MendRuleRow& row = RowOf(finding.rule);
  return Object({{"rule", JsonQuoted(row.name)},
                 {"outcome", JsonQuoted(NameOf(row.outcome))},
                 {"file", JsonQuoted(finding.file)},
                 {"line", std::to_string(finding.line)},
                 {"column", std::to_string(finding.column)},
                 {"message", JsonQuoted(Message(finding))}});
}

std::string_view LevelOf(MendOutcome outcome) {
  constexpr std::array<std::string_view, 3> kLevels = {"warning", "note", "error"};
  return kLevels[static_cast<std::size_t>(outcome)];
}

std::string SarifOf(const Finding& finding) {
  const MendRuleRow& row = RowOf(finding.rule);
  const std::string region = Object({{"startLine", std::to_string(finding.line)},
                                     {"startColumn", std::to_string(finding.column)}});
  const std::string place =
      Object({{"artifactLocation", Object({{"uri", JsonQuoted(UriOf(finding.file))}})},
              {"region", region}});
  return Object({{"ruleId", JsonQuoted(row.name)},
                 {"ruleIndex", std::to_string(static_cast<std::size_t>(finding.rule))},
                 {"level", JsonQuoted(LevelOf(row.outcome))},
                 {"message", Object({{"text", JsonQuoted(Message(finding))}})},
                 {"locations", ArrayOf(Object({{"physicalLocation", place}}))}});
}

std::string SarifRules() {
  std::string rules;
  for (const MendRuleRow& row : MendRules()) {
    const std::string level = Object({{"level", JsonQuoted(LevelOf(row.outcome))}});
    if (!rules.empty()) rules += ",\n";
    rules.append(12, ' ').append(
        Object({{"id", JsonQuoted(row.name)},
                {"shortDescription", Object({{"text", JsonQuoted(row.meaning)}})},
                {"defaultConfiguration", level}}));
  }
  return rules;
}

// "1 value", "2 values".
std::string Counted(std::size_t count, std::string_view what) {
  return std::to_string(count) + ' ' + std::string(what) + (count == 1 ? "" : "s");
}

std::string Summary(const Mended& mended, bool isWritten) {
  const std::size_t mendable = mended.lost + mended.mended;
  const std::size_t findings = mendable + mended.unmendable;
  if (findings == 0) return "nothing is lost";
  return Counted(mended.lostValues, "value") + " would be lost; of " +
         Counted(findings, "finding") + ", " + std::to_string(mendable) +
         (isWritten ? (mendable == 1 ? " is mended, " : " are mended, ") : " can be mended, ") +
         std::to_string(mended.unmendable) + " cannot";
}

}  // namespace

std::string JsonQuoted(std::string_view text) {
  std::string quoted = "\"";
  while (!text.empty()) {
    const std::size_t size = CharacterSize(text);
    const auto byte = static_cast<unsigned char>(text.front());
    if (size == 0) {
      quoted += "\xEF\xBF\xBD";
    } else if (byte == '"' || byte == '\\') {
      quoted += {'\\', text.front()};
    } else if (byte < 0x20) {
      constexpr std::string_view kDigits = "0123456789abcdef";
      quoted += "\\u00";
      quoted += {kDigits[byte / 16U], kDigits[byte % 16U]};
    } else {
      quoted += text.substr(0, size);
    }
    text.remove_prefix(size == 0 ? 1 : size);
  }
  return quoted + "\"";
}

FindingPrinter::FindingPrinter(FindingFormat format, std::ostream& out,
                               std::function<void()> before)
    : format_(format), out_(out), before_(std::move(before)) {}

void FindingPrinter::Begin() {
  if (std::exchange(hasBegun_, true)) return;
  if (format_ == FindingFormat::Json) text_ += kJsonBegin;
  if (format_ == FindingFormat::Sarif) {
    text_.append(kSarifBegin).append(JsonQuoted(Version())).append(kSarifRules);
    text_.append(SarifRules()).append(kSarifResults);
  }
}

void FindingPrinter::Print() {
  before_();
  out_.write(text_.data(), static_cast<std::streamsize>(text_.size()));
  text_.clear();
}

void FindingPrinter::Print(const Finding& finding) {
  Begin();
  if (format_ == FindingFormat::Text) {
    text_ += TextWithPlace(finding) + '\n';
  } else {
    if (count_++ > 0) text_ += ",\n";
    const bool isJson = format_ == FindingFormat::Json;
    text_.append(isJson ? 4 : 8, ' ').append(isJson ? JsonOf(finding) : SarifOf(finding));
  }
  constexpr std::size_t kPiece = 65536;
  if (text_.size() >= kPiece) Print();
}

void FindingPrinter::Finish(const Mended& mended, std::string_view file, bool isWritten) {
  Begin();
  switch (format_) {
    case FindingFormat::Text:
      text_ += file;
      text_ += ": " + Summary(mended, isWritten) + '\n';
      break;
    case FindingFormat::Json:
      text_ += std::string(count_ > 0 ? "\n" : "") + "  ],\n  " + JsonQuoted("lostValues") + ": " +
               std::to_string(mended.lostValues) + ",\n  " + JsonQuoted("mended") + ": " +
               std::to_string(mended.lost + mended.mended) + ",\n  " +
               JsonQuoted("cannotBeMended") + ": " + std::to_string(mended.unmendable) + "\n}\n";
      break;
    case FindingFormat::Sarif:
      text_ += std::string(count_ > 0 ? "\n" : "") + "      ]\n    }\n  ]\n}\n";
  }
  Print();
  out_.flush();
}

}  // namespace a2l
