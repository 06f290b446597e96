// SPDX-License-Identifier: MIT
#include "tests/generator/generator.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "tests/support/kinds.h"

namespace a2l::test {
namespace {

bool IsTracked(const Node& node) {
  return !node.keyword.empty() && node.keyword != "?" &&
         Find(node.keyword).onWrongNumber == OnWrongNumber::MarkAndGoOn;
}

class FileWriter {
 public:
  explicit FileWriter(std::uint64_t seed, bool mayBreak)
      : random_(seed), lineEnd_(random_.OneIn(2) ? "\n" : "\r\n"), mayBreak_(mayBreak) {
    hasComments_ = !random_.OneIn(3);
    breaksLines_ = !random_.OneIn(3);
    if (mayBreak_ && random_.OneIn(4)) piecesToError_ = 1 + random_.Below(120);
  }

  GeneratedFile File() {
    file_.root.keyword = "";
    open_ = &file_.root;
    WriteRoot();
    Finish();
    return std::move(file_);
  }

  std::string Lines(const Keyword& keyword) {
    open_ = &file_.root;
    if (keyword.isBlock) {
      WriteBlock(keyword);
    } else {
      WriteProperty(keyword, false);
    }
    EndLine(false);
    return std::move(file_.text);
  }

 private:
  // -------------------------------------------------------------------------------------------
  // Bytes and lines

  void Put(std::string_view bytes) {
    file_.text += bytes;
    atLineStart_ = false;
  }

  // Something without a meaning that does not end a line for the reader. It may take several lines.
  void PutComment() {
    constexpr const char* kComments[] = {"/* c */",         "/**/",
                                         "/***/",           "/* // \" */",
                                         "/*/begin X*/",    "/* /end MODULE /* \\ */",
                                         "/* \"unclosed */"};
    if (random_.OneIn(5)) {
      Put("/* over");
      Put(lineEnd_);
      ++line_;
      Put(" \"two lines */");
    } else {
      Put(random_.Pick(kComments));
    }
  }

  void Blank() {
    Put(random_.OneIn(6) ? "  " : " ");
    if (hasComments_ && random_.OneIn(12)) {
      PutComment();
      Put(" ");
    }
  }

  // Ends the current line, if there is one. `mayAddLines` is false if an empty line would count as
  // text.
  void EndLine(bool mayAddLines = true) {
    if (!atLineStart_) {
      if (hasComments_ && random_.OneIn(10)) Put(" // \" /* /begin X");
      if (random_.OneIn(12)) Put(" \t");
      PutLineEnd();
    }
    while (mayAddLines && random_.OneIn(12)) {
      if (hasComments_ && random_.OneIn(2)) Put("// a line of its own");
      PutLineEnd();
    }
    markerMayFollow_ = false;
  }

  void PutLineEnd() {
    Put(lineEnd_);
    TellPending();
    ++line_;
    atLineStart_ = true;
  }

  // A message about a line names the last of its physical lines.
  void TellPending() {
    for (const std::string& body : pending_) {
      const bool isError = body.starts_with("Error");
      const std::size_t colon = body.find(' ');
      file_.message += body.substr(0, colon) + " Line(" + std::to_string(line_) + ")" +
                       body.substr(colon) + "\n";
      if (isError) file_.ok = false;
    }
    pending_.clear();
  }

  void Indent() {
    if (!atLineStart_) return;
    constexpr const char* kIndents[] = {"", " ", "    ", "\t", "\t  "};
    Put(random_.Pick(kIndents));
  }

  // Between parameters: a new line, or none.
  void SeparateParameters(bool& isOneLine) {
    if (breaksLines_ && random_.OneIn(6)) {
      EndLine();
      Indent();
      isOneLine = false;
    } else {
      Blank();
    }
  }

  // -------------------------------------------------------------------------------------------
  // Messages

  void Warn(const std::string& text) { pending_.push_back("Warning: " + text); }
  void Fail(const std::string& text) {
    pending_.push_back("Error: " + text);
    stopped_ = true;
  }

  // Reports wrong parameters while `current` is the open element.
  void WarnOfWrongParameters(Node& current) {
    Warn("wrong parameters " + (current.keyword == "?" ? "" : current.keyword));
    Invalidate(current.parent);
  }
  static void Invalidate(Node* object) {
    if (object != nullptr && IsTracked(*object)) object->valid = false;
  }

  // The collection in progress, and the message, if any, when a marker or a keyword ends it.
  struct Collection {
    Node* node = nullptr;
    bool isList = false;
    std::string warning;
    Node* invalidated = nullptr;
  };
  static Collection ListOf(Node& node) {
    Collection collection{&node, true, {}, nullptr};
    if (node.isBroken) {
      collection.warning = "wrong parameters " + node.keyword;
      collection.invalidated = node.parent;
    }
    return collection;
  }
  static Collection ParametersOf(Node& node, std::size_t needed, Node* invalidated = nullptr) {
    return {&node, false, "element need more parameters " + std::to_string(needed), invalidated};
  }
  void CloseCollection() {
    if (!collection_.has_value()) return;
    if (!collection_->warning.empty()) Warn(collection_->warning);
    Invalidate(collection_->invalidated);
    collection_.reset();
  }

  // -------------------------------------------------------------------------------------------
  // Markers

  void PutMarker(const char* marker) {
    if (!atLineStart_) {
      if (markerMustFollow_ || (markerMayFollow_ && random_.OneIn(4))) {
        markerMustFollow_ = false;
        Put(" ");
      } else {
        EndLine();
      }
    }
    const bool isFirstOnLine = atLineStart_;
    Indent();
    if (isFirstOnLine && random_.OneIn(20)) Put("dropped ");
    CloseCollection();
    Put(marker);
  }

  void PutMarkedKeyword(const char* marker, const std::string& keyword) {
    PutMarker(marker);
    if (breaksLines_ && random_.OneIn(12)) {
      EndLine();
      Indent();
    } else if (!random_.OneIn(20)) {
      Blank();
    }
    Put(keyword);
  }

  void PutEnd(const std::string& keyword) {
    PutMarkedKeyword("/end", keyword);
    if (random_.OneIn(12)) Put(" surplus words");
    markerMayFollow_ = true;
  }

  // -------------------------------------------------------------------------------------------
  // Parameters

  Node& AddNode(const std::string& keyword) {
    auto node = std::make_unique<Node>();
    node->keyword = keyword;
    node->parent = open_;
    open_->children.push_back(std::move(node));
    return *open_->children.back();
  }

  bool Breaks(std::size_t oneIn) { return mayBreak_ && random_.OneIn(oneIn); }

  std::vector<MadeValue> MakeValues(const Keyword& keyword) {
    while (true) {
      std::vector<MadeValue> made;
      for (const Parameter& parameter : keyword.parameters) {
        const bool wrong = CanBeWrong(parameter) && Breaks(24);
        made.push_back(wrong ? MakeWrongValue(parameter, random_) : MakeValue(parameter, random_));
      }
      // A text may be empty, which is wrong here.
      if (mayBreak_ || Evaluate(keyword, made).ok) return made;
    }
  }

  // Writes the tokens, each behind a blank or on a new line. True if the line is still the same.
  bool PutTokens(const std::vector<MadeValue>& made) {
    bool isOneLine = true;
    for (const MadeValue& value : made) {
      SeparateParameters(isOneLine);
      Put(value.token);
    }
    return isOneLine;
  }

  void PutSurplus() {
    if (!random_.OneIn(12)) return;
    Blank();
    Put("surplus");
  }

  // -------------------------------------------------------------------------------------------
  // Properties

  void WriteProperty(const Keyword& keyword, bool markerFollows) {
    EndLine();
    Indent();
    CloseCollection();
    Node& node = AddNode(std::string(keyword.text));
    Put(keyword.text);
    if (!keyword.list.empty()) {
      WriteItems(keyword, node, true);
      collection_ = ListOf(node);
      return;
    }
    std::vector<MadeValue> made = MakeValues(keyword);
    const bool isComplete = made.empty() || !markerFollows || !Breaks(8);
    if (!isComplete) made.resize(random_.Below(made.size()));
    const bool isOneLine = PutTokens(made);
    Evaluation evaluation = Evaluate(keyword, made);
    node.isBroken = !evaluation.ok || !isComplete;
    node.values = std::move(evaluation.values);
    if (!isComplete) {
      collection_ = ParametersOf(node, keyword.parameters.size());
      return;
    }
    if (!evaluation.ok) {
      // If it is on one line, the warning names the block.
      WarnOfWrongParameters(isOneLine ? *node.parent : node);
    }
    PutSurplus();
  }

  // The items of an open list. No line of it begins with a keyword.
  bool WriteItems(const Keyword& keyword, Node& node, bool isOneLine) {
    for (std::size_t i = random_.Below(8); i > 0; --i) {
      for (const Parameter& parameter : keyword.list) {
        SeparateParameters(isOneLine);
        const bool wrong = CanBeWrong(parameter) && Breaks(30);
        const MadeValue made =
            wrong ? MakeWrongValue(parameter, random_) : MakeValue(parameter, random_);
        Put(made.token);
        // A wrong item ends the list. In some lists it stays as 0.
        const bool keepsWrong =
            keyword.text == "FIX_AXIS_PAR_LIST" || keyword.text == "CALIBRATION_HANDLE";
        if (!node.isBroken && (!wrong || keepsWrong)) node.items.push_back(made.value);
        node.isBroken = node.isBroken || wrong;
      }
    }
    if (keyword.list.size() > 1 && Breaks(4)) {
      SeparateParameters(isOneLine);
      Put("without_value");
      node.isBroken = true;
    }
    return isOneLine;
  }

  // -------------------------------------------------------------------------------------------
  // Blocks

  void WriteBlock(const Keyword& keyword) {
    PutMarkedKeyword("/begin", std::string(keyword.text));
    Node& node = AddNode(std::string(keyword.text));
    open_ = &node;
    if (keyword.isRaw) {
      WriteRawContent(node, keyword.text == "IF_DATA");
    } else if (WriteParameters(keyword, node)) {
      WriteChildren(keyword);
    }
    if (stopped_) return;
    PutEnd(node.keyword);
    open_ = node.parent;
  }

  // False if parameters are missing, so that only a marker may follow.
  bool WriteParameters(const Keyword& keyword, Node& node) {
    std::vector<MadeValue> made = MakeValues(keyword);
    const std::size_t needed = made.size();
    const bool isComplete = made.empty() || !keyword.list.empty() || !Breaks(20);
    if (!isComplete) made.resize(random_.Below(needed));
    if (isComplete && !keyword.columns.empty()) made.back() = MakeRowCount(made.back());
    bool isOneLine = PutTokens(made);
    Evaluation evaluation = Evaluate(keyword, made);
    node.values = std::move(evaluation.values);
    node.isBroken = !evaluation.ok || !isComplete;
    if (!evaluation.ok && IsTracked(node)) node.valid = false;
    if (!keyword.list.empty()) {
      isOneLine = WriteItems(keyword, node, isOneLine);
      collection_ = ListOf(node);
    } else if (!isComplete) {
      collection_ = ParametersOf(node, needed, evaluation.ok ? nullptr : node.parent);
    } else {
      if (!evaluation.ok) WarnOfWrongParameters(node);
      if (!keyword.columns.empty()) {
        if (!WriteRows(keyword, node, isOneLine)) return false;
      } else {
        PutSurplus();
      }
    }
    markerMayFollow_ = isOneLine;
    return isComplete;
  }

  // A small number, written in one of several ways. A wrong one stays as it is.
  MadeValue MakeRowCount(const MadeValue& made) {
    if (!made.ok) return made;
    const std::size_t count = random_.Below(6);
    constexpr const char* kPrefixes[] = {"", "", "0x", "0X000", "0", "+"};
    const std::string digit = random_.Pick(kPrefixes) + std::to_string(count);
    return {digit + (random_.OneIn(6) ? "pairs" : ""), static_cast<std::int32_t>(count)};
  }

  bool WriteRows(const Keyword& keyword, Node& node, bool& isOneLine) {
    const auto count = static_cast<std::size_t>(std::get<std::int32_t>(node.values.back()));
    const std::size_t needed = count * keyword.columns.size();
    const std::size_t missing = needed > 0 && Breaks(12) ? 1 + random_.Below(needed) : 0;
    const std::size_t given = needed - missing;
    bool wrong = false;
    for (std::size_t i = 0; i < given; ++i) {
      const Parameter& column = keyword.columns[i % keyword.columns.size()];
      SeparateParameters(isOneLine);
      const bool isWrong = missing == 0 && CanBeWrong(column) && Breaks(40);
      const MadeValue made = isWrong ? MakeWrongValue(column, random_) : MakeValue(column, random_);
      Put(made.token);
      // If rows are missing, none is read. A wrong number counts as 0 and is the last.
      if (missing == 0 && !wrong) node.items.push_back(made.value);
      wrong = wrong || isWrong;
    }
    node.isBroken = node.isBroken || wrong || missing > 0;
    if (missing > 0) {
      collection_ = ParametersOf(node, needed);
      markerMayFollow_ = isOneLine;
      return false;
    }
    if (wrong) WarnOfWrongParameters(node);
    if (needed > 0) PutSurplus();
    return true;
  }

  // -------------------------------------------------------------------------------------------
  // Blocks that keep text

  void WriteRawContent(Node& node, bool hasName) {
    std::string kept;
    const auto put = [&](std::string_view text) {
      Put(text);
      kept += text;
    };
    const auto comment = [&] {
      if (hasComments_ && random_.OneIn(6)) PutComment();
    };
    if (hasName) {
      const std::string name = "Interface" + std::to_string(random_.Below(9));
      put(" " + name);
      put(" v");  // the name ends at a blank
      node.values.emplace_back(name);
    }
    for (std::size_t i = random_.Below(3); i > 0; --i) {
      put(" 0x1 \"a // b\"");
      comment();
    }
    // White space at the end of the line of the keyword is lost.
    const std::size_t kLines = random_.Below(6);
    std::size_t depth = 0;
    for (std::size_t i = 0; i < kLines || depth > 0; ++i) {
      const bool cutsLineEnd = hasComments_ && random_.OneIn(8);
      if (cutsLineEnd) Put("// /end IF_DATA");
      Put(lineEnd_);
      if (!cutsLineEnd && i > 0) kept += lineEnd_.substr(0, lineEnd_.size() - 1);
      TellPending();
      ++line_;
      kept += '\n';
      put(random_.OneIn(3) ? "" : "  ");
      comment();
      const std::size_t choice = random_.Below(4);
      if (i >= kLines || (depth > 0 && choice == 0)) {
        put("/end Nested");
        --depth;
      } else if (choice == 1) {
        put("text before /begin Nested 1 2");
        ++depth;
      } else if (choice == 2) {
        // A second marker begins a new line.
        put("/begin Nested \"x\" ");
        kept += '\n';
        put("/end Nested");
      } else {
        put("struct { int; };\t\"text\" VALUE 3 ");
        comment();
        put("x");
      }
    }
    if (kLines > 0) {
      const bool cutsLineEnd = hasComments_ && random_.OneIn(8);
      if (cutsLineEnd) Put(" // c");
      if (cutsLineEnd) kept += ' ';
      Put(lineEnd_);
      if (!cutsLineEnd) kept += lineEnd_.substr(0, lineEnd_.size() - 1);
      TellPending();
      ++line_;
      atLineStart_ = true;
    }
    // An empty line would be text.
    markerMustFollow_ = kLines == 0;
    if (hasName) {
      kept.erase(0, 1 + std::get<std::string>(node.values.front()).size());
      while (std::string_view(" \t\r\n").find(kept.back()) != std::string_view::npos) {
        kept.pop_back();
      }
    }
    node.content = kept;
  }

  void WriteUnknownBlock() {
    PutMarkedKeyword("/begin", "UNKNOWN_BLOCK");
    Node& node = AddNode("?");
    open_ = &node;
    WriteRawContent(node, false);
    // The name at the end of an unknown block need not be that at its beginning.
    PutEnd(random_.OneIn(2) ? "UNKNOWN_BLOCK" : "other");
    open_ = node.parent;
  }

  // -------------------------------------------------------------------------------------------
  // Content of blocks

  void WriteRoot() {
    if (!random_.OneIn(4)) WriteProperty(Find("ASAP2_VERSION"), false);
    WriteOthers();
    if (!stopped_ && random_.OneIn(2)) WriteProperty(Find("A2ML_VERSION"), true);
    for (std::size_t i = random_.OneIn(6) ? 2 : 1; i > 0 && !stopped_; --i) {
      WriteBlock(Find("PROJECT"));
    }
    if (!stopped_) WriteOthers();
  }

  void Finish() {
    if (!stopped_ && piecesToError_ > 0 && random_.OneIn(2)) {
      // One /end too many.
      PutMarkedKeyword("/end", random_.OneIn(2) ? "PROJECT" : "nothing");
      Fail("/end don't equal /begin ");
    }
    if (stopped_) {
      EndLine();
      Put("/begin MODULE not_read \"\"");
      if (commentIsOpen_) {
        // The only error that calls itself a warning. It is found at the end of the file.
        file_.message +=
            "Warning: Line(" + std::to_string(line_) + ") Cannot find comment end */ \n";
        file_.ok = false;
      }
      Put(lineEnd_);
    } else if (random_.OneIn(2)) {
      EndLine();
    }
    TellPending();
    // A collection that is still in progress at the end of the file never reaches its element.
    if (collection_.has_value()) {
      Node& node = *collection_->node;
      node.isRead = false;
      node.items.clear();
      node.values = Evaluate(Find(node.keyword), {}).values;
    }
  }

  static std::size_t MostOccurrences(std::string_view keyword) {
    constexpr std::string_view kOften[] = {
        "MODULE",   "MEASUREMENT", "CHARACTERISTIC", "AXIS_PTS",  "AXIS_DESCR",   "ADDR_EPK",
        "RESERVED", "IF_DATA",     "ANNOTATION",     "OVERWRITE", "VAR_CRITERION"};
    return std::ranges::find(kOften, keyword) != std::end(kOften) ? 3 : 2;
  }

  void WriteChildren(const Keyword& keyword) {
    std::vector<const Keyword*> planned;
    // In a module nearly everything that it accepts, elsewhere a part of that.
    const std::size_t share = keyword.text == "MODULE" ? 2 : keyword.children.size() > 12 ? 4 : 2;
    for (const std::string_view child : keyword.children) {
      if (keyword.text != "PROJECT" && !random_.OneIn(share)) continue;
      std::size_t times = 1;
      while (times < MostOccurrences(child) && random_.OneIn(3)) ++times;
      planned.insert(planned.end(), times, &Find(child));
    }
    for (std::size_t i = planned.size(); i > 1; --i) {
      std::swap(planned[i - 1], planned[random_.Below(i)]);
    }
    for (std::size_t i = 0; i < planned.size(); ++i) {
      if (piecesToError_ > 0 && --piecesToError_ == 0) {
        WriteError();
        return;
      }
      WriteOthers();
      if (planned[i]->isBlock) {
        WriteBlock(*planned[i]);
      } else {
        WriteProperty(*planned[i], i + 1 == planned.size() || planned[i + 1]->isBlock);
      }
      if (stopped_) return;
    }
    if (random_.OneIn(2)) WriteOthers();
  }

  // Things that may stand everywhere: unknown blocks, and unknown words if no list takes them.
  void WriteOthers() {
    if (random_.OneIn(16)) WriteUnknownBlock();
    if (!collection_.has_value() && Breaks(16)) {
      EndLine();
      Indent();
      const std::string word = random_.OneIn(2) ? "Unknown" : "/word";
      Put(word + " 1 \"two\"");
      Warn("unexpected element " + word);
    }
  }

  // Something that ends the read.
  void WriteError() {
    const Keyword& block = Find(open_->keyword);
    const auto refused = [&](bool isBlock) {
      while (true) {
        const Keyword& keyword = random_.Pick(Grammar());
        const bool accepted = block.children.empty()
                                  ? keyword.text == "PROJECT" || keyword.text == "A2ML_VERSION" ||
                                        keyword.text == "ASAP2_VERSION"
                                  : block.Accepts(keyword.text);
        if (keyword.isBlock == isBlock && !accepted) return std::string(keyword.text);
      }
    };
    // If parameters are missing, a line without a marker would count as parameters.
    const bool needsMarker = collection_.has_value() && !collection_->isList;
    switch (random_.Below(needsMarker ? 4 : 6)) {
      case 0: {
        PutMarkedKeyword("/begin", "MATRIX_DIM");
        Fail("unexpected element with /begin " + std::to_string(NumberOf(open_->keyword)));
        return;
      }
      case 1: {
        const std::string keyword = refused(true);
        PutMarkedKeyword("/begin", keyword);
        Fail("unexpected property of element " + keyword);
        return;
      }
      case 2: {
        PutMarkedKeyword("/end", open_->keyword == "HEADER" ? "MODULE" : "HEADER");
        Fail("/end don't equal /begin " + open_->keyword);
        return;
      }
      case 3: {
        EndLine();
        Put("/* never closed");
        Put(lineEnd_);
        TellPending();
        ++line_;
        Put("/end MODULE");
        stopped_ = true;
        commentIsOpen_ = true;
        return;
      }
      case 4: {
        const std::string keyword = random_.OneIn(2) ? "ENCODING" : "MEASUREMENT";
        PutAlone(keyword);
        Fail("unexpected element, this element need /begin " + keyword);
        return;
      }
      default: {
        const std::string keyword = refused(false);
        PutAlone(keyword);
        Fail("unexpected property of element " + keyword);
      }
    }
  }

  void PutAlone(const std::string& keyword) {
    EndLine();
    Indent();
    CloseCollection();
    Put(keyword + " 1");
  }

  GeneratedFile file_;
  Random random_;
  std::string_view lineEnd_;
  bool mayBreak_;
  bool hasComments_ = true;
  bool breaksLines_ = true;
  bool commentIsOpen_ = false;
  std::size_t piecesToError_ = 0;
  bool stopped_ = false;

  std::size_t line_ = 1;
  bool atLineStart_ = true;
  bool markerMayFollow_ = false;
  bool markerMustFollow_ = false;
  std::vector<std::string> pending_;  // to be reported with the number of the current line
  std::optional<Collection> collection_;
  Node* open_ = nullptr;
};

}  // namespace

GeneratedFile Generate(std::uint64_t seed) { return FileWriter(seed, seed % 4 != 0).File(); }

std::string GenerateLines(std::string_view keyword, std::uint64_t seed) {
  return FileWriter(seed, false).Lines(Find(keyword));
}

std::int32_t NumberOf(std::string_view keyword) {
  static const std::vector<NumberedKeyword> all = AllKeywords();
  const auto found = std::ranges::find(all, keyword, &NumberedKeyword::keyword);
  if (found != all.end()) return found->number;
  return keyword.empty() ? 0 : 25535;
}

}  // namespace a2l::test
