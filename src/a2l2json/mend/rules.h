// SPDX-License-Identifier: MIT
//
// Everything that mending can report about a file. Users rely on the names of the rules: a name
// never changes, even if its texts do.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace a2l {

enum class MendRule : std::uint8_t {
  SameLine,
  BeforeEnd,
  BeforeBegin,
  BehindEnd,
  BehindUnknown,
  Tab,
  WhiteSpace,
  Comment,
  LineEnds,
  InterfaceName,
  InterfaceText,
  ListKeyword,
  TakenAsValue,
  InsideText,
  Otherwise,
  ReadEnds,
  TextLines,
  TextComment,
  Include,
  Encoding,
  ByteOrderMark,
  Utf16,
  TextMarker,
  TextBackslash,
  TextWithoutEnd,
  EndMissing,
  IncludeMissing,
  IncludeCircle,
  IncludeRefused,
  IncludeLimit,
  NumberRange,
  NotANumber,
  NumberRest,
  Octal,
  UnknownValue,
  TextWithoutQuotes,
  EmptyFormat,
  ParameterMissing,
  Surplus,
  Rows,
  UnknownKeyword,
  UnknownBlock,
  Refused,
  BeginMissing,
  BeginRefused,
  EndUnmatched,
  Second,
  NameCut,
  NameComma,
  CommentWithoutEnd,
};

/// What happens to the words that a finding is about.
enum class MendOutcome : std::uint8_t {
  Lost,       ///< the converter loses them, but not in the mended text
  Mended,     ///< the mended text has them in other bytes, which the converter can read
  Unmendable  ///< no layout can help; the mended text has them as they are
};

/// How far a finding reaches.
enum class MendConcern : std::uint8_t {
  Words,    ///< words and their places: the words beside them may be read in another way
  Value,    ///< one value, which stands where it should
  ReadEnds  ///< the converter may read nothing behind it
};

struct MendRuleRow {
  MendRule rule;
  /// As it stands in brackets behind a finding.
  std::string_view name;
  MendOutcome outcome;
  /// The text of a finding: {0} is the word that it is about, {1} the block or keyword that the
  /// word belongs to, {2} what becomes of it.
  std::string_view text;
  /// The rule in a sentence, for those who have not met it yet.
  std::string_view meaning;
  MendConcern concern = MendConcern::Words;
};

/// All rules, in the order of their numbers.
[[nodiscard]] std::span<const MendRuleRow> MendRules();
[[nodiscard]] const MendRuleRow& RowOf(MendRule rule);

/// "lost", "mended" or "cannot be mended".
[[nodiscard]] std::string_view NameOf(MendOutcome outcome);

}  // namespace a2l
