// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>

#include "a2l2json/mend/options.h"

namespace a2l::mending {

/// Passes findings on and counts them.
class Reporter {
 public:
  explicit Reporter(const MendOptions& options) : options_(options) {}

  void Report(const Finding& finding) {
    const MendRuleRow& row = RowOf(finding.rule);
    ++counts_[static_cast<std::size_t>(row.outcome)];
    isBroken_ |= row.outcome != MendOutcome::Lost && row.concern != MendConcern::Value;
    if (row.outcome != MendOutcome::Unmendable || row.concern == MendConcern::ReadEnds) {
      line_ = finding.line;
      file_ = finding.file;
    }
    if (options_.report) options_.report(finding);
  }

  /// Whether the last finding that is not about a value was one about the line of `word`.
  template <class Word>
  [[nodiscard]] bool HasReported(const Word& word) const {
    return line_ == word.line && file_ == word.file;
  }

  /// Whether a finding was about words that the grammar has no place for, or that it misses.
  [[nodiscard]] bool IsBroken() const { return isBroken_; }

  [[nodiscard]] std::size_t Count(MendOutcome outcome) const {
    return counts_[static_cast<std::size_t>(outcome)];
  }

 private:
  const MendOptions& options_;
  std::array<std::size_t, 3> counts_{};
  bool isBroken_ = false;
  std::size_t line_ = 0;
  std::string_view file_;
};

}  // namespace a2l::mending
