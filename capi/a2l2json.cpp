// SPDX-License-Identifier: MIT
//
// All of the C interface but what opens files.
#include "capi/a2l2json.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "a2l2json/a2l2json.h"
#include "capi/input.h"
#include "capi/result.h"

namespace {

struct CodeRow {
  a2l2json_code code;
  const char* text;
};

constexpr std::array kCodes = {
    CodeRow{A2L2JSON_OK, "The document is there."},
    CodeRow{A2L2JSON_NOT_A2L, "Nothing of A2L is in the input."},
    CodeRow{A2L2JSON_NOT_CONVERTED, "The text holds an error."},
    CodeRow{A2L2JSON_NOT_READ, "The file cannot be read."},
    CodeRow{A2L2JSON_NOT_WRITTEN, "The function that takes the document did not take all of it."},
    CodeRow{A2L2JSON_NO_MEMORY, "Memory ran out."},
    CodeRow{A2L2JSON_BAD_ARGUMENT, "An argument is wrong."},
    CodeRow{A2L2JSON_NOT_AVAILABLE, "This library cannot do what the options ask for."},
    CodeRow{A2L2JSON_INTERNAL_ERROR, "The library has a fault."},
};

// The bytes of `text` and, at `size`, their number; null and 0 where there is no text.
const char* Bytes(const std::string* text, size_t* size) {
  if (size != nullptr) *size = text == nullptr ? 0 : text->size();
  return text == nullptr ? nullptr : text->c_str();
}

// Where a text in memory lies as if it were the file of its name, so that an /include that names it
// is seen to go in a circle; empty where it lies nowhere.
std::string PathOf(const a2l2json_options& options) {
  if (options.folder == nullptr) return {};
  const std::string_view folder = options.folder;
  std::string_view name = options.name == nullptr ? "" : options.name;
  name.remove_prefix(name.find_last_of("/\\") + 1);
  std::string path(folder.empty() ? "." : folder);
  path += '/';
  path += name.empty() ? "-" : name;
  return path;
}

const std::string* Address(const std::optional<std::string>& text) {
  return text.has_value() ? &*text : nullptr;
}

template <class Item>
const Item* At(const std::vector<Item>& items, size_t index) {
  return index < items.size() ? &items[index] : nullptr;
}

}  // namespace

const char* a2l2json_code_text(a2l2json_code code) {
  for (const CodeRow& row : kCodes) {
    if (row.code == code) return row.text;
  }
  return "This code is unknown.";
}

const char* a2l2json_version() {
  return a2l::Version().data();  // NOLINT(bugprone-suspicious-stringview-data-usage): a literal
}

a2l2json_code a2l2json_convert_text(const char* text, size_t size, const a2l2json_options* options,
                                    a2l2json_result** result) {
  return a2l::capi::Call(
      options, result, [&](const a2l2json_options& checked, a2l2json_result& made) {
        if (text == nullptr && size > 0) {
          made.code = A2L2JSON_BAD_ARGUMENT;
          made.error = "The text is null, but its size is not 0.";
          return;
        }
        const std::string_view view(text == nullptr ? "" : text, size);
        a2l::capi::Convert(
            {.name = checked.name == nullptr ? "" : checked.name,
             .read = [view] { return a2l::Read(view); },
             .beginning = [view] { return std::string(view.substr(0, a2l::capi::kLookedAt)); },
             .load =
                 [view](std::string& /*room*/, std::string_view& bytes) {
                   bytes = view;
                   return a2l::FileError::None;
                 },
             .path = PathOf(checked)},
            checked, made);
      });
}

void a2l2json_free(a2l2json_result* result) { delete result; }

a2l2json_code a2l2json_result_code(const a2l2json_result* result) {
  return result == nullptr ? A2L2JSON_NO_MEMORY : result->code;
}

const char* a2l2json_error(const a2l2json_result* result) {
  return result == nullptr ? a2l2json_code_text(A2L2JSON_NO_MEMORY) : result->error.c_str();
}

const char* a2l2json_document(const a2l2json_result* result, size_t* size) {
  return Bytes(result == nullptr ? nullptr : Address(result->document), size);
}

const char* a2l2json_messages(const a2l2json_result* result, size_t* size) {
  return Bytes(result == nullptr ? nullptr : &result->messages, size);
}

size_t a2l2json_diagnostic_count(const a2l2json_result* result) {
  return result == nullptr ? 0 : result->diagnostics.size();
}

const a2l2json_diagnostic* a2l2json_diagnostic_at(const a2l2json_result* result, size_t index) {
  return result == nullptr ? nullptr : At(result->diagnostics, index);
}

const char* a2l2json_mended(const a2l2json_result* result, size_t* size) {
  return Bytes(result == nullptr ? nullptr : Address(result->mended), size);
}

size_t a2l2json_finding_count(const a2l2json_result* result) {
  return result == nullptr ? 0 : result->findings.size();
}

const a2l2json_finding* a2l2json_finding_at(const a2l2json_result* result, size_t index) {
  return result == nullptr ? nullptr : At(result->findings, index);
}
