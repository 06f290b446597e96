// SPDX-License-Identifier: MIT
#pragma once

#include <cstdio>
#include <streambuf>
#include <string>

#include "a2l2json/reader/diagnostics.h"

namespace a2l {

/// The buffer of a stream that reads a file. Unlike std::filebuf, it says why a file cannot be
/// opened. It also tells a failed read from the end of the file, as not every std::filebuf does:
/// the stream is then bad().
class InputFile final : public std::streambuf {
 public:
  /// Opens the file at `path` (see FilePath).
  explicit InputFile(const std::string& path);
  InputFile(const InputFile&) = delete;
  InputFile& operator=(const InputFile&) = delete;
  ~InputFile() override;

  /// What has gone wrong so far.
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
