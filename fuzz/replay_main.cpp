// SPDX-License-Identifier: MIT
//
// The main of the fuzz targets in ordinary builds: runs the target once on every file that it is
// given, and on every file below the folders that it is given. A failed check ends it; so does a
// path that cannot be read, and having had nothing to run.
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
  // Told before the run, so that the last line of a run that fails names its input.
  std::printf("%s\n", file.string().c_str());
  std::fflush(stdout);
  // An array of the exact size, so that a sanitizer sees a read behind its end.
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
