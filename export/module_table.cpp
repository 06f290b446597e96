// SPDX-License-Identifier: MIT
#include "export/module_table.h"

#include "elements/blocks/project.h"
#include "elements/blocks/raw.h"
#include "export/tables/characteristic.h"
#include "export/tables/conversion.h"
#include "export/tables/functions.h"
#include "export/tables/instance.h"
#include "export/tables/measurement.h"
#include "export/tables/module_parameters.h"
#include "export/tables/record_layout.h"
#include "export/tables/shared.h"
#include "export/tables/variant_coding.h"

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

}  // namespace
}  // namespace tables

const ObjectTable& ModuleTable() { return tables::kModule; }

}  // namespace a2l
