// SPDX-License-Identifier: MIT
#include "bench/plain_copy.h"

#include <algorithm>
#include <vector>

#include <fcntl.h>
#include <unistd.h>

namespace a2l::bench {
namespace {

class File {
 public:
  File(const std::string& path, int flags) : descriptor_(open(path.c_str(), flags, 0666)) {}
  ~File() {
    if (descriptor_ >= 0) close(descriptor_);
  }
  File(const File&) = delete;
  File& operator=(const File&) = delete;

  [[nodiscard]] bool IsOpen() const { return descriptor_ >= 0; }
  [[nodiscard]] ssize_t Read(std::vector<char>& piece) const {
    return read(descriptor_, piece.data(), piece.size());
  }
  [[nodiscard]] bool Write(const char* bytes, std::size_t size) const {
    return write(descriptor_, bytes, size) == static_cast<ssize_t>(size);
  }

 private:
  int descriptor_;
};

}  // namespace

bool PlainCopy(const std::string& from, const std::string& to, std::size_t size) {
  std::vector<char> piece(std::size_t{256} * 1024);
  const File in(from, O_RDONLY);
  if (!in.IsOpen()) return false;
  for (ssize_t count = 1; count > 0;) {
    count = in.Read(piece);
    if (count < 0) return false;
  }
  const File out(to, O_WRONLY | O_CREAT | O_TRUNC);
  if (!out.IsOpen()) return false;
  while (size > 0) {
    const std::size_t count = std::min(size, piece.size());
    if (!out.Write(piece.data(), count)) return false;
    size -= count;
  }
  return true;
}

}  // namespace a2l::bench
