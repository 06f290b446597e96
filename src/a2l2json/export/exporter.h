// SPDX-License-Identifier: MIT
//
// The walk from the tree to the JSON document. It knows the order of keys and values, and hands
// them to a sink, which knows how JSON is made. A sink has:
//
//   BeginObject, EndObject, BeginArray, EndArray
//   Key(key)       before each value of an object: a KeyText, or text from the file
//   NullMember(key)  a member without a value
//   Item()         before each value of an array
//   Null, Bool, Integer, Real, String    the values
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "a2l2json/export/document_table.h"
#include "a2l2json/export/forms.h"
#include "a2l2json/export/object_table.h"

namespace a2l {

template <class Sink>
class Exporter {
 public:
  explicit Exporter(Sink& sink) : sink_(sink) {}

  /// The whole document.
  void Document(const VoA2LElement& root) { Object(DocumentTable(), root); }

 private:
  void Object(const ObjectTable& table, const VoA2LElement& element) {
    const Places places(places_, table, element);
    sink_.BeginObject();
    for (std::size_t i = 0; i < table.rows.size(); ++i) {
      WriteRow(table.rows[i], table.keys[i], element, places.First(i), places);
    }
    sink_.EndObject();
  }

  // The children of one element, sorted to the rows of its table in one pass: per row the first
  // child of its kinds, and per child the next one of the same row. The arrays of all objects
  // that are being written lie in one stack.
  class Places {
   public:
    Places(std::vector<std::uint32_t>& stack, const ObjectTable& table, const VoA2LElement& element)
        : stack_(stack),
          first_(stack.size()),
          next_(first_ + table.rows.size()),
          element_(element) {
      const List<VoA2LElement*>& children = element.children;
      stack.resize(next_ + children.size());
      std::fill(stack.begin() + static_cast<std::ptrdiff_t>(first_),
                stack.begin() + static_cast<std::ptrdiff_t>(next_), 0U);
      for (std::size_t i = children.size(); i-- > 0;) {
        const std::uint8_t row = table.rowOfKind[KindIndex(children[i]->kind)];
        if (row == 0) continue;
        std::uint32_t& first = stack[first_ + row - 1];
        stack[next_ + i] = first;
        first = static_cast<std::uint32_t>(i + 1);
      }
    }
    Places(const Places&) = delete;
    Places& operator=(const Places&) = delete;
    ~Places() { stack_.resize(first_); }

    // Positions count from 1; 0 is none.
    [[nodiscard]] std::uint32_t First(std::size_t row) const { return stack_[first_ + row]; }
    [[nodiscard]] std::uint32_t Next(std::uint32_t position) const {
      return stack_[next_ + position - 1];
    }
    [[nodiscard]] const VoA2LElement& Child(std::uint32_t position) const {
      return *element_.children[position - 1];
    }

   private:
    std::vector<std::uint32_t>& stack_;
    std::size_t first_;
    std::size_t next_;
    const VoA2LElement& element_;
  };

  void WriteRow(const Row& row, const KeyText& key, const VoA2LElement& element,
                std::uint32_t first, const Places& places) {
    switch (row.source) {
      case Source::Element:
        sink_.Key(key);
        WriteValue(row.form, element);
        return;
      case Source::Presence:
        sink_.Key(key);
        sink_.Bool(first != 0);
        return;
      case Source::FirstChild:
        if (first == 0) return WriteAbsent(row, key);
        sink_.Key(key);
        WriteValue(places.Child(first).kind == row.kind ? row.form : row.otherForm,
                   places.Child(first));
        return;
      case Source::Children:
        if (first == 0) return WriteAbsent(row, key);
        sink_.Key(key);
        sink_.BeginArray();
        for (std::uint32_t position = first; position != 0; position = places.Next(position)) {
          sink_.Item();
          WriteValue(row.form, places.Child(position));
        }
        sink_.EndArray();
        return;
      case Source::Grandchildren:
        if (first == 0) return WriteAbsent(row, key);
        sink_.Key(key);
        sink_.BeginArray();
        for (std::uint32_t position = first; position != 0; position = places.Next(position)) {
          for (const VoA2LElement* grandchild : places.Child(position).children) {
            if (grandchild->kind != row.grandchild) continue;
            sink_.Item();
            WriteValue(row.form, *grandchild);
          }
        }
        sink_.EndArray();
        return;
      case Source::Found:
        const VoA2LElement* found = row.find(element);
        if (found == nullptr) return WriteAbsent(row, key);
        sink_.Key(key);
        WriteValue(row.form, *found);
        return;
    }
  }

  void WriteAbsent(const Row& row, const KeyText& key) {
    switch (row.absent) {
      case Absent::Null:
        sink_.NullMember(key);
        return;
      case Absent::EmptyArray:
        sink_.Key(key);
        sink_.BeginArray();
        sink_.EndArray();
        return;
      case Absent::Omit:
        return;
    }
  }

  void WriteValue(const Form& form, const VoA2LElement& element) {
    std::visit([&](const auto& take) { Write(take, element); }, form);
  }

  void Write(std::monostate /*nothing*/, const VoA2LElement& /*element*/) { sink_.Null(); }
  void Write(TextForm take, const VoA2LElement& element) { sink_.String(take(element)); }
  void Write(WordForm form, const VoA2LElement& element) {
    sink_.String(form.words->ToText(form.code(element)));
  }
  void Write(BoolForm take, const VoA2LElement& element) { sink_.Bool(take(element)); }
  void Write(IntegerForm take, const VoA2LElement& element) { sink_.Integer(take(element)); }
  void Write(RealForm take, const VoA2LElement& element) { sink_.Real(take(element)); }
  void Write(ObjectForm table, const VoA2LElement& element) { Object(*table, element); }

  void Write(AddressForm take, const VoA2LElement& element) {
    const HexText text(take(element).value);
    sink_.String(text.View());
  }

  void Write(BuiltTextForm build, const VoA2LElement& element) {
    text_.clear();
    build(element, text_);
    sink_.String(text_);
  }

  void Write(TextArrayForm take, const VoA2LElement& element) {
    WriteArray(take(element), [this](std::string_view item) { sink_.String(item); });
  }
  void Write(RealArrayForm take, const VoA2LElement& element) {
    WriteArray(take(element), [this](double item) { sink_.Real(item); });
  }
  void Write(IntegerArrayForm take, const VoA2LElement& element) {
    WriteArray(take(element),
               [this](std::uint32_t item) { sink_.Integer(static_cast<std::int32_t>(item)); });
  }
  template <class Items, class WriteItem>
  void WriteArray(const Items& items, WriteItem writeItem) {
    sink_.BeginArray();
    for (const auto& item : items) {
      sink_.Item();
      writeItem(item);
    }
    sink_.EndArray();
  }

  // The names, which come from the file, are the keys: in their order, and each once, with the
  // value that it has first.
  void Write(NamedValuesForm take, const VoA2LElement& element) {
    const NamedValues pairs = take(element);
    std::vector<std::size_t> order(std::min(pairs.names.size(), pairs.values.size()));
    for (std::size_t i = 0; i < order.size(); ++i) order[i] = i;
    std::ranges::stable_sort(order, {}, [&](std::size_t i) { return pairs.names[i]; });
    sink_.BeginObject();
    for (std::size_t i = 0; i < order.size(); ++i) {
      const std::string_view name = pairs.names[order[i]];
      if (i > 0 && name == pairs.names[order[i - 1]]) continue;
      text_.assign(1, 'F').append(name);
      sink_.Key(text_);
      sink_.String(pairs.values[order[i]]);
    }
    sink_.EndObject();
  }

  Sink& sink_;
  std::vector<std::uint32_t> places_;
  std::string text_;
};

}  // namespace a2l
