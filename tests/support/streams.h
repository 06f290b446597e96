// SPDX-License-Identifier: MIT
//
// Streams that behave badly, for tests.
#pragma once

#include <algorithm>
#include <cstddef>
#include <ios>
#include <stdexcept>
#include <streambuf>
#include <string>
#include <utility>

namespace a2l::test {

/// Gives a text in pieces of a few bytes, even if more are asked for.
class DrippingBuffer : public std::streambuf {
 public:
  DrippingBuffer(std::string text, std::size_t piece) : text_(std::move(text)), piece_(piece) {}

 protected:
  int_type underflow() override {
    const std::size_t size = std::min(piece_, text_.size() - given_);
    if (size == 0) return traits_type::eof();
    char* const begin = text_.data() + given_;
    setg(begin, begin, begin + size);
    given_ += size;
    return traits_type::to_int_type(*begin);
  }

 private:
  std::string text_;
  std::size_t piece_;
  std::size_t given_ = 0;
};

/// Gives the first bytes of a text, then fails like a broken device.
class FailingBuffer : public std::streambuf {
 public:
  FailingBuffer(std::string text, std::size_t good) : text_(std::move(text)), good_(good) {}

 protected:
  int_type underflow() override {
    if (gptr() != nullptr || good_ == 0) throw std::ios_base::failure("device error");
    setg(text_.data(), text_.data(), text_.data() + good_);
    return traits_type::to_int_type(text_.front());
  }

 private:
  std::string text_;
  std::size_t good_;
};

}  // namespace a2l::test
