// SPDX-License-Identifier: MIT
//
// Puts back the macros that names_begin.h has set aside.

#pragma pop_macro("min")
#pragma pop_macro("max")
#pragma pop_macro("VERSION")
#pragma pop_macro("GROUP_NAME")
#pragma pop_macro("BYTE_ORDER")
