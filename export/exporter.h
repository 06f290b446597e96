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
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "elements/blocks/project.h"
#include "elements/properties/identifiers.h"
#include "elements/properties/numbers.h"
#include "elements/properties/texts.h"
#include "export/forms.h"
#include "export/module_table.h"
#include "export/object_table.h"

namespace a2l {

/// What the top level of the document is made of, found in one walk over the upper levels of the
/// tree. Of everything that can occur more than once, the first counts; modules are all kept.
struct DocumentParts {
  const VoA2LElementA2MLVersion* a2mlVersion = nullptr;
  const VoA2LElementASAP2Version* asap2Version = nullptr;
  const VoA2LElementProject* project = nullptr;
  const VoA2LElementHeader* header = nullptr;
  const VoA2LElementVersion* headerVersion = nullptr;
  const VoA2LElementProjectNo* headerProjectNo = nullptr;
  std::vector<const VoA2LElementModule*> modules;

  explicit DocumentParts(const VoA2LElement& root);
};

/// A key as an argument of a template.
struct KeyLiteral {
  std::array<char, KeyText::kBytes> bytes{};
  template <std::size_t kSize>
  consteval KeyLiteral(const char (&text)[kSize]) {  // NOLINT(google-explicit-constructor)
    std::copy_n(text, kSize, bytes.begin());
  }
};
template <KeyLiteral kLiteral>
inline constexpr KeyText kKey{std::string_view(kLiteral.bytes.data())};

template <class Sink>
class Exporter {
 public:
  explicit Exporter(Sink& sink) : sink_(sink) {}

  /// The whole document.
  void Document(const VoA2LElement& root) {
    const DocumentParts parts(root);
    const auto* firstModule = parts.modules.empty() ? nullptr : parts.modules.front();
    sink_.BeginObject();
    Member<"FA2ML_VERSION_UPGRADE_NO">(parts.a2mlVersion, &VoA2LElementA2MLVersion::UPGRADE_NO);
    Member<"FA2ML_VERSION_VERSION_NO">(parts.a2mlVersion, &VoA2LElementA2MLVersion::VERSION_NO);
    Member<"FASAP2_VERSION_UPGRADE_NO">(parts.asap2Version, &VoA2LElementASAP2Version::UPGRADE_NO);
    Member<"FASAP2_VERSION_VERSION_NO">(parts.asap2Version, &VoA2LElementASAP2Version::VERSION_NO);
    sink_.NullMember(kKey<"FBaseA2LName">);  // reserved
    Member<"FDatabaseName">(firstModule, &VoA2LElementModule::NAME);
    sink_.Key(kKey<"FModules">);
    sink_.BeginArray();
    for (const VoA2LElementModule* module : parts.modules) {
      sink_.Item();
      Object(ModuleTable(), *module);
    }
    sink_.EndArray();
    Member<"FProject_HEADER_COMMENT">(parts.header, &VoA2LElementHeader::COMMENT);
    Member<"FProject_HEADER_PROJECT_NO">(parts.headerProjectNo, &VoA2LElementProjectNo::PROJECT_NO);
    Member<"FProject_HEADER_VERSION">(parts.headerVersion, &VoA2LElementVersion::VERSION);
    Member<"FProject_LONG_IDENTIFIER">(parts.project, &VoA2LElementProject::LONG_IDENTIFIER);
    Member<"FProject_Name">(parts.project, &VoA2LElementProject::NAME);
    sink_.EndObject();
  }

 private:
  // A key with a field of an element, null without the element.
  template <KeyLiteral kLiteral, class Element, class Field>
  void Member(const Element* element, Field Element::*field) {
    if (element == nullptr) return sink_.NullMember(kKey<kLiteral>);
    sink_.Key(kKey<kLiteral>);
    if constexpr (std::is_same_v<Field, std::string_view>) {
      sink_.String(element->*field);
    } else {
      sink_.Integer(static_cast<std::int32_t>(element->*field));
    }
  }

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
      text_.assign("F").append(name);
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
