// SPDX-License-Identifier: MIT
#include "a2l2json/reader/input_file.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <ios>
#include <system_error>

#include "a2l2json/model/file_path.h"

namespace a2l {
namespace {

std::FILE* Open(const std::filesystem::path& path) {
#ifdef _WIN32
  return _wfopen(path.c_str(), L"rb");
#else
  return std::fopen(path.c_str(), "rb");
#endif
}

FileError WhyNotOpened(int code, const std::filesystem::path& path) {
  std::error_code ignored;
  if (std::filesystem::is_directory(path, ignored)) return FileError::IsFolder;
  switch (code) {
    case ENOENT:
    case ENOTDIR:
      return FileError::NotFound;
    case EACCES:
    case EPERM:
      return FileError::NoPermission;
    default:
      return FileError::NotOpened;
  }
}

}  // namespace

InputFile::InputFile(const std::string& path) {
  const std::filesystem::path name = FilePath(path);
  errno = 0;
  file_ = Open(name);
  if (file_ == nullptr) {
    error_ = WhyNotOpened(errno, name);
  } else {
    // The reader asks for large pieces, and has a buffer of its own for them.
    std::setvbuf(file_, nullptr, _IONBF, 0);
  }
}

InputFile::~InputFile() {
  if (file_ != nullptr) std::fclose(file_);
}

std::size_t InputFile::ReadBytes(char* to, std::size_t size) {
  if (file_ == nullptr) return 0;
  errno = 0;
  const std::size_t read = std::fread(to, 1, size, file_);
  if (std::ferror(file_) != 0) {
    error_ = errno == EISDIR ? FileError::IsFolder : FileError::ReadFailed;
    throw std::ios_base::failure("read error");  // by which the stream learns that it is bad
  }
  return read;
}

InputFile::int_type InputFile::underflow() {
  if (ReadBytes(&next_, 1) == 0) return traits_type::eof();
  setg(&next_, &next_, &next_ + 1);
  return traits_type::to_int_type(next_);
}

std::streamsize InputFile::xsgetn(char* to, std::streamsize size) {
  const std::streamsize held = std::min(size, std::streamsize{egptr() - gptr()});
  std::copy_n(gptr(), held, to);
  gbump(static_cast<int>(held));
  return held +
         static_cast<std::streamsize>(ReadBytes(to + held, static_cast<std::size_t>(size - held)));
}

}  // namespace a2l
