// SPDX-License-Identifier: MIT
#include "a2l2json/mend/rules.h"

#include <array>

namespace a2l {
namespace {

constexpr auto kLost = MendOutcome::Lost;
constexpr auto kMended = MendOutcome::Mended;
constexpr auto kUnmendable = MendOutcome::Unmendable;

constexpr auto kValue = MendConcern::Value;
constexpr auto kReadEnds = MendConcern::ReadEnds;

constexpr std::array kRows = {
    MendRuleRow{
        MendRule::SameLine, "same-line", kLost,
        "{0} stands behind the parameters of {1} on one line",
        "The converter drops what follows the last parameter of a keyword on the same line."},
    MendRuleRow{MendRule::BeforeEnd, "before-end", kLost, "{0} stands before /end on the same line",
                "The converter drops what stands before an /end on the same line."},
    MendRuleRow{MendRule::BeforeBegin, "before-begin", kLost,
                "{0} stands before /begin on the same line",
                "The converter drops what stands before a /begin on the same line."},
    MendRuleRow{MendRule::BehindEnd, "behind-end", kLost, "{0} stands behind /end on the same line",
                "The converter drops what follows the keyword of an /end on the same line."},
    MendRuleRow{MendRule::BehindUnknown, "behind-unknown", kLost,
                "{0} stands behind an unknown word on the same line",
                "The converter drops the whole of a line that begins with an unknown word."},
    MendRuleRow{MendRule::Tab, "tab", kLost, "a tab joins {0} to the word beside it",
                "To the converter only a blank separates words; a tab makes one word of two."},
    MendRuleRow{MendRule::WhiteSpace, "white-space", kLost,
                "white space that is not a blank becomes a part of the word {0}",
                "To the converter form feeds, vertical tabs and lone carriage returns do not "
                "separate words."},
    MendRuleRow{
        MendRule::Comment, "comment", kLost, "a comment joins {0} to the word beside it",
        "The converter removes a comment and leaves nothing in its place, not even a blank."},
    MendRuleRow{MendRule::LineEnds, "line-ends", kLost,
                "{0} stands in a file whose lines end with carriage returns alone",
                "To the converter a carriage return alone does not end a line."},
    MendRuleRow{
        MendRule::InterfaceName, "interface-name", kLost,
        "the name of IF_DATA {0} takes in the word behind it",
        "To the converter only a blank ends the name of an IF_DATA; a line end or a tab does not."},
    MendRuleRow{MendRule::InterfaceText, "interface-text", kLost,
                "the converter ends the text of {1} at another place",
                "To the converter a block that is kept as text ends at another place."},
    MendRuleRow{MendRule::ListKeyword, "list-keyword", kLost,
                "{0} is an entry of {1}, but it is also a keyword and begins a line",
                "The converter ends a list at a line that begins with a keyword."},
    MendRuleRow{MendRule::TakenAsValue, "taken-as-value", kLost,
                "the converter takes {0} for a value",
                "Where the converter waits for values, it takes a keyword for one."},
    MendRuleRow{MendRule::InsideText, "inside-text", kLost,
                "the converter takes {0} for a part of a text",
                "The converter closes a text at another quote, and takes in what stands before "
                "that quote."},
    MendRuleRow{
        MendRule::Otherwise, "otherwise", kLost, "the converter reads {0} in another way",
        "The converter reads something else here, for a reason that has no rule of its own."},
    MendRuleRow{MendRule::ReadEnds, "read-ends", kLost, "the converter stops at {0}",
                "An error ends the conversion, and there is no document."},
    MendRuleRow{MendRule::TextLines, "text-lines", kLost,
                "the text {0} goes over lines, whose white space gets into it",
                "Indentations and carriage returns get into a text that goes over lines."},
    MendRuleRow{
        MendRule::TextComment, "text-comment", kLost,
        "the text {0} goes over lines and loses what looks like a comment",
        "On all lines of a text but its first, the converter takes // and /* for comments."},
    MendRuleRow{MendRule::Include, "include", kLost, "/include {0} is not followed",
                "The converter does not read the files that a file includes."},
    MendRuleRow{MendRule::Encoding, "encoding", kLost, "the converter stops at {0}; it is left out",
                "The converter cannot read a file with the keyword ENCODING."},
    MendRuleRow{MendRule::ByteOrderMark, "byte-order-mark", kLost,
                "the byte order mark makes {0} an unknown word",
                "To the converter a byte order mark is a part of the first word of the file."},
    MendRuleRow{MendRule::Utf16, "utf-16", kLost,
                "the file is in UTF-16, of which the converter reads nothing",
                "The converter reads nothing of a file in UTF-16; the mended file is in UTF-8."},
    MendRuleRow{MendRule::TextMarker, "text-marker", kMended,
                "the text {0} contains /begin or /end; a blank goes behind the slash",
                "To the converter /begin and /end count inside texts as well."},
    MendRuleRow{
        MendRule::TextBackslash, "text-backslash", kMended,
        "the text {0} has a backslash before a quote that closes; a blank goes between them",
        "To the converter a quote behind a backslash does not close a text, even if the backslash "
        "is doubled."},
    MendRuleRow{MendRule::TextWithoutEnd, "text-without-end", kMended,
                "the text {0} has no closing quote; it ends before the next block",
                "A text without its closing quote is closed before the next line that begins or "
                "ends a block."},
    MendRuleRow{MendRule::EndMissing, "end-missing", kMended, "{1} has no /end; one is added",
                "A block without its /end is closed where the block around it ends, or the file."},
    MendRuleRow{MendRule::IncludeMissing, "include-missing", kUnmendable,
                "the file {0} cannot be read: {2}", "An included file cannot be found or read.",
                kReadEnds},
    MendRuleRow{MendRule::IncludeCircle, "include-circle", kUnmendable,
                "the file {0} includes itself",
                "A file includes itself, directly or through others."},
    MendRuleRow{MendRule::IncludeRefused, "include-refused", kUnmendable,
                "the file {0} is not read: {2}",
                "An included file lies outside of the given folders, or is not a regular file."},
    MendRuleRow{MendRule::IncludeLimit, "include-limit", kUnmendable,
                "too many files are included; {0} is not read",
                "Files include each other more often than any file needs."},
    MendRuleRow{MendRule::NumberRange, "number-range", kUnmendable,
                "{0} of {1} is beyond what the document can hold and becomes {2}",
                "The document holds whole numbers of 32 bits, and reals of 64 bits.", kValue},
    MendRuleRow{MendRule::NotANumber, "not-a-number", kUnmendable, "{0} of {1} is not a number",
                "A number is expected, but the word is not one; in most places it becomes 0.",
                kValue},
    MendRuleRow{MendRule::NumberRest, "number-rest", kUnmendable,
                "{0} of {1} begins with a number; the rest of the word is ignored",
                "The converter ignores what follows the digits of a number in the same word.",
                kValue},
    MendRuleRow{MendRule::Octal, "octal", kUnmendable,
                "{0} of {1} begins with 0, so it is octal and becomes {2}",
                "A whole number that begins with 0 is octal.", kValue},
    MendRuleRow{MendRule::UnknownValue, "unknown-value", kUnmendable, "{0} of {1} becomes {2}",
                "The converter does not know the word, or finds another one in it.", kValue},
    MendRuleRow{MendRule::TextWithoutQuotes, "text-without-quotes", kUnmendable,
                "{0} of {1} has no quotes and is read as an empty text",
                "The converter reads a text without quotes as an empty one.", kValue},
    MendRuleRow{MendRule::EmptyFormat, "empty-format", kUnmendable,
                "{1} is empty, which the converter takes for a mistake",
                "The converter reports an empty FORMAT as a wrong parameter.", kValue},
    MendRuleRow{MendRule::ParameterMissing, "parameter-missing", kUnmendable,
                "{1} lacks parameters before {0}",
                "A keyword ends before it has all its parameters."},
    MendRuleRow{MendRule::Surplus, "surplus", kUnmendable,
                "{1} has no parameter for {0}, which is dropped",
                "The converter drops values behind the last parameter of a keyword."},
    MendRuleRow{
        MendRule::Rows, "rows", kUnmendable,
        "{1} has fewer rows than it declares and keeps none of them",
        "A table that ends before it has all the rows that it declares keeps none of them."},
    MendRuleRow{MendRule::UnknownKeyword, "unknown-keyword", kUnmendable,
                "{0} in {1} is not a keyword; nothing of it is in the document",
                "A keyword is expected, but the word is not one."},
    MendRuleRow{MendRule::UnknownBlock, "unknown-block", kUnmendable,
                "{0} is not a keyword of a block; nothing of the block is in the document",
                "A block of an unknown keyword is not in the document."},
    MendRuleRow{MendRule::Refused, "refused", kUnmendable,
                "{0} must not stand in {1}; the converter stops there",
                "A keyword stands in a block that must not hold it.", kReadEnds},
    MendRuleRow{MendRule::BeginMissing, "begin-missing", kUnmendable,
                "{0} in {1} needs /begin; the converter stops there",
                "The keyword of a block stands without /begin.", kReadEnds},
    MendRuleRow{MendRule::BeginRefused, "begin-refused", kUnmendable,
                "{0} must not stand behind /begin; the converter stops there",
                "/begin stands before a word that does not begin a block.", kReadEnds},
    MendRuleRow{MendRule::EndUnmatched, "end-unmatched", kUnmendable,
                "/end {0} in {1} closes no block; the converter stops there",
                "An /end names a block that is not open.", kReadEnds},
    MendRuleRow{MendRule::Second, "second", kUnmendable,
                "{0} stands in {1} for the second time; the document has room for one",
                "Of what is given twice, the document has the first."},
    MendRuleRow{MendRule::NameCut, "name-cut", kUnmendable,
                "the name {0} has more than 1024 bytes and is cut",
                "The converter cuts names after 1024 bytes.", kValue},
    MendRuleRow{MendRule::NameComma, "name-comma", kUnmendable,
                "the name {0} contains a comma, which separates names in the document",
                "In the lists of the document, commas separate the names.", kValue},
    MendRuleRow{MendRule::CommentWithoutEnd, "comment-without-end", kUnmendable,
                "a comment is not closed; the rest of the file belongs to it",
                "A comment without its end goes on to the end of the file.", kReadEnds},
};

constexpr bool StandsAtItsIndex() {
  for (std::size_t i = 0; i < kRows.size(); ++i) {
    if (static_cast<std::size_t>(kRows[i].rule) != i) return false;
  }
  return static_cast<std::size_t>(MendRule::CommentWithoutEnd) + 1 == kRows.size();
}
static_assert(StandsAtItsIndex(), "the rules are not in the order of their numbers");

}  // namespace

std::span<const MendRuleRow> MendRules() { return kRows; }

const MendRuleRow& RowOf(MendRule rule) { return kRows[static_cast<std::size_t>(rule)]; }

std::string_view NameOf(MendOutcome outcome) {
  constexpr std::array<std::string_view, 3> kNames = {"lost", "mended", "cannot be mended"};
  return kNames[static_cast<std::size_t>(outcome)];
}

}  // namespace a2l
