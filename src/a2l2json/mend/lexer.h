// SPDX-License-Identifier: MIT
//
// The words of a file as the ASAP2 standard has them: separated by any white space and by
// comments, wherever the lines end, with the words of included files in the place of the /include.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "a2l2json/mend/options.h"
#include "a2l2json/mend/reporter.h"
#include "a2l2json/mend/source.h"

namespace a2l::mending {

enum class WordType : std::uint8_t {
  Plain,
  Text,        ///< in double quotes
  Begin,       ///< "/begin", also where the next word follows without white space
  End,         ///< "/end"
  Include,     ///< an /include, with its name, that could not be followed
  EndOfInput,  ///< of the file itself
};

/// A word and where it stands.
struct Word {
  WordType type = WordType::EndOfInput;
  std::string_view text;
  /// Of its first byte and the one behind its last, in its file.
  std::size_t begin = 0;
  std::size_t end = 0;
  std::string_view file;
  std::size_t line = 1;
  std::size_t column = 1;
  /// Nothing but white space and comments stands before it on its line.
  bool isFirst = false;
  /// It stands in the file itself, not in one that is included.
  bool isInMain = true;
  /// A quote stands in it; of a text, this says nothing.
  bool hasQuote = false;
  /// Of a text.
  TextTraits traits;
};

/// A finding about a word.
[[nodiscard]] Finding FindingAt(MendRule rule, const Word& word);

/// The name in an /include that could not be followed, with its quotes.
[[nodiscard]] std::string_view NameInInclude(const Word& word);

/// Whether an /include that could not be followed may be written with that name: without one, the
/// next word would be taken for it, and to the converter a marker in it is one.
[[nodiscard]] bool MayStay(std::string_view nameInInclude);

class Lexer {
 public:
  /// The words of `text` from `start` on. Everything must outlive this object.
  Lexer(std::string_view text, std::size_t start, const MendOptions& options, Reporter& reporter);

  /// The next word. Included files are followed, and reported.
  Word Next();

  /// A word of no bytes at the place that is reached.
  [[nodiscard]] Word Here(WordType type) const;
  /// Goes back to the beginning of a marker that Next gave.
  void Return(const Word& marker);

  /// The file that is being read; for those who read its bytes themselves.
  [[nodiscard]] Source& Top() { return sources_.back(); }
  /// Goes back to the file that included the one at whose end we are. False for the file itself.
  bool LeaveFile();
  [[nodiscard]] bool HasInclude() const;
  /// Reads the /include that is here, and gives true where its file is at the top then. Otherwise
  /// `word` is the /include with its name.
  bool FollowInclude(Word& word);

  /// The file itself.
  [[nodiscard]] const Source& Main() const { return sources_.front(); }

 private:
  bool Take(Word& word);
  void SetPlace(Word& word) const;
  void Finish(Word& word);
  void TakePlain(Word& word);
  /// What the name in an /include may be, the likeliest first; some may be empty.
  using Names = std::array<std::string_view, 3>;
  bool OpenOneOf(const Word& word, const Names& names, MendRule& problem, std::string& detail);
  bool Open(const Word& word, std::string_view name, MendRule& problem, std::string& detail);
  bool Push(const Word& word, std::string_view name, IncludedFile file);

  const MendOptions& options_;
  Reporter& reporter_;
  std::vector<Source> sources_;
  /// The names, paths and bytes of all included files; words point into them to the end.
  std::deque<std::string> kept_;
  std::size_t included_ = 0;
};

}  // namespace a2l::mending
