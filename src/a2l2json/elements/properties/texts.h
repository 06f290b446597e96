// SPDX-License-Identifier: MIT
//
// Properties with one text in double quotes. A value without quotes is stored as empty text,
// without a complaint.
#pragma once

#include "a2l2json/elements/element_class.h"

namespace a2l {

/// Title of an annotation.
struct VoA2LElementAnnotationLabel final
    : Property<VoA2LElementAnnotationLabel, Kind::ANNOTATION_LABEL> {
  std::string_view ANNOTATION_LABEL;
  static constexpr auto parameters = Parameters(Text(&Self::ANNOTATION_LABEL));
  static constexpr std::string_view line = "ANNOTATION_LABEL {0}";
};

/// Who or what wrote an annotation.
struct VoA2LElementAnnotationOrigin final
    : Property<VoA2LElementAnnotationOrigin, Kind::ANNOTATION_ORIGIN> {
  std::string_view ANNOTATION_ORIGIN;
  static constexpr auto parameters = Parameters(Text(&Self::ANNOTATION_ORIGIN));
  static constexpr std::string_view line = "ANNOTATION_ORIGIN {0}";
};

/// Text that goes with the handles of a calibration method. It is written under the keyword
/// CALIBRATION_ACCESS, the form in which it has always been handed on.
struct VoA2LElementCalibrationHandleText final
    : Property<VoA2LElementCalibrationHandleText, Kind::CALIBRATION_HANDLE_TEXT> {
  std::string_view HANDLE_TEXT;
  static constexpr auto parameters = Parameters(Text(&Self::HANDLE_TEXT));
  static constexpr std::string_view line = "CALIBRATION_ACCESS {0}";
};

/// Processor of the control unit.
struct VoA2LElementCPUType final : Property<VoA2LElementCPUType, Kind::CPU_TYPE> {
  std::string_view CPU_TYPE;
  static constexpr auto parameters = Parameters(Text(&Self::CPU_TYPE));
  static constexpr std::string_view line = "CPU_TYPE {0}";
};

/// Name of the customer.
struct VoA2LElementCustomer final : Property<VoA2LElementCustomer, Kind::CUSTOMER> {
  std::string_view CUSTOMER;
  static constexpr auto parameters = Parameters(Text(&Self::CUSTOMER));
  static constexpr std::string_view line = "CUSTOMER {0}";
};

/// Customer's number.
struct VoA2LElementCustomerNo final : Property<VoA2LElementCustomerNo, Kind::CUSTOMER_NO> {
  std::string_view CUSTOMER_NO;
  static constexpr auto parameters = Parameters(Text(&Self::CUSTOMER_NO));
  static constexpr std::string_view line = "CUSTOMER_NO {0}";
};

/// Text for values that a conversion table does not list.
struct VoA2LElementDefaultValue final : Property<VoA2LElementDefaultValue, Kind::DEFAULT_VALUE> {
  std::string_view DEFAULT_VALUE;
  static constexpr auto parameters = Parameters(Text(&Self::DEFAULT_VALUE));
  static constexpr std::string_view line = "DEFAULT_VALUE {0}";
};

/// Name of the control unit.
struct VoA2LElementECU final : Property<VoA2LElementECU, Kind::ECU> {
  std::string_view ECU;
  static constexpr auto parameters = Parameters(Text(&Self::ECU));
  static constexpr std::string_view line = "ECU {0}";
};

/// Identification of the program version.
struct VoA2LElementEPK final : Property<VoA2LElementEPK, Kind::EPK> {
  std::string_view EPK;
  static constexpr auto parameters = Parameters(Text(&Self::EPK));
  static constexpr std::string_view line = "EPK {0}";
};

/// Display format of values. An empty one is wrong.
struct VoA2LElementFormat final : Property<VoA2LElementFormat, Kind::FORMAT> {
  std::string_view FORMAT;
  static constexpr auto parameters = Parameters(Text(&Self::FORMAT));
  static constexpr std::string_view line = "FORMAT {0}";

  bool ParseParameters(std::string_view& text) override {
    return Property::ParseParameters(text) && !FORMAT.empty();
  }
};

/// Formula from physical to raw values.
struct VoA2LElementFormulaInv final : Property<VoA2LElementFormulaInv, Kind::FORMULA_INV> {
  std::string_view FORMULA_INV;
  static constexpr auto parameters = Parameters(Text(&Self::FORMULA_INV));
  static constexpr std::string_view line = "FORMULA_INV {0}";
};

/// Version of a function.
struct VoA2LElementFunctionVersion final
    : Property<VoA2LElementFunctionVersion, Kind::FUNCTION_VERSION> {
  std::string_view FUNCTION_VERSION;
  static constexpr auto parameters = Parameters(Text(&Self::FUNCTION_VERSION));
  static constexpr std::string_view line = "FUNCTION_VERSION {0}";
};

/// Place of an object in the model it comes from.
struct VoA2LElementModelLink final : Property<VoA2LElementModelLink, Kind::MODEL_LINK> {
  std::string_view MODEL_LINK;
  static constexpr auto parameters = Parameters(Text(&Self::MODEL_LINK));
  static constexpr std::string_view line = "MODEL_LINK {0}";
  static constexpr auto revision = kRevision171;
};

/// Telephone number of the calibration engineer.
struct VoA2LElementPhoneNo final : Property<VoA2LElementPhoneNo, Kind::PHONE_NO> {
  std::string_view PHONE_NO;
  static constexpr auto parameters = Parameters(Text(&Self::PHONE_NO));
  static constexpr std::string_view line = "PHONE_NO {0}";
};

/// Physical unit of the values.
struct VoA2LElementPhysUnit final : Property<VoA2LElementPhysUnit, Kind::PHYS_UNIT> {
  std::string_view PHYS_UNIT;
  static constexpr auto parameters = Parameters(Text(&Self::PHYS_UNIT));
  static constexpr std::string_view line = "PHYS_UNIT {0}";
};

/// Name of the supplier.
struct VoA2LElementSupplier final : Property<VoA2LElementSupplier, Kind::SUPPLIER> {
  std::string_view SUPPLIER;
  static constexpr auto parameters = Parameters(Text(&Self::SUPPLIER));
  static constexpr std::string_view line = "SUPPLIER {0}";
};

/// Name of the type in the linker map.
struct VoA2LElementSymbolTypeLink final
    : Property<VoA2LElementSymbolTypeLink, Kind::SYMBOL_TYPE_LINK> {
  std::string_view SYMBOL_TYPE_LINK;
  static constexpr auto parameters = Parameters(Text(&Self::SYMBOL_TYPE_LINK));
  static constexpr std::string_view line = "SYMBOL_TYPE_LINK {0}";
  static constexpr auto revision = kRevision171;
};

/// Name of the user.
struct VoA2LElementUser final : Property<VoA2LElementUser, Kind::USER> {
  std::string_view USER;
  static constexpr auto parameters = Parameters(Text(&Self::USER));
  static constexpr std::string_view line = "USER {0}";
};

/// Separator in the names of variant-coded objects.
struct VoA2LElementVarSeparator final : Property<VoA2LElementVarSeparator, Kind::VAR_SEPARATOR> {
  std::string_view VAR_SEPARATOR;
  static constexpr auto parameters = Parameters(Text(&Self::VAR_SEPARATOR));
  static constexpr std::string_view line = "VAR_SEPARATOR {0}";
};

/// Version of the described data.
struct VoA2LElementVersion final : Property<VoA2LElementVersion, Kind::VERSION> {
  std::string_view VERSION;
  static constexpr auto parameters = Parameters(Text(&Self::VERSION));
  static constexpr std::string_view line = "VERSION {0}";
};

/// A constant of the control unit: its name and its value, both texts.
struct VoA2LElementSystemConstant final
    : Property<VoA2LElementSystemConstant, Kind::SYSTEM_CONSTANT> {
  std::string_view NAME;
  std::string_view VALUE;
  static constexpr auto parameters = Parameters(Text(&Self::NAME), Text(&Self::VALUE));
  static constexpr std::string_view line = "SYSTEM_CONSTANT {0} {1}";
};

}  // namespace a2l
