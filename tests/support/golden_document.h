// SPDX-License-Identifier: MIT
//
// The documents of the golden cases, in a form whose differences can be read. A document is one
// line. Its golden file has a line feed before every key (before the blank in front of it, so that
// no line ends in a blank) and one at the end. A new key in an object is one more line.
//
// The line feeds have no meaning and are dropped before the comparison. That loses nothing, because
// a document never holds a line feed: in texts and in keys it is written as \n. All other bytes
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

/// The document in a golden file. If it cannot be read, the test fails, and the document is empty.
std::string ReadGoldenDocument(const std::filesystem::path& path);

}  // namespace a2l::test
