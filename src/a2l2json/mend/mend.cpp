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

// No file in use takes more than two.
constexpr int kMostPasses = 8;

struct Pass {
  Mended mended;
  bool isBroken = false;  // see Reporter
};

Pass MendOnce(std::string_view text, const MendOptions& options) {
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
  Pass pass;
  Mended& result = pass.mended;
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
  pass.isBroken = reporter.IsBroken();
  return pass;
}

}  // namespace

// Where the grammar is broken, a word may mean something else in the new layout, because other
// words stand around it. Such a text is mended until nothing changes, so that whoever mends it
// again gets the same. What is told are the findings in the file itself.
Mended Mend(std::string_view text, const MendOptions& options) {
  Pass first = MendOnce(text, options);
  Mended& result = first.mended;
  for (int pass = 1; pass < kMostPasses && first.isBroken; ++pass) {
    LineMap lines;
    MendOptions again;
    if (options.lines != nullptr) again.lines = &lines;
    std::string next = MendOnce(result.text, again).mended.text;
    if (next == result.text) break;
    result.text = std::move(next);
    if (options.lines != nullptr) *options.lines = options.lines->Through(lines);
  }
  return std::move(result);
}

}  // namespace a2l
