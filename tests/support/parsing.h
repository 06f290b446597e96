// SPDX-License-Identifier: MIT
//
// Elements with their parameters, without a file around them, for tests.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "a2l2json/model/element.h"
#include "tests/support/trees.h"

namespace a2l::test {

/// What an element makes of its parameters.
struct ParseRow {
  std::string keyword;
  std::string text;     ///< what follows the keyword
  bool ok;              ///< what ParseParameters gives
  std::string rest;     ///< what it leaves in the text
  std::string written;  ///< the element as A2L text, at level 0
};

/// Checks a row; element and text are freshly made.
void ExpectParse(const ParseRow& row);

template <std::size_t kSize>
void ExpectParse(const ParseRow (&rows)[kSize]) {
  for (const ParseRow& row : rows) ExpectParse(row);
}

/// An element of a class in a tree of its own. Parameters come from a text that does not outlive
/// the call, so that an element that kept a view into it is found out.
template <class Class>
class Made {
 public:
  Made() = default;
  /// Made and read; see `ok` and `rest`.
  explicit Made(std::string_view text) { Parse(text); }

  bool Parse(std::string_view text) {
    std::string copy(text);
    std::string_view view = copy;
    ok = element_->ParseParameters(view);
    rest = view;
    copy.assign(copy.size(), '#');
    return ok;
  }
  bool ParseMore(std::string_view text) {
    std::string copy(text);
    std::string_view view = copy;
    ok = element_->ParseMoreParameters(view);
    rest = view;
    copy.assign(copy.size(), '#');
    return ok;
  }

  [[nodiscard]] std::string Written(int level = 0) const { return test::Written(*element_, level); }

  Class* operator->() const { return element_; }
  Class& operator*() const { return *element_; }

  bool ok = false;
  std::string rest;

 private:
  Tree root_{NewTree()};
  Class* element_ = root_->store->Create<Class>(root_.get());
};

}  // namespace a2l::test
