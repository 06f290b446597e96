// SPDX-License-Identifier: MIT
#include "app/mend/arguments.h"

#include <array>
#include <iostream>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include "a2l2json/model/version.h"
#include "app/mend/encoding.h"
#include "app/mend/exit_codes.h"

namespace a2l {
namespace {

struct NamedFormat {
  const char* name;
  FindingFormat format;
};
constexpr std::array kFormats = {
    NamedFormat{"text", FindingFormat::Text},
    NamedFormat{"json", FindingFormat::Json},
    NamedFormat{"sarif", FindingFormat::Sarif},
};

std::vector<std::string> NamesOfFormats() {
  std::vector<std::string> names;
  names.reserve(kFormats.size());
  for (const NamedFormat& named : kFormats) names.emplace_back(named.name);
  return names;
}

std::nullopt_t Refuse(const std::string& problem, int& exitCode) {
  std::cerr << "a2lmend: " << problem << "\nRun a2lmend --help for more information.\n";
  exitCode = kTrouble;
  return std::nullopt;
}

}  // namespace

std::optional<MendArguments> ReadArguments(int argc, const char* const* argv, int& exitCode) {
  MendArguments arguments;
  CLI::App app{
      "Reads an A2L file as the ASAP2 standard means it, tells what a2l2json would not take from\n"
      "it, and writes it anew in the layout from which nothing is lost.",
      "a2lmend"};
  // A path may begin with a slash on Windows as well.
  app.allow_windows_style_options(false);
  app.get_formatter()->column_width(24);
  app.get_formatter()->label("REQUIRED", "");
  app.get_formatter()->label("Positionals", "Arguments");
  app.set_help_flag("-h,--help", "print this help");
  app.set_version_flag("--version", "a2lmend " + std::string(Version()), "print the version");
  app.add_option("IN", arguments.in, "the A2L file; - for standard input")
      ->type_name("")
      ->required();
  app.add_option(
         "OUT", arguments.out,
         "where to write it; may be IN; - for standard output; without it, nothing is written")
      ->type_name("");
  app.add_option("-I", arguments.folders,
                 "a folder to look for included files in; may be given more than once")
      ->type_name("DIR")
      ->allow_extra_args(false);
  app.add_option("--encoding", arguments.encoding,
                 "the encoding of IN, by its name in iconv, such as ISO-8859-1; OUT is UTF-8 then")
      ->type_name("NAME");
  std::string format = "text";
  app.add_option("--format", format, "text, json or sarif: how findings are printed")
      ->check(CLI::IsMember(NamesOfFormats()).description(""))
      ->type_name("FORMAT");
  app.add_flag("--allow-outside", arguments.allowOutside,
               "also include files outside of the folder of IN and of those given with -I");
  app.add_flag("--quiet", arguments.quiet, "print no findings");
  app.footer(
      "Exit code 0: nothing is lost. 1: there are findings. 2: the file could not be read, or\n"
      "the result not be written, or the arguments are wrong.");
  try {
    app.parse(argc, argv);
  } catch (const CLI::Success& help) {
    exitCode = app.exit(help, std::cout, std::cerr);
    return {};
  } catch (const CLI::ParseError& error) {
    return Refuse(error.what(), exitCode);
  }
  if (!arguments.encoding.empty() && !KnowsEncoding(arguments.encoding)) {
    return Refuse("the encoding " + arguments.encoding + " is not known here", exitCode);
  }
  for (const NamedFormat& named : kFormats) {
    if (named.name == format) arguments.format = named.format;
  }
  return arguments;
}

}  // namespace a2l
