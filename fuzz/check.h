// SPDX-License-Identifier: MIT
//
// The checks of the fuzz targets. In every kind of build, a failed check says what it saw and ends
// the process. A fuzzer, and a test that replays its findings, takes that as a finding.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

namespace a2l::fuzz {

/// The input of a fuzz target, cut to `mostBytes`: some checks take quadratic time.
inline std::string_view Input(const std::uint8_t* data, std::size_t size, std::size_t mostBytes) {
  return {reinterpret_cast<const char*>(data), std::min(size, mostBytes)};
}

/// `text` in one line, with \xNN for bytes that are not printable.
inline std::string Shown(std::string_view text) {
  std::string shown;
  for (const char c : text) {
    if (c >= ' ' && c <= '~' && c != '\\') {
      shown += c;
    } else {
      constexpr std::string_view kDigits = "0123456789ABCDEF";
      const auto byte = static_cast<unsigned char>(c);
      shown += {'\\', 'x', kDigits[byte / 16U], kDigits[byte % 16U]};
    }
  }
  return shown;
}

[[noreturn]] inline void Fail(const std::string& what) {
  std::fprintf(stderr, "check failed: %s\n", what.c_str());
  std::abort();
}

inline void Check(bool ok, const char* what) {
  if (!ok) Fail(what);
}

/// Checks that two texts are the same. If not, shows the first place at which they differ.
inline void CheckSame(std::string_view actual, std::string_view expected, const char* what) {
  if (actual == expected) return;
  const auto parting = std::ranges::mismatch(actual, expected);
  const auto at = static_cast<std::size_t>(parting.in1 - actual.begin());
  const std::size_t from = at - std::min<std::size_t>(at, 60);
  Fail(std::string(what) + " differs at byte " + std::to_string(at) + "\n  actual:   " +
       Shown(actual.substr(from, 160)) + "\n  expected: " + Shown(expected.substr(from, 160)));
}

inline void CheckSame(std::size_t actual, std::size_t expected, const char* what) {
  if (actual != expected) {
    Fail(std::string(what) + " is " + std::to_string(actual) + " and not " +
         std::to_string(expected));
  }
}

}  // namespace a2l::fuzz
