// SPDX-License-Identifier: MIT
#include <exception>
#include <iostream>
#include <new>
#include <optional>
#include <string>
#include <string_view>

#include "a2l2json/mend/mend.h"
#include "app/mend/arguments.h"
#include "app/mend/exit_codes.h"
#include "app/mend/files.h"
#include "app/mend/printer.h"
#include "app/mend/progress.h"
#include "app/system.h"

namespace {

using namespace a2l;  // NOLINT(google-build-using-namespace): the program is made of it

int Trouble(std::string_view what, const std::string& name, const Problem& problem) {
  const bool isStream = name == "-";
  std::cerr << "a2lmend: cannot " << what << ' ';
  if (isStream) {
    std::cerr << (what == "read" ? "standard input" : "standard output");
  } else {
    std::cerr << name;
  }
  std::cerr << ": " << problem << '\n';
  return kTrouble;
}

int Run(const MendArguments& arguments) {
  std::string bytes;
  if (const Problem problem = ReadInput(arguments, bytes); !problem.empty()) {
    return Trouble("read", arguments.in, problem);
  }
  const IncludeReader reader(IncludeOptionsOf(arguments));
  Progress progress(ErrorsAreSeen() && !arguments.quiet, bytes.size());
  const std::string name = arguments.in == "-" ? "<stdin>" : arguments.in;
  const bool isWritten = !arguments.out.empty();
  FindingPrinter printer(arguments.format, isWritten ? std::cerr : std::cout,
                         [&progress] { progress.Clear(); });
  MendOptions options;
  options.name = name;
  options.path = reader.MainPath();
  options.open = [&reader](std::string_view included, std::string_view from) {
    return reader.Open(included, from);
  };
  if (!arguments.quiet) {
    options.report = [&printer](const Finding& finding) { printer.Print(finding); };
  }
  options.progress = [&progress](std::size_t done) { progress.Tell(done); };
  const Mended mended = Mend(bytes, options);
  progress.Clear();
  if (!arguments.quiet) printer.Finish(mended, name, isWritten);
  if (isWritten) {
    const Problem problem = WriteOutput(arguments.out, mended.text);
    if (!problem.empty()) return Trouble("write", arguments.out, problem);
  }
  const bool isClean = mended.lost + mended.mended + mended.unmendable == 0;
  return isClean ? kNothingLost : kFindings;
}

}  // namespace

int main(int argc, char* argv[]) {
  BeginProcess(argc, argv);
  int exitCode = kTrouble;
  const std::optional<MendArguments> arguments = ReadArguments(argc, argv, exitCode);
  if (!arguments) return exitCode;
  try {
    return Run(*arguments);
  } catch (const std::bad_alloc&) {
    std::cerr << "a2lmend: there is too little memory for " << arguments->in << '\n';
  } catch (const std::exception& error) {
    std::cerr << "a2lmend: " << error.what() << '\n';
  }
  return kTrouble;
}
