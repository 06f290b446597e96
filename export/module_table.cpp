// SPDX-License-Identifier: MIT
#include "export/module_table.h"

#include <string>
#include <string_view>
#include <vector>

#include "elements/blocks/functions.h"
#include "elements/blocks/instance.h"
#include "elements/blocks/measurement.h"
#include "elements/blocks/project.h"
#include "elements/blocks/raw.h"
#include "elements/blocks/record_layout.h"
#include "elements/blocks/variant_coding.h"
#include "export/kind_forms.h"

namespace a2l {
namespace {

using Element = VoA2LElement;

// Whether the reader found nothing wrong with an object.
constexpr Form kValidForm = BoolForm{[](const Element& element) { return element.valid != 0; }};

// All lines of the text, one behind the other.
constexpr Form kAnnotationText = BuiltTextForm{[](const Element& element, std::string& text) {
  for (const std::string_view line : FieldOf<&VoA2LElementAnnotationText::TEXT_LIST>(element)) {
    text += line;
  }
}};
constexpr Row kAnnotationRows[] = {
    Child("FANNOTATION_LABEL", Kind::ANNOTATION_LABEL, Absent::Omit),
    Child("FANNOTATION_ORIGIN", Kind::ANNOTATION_ORIGIN, Absent::Omit),
    {.key = "FANNOTATION_TEXT",
     .source = Source::FirstChild,
     .absent = Absent::Omit,
     .kind = Kind::ANNOTATION_TEXT,
     .form = kAnnotationText},
};
constexpr ObjectTable kAnnotation = MakeTable<kAnnotationRows>();

constexpr Row kIfDataRows[] = {
    Field("FIF_DATA", Value<&VoA2LElementIfData::IF_DATA>()),
    Field("FNAME", Value<&VoA2LElementIfData::NAME>()),
};
constexpr ObjectTable kIfData = MakeTable<kIfDataRows>();

constexpr Row kBitOperationRows[] = {
    Child("FLEFT_SHIFT", Kind::LEFT_SHIFT),
    Child("FRIGHT_SHIFT", Kind::RIGHT_SHIFT),
    Child("FSIGN_EXTEND", Kind::SIGN_EXTEND),
};
constexpr ObjectTable kBitOperation = MakeTable<kBitOperationRows>();

// Resolution and accuracy are not those of the file: applications have always been given 1 and 0.
constexpr Row kMeasurementRows[] = {
    Field("FACCURACY", Constant<0>()),
    Child("FADDRESS_TYPE", Kind::ADDRESS_TYPE),
    Children("FANNOTATION", Kind::ANNOTATION, kAnnotation),
    Child("FARRAY_SIZE", Kind::ARRAY_SIZE),
    Child("FBIT_MASK", Kind::BIT_MASK),
    ChildObject("FBIT_OPERATION", Kind::BIT_OPERATION, kBitOperation),
    Child("FBYTE_ORDER", Kind::BYTE_ORDER),
    Field("FCONVERSION", Value<&VoA2LElementMeasurement::CONVERSION>()),
    Field("FDATATYPE", WordOf<&VoA2LElementMeasurement::DATATYPE, words::kDataType>()),
    Flag("FDISCRETE", Kind::DISCRETE),
    Child("FDISPLAY_IDENTIFIER", Kind::DISPLAY_IDENTIFIER),
    Child("FECU_ADDRESS", Kind::ECU_ADDRESS),
    Child("FECU_ADDRESS_EXTENSION", Kind::ECU_ADDRESS_EXTENSION),
    Child("FERROR_MASK", Kind::ERROR_MASK),
    Child("FFORMAT", Kind::FORMAT),
    Child("FFUNCTION_LIST", Kind::FUNCTION_LIST),
    Children("FIF_DATA", Kind::IF_DATA, kIfData),
    Field("FISVALID", kValidForm),
    Child("FLAYOUT", Kind::LAYOUT),
    Field("FLONG_IDENTIFIER", Value<&VoA2LElementMeasurement::LONG_IDENTIFIER>()),
    Field("FLOWER_LIMIT", Value<&VoA2LElementMeasurement::LOWER_LIMIT>()),
    Child("FMATRIX_DIM", Kind::MATRIX_DIM, Absent::EmptyArray),
    Child("FMAX_REFRESH", Kind::MAX_REFRESH),
    Child("FMODEL_LINK", Kind::MODEL_LINK),
    Field("FNAME", Value<&VoA2LElementMeasurement::NAME>()),
    Child("FPHYS_UNIT", Kind::PHYS_UNIT),
    Flag("FREAD_WRITE", Kind::READ_WRITE),
    Child("FREF_MEMORY_SEGMENT", Kind::REF_MEMORY_SEGMENT),
    Field("FRESOLUTION", Constant<1>()),
    Child("FSYMBOL_LINK", Kind::SYMBOL_LINK),
    Field("FUPPER_LIMIT", Value<&VoA2LElementMeasurement::UPPER_LIMIT>()),
    Child("FVIRTUAL", Kind::VIRTUAL),
};
constexpr ObjectTable kMeasurement = MakeTable<kMeasurementRows>();

constexpr Row kTypedefMeasurementRows[] = {
    Field("FACCURACY", Value<&VoA2LElementTypedefMeasurement::ACCURACY>()),
    Child("FADDRESS_TYPE", Kind::ADDRESS_TYPE),
    Child("FBIT_MASK", Kind::BIT_MASK),
    ChildObject("FBIT_OPERATION", Kind::BIT_OPERATION, kBitOperation),
    Child("FBYTE_ORDER", Kind::BYTE_ORDER),
    Field("FCONVERSION", Value<&VoA2LElementTypedefMeasurement::CONVERSION>()),
    Field("FDATATYPE", WordOf<&VoA2LElementTypedefMeasurement::DATATYPE, words::kDataType>()),
    Flag("FDISCRETE", Kind::DISCRETE),
    Child("FERROR_MASK", Kind::ERROR_MASK),
    Child("FFORMAT", Kind::FORMAT),
    Child("FLAYOUT", Kind::LAYOUT),
    Field("FLONG_IDENTIFIER", Value<&VoA2LElementTypedefMeasurement::LONG_IDENTIFIER>()),
    Field("FLOWER_LIMIT", Value<&VoA2LElementTypedefMeasurement::LOWER_LIMIT>()),
    Child("FMATRIX_DIM", Kind::MATRIX_DIM, Absent::EmptyArray),
    Field("FNAME", Value<&VoA2LElementTypedefMeasurement::NAME>()),
    Child("FPHYS_UNIT", Kind::PHYS_UNIT),
    Field("FRESOLUTION", Value<&VoA2LElementTypedefMeasurement::RESOLUTION>()),
    Field("FUPPER_LIMIT", Value<&VoA2LElementTypedefMeasurement::UPPER_LIMIT>()),
};
constexpr ObjectTable kTypedefMeasurement = MakeTable<kTypedefMeasurementRows>();

constexpr Row kAxisDescrRows[] = {
    Children("FANNOTATION", Kind::ANNOTATION, kAnnotation),
    Field("FATTRIBUTE", WordOf<&VoA2LElementAxisDescr::ATTRIBUTE, words::kAxisAttribute>()),
    Child("FAXIS_PTS_REF", Kind::AXIS_PTS_REF),
    Child("FBYTE_ORDER", Kind::BYTE_ORDER),
    Field("FCONVERSION", Value<&VoA2LElementAxisDescr::CONVERSION>()),
    Child("FCURVE_AXIS_REF", Kind::CURVE_AXIS_REF),
    Child("FDEPOSIT", Kind::DEPOSIT),
    Child("FEXTENDED_LIMITS", Kind::EXTENDED_LIMITS),
    Child("FFIX_AXIS_PAR", Kind::FIX_AXIS_PAR),
    Child("FFIX_AXIS_PAR_DIST", Kind::FIX_AXIS_PAR_DIST),
    Child("FFIX_AXIS_PAR_LIST", Kind::FIX_AXIS_PAR_LIST),
    Child("FFORMAT", Kind::FORMAT),
    Field("FINPUT_QUANTITY", Value<&VoA2LElementAxisDescr::INPUT_QUANTITY>()),
    Field("FLOWER_LIMIT", Value<&VoA2LElementAxisDescr::LOWER_LIMIT>()),
    Field("FMAX_AXIS_POINTS", Value<&VoA2LElementAxisDescr::MAX_AXIS_POINTS>()),
    Child("FMAX_GRAD", Kind::MAX_GRAD),
    Child("FMONOTONY", Kind::MONOTONY),
    Child("FPHYS_UNIT", Kind::PHYS_UNIT),
    Flag("FREAD_ONLY", Kind::READ_ONLY),
    Child("FSTEP_SIZE", Kind::STEP_SIZE),
    Field("FUPPER_LIMIT", Value<&VoA2LElementAxisDescr::UPPER_LIMIT>()),
};
constexpr ObjectTable kAxisDescr = MakeTable<kAxisDescrRows>();

// ENCODING is not supported by the reader, so its key never has a value.
constexpr Row kCharacteristicRows[] = {
    Field("FADDRESS", AddressOf<&VoA2LElementCharacteristic::ADDRESS>()),
    Children("FANNOTATION", Kind::ANNOTATION, kAnnotation),
    Children("FAXIS_DESCR", Kind::AXIS_DESCR, kAxisDescr),
    Child("FBIT_MASK", Kind::BIT_MASK),
    Child("FBYTE_ORDER", Kind::BYTE_ORDER),
    Child("FCALIBRATION_ACCESS", Kind::CALIBRATION_ACCESS),
    Field("FCHARACTERISTIC_TYPE",
          WordOf<&VoA2LElementCharacteristic::CHARACTERISTIC_TYPE, words::kCharacteristicType>()),
    Child("FCOMPARISON_QUANTITY", Kind::COMPARISON_QUANTITY),
    Field("FCONVERSION", Value<&VoA2LElementCharacteristic::CONVERSION>()),
    Child("FDEPENDENT_CHARACTERISTIC", Kind::DEPENDENT_CHARACTERISTIC),
    Field("FDEPOSIT", Value<&VoA2LElementCharacteristic::DEPOSIT>()),
    Flag("FDISCRETE", Kind::DISCRETE),
    Child("FDISPLAY_IDENTIFIER", Kind::DISPLAY_IDENTIFIER),
    Child("FECU_ADDRESS_EXTENSION", Kind::ECU_ADDRESS_EXTENSION),
    Never("FENCODING"),
    Child("FEXTENDED_LIMITS", Kind::EXTENDED_LIMITS),
    Child("FFORMAT", Kind::FORMAT),
    Child("FFUNCTION_LIST", Kind::FUNCTION_LIST),
    Flag("FGUARD_RAILS", Kind::GUARD_RAILS),
    Children("FIF_DATA", Kind::IF_DATA, kIfData),
    Field("FISVALID", kValidForm),
    Field("FLONG_IDENTIFIER", Value<&VoA2LElementCharacteristic::LONG_IDENTIFIER>()),
    Field("FLOWER_LIMIT", Value<&VoA2LElementCharacteristic::LOWER_LIMIT>()),
    Child("FMAP_LIST", Kind::MAP_LIST),
    Child("FMATRIX_DIM", Kind::MATRIX_DIM, Absent::EmptyArray),
    Field("FMAX_DIFF", Value<&VoA2LElementCharacteristic::MAX_DIFF>()),
    Child("FMAX_REFRESH", Kind::MAX_REFRESH),
    Child("FMODEL_LINK", Kind::MODEL_LINK),
    Field("FNAME", Value<&VoA2LElementCharacteristic::NAME>()),
    Child("FNUMBER", Kind::NUMBER),
    Child("FPHYS_UNIT", Kind::PHYS_UNIT),
    Flag("FREAD_ONLY", Kind::READ_ONLY),
    Child("FREF_MEMORY_SEGMENT", Kind::REF_MEMORY_SEGMENT),
    Child("FSTEP_SIZE", Kind::STEP_SIZE),
    Child("FSYMBOL_LINK", Kind::SYMBOL_LINK),
    Field("FUPPER_LIMIT", Value<&VoA2LElementCharacteristic::UPPER_LIMIT>()),
    Child("FVIRTUAL_CHARACTERISTIC", Kind::VIRTUAL_CHARACTERISTIC),
};
constexpr ObjectTable kCharacteristic = MakeTable<kCharacteristicRows>();

// "FDEPOSIT" is the record layout; the property DEPOSIT, of the same name, does not appear.
constexpr Row kAxisPtsRows[] = {
    Field("FADDRESS", AddressOf<&VoA2LElementAxisPts::ADDRESS>()),
    Children("FANNOTATION", Kind::ANNOTATION, kAnnotation),
    Child("FBYTE_ORDER", Kind::BYTE_ORDER),
    Child("FCALIBRATION_ACCESS", Kind::CALIBRATION_ACCESS),
    Field("FCONVERSION", Value<&VoA2LElementAxisPts::CONVERSION>()),
    Field("FDEPOSIT", Value<&VoA2LElementAxisPts::DEPOSIT>()),
    Child("FDISPLAY_IDENTIFIER", Kind::DISPLAY_IDENTIFIER),
    Child("FECU_ADDRESS_EXTENSION", Kind::ECU_ADDRESS_EXTENSION),
    Child("FEXTENDED_LIMITS", Kind::EXTENDED_LIMITS),
    Child("FFORMAT", Kind::FORMAT),
    Child("FFUNCTION_LIST", Kind::FUNCTION_LIST),
    Flag("FGUARD_RAILS", Kind::GUARD_RAILS),
    Children("FIF_DATA", Kind::IF_DATA, kIfData),
    Field("FINPUT_QUANTITY", Value<&VoA2LElementAxisPts::INPUT_QUANTITY>()),
    Field("FISVALID", kValidForm),
    Field("FLONG_IDENTIFIER", Value<&VoA2LElementAxisPts::LONG_IDENTIFIER>()),
    Field("FLOWER_LIMIT", Value<&VoA2LElementAxisPts::LOWER_LIMIT>()),
    Field("FMAX_AXIS_POINTS", Value<&VoA2LElementAxisPts::MAX_AXIS_POINTS>()),
    Field("FMAX_DIFF", Value<&VoA2LElementAxisPts::MAX_DIFF>()),
    Child("FMAX_REFRESH", Kind::MAX_REFRESH),
    Child("FMODEL_LINK", Kind::MODEL_LINK),
    Child("FMONOTONY", Kind::MONOTONY),
    Field("FNAME", Value<&VoA2LElementAxisPts::NAME>()),
    Child("FPHYS_UNIT", Kind::PHYS_UNIT),
    Flag("FREAD_ONLY", Kind::READ_ONLY),
    Child("FREF_MEMORY_SEGMENT", Kind::REF_MEMORY_SEGMENT),
    Child("FSTEP_SIZE", Kind::STEP_SIZE),
    Child("FSYMBOL_LINK", Kind::SYMBOL_LINK),
    Field("FUPPER_LIMIT", Value<&VoA2LElementAxisPts::UPPER_LIMIT>()),
};
constexpr ObjectTable kAxisPts = MakeTable<kAxisPtsRows>();

constexpr Row kTypedefCharacteristicRows[] = {
    Children("FAXIS_DESCR", Kind::AXIS_DESCR, kAxisDescr),
    Child("FBIT_MASK", Kind::BIT_MASK),
    Child("FBYTE_ORDER", Kind::BYTE_ORDER),
    Field("FCHARACTERISTIC_TYPE", WordOf<&VoA2LElementTypedefCharacteristic::CHARACTERISTIC_TYPE,
                                         words::kCharacteristicType>()),
    Field("FCONVERSION", Value<&VoA2LElementTypedefCharacteristic::CONVERSION>()),
    Flag("FDISCRETE", Kind::DISCRETE),
    Never("FENCODING"),
    Child("FEXTENDED_LIMITS", Kind::EXTENDED_LIMITS),
    Child("FFORMAT", Kind::FORMAT),
    Field("FLONG_IDENTIFIER", Value<&VoA2LElementTypedefCharacteristic::LONG_IDENTIFIER>()),
    Field("FLOWER_LIMIT", Value<&VoA2LElementTypedefCharacteristic::LOWER_LIMIT>()),
    Child("FMATRIX_DIM", Kind::MATRIX_DIM, Absent::EmptyArray),
    Field("FMAX_DIFF", Value<&VoA2LElementTypedefCharacteristic::MAX_DIFF>()),
    Field("FNAME", Value<&VoA2LElementTypedefCharacteristic::NAME>()),
    Child("FNUMBER", Kind::NUMBER),
    Child("FPHYS_UNIT", Kind::PHYS_UNIT),
    Field("FRECORD_LAYOUT", Value<&VoA2LElementTypedefCharacteristic::RECORD_LAYOUT>()),
    Child("FSTEP_SIZE", Kind::STEP_SIZE),
    Field("FUPPER_LIMIT", Value<&VoA2LElementTypedefCharacteristic::UPPER_LIMIT>()),
};
constexpr ObjectTable kTypedefCharacteristic = MakeTable<kTypedefCharacteristicRows>();

constexpr Row kTypedefAxisRows[] = {
    Child("FBYTE_ORDER", Kind::BYTE_ORDER),
    Field("FCONVERSION", Value<&VoA2LElementTypedefAxis::CONVERSION>()),
    Child("FDEPOSIT", Kind::DEPOSIT),
    Child("FEXTENDED_LIMITS", Kind::EXTENDED_LIMITS),
    Child("FFORMAT", Kind::FORMAT),
    Field("FINPUT_QUANTITY", Value<&VoA2LElementTypedefAxis::INPUT_QUANTITY>()),
    Field("FLONG_IDENTIFIER", Value<&VoA2LElementTypedefAxis::LONG_IDENTIFIER>()),
    Field("FLOWER_LIMIT", Value<&VoA2LElementTypedefAxis::LOWER_LIMIT>()),
    Field("FMAX_AXIS_POINTS", Value<&VoA2LElementTypedefAxis::MAX_AXIS_POINTS>()),
    Field("FMAX_DIFF", Value<&VoA2LElementTypedefAxis::MAX_DIFF>()),
    Child("FMONOTONY", Kind::MONOTONY),
    Field("FNAME", Value<&VoA2LElementTypedefAxis::NAME>()),
    Child("FPHYS_UNIT", Kind::PHYS_UNIT),
    Field("FRECORD_LAYOUT", Value<&VoA2LElementTypedefAxis::RECORD_LAYOUT>()),
    Child("FSTEP_SIZE", Kind::STEP_SIZE),
    Field("FUPPER_LIMIT", Value<&VoA2LElementTypedefAxis::UPPER_LIMIT>()),
};
constexpr ObjectTable kTypedefAxis = MakeTable<kTypedefAxisRows>();

constexpr Row kBlobRows[] = {
    Field("FADDRESS", AddressOf<&VoA2LElementBlob::ADDRESS>()),
    Child("FADDRESS_TYPE", Kind::ADDRESS_TYPE),
    Children("FANNOTATION", Kind::ANNOTATION, kAnnotation),
    Child("FCALIBRATION_ACCESS", Kind::CALIBRATION_ACCESS),
    Child("FDISPLAY_IDENTIFIER", Kind::DISPLAY_IDENTIFIER),
    Child("FECU_ADDRESS_EXTENSION", Kind::ECU_ADDRESS_EXTENSION),
    Children("FIF_DATA", Kind::IF_DATA, kIfData),
    Field("FISVALID", kValidForm),
    Field("FLONG_IDENTIFIER", Value<&VoA2LElementBlob::LONG_IDENTIFIER>()),
    Child("FMAX_REFRESH", Kind::MAX_REFRESH),
    Child("FMODEL_LINK", Kind::MODEL_LINK),
    Field("FNAME", Value<&VoA2LElementBlob::NAME>()),
    Field("FSIZE", Value<&VoA2LElementBlob::SIZE>()),
    Child("FSYMBOL_LINK", Kind::SYMBOL_LINK),
};
constexpr ObjectTable kBlob = MakeTable<kBlobRows>();

constexpr Row kTypedefBlobRows[] = {
    Child("FADDRESS_TYPE", Kind::ADDRESS_TYPE),
    Field("FLONG_IDENTIFIER", Value<&VoA2LElementTypedefBlob::LONG_IDENTIFIER>()),
    Field("FNAME", Value<&VoA2LElementTypedefBlob::NAME>()),
    Field("FSIZE", Value<&VoA2LElementTypedefBlob::SIZE>()),
};
constexpr ObjectTable kTypedefBlob = MakeTable<kTypedefBlobRows>();

// CONVERSION has no key here; "FADDRESS_TYPE" has one, but no property that could fill it.
constexpr Row kOverwriteRows[] = {
    Never("FADDRESS_TYPE"),
    Field("FAXIS_NUMBER", Value<&VoA2LElementOverwrite::AXIS_NUMBER>()),
    Child("FEXTENDED_LIMITS", Kind::EXTENDED_LIMITS),
    Child("FFORMAT", Kind::FORMAT),
    Child("FINPUT_QUANTITY", Kind::INPUT_QUANTITY),
    Child("FLIMITS", Kind::LIMITS),
    Child("FMONOTONY", Kind::MONOTONY),
    Field("FNAME", Value<&VoA2LElementOverwrite::NAME>()),
    Child("FPHYS_UNIT", Kind::PHYS_UNIT),
};
constexpr ObjectTable kOverwrite = MakeTable<kOverwriteRows>();

constexpr Row kInstanceRows[] = {
    Field("FADDRESS", AddressOf<&VoA2LElementInstance::ADDRESS>()),
    Child("FADDRESS_TYPE", Kind::ADDRESS_TYPE),
    Children("FANNOTATION", Kind::ANNOTATION, kAnnotation),
    Child("FCALIBRATION_ACCESS", Kind::CALIBRATION_ACCESS),
    Child("FDISPLAY_IDENTIFIER", Kind::DISPLAY_IDENTIFIER),
    Child("FECU_ADDRESS_EXTENSION", Kind::ECU_ADDRESS_EXTENSION),
    Children("FIF_DATA", Kind::IF_DATA, kIfData),
    Field("FISVALID", kValidForm),
    Child("FLAYOUT", Kind::LAYOUT),
    Field("FLONG_IDENTIFIER", Value<&VoA2LElementInstance::LONG_IDENTIFIER>()),
    Child("FMATRIX_DIM", Kind::MATRIX_DIM, Absent::EmptyArray),
    Child("FMAX_REFRESH", Kind::MAX_REFRESH),
    Child("FMODEL_LINK", Kind::MODEL_LINK),
    Field("FNAME", Value<&VoA2LElementInstance::NAME>()),
    Children("FOVERWRITE", Kind::OVERWRITE, kOverwrite, Absent::Null),
    Flag("FREAD_WRITE", Kind::READ_WRITE),
    Child("FSYMBOL_LINK", Kind::SYMBOL_LINK),
    Field("FTYPEDEF_NAME", Value<&VoA2LElementInstance::TYPEDEF_NAME>()),
};
constexpr ObjectTable kInstance = MakeTable<kInstanceRows>();

constexpr Row kStructureComponentRows[] = {
    Field("FADDRESS_OFFSET", Value<&VoA2LElementStructureComponent::ADDRESS_OFFSET>()),
    Child("FADDRESS_TYPE", Kind::ADDRESS_TYPE),
    Child("FLAYOUT", Kind::LAYOUT),
    Child("FMATRIX_DIM", Kind::MATRIX_DIM, Absent::EmptyArray),
    Field("FNAME", Value<&VoA2LElementStructureComponent::NAME>()),
    Child("FSYMBOL_TYPE_LINK", Kind::SYMBOL_TYPE_LINK),
    Field("FTYPEDEF_NAME", Value<&VoA2LElementStructureComponent::TYPEDEF_NAME>()),
};
constexpr ObjectTable kStructureComponent = MakeTable<kStructureComponentRows>();

constexpr Row kTypedefStructureRows[] = {
    Child("FADDRESS_TYPE", Kind::ADDRESS_TYPE),
    Flag("FCONSISTENT_EXCHANGE", Kind::CONSISTENT_EXCHANGE),
    Field("FLONG_IDENTIFIER", Value<&VoA2LElementTypedefStructure::LONG_IDENTIFIER>()),
    Field("FNAME", Value<&VoA2LElementTypedefStructure::NAME>()),
    Field("FSIZE", Value<&VoA2LElementTypedefStructure::SIZE>()),
    Children("FSTRUCTURE_COMPONENT", Kind::STRUCTURE_COMPONENT, kStructureComponent, Absent::Null),
    Child("FSYMBOL_TYPE_LINK", Kind::SYMBOL_TYPE_LINK),
};
constexpr ObjectTable kTypedefStructure = MakeTable<kTypedefStructureRows>();

constexpr Row kFormulaRows[] = {
    Field("FFORMULA", Value<&VoA2LElementFormula::FORMULA>()),
    Child("FFORMULA_INV", Kind::FORMULA_INV),
};
constexpr ObjectTable kFormula = MakeTable<kFormulaRows>();

constexpr Row kCompuMethodRows[] = {
    Child("FCOEFFS", Kind::COEFFS),
    Child("FCOEFFS_LINEAR", Kind::COEFFS_LINEAR),
    Child("FCOMPU_TAB_REF", Kind::COMPU_TAB_REF),
    Field("FCONVERSION_TYPE",
          WordOf<&VoA2LElementCompuMethod::CONVERSION_TYPE, words::kConversionType>()),
    Field("FFORMAT", Value<&VoA2LElementCompuMethod::FORMAT>()),
    ChildObject("FFORMULA", Kind::FORMULA, kFormula),
    Field("FLONG_IDENTIFIER", Value<&VoA2LElementCompuMethod::LONG_IDENTIFIER>()),
    Field("FNAME", Value<&VoA2LElementCompuMethod::NAME>()),
    Child("FREF_UNIT", Kind::REF_UNIT),
    Child("FSTATUS_STRING_REF", Kind::STATUS_STRING_REF),
    Field("FUNIT", Value<&VoA2LElementCompuMethod::UNIT>()),
};
constexpr ObjectTable kCompuMethod = MakeTable<kCompuMethodRows>();

constexpr Row kCompuTabRows[] = {
    Field("FCONVERSION_TYPE", WordOf<&VoA2LElementCompuTab::CONVERSION_TYPE, words::kTableType>()),
    Child("FDEFAULT_VALUE", Kind::DEFAULT_VALUE),
    Child("FDEFAULT_VALUE_NUMERIC", Kind::DEFAULT_VALUE_NUMERIC),
    Field("FIN_VAL", Value<&VoA2LElementCompuTab::IN_VAL>()),
    Field("FLONG_IDENTIFIER", Value<&VoA2LElementCompuTab::LONG_IDENTIFIER>()),
    Field("FNAME", Value<&VoA2LElementCompuTab::NAME>()),
    Field("FNUMBER_VALUE_PAIRS", Value<&VoA2LElementCompuTab::NUMBER_VALUE_PAIRS>()),
    Field("FOUT_VAL", Value<&VoA2LElementCompuTab::OUT_VAL>()),
};
constexpr ObjectTable kCompuTab = MakeTable<kCompuTabRows>();

constexpr Row kCompuVtabRows[] = {
    Field("FCONVERSION_TYPE",
          WordOf<&VoA2LElementCompuVtab::CONVERSION_TYPE, words::kVerbalTableType>()),
    Child("FDEFAULT_VALUE", Kind::DEFAULT_VALUE),
    Field("FIN_VAL", Value<&VoA2LElementCompuVtab::IN_VAL>()),
    Field("FLONG_IDENTIFIER", Value<&VoA2LElementCompuVtab::LONG_IDENTIFIER>()),
    Field("FNAME", Value<&VoA2LElementCompuVtab::NAME>()),
    Field("FNUMBER_VALUE_PAIRS", Value<&VoA2LElementCompuVtab::NUMBER_VALUE_PAIRS>()),
    Field("FOUT_VAL", Value<&VoA2LElementCompuVtab::OUT_VAL>()),
};
constexpr ObjectTable kCompuVtab = MakeTable<kCompuVtabRows>();

constexpr Row kCompuVtabRangeRows[] = {
    Child("FDEFAULT_VALUE", Kind::DEFAULT_VALUE),
    Field("FIN_VAL_MAX", Value<&VoA2LElementCompuVtabRange::IN_VAL_MAX>()),
    Field("FIN_VAL_MIN", Value<&VoA2LElementCompuVtabRange::IN_VAL_MIN>()),
    Field("FLONG_IDENTIFIER", Value<&VoA2LElementCompuVtabRange::LONG_IDENTIFIER>()),
    Field("FNAME", Value<&VoA2LElementCompuVtabRange::NAME>()),
    Field("FNUMBER_VALUE_TRIPLES", Value<&VoA2LElementCompuVtabRange::NUMBER_VALUE_TRIPLES>()),
    Field("FOUT_VAL", Value<&VoA2LElementCompuVtabRange::OUT_VAL>()),
};
constexpr ObjectTable kCompuVtabRange = MakeTable<kCompuVtabRangeRows>();

constexpr Row kUnitRows[] = {
    Field("FDISPLAY", Value<&VoA2LElementUnit::DISPLAY>()),
    Field("FLONG_IDENTIFIER", Value<&VoA2LElementUnit::LONG_IDENTIFIER>()),
    Field("FNAME", Value<&VoA2LElementUnit::NAME>()),
    Child("FREF_UNIT", Kind::REF_UNIT),
    Child("FSI_EXPONENTS", Kind::SI_EXPONENTS),
    Child("FUNIT_CONVERSION", Kind::UNIT_CONVERSION),
    Field("FUNIT_TYPE", WordOf<&VoA2LElementUnit::UNIT_TYPE, words::kUnitType>()),
};
constexpr ObjectTable kUnit = MakeTable<kUnitRows>();

// The prototype stands below a component, in the first one that names any.
const Element* FindPrototype(const Element& function) {
  for (const Element* child : function.children) {
    if (child->kind != Kind::AR_COMPONENT) continue;
    for (const Element* property : child->children) {
      if (property->kind == Kind::AR_PROTOTYPE_OF) return property;
    }
  }
  return nullptr;
}
constexpr Row kFunctionRows[] = {
    Children("FANNOTATION", Kind::ANNOTATION, kAnnotation),
    Child("FAR_COMPONENT", Kind::AR_COMPONENT),
    Found("FAR_PROTOTYPE_OF", FindPrototype, FormOf(Kind::AR_PROTOTYPE_OF)),
    Child("FDEF_CHARACTERISTIC", Kind::DEF_CHARACTERISTIC),
    Child("FFUNCTION_VERSION", Kind::FUNCTION_VERSION),
    Children("FIF_DATA", Kind::IF_DATA, kIfData),
    Child("FIN_MEASUREMENT", Kind::IN_MEASUREMENT),
    Child("FLOC_MEASUREMENT", Kind::LOC_MEASUREMENT),
    Field("FLONG_IDENTIFIER", Value<&VoA2LElementFunction::LONG_IDENTIFIER>()),
    Field("FNAME", Value<&VoA2LElementFunction::NAME>()),
    Child("FOUT_MEASUREMENT", Kind::OUT_MEASUREMENT),
    Child("FREF_CHARACTERISTIC", Kind::REF_CHARACTERISTIC),
    Child("FSUB_FUNCTION", Kind::SUB_FUNCTION),
};
constexpr ObjectTable kFunction = MakeTable<kFunctionRows>();

constexpr Row kGroupRows[] = {
    Children("FANNOTATION", Kind::ANNOTATION, kAnnotation),
    Child("FFUNCTION_LIST", Kind::FUNCTION_LIST),
    Field("FGROUP_LONG_IDENTIFIER", Value<&VoA2LElementGroup::GROUP_LONG_IDENTIFIER>()),
    Field("FGROUP_NAME", Value<&VoA2LElementGroup::GROUP_NAME>()),
    Children("FIF_DATA", Kind::IF_DATA, kIfData),
    Child("FREF_CHARACTERISTIC", Kind::REF_CHARACTERISTIC),
    Child("FREF_MEASUREMENT", Kind::REF_MEASUREMENT),
    Flag("FROOT", Kind::ROOT),
    Child("FSUB_GROUP", Kind::SUB_GROUP),
};
constexpr ObjectTable kGroup = MakeTable<kGroupRows>();

constexpr Row kFrameRows[] = {
    Child("FFRAME_MEASUREMENT", Kind::FRAME_MEASUREMENT),
    Children("FIF_DATA", Kind::IF_DATA, kIfData),
    Field("FLONG_IDENTIFIER", Value<&VoA2LElementFrame::LONG_IDENTIFIER>()),
    Field("FNAME", Value<&VoA2LElementFrame::NAME>()),
    Field("FRATE", Value<&VoA2LElementFrame::RATE>()),
    Field("FSCALING_UNIT", Value<&VoA2LElementFrame::SCALING_UNIT>()),
};
constexpr ObjectTable kFrame = MakeTable<kFrameRows>();

// The size of a reserved place goes by the name of a data type.
constexpr Row kReservedRows[] = {
    Field("FDATA_TYPE", WordOf<&VoA2LElementReserved::DATA_SIZE, words::kDataSize>()),
    Field("FPOSITION", Value<&VoA2LElementReserved::POSITION>()),
};
constexpr ObjectTable kReserved = MakeTable<kReservedRows>();

// IDENTIFICATION has always gone under "FALIGNMENT_WORD", where it competes with ALIGNMENT_WORD,
// and never under its own key.
constexpr Row kRecordLayoutRows[] = {
    Child("FALIGNMENT_BYTE", Kind::ALIGNMENT_BYTE),
    Child("FALIGNMENT_FLOAT16_IEEE", Kind::ALIGNMENT_FLOAT16_IEEE),
    Child("FALIGNMENT_FLOAT32_IEEE", Kind::ALIGNMENT_FLOAT32_IEEE),
    Child("FALIGNMENT_FLOAT64_IEEE", Kind::ALIGNMENT_FLOAT64_IEEE),
    Child("FALIGNMENT_INT64", Kind::ALIGNMENT_INT64),
    Child("FALIGNMENT_LONG", Kind::ALIGNMENT_LONG),
    EitherChild("FALIGNMENT_WORD", Kind::ALIGNMENT_WORD, Kind::IDENTIFICATION),
    Child("FAXIS_PTS_4", Kind::AXIS_PTS_4),
    Child("FAXIS_PTS_5", Kind::AXIS_PTS_5),
    Child("FAXIS_PTS_X", Kind::AXIS_PTS_X),
    Child("FAXIS_PTS_Y", Kind::AXIS_PTS_Y),
    Child("FAXIS_PTS_Z", Kind::AXIS_PTS_Z),
    Child("FAXIS_RESCALE_4", Kind::AXIS_RESCALE_4),
    Child("FAXIS_RESCALE_5", Kind::AXIS_RESCALE_5),
    Child("FAXIS_RESCALE_X", Kind::AXIS_RESCALE_X),
    Child("FAXIS_RESCALE_Y", Kind::AXIS_RESCALE_Y),
    Child("FAXIS_RESCALE_Z", Kind::AXIS_RESCALE_Z),
    Child("FDIST_OP_4", Kind::DIST_OP_4),
    Child("FDIST_OP_5", Kind::DIST_OP_5),
    Child("FDIST_OP_X", Kind::DIST_OP_X),
    Child("FDIST_OP_Y", Kind::DIST_OP_Y),
    Child("FDIST_OP_Z", Kind::DIST_OP_Z),
    Child("FFIX_NO_AXIS_PTS_4", Kind::FIX_NO_AXIS_PTS_4),
    Child("FFIX_NO_AXIS_PTS_5", Kind::FIX_NO_AXIS_PTS_5),
    Child("FFIX_NO_AXIS_PTS_X", Kind::FIX_NO_AXIS_PTS_X),
    Child("FFIX_NO_AXIS_PTS_Y", Kind::FIX_NO_AXIS_PTS_Y),
    Child("FFIX_NO_AXIS_PTS_Z", Kind::FIX_NO_AXIS_PTS_Z),
    Child("FFNC_VALUES", Kind::FNC_VALUES),
    Never("FIDENTIFICATION"),
    Field("FNAME", Value<&VoA2LElementRecordLayout::NAME>()),
    Child("FNO_AXIS_PTS_4", Kind::NO_AXIS_PTS_4),
    Child("FNO_AXIS_PTS_5", Kind::NO_AXIS_PTS_5),
    Child("FNO_AXIS_PTS_X", Kind::NO_AXIS_PTS_X),
    Child("FNO_AXIS_PTS_Y", Kind::NO_AXIS_PTS_Y),
    Child("FNO_AXIS_PTS_Z", Kind::NO_AXIS_PTS_Z),
    Child("FNO_RESCALE_4", Kind::NO_RESCALE_4),
    Child("FNO_RESCALE_5", Kind::NO_RESCALE_5),
    Child("FNO_RESCALE_X", Kind::NO_RESCALE_X),
    Child("FNO_RESCALE_Y", Kind::NO_RESCALE_Y),
    Child("FNO_RESCALE_Z", Kind::NO_RESCALE_Z),
    Child("FOFFSET_4", Kind::OFFSET_4),
    Child("FOFFSET_5", Kind::OFFSET_5),
    Child("FOFFSET_X", Kind::OFFSET_X),
    Child("FOFFSET_Y", Kind::OFFSET_Y),
    Child("FOFFSET_Z", Kind::OFFSET_Z),
    Children("FRESERVED", Kind::RESERVED, kReserved),
    Child("FRIP_ADDR_4", Kind::RIP_ADDR_4),
    Child("FRIP_ADDR_5", Kind::RIP_ADDR_5),
    Child("FRIP_ADDR_W", Kind::RIP_ADDR_W),
    Child("FRIP_ADDR_X", Kind::RIP_ADDR_X),
    Child("FRIP_ADDR_Y", Kind::RIP_ADDR_Y),
    Child("FRIP_ADDR_Z", Kind::RIP_ADDR_Z),
    Child("FSHIFT_OP_4", Kind::SHIFT_OP_4),
    Child("FSHIFT_OP_5", Kind::SHIFT_OP_5),
    Child("FSHIFT_OP_X", Kind::SHIFT_OP_X),
    Child("FSHIFT_OP_Y", Kind::SHIFT_OP_Y),
    Child("FSHIFT_OP_Z", Kind::SHIFT_OP_Z),
    Child("FSRC_ADDR_4", Kind::SRC_ADDR_4),
    Child("FSRC_ADDR_5", Kind::SRC_ADDR_5),
    Child("FSRC_ADDR_X", Kind::SRC_ADDR_X),
    Child("FSRC_ADDR_Y", Kind::SRC_ADDR_Y),
    Child("FSRC_ADDR_Z", Kind::SRC_ADDR_Z),
    Flag("FSTATIC_ADDRESS_OFFSETS", Kind::STATIC_ADDRESS_OFFSETS),
    Flag("FSTATIC_RECORD_LAYOUT", Kind::STATIC_RECORD_LAYOUT),
};
constexpr ObjectTable kRecordLayout = MakeTable<kRecordLayoutRows>();

constexpr Row kTransformerRows[] = {
    Field("FEXECUTABLE32", Value<&VoA2LElementTransformer::EXECUTABLE32>()),
    Field("FEXECUTABLE64", Value<&VoA2LElementTransformer::EXECUTABLE64>()),
    Field("FINVERSE_TRANSFORMER", Value<&VoA2LElementTransformer::INVERSE_TRANSFORMER>()),
    Field("FNAME", Value<&VoA2LElementTransformer::NAME>()),
    Field("FTIMEOUT", Value<&VoA2LElementTransformer::TIMEOUT>()),
    Child("FTRANSFORMER_IN_OBJECTS", Kind::TRANSFORMER_IN_OBJECTS),
    Child("FTRANSFORMER_OUT_OBJECTS", Kind::TRANSFORMER_OUT_OBJECTS),
    Field("FTRIGGER", WordOf<&VoA2LElementTransformer::TRIGGER, words::kTransformerTrigger>()),
    Field("FVERSION", Value<&VoA2LElementTransformer::VERSION>()),
};
constexpr ObjectTable kTransformer = MakeTable<kTransformerRows>();

constexpr Row kModCommonRows[] = {
    Child("FALIGNMENT_BYTE", Kind::ALIGNMENT_BYTE),
    Child("FALIGNMENT_FLOAT16_IEEE", Kind::ALIGNMENT_FLOAT16_IEEE),
    Child("FALIGNMENT_FLOAT32_IEEE", Kind::ALIGNMENT_FLOAT32_IEEE),
    Child("FALIGNMENT_FLOAT64_IEEE", Kind::ALIGNMENT_FLOAT64_IEEE),
    Child("FALIGNMENT_INT64", Kind::ALIGNMENT_INT64),
    Child("FALIGNMENT_LONG", Kind::ALIGNMENT_LONG),
    Child("FALIGNMENT_WORD", Kind::ALIGNMENT_WORD),
    Child("FBYTE_ORDER", Kind::BYTE_ORDER),
    Field("FCOMMENT", Value<&VoA2LElementModCommon::COMMENT>()),
    Child("FDATA_SIZE", Kind::DATA_SIZE),
    Child("FDEPOSIT", Kind::DEPOSIT),
    Child("FS_REC_LAYOUT", Kind::S_REC_LAYOUT),
};
constexpr ObjectTable kModCommon = MakeTable<kModCommonRows>();

constexpr Row kCalibrationHandleRows[] = {
    Field("FHANDLE", Joined<&VoA2LElementCalibrationHandle::HANDLE>()),
    Child("FHANDLE_TEXT", Kind::CALIBRATION_HANDLE_TEXT),
};
constexpr ObjectTable kCalibrationHandle = MakeTable<kCalibrationHandleRows>();

constexpr Row kCalibrationMethodRows[] = {
    Children("FCALIBRATION_HANDLE", Kind::CALIBRATION_HANDLE, kCalibrationHandle),
    Field("FMETHOD", Value<&VoA2LElementCalibrationMethod::METHOD>()),
    Field("FVERSION", Value<&VoA2LElementCalibrationMethod::VERSION>()),
};
constexpr ObjectTable kCalibrationMethod = MakeTable<kCalibrationMethodRows>();

constexpr Row kMemoryLayoutRows[] = {
    Field("FADDRESS", AddressOf<&VoA2LElementMemoryLayout::ADDRESS>()),
    Children("FIF_DATA", Kind::IF_DATA, kIfData),
    Field("FOFFSET", Joined<&VoA2LElementMemoryLayout::OFFSET>()),
    Field("FPRG_TYPE", WordOf<&VoA2LElementMemoryLayout::PRG_TYPE, words::kLayoutProgramType>()),
    Field("FSIZE", Value<&VoA2LElementMemoryLayout::SIZE>()),
};
constexpr ObjectTable kMemoryLayout = MakeTable<kMemoryLayoutRows>();

constexpr Row kMemorySegmentRows[] = {
    Field("FADDRESS", AddressOf<&VoA2LElementMemorySegment::ADDRESS>()),
    Field("FATTRIBUTE", WordOf<&VoA2LElementMemorySegment::ATTRIBUTE, words::kMemoryAttribute>()),
    Children("FIF_DATA", Kind::IF_DATA, kIfData),
    Field("FLONG_IDENTIFIER", Value<&VoA2LElementMemorySegment::LONG_IDENTIFIER>()),
    Field("FMEMORY_TYPE", WordOf<&VoA2LElementMemorySegment::MEMORY_TYPE, words::kMemoryType>()),
    Field("FNAME", Value<&VoA2LElementMemorySegment::NAME>()),
    Field("FOFFSET", Joined<&VoA2LElementMemorySegment::OFFSET>()),
    Field("FPRG_TYPE", WordOf<&VoA2LElementMemorySegment::PRG_TYPE, words::kSegmentProgramType>()),
    Field("FSIZE", Value<&VoA2LElementMemorySegment::SIZE>()),
};
constexpr ObjectTable kMemorySegment = MakeTable<kMemorySegmentRows>();

constexpr Row kSystemConstantRows[] = {
    Field("FNAME", Value<&VoA2LElementSystemConstant::NAME>()),
    Field("FVALUE", Value<&VoA2LElementSystemConstant::VALUE>()),
};
constexpr ObjectTable kSystemConstant = MakeTable<kSystemConstantRows>();

// All addresses of the identification in one text; nothing where there is none.
const Element* FindAddrEpk(const Element& modPar) {
  for (const Element* child : modPar.children) {
    if (child->kind == Kind::ADDR_EPK) return &modPar;
  }
  return nullptr;
}
constexpr Form kAddrEpk = BuiltTextForm{[](const Element& modPar, std::string& text) {
  std::vector<std::uint32_t> addresses;
  for (const Element* child : modPar.children) {
    if (child->kind == Kind::ADDR_EPK) {
      addresses.push_back(FieldOf<&VoA2LElementAddrEPK::ADDR_EPK>(*child));
    }
  }
  AppendJoined(text, addresses);
}};
constexpr Row kModParRows[] = {
    Found("FADDR_EPK", FindAddrEpk, kAddrEpk),
    Children("FCALIBRATION_METHOD", Kind::CALIBRATION_METHOD, kCalibrationMethod),
    Field("FCOMMENT", Value<&VoA2LElementModPar::COMMENT>()),
    Child("FCPU_TYPE", Kind::CPU_TYPE),
    Child("FCUSTOMER", Kind::CUSTOMER),
    Child("FCUSTOMER_NO", Kind::CUSTOMER_NO),
    Child("FECU", Kind::ECU),
    Child("FECU_CALIBRATION_OFFSET", Kind::ECU_CALIBRATION_OFFSET),
    Child("FEPK", Kind::EPK),
    Children("FMEMORY_LAYOUT", Kind::MEMORY_LAYOUT, kMemoryLayout),
    Children("FMEMORY_SEGMENT", Kind::MEMORY_SEGMENT, kMemorySegment),
    Child("FNO_OF_INTERFACES", Kind::NO_OF_INTERFACES),
    Child("FPHONE_NO", Kind::PHONE_NO),
    Child("FSUPPLIER", Kind::SUPPLIER),
    Children("FSYSTEM_CONSTANT", Kind::SYSTEM_CONSTANT, kSystemConstant),
    Child("FUSER", Kind::USER),
    Child("FVERSION", Kind::VERSION),
};
constexpr ObjectTable kModPar = MakeTable<kModParRows>();

// The groups of all REF_GROUP blocks; no comma stands between two blocks.
constexpr Form kRefGroups = BuiltTextForm{[](const Element& userRights, std::string& text) {
  for (const Element* child : userRights.children) {
    if (child->kind == Kind::REF_GROUP) {
      AppendJoined(text, FieldOf<&VoA2LElementRefGroup::IDENTIFIER_LIST>(*child));
    }
  }
}};
constexpr Row kUserRightsRows[] = {
    Flag("FREAD_ONLY", Kind::READ_ONLY),
    Field("FREF_GROUP", kRefGroups),
    Field("FUSER_LEVEL_ID", Value<&VoA2LElementUserRights::USER_LEVEL_ID>()),
};
constexpr ObjectTable kUserRights = MakeTable<kUserRightsRows>();

// The addresses count only where they come first in the block.
const Element* FindVarAddress(const Element& characteristic) {
  const Element* first = characteristic.Child(0);
  return first != nullptr && first->kind == Kind::VAR_ADDRESS ? first : nullptr;
}
constexpr Row kVarCharacteristicRows[] = {
    Field("FCRITERION_NAME", Joined<&VoA2LElementVarCharacteristic::CRITERION_NAME>()),
    Field("FNAME", Value<&VoA2LElementVarCharacteristic::NAME>()),
    Found("FVAR_ADDRESS", FindVarAddress, Joined<&VoA2LElementVarAddress::VAR_ADDRESS>()),
};
constexpr ObjectTable kVarCharacteristic = MakeTable<kVarCharacteristicRows>();

constexpr Row kVarCriterionRows[] = {
    Field("FLONG_IDENTIFIER", Value<&VoA2LElementVarCriterion::LONG_IDENTIFIER>()),
    Field("FNAME", Value<&VoA2LElementVarCriterion::NAME>()),
    Field("FVALUE", Joined<&VoA2LElementVarCriterion::VALUE>()),
    Child("FVAR_MEASUREMENT", Kind::VAR_MEASUREMENT),
    Child("FVAR_SELECTION_CHARACTERISTIC", Kind::VAR_SELECTION_CHARACTERISTIC),
};
constexpr ObjectTable kVarCriterion = MakeTable<kVarCriterionRows>();

// An object whose keys are the names of the criteria.
constexpr Form kForbiddenCombination = NamedValuesForm{[](const Element& element) {
  return NamedValues{FieldOf<&VoA2LElementVarForbiddenComb::CRITERION_NAME>(element),
                     FieldOf<&VoA2LElementVarForbiddenComb::VALUE>(element)};
}};
constexpr Row kVariantCodingRows[] = {
    Children("FVAR_CHARACTERISTIC", Kind::VAR_CHARACTERISTIC, kVarCharacteristic),
    Children("FVAR_CRITERION", Kind::VAR_CRITERION, kVarCriterion),
    {.key = "FVAR_FORBIDDEN_COMB",
     .source = Source::Children,
     .absent = Absent::EmptyArray,
     .kind = Kind::VAR_FORBIDDEN_COMB,
     .form = kForbiddenCombination},
    Child("FVAR_NAMING", Kind::VAR_NAMING),
    Child("FVAR_SEPARATOR", Kind::VAR_SEPARATOR),
};
constexpr ObjectTable kVariantCoding = MakeTable<kVariantCodingRows>();

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

const ObjectTable& ModuleTable() {
  return kModule;
}

}  // namespace a2l
