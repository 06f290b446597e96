// SPDX-License-Identifier: MIT
//
// The physical limit of a conversion: the same bytes in and as many bytes out, and nothing else.
#pragma once

#include <cstddef>
#include <string>

namespace a2l::bench {

/// Reads the file at `from` to its end and writes `size` bytes to a new file at `to`, in pieces of
/// 256 kB and by the system's own calls. False when one of these fails.
bool PlainCopy(const std::string& from, const std::string& to, std::size_t size);

}  // namespace a2l::bench
