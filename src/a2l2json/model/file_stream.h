// SPDX-License-Identifier: MIT
#pragma once

#include <iosfwd>

namespace a2l {

/// Whether `out` takes text. False for a stream that has failed, and for the stream of a file that
/// is not open: it would drop the text without an error.
[[nodiscard]] bool TakesText(const std::ostream& out);

}  // namespace a2l
