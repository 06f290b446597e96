// SPDX-License-Identifier: MIT
//
// a2lmend as a user runs it.
#include <algorithm>
#include <filesystem>
#include <set>
#include <string>
#include <string_view>
#include <system_error>

#include <gtest/gtest.h>
#include <json11.hpp>

#include "a2l2json/mend/rules.h"
#include "a2l2json/model/version.h"
#include "tests/support/files.h"
#include "tests/support/programs.h"

#ifndef _WIN32
#include <sys/stat.h>
#endif

namespace a2l::test {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kOneLine =
    "/begin PROJECT p \"\"\n/begin MODULE m \"\"\n"
    "/begin MEASUREMENT m \"\" UBYTE c 0 0 0 255 ECU_ADDRESS 0x51A50 /end MEASUREMENT\n"
    "/end MODULE\n/end PROJECT\n";
constexpr std::string_view kMended =
    "/begin PROJECT p \"\"\n  /begin MODULE m \"\"\n"
    "    /begin MEASUREMENT m \"\" UBYTE c 0 0 0 255\n      ECU_ADDRESS 0x51A50\n"
    "    /end MEASUREMENT\n  /end MODULE\n/end PROJECT\n";

// The name of a file as the program prints it.
std::string Shown(const fs::path& path) { return path.string(); }

class MendProgram : public testing::Test {
 protected:
  fs::path Write(std::string_view name, std::string_view text) {
    fs::create_directories((folder_ / name).parent_path());
    WriteFile(folder_ / name, text);
    return folder_ / name;
  }

  TemporaryFolder folder_;
};

TEST_F(MendProgram, OnlyTellsWithoutASecondFile) {
  const fs::path in = Write("engine.a2l", kOneLine);
  const RunResult run = RunMender({in});
  EXPECT_EQ(run.exitCode, 1);
  EXPECT_EQ(run.out,
            Shown(in) +
                ":3:43: lost: ECU_ADDRESS stands behind the parameters of MEASUREMENT m on one "
                "line [same-line]\n" +
                Shown(in) + ": 1 value would be lost; of 1 finding, 1 can be mended, 0 cannot\n");
  EXPECT_EQ(run.err, "");
  EXPECT_EQ(ReadFile(in), kOneLine);
}

TEST_F(MendProgram, WritesTheMendedFile) {
  const fs::path in = Write("engine.a2l", kOneLine);
  const RunResult run = RunMender({in, folder_ / "out.a2l"});
  EXPECT_EQ(run.exitCode, 1);
  EXPECT_EQ(run.out, "");
  EXPECT_NE(run.err.find("[same-line]"), std::string::npos) << run.err;
  EXPECT_TRUE(run.err.ends_with(": 1 value would be lost; of 1 finding, 1 is mended, 0 cannot\n"))
      << run.err;
  EXPECT_EQ(ReadFile(folder_ / "out.a2l"), kMended);
  // Nothing else is left in the folder.
  EXPECT_EQ(std::distance(fs::directory_iterator(folder_.Path()), fs::directory_iterator()), 2);
}

TEST_F(MendProgram, FindsNothingInAMendedFile) {
  const fs::path in = Write("engine.a2l", kMended);
  const RunResult run = RunMender({in});
  EXPECT_EQ(run.exitCode, 0);
  EXPECT_EQ(run.out, Shown(in) + ": nothing is lost\n");
}

TEST_F(MendProgram, WritesOverItsInput) {
  const fs::path in = Write("engine.a2l", kOneLine);
  EXPECT_EQ(RunMender({in, in}).exitCode, 1);
  EXPECT_EQ(ReadFile(in), kMended);
}

TEST_F(MendProgram, ReadsStandardInputAndWritesStandardOutput) {
  const fs::path in = Write("engine.a2l", kOneLine);
  const RunResult run = RunMender({"-", "-"}, in);
  EXPECT_EQ(run.exitCode, 1);
  EXPECT_EQ(run.out, kMended);
  EXPECT_TRUE(run.err.starts_with("<stdin>:3:43: lost: ")) << run.err;
}

TEST_F(MendProgram, IsQuiet) {
  const fs::path in = Write("engine.a2l", kOneLine);
  const RunResult run = RunMender({"--quiet", in});
  EXPECT_EQ(run.exitCode, 1);
  EXPECT_EQ(run.out + run.err, "");
}

// The sentence that a run ends with when it cannot do its work; nothing else is printed.
void ExpectTrouble(const RunResult& run, const std::string& sentence) {
  EXPECT_EQ(run.exitCode, 2);
  EXPECT_EQ(run.out, "");
  EXPECT_EQ(run.err, "a2lmend: " + sentence + "\n");
}

TEST_F(MendProgram, TellsWhatCannotBeRead) {
  const fs::path none = folder_ / "none.a2l";
  ExpectTrouble(RunMender({none}), "cannot read " + Shown(none) + ": No such file or directory");
  ExpectTrouble(RunMender({folder_.Path()}),
                "cannot read " + Shown(folder_.Path()) + ": it is a folder");
  const fs::path empty = Write("empty.a2l", "");
  ExpectTrouble(RunMender({empty}), "cannot read " + Shown(empty) + ": it is empty");
  ExpectTrouble(RunMender({"-"}, empty), "cannot read standard input: it is empty");
}

TEST_F(MendProgram, TellsOfPackedFiles) {
  const std::vector<std::pair<std::string, std::string>> packed = {
      {"\x1F\x8B\x08", "gzip"}, {"PK\x03\x04\x14", "zip"},       {"BZh9", "bzip2"},
      {"\xFD\x37zXZ", "xz"},    {"7z\xBC\xAF\x27\x1C", "7-Zip"}, {"\x28\xB5\x2F\xFD", "zstd"}};
  for (const auto& [bytes, name] : packed) {
    const fs::path in = Write(name, bytes);
    ExpectTrouble(RunMender({in}),
                  "cannot read " + Shown(in) + ": it is packed with " + name + "; unpack it first");
  }
}

TEST_F(MendProgram, TellsWhatCannotBeWritten) {
  const fs::path in = Write("engine.a2l", kOneLine);
  const fs::path none = folder_ / "none" / "out.a2l";
  ExpectTrouble(RunMender({"--quiet", in, none}),
                "cannot write " + Shown(none) + ": No such file or directory");
  ExpectTrouble(RunMender({"--quiet", in, folder_.Path()}),
                "cannot write " + Shown(folder_.Path()) + ": it is a folder");
  // What was there stays, and nothing new comes.
  EXPECT_EQ(ReadFile(in), kOneLine);
  EXPECT_EQ(std::distance(fs::directory_iterator(folder_.Path()), fs::directory_iterator()), 1);
}

TEST_F(MendProgram, TellsWhenOnlyOneOfTwoCanBeWritten) {
  // The findings are printed all the same.
  const fs::path in = Write("engine.a2l", kOneLine);
  const RunResult run = RunMender({in, folder_ / "none" / "out.a2l"});
  EXPECT_EQ(run.exitCode, 2);
  EXPECT_NE(run.err.find("[same-line]"), std::string::npos) << run.err;
  EXPECT_NE(run.err.find("a2lmend: cannot write "), std::string::npos) << run.err;
}

TEST_F(MendProgram, RefusesWrongArguments) {
  const fs::path in = Write("engine.a2l", kOneLine);
  const std::vector<std::pair<std::vector<fs::path>, std::string>> wrong = {
      {{}, "IN is required"},
      {{"--colour", in}, "The following argument was not expected: --colour"},
      {{"--format", "xml", in}, "--format: xml not in {text,json,sarif}"},
      {{"--encoding", "no-such", in}, "the encoding no-such is not known here"},
      {{in, in, "third"}, "The following argument was not expected: third"},
      {{in, "-I"}, "-I: 1 required DIR missing"},
  };
  for (const auto& [arguments, sentence] : wrong) {
    ExpectTrouble(RunMender(arguments), sentence + "\nRun a2lmend --help for more information.");
  }
}

TEST_F(MendProgram, TellsOfItself) {
  const RunResult version = RunMender({"--version"});
  EXPECT_EQ(version.exitCode, 0);
  EXPECT_EQ(version.out, "a2lmend " + std::string(Version()) + "\n");
  const RunResult help = RunMender({"--help"});
  EXPECT_EQ(help.exitCode, 0);
  for (const std::string_view word :
       {"IN", "OUT", "-I", "--encoding", "--format", "--allow-outside", "--quiet", "Exit code"}) {
    EXPECT_NE(help.out.find(word), std::string::npos) << word << "\n" << help.out;
  }
}

TEST_F(MendProgram, PrintsJson) {
  const fs::path in = Write("engine.a2l", kOneLine);
  const RunResult run = RunMender({"--format", "json", in});
  std::string error;
  const json11::Json document = json11::Json::parse(run.out, error);
  EXPECT_EQ(error, "") << run.out;
  EXPECT_EQ(document["lostValues"].int_value(), 1);
  EXPECT_EQ(document["mended"].int_value(), 1);
  EXPECT_EQ(document["cannotBeMended"].int_value(), 0);
  ASSERT_EQ(document["findings"].array_items().size(), 1U);
  const json11::Json& finding = document["findings"][0];
  EXPECT_EQ(finding["rule"].string_value(), "same-line");
  EXPECT_EQ(finding["outcome"].string_value(), "lost");
  EXPECT_EQ(finding["line"].int_value(), 3);
  EXPECT_EQ(finding["column"].int_value(), 43);
  EXPECT_EQ(finding["message"].string_value(),
            "ECU_ADDRESS stands behind the parameters of MEASUREMENT m on one line");
}

TEST_F(MendProgram, PrintsSarif) {
  const fs::path in = Write("engine.a2l", "/begin PROJECT p \"a\tb\xFC\\\\\"\n/end PROJECT\n");
  const RunResult run = RunMender({"--format", "sarif", in});
  std::string error;
  const json11::Json document = json11::Json::parse(run.out, error);
  EXPECT_EQ(error, "") << run.out;
  EXPECT_EQ(document["version"].string_value(), "2.1.0");
  const json11::Json& one = document["runs"][0];
  EXPECT_EQ(one["tool"]["driver"]["name"].string_value(), "a2lmend");
  EXPECT_EQ(one["tool"]["driver"]["rules"].array_items().size(), MendRules().size());
  const json11::Json& result = one["results"][0];
  EXPECT_EQ(result["ruleId"].string_value(), "text-backslash");
  const auto index = static_cast<std::size_t>(result["ruleIndex"].int_value());
  EXPECT_EQ(one["tool"]["driver"]["rules"][index]["id"].string_value(), "text-backslash");
  EXPECT_EQ(result["locations"][0]["physicalLocation"]["region"]["startColumn"].int_value(), 18);
}

// What the schema of SARIF 2.1.0 demands of the members that are there, and what services for code
// review need besides: a place, a level and a rule for each result.
TEST_F(MendProgram, PrintsSarifAsItsSchemaWantsIt) {
  const fs::path in =
      Write("engine a.a2l", std::string(kOneLine) + "/include part.a2l\nCOLOUR \"\x01\xFF\"\n");
  const fs::path part = Write("part.a2l", "\n/begin X\n/end X\n");
  const RunResult run = RunMender({"--format", "sarif", in, folder_ / "out.a2l"});
  EXPECT_EQ(run.out, "");
  std::string error;
  const json11::Json document = json11::Json::parse(run.err, error);
  ASSERT_EQ(error, "") << run.err;
  EXPECT_TRUE(document["$schema"].is_string());
  EXPECT_EQ(document["version"].string_value(), "2.1.0");
  ASSERT_EQ(document["runs"].array_items().size(), 1U);
  const json11::Json& driver = document["runs"][0]["tool"]["driver"];
  EXPECT_EQ(driver["name"].string_value(), "a2lmend");
  EXPECT_EQ(driver["version"].string_value(), Version());
  const std::set<std::string> levels = {"error", "warning", "note"};
  std::set<std::string> ids;
  for (const json11::Json& rule : driver["rules"].array_items()) {
    EXPECT_TRUE(ids.insert(rule["id"].string_value()).second) << rule.dump();
    EXPECT_FALSE(rule["shortDescription"]["text"].string_value().empty()) << rule.dump();
    EXPECT_TRUE(levels.contains(rule["defaultConfiguration"]["level"].string_value()));
  }
  const json11::Json::array& results = document["runs"][0]["results"].array_items();
  EXPECT_EQ(results.size(), 4U) << run.err;
  std::set<std::string> uris;
  for (const json11::Json& result : results) {
    EXPECT_FALSE(result["message"]["text"].string_value().empty()) << result.dump();
    EXPECT_TRUE(levels.contains(result["level"].string_value())) << result.dump();
    EXPECT_TRUE(ids.contains(result["ruleId"].string_value())) << result.dump();
    ASSERT_EQ(result["locations"].array_items().size(), 1U) << result.dump();
    const json11::Json& place = result["locations"][0]["physicalLocation"];
    EXPECT_GE(place["region"]["startLine"].int_value(), 1);
    EXPECT_GE(place["region"]["startColumn"].int_value(), 1);
    uris.insert(place["artifactLocation"]["uri"].string_value());
  }
  for (const std::string& uri : uris) EXPECT_TRUE(uri.starts_with("file:///")) << uri;
  ASSERT_EQ(uris.size(), 2U);
  EXPECT_TRUE(uris.begin()->ends_with("/engine%20a.a2l")) << *uris.begin();
}

TEST_F(MendProgram, PrintsDocumentsWithoutFindings) {
  const fs::path in = Write("engine.a2l", kMended);
  for (const char* format : {"json", "sarif"}) {
    const RunResult run = RunMender({"--format", format, in});
    std::string error;
    const json11::Json document = json11::Json::parse(run.out, error);
    EXPECT_EQ(error, "") << run.out;
    EXPECT_EQ(run.exitCode, 0);
  }
}

// Included files --------------------------------------------------------------------------------

TEST_F(MendProgram, IncludesFilesBesideTheFile) {
  const fs::path in = Write("a/engine.a2l", "/include \"sub\\version.a2l\"\n");
  Write("a/sub/version.a2l", "ASAP2_VERSION /include \"one.a2l\" 71\n");
  Write("a/sub/one.a2l", "1\n");
  const RunResult run = RunMender({in, "-"});
  EXPECT_EQ(run.out, "ASAP2_VERSION 1 71\n") << run.err;
}

TEST_F(MendProgram, IncludesFilesFromFolders) {
  const fs::path in = Write("a/engine.a2l", "/include \"version.a2l\"\n");
  Write("b/version.a2l", "ASAP2_VERSION 1 71\n");
  EXPECT_EQ(RunMender({in, "-"}).out, "/include \"version.a2l\"\n");
  EXPECT_EQ(RunMender({"-I", folder_ / "b", in, "-"}).out, "ASAP2_VERSION 1 71\n");
}

TEST_F(MendProgram, StaysInsideTheFolders) {
  const fs::path in = Write("a/engine.a2l", "/include \"../b/version.a2l\"\n");
  Write("b/version.a2l", "ASAP2_VERSION 1 71\n");
  const RunResult run = RunMender({in});
  EXPECT_NE(run.out.find("[include-refused]"), std::string::npos) << run.out;
  EXPECT_EQ(RunMender({"--allow-outside", in, "-"}).out, "ASAP2_VERSION 1 71\n");
  EXPECT_EQ(RunMender({"-I", folder_ / "b", in, "-"}).out, "ASAP2_VERSION 1 71\n");
  // A folder whose name only begins with that of another one is outside.
  const fs::path other = Write("a/other.a2l", "/include \"../ab/version.a2l\"\n");
  Write("ab/version.a2l", "ASAP2_VERSION 1 71\n");
  EXPECT_NE(RunMender({other}).out.find("[include-refused]"), std::string::npos);
}

TEST_F(MendProgram, DoesNotFollowLinksOutOfTheFolders) {
  const fs::path in = Write("a/engine.a2l", "/include \"link.a2l\"\n");
  Write("b/version.a2l", "ASAP2_VERSION 1 71\n");
  std::error_code error;
  fs::create_symlink(folder_ / "b" / "version.a2l", folder_ / "a" / "link.a2l", error);
  if (error) GTEST_SKIP() << "This system makes no links: " << error.message();
  EXPECT_NE(RunMender({in}).out.find("[include-refused]"), std::string::npos);
}

TEST_F(MendProgram, ReadsRegularFilesOnly) {
  const fs::path in = Write("a/engine.a2l", "/include \"folder\"\n");
  fs::create_directories(folder_ / "a" / "folder");
  EXPECT_NE(RunMender({in}).out.find("it is no regular file [include-refused]"), std::string::npos);
}

#ifndef _WIN32

// Nobody writes to the pipe: to open it would take for ever.
TEST_F(MendProgram, DoesNotOpenPipesAndDevices) {
  const fs::path in = Write("engine.a2l", "/include pipe /include /dev/zero /include \"tty\"\n");
  ASSERT_EQ(mkfifo((folder_ / "pipe").c_str(), 0600), 0);
  fs::create_symlink("/dev/zero", folder_ / "tty");
  for (const char* flag : {"--allow-outside", "--format=text"}) {
    const RunResult run = RunMender({flag, in});
    EXPECT_EQ(run.exitCode, 1) << run.err;
    std::size_t count = 0;
    for (std::size_t at = 0; (at = run.out.find("[include-refused]", at)) != std::string::npos;
         ++at) {
      ++count;
    }
    EXPECT_EQ(count, 3U) << run.out;
  }
}

#else

// Names of devices, which Windows has in every folder, and of another computer, which must not be
// asked.
TEST_F(MendProgram, DoesNotOpenDevicesAndOtherComputers) {
  for (const char* name :
       {"CON", "NUL", "COM1", "\\\\.\\PhysicalDrive0", "\\\\nowhere\\share\\x"}) {
    const fs::path in = Write("engine.a2l", "/include \"" + std::string(name) + "\"\n");
    const RunResult run = RunMender({in});
    EXPECT_EQ(run.exitCode, 1) << name;
    EXPECT_NE(run.out.find("[include-"), std::string::npos) << name << "\n" << run.out;
    EXPECT_EQ(run.out.find("[include]"), std::string::npos) << name << "\n" << run.out;
  }
}

#endif

TEST_F(MendProgram, DoesNotCutNamesAtAZero) {
  using namespace std::string_literals;
  const fs::path in = Write("engine.a2l", "/include \"version.a2l\0x\"\n"s);
  Write("version.a2l", "ASAP2_VERSION 1 71\n");
  EXPECT_NE(RunMender({in}).out.find("there is no such file [include-missing]"), std::string::npos);
}

TEST_F(MendProgram, NamesIncludedFilesInFindings) {
  const fs::path in = Write("a/engine.a2l", "/include \"../a/part.a2l\"\n");
  const fs::path part = Write("a/part.a2l", "\n COLOUR\n");
  const RunResult run = RunMender({in});
  EXPECT_NE(run.out.find("part.a2l:2:2: cannot be mended: COLOUR"), std::string::npos) << run.out;
}

TEST_F(MendProgram, EndsCircles) {
  const fs::path in = Write("engine.a2l", "/include \"engine.a2l\"\n");
  EXPECT_NE(RunMender({in}).out.find("[include-circle]"), std::string::npos);
}

// Encodings -------------------------------------------------------------------------------------

constexpr std::string_view kBeforeText = "/begin PROJECT p \"";
constexpr std::string_view kBehindText = "\"\n/end PROJECT\n";

std::string WithText(std::string_view text) {
  return std::string(kBeforeText) + std::string(text) + std::string(kBehindText);
}

TEST_F(MendProgram, ConvertsFromAnEncoding) {
  struct Example {
    const char* encoding;
    std::string_view bytes;
    std::string_view utf8;
  };
  const std::vector<Example> examples = {
      {"ISO-8859-1", "K\xFChler\x80", "K\xC3\xBChler\xC2\x80"},
      {"latin1", "\xA4", "\xC2\xA4"},
      {"ISO-8859-15", "\xA4\xFF", "\xE2\x82\xAC\xC3\xBF"},
      {"windows-1252", "\x80 \x9F\xB5", "\xE2\x82\xAC \xC5\xB8\xC2\xB5"},
      {"CP1252", "\x96", "\xE2\x80\x93"},
      {"UTF-8", "K\xC3\xBChler", "K\xC3\xBChler"},
      {"ASCII", "Kuehler", "Kuehler"},
  };
  for (const Example& example : examples) {
    const fs::path in = Write("engine.a2l", WithText(example.bytes));
    const RunResult run = RunMender({"--encoding", example.encoding, in, "-"});
    EXPECT_EQ(run.exitCode, 0) << example.encoding << "\n" << run.err;
    EXPECT_EQ(run.out, WithText(example.utf8)) << example.encoding;
  }
}

TEST_F(MendProgram, ConvertsFromEncodingsOfTheSystem) {
  const fs::path in = Write("engine.a2l", WithText("\x8E\xD4"));
  const RunResult run = RunMender({"--encoding", "SHIFT_JIS", in, "-"});
  if (run.exitCode == 2) GTEST_SKIP() << "This system lacks the encoding: " << run.err;
  EXPECT_EQ(run.out, WithText("\xE8\xBB\x8A"));
}

TEST_F(MendProgram, TellsWhereBytesAreInAnotherEncoding) {
  const fs::path in = Write("engine.a2l", "\n" + WithText("K\xFChler"));
  ExpectTrouble(RunMender({"--encoding", "UTF-8", in, folder_ / "out.a2l"}),
                "cannot read " + Shown(in) + ": line 2 is not in the encoding UTF-8");
  EXPECT_FALSE(fs::exists(folder_ / "out.a2l"));
  const fs::path other = Write("other.a2l", WithText("\x81"));
  ExpectTrouble(RunMender({"--encoding", "windows-1252", other}),
                "cannot read " + Shown(other) + ": line 1 is not in the encoding windows-1252");
}

TEST_F(MendProgram, ConvertsIncludedFiles) {
  const fs::path in = Write("engine.a2l", "/include a.a2l /include b.a2l");
  Write("a.a2l", WithText("K\xFChler"));
  Write("b.a2l", "\x81");
  const RunResult run = RunMender({"--encoding", "CP1252", in, "-"});
  EXPECT_TRUE(run.out.starts_with(WithText("K\xC3\xBChler"))) << run.out;
  EXPECT_NE(run.err.find("the file b.a2l cannot be read: line 1 is not in the encoding CP1252 "
                         "[include-missing]"),
            std::string::npos)
      << run.err;
}

}  // namespace
}  // namespace a2l::test
