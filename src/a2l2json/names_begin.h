// SPDX-License-Identifier: MIT
//
// Some of our names are macros elsewhere: BYTE_ORDER in the headers of the C library, GROUP_NAME,
// min and max in those of Windows, and VERSION on the command line of many projects. Each of our
// headers that has such a name sets these macros aside after its includes, and puts them back at
// its end (names_end.h). So neither side notices the other.
//
// Where such a macro is defined, users cannot write the name itself. They can write it with an
// underscore at its end: ElementKind::BYTE_ORDER_, header.VERSION_(). Or they include this file
// after all others, which ends the macros in their file.
//
// There is no #pragma once, because every header includes this again.

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
