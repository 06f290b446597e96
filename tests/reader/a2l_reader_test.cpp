// SPDX-License-Identifier: MIT
#include "a2l2json/reader/a2l_reader.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <istream>
#include <ostream>
#include <sstream>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "a2l2json/elements/blocks/functions.h"
#include "a2l2json/elements/blocks/raw.h"
#include "a2l2json/export/json_writer.h"
#include "tests/support/files.h"
#include "tests/support/streams.h"
#include "tests/support/trees.h"
#include "tests/torture/meters.h"

namespace a2l::test {
namespace {

using namespace std::string_view_literals;

const std::filesystem::path kExamples =
    std::filesystem::path(A2L2JSON_CASES).parent_path().parent_path() / "examples";

constexpr std::string_view kSmallFile =
    "ASAP2_VERSION 1 71\n"
    "/begin PROJECT P \"\"\n"
    "  WORD\n"
    "/end PROJECT\n";

// The result of reading a text below a root that the test made.
struct Result {
  bool ok;
  std::string message;
};
Result ReadInto(VoA2LElement& root, std::string_view text) {
  A2LReader reader;
  std::istringstream in{std::string(text)};
  const bool ok = reader.Parse(in, &root);
  return {ok, reader.message};
}

TEST(A2LReader, RefusesAStreamThatHasFailedAlready) {
  Tree root;
  A2LReader reader;
  std::ifstream closed("no such file.a2l");
  EXPECT_FALSE(reader.Parse(closed, root.get()));
  std::istringstream failed("WORD\n");
  failed.setstate(std::ios::failbit);
  EXPECT_FALSE(reader.Parse(failed, root.get()));
  EXPECT_EQ(reader.fileError, FileError::NotOpened);
  EXPECT_EQ(reader.message, "");
  // A stream at its end has no text, which is not a failure.
  std::istringstream ended("");
  ended.setstate(std::ios::eofbit);
  EXPECT_TRUE(reader.Parse(ended, root.get()));
}

TEST(A2LReader, NeedsARoot) {
  const TemporaryFolder folder;
  WriteFile(folder / "in.a2l", kSmallFile);
  A2LReader reader;
  EXPECT_FALSE(reader.Parse((folder / "in.a2l").string(), nullptr));
  std::istringstream in{std::string(kSmallFile)};
  EXPECT_FALSE(reader.Parse(in, nullptr));
  EXPECT_EQ(reader.message, "");
  EXPECT_TRUE(reader.diagnostics.empty());
}

TEST(A2LReader, FailsWithoutAMessageWhereThereIsNoFile) {
  const TemporaryFolder folder;
  Tree root(NewTree());
  for (const std::string& path :
       {(folder / "missing.a2l").string(), (folder / "missing/in.a2l").string(), std::string()}) {
    A2LReader reader;
    EXPECT_FALSE(reader.Parse(path, root.get())) << path;
    EXPECT_EQ(reader.message, "") << path;
  }
  EXPECT_EQ(root->ChildCount(), 0U);
}

TEST(A2LReader, FailsOnAFolder) {
  const TemporaryFolder folder;
  Tree root(NewTree());
  A2LReader reader;
  EXPECT_FALSE(reader.Parse(folder.Path().string(), root.get()));
  EXPECT_EQ(reader.message, "");
}

TEST(A2LReader, ReadsAFileAsItReadsAStream) {
  const TemporaryFolder folder;
  WriteFile(folder / "in.a2l", kSmallFile);
  Tree root(NewTree());
  A2LReader reader;
  EXPECT_TRUE(reader.Parse((folder / "in.a2l").string(), root.get()));
  EXPECT_EQ(reader.message, "Warning: Line(3) unexpected element WORD\n");

  Reading reading = Read(kSmallFile);
  EXPECT_TRUE(reading.ok);
  EXPECT_EQ(reading.reader.message, reader.message);
  EXPECT_EQ(Written(*reading.root), Written(*root));
  EXPECT_EQ(root->ChildCount(), 2U);
}

TEST(A2LReader, ReadsATextInMemoryAsItReadsAFile) {
  Tree root;
  A2LReader reader;
  {
    const std::string text(kSmallFile);
    EXPECT_TRUE(reader.ParseText(text, root.get()));
  }
  EXPECT_EQ(reader.message, "Warning: Line(3) unexpected element WORD\n");
  EXPECT_EQ(Written(*root), Written(*Read(kSmallFile).root))
      << "the tree keeps no views into the text";

  EXPECT_FALSE(reader.ParseText("/end PROJECT", root.get()));
  EXPECT_FALSE(reader.ParseText(kSmallFile, nullptr));
  EXPECT_TRUE(reader.ParseText({}, Tree().get()));
  EXPECT_TRUE(reader.ParseText("/begin PROJECT P \"\0\""sv, Tree().get()));
}

// Of a large text, only the parts that the tree keeps are copied.
TEST(A2LReader, TakesLittleMemoryForATextInMemory) {
  const std::string text(std::size_t{16} * 1024 * 1024, '\n');
  Tree root;
  A2LReader reader;
  const auto bytes = AllocatedBytes([&] { EXPECT_TRUE(reader.ParseText(text, root.get())); });
  if (!bytes.has_value()) GTEST_SKIP() << "allocations cannot be counted here";
  EXPECT_LT(*bytes, std::uint64_t{1024} * 1024);
}

// Readers and trees have nothing in common.
TEST(A2LReader, ReadsInSeveralThreadsAtATime) {
  const std::string text = ReadFile(kExamples / "demo.a2l");
  const std::string expected = ReadFile(kExamples / "demo.json");
  std::vector<std::string> documents(4);
  {
    std::vector<std::jthread> threads;
    for (std::string& document : documents) {
      threads.emplace_back([&] {
        for (int i = 0; i < 20; ++i) {
          Tree tree;
          A2LReader reader;
          if (reader.ParseText(text, tree.get())) document = ToJson(*tree);
        }
      });
    }
  }
  for (const std::string& document : documents) EXPECT_EQ(document, expected);
}

// Several threads may look at a tree that nobody changes.
TEST(A2LReader, GivesATreeThatThreadsMayShare) {
  Tree tree;
  A2LReader reader;
  ASSERT_TRUE(reader.Parse((kExamples / "demo.a2l").string(), tree.get()));
  const VoA2LElement& root = *tree;
  const std::string expected = ReadFile(kExamples / "demo.json");
  std::vector<std::string> documents(4);
  {
    std::vector<std::jthread> threads;
    for (std::string& document : documents) {
      threads.emplace_back([&] { document = ToJson(root); });
    }
  }
  for (const std::string& document : documents) EXPECT_EQ(document, expected);
}

// A failure in one file does not affect the next.
TEST(A2LReader, ReadsOneFileAfterTheOther) {
  const TemporaryFolder folder;
  WriteFile(folder / "in.a2l", kSmallFile);
  Tree root(NewTree());
  A2LReader reader;
  EXPECT_FALSE(reader.Parse((folder / "missing.a2l").string(), root.get()));
  EXPECT_EQ(reader.fileError, FileError::NotFound);
  EXPECT_TRUE(reader.Parse((folder / "in.a2l").string(), root.get()));
  EXPECT_EQ(reader.fileError, FileError::None);
  EXPECT_FALSE(reader.Parse(folder.Path().string(), root.get()));
  EXPECT_EQ(reader.fileError, FileError::IsFolder);
  EXPECT_TRUE(reader.Parse((folder / "in.a2l").string(), root.get()));
  EXPECT_EQ(reader.fileError, FileError::None);
  EXPECT_EQ(root->ChildCount(), 4U);
  EXPECT_EQ(reader.message,
            "Warning: Line(3) unexpected element WORD\n"
            "Warning: Line(3) unexpected element WORD\n");
}

TEST(A2LReader, ReadsAnEmptyFile) {
  const TemporaryFolder folder;
  WriteFile(folder / "in.a2l", "");
  Tree root(NewTree());
  A2LReader reader;
  EXPECT_TRUE(reader.Parse((folder / "in.a2l").string(), root.get()));
  for (const std::string_view text :
       {"", "\n", "\r\n\r\n", " \t ", "// nothing\n/* at\nall */\n"}) {
    Reading reading = Read(text);
    EXPECT_TRUE(reading.ok) << testing::PrintToString(text);
    EXPECT_EQ(reading.reader.message, "") << testing::PrintToString(text);
    EXPECT_EQ(reading.root->ChildCount(), 0U);
  }
}

TEST(A2LReader, GivesItsMessagesAsDataToo) {
  Reading reading = Read(
      "WORD\n"
      "/begin PROJECT P \"\"\n"
      "/begin MODULE M \"\"\n"
      "/begin UNIT u\n"
      "/end UNIT\n"
      "FORMAT \"%5.2\"\n"
      "WORD\n");
  EXPECT_FALSE(reading.ok);
  EXPECT_EQ(reading.reader.message,
            "Warning: Line(1) unexpected element WORD\n"
            "Warning: Line(5) element need more parameters 4\n"
            "Error: Line(6) unexpected property of element FORMAT\n");
  const std::vector<Diagnostic>& diagnostics = reading.reader.diagnostics;
  ASSERT_EQ(diagnostics.size(), 3U);
  EXPECT_EQ(diagnostics[0].kind, DiagnosticKind::UnexpectedElement);
  EXPECT_EQ(diagnostics[0].line, 1U);
  EXPECT_EQ(diagnostics[0].subject, "WORD");
  EXPECT_EQ(diagnostics[1].kind, DiagnosticKind::NeedMoreParameters);
  EXPECT_EQ(diagnostics[1].line, 5U);
  EXPECT_EQ(diagnostics[1].subject, "4");
  EXPECT_EQ(diagnostics[2].kind, DiagnosticKind::RefusedElement);
  EXPECT_EQ(diagnostics[2].line, 6U);
  EXPECT_EQ(diagnostics[2].subject, "FORMAT");
}

TEST(A2LReader, KeepsTheTreeThatItReadBeforeAnError) {
  Reading reading = Read(
      "/begin PROJECT P \"\"\n"
      "/begin MODULE M \"\"\n"
      "/end PROJECT\n"
      "ASAP2_VERSION 1 71\n");
  EXPECT_FALSE(reading.ok);
  EXPECT_EQ(reading.reader.message, "Error: Line(3) /end don't equal /begin MODULE\n");
  EXPECT_EQ(Written(*reading.root),
            "/begin PROJECT P \"\"\n"
            "  /begin MODULE M \"\"\n"
            "  /end MODULE\n"
            "/end PROJECT\n");
}

TEST(A2LReader, FailsOnABrokenDeviceWithTheMessagesSoFar) {
  std::string text;
  for (int i = 0; i < 500000; ++i) text += "WORD\n";
  FailingBuffer buffer(text, text.size() - 2);
  std::istream in(&buffer);
  Tree root(NewTree());
  A2LReader reader;
  EXPECT_FALSE(reader.Parse(in, root.get()));
  EXPECT_EQ(reader.fileError, FileError::ReadFailed);
  EXPECT_TRUE(
      reader.message.starts_with("Warning: Line(1) unexpected element WORD\n"
                                 "Warning: Line(2) unexpected element WORD\n"));
  // The half line before the failure is not read, and the failure itself gives no message.
  EXPECT_EQ(reader.message.find("element WO\n"), std::string::npos);
  EXPECT_TRUE(reader.message.ends_with("unexpected element WORD\n"));
}

// An open file can be read to its end, even if its name has been removed.
TEST(A2LReader, ReadsAFileThatIsRemovedMeanwhile) {
#ifdef _WIN32
  GTEST_SKIP() << "an open file cannot be removed on this system";
#else
  const TemporaryFolder folder;
  const auto path = folder / "in.a2l";
  std::string text(1000000, ' ');
  WriteFile(path, text + kSmallFile.data());
  std::ifstream in(path, std::ios::binary);
  std::filesystem::remove(path);
  Tree root(NewTree());
  A2LReader reader;
  EXPECT_TRUE(reader.Parse(in, root.get()));
  EXPECT_EQ(reader.message, "Warning: Line(3) unexpected element WORD\n");
  EXPECT_EQ(root->ChildCount(), 2U);
#endif
}

// A file that becomes shorter during the read ends there, without a failure.
TEST(A2LReader, ReadsAFileThatIsCutMeanwhile) {
  const TemporaryFolder folder;
  const auto path = folder / "in.a2l";
  std::string text;
  for (int i = 0; i < 500000; ++i) text += "WORD\n";
  WriteFile(path, text);
  std::ifstream in(path, std::ios::binary);
  in.get();
  in.unget();  // after a part has been read
  std::filesystem::resize_file(path, 1000000);
  Tree root(NewTree());
  A2LReader reader;
  EXPECT_TRUE(reader.Parse(in, root.get()));
  EXPECT_EQ(reader.diagnostics.size(), 200000U);
}

TEST(A2LReader, FailsOnABrokenDeviceInsideAComment) {
  FailingBuffer buffer("/* " + std::string(1000, 'x'), 900);
  std::istream in(&buffer);
  Tree root(NewTree());
  A2LReader reader;
  EXPECT_FALSE(reader.Parse(in, root.get()));
  EXPECT_EQ(reader.message, "") << "the part that could not be read may close the comment";
}

// --- Which object is not valid when parameters are wrong ---------------------------------------

// The lines of one object in a module, the messages about them, and whether the object is valid in
// the end.
struct Validity {
  std::string_view name;
  std::string_view lines;
  std::string_view message;
  bool valid;
};

constexpr Validity kValidities[] = {
    {"AllRight",
     "/begin MEASUREMENT M \"\" UBYTE C 1 0 0 1\n"
     "ECU_ADDRESS 1\n",
     "", true},
    // Numbers of the object itself.
    {"OwnNumber", "/begin MEASUREMENT M \"\" UBYTE C x 0 0 1\n",
     "Warning: Line(3) wrong parameters MEASUREMENT\n", false},
    {"OwnNumberOfBlob",
     "/begin BLOB B \"\"\n"
     "0x10 x\n",
     "Warning: Line(4) wrong parameters BLOB\n", false},
    {"OwnNumberOfInstance", "/begin INSTANCE I \"\" T x\n",
     "Warning: Line(3) wrong parameters INSTANCE\n", false},
    {"OwnNumberMissing",
     "/begin AXIS_PTS A \"\" 0 Q D 0 C 5 0\n"
     "/begin ANNOTATION\n"
     "/end ANNOTATION\n",
     "Warning: Line(4) element need more parameters 10\n", false},
    // A property that is complete on its line. The warning names the block around it. The flag is
    // that of the parent of this block, here a module, which has no flag to clear.
    {"PropertyOnItsLine",
     "/begin MEASUREMENT M \"\" UBYTE C 1 0 0 1\n"
     "ECU_ADDRESS zz\n",
     "Warning: Line(4) wrong parameters MEASUREMENT\n", true},
    {"PropertyOfAnAxisOnItsLine",
     "/begin CHARACTERISTIC K \"\" CURVE 0 D 0 C 0 1\n"
     "/begin AXIS_DESCR STD_AXIS Q C 5 0 1\n"
     "MAX_GRAD x\n"
     "/end AXIS_DESCR\n",
     "Warning: Line(5) wrong parameters AXIS_DESCR\n", false},
    {"PropertyOfABitOperationOnItsLine",
     "/begin MEASUREMENT M \"\" UBYTE C 1 0 0 1\n"
     "/begin BIT_OPERATION\n"
     "LEFT_SHIFT x\n"
     "/end BIT_OPERATION\n",
     "Warning: Line(5) wrong parameters BIT_OPERATION\n", false},
    {"PropertyOfAnOverwriteOnItsLine",
     "/begin INSTANCE I \"\" T 0\n"
     "/begin OVERWRITE O 1\n"
     "LIMITS 0 x\n"
     "/end OVERWRITE\n",
     "Warning: Line(5) wrong parameters OVERWRITE\n", false},
    // A property that was collected over lines. The warning names the property, and the flag is
    // that of its block.
    {"PropertyOverLines",
     "/begin MEASUREMENT M \"\" UBYTE C 1 0 0 1\n"
     "ECU_ADDRESS\n"
     "zz\n",
     "Warning: Line(5) wrong parameters ECU_ADDRESS\n", false},
    {"PropertyOverLinesOfAnAxis",
     "/begin CHARACTERISTIC K \"\" CURVE 0 D 0 C 0 1\n"
     "/begin AXIS_DESCR STD_AXIS Q C 5 0 1\n"
     "MAX_GRAD\n"
     "x\n"
     "/end AXIS_DESCR\n",
     "Warning: Line(6) wrong parameters MAX_GRAD\n", true},
    {"WordOverLines",
     "/begin BLOB B \"\" 0 1\n"
     "CALIBRATION_ACCESS\n"
     "NONE\n",
     "Warning: Line(5) wrong parameters CALIBRATION_ACCESS\n", false},
    // A property whose block ends before it is complete is read, but not judged.
    {"PropertyIncomplete",
     "/begin MEASUREMENT M \"\" UBYTE C 1 0 0 1\n"
     "MAX_REFRESH 1\n",
     "Warning: Line(5) element need more parameters 2\n", true},
    // An open list is always collected.
    {"OpenList",
     "/begin MEASUREMENT M \"\" UBYTE C 1 0 0 1\n"
     "MATRIX_DIM 2 x 3\n",
     "Warning: Line(5) wrong parameters MATRIX_DIM\n", false},
    {"OpenListBeforeAProperty",
     "/begin MEASUREMENT M \"\" UBYTE C 1 0 0 1\n"
     "MATRIX_DIM 2 x 3\n"
     "DISCRETE\n",
     "Warning: Line(5) wrong parameters MATRIX_DIM\n", false},
    // Blocks inside the object.
    {"AxisWithABadNumber",
     "/begin CHARACTERISTIC K \"\" CURVE 0 D 0 C 0 1\n"
     "/begin AXIS_DESCR STD_AXIS Q C x 0 1\n"
     "/end AXIS_DESCR\n",
     "Warning: Line(4) wrong parameters AXIS_DESCR\n", false},
    {"AxisWithTooFewNumbers",
     "/begin CHARACTERISTIC K \"\" CURVE 0 D 0 C 0 1\n"
     "/begin AXIS_DESCR STD_AXIS Q C 5\n"
     "/end AXIS_DESCR\n",
     "Warning: Line(5) element need more parameters 6\n", false},
    {"OverwriteWithABadNumber",
     "/begin INSTANCE I \"\" T 0\n"
     "/begin OVERWRITE O x\n"
     "/end OVERWRITE\n",
     "Warning: Line(4) wrong parameters OVERWRITE\n", false},
    // Further down only the parent counts.
    {"FixAxisListWithABadNumber",
     "/begin CHARACTERISTIC K \"\" CURVE 0 D 0 C 0 1\n"
     "/begin AXIS_DESCR FIX_AXIS Q C 5 0 1\n"
     "/begin FIX_AXIS_PAR_LIST\n"
     "0 x\n"
     "/end FIX_AXIS_PAR_LIST\n"
     "/end AXIS_DESCR\n",
     "Warning: Line(7) wrong parameters FIX_AXIS_PAR_LIST\n", true},
    {"UnknownWord",
     "/begin MEASUREMENT M \"\" UBYTE C 1 0 0 1\n"
     "WORD\n",
     "Warning: Line(4) unexpected element WORD\n", true},
};

void PrintTo(const Validity& row, std::ostream* out) { *out << row.name; }

class ValidFlag : public testing::TestWithParam<Validity> {};

TEST_P(ValidFlag, IsClearedIfParametersOfTheObjectAreWrong) {
  const Validity& row = GetParam();
  const std::string_view block = row.lines.substr(7, row.lines.find(' ', 7) - 7);
  const Reading reading =
      Read("/begin PROJECT P \"\"\n/begin MODULE M \"\"\n" + std::string(row.lines) + "/end " +
           std::string(block) + "\n/end MODULE\n/end PROJECT\n");
  EXPECT_TRUE(reading.ok);
  EXPECT_EQ(reading.reader.message, row.message);
  const VoA2LElement* module = reading.root->Child(0)->Child(0);
  ASSERT_EQ(module->ChildCount(), 1U) << "a wrong element stays in the tree";
  EXPECT_EQ(module->Child(0)->valid, row.valid ? 1 : 0);
  EXPECT_EQ(module->valid, 1);
}

INSTANTIATE_TEST_SUITE_P(Objects, ValidFlag, testing::ValuesIn(kValidities),
                         [](const auto& instance) { return std::string(instance.param.name); });

// --- Roots that a file never has ---------------------------------------------------------------

// An application may read a fragment below its own element. Then the text can end that element,
// too.
TEST(FragmentReading, EndOfTheRootItselfIsAnError) {
  struct Row {
    ElementKind kind;
    std::string_view text;
    std::string_view message;
  };
  constexpr Row kRows[] = {
      {ElementKind::PROJECT, "\n/end PROJECT\n", "Error: Line(2) unexpected NULL pointer\n"},
      {ElementKind::PROJECT, "/end MODULE\n", "Error: Line(1) /end don't equal /begin PROJECT\n"},
      {ElementKind::PROJECT, "/end PROJECT /end PROJECT\n",
       "Error: Line(1) unexpected NULL pointer\n"},
      // The root of a file has no keyword, and an unknown word does not close it.
      {KIND_ROOT, "/end WORD\n", "Error: Line(1) /end don't equal /begin \n"},
      // If the root is a property, there is no block around it.
      {ElementKind::FORMAT, "/end FORMAT\n", "Error: Line(1) unexpected NULL pointer\n"},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(testing::PrintToString(row.text));
    Tree root(NewTree());
    root->kind = row.kind;
    const auto [ok, message] = ReadInto(*root, row.text);
    EXPECT_FALSE(ok);
    EXPECT_EQ(message, row.message);
  }
}

// A root that accepts children without becoming their parent, by way of which they find the store.
class Orphanage : public VoA2LElement {
 public:
  bool AddChild(VoA2LElement* child) override {
    child->children.Attach(Store());
    child->parent = nullptr;
    children.PushBack(Store(), child);
    return true;
  }
};

TEST(FragmentReading, ElementsWithoutAParentCannotBeLeft) {
  struct Row {
    std::string_view text;
    std::string_view before;
    std::string_view error;
  };
  constexpr Row kRows[] = {
      // A property that its second line completes.
      {"ASAP2_VERSION 1\n71\n", "", "2) unexpected NULL PTR\n"},
      {"ASAP2_VERSION\n1\nx\n", "Warning: Line(3) wrong parameters ASAP2_VERSION\n",
       "3) unexpected NULL PTR\n"},
      // A property that a begin line or an end line closes.
      {"ASAP2_VERSION 1\n/begin PROJECT P \"\"\n",
       "Warning: Line(2) element need more parameters 2\n", "2) unexpected NULL PTR\n"},
      {"ASAP2_VERSION 1\n\n/end PROJECT\n", "Warning: Line(3) element need more parameters 2\n",
       "3) unexpected NULL pointer\n"},
      // An open list, closed by each kind of line.
      {"MATRIX_DIM 2\n3\nVERSION \"\"\n", "", "3) unexpected NULL PTR\n"},
      {"MATRIX_DIM 2\n/begin PROJECT P \"\"\n", "", "2) unexpected NULL PTR\n"},
      {"MATRIX_DIM 2\n/end PROJECT\n", "", "2) unexpected NULL pointer\n"},
      {"MATRIX_DIM x\n/end PROJECT\n", "Warning: Line(2) wrong parameters MATRIX_DIM\n",
       "2) unexpected NULL pointer\n"},
      // A block.
      {"/begin PROJECT P \"\"\n/end PROJECT\n", "", "2) unexpected NULL pointer\n"},
      {"/begin PROJECT P\n/end PROJECT\n", "Warning: Line(2) element need more parameters 2\n",
       "2) unexpected NULL pointer\n"},
      {"/begin IF_DATA XCP\n/end IF_DATA\n", "", "2) unexpected NULL pointer\n"},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(testing::PrintToString(row.text));
    TreeStore store;
    auto* root = store.Create<Orphanage>();
    const auto [ok, message] = ReadInto(*root, row.text);
    EXPECT_FALSE(ok);
    EXPECT_EQ(message, std::string(row.before) + "Error: Line(" + std::string(row.error));
    EXPECT_EQ(root->ChildCount(), 1U);
  }
}

TEST(FragmentReading, PropertiesOnTheirLineNeedNoParent) {
  TreeStore store;
  auto* root = store.Create<Orphanage>();
  const auto [ok, message] = ReadInto(*root, "ASAP2_VERSION 1 71\nDISCRETE\nASAP2_VERSION 1 x\n");
  EXPECT_TRUE(ok);
  EXPECT_EQ(message, "Warning: Line(3) wrong parameters \n") << "the root has no keyword";
  EXPECT_EQ(root->ChildCount(), 3U);
}

// --- Sizes ------------------------------------------------------------------------------------

// A list of 65535 entries on one line is complete there. The following lines are not part of it.
TEST(A2LReader, TakesAFullLineOfAnOpenListAtOnce) {
  struct Row {
    std::string_view head;
    std::size_t tokens;
    std::string_view message;
  };
  constexpr std::string_view kUnexpected = "Warning: Line(4) unexpected element 5\n";
  constexpr Row kRows[] = {
      {"MATRIX_DIM", 65534, ""},     {"MATRIX_DIM", 65535, kUnexpected},
      {"/begin VIRTUAL", 65534, ""}, {"/begin VIRTUAL", 65535, kUnexpected},
      {"/begin IF_DATA", 65534, ""}, {"/begin IF_DATA", 65535, kUnexpected},
      {"/begin WORD", 65534, ""},    {"/begin WORD", 70000, kUnexpected},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.head);
    std::string text = "/begin PROJECT P \"\" /begin MODULE M \"\"\n";
    text += "/begin MEASUREMENT M \"\" UBYTE C 1 0 0 1\n";
    text += row.head;
    for (std::size_t i = 0; i < row.tokens; ++i) text += " 7";
    text += "\n5\n";
    Reading reading = Read(text);
    EXPECT_TRUE(reading.ok);
    EXPECT_EQ(reading.reader.message, row.message);
  }
}

TEST(A2LReader, CountsTheTokensOfAFullLine) {
  std::string text = "/begin DEF_CHARACTERISTIC";
  for (int i = 0; i < 70000; ++i) text += " c" + std::to_string(i);
  TreeStore store;
  auto* root = store.Create<Orphanage>();
  EXPECT_TRUE(ReadInto(*root, text).ok);
  const auto* list = dynamic_cast<const VoA2LElementDefCharacteristic*>(root->Child(0));
  ASSERT_NE(list, nullptr);
  ASSERT_EQ(list->IDENTIFIER_LIST.size(), 70000U);
  EXPECT_EQ(list->IDENTIFIER_LIST[69999], "c69999");
}

// A tree of any depth can be read, written and freed, because none of this is recursive.
TEST(A2LReader, ReadsBlocksOfAnyDepth) {
  constexpr int kRounds = 75000;
  std::string text;
  for (int i = 0; i < kRounds; ++i) {
    text +=
        "/begin PROJECT P \"\"\n/begin MODULE M \"\"\n/begin FUNCTION F \"\"\n"
        "/begin DEF_CHARACTERISTIC\n";
  }
  for (int i = 0; i < kRounds; ++i)
    text += "/end DEF_CHARACTERISTIC\n/end FUNCTION\n/end MODULE\n/end PROJECT\n";
  Reading reading = Read(text);
  EXPECT_TRUE(reading.ok);
  EXPECT_EQ(reading.reader.message, "");
  int depth = 0;
  for (const VoA2LElement* element = reading.root->Child(0); element != nullptr;
       element = element->Child(0)) {
    ++depth;
  }
  EXPECT_EQ(depth, 4 * kRounds);
  // The innermost block of a round is a list, which does not write its children.
  EXPECT_EQ(Written(*reading.root),
            "/begin PROJECT P \"\"\n"
            "  /begin MODULE M \"\"\n"
            "    /begin FUNCTION F \"\"\n"
            "      /begin DEF_CHARACTERISTIC\n"
            "      /end DEF_CHARACTERISTIC\n"
            "    /end FUNCTION\n"
            "  /end MODULE\n"
            "/end PROJECT\n");
  EXPECT_NE(ToJson(*reading.root).find("\"FFUNCTION\": [{"), std::string::npos);
}

TEST(A2LReader, KeepsRawBlocksOfAnyDepth) {
  constexpr std::size_t kDepth = 300000;
  std::string body;
  for (std::size_t i = 0; i < kDepth; ++i) body += "\n/begin B";
  for (std::size_t i = 0; i < kDepth; ++i) body += "\n/end B";
  Reading reading = Read("/begin WORD a" + body + "\n/end WORD\n");
  EXPECT_TRUE(reading.ok);
  const auto* unknown = dynamic_cast<const VoA2LElementUnknown*>(reading.root->Child(0));
  ASSERT_NE(unknown, nullptr);
  EXPECT_TRUE(unknown->TEXT == " a" + body);
}

}  // namespace
}  // namespace a2l::test
