// SPDX-License-Identifier: MIT
#include "tests/support/programs.h"

#include <gtest/gtest.h>

#include "tests/support/files.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <cstdlib>

#include <sys/wait.h>
#endif

namespace a2l::test {
namespace {

namespace fs = std::filesystem;

#ifdef _WIN32

// `text` as one argument of a command line. Quotes, and the backslashes before them, are escaped.
std::wstring Quoted(const std::wstring& text) {
  std::wstring quoted = L"\"";
  std::size_t backslashes = 0;
  for (const wchar_t c : text) {
    if (c == L'"') quoted.append(backslashes + 1, L'\\');
    backslashes = c == L'\\' ? backslashes + 1 : 0;
    quoted += c;
  }
  return quoted.append(backslashes, L'\\') + L"\"";
}

HANDLE NewFile(const fs::path& path) {
  SECURITY_ATTRIBUTES inherited{sizeof(inherited), nullptr, TRUE};
  return CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ, &inherited, CREATE_ALWAYS,
                     FILE_ATTRIBUTE_NORMAL, nullptr);
}

HANDLE OldFile(const fs::path& path) {
  SECURITY_ATTRIBUTES inherited{sizeof(inherited), nullptr, TRUE};
  return CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, &inherited, OPEN_EXISTING,
                     FILE_ATTRIBUTE_NORMAL, nullptr);
}

// The exit code of a program that reads from one file, if there is one, and writes to two.
int Run(const std::vector<fs::path>& words, const fs::path& in, const fs::path& out,
        const fs::path& err) {
  std::wstring command;
  for (const fs::path& word : words) {
    command += (command.empty() ? L"" : L" ") + Quoted(word.native());
  }
  STARTUPINFOW startup{};
  startup.cb = sizeof(startup);
  startup.dwFlags = STARTF_USESTDHANDLES;
  startup.hStdInput = in.empty() ? GetStdHandle(STD_INPUT_HANDLE) : OldFile(in);
  startup.hStdOutput = NewFile(out);
  startup.hStdError = NewFile(err);
  PROCESS_INFORMATION process{};
  const BOOL started = CreateProcessW(nullptr, command.data(), nullptr, nullptr, TRUE, 0, nullptr,
                                      nullptr, &startup, &process);
  if (!in.empty()) CloseHandle(startup.hStdInput);
  CloseHandle(startup.hStdOutput);
  CloseHandle(startup.hStdError);
  EXPECT_NE(started, 0) << words.front();
  if (started == 0) return -1;
  DWORD exitCode = 0;
  WaitForSingleObject(process.hProcess, INFINITE);
  GetExitCodeProcess(process.hProcess, &exitCode);
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  return static_cast<int>(exitCode & 0xFF);
}

#else

// `text` as one word of the shell.
std::string Quoted(const std::string& text) {
  std::string quoted = "'";
  for (const char c : text) {
    if (c == '\'') quoted += "'\\'";
    quoted += c;
  }
  return quoted + "'";
}

// The exit code of a program that reads from one file, if there is one, and writes to two.
int Run(const std::vector<fs::path>& words, const fs::path& in, const fs::path& out,
        const fs::path& err) {
  std::string command;
  for (const fs::path& word : words) command += Quoted(word.native()) + " ";
  if (!in.empty()) command += "<" + Quoted(in.native()) + " ";
  command += ">" + Quoted(out.native()) + " 2>" + Quoted(err.native());
  // NOLINTNEXTLINE(concurrency-mt-unsafe): tests run one after the other
  const int status = std::system(command.c_str());
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

#endif

RunResult ResultOf(const std::vector<fs::path>& words, const fs::path& input) {
  const TemporaryFolder folder;
  const int exitCode = Run(words, input, folder / "out", folder / "err");
  return {exitCode, ReadFile(folder / "out"), ReadFile(folder / "err")};
}

}  // namespace

RunResult RunProgram(const std::vector<fs::path>& arguments,
                     const std::vector<fs::path>& launcher) {
  std::vector<fs::path> words = launcher;
  words.emplace_back(A2L2JSON_PROGRAM);
  words.insert(words.end(), arguments.begin(), arguments.end());
  return ResultOf(words, {});
}

RunResult RunMender(const std::vector<fs::path>& arguments, const fs::path& input) {
  std::vector<fs::path> words = {A2LMEND_PROGRAM};
  words.insert(words.end(), arguments.begin(), arguments.end());
  return ResultOf(words, input);
}

}  // namespace a2l::test
