// SPDX-License-Identifier: MIT
#include "a2l2json/mend/rules.h"

#include <array>

namespace a2l {
namespace {

constexpr auto kLost = MendOutcome::Lost;
constexpr auto kMended = MendOutcome::Mended;
constexpr auto kUnmendable = MendOutcome::Unmendable;

constexpr std::array kRows = {
    MendRuleRow{MendRule::SameLine, "same-line", kLost,
                "{0} stands behind the parameters of {1} on one line",
                "What stands behind the last parameter of a keyword on its line is dropped."},
    MendRuleRow{MendRule::BeforeEnd, "before-end", kLost, "{0} stands before /end on one line",
                "What stands before /end on its line is dropped."},
    MendRuleRow{MendRule::BeforeBegin, "before-begin", kLost,
                "{0} stands before /begin on one line",
                "What stands before /begin on its line is dropped."},
    MendRuleRow{MendRule::BehindEnd, "behind-end", kLost, "{0} stands behind /end on one line",
                "What stands behind the keyword of /end on its line is dropped."},
    MendRuleRow{MendRule::BehindUnknown, "behind-unknown", kLost,
                "{0} stands behind a word that is no keyword on one line",
                "A line that begins with an unknown word is dropped as a whole."},
    MendRuleRow{MendRule::Tab, "tab", kLost, "a tab joins {0} to the word beside it",
                "Only the blank separates words; a tab makes one word of two."},
    MendRuleRow{MendRule::WhiteSpace, "white-space", kLost,
                "white space other than a blank joins {0} to the word beside it",
                "Form feeds, vertical tabs and lone carriage returns do not separate words."},
    MendRuleRow{MendRule::Comment, "comment", kLost, "a comment joins {0} to the word beside it",
                "Nothing stands in the place of a comment, not even a blank."},
    MendRuleRow{MendRule::LineEnds, "line-ends", kLost,
                "{0} stands on the one line of a file whose lines end in carriage returns",
                "A carriage return alone ends no line."},
    MendRuleRow{MendRule::InterfaceName, "interface-name", kLost,
                "the name of IF_DATA {0} takes in the word behind it",
                "The name of an IF_DATA goes on to the next blank, over line ends as well."},
    MendRuleRow{MendRule::InterfaceText, "interface-text", kUnmendable,
                "the text of {1} ends at another place for the converter",
                "A block that is kept as text ends where its lines seem to say so."},
    MendRuleRow{MendRule::ListKeyword, "list-keyword", kLost,
                "{0} is an entry of {1}, but begins a line and is a keyword",
                "A keyword at the beginning of a line ends the list that it stands in."},
    MendRuleRow{MendRule::TakenAsValue, "taken-as-value", kLost, "{0} is taken for a value",
                "A keyword is taken for a value where the one before it lacks some."},
    MendRuleRow{MendRule::InsideText, "inside-text", kLost,
                "{0} stands inside of what is taken for one text",
                "A text that is not closed where it seems to be takes in what follows."},
    MendRuleRow{MendRule::Otherwise, "otherwise", kLost, "{0} is read in another way",
                "The lines say something else than the words."},
    MendRuleRow{MendRule::ReadEnds, "read-ends", kLost, "the converter ends at {0}",
                "An error ends the read, and there is no document."},
    MendRuleRow{MendRule::TextLines, "text-lines", kLost,
                "the text {0} goes over lines, whose white space gets into it",
                "Indentations and carriage returns stay in a text that goes over lines."},
    MendRuleRow{MendRule::TextComment, "text-comment", kLost,
                "the text {0} goes over lines and loses what looks like a comment",
                "In a text, // and /* are comments on the lines in which it goes on."},
    MendRuleRow{MendRule::Include, "include", kLost, "/include {0} is not followed",
                "The converter does not read the files that a file includes."},
    MendRuleRow{MendRule::Encoding, "encoding", kLost, "the converter ends at ENCODING {0}",
                "A file with the keyword ENCODING is not read; the keyword is left out."},
    MendRuleRow{MendRule::ByteOrderMark, "byte-order-mark", kLost,
                "the byte order mark makes {0} an unknown word",
                "A byte order mark belongs to the first word of the file."},
    MendRuleRow{MendRule::Utf16, "utf-16", kLost, "the file is UTF-16, of which nothing is read",
                "Nothing of a file in UTF-16 is read; it is written as UTF-8."},
    MendRuleRow{MendRule::TextMarker, "text-marker", kMended,
                "the text {0} holds /begin or /end; a blank goes behind the slash",
                "Markers count inside of texts as well."},
    MendRuleRow{MendRule::TextBackslash, "text-backslash", kMended,
                "the text {0} has a backslash before a quote that closes; a blank goes between",
                "A quote behind a backslash does not close a text, a doubled one included."},
    MendRuleRow{MendRule::TextWithoutEnd, "text-without-end", kMended,
                "the text {0} has no closing quote before the next block",
                "A text without its closing quote is taken to end before the next marker."},
    MendRuleRow{MendRule::EndMissing, "end-missing", kMended, "/end is missing for {1}",
                "What is open at the end of the file or of a block around it is closed."},
    MendRuleRow{MendRule::IncludeMissing, "include-missing", kUnmendable,
                "the file {0} cannot be read: {2}",
                "A file that is included cannot be found or read."},
    MendRuleRow{MendRule::IncludeCircle, "include-circle", kUnmendable,
                "the file {0} includes itself", "A file includes itself, directly or by others."},
    MendRuleRow{MendRule::IncludeRefused, "include-refused", kUnmendable,
                "the file {0} is not read: {2}",
                "A file outside of the given folders, or one that is no regular file."},
    MendRuleRow{MendRule::IncludeLimit, "include-limit", kUnmendable,
                "too many files are included, {0} is not",
                "Files include each other more often than any file needs."},
    MendRuleRow{MendRule::NumberRange, "number-range", kUnmendable,
                "{0} of {1} is beyond what the document can hold and becomes {2}",
                "Whole numbers have 32 bits in the document, reals 64."},
    MendRuleRow{MendRule::NotANumber, "not-a-number", kUnmendable, "{0} of {1} is no number",
                "A number is due, but the word is none; mostly 0 stands for it."},
    MendRuleRow{MendRule::NumberRest, "number-rest", kUnmendable,
                "{0} of {1} is read as a number with a rest, which is ignored",
                "What follows the digits of a number is ignored."},
    MendRuleRow{MendRule::Octal, "octal", kUnmendable,
                "{0} of {1} begins with 0, is therefore octal and becomes {2}",
                "A whole number that begins with 0 is octal."},
    MendRuleRow{MendRule::UnknownValue, "unknown-value", kUnmendable, "{0} of {1} becomes {2}",
                "A word that its keyword does not know, or knows as part of another."},
    MendRuleRow{MendRule::TextWithoutQuotes, "text-without-quotes", kUnmendable,
                "{0} of {1} stands without quotes and is read as an empty text",
                "A text without quotes is empty."},
    MendRuleRow{MendRule::EmptyFormat, "empty-format", kUnmendable, "{1} is empty, which is wrong",
                "A FORMAT must not be empty; that it is may make its object invalid."},
    MendRuleRow{MendRule::ParameterMissing, "parameter-missing", kUnmendable,
                "{1} has fewer parameters than it needs, before {0}",
                "A keyword ends before it has all its parameters."},
    MendRuleRow{MendRule::Surplus, "surplus", kUnmendable,
                "{0} is more than {1} has parameters and is dropped",
                "What follows the parameters of a keyword and is no keyword is dropped."},
    MendRuleRow{MendRule::Rows, "rows", kUnmendable,
                "{1} ends before the rows that it declares and keeps none",
                "A table with fewer rows than it declares keeps none."},
    MendRuleRow{MendRule::UnknownKeyword, "unknown-keyword", kUnmendable,
                "{0} in {1} is no keyword; nothing of it is in the document",
                "A word where a keyword is due, but which is none."},
    MendRuleRow{MendRule::UnknownBlock, "unknown-block", kUnmendable,
                "{0} is no keyword of a block; nothing of it is in the document",
                "A block of an unknown keyword is not in the document."},
    MendRuleRow{MendRule::Refused, "refused", kUnmendable,
                "{0} has no place in {1}; the converter ends there",
                "A keyword stands in a block that may not hold it."},
    MendRuleRow{MendRule::BeginMissing, "begin-missing", kUnmendable,
                "{0} in {1} needs /begin; the converter ends there",
                "The keyword of a block stands without /begin."},
    MendRuleRow{MendRule::BeginRefused, "begin-refused", kUnmendable,
                "{0} must not stand behind /begin; the converter ends there",
                "/begin stands before a keyword that has no /end."},
    MendRuleRow{MendRule::EndUnmatched, "end-unmatched", kUnmendable,
                "/end {0} closes no block; {1} is open, and the converter ends there",
                "/end names a block that is not open."},
    MendRuleRow{MendRule::Second, "second", kUnmendable,
                "a second {0} in {1}; the document has room for one",
                "Of what is given twice, the document has the first."},
    MendRuleRow{MendRule::NameCut, "name-cut", kUnmendable,
                "the name {0} has more than 1024 bytes and is cut", "Names are cut to 1024 bytes."},
    MendRuleRow{MendRule::NameComma, "name-comma", kUnmendable,
                "the name {0} holds a comma, which lists of the document have between their names",
                "Names are joined by commas in the document."},
    MendRuleRow{MendRule::CommentWithoutEnd, "comment-without-end", kUnmendable,
                "a comment is not closed; the rest of the file belongs to it",
                "A comment goes on to the end of the file."},
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
