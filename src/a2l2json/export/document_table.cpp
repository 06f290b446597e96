// SPDX-License-Identifier: MIT
#include "a2l2json/export/document_table.h"

#include "a2l2json/elements/blocks/project.h"
#include "a2l2json/elements/blocks/raw.h"
#include "a2l2json/elements/properties/identifiers.h"
#include "a2l2json/elements/properties/numbers.h"
#include "a2l2json/elements/properties/texts.h"
#include "a2l2json/export/tables/characteristic.h"
#include "a2l2json/export/tables/conversion.h"
#include "a2l2json/export/tables/functions.h"
#include "a2l2json/export/tables/instance.h"
#include "a2l2json/export/tables/measurement.h"
#include "a2l2json/export/tables/module_parameters.h"
#include "a2l2json/export/tables/record_layout.h"
#include "a2l2json/export/tables/shared.h"
#include "a2l2json/export/tables/variant_coding.h"

namespace a2l {
namespace tables {
namespace {

constexpr Row kModuleRows[] = {
    {.key = "FA2ML",
     .source = Source::FirstChild,
     .kind = Kind::A2ML,
     .form = Value<&VoA2LElementA2ML::A2ML>()},
    Children("FAXIS_PTS", Kind::AXIS_PTS, kAxisPts),
    Children("FBLOB", Kind::BLOB, kBlob),
    Children("FCHARACTERISTIC", Kind::CHARACTERISTIC, kCharacteristic),
    Children("FCOMPU_METHOD", Kind::COMPU_METHOD, kCompuMethod),
    Children("FCOMPU_TAB", Kind::COMPU_TAB, kCompuTab),
    Children("FCOMPU_VTAB", Kind::COMPU_VTAB, kCompuVtab),
    Children("FCOMPU_VTAB_RANGE", Kind::COMPU_VTAB_RANGE, kCompuVtabRange),
    ChildObject("FFRAME", Kind::FRAME, kFrame),
    Children("FFUNCTION", Kind::FUNCTION, kFunction),
    Children("FGROUP", Kind::GROUP, kGroup),
    Children("FIF_DATA", Kind::IF_DATA, kIfData),
    Children("FINSTANCE", Kind::INSTANCE, kInstance),
    Field("FLONG_IDENTIFIER", Value<&VoA2LElementModule::LONG_IDENTIFIER>()),
    Children("FMEASUREMENT", Kind::MEASUREMENT, kMeasurement),
    ChildObject("FMOD_COMMON", Kind::MOD_COMMON, kModCommon),
    ChildObject("FMOD_PAR", Kind::MOD_PAR, kModPar),
    Field("FNAME", Value<&VoA2LElementModule::NAME>()),
    Children("FRECORD_LAYOUT", Kind::RECORD_LAYOUT, kRecordLayout),
    Children("FTRANSFORMER", Kind::TRANSFORMER, kTransformer),
    Children("FTYPEDEF_AXIS", Kind::TYPEDEF_AXIS, kTypedefAxis),
    Children("FTYPEDEF_BLOB", Kind::TYPEDEF_BLOB, kTypedefBlob),
    Children("FTYPEDEF_CHARACTERISTIC", Kind::TYPEDEF_CHARACTERISTIC, kTypedefCharacteristic),
    Children("FTYPEDEF_MEASUREMENT", Kind::TYPEDEF_MEASUREMENT, kTypedefMeasurement),
    Children("FTYPEDEF_STRUCTURE", Kind::TYPEDEF_STRUCTURE, kTypedefStructure),
    Children("FUNIT", Kind::UNIT, kUnit),
    Children("FUSER_RIGHTS", Kind::USER_RIGHTS, kUserRights),
    ChildObject("FVARIANT_CODING", Kind::VARIANT_CODING, kVariantCoding),
};
constexpr ObjectTable kModule = MakeTable<kModuleRows>();

// The first element, in the order of the file, that a path of kinds leads to from `element`.
template <ElementKind kKind, ElementKind... kRest>
const Element* FindFirst(const Element& element) {
  for (const Element* child : element.children) {
    if (child->kind != kKind) continue;
    if constexpr (sizeof...(kRest) == 0) {
      return child;
    } else if (const Element* found = FindFirst<kRest...>(*child); found != nullptr) {
      return found;
    }
  }
  return nullptr;
}

// A field of that element.
template <auto kMember, ElementKind... kPath>
constexpr Row FirstField(std::string_view key) {
  return Found(key, FindFirst<kPath...>, Value<kMember>());
}

// Of a second project or header, what the first one lacks counts; modules are all kept.
constexpr Row kDocumentRows[] = {
    FirstField<&VoA2LElementA2MLVersion::UPGRADE_NO, Kind::A2ML_VERSION>(
        "FA2ML_VERSION_UPGRADE_NO"),
    FirstField<&VoA2LElementA2MLVersion::VERSION_NO, Kind::A2ML_VERSION>(
        "FA2ML_VERSION_VERSION_NO"),
    FirstField<&VoA2LElementASAP2Version::UPGRADE_NO, Kind::ASAP2_VERSION>(
        "FASAP2_VERSION_UPGRADE_NO"),
    FirstField<&VoA2LElementASAP2Version::VERSION_NO, Kind::ASAP2_VERSION>(
        "FASAP2_VERSION_VERSION_NO"),
    Never("FBaseA2LName"),  // reserved
    FirstField<&VoA2LElementModule::NAME, Kind::PROJECT, Kind::MODULE>("FDatabaseName"),
    Grandchildren("FModules", Kind::PROJECT, Kind::MODULE, kModule),
    FirstField<&VoA2LElementHeader::COMMENT, Kind::PROJECT, Kind::HEADER>(
        "FProject_HEADER_COMMENT"),
    FirstField<&VoA2LElementProjectNo::PROJECT_NO, Kind::PROJECT, Kind::HEADER, Kind::PROJECT_NO>(
        "FProject_HEADER_PROJECT_NO"),
    FirstField<&VoA2LElementVersion::VERSION, Kind::PROJECT, Kind::HEADER, Kind::VERSION>(
        "FProject_HEADER_VERSION"),
    FirstField<&VoA2LElementProject::LONG_IDENTIFIER, Kind::PROJECT>("FProject_LONG_IDENTIFIER"),
    FirstField<&VoA2LElementProject::NAME, Kind::PROJECT>("FProject_Name"),
};
constexpr ObjectTable kDocument = MakeTable<kDocumentRows>();

}  // namespace
}  // namespace tables

const ObjectTable& DocumentTable() { return tables::kDocument; }

}  // namespace a2l
