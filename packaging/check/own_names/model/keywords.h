// SPDX-License-Identifier: MIT
//
// A header of the user's own program that happens to have the name of one of the library's.
#pragma once

inline int OwnKeywords() { return 1; }
