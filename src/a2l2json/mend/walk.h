// SPDX-License-Identifier: MIT
//
// Goes through the words of a file with the grammar of the format. Decides what each word is,
// whether the document can hold its value, and on which line it is written.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "a2l2json/mend/comparison.h"
#include "a2l2json/mend/layout.h"
#include "a2l2json/mend/lexer.h"

namespace a2l::mending {

/// Words that are left out (an ENCODING, a marker without a keyword, an /include without its file
/// where a value is due) leave no trace in its state either: what is written next stands where it
/// would stand without them. So a mended text is mended to itself.
class Walk {
 public:
  Walk(Lexer& lexer, Comparison& comparison, Reporter& reporter, const MendOptions& options);

  /// The mended text.
  std::string Run();

 private:
  enum class Phase : std::uint8_t {
    Keyword,   // a keyword is due
    Fixed,     // one of a certain number of parameters
    Rows,      // the rows of a table
    List,      // what may go on for ever
    Encoding,  // the parameter of ENCODING
    Surplus,   // nothing is due until the next keyword
  };
  struct Frame {
    Element element;
    KindSet seen;
  };

  Word Next();
  void BeginMarker(const Word& marker);
  void EndMarker(const Word& marker);
  void EndOfInput(const Word& word);
  void MissingInclude(const Word& word);

  void KeywordDue(const Word& word);
  void OpenBlock(const Word& word, ElementKind kind);
  void OpenProperty(const Word& word, ElementKind kind);
  void StartParameters(const detail::Declaration& declaration);
  void NotAKeyword(const Word& word, ElementKind kind);
  void BadMarker(const Word& marker, const Word& word, MendRule rule);

  void ParameterDue(const Word& word);
  /// In the phases in which one is.
  [[nodiscard]] const detail::Parameter& DueParameter();
  void CheckText(const Word& word);
  void FixedParameter(const Word& word);
  void RowParameter(const Word& word);
  void ListParameter(const Word& word);
  void EndOfFixed();
  void Check(const Word& word, const detail::Parameter& parameter);
  void FinishItem(const Word& behind);

  void CloseBlock(const Word* keyword);
  void CopyRaw();
  void Write(const Word& word);
  void Report(MendRule rule, const Word& word, const Element& owner, std::string_view detail = {});
  void ReportOpen(const Element& element);

  [[nodiscard]] bool IsKeywordHere(const Word& word) const;
  [[nodiscard]] bool EndsList(const Word& word) const;
  /// Whether the converter may go on at `word`, if that begins a line.
  [[nodiscard]] bool IsBoundary(const Word& word) const;
  [[nodiscard]] bool HoldsChild(const Word& word);
  [[nodiscard]] const detail::Declaration& OpenDeclaration() const;
  [[nodiscard]] const Element& OpenElement() const;
  /// What the parameters belong to.
  [[nodiscard]] Element& Item() { return itemIsBlock_ ? frames_.back().element : property_; }
  [[nodiscard]] std::vector<mending::OpenBlock> OpenBlocks() const;

  Lexer& lexer_;
  Comparison& comparison_;
  Reporter& reporter_;
  const MendOptions& options_;
  Layout out_;
  std::optional<Word> returned_;
  std::deque<std::string> kept_;
  std::size_t progress_ = 0;

  Element root_;
  std::vector<Frame> frames_;
  Phase phase_ = Phase::Keyword;
  Phase behindEncoding_ = Phase::Keyword;
  bool itemIsBlock_ = false;
  /// The last line is one on which the converter drops what is more than it needs.
  bool mayFollow_ = false;
  Element property_;
  std::size_t index_ = 0;      // of the parameter
  std::size_t parameter_ = 0;  // in the declaration
  std::size_t repeated_ = 0;   // of a parameter that stands for several
  std::size_t rowsEnd_ = 0;
  std::uint32_t rows_ = 0;
  bool rowsFillLine_ = false;
};

}  // namespace a2l::mending
