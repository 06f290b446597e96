// SPDX-License-Identifier: MIT
#include "a2l2json/mend/include_reader.h"

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <fstream>
#include <istream>
#include <system_error>
#include <utility>

#include "a2l2json/model/file_path.h"
#include "a2l2json/model/large_pages.h"

namespace a2l {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kPiece = std::size_t{1} << 20;

std::string Utf8(const fs::path& path) {
  const std::u8string text = path.generic_u8string();
  return {text.begin(), text.end()};
}

fs::path WholePath(const fs::path& path) {
  std::error_code error;
  const fs::path absolute = fs::absolute(path, error);
  return error ? fs::path() : fs::weakly_canonical(absolute, error);
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

std::string LastProblem() {
  return errno == 0 ? "the system does not say why" : std::generic_category().message(errno);
}

bool ReadToEnd(std::istream& in, std::string& bytes) {
  while (in.good()) {
    const std::size_t size = bytes.size();
    if (bytes.capacity() < size + kPiece) bytes.reserve(std::max(2 * size, size + kPiece));
    bytes.resize(size + kPiece);
    in.read(bytes.data() + size, static_cast<std::streamsize>(kPiece));
    bytes.resize(size + static_cast<std::size_t>(in.gcount()));
  }
  return in.eof();
}

std::string ReadWholeFile(const fs::path& path, std::string& bytes) {
  // A folder can be opened on some systems, and then gives no bytes and no error.
  std::error_code error;
  if (fs::is_directory(path, error)) return "it is a folder";
  errno = 0;
  std::ifstream in(path, std::ios::binary);
  if (!in.is_open()) return LastProblem();
  const std::uintmax_t expected = fs::file_size(path, error);
  if (!error) {
    bytes.reserve(bytes.size() + static_cast<std::size_t>(expected) + kPiece);
    detail::AskForLargePages(bytes.data(), bytes.capacity());
  }
  return ReadToEnd(in, bytes) ? std::string() : LastProblem();
}

IncludeReader::IncludeReader(IncludeOptions options) : options_(std::move(options)) {
  const fs::path main = WholePath(FilePath(options_.path));
  mainPath_ = Utf8(main);
  allowed_.push_back(main.parent_path());
  for (const std::string& folder : options_.folders) {
    folders_.push_back(WholePath(FilePath(folder)));
    allowed_.push_back(folders_.back());
  }
}

// To ask whether a file on another computer is there tells that computer who asks.
bool IncludeReader::MayLookAt(const fs::path& path) const {
  return options_.allowOutside || std::ranges::any_of(allowed_, [&path](const fs::path& folder) {
           return folder.root_name() == path.root_name();
         });
}

bool IncludeReader::IsInside(const fs::path& path) const {
  return std::ranges::any_of(allowed_, [&path](const fs::path& folder) {
    // It is empty where the system could not tell it.
    if (folder.empty()) return false;
    const auto parting = std::ranges::mismatch(folder, path);
    // A folder may end in a slash, behind which it has an empty part.
    return parting.in1 == folder.end() || parting.in1->empty();
  });
}

IncludedFile IncludeReader::Read(const fs::path& path) const {
  IncludedFile file;
  file.path = Utf8(path);
  file.problem = ReadWholeFile(path, file.bytes);
  if (file.problem.empty() && options_.decode) file.problem = options_.decode(file.bytes);
  if (file.problem.empty()) file.status = IncludedFile::Status::Read;
  return file;
}

IncludedFile IncludeReader::Open(std::string_view name, std::string_view from) const {
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
    if (!mayLook || (!options_.allowOutside && !IsInside(path))) {
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
