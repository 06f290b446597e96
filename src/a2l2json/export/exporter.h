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
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

#include "a2l2json/export/document_table.h"
#include "a2l2json/export/forms.h"
#include "a2l2json/export/object_table.h"
#include "a2l2json/export/places.h"
#include "a2l2json/text/bytes.h"

namespace a2l {

template <class Sink>
class Exporter {
 public:
  explicit Exporter(Sink& sink) : sink_(sink) {}

  /// The whole document.
  void Document(const VoA2LElement& root) { Object(DocumentTable(), root); }

  /// The function that writes one row of a table, compiled for that row.
  template <const auto& kRows, std::size_t kIndex>
  static std::size_t WriteRowOf(Exporter& exporter, const ObjectTable& table, std::size_t next,
                                const VoA2LElement& element, const Places& places) {
    return exporter.WriteRow(table, kRows[kIndex], kIndex, next, element, places);
  }

 private:
  // An object stands in an object as deep as the tables say, whatever the file holds.
  // NOLINTBEGIN(misc-no-recursion)

  // Only the rows that have a value are visited; what stands between them is written with the next
  // one, or at the end.
  void Object(const ObjectTable& table, const VoA2LElement& element) {
    const Places places(places_, table, element);
    sink_.BeginObject();
    std::size_t next = 0;  // the first row that is not yet written
    places.Rows().ForEach([&](std::size_t row) {
      if constexpr (std::is_same_v<Sink, JsonText>) {
        next = table.writers[row](*this, table, next, element, places);
      } else {
        next = WriteRow(table, table.rows[row], row, next, element, places);
      }
    });
    sink_.Absent(table, next, table.rows.size());
    sink_.EndObject();
  }

  // Writes a row that has a value, and those from `next` on in front of it, which have none. Gives
  // the first row that is not yet written. Where the row is a constant, little of this is left.
  [[gnu::always_inline]] std::size_t WriteRow(const ObjectTable& table, const Row& row,
                                              std::size_t index, std::size_t next,
                                              const VoA2LElement& element, const Places& places) {
    const std::uint32_t first = TakesChildren(row) ? places.First(index) : 0;
    switch (row.source) {
      case Source::Element:
        sink_.Key(table, next, index);
        WriteValue(row.form, element);
        break;
      case Source::Presence:
        sink_.Key(table, next, index);
        sink_.Bool(true);
        break;
      case Source::FirstChild:
        if (first == 0) {  // no key then
          sink_.Absent(table, next, index);
          break;
        }
        sink_.Key(table, next, index);
        if (row.otherKind == KIND_ROOT || places.Child(first).kind == row.kind) {
          WriteValue(row.form, places.Child(first));
        } else {
          WriteValue(row.otherForm, places.Child(first));
        }
        break;
      case Source::Children:
        if (first == 0) {
          sink_.Absent(table, next, index);
          break;
        }
        sink_.Key(table, next, index);
        sink_.BeginArray();
        for (std::uint32_t position = first; position != 0;) {
          const std::uint32_t following = places.Next(position);
          if (following != 0) bytes::Prefetch(&places.Child(following), kBytesOfObject);
          sink_.Item();
          WriteValue(row.form, places.Child(position));
          position = following;
        }
        sink_.EndArray();
        break;
      case Source::Grandchildren:
        sink_.Key(table, next, index);
        sink_.BeginArray();
        for (std::uint32_t position = first; position != 0; position = places.Next(position)) {
          for (const VoA2LElement* grandchild : places.Child(position).children) {
            if (grandchild->kind != row.grandchild) continue;
            sink_.Item();
            WriteValue(row.form, *grandchild);
          }
        }
        sink_.EndArray();
        break;
      case Source::Found:
        const VoA2LElement* found = row.find(element);
        if (found == nullptr) return next;
        sink_.Key(table, next, index);
        WriteValue(row.form, *found);
        break;
    }
    return index + 1;
  }

  // A usual object with its children, which mostly stand behind it. When an object is written, most
  // of it has left the processor's cache since it was read, so that the next one is asked for while
  // this one is written.
  static constexpr std::size_t kBytesOfObject = 768;

  // Of the kinds of forms, calls that which it is.
  [[gnu::always_inline]] void WriteValue(const Form& form, const VoA2LElement& element) {
    [&]<std::size_t... kKinds>(std::index_sequence<kKinds...>) __attribute__((always_inline)) {
      static_cast<void>(
          ((form.index() == kKinds && (Write(*std::get_if<kKinds>(&form), element), true)) || ...));
    }
    (std::make_index_sequence<std::variant_size_v<Form>>());
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
  // NOLINTEND(misc-no-recursion)

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
  Places::Stack places_;
  std::string text_;
};

}  // namespace a2l
