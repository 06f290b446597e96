// SPDX-License-Identifier: MIT
//
// A reader for JSON text that accepts only the form of the document: one value on one line, a blank
// behind every comma and colon and nowhere else, the keys of every object in ascending order of
// their bytes, and no key twice. It accepts all bytes from 0x80 up, because texts may have any
// character set. It is independent of the code that writes JSON.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace a2l::test {

class JsonCheck {
 public:
  /// Says what is wrong with `text` and where. Empty if nothing is wrong.
  static std::string Complaint(std::string_view text) {
    JsonCheck check(text);
    if (check.Document()) return {};
    return std::string(check.complaint_) + " at byte " + std::to_string(check.position_);
  }

 private:
  struct Bracket {
    bool isObject;
    std::optional<std::string> lastKey;
  };

  explicit JsonCheck(std::string_view text) : text_(text) {}

  // The open brackets are kept here and not on the call stack, because there may be any number.
  bool Document() {
    while (true) {
      if (Take('{')) {
        open_.push_back({true, {}});
        if (!Take('}')) {
          if (!Key()) return false;
          continue;
        }
        open_.pop_back();
      } else if (Take('[')) {
        open_.push_back({false, {}});
        if (!Take(']')) continue;
        open_.pop_back();
      } else if (!Scalar()) {
        return false;
      }
      // Behind a value: closing brackets, then the next value or the end.
      while (!open_.empty() && Take(open_.back().isObject ? '}' : ']')) open_.pop_back();
      if (open_.empty()) return position_ == text_.size() || Complain("text behind the value");
      if (!Take(", ")) return Complain("expected a comma or a bracket");
      if (open_.back().isObject && !Key()) return false;
    }
  }

  bool Key() {
    std::string key;
    const std::size_t start = position_;
    if (!String(key)) return false;
    std::optional<std::string>& last = open_.back().lastKey;
    if (last.has_value() && key <= *last) {
      position_ = start;
      return Complain(key == *last ? "the key occurs twice" : "the keys are not in order");
    }
    last = std::move(key);
    return Take(": ") || Complain("expected a colon");
  }

  bool Scalar() {
    std::string ignored;
    if (Peek() == '"') return String(ignored);
    return Take("null") || Take("true") || Take("false") || Number();
  }

  bool Number() {
    Take('-');
    if (!Take('0') && !Digits()) return Complain("expected a value");
    if (Take('.') && !Digits()) return Complain("expected a digit");
    if (Take('e') || Take('E')) {
      if (!Take('+')) Take('-');
      if (!Digits()) return Complain("expected a digit");
    }
    return true;
  }

  bool Digits() {
    const std::size_t start = position_;
    while (Peek() >= '0' && Peek() <= '9') ++position_;
    return position_ > start;
  }

  bool String(std::string& bytes) {
    if (!Take('"')) return Complain("expected a string");
    while (position_ < text_.size()) {
      const char c = text_[position_];
      if (static_cast<unsigned char>(c) < 0x20) return Complain("a control character in a string");
      ++position_;
      if (c == '"') return true;
      if (c != '\\') {
        bytes += c;
      } else if (!Escape(bytes)) {
        return false;
      }
    }
    return Complain("a string that does not end");
  }

  bool Escape(std::string& bytes) {
    constexpr std::string_view kLetters = "\"\\/bfnrt";
    constexpr std::string_view kBytes = "\"\\/\b\f\n\r\t";
    if (Take('u')) return CodePoint(bytes);
    const std::size_t letter = kLetters.find(Peek());
    if (position_ == text_.size() || letter == std::string_view::npos) {
      return Complain("an unknown escape");
    }
    ++position_;
    bytes += kBytes[letter];
    return true;
  }

  bool CodePoint(std::string& bytes) {
    unsigned code = 0;
    for (int i = 0; i < 4; ++i, ++position_) {
      const std::size_t digit = std::string_view("0123456789abcdef").find(Peek());
      if (position_ == text_.size() || digit == std::string_view::npos) {
        return Complain("expected four hexadecimal digits");
      }
      code = code * 16 + static_cast<unsigned>(digit);
    }
    if (code < 0x80) {
      bytes += static_cast<char>(code);
    } else if (code < 0x800) {
      bytes += {static_cast<char>(0xC0U | code >> 6U), static_cast<char>(0x80U | (code & 0x3FU))};
    } else if (code < 0xD800 || code > 0xDFFF) {
      bytes +=
          {static_cast<char>(0xE0U | code >> 12U), static_cast<char>(0x80U | (code >> 6U & 0x3FU)),
           static_cast<char>(0x80U | (code & 0x3FU))};
    } else {
      return Complain("half a character");
    }
    return true;
  }

  // NUL at the end of the text. It never occurs in JSON.
  [[nodiscard]] char Peek() const { return position_ < text_.size() ? text_[position_] : '\0'; }
  bool Take(char c) {
    if (position_ == text_.size() || text_[position_] != c) return false;
    ++position_;
    return true;
  }
  bool Take(std::string_view word) {
    if (!text_.substr(position_).starts_with(word)) return false;
    position_ += word.size();
    return true;
  }
  bool Complain(const char* what) {
    complaint_ = what;
    return false;
  }

  std::string_view text_;
  std::size_t position_ = 0;
  std::vector<Bracket> open_;
  const char* complaint_ = "";
};

}  // namespace a2l::test
