// SPDX-License-Identifier: MIT
//
// Some of our names are macros elsewhere: BYTE_ORDER in the headers of the C library, GROUP_NAME,
// min and max in those of Windows, and VERSION on the command line of many projects. Each header of
// ours that has such a name sets the macros aside behind all that it includes, and puts them back
// at its end (names_end.h), so that neither side notices the other.
//
// In a file where such a macro is defined, a user's code cannot say the name as it stands. It can
// say it with an underscore: ElementKind::BYTE_ORDER_, header.VERSION_(). Or it includes this file
// behind all others, which ends the macros there.
//
// Every header includes this anew, hence no #pragma once.

#pragma push_macro("BYTE_ORDER")
#undef BYTE_ORDER
#pragma push_macro("GROUP_NAME")
#undef GROUP_NAME
#pragma push_macro("VERSION")
#undef VERSION
#pragma push_macro("max")
#undef max
#pragma push_macro("min")
#undef min
