// SPDX-License-Identifier: MIT
//
// Findings as text, as JSON and as SARIF 2.1.0.
#pragma once

#include <cstddef>
#include <functional>
#include <ostream>
#include <string>
#include <string_view>

#include "a2l2json/mend/mend.h"
#include "app/mend/arguments.h"

namespace a2l {

/// Prints findings as they come.
class FindingPrinter {
 public:
  /// `before` is called before anything is printed.
  FindingPrinter(FindingFormat format, std::ostream& out, std::function<void()> before);

  void Print(const Finding& finding);
  /// What is printed behind the last finding. `file` is what it is about, `isWritten` whether the
  /// mended text is kept.
  void Finish(const Mended& mended, std::string_view file, bool isWritten);

 private:
  void Begin();
  void Print();

  FindingFormat format_;
  std::ostream& out_;
  /// What is not printed yet: a stream without a buffer would be asked for every piece.
  std::string text_;
  std::function<void()> before_;
  bool hasBegun_ = false;
  std::size_t count_ = 0;
};

/// A JSON string with its quotes. Bytes that are no UTF-8 become the replacement character.
std::string JsonQuoted(std::string_view text);

}  // namespace a2l
