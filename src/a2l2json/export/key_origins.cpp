// SPDX-License-Identifier: MIT
#include "a2l2json/export/key_origins.h"

#include <algorithm>
#include <stdexcept>
#include <variant>

#include "a2l2json/export/json_schema.h"

namespace a2l {
namespace {

// Where a value comes from, for the keys whose rows cannot tell it.
struct Origin {
  std::string_view object;  // empty for all that have the key
  std::string_view key;
  std::string_view text;
};
constexpr Origin kOrigins[] = {
    {"", "FISVALID", "false where the reader found [wrong parameters](#fisvalid)"},
    {"document", "FA2ML_VERSION_UPGRADE_NO", "`A2ML_VERSION`, second parameter"},
    {"document", "FA2ML_VERSION_VERSION_NO", "`A2ML_VERSION`, first parameter"},
    {"document", "FASAP2_VERSION_UPGRADE_NO", "`ASAP2_VERSION`, second parameter"},
    {"document", "FASAP2_VERSION_VERSION_NO", "`ASAP2_VERSION`, first parameter"},
    {"document", "FDatabaseName", "name of the first `MODULE`"},
    {"document", "FProject_HEADER_COMMENT", "`HEADER`, parameter"},
    {"document", "FProject_HEADER_PROJECT_NO", "`PROJECT_NO` in the `HEADER`"},
    {"document", "FProject_HEADER_VERSION", "`VERSION` in the `HEADER`"},
    {"document", "FProject_LONG_IDENTIFIER", "`PROJECT`, second parameter"},
    {"document", "FProject_Name", "`PROJECT`, first parameter"},
    {"MODULE", "FA2ML", "`A2ML`, all that stands in it"},
    {"IF_DATA", "FIF_DATA", "all that follows the name"},
    {"IF_DATA", "FNAME", "the first word"},
    {"ANNOTATION", "FANNOTATION_TEXT", "`ANNOTATION_TEXT`, [its texts put together](#annotations)"},
    {"AXIS_PTS", "FDEPOSIT", "parameter: [the record layout](#fdeposit)"},
    {"CHARACTERISTIC", "FDEPOSIT", "parameter: [the record layout](#fdeposit)"},
    {"MEASUREMENT", "FACCURACY", "[always 0](#fresolution-and-faccuracy)"},
    {"MEASUREMENT", "FRESOLUTION", "[always 1](#fresolution-and-faccuracy)"},
    {"BIT_OPERATION", "FSIGN_EXTEND", "`SIGN_EXTEND`: the keyword itself"},
    {"FUNCTION", "FAR_PROTOTYPE_OF", "`AR_PROTOTYPE_OF` in an `AR_COMPONENT`"},
    {"RECORD_LAYOUT", "FALIGNMENT_WORD",
     "`ALIGNMENT_WORD` or `IDENTIFICATION`, [whichever comes first]"
     "(#fidentification-and-falignment_word)"},
    {"FNC_VALUES", "FADDRESS_TYPE", "parameter: [the addressing](#fnc_values-and-freserved)"},
    {"RESERVED", "FDATA_TYPE", "parameter: [the data size](#fnc_values-and-freserved)"},
    {"TRANSFORMER", "FINVERSE_TRANSFORMER", "[always empty](#transformers)"},
    {"TRANSFORMER", "FTIMEOUT", "[always 0](#transformers)"},
    {"TRANSFORMER", "FTRIGGER", "[always empty](#transformers)"},
    {"COMPU_TAB", "FIN_VAL", "rows: first value"},
    {"COMPU_TAB", "FOUT_VAL", "rows: second value"},
    {"COMPU_VTAB", "FIN_VAL", "rows: the value"},
    {"COMPU_VTAB", "FOUT_VAL", "rows: the text"},
    {"COMPU_VTAB_RANGE", "FIN_VAL_MAX", "rows: second value"},
    {"COMPU_VTAB_RANGE", "FIN_VAL_MIN", "rows: first value"},
    {"COMPU_VTAB_RANGE", "FOUT_VAL", "rows: the text"},
    {"USER_RIGHTS", "FREF_GROUP", "all `REF_GROUP`, [put together](#joined-texts)"},
    {"MOD_PAR", "FADDR_EPK", "all `ADDR_EPK`, [in decimal](#addresses)"},
    {"VAR_CHARACTERISTIC", "FVAR_ADDRESS",
     "`VAR_ADDRESS`, [only as the first block](#fvar_address), [in decimal](#addresses)"},
};

const Origin* FindOrigin(std::string_view object, std::string_view key) {
  const auto* const origin = std::ranges::find_if(kOrigins, [&](const Origin& candidate) {
    return candidate.key == key && (candidate.object.empty() || candidate.object == object);
  });
  return origin != std::end(kOrigins) ? origin : nullptr;
}

std::string Code(std::string_view text) { return std::string("`").append(text).append("`"); }

}  // namespace

std::string OriginOf(std::string_view object, const Row& row) {
  if (const Origin* origin = FindOrigin(object, row.key); origin != nullptr) {
    return std::string(origin->text);
  }
  switch (row.source) {
    case Source::Element:
      if (std::holds_alternative<std::monostate>(row.form)) return "[nothing](#always-null)";
      return "parameter";
    case Source::Presence:
    case Source::FirstChild:
      return Code(KindToKeyword(row.kind));
    case Source::Children:
      return "all " + Code(KindToKeyword(row.kind));
    case Source::Grandchildren:
      return "all " + Code(KindToKeyword(row.grandchild));
    case Source::Found:
      break;
  }
  throw std::logic_error("where does it come from: " + std::string(object) + " " +
                         std::string(row.key));
}

std::string_view AbsentValue(const Row& row) {
  if (row.source == Source::Presence) return "false";
  if (row.source == Source::Element) return "";
  switch (row.absent) {
    case Absent::Null:
      return "null";
    case Absent::EmptyArray:
      return "[]";
    case Absent::Omit:
      return "no key";
  }
  return "";
}

std::vector<std::string> OriginsWithoutKey() {
  std::vector<const Origin*> used;
  for (const DocumentObject& object : DocumentObjects()) {
    for (const Row& row : object.table->rows) used.push_back(FindOrigin(object.Name(), row.key));
  }
  std::vector<std::string> unused;
  for (const Origin& origin : kOrigins) {
    if (std::ranges::find(used, &origin) == used.end()) {
      unused.push_back(std::string(origin.object) + " " + std::string(origin.key));
    }
  }
  return unused;
}

bool IsNeverRead(const WordTable& table, const Word& word) {
  return table.Find(word.text) != &word;
}

}  // namespace a2l
