// SPDX-License-Identifier: MIT
//
// The part of the C interface that opens files.
#include <filesystem>
#include <fstream>
#include <istream>
#include <string>
#include <string_view>
#include <system_error>

#include "a2l2json/a2l2json.h"
#include "a2l2json/mend/include_reader.h"
#include "a2l2json/model/file_path.h"
#include "a2l2json/reader/input_file.h"
#include "capi/a2l2json.h"
#include "capi/input.h"
#include "capi/result.h"

namespace {

namespace fs = std::filesystem;

// Empty for what cannot be read, and for what is no ordinary file: a pipe gives its bytes once.
std::optional<std::string> Beginning(const std::string& name) {
  std::error_code error;
  const fs::path path = a2l::FilePath(name);
  std::ifstream in;
  if (fs::is_regular_file(path, error)) in.open(path, std::ios::binary);
  if (!in.is_open()) return {};
  std::string bytes(a2l::capi::kLookedAt, '\0');
  in.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  bytes.resize(static_cast<std::size_t>(in.gcount()));
  return bytes;
}

// All bytes of the file; an error if they cannot be read.
a2l::FileError Load(const std::string& name, std::string& bytes) {
  a2l::InputFile file(name);
  std::istream in(&file);
  static_cast<void>(a2l::ReadToEnd(in, bytes));  // the file tells why
  return file.Error();
}

}  // namespace

a2l2json_code a2l2json_convert_file(const char* path, const a2l2json_options* options,
                                    a2l2json_result** result) {
  return a2l::capi::Call(
      options, result, [&](const a2l2json_options& checked, a2l2json_result& made) {
        if (path == nullptr) {
          made.code = A2L2JSON_BAD_ARGUMENT;
          made.error = "There is no path.";
          return;
        }
        const std::string file(path);
        a2l::capi::Convert({.name = checked.name == nullptr ? file : std::string_view(checked.name),
                            .read = [&file] { return a2l::ReadFile(file); },
                            .beginning = [&file] { return Beginning(file); },
                            .load =
                                [&file](std::string& room, std::string_view& bytes) {
                                  const a2l::FileError error = Load(file, room);
                                  bytes = room;
                                  return error;
                                },
                            .path = file},
                           checked, made);
      });
}
