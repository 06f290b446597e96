// SPDX-License-Identifier: MIT
//
// Blocks that are kept as text: IF_DATA, A2ML and those of unknown keywords. Their lines are
// copied byte for byte, with two exceptions: the first begins with a blank, which ends the name of
// an IF_DATA, and a marker inside of a text gets a blank behind its slash.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "a2l2json/mend/layout.h"
#include "a2l2json/mend/lexer.h"
#include "a2l2json/mend/reporter.h"

namespace a2l::mending {

class RawText {
 public:
  /// For the block of `keyword`, of which a quote behind its first byte opens a text elsewhere.
  RawText(std::string_view keyword, Lexer& lexer, Layout& out, Reporter& reporter)
      : keyword_(keyword.substr(0, keyword.find('"', 1))),
        lexer_(lexer),
        out_(out),
        reporter_(reporter) {}

  /// Copies what follows, up to the /end that closes the block, and gives that; or the end of the
  /// input. Behind `name`, that of an IF_DATA if there is one.
  Word CopyToEnd(const Word& name);

 private:
  void SkipToContent();
  void SkipToEnd();
  [[nodiscard]] bool CommentFollows();
  void CloseInner();
  void PartFromFile();
  void Text();
  void Rewrite(const Word& word, MendRule rule);
  void PartSlashes(const Word& word);
  void Comment();
  void Include();
  /// What has been read and not copied.
  void Copy(std::size_t end);
  void SkipBlankLines(std::size_t end);
  /// What comes next begins at `position`, in the line of the file that is reached.
  void SetBegin(std::size_t position);
  void Append(std::string_view bytes);

  std::string_view keyword_;
  Lexer& lexer_;
  Layout& out_;
  Reporter& reporter_;
  std::size_t begin_ = 0;  // of what has not been copied
  std::size_t beginLine_ = 1;
  std::size_t rewrittenEnd_ = static_cast<std::size_t>(-1);  // of the last text written anew
  bool isFirst_ = true;
  // Where the line has been searched for a comment last.
  const char* searchedFrom_ = nullptr;
  const char* searchedTo_ = nullptr;
  bool commentFollows_ = false;
  /// The keywords of the blocks inside that are open.
  std::vector<std::string_view> inner_;
};

}  // namespace a2l::mending
