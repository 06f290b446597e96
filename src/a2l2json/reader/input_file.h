// SPDX-License-Identifier: MIT
#pragma once

#include <cstdio>
#include <streambuf>
#include <string>

#include "a2l2json/reader/diagnostics.h"

namespace a2l {

/// A file that is read, as the buffer of a stream. It knows why a file cannot be opened, which
/// std::filebuf does not say, and tells a read that failed from the end of the file, which
/// std::filebuf of some libraries does not: the stream then is bad().
class InputFile final : public std::streambuf {
 public:
  /// Opens the file at `path` (see FilePath).
  explicit InputFile(const std::string& path);
  InputFile(const InputFile&) = delete;
  InputFile& operator=(const InputFile&) = delete;
  ~InputFile() override;

  /// What went wrong up to now.
  [[nodiscard]] FileError Error() const { return error_; }

 protected:
  int_type underflow() override;
  std::streamsize xsgetn(char* to, std::streamsize size) override;

 private:
  std::size_t ReadBytes(char* to, std::size_t size);

  std::FILE* file_;
  FileError error_ = FileError::None;
  char next_ = 0;
};

}  // namespace a2l
