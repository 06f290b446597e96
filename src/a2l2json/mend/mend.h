// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "a2l2json/mend/finding.h"
#include "a2l2json/mend/options.h"
#include "a2l2json/mend/rules.h"

namespace a2l {

/// A mended text, and what it took.
struct Mended {
  /// In UTF-8 where the text was in UTF-16; all other bytes of words are those of the text.
  std::string text;
  /// Values that the converter loses from the text as it is.
  std::size_t lostValues = 0;
  /// The number of findings of each MendOutcome.
  std::size_t lost = 0;
  std::size_t mended = 0;
  std::size_t unmendable = 0;
};

/// Reads the text of an A2L file as the ASAP2 standard means it, and writes it anew, in a layout
/// from which the converter loses nothing. Reports what the converter would lose from the text as
/// it is, and what it loses in any layout. The text may be any bytes; the time is proportional to
/// their number and to that of the included files. Throws std::bad_alloc if memory runs out, and
/// whatever the functions in `options` throw.
[[nodiscard]] Mended Mend(std::string_view text, const MendOptions& options);

}  // namespace a2l
