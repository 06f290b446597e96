// SPDX-License-Identifier: MIT
#include "app/system.h"

#include <cstdlib>

#ifdef _WIN32

#include <cstdio>
#include <string>
#include <vector>

#include <fcntl.h>
#include <io.h>
#include <windows.h>

namespace a2l {
namespace {

// Empty if `text` is not valid Unicode; no file has an empty name.
std::string Utf8(const wchar_t* text) {
  const auto convert = [text](char* to, int size) {
    return WideCharToMultiByte(CP_UTF8, WC_ERR_INVALID_CHARS, text, -1, to, size, nullptr, nullptr);
  };
  std::string utf8(static_cast<std::size_t>(convert(nullptr, 0)), '\0');
  if (utf8.empty()) return utf8;
  convert(utf8.data(), static_cast<int>(utf8.size()));
  utf8.pop_back();  // the terminating zero
  return utf8;
}

// The arguments of main are in a code page that lacks most characters, and wildcards in them are
// expanded.
void TakeWideArguments(int& argc, char**& argv) {
  static std::vector<std::string> texts;
  static std::vector<char*> pointers;
  int count = 0;
  wchar_t** const wide = CommandLineToArgvW(GetCommandLineW(), &count);
  if (wide == nullptr) return;
  for (int i = 0; i < count; ++i) texts.push_back(Utf8(wide[i]));
  LocalFree(static_cast<void*>(wide));
  for (std::string& text : texts) pointers.push_back(text.data());
  pointers.push_back(nullptr);
  argc = count;
  argv = pointers.data();
}

UINT consoleCodePage = 0;  // as it was before

void RestoreConsole() {
  if (consoleCodePage != 0) SetConsoleOutputCP(consoleCodePage);
}

void PassBytesThrough() {
  _setmode(_fileno(stdin), _O_BINARY);
  _setmode(_fileno(stdout), _O_BINARY);
  _setmode(_fileno(stderr), _O_BINARY);
  DWORD mode = 0;
  if (GetConsoleMode(GetStdHandle(STD_OUTPUT_HANDLE), &mode) == 0) return;
  consoleCodePage = GetConsoleOutputCP();
  SetConsoleOutputCP(CP_UTF8);
  std::atexit(RestoreConsole);
}

}  // namespace

void BeginProcess(int& argc, char**& argv) {
  TakeWideArguments(argc, argv);
  PassBytesThrough();
}

bool ErrorsAreSeen() { return _isatty(_fileno(stderr)) != 0; }

void EndAtOnce(int code) {
  RestoreConsole();
  std::_Exit(code);
}

}  // namespace a2l

#else

#include <csignal>

#include <unistd.h>

namespace a2l {

void BeginProcess(int& /*argc*/, char**& /*argv*/) { std::signal(SIGPIPE, SIG_IGN); }

bool ErrorsAreSeen() { return isatty(STDERR_FILENO) != 0; }

void EndAtOnce(int code) { std::_Exit(code); }

}  // namespace a2l

#endif
