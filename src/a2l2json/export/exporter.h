// SPDX-License-Identifier: MIT
//
// The walk from the tree to the JSON document. It knows the order of keys and values, and hands
// them to a sink, which knows how JSON is made. A sink has:
//
//   BeginObject, EndObject, BeginArray, EndArray
//   Key(table, next, row)     before the value of a row: its key, and the members in front of it
//   Absent(table, next, end)  the members of rows from `next` on that have no value
//   Key(key)                  before each value of an object whose keys come from the file
//   Item()                    before each value of an array
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
  struct Stack {
    std::vector<std::uint32_t> places;
    std::size_t used = 0;
  };

  // Only the rows that have a value are visited; what stands between them is written with the next
  // one, or at the end.
  void Object(const ObjectTable& table, const VoA2LElement& element) {
    const Places places(places_, table, element);
    sink_.BeginObject();
    std::size_t next = 0;  // the first row that is not yet written
    places.Rows().ForEach([&](std::size_t row) { WriteRow(table, row, next, element, places); });
    sink_.Absent(table, next, table.rows.size());
    sink_.EndObject();
  }

  // The children of one element, sorted to the rows of its table in one pass: per row the first
  // child of its kinds, and per child the next one of the same row. The arrays of all objects
  // that are being written lie in one stack.
  class Places {
   public:
    Places(Stack& stack, const ObjectTable& table, const VoA2LElement& element)
        : stack_(stack),
          rows_(table.always),
          first_(stack.used),
          next_(first_ + table.rows.size()),
          element_(element) {
      const List<VoA2LElement*>& children = element.children;
      stack.used = next_ + children.size();
      if (stack.places.size() < stack.used) stack.places.resize(stack.used * 2);
      for (std::size_t i = children.size(); i-- > 0;) {
        const std::uint8_t row = table.rowOfKind[KindIndex(children[i]->kind)];
        if (row == 0) continue;
        stack.places[next_ + i] = First(row - 1U);
        stack.places[first_ + row - 1] = static_cast<std::uint32_t>(i + 1);
        rows_.Add(row - 1U);
        hasChild_.Add(row - 1U);
      }
    }
    Places(const Places&) = delete;
    Places& operator=(const Places&) = delete;
    ~Places() { stack_.used = first_; }

    // The rows to look at.
    [[nodiscard]] const RowSet& Rows() const { return rows_; }
    // Positions count from 1; 0 is none.
    [[nodiscard]] std::uint32_t First(std::size_t row) const {
      return hasChild_.Contains(row) ? stack_.places[first_ + row] : 0;
    }
    [[nodiscard]] std::uint32_t Next(std::uint32_t position) const {
      return stack_.places[next_ + position - 1];
    }
    [[nodiscard]] const VoA2LElement& Child(std::uint32_t position) const {
      return *element_.children[position - 1];
    }

   private:
    Stack& stack_;
    RowSet rows_;
    RowSet hasChild_;
    std::size_t first_;
    std::size_t next_;
    const VoA2LElement& element_;
  };

  // Writes a row that has a value, and those from `next` on in front of it, which have none.
  void WriteRow(const ObjectTable& table, std::size_t index, std::size_t& next,
                const VoA2LElement& element, const Places& places) {
    const Row& row = table.rows[index];
    const auto key = [&] {
      sink_.Key(table, next, index);
      next = index + 1;
    };
    const std::uint32_t first = TakesChildren(row) ? places.First(index) : 0;
    switch (row.source) {
      case Source::Element:
        key();
        WriteValue(row.form, element);
        return;
      case Source::Presence:
        key();
        sink_.Bool(true);
        return;
      case Source::FirstChild:
        if (first == 0) return LeaveOut(table, index, next);
        key();
        WriteValue(places.Child(first).kind == row.kind ? row.form : row.otherForm,
                   places.Child(first));
        return;
      case Source::Children:
        if (first == 0) return LeaveOut(table, index, next);
        key();
        sink_.BeginArray();
        for (std::uint32_t position = first; position != 0; position = places.Next(position)) {
          sink_.Item();
          WriteValue(row.form, places.Child(position));
        }
        sink_.EndArray();
        return;
      case Source::Grandchildren:
        key();
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
        if (found == nullptr) return;
        key();
        WriteValue(row.form, *found);
        return;
    }
  }

  // A row without a value, and without a key then.
  void LeaveOut(const ObjectTable& table, std::size_t index, std::size_t& next) {
    sink_.Absent(table, next, index);
    next = index + 1;
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
  Stack places_;
  std::string text_;
};

}  // namespace a2l
