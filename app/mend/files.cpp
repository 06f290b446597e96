// SPDX-License-Identifier: MIT
#include "app/mend/files.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <random>
#include <system_error>
#include <utility>

#include "a2l2json/mend/packed.h"
#include "a2l2json/model/file_path.h"
#include "app/mend/encoding.h"

namespace a2l {
namespace {

namespace fs = std::filesystem;

bool WriteStream(std::ostream& out, std::string_view bytes) {
  out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  out.flush();
  return out.good();
}

Problem WriteFile(const fs::path& path, std::string_view bytes) {
  errno = 0;
  std::ofstream out(path, std::ios::binary);
  if (!out.is_open() || !WriteStream(out, bytes)) return LastProblem();
  out.close();
  return out.fail() ? LastProblem() : Problem();
}

Problem ProblemOf(std::string_view bytes) {
  if (bytes.empty()) return "it is empty";
  const std::string_view packer = PackedWith(bytes);
  if (packer.empty()) return {};
  return "it is packed with " + std::string(packer) + "; unpack it first";
}

Problem Convert(const std::string& encoding, std::string& bytes) {
  if (encoding.empty()) return {};
  Converted converted = ToUtf8(encoding, bytes);
  if (converted.isDone) {
    bytes = std::move(converted.text);
    return {};
  }
  const auto good = static_cast<std::ptrdiff_t>(converted.good);
  const auto line = std::count(bytes.begin(), bytes.begin() + good, '\n') + 1;
  return "line " + std::to_string(line) + " is not in the encoding " + encoding;
}

fs::path Beside(const fs::path& path) {
  std::random_device random;
  fs::path beside = path;
  beside += '.';
  beside += std::to_string(random());
  beside += ".tmp";
  return beside;
}

}  // namespace

Problem ReadInput(const MendArguments& arguments, std::string& bytes) {
  Problem problem;
  if (arguments.in != "-") {
    problem = ReadWholeFile(FilePath(arguments.in), bytes);
  } else if (!ReadToEnd(std::cin, bytes)) {
    problem = LastProblem();
  }
  if (problem.empty()) problem = ProblemOf(bytes);
  if (problem.empty()) problem = Convert(arguments.encoding, bytes);
  return problem;
}

Problem WriteOutput(const std::string& name, std::string_view bytes) {
  errno = 0;
  if (name == "-") return WriteStream(std::cout, bytes) ? Problem() : LastProblem();
  std::error_code error;
  fs::path path = FilePath(name);
  // What a link leads to is replaced, not the link.
  if (fs::is_symlink(path, error)) path = fs::weakly_canonical(path, error);
  const fs::file_status status = fs::status(path, error);
  if (fs::is_directory(status)) return "it is a folder";
  if (fs::exists(status) && !fs::is_regular_file(status)) return WriteFile(path, bytes);
  const fs::path beside = Beside(path);
  Problem problem = WriteFile(beside, bytes);
  if (problem.empty()) {
    if (fs::exists(status)) fs::permissions(beside, status.permissions(), error);
    fs::rename(beside, path, error);
    if (!error) return {};
    problem = error.message();
  }
  fs::remove(beside, error);
  return problem;
}

IncludeOptions IncludeOptionsOf(const MendArguments& arguments) {
  IncludeOptions options;
  options.path = arguments.in;
  options.folders = arguments.folders;
  options.allowOutside = arguments.allowOutside;
  options.decode = [encoding = arguments.encoding](std::string& bytes) {
    return Convert(encoding, bytes);
  };
  return options;
}

}  // namespace a2l
