// SPDX-License-Identifier: MIT
//
// Mended texts and documents, for tests.
#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "a2l2json/mend/mend.h"

namespace a2l::test {

struct KeptFinding {
  MendRule rule = MendRule::Otherwise;
  std::string file;
  std::size_t line = 0;
  std::size_t column = 0;
  std::string word;
  std::string text;  ///< with its place

  /// "same-line@3:14"
  [[nodiscard]] std::string Short() const;
  [[nodiscard]] bool IsMendable() const { return RowOf(rule).outcome != MendOutcome::Unmendable; }
};

struct MendRun {
  Mended mended;
  std::vector<KeptFinding> findings;
  LineMap lines;

  /// The findings in their short form, one behind the other.
  [[nodiscard]] std::string Short() const;
  /// Their texts, a line each.
  [[nodiscard]] std::string Texts() const;
};

/// Files by their names, as an /include finds them.
using Files = std::map<std::string, std::string>;

/// Mends `text`, called "file.a2l". Included files come from `files`.
MendRun RunMend(std::string_view text, const Files& files = {});

/// The document of a text; nothing where the converter ends with an error.
std::optional<std::string> DocumentOf(std::string_view text);

/// A document whose interface texts have one blank for all white space between words, and none
/// around them.
std::string Collapsed(const std::string& document);

/// Whether a reader of JSON finds the same in both.
bool SameDocument(const std::optional<std::string>& a, const std::optional<std::string>& b);

}  // namespace a2l::test
