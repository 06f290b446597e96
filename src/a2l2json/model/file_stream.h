// SPDX-License-Identifier: MIT
#pragma once

#include <iosfwd>

namespace a2l {

/// Whether `out` takes text: false for a stream that has failed, and for one of a file that is not
/// open, which would let text go nowhere and say that all is well.
[[nodiscard]] bool TakesText(const std::ostream& out);

}  // namespace a2l
