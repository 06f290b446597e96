// SPDX-License-Identifier: MIT
//
// The files that a2lmend reads and writes.
#pragma once

#include <string>
#include <string_view>

#include "a2l2json/mend/include_reader.h"
#include "app/mend/arguments.h"

namespace a2l {

/// What kept something from being done, in a few words; empty where it was done.
using Problem = std::string;

/// All bytes of the file to mend, or of standard input for "-", in UTF-8 if the arguments give an
/// encoding. A file that can be no A2L file at all, as one without a byte or one that is
/// compressed, is a problem as well.
Problem ReadInput(const MendArguments& arguments, std::string& bytes);

/// Writes a file beside `name` and gives it that name when it is complete, so that there is all of
/// it or what there was before. To standard output for "-".
Problem WriteOutput(const std::string& name, std::string_view bytes);

/// How the arguments want included files to be read.
IncludeOptions IncludeOptionsOf(const MendArguments& arguments);

}  // namespace a2l
