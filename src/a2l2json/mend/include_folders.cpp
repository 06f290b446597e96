// SPDX-License-Identifier: MIT
#include "a2l2json/mend/include_folders.h"

#include <algorithm>
#include <cstddef>
#include <fstream>
#include <system_error>
#include <utility>

#include "a2l2json/model/file_path.h"

namespace a2l {
namespace {

namespace fs = std::filesystem;

std::string Utf8(const fs::path& path) {
  const std::u8string text = path.generic_u8string();
  return {text.begin(), text.end()};
}

// Names are written with backslashes as well, on whatever system they are read.
fs::path IncludedPath(std::string_view name) {
  std::string text(name);
  std::ranges::replace(text, '\\', '/');
  return FilePath(text);
}

IncludedFile NotRead(IncludedFile::Status status, std::string_view problem) {
  IncludedFile file;
  file.status = status;
  file.problem = problem;
  return file;
}

}  // namespace

bool ReadRegularFile(const fs::path& path, std::string& bytes) {
  constexpr std::size_t kPiece = std::size_t{1} << 16;
  std::error_code error;
  if (!fs::is_regular_file(path, error)) return false;
  std::ifstream in(path, std::ios::binary);
  if (!in.is_open()) return false;
  const std::uintmax_t expected = fs::file_size(path, error);
  if (!error) bytes.reserve(static_cast<std::size_t>(expected) + kPiece);
  while (in.good()) {
    const std::size_t size = bytes.size();
    bytes.resize(size + kPiece);
    in.read(bytes.data() + size, static_cast<std::streamsize>(kPiece));
    bytes.resize(size + static_cast<std::size_t>(in.gcount()));
  }
  return in.eof();
}

IncludeFolders::IncludeFolders(IncludeOptions options) : options_(std::move(options)) {
  std::error_code error;
  const fs::path path =
      options_.path == "-" ? fs::current_path(error) / "-" : FilePath(options_.path);
  const fs::path main = fs::weakly_canonical(fs::absolute(path, error), error);
  mainPath_ = Utf8(main);
  allowed_.push_back(main.parent_path());
  for (const std::string& folder : options_.folders) {
    folders_.push_back(fs::weakly_canonical(fs::absolute(FilePath(folder), error), error));
    allowed_.push_back(folders_.back());
  }
}

bool IncludeFolders::IsInside(const fs::path& path) const {
  return std::ranges::any_of(allowed_, [&path](const fs::path& folder) {
    // It is empty where the system could not tell it.
    if (folder.empty()) return false;
    const auto parting = std::ranges::mismatch(folder, path);
    // A folder may end in a slash, behind which it has an empty part.
    return parting.in1 == folder.end() || parting.in1->empty();
  });
}

IncludedFile IncludeFolders::Open(std::string_view name, std::string_view from) const {
  using enum IncludedFile::Status;
  IncludedFile file = NotRead(Missing, "there is no such file");
  std::vector<fs::path> folders = {FilePath(from).parent_path()};
  folders.insert(folders.end(), folders_.begin(), folders_.end());
  for (const fs::path& folder : folders) {
    std::error_code error;
    const fs::path path = fs::weakly_canonical(folder / IncludedPath(name), error);
    if (error || !fs::exists(path, error)) continue;
    if (!options_.allowOutside && !IsInside(path)) {
      file = NotRead(Refused, "it lies outside of the folders that are given");
    } else if (!fs::is_regular_file(path, error)) {
      file = NotRead(Refused, "it is no regular file");
    } else {
      file = NotRead(Missing, "it cannot be read");
      file.path = Utf8(path);
      if (!ReadRegularFile(path, file.bytes)) return file;
      if (options_.decode) {
        std::optional<std::string> utf8 = options_.decode(file.bytes);
        file.problem = "it is not in the encoding that is given";
        if (!utf8) return file;
        file.bytes = std::move(*utf8);
      }
      file.status = Read;
      return file;
    }
  }
  return file;
}

}  // namespace a2l
