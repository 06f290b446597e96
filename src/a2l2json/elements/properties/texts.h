// SPDX-License-Identifier: MIT
//
// Properties with one text in double quotes. A value without quotes is stored as empty text,
// without a complaint.
#pragma once

#include "a2l2json/elements/element_class.h"

#include "a2l2json/names_begin.h"

namespace a2l {

/// Title of an annotation.
struct VoA2LElementAnnotationLabel final
    : detail::Property<VoA2LElementAnnotationLabel, ElementKind::ANNOTATION_LABEL> {
  std::string_view ANNOTATION_LABEL;
  static constexpr Parameter parameters[] = {Text<&Self::ANNOTATION_LABEL>};
};

/// Who or what wrote an annotation.
struct VoA2LElementAnnotationOrigin final
    : detail::Property<VoA2LElementAnnotationOrigin, ElementKind::ANNOTATION_ORIGIN> {
  std::string_view ANNOTATION_ORIGIN;
  static constexpr Parameter parameters[] = {Text<&Self::ANNOTATION_ORIGIN>};
};

/// Text that goes with the handles of a calibration method. It is written under the keyword
/// CALIBRATION_ACCESS, the form in which it has always been handed on.
struct VoA2LElementCalibrationHandleText final
    : detail::Property<VoA2LElementCalibrationHandleText, ElementKind::CALIBRATION_HANDLE_TEXT> {
  std::string_view HANDLE_TEXT;
  static constexpr Parameter parameters[] = {Text<&Self::HANDLE_TEXT>};
  static constexpr ElementKind writtenAs = ElementKind::CALIBRATION_ACCESS;
};

/// Processor of the control unit.
struct VoA2LElementCPUType final : detail::Property<VoA2LElementCPUType, ElementKind::CPU_TYPE> {
  std::string_view CPU_TYPE;
  static constexpr Parameter parameters[] = {Text<&Self::CPU_TYPE>};
};

/// Name of the customer.
struct VoA2LElementCustomer final : detail::Property<VoA2LElementCustomer, ElementKind::CUSTOMER> {
  std::string_view CUSTOMER;
  static constexpr Parameter parameters[] = {Text<&Self::CUSTOMER>};
};

/// Customer's number.
struct VoA2LElementCustomerNo final
    : detail::Property<VoA2LElementCustomerNo, ElementKind::CUSTOMER_NO> {
  std::string_view CUSTOMER_NO;
  static constexpr Parameter parameters[] = {Text<&Self::CUSTOMER_NO>};
};

/// Text for values that a conversion table does not list.
struct VoA2LElementDefaultValue final
    : detail::Property<VoA2LElementDefaultValue, ElementKind::DEFAULT_VALUE> {
  std::string_view DEFAULT_VALUE;
  static constexpr Parameter parameters[] = {Text<&Self::DEFAULT_VALUE>};
};

/// Name of the control unit.
struct VoA2LElementECU final : detail::Property<VoA2LElementECU, ElementKind::ECU> {
  std::string_view ECU;
  static constexpr Parameter parameters[] = {Text<&Self::ECU>};
};

/// Identification of the program version.
struct VoA2LElementEPK final : detail::Property<VoA2LElementEPK, ElementKind::EPK> {
  std::string_view EPK;
  static constexpr Parameter parameters[] = {Text<&Self::EPK>};
};

/// Display format of values. An empty one is wrong.
struct VoA2LElementFormat final : detail::Property<VoA2LElementFormat, ElementKind::FORMAT> {
  std::string_view FORMAT;
  static constexpr Parameter parameters[] = {Text<&Self::FORMAT>};

  bool TakeParameters(TreeStore& store, TokenReader& tokens) override {
    return Property::TakeParameters(store, tokens) && !FORMAT.empty();
  }
};

/// Formula from physical to raw values.
struct VoA2LElementFormulaInv final
    : detail::Property<VoA2LElementFormulaInv, ElementKind::FORMULA_INV> {
  std::string_view FORMULA_INV;
  static constexpr Parameter parameters[] = {Text<&Self::FORMULA_INV>};
};

/// Version of a function.
struct VoA2LElementFunctionVersion final
    : detail::Property<VoA2LElementFunctionVersion, ElementKind::FUNCTION_VERSION> {
  std::string_view FUNCTION_VERSION;
  static constexpr Parameter parameters[] = {Text<&Self::FUNCTION_VERSION>};
};

/// Place of an object in the model it comes from.
struct VoA2LElementModelLink final
    : detail::Property<VoA2LElementModelLink, ElementKind::MODEL_LINK> {
  std::string_view MODEL_LINK;
  static constexpr Parameter parameters[] = {Text<&Self::MODEL_LINK>};
  static constexpr std::uint32_t revision = kRevision171;
};

/// Telephone number of the calibration engineer.
struct VoA2LElementPhoneNo final : detail::Property<VoA2LElementPhoneNo, ElementKind::PHONE_NO> {
  std::string_view PHONE_NO;
  static constexpr Parameter parameters[] = {Text<&Self::PHONE_NO>};
};

/// Physical unit of the values.
struct VoA2LElementPhysUnit final : detail::Property<VoA2LElementPhysUnit, ElementKind::PHYS_UNIT> {
  std::string_view PHYS_UNIT;
  static constexpr Parameter parameters[] = {Text<&Self::PHYS_UNIT>};
};

/// Name of the supplier.
struct VoA2LElementSupplier final : detail::Property<VoA2LElementSupplier, ElementKind::SUPPLIER> {
  std::string_view SUPPLIER;
  static constexpr Parameter parameters[] = {Text<&Self::SUPPLIER>};
};

/// Name of the type in the linker map.
struct VoA2LElementSymbolTypeLink final
    : detail::Property<VoA2LElementSymbolTypeLink, ElementKind::SYMBOL_TYPE_LINK> {
  std::string_view SYMBOL_TYPE_LINK;
  static constexpr Parameter parameters[] = {Text<&Self::SYMBOL_TYPE_LINK>};
  static constexpr std::uint32_t revision = kRevision171;
};

/// Name of the user.
struct VoA2LElementUser final : detail::Property<VoA2LElementUser, ElementKind::USER> {
  std::string_view USER;
  static constexpr Parameter parameters[] = {Text<&Self::USER>};
};

/// Separator in the names of variant-coded objects.
struct VoA2LElementVarSeparator final
    : detail::Property<VoA2LElementVarSeparator, ElementKind::VAR_SEPARATOR> {
  std::string_view VAR_SEPARATOR;
  static constexpr Parameter parameters[] = {Text<&Self::VAR_SEPARATOR>};
};

/// Version of the described data.
struct VoA2LElementVersion final : detail::Property<VoA2LElementVersion, ElementKind::VERSION> {
  std::string_view VERSION;
  /// VERSION, for files where that is a macro; see names_begin.h.
  [[nodiscard]] auto VERSION_() const { return VERSION; }
  static constexpr Parameter parameters[] = {Text<&Self::VERSION>};
};

/// A constant of the control unit: its name and its value, both texts.
struct VoA2LElementSystemConstant final
    : detail::Property<VoA2LElementSystemConstant, ElementKind::SYSTEM_CONSTANT> {
  std::string_view NAME;
  std::string_view VALUE;
  static constexpr Parameter parameters[] = {Text<&Self::NAME>, Text<&Self::VALUE>};
};

}  // namespace a2l

#include "a2l2json/names_end.h"
