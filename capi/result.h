// SPDX-License-Identifier: MIT
//
// What stands behind the opaque result, and how a call fills it.
#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "a2l2json/a2l2json.h"
#include "capi/a2l2json.h"

struct a2l2json_result {
  a2l2json_code code = A2L2JSON_OK;
  std::string error;
  std::string messages;
  std::optional<std::string> document;
  std::optional<std::string> mended;
  std::vector<a2l2json_diagnostic> diagnostics;
  std::vector<a2l2json_finding> findings;

  /// A copy of `text` that stays where it is, with a zero byte behind it.
  std::string_view Keep(std::string text) { return texts_.emplace_back(std::move(text)); }
  std::string_view Keep(std::string_view text) { return Keep(std::string(text)); }

 private:
  std::deque<std::string> texts_;
};

namespace a2l::capi {

/// Where the text of a conversion comes from.
struct Input {
  /// What to call it in sentences; empty for text in memory without a name.
  std::string_view name;
  std::function<ReadResult()> read;
  /// Its first bytes, kLookedAt of them where there are so many; nothing if they cannot be read.
  std::function<std::optional<std::string>()> beginning;
  /// Gives all of its bytes, in `room` unless they are in memory already, or says why they cannot
  /// be read.
  std::function<FileError(std::string& room, std::string_view& bytes)> load;
  /// What its included files are relative to, as in IncludeOptions; empty where none is read.
  std::string path = {};
};

/// Makes a result and has `convert` fill it, from checked options that are never null. Whatever is
/// thrown on the way becomes a code. The value is that of the public functions.
a2l2json_code Call(const a2l2json_options* options, a2l2json_result** result,
                   const std::function<void(const a2l2json_options&, a2l2json_result&)>& convert);

/// Reads the input, and exports the tree as the options ask for.
void Convert(const Input& input, const a2l2json_options& options, a2l2json_result& result);

}  // namespace a2l::capi
