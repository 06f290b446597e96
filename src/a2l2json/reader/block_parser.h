// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string_view>
#include <utility>

#include "a2l2json/model/element.h"
#include "a2l2json/reader/comments.h"
#include "a2l2json/reader/diagnostics.h"
#include "a2l2json/reader/line_source.h"
#include "a2l2json/text/growing_text.h"
#include "a2l2json/text/tokenizer.h"

namespace a2l {

/// Turns lines into elements. A line is one of three: a begin line and an end line hold a marker,
/// "/begin" or "/end"; every other line is plain. Markers are found anywhere in a line, quoted
/// texts included; what stands before a marker is dropped, and what follows from a second marker
/// on is taken as a line of its own.
class BlockParser {
 public:
  using Report = std::function<void(const Diagnostic&)>;

  /// `root` receives the elements; `report` is called for every warning and error.
  BlockParser(LineSource& lines, VoA2LElement& root, Report report)
      : lines_(lines), store_(root.Store()), current_(&root), report_(std::move(report)) {}

  BlockParser(const BlockParser&) = delete;
  BlockParser& operator=(const BlockParser&) = delete;

  /// Reads to the end. False at the first error, and if the input cannot be read completely.
  bool Run();

 private:
  enum class State : std::uint8_t {
    Idle,                   // the next plain line begins with a keyword
    CollectParams,          // the fixed parameters of a block are incomplete
    CollectOpen,            // an open list takes lines until a known keyword
    CollectPropertyParams,  // the parameters of a property are incomplete
    CollectMoreParams,      // the rows of a table are incomplete
    RawContent,             // everything up to the matching /end is kept as text
    PendingBegin,           // /begin stood last on its line: its keyword begins the next one
    PendingEnd,             // the same of /end
  };
  enum class Marker : std::uint8_t { None, Begin, End };

  struct MarkerPlace {
    Marker marker = Marker::None;
    std::size_t position = 0;
    std::size_t end = 0;
  };
  static MarkerPlace FindMarker(std::string_view line, LineSource::Slashes slashes);

  bool ReadPhysicalLine(std::string_view& line);
  bool RemoveComments(std::string_view& line, LineSource::Slashes& slashes);

  // Each handles one kind of line; false when the read ends there. `text` is what follows the
  // marker, up to the next one.
  bool HandleLine(std::string_view line, LineSource::Slashes slashes);
  bool HandleBegin(std::string_view line, std::string_view text);
  bool HandleEnd(std::string_view line, std::string_view text);
  bool HandlePlain(std::string_view line);
  bool HandleProperty(ElementKind kind, std::string_view keyword, std::string_view text);

  bool Attach(VoA2LElement* element, std::string_view keyword);
  bool HasTokens(std::string_view text, std::size_t needed);
  void CompleteParameters(std::string_view text);

  void StartCollecting(State state, std::string_view text, std::size_t needed);
  bool CompleteCollection();
  bool CloseCollection(DiagnosticKind ifNoParent);
  bool ReturnToParent(DiagnosticKind ifNone);

  void WrongParameters();
  void ClearValidOfParent();
  void Warn(DiagnosticKind kind, std::string_view subject);
  bool Fail(DiagnosticKind kind, std::string_view subject = {});

  LineSource& lines_;
  TreeStore& store_;  // of the tree
  CommentRemover comments_;
  CommentRemover::NextLine nextPhysicalLine_ = [this](std::string_view& line) {
    return ReadPhysicalLine(line);
  };
  std::size_t lineNo_ = 0;

  /// What follows a second marker on a line, from that marker on.
  std::string_view remainder_;
  LineSource::Slashes remainderSlashes_;

  VoA2LElement* current_;
  State state_ = State::Idle;
  /// In the collecting states: the parameters so far, their tokens, and how many of them are
  /// needed. The element that they belong to is the current one.
  GrowingText collected_;
  TokenFinder finder_;
  std::size_t needed_ = 0;
  std::size_t rawDepth_ = 0;

  Report report_;
};

}  // namespace a2l
