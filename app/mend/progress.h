// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstddef>
#include <iostream>
#include <string>

namespace a2l {

/// A line on standard error that tells how far the work is, from its first second on.
class Progress {
 public:
  Progress(bool isShown, std::size_t total) : isShown_(isShown), total_(total) {}

  void Tell(std::size_t done) {
    const auto now = std::chrono::steady_clock::now();
    if (!isShown_ || total_ == 0 || now - told_ < std::chrono::seconds(1)) return;
    told_ = now;
    std::cerr << "\ra2lmend: " << done * 100 / total_ << " %" << std::flush;
    hasLine_ = true;
  }

  /// Takes the line away, for what else is to be printed.
  void Clear() {
    if (hasLine_) std::cerr << "\r                 \r" << std::flush;
    hasLine_ = false;
  }

 private:
  bool isShown_;
  std::size_t total_;
  bool hasLine_ = false;
  std::chrono::steady_clock::time_point told_ = std::chrono::steady_clock::now();
};

}  // namespace a2l
