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
    ++counts_[static_cast<std::size_t>(RowOf(finding.rule).outcome)];
    if (options_.report) options_.report(finding);
  }

  [[nodiscard]] std::size_t Count(MendOutcome outcome) const {
    return counts_[static_cast<std::size_t>(outcome)];
  }

 private:
  const MendOptions& options_;
  std::array<std::size_t, 3> counts_{};
};

}  // namespace a2l::mending
