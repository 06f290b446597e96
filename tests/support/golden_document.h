// SPDX-License-Identifier: MIT
//
// The documents of the golden cases, in a form whose differences can be read: a document is one
// line, its golden file has a line feed before every key (before the blank in front of it, so that
// no line ends in a blank) and one at the end. A key that is new in an object is one line more.
//
// The line feeds say nothing and are dropped before anything is compared. That loses nothing, since
// a document has no line feed of its own: in texts and in keys it is written as \n. All other bytes
// must be the same.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace a2l::test {

/// The golden form of a document.
std::string GoldenForm(std::string_view document);

/// The document of a golden form.
std::string FromGoldenForm(std::string_view golden);

/// The document in a golden file; a test failure and an empty one when it cannot be read.
std::string ReadGoldenDocument(const std::filesystem::path& path);

}  // namespace a2l::test
