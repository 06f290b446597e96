// SPDX-License-Identifier: MIT
//
// Elements with their parameters, without a file, for tests.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "a2l2json/model/element.h"
#include "tests/support/trees.h"

namespace a2l::test {

/// The result of giving an element its parameters.
struct ParseRow {
  std::string keyword;
  std::string text;     ///< the text behind the keyword
  bool ok;              ///< the result of ParseParameters
  std::string rest;     ///< the rest that it leaves of the text
  std::string written;  ///< the element as A2L text, at level 0
};

/// Checks a row with a new element and a new text.
void ExpectParse(const ParseRow& row);

template <std::size_t kSize>
void ExpectParse(const ParseRow (&rows)[kSize]) {
  for (const ParseRow& row : rows) ExpectParse(row);
}

/// An element of a class in a tree of its own. The text of the parameters does not outlive the
/// call. So an element that keeps a view into it is found.
template <class Class>
class Made {
 public:
  Made() = default;
  /// Makes the element and gives it its parameters; see `ok` and `rest`.
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
  Class* element_ = root_->Store().Create<Class>(root_.get());
};

}  // namespace a2l::test
