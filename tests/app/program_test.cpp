// SPDX-License-Identifier: MIT
//
// The program as scripts use it: from arguments to texts, exit codes and files.
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#ifndef _WIN32
#include <sys/stat.h>
#endif

#include "tests/support/files.h"
#include "tests/support/programs.h"

namespace a2l::test {
namespace {

namespace fs = std::filesystem;

// Exit codes as the system reports them.
constexpr int kSuccess = 0;
constexpr int kUsage = 255;
constexpr int kNotRead = 254;
constexpr int kNotWritten = 253;

constexpr std::string_view kInput = "ASAP2_VERSION 1 71\n";
constexpr std::string_view kDocument =
    R"({"FA2ML_VERSION_UPGRADE_NO": null, "FA2ML_VERSION_VERSION_NO": null, )"
    R"("FASAP2_VERSION_UPGRADE_NO": 71, "FASAP2_VERSION_VERSION_NO": 1, "FBaseA2LName": null, )"
    R"("FDatabaseName": null, "FModules": [], "FProject_HEADER_COMMENT": null, )"
    R"("FProject_HEADER_PROJECT_NO": null, "FProject_HEADER_VERSION": null, )"
    R"("FProject_LONG_IDENTIFIER": null, "FProject_Name": null})";

class Program : public testing::Test {
 protected:
  TemporaryFolder folder_;
  fs::path a2l_ = folder_ / "in.a2l";
  fs::path json_ = folder_ / "out.json";

  void SetUp() override { WriteFile(a2l_, kInput); }

  /// Runs `script` in the shell. It may run the program as `"$0" "$@"`.
  static RunResult Run(const std::vector<fs::path>& arguments, const std::string& script = {}) {
    const std::vector<fs::path> shell = {"sh", "-c", script};
    RunResult result = RunProgram(arguments, script.empty() ? std::vector<fs::path>{} : shell);
    EXPECT_EQ(result.err, "") << "nothing is ever written to standard error";
    return result;
  }
  static RunResult Convert(const fs::path& a2l, const fs::path& json) { return Run({a2l, json}); }
};

TEST_F(Program, ConvertsAFile) {
  const RunResult run = Convert(a2l_, json_);
  EXPECT_EQ(run.exitCode, kSuccess);
  EXPECT_EQ(run.out, "Success.\n\n");
  EXPECT_EQ(ReadFile(json_), kDocument);
  EXPECT_EQ(ReadFile(a2l_), kInput);
}

TEST_F(Program, ShowsWarningsBehindSuccess) {
  WriteFile(a2l_, "WORD\n/begin PROJECT P\n/end PROJECT\n");
  const RunResult run = Convert(a2l_, json_);
  EXPECT_EQ(run.exitCode, kSuccess);
  EXPECT_EQ(run.out,
            "Success.\n"
            "Warning: Line(1) unexpected element WORD\n"
            "Warning: Line(3) element need more parameters 2\n"
            "\n");
  EXPECT_TRUE(fs::exists(json_));
}

TEST_F(Program, ShowsItsUsageForAnyOtherNumberOfArguments) {
  const std::vector<fs::path> rows[] = {
      {}, {a2l_}, {"--help"}, {a2l_, json_, json_}, {a2l_, json_, ""}};
  for (const std::vector<fs::path>& arguments : rows) {
    SCOPED_TRACE(arguments.size());
    const RunResult run = Run(arguments);
    EXPECT_EQ(run.exitCode, kUsage);
    EXPECT_EQ(run.out, "Failed: using " A2L2JSON_PROGRAM " [in]a2l_file [out]json_file\n");
    EXPECT_FALSE(fs::exists(json_));
  }
  EXPECT_EQ(ReadFile(a2l_), kInput);
}

// The usage shows the program name as the user typed it.
TEST_F(Program, CallsItselfAsItWasCalled) {
#ifdef _WIN32
  GTEST_SKIP() << "only administrators may make links on this system";
#else
  const std::string name = (folder_ / "converter").string();
  const RunResult run = Run({}, "ln -s \"$0\" '" + name + "'; exec '" + name + "'");
  EXPECT_EQ(run.exitCode, kUsage);
  EXPECT_EQ(run.out, "Failed: using " + name + " [in]a2l_file [out]json_file\n");
#endif
}

TEST_F(Program, FailsWithoutAReasonIfTheInputCannotBeOpened) {
  WriteFile(json_, "old");
  for (const fs::path& input : {folder_ / "missing.a2l", folder_ / "missing/in.a2l",
                                folder_ / "*.a2l", fs::path("--help"), fs::path()}) {
    const RunResult run = Convert(input, json_);
    EXPECT_EQ(run.exitCode, kNotRead) << input;
    EXPECT_EQ(run.out, "Failed: \n") << input;
    EXPECT_EQ(ReadFile(json_), "old") << input;
  }
}

TEST_F(Program, FailsIfTheInputIsAFolder) {
  const RunResult run = Convert(folder_.Path(), json_);
  EXPECT_EQ(run.exitCode, kNotRead);
  EXPECT_EQ(run.out, "Failed: \n");
  EXPECT_FALSE(fs::exists(json_));
}

TEST_F(Program, FailsWithoutAReasonIfTheInputMayNotBeRead) {
  fs::permissions(a2l_, fs::perms::none);
  bool isTested = false;
  // Not even an administrator may read the second one.
  for (const fs::path& input : {a2l_, fs::path("/proc/sys/vm/compact_memory")}) {
    if (!fs::exists(input) || std::ifstream(input).is_open()) continue;
    isTested = true;
    const RunResult run = Convert(input, json_);
    EXPECT_EQ(run.exitCode, kNotRead) << input;
    EXPECT_EQ(run.out, "Failed: \n") << input;
    EXPECT_FALSE(fs::exists(json_)) << input;
  }
  if (!isTested) GTEST_SKIP() << "this user may read any file of this system";
}

TEST_F(Program, FailsIfTheInputIsALinkToAFileThatIsGone) {
#ifdef _WIN32
  GTEST_SKIP() << "only administrators may make links on this system";
#else
  fs::create_symlink(a2l_, folder_ / "link.a2l");
  EXPECT_EQ(Convert(folder_ / "link.a2l", json_).exitCode, kSuccess);
  fs::remove(a2l_);
  fs::remove(json_);
  const RunResult run = Convert(folder_ / "link.a2l", json_);
  EXPECT_EQ(run.exitCode, kNotRead);
  EXPECT_EQ(run.out, "Failed: \n");
  EXPECT_FALSE(fs::exists(json_));
#endif
}

// This file can be opened, but not be read at its beginning.
TEST_F(Program, FailsIfTheInputCannotBeReadToItsEnd) {
  const fs::path memory = "/proc/self/mem";
  if (!fs::exists(memory)) GTEST_SKIP() << "there is no such file on this system";
  WriteFile(json_, "old");
  const RunResult run = Convert(memory, json_);
  EXPECT_EQ(run.exitCode, kNotRead);
  EXPECT_EQ(run.out, "Failed: \n");
  EXPECT_EQ(ReadFile(json_), "old");
}

TEST_F(Program, FailsWithAllMessagesIfTheInputIsWrong) {
  WriteFile(a2l_, "WORD\n/end MODULE\n");
  WriteFile(json_, "old");
  const RunResult run = Convert(a2l_, json_);
  EXPECT_EQ(run.exitCode, kNotRead);
  EXPECT_EQ(run.out,
            "Failed: Warning: Line(1) unexpected element WORD\n"
            "Error: Line(2) /end don't equal /begin \n"
            "\n");
  EXPECT_EQ(ReadFile(json_), "old");
}

TEST_F(Program, FailsIfTheOutputCannotBeOpened) {
  // The warning is not shown, because the conversion failed.
  WriteFile(a2l_, "WORD\n");
  for (const fs::path& output : {folder_ / "missing/out.json", folder_.Path(), fs::path(),
                                 a2l_ / "out.json", folder_ / std::string(1000, 'n')}) {
    const RunResult run = Convert(a2l_, output);
    EXPECT_EQ(run.exitCode, kNotWritten) << output;
    EXPECT_EQ(run.out, "Failed: Can not write access json file " + output.string() + "\n");
  }
  EXPECT_FALSE(fs::exists(folder_ / "missing"));
}

TEST_F(Program, DoesNotTouchAnOutputThatMayNotBeWritten) {
  WriteFile(json_, "old");
  fs::permissions(json_, fs::perms::owner_read);
  bool isTested = false;
  // Not even an administrator may write to the second one.
  for (const fs::path& output : {json_, fs::path("/proc/sys/kernel/ostype")}) {
    if (!fs::exists(output) || std::ofstream(output, std::ios::app).is_open()) continue;
    isTested = true;
    const std::string before = ReadFile(output);
    const RunResult run = Convert(a2l_, output);
    EXPECT_EQ(run.exitCode, kNotWritten) << output;
    EXPECT_EQ(run.out, "Failed: Can not write access json file " + output.string() + "\n");
    EXPECT_EQ(ReadFile(output), before) << output;
  }
  if (!isTested) GTEST_SKIP() << "this user may write to any file of this system";
}

TEST_F(Program, ReadsTheInputBeforeItOpensTheOutput) {
  const RunResult run = Convert(folder_ / "missing.a2l", folder_ / "missing/out.json");
  EXPECT_EQ(run.exitCode, kNotRead);
  EXPECT_EQ(run.out, "Failed: \n");
}

TEST_F(Program, ReplacesAnOlderOutput) {
  WriteFile(json_, std::string(10000, 'x'));
  EXPECT_EQ(Convert(a2l_, json_).exitCode, kSuccess);
  EXPECT_EQ(ReadFile(json_), kDocument);
}

TEST_F(Program, CanReplaceItsInput) {
  const RunResult run = Convert(a2l_, a2l_);
  EXPECT_EQ(run.exitCode, kSuccess);
  EXPECT_EQ(run.out, "Success.\n\n");
  EXPECT_EQ(ReadFile(a2l_), kDocument);
}

TEST_F(Program, ReplacesTheTargetOfALink) {
#ifdef _WIN32
  GTEST_SKIP() << "only administrators may make links on this system";
#else
  const fs::path link = folder_ / "link";
  for (const bool isSymbolic : {true, false}) {
    WriteFile(a2l_, kInput);
    fs::remove(link);
    if (isSymbolic) fs::create_symlink(a2l_, link);
    if (!isSymbolic) fs::create_hard_link(a2l_, link);
    const fs::file_type type = fs::symlink_status(link).type();
    EXPECT_EQ(Convert(a2l_, link).exitCode, kSuccess);
    EXPECT_EQ(ReadFile(a2l_), kDocument);
    EXPECT_EQ(ReadFile(link), kDocument);
    EXPECT_EQ(fs::symlink_status(link).type(), type);
  }
#endif
}

TEST_F(Program, TakesPathsAsTheyAre) {
  for (const std::string_view name :
       {"with blanks  in it", "m\xC3\xBCller \xE6\xB1\xBD\xE8\xBB\x8A", "100%s%n", "a'b", "-x"}) {
    const fs::path here = folder_ / name;
    fs::create_directory(here);
    WriteFile(here / "in put.a2l", kInput);
    const RunResult run = Convert(here / "in put.a2l", here / "out put");
    EXPECT_EQ(run.exitCode, kSuccess) << name;
    EXPECT_EQ(run.out, "Success.\n\n") << name;
    EXPECT_EQ(ReadFile(here / "out put"), kDocument) << name;

    const fs::path missing = here / "missing" / "out";
    EXPECT_EQ(Convert(here / "in put.a2l", missing).out,
              "Failed: Can not write access json file " + missing.string() + "\n");
  }
}

TEST_F(Program, TakesPathsThatAreNotUnicode) {
#if defined(_WIN32) || defined(__APPLE__)
  GTEST_SKIP() << "file names are Unicode on this system";
#else
  const fs::path latin1 = folder_ / "m\xFCller.json";
  EXPECT_EQ(Convert(a2l_, latin1).exitCode, kSuccess);
  EXPECT_EQ(ReadFile(latin1), kDocument);
#endif
}

TEST_F(Program, DoesNotNoticeAFullDisk) {
  if (!fs::exists("/dev/full")) GTEST_SKIP() << "there is no /dev/full on this system";
  const RunResult run = Convert(a2l_, "/dev/full");
  EXPECT_EQ(run.exitCode, kSuccess);
  EXPECT_EQ(run.out, "Success.\n\n");
}

// If nobody reads the texts, the exit codes and the files are the same. If there is no standard
// output, a file may get its descriptor, but must not get the texts.
TEST_F(Program, DoesItsWorkWithoutAStandardOutput) {
#ifdef _WIN32
  GTEST_SKIP() << "the shell of this system cannot close standard output";
#else
  WriteFile(a2l_, "WORD\nASAP2_VERSION 1 71\n");
  // The only reader of the pipe has opened it, and closes it before the program begins.
  const std::string pipe = "'" + (folder_ / "pipe").string() + "'";
  const std::string toPipe =
      "rm -f " + pipe + "; mkfifo " + pipe + "; (exec 4<" + pipe + ")& exec 3>" + pipe + "; wait; ";
  for (const std::string redirection :
       {">&-", "</dev/null >&-", "<&- >&- 2>&-", ">/dev/full", ">&3"}) {
    if (redirection == ">/dev/full" && !fs::exists("/dev/full")) continue;
    const std::string script =
        (redirection == ">&3" ? toPipe : "") + R"(exec "$0" "$@" )" + redirection;
    fs::remove(json_);
    EXPECT_EQ(Run({a2l_, json_}, script).exitCode, kSuccess) << redirection;
    EXPECT_EQ(ReadFile(json_), kDocument) << redirection;
    EXPECT_EQ(ReadFile(a2l_), "WORD\nASAP2_VERSION 1 71\n") << redirection;

    EXPECT_EQ(Run({}, script).exitCode, kUsage) << redirection;
    EXPECT_EQ(Run({folder_.Path(), json_}, script).exitCode, kNotRead) << redirection;
    EXPECT_EQ(ReadFile(json_), kDocument) << redirection;
    EXPECT_EQ(Run({a2l_, folder_.Path()}, script).exitCode, kNotWritten) << redirection;
  }
#endif
}

TEST_F(Program, ReadsFromAPipe) {
#ifdef _WIN32
  GTEST_SKIP() << "pipes are not files on this system";
#else
  const fs::path pipe = folder_ / "pipe";
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  const RunResult run = Run({pipe, json_}, R"("$0" "$@" >/dev/null & cat ')" + a2l_.string() +
                                               "' >'" + pipe.string() + "'; wait $! && echo Done.");
  EXPECT_EQ(run.out, "Done.\n");
  EXPECT_EQ(ReadFile(json_), kDocument);
#endif
}

TEST_F(Program, WritesOneLineWithoutALineFeed) {
  WriteFile(a2l_, "/begin PROJECT P \"a\\nb\"\n/begin MODULE M \"\"\n/end MODULE\n/end PROJECT\n");
  EXPECT_EQ(Convert(a2l_, json_).exitCode, kSuccess);
  const std::string json = ReadFile(json_);
  EXPECT_EQ(json.find('\n'), std::string::npos);
  EXPECT_EQ(json.find('\r'), std::string::npos);
  EXPECT_TRUE(json.ends_with(R"("FProject_LONG_IDENTIFIER": "a\nb", "FProject_Name": "P"})"));
}

}  // namespace
}  // namespace a2l::test
