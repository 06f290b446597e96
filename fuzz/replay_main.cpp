// SPDX-License-Identifier: MIT
//
// The main function of the fuzz targets in ordinary builds. Runs the target once on every file that
// is named, and on every file below the folders that are named. It fails if a check fails, a path
// cannot be read, or there is no file.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

namespace fs = std::filesystem;

std::vector<fs::path> FilesBelow(const fs::path& path) {
  if (!fs::is_directory(path)) return {path};
  std::vector<fs::path> files;
  for (const auto& entry : fs::recursive_directory_iterator(path)) {
    if (entry.is_regular_file()) files.push_back(entry.path());
  }
  std::ranges::sort(files);
  return files;
}

void Replay(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  const std::string bytes{std::istreambuf_iterator<char>(in), {}};
  if (!in.is_open() || in.bad()) throw std::runtime_error("cannot read " + file.string());
  // Printed before the run, so that the last line names the input if the run fails.
  std::printf("%s\n", file.string().c_str());
  std::fflush(stdout);
  // An array of the exact size, so that a sanitizer notices a read beyond its end.
  const std::vector<std::uint8_t> data(bytes.begin(), bytes.end());
  LLVMFuzzerTestOneInput(data.data(), data.size());
}

}  // namespace

int main(int argc, char* argv[]) {
  try {
    std::size_t count = 0;
    for (int i = 1; i < argc; ++i) {
      for (const fs::path& file : FilesBelow(argv[i])) {
        Replay(file);
        ++count;
      }
    }
    std::printf("%zu inputs replayed\n", count);
    return count > 0 ? 0 : 1;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 2;
  }
}
