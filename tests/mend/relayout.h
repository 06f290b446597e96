// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tests/generator/random.h"

namespace a2l::test {

/// The words of a text, texts in quotes among them; comments are not.
std::vector<std::string_view> WordsOf(std::string_view text);

/// The same words, laid out anew in a way that the ASAP2 standard allows, picked by chance: on one
/// line, a word per line, with tabs, with CRLF, with comments between any two words, or all of
/// that mixed. Texts stay as they are; interface data are words like all others.
std::string LaidOutAnew(std::string_view text, Random& random);

}  // namespace a2l::test
