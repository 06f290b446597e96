// SPDX-License-Identifier: MIT
#include "capi/result.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>
#include <memory>
#include <new>
#include <ostream>
#include <stdexcept>
#include <streambuf>

#include "capi/input.h"
#include "capi/mending.h"

namespace a2l::capi {
namespace {

// ---------------------------------------------------------------------------------------------
// Options

// The caller's options in the form of this version. False where they are of no known size, or ask
// for something that is unknown here.
bool Take(const a2l2json_options& options, a2l2json_options& taken) {
  constexpr std::size_t kSmallest = sizeof(std::size_t) + sizeof(int);
  if (options.size < kSmallest) return false;
  std::memcpy(&taken, &options, std::min(options.size, sizeof(taken)));
  taken.size = sizeof(taken);
  if (options.size <= sizeof(taken)) return true;
  // A later version's, which has more members: only zeros can be obeyed.
  const auto* bytes = reinterpret_cast<const char*>(&options);
  return std::all_of(bytes + sizeof(taken), bytes + options.size, [](char c) { return c == 0; });
}

void Fail(a2l2json_result& result, a2l2json_code code, std::string_view sentence) {
  result.code = code;
  result.error = sentence.empty() ? std::string_view(a2l2json_code_text(code)) : sentence;
}

void Run(const a2l2json_options* options, a2l2json_result& result,
         const std::function<void(const a2l2json_options&, a2l2json_result&)>& convert) {
  a2l2json_options taken{};
  if (options != nullptr && !Take(*options, taken)) {
    const bool isLater = options->size > sizeof(taken);
    return Fail(result, isLater ? A2L2JSON_NOT_AVAILABLE : A2L2JSON_BAD_ARGUMENT,
                isLater ? "The options are those of a later version of the library."
                        : "The options do not tell their size.");
  }
  convert(taken, result);
}

// ---------------------------------------------------------------------------------------------
// Diagnostics

struct KindRow {
  DiagnosticKind kind;
  a2l2json_kind number;
  const char* name;
};

constexpr std::array kKinds = {
    KindRow{DiagnosticKind::WrongParameters, A2L2JSON_WRONG_PARAMETERS, "wrong-parameters"},
    KindRow{DiagnosticKind::NeedMoreParameters, A2L2JSON_NEED_MORE_PARAMETERS,
            "need-more-parameters"},
    KindRow{DiagnosticKind::WrongRawContent, A2L2JSON_WRONG_RAW_CONTENT, "wrong-raw-content"},
    KindRow{DiagnosticKind::UnexpectedElement, A2L2JSON_UNEXPECTED_ELEMENT, "unexpected-element"},
    KindRow{DiagnosticKind::UnterminatedComment, A2L2JSON_UNTERMINATED_COMMENT,
            "unterminated-comment"},
    KindRow{DiagnosticKind::UnexpectedBegin, A2L2JSON_UNEXPECTED_BEGIN, "unexpected-begin"},
    KindRow{DiagnosticKind::RefusedElement, A2L2JSON_REFUSED_ELEMENT, "refused-element"},
    KindRow{DiagnosticKind::EndDoesNotMatch, A2L2JSON_END_DOES_NOT_MATCH, "end-does-not-match"},
    KindRow{DiagnosticKind::BeginMissing, A2L2JSON_BEGIN_MISSING, "begin-missing"},
    KindRow{DiagnosticKind::NoParentAtEnd, A2L2JSON_NO_PARENT_AT_END, "no-parent-at-end"},
    KindRow{DiagnosticKind::NoParent, A2L2JSON_NO_PARENT, "no-parent"},
};

constexpr bool StandsAtItsIndex() {
  for (std::size_t i = 0; i < kKinds.size(); ++i) {
    if (static_cast<std::size_t>(kKinds[i].kind) != i) return false;
  }
  return true;
}
static_assert(StandsAtItsIndex(), "the names are not in the order of their kinds");

// `lines` is null where the lines are those of the input. What is taken is gone: what a warning
// names may be as long as the file.
void TakeDiagnostics(std::vector<Diagnostic>& diagnostics, std::string_view name,
                     const LineMap* lines, a2l2json_result& result) {
  std::string_view file;  // as it is kept
  for (Diagnostic& diagnostic : diagnostics) {
    SourceLine place{name, diagnostic.line};
    if (lines != nullptr) place = lines->Of(diagnostic.line);
    diagnostic.line = place.line;
    if (result.diagnostics.empty() || file != place.file) file = result.Keep(place.file);
    result.messages += diagnostic.Text();
    const KindRow& row = kKinds[static_cast<std::size_t>(diagnostic.kind)];
    const bool isError = diagnostic.GetSeverity() == Severity::Error;
    const std::string_view text = result.Keep(diagnostic.What());
    diagnostic.subject = {};
    result.diagnostics.push_back({diagnostic.line, isError ? A2L2JSON_ERROR : A2L2JSON_WARNING,
                                  row.number, row.name, text.data(), text.size(), file.data()});
  }
}

// ---------------------------------------------------------------------------------------------
// The document

// A stream that the caller's function stands behind. Its first refusal fails the stream.
class WriteBuffer : public std::streambuf {
 public:
  explicit WriteBuffer(const a2l2json_options& options) : options_(options) {}

 protected:
  std::streamsize xsputn(const char* bytes, std::streamsize size) override {
    const auto count = static_cast<std::size_t>(size);
    return options_.write(options_.context, bytes, count) == 0 ? size : 0;
  }
  int_type overflow(int_type c) override {
    const char byte = traits_type::to_char_type(c);
    return xsputn(&byte, 1) == 1 ? c : traits_type::eof();
  }

 private:
  const a2l2json_options& options_;
};

// False where the caller did not take it.
bool Export(const VoA2LElement& root, const a2l2json_options& options, a2l2json_result& result) {
  if (options.write == nullptr) {
    result.document = ToJson(root);
    return true;
  }
  WriteBuffer buffer(options);
  std::ostream out(&buffer);
  WriteJson(root, out);
  return out.good();
}

// ---------------------------------------------------------------------------------------------
// Sentences

std::string NotRead(const Input& input, FileError error) {
  std::string sentence(input.name);
  return sentence.append(": ").append(What(error)).append(".");
}

std::string WhatIsWrong(const a2l2json_diagnostic& error) {
  const std::string_view file = error.file;
  std::string sentence = file.empty() ? "Line " : std::string(file) + ", line ";
  sentence += std::to_string(error.line) + ": ";
  return sentence.append(error.text, error.text_size);
}

std::string NoA2l(const Input& input, std::string_view why) {
  std::string sentence = input.name.empty() ? "The text" : std::string(input.name);
  sentence += " is not an A2L file. ";
  return sentence += why.empty() ? "Nothing in it could be read." : why;
}

// The bytes of the input go before the mended text is read.
FileError LoadAndMend(const Input& input, LineMap& lines, a2l2json_result& result) {
  std::string room;
  std::string_view bytes;
  const FileError error = input.load(room, bytes);
  if (error == FileError::None) MendInto(result, bytes, input, lines);
  return error;
}

ReadResult ReadMended(const Input& input, LineMap& lines, a2l2json_result& result) {
  ReadResult read;
  read.fileError = LoadAndMend(input, lines, result);
  if (read.fileError == FileError::None) read = Read(*result.mended);
  return read;
}

}  // namespace

a2l2json_code Call(const a2l2json_options* options, a2l2json_result** result,
                   const std::function<void(const a2l2json_options&, a2l2json_result&)>& convert) {
  if (result == nullptr) return A2L2JSON_BAD_ARGUMENT;
  *result = nullptr;
#ifdef __cpp_exceptions
  try {
    auto made = std::make_unique<a2l2json_result>();
    try {
      Run(options, *made, convert);
    } catch (const std::bad_alloc&) {
      return A2L2JSON_NO_MEMORY;
    } catch (const std::length_error&) {
      return A2L2JSON_NO_MEMORY;  // a text that is longer than any memory
    } catch (const std::exception& exception) {
      Fail(*made, A2L2JSON_INTERNAL_ERROR, exception.what());
    }
    *result = made.release();
  } catch (...) {
    return A2L2JSON_NO_MEMORY;
  }
#else
  *result = new a2l2json_result;
  Run(options, **result, convert);
#endif
  return (*result)->code;
}

void Convert(const Input& input, const a2l2json_options& options, a2l2json_result& result) {
  const bool mends = options.mend != 0;
  LineMap lines;
  ReadResult read = mends ? ReadMended(input, lines, result) : input.read();
  TakeDiagnostics(read.diagnostics, input.name, mends ? &lines : nullptr, result);
  if (read.fileError != FileError::None) {
    return Fail(result, A2L2JSON_NOT_READ, NotRead(input, read.fileError));
  }
  if (read.tree->ChildCount() == 0) {
    const std::optional<std::string> beginning = input.beginning();
    const std::string why = beginning.has_value() ? WhyNoA2l(*beginning, mends) : std::string();
    if (read.ok || !why.empty()) Fail(result, A2L2JSON_NOT_A2L, NoA2l(input, why));
  }
  if (!read.ok) {
    if (result.code == A2L2JSON_OK) {
      Fail(result, A2L2JSON_NOT_CONVERTED, WhatIsWrong(result.diagnostics.back()));
    }
    return;
  }
  if (!Export(*read.tree, options, result)) Fail(result, A2L2JSON_NOT_WRITTEN, {});
}

}  // namespace a2l::capi
