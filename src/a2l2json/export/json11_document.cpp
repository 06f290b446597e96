// SPDX-License-Identifier: MIT
#include "a2l2json/export/json11_document.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "a2l2json/export/exporter.h"

namespace a2l {
namespace {

using json11::Json;

// Builds the document from the inside out: a closed bracket becomes a value of the one around.
class Json11Builder {
 public:
  void BeginObject() { open_.emplace_back(); }
  void BeginArray() { open_.emplace_back(); }
  void EndObject() { Close(Json(std::move(open_.back().object))); }
  void EndArray() { Close(Json(std::move(open_.back().array))); }

  void Key(const ObjectTable& table, std::size_t next, std::size_t row) {
    Absent(table, next, row);
    Key(table.rows[row].key);
  }
  void Absent(const ObjectTable& table, std::size_t next, std::size_t end) {
    for (const Row& row : table.rows.subspan(next, end - next)) {
      Key(row.key);
      if (row.source == Source::Presence) {
        Bool(false);
      } else if (row.absent == Absent::EmptyArray) {
        Add(Json::array());
      } else {
        Null();
      }
    }
  }
  void Key(std::string_view key) {
    open_.back().key = key;
    open_.back().inArray = false;
  }
  void Item() { open_.back().inArray = true; }

  void Null() { Add(Json()); }
  void Bool(bool value) { Add(Json(value)); }
  void Integer(std::int32_t value) { Add(Json(value)); }
  void Real(double value) { Add(Json(value)); }
  void String(std::string_view text) { Add(Json(std::string(text))); }

  Json Take() { return std::move(document_); }

 private:
  struct Bracket {
    Json::object object;
    Json::array array;
    std::string key;
    bool inArray = false;
  };

  void Close(Json value) {
    open_.pop_back();
    Add(std::move(value));
  }

  void Add(Json value) {
    if (open_.empty()) {
      document_ = std::move(value);
    } else if (Bracket& bracket = open_.back(); bracket.inArray) {
      bracket.array.push_back(std::move(value));
    } else {
      bracket.object.emplace(bracket.key, std::move(value));
    }
  }

  std::vector<Bracket> open_;
  Json document_;
};

}  // namespace

json11::Json ToJson11(const VoA2LElement& root) {
  Json11Builder builder;
  Exporter(builder).Document(root);
  return builder.Take();
}

}  // namespace a2l
