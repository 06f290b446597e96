// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace a2l {

/// What a message of the reader is about.
enum class DiagnosticKind : std::uint8_t {
  WrongParameters,      ///< parameters of a keyword could not be read
  NeedMoreParameters,   ///< a keyword ended before all its parameters were there
  WrongRawContent,      ///< a block whose content is kept as text could not be read
  UnexpectedElement,    ///< a line begins with an unknown word
  UnterminatedComment,  ///< the file ends inside a block comment
  UnexpectedBegin,      ///< /begin before a word that opens no block
  RefusedElement,       ///< a keyword that may not stand in the open block
  EndDoesNotMatch,      ///< /end names another block than the open one
  BeginMissing,         ///< a block's keyword without /begin
  NoParentAtEnd,        ///< /end outside of everything
  NoParent,             ///< an element outside of everything
};

enum class Severity : std::uint8_t {
  Warning,  ///< the read went on
  Error,    ///< the read ended there
};

/// One message of the reader.
struct Diagnostic {
  DiagnosticKind kind;
  /// Number of the physical line, the first being 1.
  std::size_t line;
  /// The keyword, word or number that the message names; may be empty.
  std::string subject;

  [[nodiscard]] Severity GetSeverity() const;
  /// The message without severity and line, as in "unexpected element COLOUR".
  [[nodiscard]] std::string What() const;
  /// The message, with its line feed, as users know it.
  [[nodiscard]] std::string Text() const;
};

/// Why a file could not be read.
enum class FileError : std::uint8_t {
  None,          ///< it was read
  NotFound,      ///< no file has that name
  NoPermission,  ///< the system does not let this program read it
  IsFolder,      ///< the name is that of a folder
  NotOpened,     ///< it exists, but cannot be opened for another reason
  ReadFailed,    ///< it was opened, but could not be read completely
};

/// The error in a few words, as in "there is no such file"; empty for None.
[[nodiscard]] std::string_view What(FileError error);

}  // namespace a2l
