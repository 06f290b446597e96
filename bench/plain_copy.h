// SPDX-License-Identifier: MIT
//
// The physical limit of a conversion: it reads the same bytes, writes as many, and does nothing
// else.
#pragma once

#include <cstddef>
#include <string>

namespace a2l::bench {

/// Reads the file at `from` to its end and writes `size` bytes to a new file at `to`, in pieces of
/// 256 kB, with calls of the system. False if one of them fails.
bool PlainCopy(const std::string& from, const std::string& to, std::size_t size);

}  // namespace a2l::bench
