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
  /// Findings by what becomes of them; see MendOutcome.
  std::size_t lost = 0;
  std::size_t mended = 0;
  std::size_t unmendable = 0;
};

/// Reads the text of an A2L file as the ASAP2 standard means it, and writes it anew, in the layout
/// from which the converter loses nothing. Reports what the converter would lose from the text as
/// it is, and what no layout can help. Any bytes will do; the time is proportional to their number
/// and to that of the included files. Throws std::bad_alloc where memory runs out, and what
/// `options` throw.
[[nodiscard]] Mended Mend(std::string_view text, const MendOptions& options);

}  // namespace a2l
