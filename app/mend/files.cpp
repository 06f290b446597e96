// SPDX-License-Identifier: MIT
#include "app/mend/files.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <fstream>
#include <iostream>
#include <random>
#include <system_error>
#include <utility>

#include "a2l2json/model/file_path.h"
#include "app/mend/encoding.h"

namespace a2l {
namespace {

namespace fs = std::filesystem;

// Why the system did not do what it was asked for last.
Problem LastProblem() {
  return errno == 0 ? "the system does not say why" : std::generic_category().message(errno);
}

bool ReadStream(std::istream& in, std::string& bytes) {
  constexpr std::size_t kPiece = std::size_t{1} << 20;
  while (in.good()) {
    const std::size_t size = bytes.size();
    if (bytes.capacity() < size + kPiece) bytes.reserve(std::max(2 * size, size + kPiece));
    bytes.resize(size + kPiece);
    in.read(bytes.data() + size, static_cast<std::streamsize>(kPiece));
    bytes.resize(size + static_cast<std::size_t>(in.gcount()));
  }
  return in.eof();
}

Problem ReadFile(const fs::path& path, std::string& bytes) {
  // A folder can be opened on some systems, and then gives no bytes and no error.
  std::error_code error;
  if (fs::is_directory(path, error)) return "it is a folder";
  errno = 0;
  std::ifstream in(path, std::ios::binary);
  if (!in.is_open()) return LastProblem();
  const std::uintmax_t size = fs::file_size(path, error);
  if (!error) bytes.reserve(static_cast<std::size_t>(size) + (std::size_t{1} << 20));
  return ReadStream(in, bytes) ? Problem() : LastProblem();
}

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

// What a file begins with that holds others in a packed form.
struct Packed {
  std::string_view begin;
  std::string_view name;
};
constexpr std::array kPacked = {
    Packed{"\x1F\x8B", "gzip"},
    Packed{"PK\x03\x04", "zip"},
    Packed{"BZh", "bzip2"},
    Packed{{"\xFD\x37zXZ"}, "xz"},
    Packed{"7z\xBC\xAF\x27\x1C", "7-Zip"},
    Packed{"\x28\xB5\x2F\xFD", "zstd"},
};

Problem ProblemOf(std::string_view bytes) {
  if (bytes.empty()) return "it is empty";
  for (const Packed& packed : kPacked) {
    if (bytes.starts_with(packed.begin)) {
      return "it is packed with " + std::string(packed.name) + "; unpack it first";
    }
  }
  return {};
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

std::string Utf8(const fs::path& path) {
  const std::u8string text = path.generic_u8string();
  return {text.begin(), text.end()};
}

fs::path Beside(const fs::path& path) {
  std::random_device random;
  fs::path beside = path;
  beside += '.';
  beside += std::to_string(random());
  beside += ".tmp";
  return beside;
}

// Names are written with backslashes as well, on whatever system they are read. Empty where no file
// can have the name.
fs::path IncludedPath(std::string_view name) {
  if (name.find('\0') != std::string_view::npos) return {};
  std::string text(name);
  std::ranges::replace(text, '\\', '/');
  return FilePath(text);
}

}  // namespace

Problem ReadInput(const MendArguments& arguments, std::string& bytes) {
  Problem problem;
  if (arguments.in != "-") {
    problem = ReadFile(FilePath(arguments.in), bytes);
  } else if (!ReadStream(std::cin, bytes)) {
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

IncludeFolders::IncludeFolders(const MendArguments& arguments)
    : encoding_(arguments.encoding), allowOutside_(arguments.allowOutside) {
  std::error_code error;
  const fs::path main = arguments.in == "-" ? fs::current_path(error) / "-"
                                            : fs::weakly_canonical(FilePath(arguments.in), error);
  mainPath_ = Utf8(main);
  allowed_.push_back(main.parent_path());
  for (const std::string& folder : arguments.folders) {
    folders_.push_back(fs::weakly_canonical(FilePath(folder), error));
    allowed_.push_back(folders_.back());
  }
}

// To ask whether a file on another computer is there tells that computer who asks.
bool IncludeFolders::MayLookAt(const fs::path& path) const {
  return allowOutside_ || std::ranges::any_of(allowed_, [&path](const fs::path& folder) {
           return folder.root_name() == path.root_name();
         });
}

bool IncludeFolders::IsInside(const fs::path& path) const {
  return std::ranges::any_of(allowed_, [&path](const fs::path& folder) {
    const auto parting = std::ranges::mismatch(folder, path);
    // A folder may end in a slash, behind which it has an empty part.
    return parting.in1 == folder.end() || parting.in1->empty();
  });
}

IncludedFile IncludeFolders::Read(const fs::path& path) const {
  IncludedFile file;
  file.path = Utf8(path);
  file.problem = ReadFile(path, file.bytes);
  if (file.problem.empty()) file.problem = Convert(encoding_, file.bytes);
  if (file.problem.empty()) file.status = IncludedFile::Status::Read;
  return file;
}

IncludedFile IncludeFolders::Open(std::string_view name, std::string_view from) const {
  IncludedFile file;
  file.problem = "there is no such file";
  const fs::path included = IncludedPath(name);
  if (included.empty()) return file;
  std::vector<fs::path> folders = {FilePath(from).parent_path()};
  folders.insert(folders.end(), folders_.begin(), folders_.end());
  for (const fs::path& folder : folders) {
    std::error_code error;
    const bool mayLook = MayLookAt(folder / included);
    const fs::path path = mayLook ? fs::weakly_canonical(folder / included, error) : included;
    if (mayLook && (error || !fs::exists(path, error))) continue;
    if (!mayLook || (!allowOutside_ && !IsInside(path))) {
      file.status = IncludedFile::Status::Refused;
      file.problem = "it lies outside of the folders that are given";
    } else if (!fs::is_regular_file(path, error)) {
      file.status = IncludedFile::Status::Refused;
      file.problem = "it is no regular file";
    } else {
      return Read(path);
    }
  }
  return file;
}

}  // namespace a2l
