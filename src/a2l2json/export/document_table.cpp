// SPDX-License-Identifier: MIT
#include "a2l2json/export/document_table.h"

#include "a2l2json/elements/blocks/project.h"
#include "a2l2json/elements/properties/identifiers.h"
#include "a2l2json/elements/properties/numbers.h"
#include "a2l2json/elements/properties/texts.h"
#include "a2l2json/export/kind_forms.h"
#include "a2l2json/export/make_table.h"
#include "a2l2json/export/rows.h"
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
    Child("FA2ML"),
    Children("FAXIS_PTS", kAxisPts),
    Children("FBLOB", kBlob),
    Children("FCHARACTERISTIC", kCharacteristic),
    Children("FCOMPU_METHOD", kCompuMethod),
    Children("FCOMPU_TAB", kCompuTab),
    Children("FCOMPU_VTAB", kCompuVtab),
    Children("FCOMPU_VTAB_RANGE", kCompuVtabRange),
    ChildObject("FFRAME", kFrame),
    Children("FFUNCTION", kFunction),
    Children("FGROUP", kGroup),
    Children("FIF_DATA", kIfData),
    Children("FINSTANCE", kInstance),
    Field<&VoA2LElementModule::LONG_IDENTIFIER>("FLONG_IDENTIFIER"),
    Children("FMEASUREMENT", kMeasurement),
    ChildObject("FMOD_COMMON", kModCommon),
    ChildObject("FMOD_PAR", kModPar),
    Field<&VoA2LElementModule::NAME>("FNAME"),
    Children("FRECORD_LAYOUT", kRecordLayout),
    Children("FTRANSFORMER", kTransformer),
    Children("FTYPEDEF_AXIS", kTypedefAxis),
    Children("FTYPEDEF_BLOB", kTypedefBlob),
    Children("FTYPEDEF_CHARACTERISTIC", kTypedefCharacteristic),
    Children("FTYPEDEF_MEASUREMENT", kTypedefMeasurement),
    Children("FTYPEDEF_STRUCTURE", kTypedefStructure),
    Children("FUNIT", kUnit),
    Children("FUSER_RIGHTS", kUserRights),
    ChildObject("FVARIANT_CODING", kVariantCoding),
};
constexpr ObjectTable kModule = MakeTable<VoA2LElementModule, kModuleRows>();

// Of a second project or header, what the first one lacks counts; modules are all kept.
constexpr Row kDocumentRows[] = {
    FirstField<&VoA2LElementA2MLVersion::UPGRADE_NO, ElementKind::A2ML_VERSION>(
        "FA2ML_VERSION_UPGRADE_NO"),
    FirstField<&VoA2LElementA2MLVersion::VERSION_NO, ElementKind::A2ML_VERSION>(
        "FA2ML_VERSION_VERSION_NO"),
    FirstField<&VoA2LElementASAP2Version::UPGRADE_NO, ElementKind::ASAP2_VERSION>(
        "FASAP2_VERSION_UPGRADE_NO"),
    FirstField<&VoA2LElementASAP2Version::VERSION_NO, ElementKind::ASAP2_VERSION>(
        "FASAP2_VERSION_VERSION_NO"),
    Never("FBaseA2LName"),  // reserved
    FirstField<&VoA2LElementModule::NAME, ElementKind::PROJECT, ElementKind::MODULE>(
        "FDatabaseName"),
    Grandchildren("FModules", ElementKind::PROJECT, kModule),
    FirstField<&VoA2LElementHeader::COMMENT, ElementKind::PROJECT, ElementKind::HEADER>(
        "FProject_HEADER_COMMENT"),
    FirstField<&VoA2LElementProjectNo::PROJECT_NO, ElementKind::PROJECT, ElementKind::HEADER,
               ElementKind::PROJECT_NO>("FProject_HEADER_PROJECT_NO"),
    FirstField<&VoA2LElementVersion::VERSION, ElementKind::PROJECT, ElementKind::HEADER,
               ElementKind::VERSION>("FProject_HEADER_VERSION"),
    FirstField<&VoA2LElementProject::LONG_IDENTIFIER, ElementKind::PROJECT>(
        "FProject_LONG_IDENTIFIER"),
    FirstField<&VoA2LElementProject::NAME, ElementKind::PROJECT>("FProject_Name"),
};
constexpr ObjectTable kDocument = MakeTable<VoA2LElement, kDocumentRows>();

}  // namespace
}  // namespace tables

const ObjectTable& DocumentTable() { return tables::kDocument; }

}  // namespace a2l
