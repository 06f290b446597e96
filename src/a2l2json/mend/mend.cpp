// SPDX-License-Identifier: MIT
#include "a2l2json/mend/mend.h"

#include <string>
#include <utility>

#include "a2l2json/mend/comparison.h"
#include "a2l2json/mend/encodings.h"
#include "a2l2json/mend/lexer.h"
#include "a2l2json/mend/reporter.h"
#include "a2l2json/mend/walk.h"

namespace a2l {
namespace {

using namespace mending;  // NOLINT(google-build-using-namespace): all of it is here

// Ends texts that would never settle.
constexpr int kMostPasses = 8;

// True where the grammar is broken.
bool MendOnce(std::string_view text, const MendOptions& options, Mended& result) {
  Reporter reporter(options);
  const Encoding encoding = EncodingOf(text);
  const bool isReadable = encoding == Encoding::Bytes;
  std::string utf8;
  if (!isReadable) {
    utf8 = Utf8Of(text, encoding);
    text = utf8;
    Finding finding;
    finding.rule = MendRule::Utf16;
    finding.file = options.name;
    reporter.Report(finding);
  }
  const std::size_t start = text.starts_with(kByteOrderMark) ? kByteOrderMark.size() : 0;
  // What the lines are to the converter must be asked of the text as it is.
  std::string withLineFeeds;
  const bool isChanged = MakeLineFeeds(text, withLineFeeds);
  Lexer lexer(isChanged ? withLineFeeds : text, start, options, reporter);
  const LineEnds lineEnds = !isReadable ? LineEnds::Unreadable
                            : isChanged ? LineEnds::CarriageReturns
                                        : LineEnds::LineFeeds;
  Comparison comparison(text, options.name, lineEnds, reporter);
  Walk walk(lexer, comparison, reporter, options);
  result.text = walk.Run();
  // A word of nonsense at the beginning must not look like the mark of an encoding.
  const bool looksMarked =
      result.text.starts_with(kByteOrderMark) || EncodingOf(result.text) != Encoding::Bytes;
  if (looksMarked) result.text.insert(0, 2, '\n');
  if (looksMarked && options.lines != nullptr) options.lines->SetLinesBefore(2);
  result.lostValues = comparison.LostValues();
  result.lost = reporter.Count(MendOutcome::Lost);
  result.mended = reporter.Count(MendOutcome::Mended);
  result.unmendable = reporter.Count(MendOutcome::Unmendable);
  return reporter.IsBroken();
}

}  // namespace

// Where the grammar is broken, a word may mean something else in the new layout, because other
// words stand around it. Such a text is mended until nothing changes, so that whoever mends it
// again gets the same. What is told are the findings in the file itself.
Mended Mend(std::string_view text, const MendOptions& options) {
  Mended result;
  const bool isBroken = MendOnce(text, options, result);
  for (int pass = 1; pass < kMostPasses && isBroken; ++pass) {
    LineMap lines;
    MendOptions again;
    if (options.lines != nullptr) again.lines = &lines;
    Mended next;
    MendOnce(result.text, again, next);
    if (next.text == result.text) break;
    result.text = std::move(next.text);
    if (options.lines != nullptr) *options.lines = options.lines->Through(lines);
  }
  return result;
}

}  // namespace a2l
