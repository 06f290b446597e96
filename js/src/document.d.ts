// SPDX-License-Identifier: MIT
//
// The document of an A2L file. Made from docs/json.schema.json by `npm run types`.

/**
 * What a2l2json makes of one A2L file. Generated from the tables of the program.
 */
export interface A2LDocument {
  /**
   * `A2ML_VERSION`, second parameter; null without it.
   */
  FA2ML_VERSION_UPGRADE_NO: number | null;
  /**
   * `A2ML_VERSION`, first parameter; null without it.
   */
  FA2ML_VERSION_VERSION_NO: number | null;
  /**
   * `ASAP2_VERSION`, second parameter; null without it.
   */
  FASAP2_VERSION_UPGRADE_NO: number | null;
  /**
   * `ASAP2_VERSION`, first parameter; null without it.
   */
  FASAP2_VERSION_VERSION_NO: number | null;
  /**
   * Always null.
   */
  FBaseA2LName: null;
  /**
   * Name of the first `MODULE`; null without it.
   */
  FDatabaseName: string | null;
  /**
   * All `MODULE`; [] without it.
   */
  FModules: MODULE[];
  /**
   * `HEADER`, parameter; null without it.
   */
  FProject_HEADER_COMMENT: string | null;
  /**
   * `PROJECT_NO` in the `HEADER`; null without it.
   */
  FProject_HEADER_PROJECT_NO: string | null;
  /**
   * `VERSION` in the `HEADER`; null without it.
   */
  FProject_HEADER_VERSION: string | null;
  /**
   * `PROJECT`, second parameter; null without it.
   */
  FProject_LONG_IDENTIFIER: string | null;
  /**
   * `PROJECT`, first parameter; null without it.
   */
  FProject_Name: string | null;
}
/**
 * `MODULE`.
 */
export interface MODULE {
  /**
   * `A2ML`, all that stands in it; null without it.
   */
  FA2ML: string | null;
  /**
   * All `AXIS_PTS`; [] without it.
   */
  FAXIS_PTS: AXIS_PTS[];
  /**
   * All `BLOB`; [] without it.
   */
  FBLOB: BLOB[];
  /**
   * All `CHARACTERISTIC`; [] without it.
   */
  FCHARACTERISTIC: CHARACTERISTIC[];
  /**
   * All `COMPU_METHOD`; [] without it.
   */
  FCOMPU_METHOD: COMPU_METHOD[];
  /**
   * All `COMPU_TAB`; [] without it.
   */
  FCOMPU_TAB: COMPU_TAB[];
  /**
   * All `COMPU_VTAB`; [] without it.
   */
  FCOMPU_VTAB: COMPU_VTAB[];
  /**
   * All `COMPU_VTAB_RANGE`; [] without it.
   */
  FCOMPU_VTAB_RANGE: COMPU_VTAB_RANGE[];
  /**
   * `FRAME`; null without it.
   */
  FFRAME: FRAME | null;
  /**
   * All `FUNCTION`; [] without it.
   */
  FFUNCTION: FUNCTION[];
  /**
   * All `GROUP`; [] without it.
   */
  FGROUP: GROUP[];
  /**
   * All `IF_DATA`; [] without it.
   */
  FIF_DATA: IF_DATA[];
  /**
   * All `INSTANCE`; [] without it.
   */
  FINSTANCE: INSTANCE[];
  /**
   * Parameter.
   */
  FLONG_IDENTIFIER: string;
  /**
   * All `MEASUREMENT`; [] without it.
   */
  FMEASUREMENT: MEASUREMENT[];
  /**
   * `MOD_COMMON`; null without it.
   */
  FMOD_COMMON: MOD_COMMON | null;
  /**
   * `MOD_PAR`; null without it.
   */
  FMOD_PAR: MOD_PAR | null;
  /**
   * Parameter.
   */
  FNAME: string;
  /**
   * All `RECORD_LAYOUT`; [] without it.
   */
  FRECORD_LAYOUT: RECORD_LAYOUT[];
  /**
   * All `TRANSFORMER`; [] without it.
   */
  FTRANSFORMER: TRANSFORMER[];
  /**
   * All `TYPEDEF_AXIS`; [] without it.
   */
  FTYPEDEF_AXIS: TYPEDEF_AXIS[];
  /**
   * All `TYPEDEF_BLOB`; [] without it.
   */
  FTYPEDEF_BLOB: TYPEDEF_BLOB[];
  /**
   * All `TYPEDEF_CHARACTERISTIC`; [] without it.
   */
  FTYPEDEF_CHARACTERISTIC: TYPEDEF_CHARACTERISTIC[];
  /**
   * All `TYPEDEF_MEASUREMENT`; [] without it.
   */
  FTYPEDEF_MEASUREMENT: TYPEDEF_MEASUREMENT[];
  /**
   * All `TYPEDEF_STRUCTURE`; [] without it.
   */
  FTYPEDEF_STRUCTURE: TYPEDEF_STRUCTURE[];
  /**
   * All `UNIT`; [] without it.
   */
  FUNIT: UNIT[];
  /**
   * All `USER_RIGHTS`; [] without it.
   */
  FUSER_RIGHTS: USER_RIGHTS[];
  /**
   * `VARIANT_CODING`; null without it.
   */
  FVARIANT_CODING: VARIANT_CODING | null;
}
/**
 * `AXIS_PTS`.
 */
export interface AXIS_PTS {
  /**
   * Parameter.
   */
  FADDRESS: string;
  /**
   * All `ANNOTATION`; [] without it.
   */
  FANNOTATION: ANNOTATION[];
  /**
   * `BYTE_ORDER`; null without it. Empty where the file has no known word.
   */
  FBYTE_ORDER: "LITTLE_ENDIAN" | "BIG_ENDIAN" | "MSB_LAST" | "MSB_FIRST" | "" | null;
  /**
   * `CALIBRATION_ACCESS`; null without it. Empty where the file has no known word. No file gives `NO_CALIBRATION`: `CALIBRATION`, which is part of it, is read instead. Only code can set it. No file gives `OFFLINE_CALIBRATION`: `CALIBRATION`, which is part of it, is read instead. Only code can set it.
   */
  FCALIBRATION_ACCESS:
    "CALIBRATION" | "NO_CALIBRATION" | "NOT_IN_MCD_SYSTEM" | "OFFLINE_CALIBRATION" | "" | null;
  /**
   * Parameter.
   */
  FCONVERSION: string;
  /**
   * Parameter: the record layout.
   */
  FDEPOSIT: string;
  /**
   * `DISPLAY_IDENTIFIER`; null without it.
   */
  FDISPLAY_IDENTIFIER: string | null;
  /**
   * `ECU_ADDRESS_EXTENSION`; null without it.
   */
  FECU_ADDRESS_EXTENSION: number | null;
  /**
   * `EXTENDED_LIMITS`; null without it.
   */
  FEXTENDED_LIMITS: EXTENDED_LIMITS | null;
  /**
   * `FORMAT`; null without it.
   */
  FFORMAT: string | null;
  /**
   * `FUNCTION_LIST`; null without it.
   */
  FFUNCTION_LIST: string | null;
  /**
   * `GUARD_RAILS`; false without it.
   */
  FGUARD_RAILS: boolean;
  /**
   * All `IF_DATA`; [] without it.
   */
  FIF_DATA: IF_DATA[];
  /**
   * Parameter.
   */
  FINPUT_QUANTITY: string;
  /**
   * False where the reader found wrong parameters.
   */
  FISVALID: boolean;
  /**
   * Parameter.
   */
  FLONG_IDENTIFIER: string;
  /**
   * Parameter.
   */
  FLOWER_LIMIT: number | null;
  /**
   * Parameter.
   */
  FMAX_AXIS_POINTS: number;
  /**
   * Parameter.
   */
  FMAX_DIFF: number | null;
  /**
   * `MAX_REFRESH`; null without it.
   */
  FMAX_REFRESH: MAX_REFRESH | null;
  /**
   * `MODEL_LINK`; null without it.
   */
  FMODEL_LINK: string | null;
  /**
   * `MONOTONY`; null without it. Empty where the file has no known word.
   */
  FMONOTONY:
    | "MON_DECREASE"
    | "MON_INCREASE"
    | "STRICT_DECREASE"
    | "STRICT_INCREASE"
    | "MONOTONOUS"
    | "STRICT_MON"
    | "NOT_MON"
    | ""
    | null;
  /**
   * Parameter.
   */
  FNAME: string;
  /**
   * `PHYS_UNIT`; null without it.
   */
  FPHYS_UNIT: string | null;
  /**
   * `READ_ONLY`; false without it.
   */
  FREAD_ONLY: boolean;
  /**
   * `REF_MEMORY_SEGMENT`; null without it.
   */
  FREF_MEMORY_SEGMENT: string | null;
  /**
   * `STEP_SIZE`; null without it.
   */
  FSTEP_SIZE: number | null;
  /**
   * `SYMBOL_LINK`; null without it.
   */
  FSYMBOL_LINK: SYMBOL_LINK | null;
  /**
   * Parameter.
   */
  FUPPER_LIMIT: number | null;
}
/**
 * `ANNOTATION`.
 */
export interface ANNOTATION {
  /**
   * `ANNOTATION_LABEL`; no key without it.
   */
  FANNOTATION_LABEL?: string;
  /**
   * `ANNOTATION_ORIGIN`; no key without it.
   */
  FANNOTATION_ORIGIN?: string;
  /**
   * `ANNOTATION_TEXT`, its texts put together; no key without it.
   */
  FANNOTATION_TEXT?: string;
}
/**
 * `EXTENDED_LIMITS`.
 */
export interface EXTENDED_LIMITS {
  /**
   * Parameter.
   */
  FLOWER_LIMIT: number | null;
  /**
   * Parameter.
   */
  FUPPER_LIMIT: number | null;
}
/**
 * `IF_DATA`.
 */
export interface IF_DATA {
  /**
   * All that follows the name.
   */
  FIF_DATA: string;
  /**
   * The first word.
   */
  FNAME: string;
}
/**
 * `MAX_REFRESH`.
 */
export interface MAX_REFRESH {
  /**
   * Parameter.
   */
  FRATE: number;
  /**
   * Parameter.
   */
  FSCALING_UNIT: number;
}
/**
 * `SYMBOL_LINK`.
 */
export interface SYMBOL_LINK {
  /**
   * Parameter.
   */
  FOFFSET: number;
  /**
   * Parameter.
   */
  FSYMBOL_NAME: string;
}
/**
 * `BLOB`.
 */
export interface BLOB {
  /**
   * Parameter.
   */
  FADDRESS: string;
  /**
   * `ADDRESS_TYPE`; null without it. `DIRECT` where the file has no known word. No file gives `PLONGLONG`: `PLONG`, which is part of it, is read instead. Only code can set it.
   */
  FADDRESS_TYPE: "PBYTE" | "PWORD" | "PLONG" | "PLONGLONG" | "DIRECT" | null;
  /**
   * All `ANNOTATION`; [] without it.
   */
  FANNOTATION: ANNOTATION[];
  /**
   * `CALIBRATION_ACCESS`; null without it. Empty where the file has no known word. No file gives `NO_CALIBRATION`: `CALIBRATION`, which is part of it, is read instead. Only code can set it. No file gives `OFFLINE_CALIBRATION`: `CALIBRATION`, which is part of it, is read instead. Only code can set it.
   */
  FCALIBRATION_ACCESS:
    "CALIBRATION" | "NO_CALIBRATION" | "NOT_IN_MCD_SYSTEM" | "OFFLINE_CALIBRATION" | "" | null;
  /**
   * `DISPLAY_IDENTIFIER`; null without it.
   */
  FDISPLAY_IDENTIFIER: string | null;
  /**
   * `ECU_ADDRESS_EXTENSION`; null without it.
   */
  FECU_ADDRESS_EXTENSION: number | null;
  /**
   * All `IF_DATA`; [] without it.
   */
  FIF_DATA: IF_DATA[];
  /**
   * False where the reader found wrong parameters.
   */
  FISVALID: boolean;
  /**
   * Parameter.
   */
  FLONG_IDENTIFIER: string;
  /**
   * `MAX_REFRESH`; null without it.
   */
  FMAX_REFRESH: MAX_REFRESH | null;
  /**
   * `MODEL_LINK`; null without it.
   */
  FMODEL_LINK: string | null;
  /**
   * Parameter.
   */
  FNAME: string;
  /**
   * Parameter.
   */
  FSIZE: number;
  /**
   * `SYMBOL_LINK`; null without it.
   */
  FSYMBOL_LINK: SYMBOL_LINK | null;
}
/**
 * `CHARACTERISTIC`.
 */
export interface CHARACTERISTIC {
  /**
   * Parameter.
   */
  FADDRESS: string;
  /**
   * All `ANNOTATION`; [] without it.
   */
  FANNOTATION: ANNOTATION[];
  /**
   * All `AXIS_DESCR`; [] without it.
   */
  FAXIS_DESCR: AXIS_DESCR[];
  /**
   * `BIT_MASK`; null without it.
   */
  FBIT_MASK: number | null;
  /**
   * `BYTE_ORDER`; null without it. Empty where the file has no known word.
   */
  FBYTE_ORDER: "LITTLE_ENDIAN" | "BIG_ENDIAN" | "MSB_LAST" | "MSB_FIRST" | "" | null;
  /**
   * `CALIBRATION_ACCESS`; null without it. Empty where the file has no known word. No file gives `NO_CALIBRATION`: `CALIBRATION`, which is part of it, is read instead. Only code can set it. No file gives `OFFLINE_CALIBRATION`: `CALIBRATION`, which is part of it, is read instead. Only code can set it.
   */
  FCALIBRATION_ACCESS:
    "CALIBRATION" | "NO_CALIBRATION" | "NOT_IN_MCD_SYSTEM" | "OFFLINE_CALIBRATION" | "" | null;
  /**
   * Parameter. Empty where the file has no known word.
   */
  FCHARACTERISTIC_TYPE:
    "ASCII" | "CURVE" | "MAP" | "CUBOID" | "CUBE_4" | "CUBE_5" | "VAL_BLK" | "VALUE" | "";
  /**
   * `COMPARISON_QUANTITY`; null without it.
   */
  FCOMPARISON_QUANTITY: string | null;
  /**
   * Parameter.
   */
  FCONVERSION: string;
  /**
   * `DEPENDENT_CHARACTERISTIC`; null without it.
   */
  FDEPENDENT_CHARACTERISTIC: DEPENDENT_CHARACTERISTIC | null;
  /**
   * Parameter: the record layout.
   */
  FDEPOSIT: string;
  /**
   * `DISCRETE`; false without it.
   */
  FDISCRETE: boolean;
  /**
   * `DISPLAY_IDENTIFIER`; null without it.
   */
  FDISPLAY_IDENTIFIER: string | null;
  /**
   * `ECU_ADDRESS_EXTENSION`; null without it.
   */
  FECU_ADDRESS_EXTENSION: number | null;
  /**
   * Always null.
   */
  FENCODING: null;
  /**
   * `EXTENDED_LIMITS`; null without it.
   */
  FEXTENDED_LIMITS: EXTENDED_LIMITS | null;
  /**
   * `FORMAT`; null without it.
   */
  FFORMAT: string | null;
  /**
   * `FUNCTION_LIST`; null without it.
   */
  FFUNCTION_LIST: string | null;
  /**
   * `GUARD_RAILS`; false without it.
   */
  FGUARD_RAILS: boolean;
  /**
   * All `IF_DATA`; [] without it.
   */
  FIF_DATA: IF_DATA[];
  /**
   * False where the reader found wrong parameters.
   */
  FISVALID: boolean;
  /**
   * Parameter.
   */
  FLONG_IDENTIFIER: string;
  /**
   * Parameter.
   */
  FLOWER_LIMIT: number | null;
  /**
   * `MAP_LIST`; null without it.
   */
  FMAP_LIST: string[] | null;
  /**
   * `MATRIX_DIM`; [] without it.
   */
  FMATRIX_DIM: number[];
  /**
   * Parameter.
   */
  FMAX_DIFF: number | null;
  /**
   * `MAX_REFRESH`; null without it.
   */
  FMAX_REFRESH: MAX_REFRESH | null;
  /**
   * `MODEL_LINK`; null without it.
   */
  FMODEL_LINK: string | null;
  /**
   * Parameter.
   */
  FNAME: string;
  /**
   * `NUMBER`; null without it.
   */
  FNUMBER: number | null;
  /**
   * `PHYS_UNIT`; null without it.
   */
  FPHYS_UNIT: string | null;
  /**
   * `READ_ONLY`; false without it.
   */
  FREAD_ONLY: boolean;
  /**
   * `REF_MEMORY_SEGMENT`; null without it.
   */
  FREF_MEMORY_SEGMENT: string | null;
  /**
   * `STEP_SIZE`; null without it.
   */
  FSTEP_SIZE: number | null;
  /**
   * `SYMBOL_LINK`; null without it.
   */
  FSYMBOL_LINK: SYMBOL_LINK | null;
  /**
   * Parameter.
   */
  FUPPER_LIMIT: number | null;
  /**
   * `VIRTUAL_CHARACTERISTIC`; null without it.
   */
  FVIRTUAL_CHARACTERISTIC: VIRTUAL_CHARACTERISTIC | null;
}
/**
 * `AXIS_DESCR`.
 */
export interface AXIS_DESCR {
  /**
   * All `ANNOTATION`; [] without it.
   */
  FANNOTATION: ANNOTATION[];
  /**
   * Parameter. Empty where the file has no known word.
   */
  FATTRIBUTE: "CURVE_AXIS" | "COM_AXIS" | "FIX_AXIS" | "RES_AXIS" | "STD_AXIS" | "";
  /**
   * `AXIS_PTS_REF`; null without it.
   */
  FAXIS_PTS_REF: string | null;
  /**
   * `BYTE_ORDER`; null without it. Empty where the file has no known word.
   */
  FBYTE_ORDER: "LITTLE_ENDIAN" | "BIG_ENDIAN" | "MSB_LAST" | "MSB_FIRST" | "" | null;
  /**
   * Parameter.
   */
  FCONVERSION: string;
  /**
   * `CURVE_AXIS_REF`; null without it.
   */
  FCURVE_AXIS_REF: string | null;
  /**
   * `DEPOSIT`; null without it. Empty where the file has no known word.
   */
  FDEPOSIT: "ABSOLUTE" | "DIFFERENCE" | "" | null;
  /**
   * `EXTENDED_LIMITS`; null without it.
   */
  FEXTENDED_LIMITS: EXTENDED_LIMITS | null;
  /**
   * `FIX_AXIS_PAR`; null without it.
   */
  FFIX_AXIS_PAR: FIX_AXIS_PAR | null;
  /**
   * `FIX_AXIS_PAR_DIST`; null without it.
   */
  FFIX_AXIS_PAR_DIST: FIX_AXIS_PAR_DIST | null;
  /**
   * `FIX_AXIS_PAR_LIST`; null without it.
   */
  FFIX_AXIS_PAR_LIST: string | null;
  /**
   * `FORMAT`; null without it.
   */
  FFORMAT: string | null;
  /**
   * Parameter.
   */
  FINPUT_QUANTITY: string;
  /**
   * Parameter.
   */
  FLOWER_LIMIT: number | null;
  /**
   * Parameter.
   */
  FMAX_AXIS_POINTS: number;
  /**
   * `MAX_GRAD`; null without it.
   */
  FMAX_GRAD: number | null;
  /**
   * `MONOTONY`; null without it. Empty where the file has no known word.
   */
  FMONOTONY:
    | "MON_DECREASE"
    | "MON_INCREASE"
    | "STRICT_DECREASE"
    | "STRICT_INCREASE"
    | "MONOTONOUS"
    | "STRICT_MON"
    | "NOT_MON"
    | ""
    | null;
  /**
   * `PHYS_UNIT`; null without it.
   */
  FPHYS_UNIT: string | null;
  /**
   * `READ_ONLY`; false without it.
   */
  FREAD_ONLY: boolean;
  /**
   * `STEP_SIZE`; null without it.
   */
  FSTEP_SIZE: number | null;
  /**
   * Parameter.
   */
  FUPPER_LIMIT: number | null;
}
/**
 * `FIX_AXIS_PAR`.
 */
export interface FIX_AXIS_PAR {
  /**
   * Parameter.
   */
  FNUMBERAPO: number;
  /**
   * Parameter.
   */
  FOFFSET: number;
  /**
   * Parameter.
   */
  FSHIFT: number;
}
/**
 * `FIX_AXIS_PAR_DIST`.
 */
export interface FIX_AXIS_PAR_DIST {
  /**
   * Parameter.
   */
  FDISTANCE: number | null;
  /**
   * Parameter.
   */
  FNUMBERAPO: number;
  /**
   * Parameter.
   */
  FOFFSET: number | null;
}
/**
 * `DEPENDENT_CHARACTERISTIC`.
 */
export interface DEPENDENT_CHARACTERISTIC {
  /**
   * Parameter.
   */
  FCHARACTERISTIC: string[];
  /**
   * Parameter.
   */
  FFORMULA: string;
}
/**
 * `VIRTUAL_CHARACTERISTIC`.
 */
export interface VIRTUAL_CHARACTERISTIC {
  /**
   * Parameter.
   */
  FCHARACTERISTIC: string;
  /**
   * Parameter.
   */
  FFORMULA: string;
}
/**
 * `COMPU_METHOD`.
 */
export interface COMPU_METHOD {
  /**
   * `COEFFS`; null without it.
   */
  FCOEFFS: string | null;
  /**
   * `COEFFS_LINEAR`; null without it.
   */
  FCOEFFS_LINEAR: string | null;
  /**
   * `COMPU_TAB_REF`; null without it.
   */
  FCOMPU_TAB_REF: string | null;
  /**
   * Parameter. Empty where the file has no known word.
   */
  FCONVERSION_TYPE:
    "IDENTICAL" | "FORM" | "LINEAR" | "RAT_FUNC" | "TAB_INTP" | "TAB_NOINTP" | "TAB_VERB" | "";
  /**
   * Parameter.
   */
  FFORMAT: string;
  /**
   * `FORMULA`; null without it.
   */
  FFORMULA: FORMULA | null;
  /**
   * Parameter.
   */
  FLONG_IDENTIFIER: string;
  /**
   * Parameter.
   */
  FNAME: string;
  /**
   * `REF_UNIT`; null without it.
   */
  FREF_UNIT: string | null;
  /**
   * `STATUS_STRING_REF`; null without it.
   */
  FSTATUS_STRING_REF: string | null;
  /**
   * Parameter.
   */
  FUNIT: string;
}
/**
 * `FORMULA`.
 */
export interface FORMULA {
  /**
   * Parameter.
   */
  FFORMULA: string;
  /**
   * `FORMULA_INV`; null without it.
   */
  FFORMULA_INV: string | null;
}
/**
 * `COMPU_TAB`.
 */
export interface COMPU_TAB {
  /**
   * Parameter. Empty where the file has no known word.
   */
  FCONVERSION_TYPE: "TAB_INTP" | "TAB_NOINTP" | "";
  /**
   * `DEFAULT_VALUE`; null without it.
   */
  FDEFAULT_VALUE: string | null;
  /**
   * `DEFAULT_VALUE_NUMERIC`; null without it.
   */
  FDEFAULT_VALUE_NUMERIC: number | null;
  /**
   * Rows: first value.
   */
  FIN_VAL: (number | null)[];
  /**
   * Parameter.
   */
  FLONG_IDENTIFIER: string;
  /**
   * Parameter.
   */
  FNAME: string;
  /**
   * Parameter.
   */
  FNUMBER_VALUE_PAIRS: number;
  /**
   * Rows: second value.
   */
  FOUT_VAL: (number | null)[];
}
/**
 * `COMPU_VTAB`.
 */
export interface COMPU_VTAB {
  /**
   * Parameter. Empty where the file has no known word.
   */
  FCONVERSION_TYPE: "TAB_VERB" | "";
  /**
   * `DEFAULT_VALUE`; null without it.
   */
  FDEFAULT_VALUE: string | null;
  /**
   * Rows: the value.
   */
  FIN_VAL: (number | null)[];
  /**
   * Parameter.
   */
  FLONG_IDENTIFIER: string;
  /**
   * Parameter.
   */
  FNAME: string;
  /**
   * Parameter.
   */
  FNUMBER_VALUE_PAIRS: number;
  /**
   * Rows: the text.
   */
  FOUT_VAL: string[];
}
/**
 * `COMPU_VTAB_RANGE`.
 */
export interface COMPU_VTAB_RANGE {
  /**
   * `DEFAULT_VALUE`; null without it.
   */
  FDEFAULT_VALUE: string | null;
  /**
   * Rows: second value.
   */
  FIN_VAL_MAX: (number | null)[];
  /**
   * Rows: first value.
   */
  FIN_VAL_MIN: (number | null)[];
  /**
   * Parameter.
   */
  FLONG_IDENTIFIER: string;
  /**
   * Parameter.
   */
  FNAME: string;
  /**
   * Parameter.
   */
  FNUMBER_VALUE_TRIPLES: number;
  /**
   * Rows: the text.
   */
  FOUT_VAL: string[];
}
/**
 * `FRAME`.
 */
export interface FRAME {
  /**
   * `FRAME_MEASUREMENT`; null without it.
   */
  FFRAME_MEASUREMENT: string[] | null;
  /**
   * All `IF_DATA`; [] without it.
   */
  FIF_DATA: IF_DATA[];
  /**
   * Parameter.
   */
  FLONG_IDENTIFIER: string;
  /**
   * Parameter.
   */
  FNAME: string;
  /**
   * Parameter.
   */
  FRATE: number;
  /**
   * Parameter.
   */
  FSCALING_UNIT: number;
}
/**
 * `FUNCTION`.
 */
export interface FUNCTION {
  /**
   * All `ANNOTATION`; [] without it.
   */
  FANNOTATION: ANNOTATION[];
  /**
   * `AR_COMPONENT`; null without it.
   */
  FAR_COMPONENT: string | null;
  /**
   * `AR_PROTOTYPE_OF` in an `AR_COMPONENT`; null without it.
   */
  FAR_PROTOTYPE_OF: string | null;
  /**
   * `DEF_CHARACTERISTIC`; null without it.
   */
  FDEF_CHARACTERISTIC: string | null;
  /**
   * `FUNCTION_VERSION`; null without it.
   */
  FFUNCTION_VERSION: string | null;
  /**
   * All `IF_DATA`; [] without it.
   */
  FIF_DATA: IF_DATA[];
  /**
   * `IN_MEASUREMENT`; null without it.
   */
  FIN_MEASUREMENT: string | null;
  /**
   * `LOC_MEASUREMENT`; null without it.
   */
  FLOC_MEASUREMENT: string | null;
  /**
   * Parameter.
   */
  FLONG_IDENTIFIER: string;
  /**
   * Parameter.
   */
  FNAME: string;
  /**
   * `OUT_MEASUREMENT`; null without it.
   */
  FOUT_MEASUREMENT: string | null;
  /**
   * `REF_CHARACTERISTIC`; null without it.
   */
  FREF_CHARACTERISTIC: string | null;
  /**
   * `SUB_FUNCTION`; null without it.
   */
  FSUB_FUNCTION: string | null;
}
/**
 * `GROUP`.
 */
export interface GROUP {
  /**
   * All `ANNOTATION`; [] without it.
   */
  FANNOTATION: ANNOTATION[];
  /**
   * `FUNCTION_LIST`; null without it.
   */
  FFUNCTION_LIST: string | null;
  /**
   * Parameter.
   */
  FGROUP_LONG_IDENTIFIER: string;
  /**
   * Parameter.
   */
  FGROUP_NAME: string;
  /**
   * All `IF_DATA`; [] without it.
   */
  FIF_DATA: IF_DATA[];
  /**
   * `REF_CHARACTERISTIC`; null without it.
   */
  FREF_CHARACTERISTIC: string | null;
  /**
   * `REF_MEASUREMENT`; null without it.
   */
  FREF_MEASUREMENT: string | null;
  /**
   * `ROOT`; false without it.
   */
  FROOT: boolean;
  /**
   * `SUB_GROUP`; null without it.
   */
  FSUB_GROUP: string | null;
}
/**
 * `INSTANCE`.
 */
export interface INSTANCE {
  /**
   * Parameter.
   */
  FADDRESS: string;
  /**
   * `ADDRESS_TYPE`; null without it. `DIRECT` where the file has no known word. No file gives `PLONGLONG`: `PLONG`, which is part of it, is read instead. Only code can set it.
   */
  FADDRESS_TYPE: "PBYTE" | "PWORD" | "PLONG" | "PLONGLONG" | "DIRECT" | null;
  /**
   * All `ANNOTATION`; [] without it.
   */
  FANNOTATION: ANNOTATION[];
  /**
   * `CALIBRATION_ACCESS`; null without it. Empty where the file has no known word. No file gives `NO_CALIBRATION`: `CALIBRATION`, which is part of it, is read instead. Only code can set it. No file gives `OFFLINE_CALIBRATION`: `CALIBRATION`, which is part of it, is read instead. Only code can set it.
   */
  FCALIBRATION_ACCESS:
    "CALIBRATION" | "NO_CALIBRATION" | "NOT_IN_MCD_SYSTEM" | "OFFLINE_CALIBRATION" | "" | null;
  /**
   * `DISPLAY_IDENTIFIER`; null without it.
   */
  FDISPLAY_IDENTIFIER: string | null;
  /**
   * `ECU_ADDRESS_EXTENSION`; null without it.
   */
  FECU_ADDRESS_EXTENSION: number | null;
  /**
   * All `IF_DATA`; [] without it.
   */
  FIF_DATA: IF_DATA[];
  /**
   * False where the reader found wrong parameters.
   */
  FISVALID: boolean;
  /**
   * `LAYOUT`; null without it. Empty where the file has no known word.
   */
  FLAYOUT: "ROW_DIR" | "COLUMN_DIR" | "" | null;
  /**
   * Parameter.
   */
  FLONG_IDENTIFIER: string;
  /**
   * `MATRIX_DIM`; [] without it.
   */
  FMATRIX_DIM: number[];
  /**
   * `MAX_REFRESH`; null without it.
   */
  FMAX_REFRESH: MAX_REFRESH | null;
  /**
   * `MODEL_LINK`; null without it.
   */
  FMODEL_LINK: string | null;
  /**
   * Parameter.
   */
  FNAME: string;
  /**
   * All `OVERWRITE`; null without it.
   */
  FOVERWRITE: OVERWRITE[] | null;
  /**
   * `READ_WRITE`; false without it.
   */
  FREAD_WRITE: boolean;
  /**
   * `SYMBOL_LINK`; null without it.
   */
  FSYMBOL_LINK: SYMBOL_LINK | null;
  /**
   * Parameter.
   */
  FTYPEDEF_NAME: string;
}
/**
 * `OVERWRITE`.
 */
export interface OVERWRITE {
  /**
   * Always null.
   */
  FADDRESS_TYPE: null;
  /**
   * Parameter.
   */
  FAXIS_NUMBER: number;
  /**
   * `EXTENDED_LIMITS`; null without it.
   */
  FEXTENDED_LIMITS: EXTENDED_LIMITS | null;
  /**
   * `FORMAT`; null without it.
   */
  FFORMAT: string | null;
  /**
   * `INPUT_QUANTITY`; null without it.
   */
  FINPUT_QUANTITY: string | null;
  /**
   * `LIMITS`; null without it.
   */
  FLIMITS: LIMITS | null;
  /**
   * `MONOTONY`; null without it. Empty where the file has no known word.
   */
  FMONOTONY:
    | "MON_DECREASE"
    | "MON_INCREASE"
    | "STRICT_DECREASE"
    | "STRICT_INCREASE"
    | "MONOTONOUS"
    | "STRICT_MON"
    | "NOT_MON"
    | ""
    | null;
  /**
   * Parameter.
   */
  FNAME: string;
  /**
   * `PHYS_UNIT`; null without it.
   */
  FPHYS_UNIT: string | null;
}
/**
 * `LIMITS`.
 */
export interface LIMITS {
  /**
   * Parameter.
   */
  FLOWER_LIMIT: number | null;
  /**
   * Parameter.
   */
  FUPPER_LIMIT: number | null;
}
/**
 * `MEASUREMENT`.
 */
export interface MEASUREMENT {
  /**
   * Always 0.
   */
  FACCURACY: number;
  /**
   * `ADDRESS_TYPE`; null without it. `DIRECT` where the file has no known word. No file gives `PLONGLONG`: `PLONG`, which is part of it, is read instead. Only code can set it.
   */
  FADDRESS_TYPE: "PBYTE" | "PWORD" | "PLONG" | "PLONGLONG" | "DIRECT" | null;
  /**
   * All `ANNOTATION`; [] without it.
   */
  FANNOTATION: ANNOTATION[];
  /**
   * `ARRAY_SIZE`; null without it.
   */
  FARRAY_SIZE: number | null;
  /**
   * `BIT_MASK`; null without it.
   */
  FBIT_MASK: number | null;
  /**
   * `BIT_OPERATION`; null without it.
   */
  FBIT_OPERATION: BIT_OPERATION | null;
  /**
   * `BYTE_ORDER`; null without it. Empty where the file has no known word.
   */
  FBYTE_ORDER: "LITTLE_ENDIAN" | "BIG_ENDIAN" | "MSB_LAST" | "MSB_FIRST" | "" | null;
  /**
   * Parameter.
   */
  FCONVERSION: string;
  /**
   * Parameter. `UBYTE` where the file has no known word.
   */
  FDATATYPE:
    | "UBYTE"
    | "SBYTE"
    | "UWORD"
    | "SWORD"
    | "ULONG"
    | "SLONG"
    | "A_UINT64"
    | "A_INT64"
    | "FLOAT32_IEEE"
    | "FLOAT64_IEEE";
  /**
   * `DISCRETE`; false without it.
   */
  FDISCRETE: boolean;
  /**
   * `DISPLAY_IDENTIFIER`; null without it.
   */
  FDISPLAY_IDENTIFIER: string | null;
  /**
   * `ECU_ADDRESS`; null without it.
   */
  FECU_ADDRESS: string | null;
  /**
   * `ECU_ADDRESS_EXTENSION`; null without it.
   */
  FECU_ADDRESS_EXTENSION: number | null;
  /**
   * `ERROR_MASK`; null without it.
   */
  FERROR_MASK: number | null;
  /**
   * `FORMAT`; null without it.
   */
  FFORMAT: string | null;
  /**
   * `FUNCTION_LIST`; null without it.
   */
  FFUNCTION_LIST: string | null;
  /**
   * All `IF_DATA`; [] without it.
   */
  FIF_DATA: IF_DATA[];
  /**
   * False where the reader found wrong parameters.
   */
  FISVALID: boolean;
  /**
   * `LAYOUT`; null without it. Empty where the file has no known word.
   */
  FLAYOUT: "ROW_DIR" | "COLUMN_DIR" | "" | null;
  /**
   * Parameter.
   */
  FLONG_IDENTIFIER: string;
  /**
   * Parameter.
   */
  FLOWER_LIMIT: number | null;
  /**
   * `MATRIX_DIM`; [] without it.
   */
  FMATRIX_DIM: number[];
  /**
   * `MAX_REFRESH`; null without it.
   */
  FMAX_REFRESH: MAX_REFRESH | null;
  /**
   * `MODEL_LINK`; null without it.
   */
  FMODEL_LINK: string | null;
  /**
   * Parameter.
   */
  FNAME: string;
  /**
   * `PHYS_UNIT`; null without it.
   */
  FPHYS_UNIT: string | null;
  /**
   * `READ_WRITE`; false without it.
   */
  FREAD_WRITE: boolean;
  /**
   * `REF_MEMORY_SEGMENT`; null without it.
   */
  FREF_MEMORY_SEGMENT: string | null;
  /**
   * Always 1.
   */
  FRESOLUTION: number;
  /**
   * `SYMBOL_LINK`; null without it.
   */
  FSYMBOL_LINK: SYMBOL_LINK | null;
  /**
   * Parameter.
   */
  FUPPER_LIMIT: number | null;
  /**
   * `VIRTUAL`; null without it.
   */
  FVIRTUAL: string | null;
}
/**
 * `BIT_OPERATION`.
 */
export interface BIT_OPERATION {
  /**
   * `LEFT_SHIFT`; null without it.
   */
  FLEFT_SHIFT: number | null;
  /**
   * `RIGHT_SHIFT`; null without it.
   */
  FRIGHT_SHIFT: number | null;
  /**
   * `SIGN_EXTEND`: the keyword itself; null without it.
   */
  FSIGN_EXTEND: string | null;
}
/**
 * `MOD_COMMON`.
 */
export interface MOD_COMMON {
  /**
   * `ALIGNMENT_BYTE`; null without it.
   */
  FALIGNMENT_BYTE: number | null;
  /**
   * `ALIGNMENT_FLOAT16_IEEE`; null without it.
   */
  FALIGNMENT_FLOAT16_IEEE: number | null;
  /**
   * `ALIGNMENT_FLOAT32_IEEE`; null without it.
   */
  FALIGNMENT_FLOAT32_IEEE: number | null;
  /**
   * `ALIGNMENT_FLOAT64_IEEE`; null without it.
   */
  FALIGNMENT_FLOAT64_IEEE: number | null;
  /**
   * `ALIGNMENT_INT64`; null without it.
   */
  FALIGNMENT_INT64: number | null;
  /**
   * `ALIGNMENT_LONG`; null without it.
   */
  FALIGNMENT_LONG: number | null;
  /**
   * `ALIGNMENT_WORD`; null without it.
   */
  FALIGNMENT_WORD: number | null;
  /**
   * `BYTE_ORDER`; null without it. Empty where the file has no known word.
   */
  FBYTE_ORDER: "LITTLE_ENDIAN" | "BIG_ENDIAN" | "MSB_LAST" | "MSB_FIRST" | "" | null;
  /**
   * Parameter.
   */
  FCOMMENT: string;
  /**
   * `DATA_SIZE`; null without it.
   */
  FDATA_SIZE: number | null;
  /**
   * `DEPOSIT`; null without it. Empty where the file has no known word.
   */
  FDEPOSIT: "ABSOLUTE" | "DIFFERENCE" | "" | null;
  /**
   * `S_REC_LAYOUT`; null without it.
   */
  FS_REC_LAYOUT: string | null;
}
/**
 * `MOD_PAR`.
 */
export interface MOD_PAR {
  /**
   * All `ADDR_EPK`, in decimal; null without it.
   */
  FADDR_EPK: string | null;
  /**
   * All `CALIBRATION_METHOD`; [] without it.
   */
  FCALIBRATION_METHOD: CALIBRATION_METHOD[];
  /**
   * Parameter.
   */
  FCOMMENT: string;
  /**
   * `CPU_TYPE`; null without it.
   */
  FCPU_TYPE: string | null;
  /**
   * `CUSTOMER`; null without it.
   */
  FCUSTOMER: string | null;
  /**
   * `CUSTOMER_NO`; null without it.
   */
  FCUSTOMER_NO: string | null;
  /**
   * `ECU`; null without it.
   */
  FECU: string | null;
  /**
   * `ECU_CALIBRATION_OFFSET`; null without it.
   */
  FECU_CALIBRATION_OFFSET: number | null;
  /**
   * `EPK`; null without it.
   */
  FEPK: string | null;
  /**
   * All `MEMORY_LAYOUT`; [] without it.
   */
  FMEMORY_LAYOUT: MEMORY_LAYOUT[];
  /**
   * All `MEMORY_SEGMENT`; [] without it.
   */
  FMEMORY_SEGMENT: MEMORY_SEGMENT[];
  /**
   * `NO_OF_INTERFACES`; null without it.
   */
  FNO_OF_INTERFACES: number | null;
  /**
   * `PHONE_NO`; null without it.
   */
  FPHONE_NO: string | null;
  /**
   * `SUPPLIER`; null without it.
   */
  FSUPPLIER: string | null;
  /**
   * All `SYSTEM_CONSTANT`; [] without it.
   */
  FSYSTEM_CONSTANT: SYSTEM_CONSTANT[];
  /**
   * `USER`; null without it.
   */
  FUSER: string | null;
  /**
   * `VERSION`; null without it.
   */
  FVERSION: string | null;
}
/**
 * `CALIBRATION_METHOD`.
 */
export interface CALIBRATION_METHOD {
  /**
   * All `CALIBRATION_HANDLE`; [] without it.
   */
  FCALIBRATION_HANDLE: CALIBRATION_HANDLE[];
  /**
   * Parameter.
   */
  FMETHOD: string;
  /**
   * Parameter.
   */
  FVERSION: number;
}
/**
 * `CALIBRATION_HANDLE`.
 */
export interface CALIBRATION_HANDLE {
  /**
   * Parameter.
   */
  FHANDLE: string;
  /**
   * `CALIBRATION_HANDLE_TEXT`; null without it.
   */
  FHANDLE_TEXT: string | null;
}
/**
 * `MEMORY_LAYOUT`.
 */
export interface MEMORY_LAYOUT {
  /**
   * Parameter.
   */
  FADDRESS: string;
  /**
   * All `IF_DATA`; [] without it.
   */
  FIF_DATA: IF_DATA[];
  /**
   * Parameter.
   */
  FOFFSET: string;
  /**
   * Parameter. Empty where the file has no known word.
   */
  FPRG_TYPE: "PRG_CODE" | "PRG_DATA" | "PRG_RESERVED" | "";
  /**
   * Parameter.
   */
  FSIZE: number;
}
/**
 * `MEMORY_SEGMENT`.
 */
export interface MEMORY_SEGMENT {
  /**
   * Parameter.
   */
  FADDRESS: string;
  /**
   * Parameter. Empty where the file has no known word.
   */
  FATTRIBUTE: "INTERN" | "EXTERN" | "";
  /**
   * All `IF_DATA`; [] without it.
   */
  FIF_DATA: IF_DATA[];
  /**
   * Parameter.
   */
  FLONG_IDENTIFIER: string;
  /**
   * Parameter. Empty where the file has no known word.
   */
  FMEMORY_TYPE: "EEPROM" | "EPROM" | "FLASH" | "RAM" | "ROM" | "REGISTER" | "";
  /**
   * Parameter.
   */
  FNAME: string;
  /**
   * Parameter.
   */
  FOFFSET: string;
  /**
   * Parameter. Empty where the file has no known word. No file gives `OFFLINE_DATA`: `DATA`, which is part of it, is read instead. Only code can set it.
   */
  FPRG_TYPE:
    | "CALIBRATION_VARIABLES"
    | "CODE"
    | "DATA"
    | "EXCLUDE_FROM_FLASH"
    | "OFFLINE_DATA"
    | "RESERVED"
    | "SERAM"
    | "VARIABLES"
    | "";
  /**
   * Parameter.
   */
  FSIZE: number;
}
/**
 * `SYSTEM_CONSTANT`.
 */
export interface SYSTEM_CONSTANT {
  /**
   * Parameter.
   */
  FNAME: string;
  /**
   * Parameter.
   */
  FVALUE: string;
}
/**
 * `RECORD_LAYOUT`.
 */
export interface RECORD_LAYOUT {
  /**
   * `ALIGNMENT_BYTE`; null without it.
   */
  FALIGNMENT_BYTE: number | null;
  /**
   * `ALIGNMENT_FLOAT16_IEEE`; null without it.
   */
  FALIGNMENT_FLOAT16_IEEE: number | null;
  /**
   * `ALIGNMENT_FLOAT32_IEEE`; null without it.
   */
  FALIGNMENT_FLOAT32_IEEE: number | null;
  /**
   * `ALIGNMENT_FLOAT64_IEEE`; null without it.
   */
  FALIGNMENT_FLOAT64_IEEE: number | null;
  /**
   * `ALIGNMENT_INT64`; null without it.
   */
  FALIGNMENT_INT64: number | null;
  /**
   * `ALIGNMENT_LONG`; null without it.
   */
  FALIGNMENT_LONG: number | null;
  /**
   * `ALIGNMENT_WORD` or `IDENTIFICATION`, whichever comes first; null without it.
   */
  FALIGNMENT_WORD: (number | null) | IDENTIFICATION;
  /**
   * `AXIS_PTS_4`; null without it.
   */
  FAXIS_PTS_4: AXIS_PTS_X | null;
  /**
   * `AXIS_PTS_5`; null without it.
   */
  FAXIS_PTS_5: AXIS_PTS_X | null;
  /**
   * `AXIS_PTS_X`; null without it.
   */
  FAXIS_PTS_X: AXIS_PTS_X | null;
  /**
   * `AXIS_PTS_Y`; null without it.
   */
  FAXIS_PTS_Y: AXIS_PTS_X | null;
  /**
   * `AXIS_PTS_Z`; null without it.
   */
  FAXIS_PTS_Z: AXIS_PTS_X | null;
  /**
   * `AXIS_RESCALE_4`; null without it.
   */
  FAXIS_RESCALE_4: AXIS_RESCALE_X | null;
  /**
   * `AXIS_RESCALE_5`; null without it.
   */
  FAXIS_RESCALE_5: AXIS_RESCALE_X | null;
  /**
   * `AXIS_RESCALE_X`; null without it.
   */
  FAXIS_RESCALE_X: AXIS_RESCALE_X | null;
  /**
   * `AXIS_RESCALE_Y`; null without it.
   */
  FAXIS_RESCALE_Y: AXIS_RESCALE_X | null;
  /**
   * `AXIS_RESCALE_Z`; null without it.
   */
  FAXIS_RESCALE_Z: AXIS_RESCALE_X | null;
  /**
   * `DIST_OP_4`; null without it.
   */
  FDIST_OP_4: DIST_OP_X | null;
  /**
   * `DIST_OP_5`; null without it.
   */
  FDIST_OP_5: DIST_OP_X | null;
  /**
   * `DIST_OP_X`; null without it.
   */
  FDIST_OP_X: DIST_OP_X | null;
  /**
   * `DIST_OP_Y`; null without it.
   */
  FDIST_OP_Y: DIST_OP_X | null;
  /**
   * `DIST_OP_Z`; null without it.
   */
  FDIST_OP_Z: DIST_OP_X | null;
  /**
   * `FIX_NO_AXIS_PTS_4`; null without it.
   */
  FFIX_NO_AXIS_PTS_4: FIX_NO_AXIS_PTS_X | null;
  /**
   * `FIX_NO_AXIS_PTS_5`; null without it.
   */
  FFIX_NO_AXIS_PTS_5: FIX_NO_AXIS_PTS_X | null;
  /**
   * `FIX_NO_AXIS_PTS_X`; null without it.
   */
  FFIX_NO_AXIS_PTS_X: FIX_NO_AXIS_PTS_X | null;
  /**
   * `FIX_NO_AXIS_PTS_Y`; null without it.
   */
  FFIX_NO_AXIS_PTS_Y: FIX_NO_AXIS_PTS_X | null;
  /**
   * `FIX_NO_AXIS_PTS_Z`; null without it.
   */
  FFIX_NO_AXIS_PTS_Z: FIX_NO_AXIS_PTS_X | null;
  /**
   * `FNC_VALUES`; null without it.
   */
  FFNC_VALUES: FNC_VALUES | null;
  /**
   * Always null.
   */
  FIDENTIFICATION: null;
  /**
   * Parameter.
   */
  FNAME: string;
  /**
   * `NO_AXIS_PTS_4`; null without it.
   */
  FNO_AXIS_PTS_4: NO_AXIS_PTS_X | null;
  /**
   * `NO_AXIS_PTS_5`; null without it.
   */
  FNO_AXIS_PTS_5: NO_AXIS_PTS_X | null;
  /**
   * `NO_AXIS_PTS_X`; null without it.
   */
  FNO_AXIS_PTS_X: NO_AXIS_PTS_X | null;
  /**
   * `NO_AXIS_PTS_Y`; null without it.
   */
  FNO_AXIS_PTS_Y: NO_AXIS_PTS_X | null;
  /**
   * `NO_AXIS_PTS_Z`; null without it.
   */
  FNO_AXIS_PTS_Z: NO_AXIS_PTS_X | null;
  /**
   * `NO_RESCALE_4`; null without it.
   */
  FNO_RESCALE_4: NO_RESCALE_X | null;
  /**
   * `NO_RESCALE_5`; null without it.
   */
  FNO_RESCALE_5: NO_RESCALE_X | null;
  /**
   * `NO_RESCALE_X`; null without it.
   */
  FNO_RESCALE_X: NO_RESCALE_X | null;
  /**
   * `NO_RESCALE_Y`; null without it.
   */
  FNO_RESCALE_Y: NO_RESCALE_X | null;
  /**
   * `NO_RESCALE_Z`; null without it.
   */
  FNO_RESCALE_Z: NO_RESCALE_X | null;
  /**
   * `OFFSET_4`; null without it.
   */
  FOFFSET_4: OFFSET_X | null;
  /**
   * `OFFSET_5`; null without it.
   */
  FOFFSET_5: OFFSET_X | null;
  /**
   * `OFFSET_X`; null without it.
   */
  FOFFSET_X: OFFSET_X | null;
  /**
   * `OFFSET_Y`; null without it.
   */
  FOFFSET_Y: OFFSET_X | null;
  /**
   * `OFFSET_Z`; null without it.
   */
  FOFFSET_Z: OFFSET_X | null;
  /**
   * All `RESERVED`; [] without it.
   */
  FRESERVED: RESERVED[];
  /**
   * `RIP_ADDR_4`; null without it.
   */
  FRIP_ADDR_4: RIP_ADDR_W | null;
  /**
   * `RIP_ADDR_5`; null without it.
   */
  FRIP_ADDR_5: RIP_ADDR_W | null;
  /**
   * `RIP_ADDR_W`; null without it.
   */
  FRIP_ADDR_W: RIP_ADDR_W | null;
  /**
   * `RIP_ADDR_X`; null without it.
   */
  FRIP_ADDR_X: RIP_ADDR_W | null;
  /**
   * `RIP_ADDR_Y`; null without it.
   */
  FRIP_ADDR_Y: RIP_ADDR_W | null;
  /**
   * `RIP_ADDR_Z`; null without it.
   */
  FRIP_ADDR_Z: RIP_ADDR_W | null;
  /**
   * `SHIFT_OP_4`; null without it.
   */
  FSHIFT_OP_4: SHIFT_OP_X | null;
  /**
   * `SHIFT_OP_5`; null without it.
   */
  FSHIFT_OP_5: SHIFT_OP_X | null;
  /**
   * `SHIFT_OP_X`; null without it.
   */
  FSHIFT_OP_X: SHIFT_OP_X | null;
  /**
   * `SHIFT_OP_Y`; null without it.
   */
  FSHIFT_OP_Y: SHIFT_OP_X | null;
  /**
   * `SHIFT_OP_Z`; null without it.
   */
  FSHIFT_OP_Z: SHIFT_OP_X | null;
  /**
   * `SRC_ADDR_4`; null without it.
   */
  FSRC_ADDR_4: SRC_ADDR_X | null;
  /**
   * `SRC_ADDR_5`; null without it.
   */
  FSRC_ADDR_5: SRC_ADDR_X | null;
  /**
   * `SRC_ADDR_X`; null without it.
   */
  FSRC_ADDR_X: SRC_ADDR_X | null;
  /**
   * `SRC_ADDR_Y`; null without it.
   */
  FSRC_ADDR_Y: SRC_ADDR_X | null;
  /**
   * `SRC_ADDR_Z`; null without it.
   */
  FSRC_ADDR_Z: SRC_ADDR_X | null;
  /**
   * `STATIC_ADDRESS_OFFSETS`; false without it.
   */
  FSTATIC_ADDRESS_OFFSETS: boolean;
  /**
   * `STATIC_RECORD_LAYOUT`; false without it.
   */
  FSTATIC_RECORD_LAYOUT: boolean;
}
/**
 * `IDENTIFICATION`.
 */
export interface IDENTIFICATION {
  /**
   * Parameter. `UBYTE` where the file has no known word.
   */
  FDATA_TYPE:
    | "UBYTE"
    | "SBYTE"
    | "UWORD"
    | "SWORD"
    | "ULONG"
    | "SLONG"
    | "A_UINT64"
    | "A_INT64"
    | "FLOAT32_IEEE"
    | "FLOAT64_IEEE";
  /**
   * Parameter.
   */
  FPOSITION: number;
}
/**
 * `AXIS_PTS_X`, `AXIS_PTS_Y`, `AXIS_PTS_Z`, `AXIS_PTS_4`, `AXIS_PTS_5`.
 */
export interface AXIS_PTS_X {
  /**
   * Parameter. `DIRECT` where the file has no known word. No file gives `PLONGLONG`: `PLONG`, which is part of it, is read instead. Only code can set it.
   */
  FADDRESSING: "PBYTE" | "PWORD" | "PLONG" | "PLONGLONG" | "DIRECT";
  /**
   * Parameter. `UBYTE` where the file has no known word.
   */
  FDATA_TYPE:
    | "UBYTE"
    | "SBYTE"
    | "UWORD"
    | "SWORD"
    | "ULONG"
    | "SLONG"
    | "A_UINT64"
    | "A_INT64"
    | "FLOAT32_IEEE"
    | "FLOAT64_IEEE";
  /**
   * Parameter. `INDEX_INCR` where the file has no known word.
   */
  FINDEX_INCR: "INDEX_INCR" | "INDEX_DECR";
  /**
   * Parameter.
   */
  FPOSITION: number;
}
/**
 * `AXIS_RESCALE_X`, `AXIS_RESCALE_Y`, `AXIS_RESCALE_Z`, `AXIS_RESCALE_4`, `AXIS_RESCALE_5`.
 */
export interface AXIS_RESCALE_X {
  /**
   * Parameter. `DIRECT` where the file has no known word. No file gives `PLONGLONG`: `PLONG`, which is part of it, is read instead. Only code can set it.
   */
  FADDRESSING: "PBYTE" | "PWORD" | "PLONG" | "PLONGLONG" | "DIRECT";
  /**
   * Parameter. `UBYTE` where the file has no known word.
   */
  FDATA_TYPE:
    | "UBYTE"
    | "SBYTE"
    | "UWORD"
    | "SWORD"
    | "ULONG"
    | "SLONG"
    | "A_UINT64"
    | "A_INT64"
    | "FLOAT32_IEEE"
    | "FLOAT64_IEEE";
  /**
   * Parameter. `INDEX_INCR` where the file has no known word.
   */
  FINDEX_INCR: "INDEX_INCR" | "INDEX_DECR";
  /**
   * Parameter.
   */
  FMAX_NUMBER_OF_RESCALE_PAIRS: number;
  /**
   * Parameter.
   */
  FPOSITION: number;
}
/**
 * `DIST_OP_X`, `DIST_OP_Y`, `DIST_OP_Z`, `DIST_OP_4`, `DIST_OP_5`.
 */
export interface DIST_OP_X {
  /**
   * Parameter. `UBYTE` where the file has no known word.
   */
  FDATA_TYPE:
    | "UBYTE"
    | "SBYTE"
    | "UWORD"
    | "SWORD"
    | "ULONG"
    | "SLONG"
    | "A_UINT64"
    | "A_INT64"
    | "FLOAT32_IEEE"
    | "FLOAT64_IEEE";
  /**
   * Parameter.
   */
  FPOSITION: number;
}
/**
 * `FIX_NO_AXIS_PTS_X`, `FIX_NO_AXIS_PTS_Y`, `FIX_NO_AXIS_PTS_Z`, `FIX_NO_AXIS_PTS_4`, `FIX_NO_AXIS_PTS_5`.
 */
export interface FIX_NO_AXIS_PTS_X {
  /**
   * Parameter.
   */
  FNUMBER_OF_AXIS_POINTS: number;
}
/**
 * `FNC_VALUES`.
 */
export interface FNC_VALUES {
  /**
   * Parameter: the addressing. `DIRECT` where the file has no known word. No file gives `PLONGLONG`: `PLONG`, which is part of it, is read instead. Only code can set it.
   */
  FADDRESS_TYPE: "PBYTE" | "PWORD" | "PLONG" | "PLONGLONG" | "DIRECT";
  /**
   * Parameter. `UBYTE` where the file has no known word.
   */
  FDATA_TYPE:
    | "UBYTE"
    | "SBYTE"
    | "UWORD"
    | "SWORD"
    | "ULONG"
    | "SLONG"
    | "A_UINT64"
    | "A_INT64"
    | "FLOAT32_IEEE"
    | "FLOAT64_IEEE";
  /**
   * Parameter. Empty where the file has no known word.
   */
  FINDEX_MODE:
    "ALTERNATE_CURVES" | "ALTERNATE_WITH_X" | "ALTERNATE_WITH_Y" | "COLUMN_DIR" | "ROW_DIR" | "";
  /**
   * Parameter.
   */
  FPOSITION: number;
}
/**
 * `NO_AXIS_PTS_X`, `NO_AXIS_PTS_Y`, `NO_AXIS_PTS_Z`, `NO_AXIS_PTS_4`, `NO_AXIS_PTS_5`.
 */
export interface NO_AXIS_PTS_X {
  /**
   * Parameter. `UBYTE` where the file has no known word.
   */
  FDATA_TYPE:
    | "UBYTE"
    | "SBYTE"
    | "UWORD"
    | "SWORD"
    | "ULONG"
    | "SLONG"
    | "A_UINT64"
    | "A_INT64"
    | "FLOAT32_IEEE"
    | "FLOAT64_IEEE";
  /**
   * Parameter.
   */
  FPOSITION: number;
}
/**
 * `NO_RESCALE_X`, `NO_RESCALE_Y`, `NO_RESCALE_Z`, `NO_RESCALE_4`, `NO_RESCALE_5`.
 */
export interface NO_RESCALE_X {
  /**
   * Parameter. `UBYTE` where the file has no known word.
   */
  FDATA_TYPE:
    | "UBYTE"
    | "SBYTE"
    | "UWORD"
    | "SWORD"
    | "ULONG"
    | "SLONG"
    | "A_UINT64"
    | "A_INT64"
    | "FLOAT32_IEEE"
    | "FLOAT64_IEEE";
  /**
   * Parameter.
   */
  FPOSITION: number;
}
/**
 * `OFFSET_X`, `OFFSET_Y`, `OFFSET_Z`, `OFFSET_4`, `OFFSET_5`.
 */
export interface OFFSET_X {
  /**
   * Parameter. `UBYTE` where the file has no known word.
   */
  FDATA_TYPE:
    | "UBYTE"
    | "SBYTE"
    | "UWORD"
    | "SWORD"
    | "ULONG"
    | "SLONG"
    | "A_UINT64"
    | "A_INT64"
    | "FLOAT32_IEEE"
    | "FLOAT64_IEEE";
  /**
   * Parameter.
   */
  FPOSITION: number;
}
/**
 * `RESERVED`.
 */
export interface RESERVED {
  /**
   * Parameter: the data size. `BYTE` where the file has no known word.
   */
  FDATA_TYPE: "BYTE" | "WORD" | "LONG";
  /**
   * Parameter.
   */
  FPOSITION: number;
}
/**
 * `RIP_ADDR_W`, `RIP_ADDR_X`, `RIP_ADDR_Y`, `RIP_ADDR_Z`, `RIP_ADDR_4`, `RIP_ADDR_5`.
 */
export interface RIP_ADDR_W {
  /**
   * Parameter. `UBYTE` where the file has no known word.
   */
  FDATA_TYPE:
    | "UBYTE"
    | "SBYTE"
    | "UWORD"
    | "SWORD"
    | "ULONG"
    | "SLONG"
    | "A_UINT64"
    | "A_INT64"
    | "FLOAT32_IEEE"
    | "FLOAT64_IEEE";
  /**
   * Parameter.
   */
  FPOSITION: number;
}
/**
 * `SHIFT_OP_X`, `SHIFT_OP_Y`, `SHIFT_OP_Z`, `SHIFT_OP_4`, `SHIFT_OP_5`.
 */
export interface SHIFT_OP_X {
  /**
   * Parameter. `UBYTE` where the file has no known word.
   */
  FDATA_TYPE:
    | "UBYTE"
    | "SBYTE"
    | "UWORD"
    | "SWORD"
    | "ULONG"
    | "SLONG"
    | "A_UINT64"
    | "A_INT64"
    | "FLOAT32_IEEE"
    | "FLOAT64_IEEE";
  /**
   * Parameter.
   */
  FPOSITION: number;
}
/**
 * `SRC_ADDR_X`, `SRC_ADDR_Y`, `SRC_ADDR_Z`, `SRC_ADDR_4`, `SRC_ADDR_5`.
 */
export interface SRC_ADDR_X {
  /**
   * Parameter. `UBYTE` where the file has no known word.
   */
  FDATA_TYPE:
    | "UBYTE"
    | "SBYTE"
    | "UWORD"
    | "SWORD"
    | "ULONG"
    | "SLONG"
    | "A_UINT64"
    | "A_INT64"
    | "FLOAT32_IEEE"
    | "FLOAT64_IEEE";
  /**
   * Parameter.
   */
  FPOSITION: number;
}
/**
 * `TRANSFORMER`.
 */
export interface TRANSFORMER {
  /**
   * Parameter.
   */
  FEXECUTABLE32: string;
  /**
   * Parameter.
   */
  FEXECUTABLE64: string;
  /**
   * Always empty.
   */
  FINVERSE_TRANSFORMER: string;
  /**
   * Parameter.
   */
  FNAME: string;
  /**
   * Always 0.
   */
  FTIMEOUT: number;
  /**
   * `TRANSFORMER_IN_OBJECTS`; null without it.
   */
  FTRANSFORMER_IN_OBJECTS: string[] | null;
  /**
   * `TRANSFORMER_OUT_OBJECTS`; null without it.
   */
  FTRANSFORMER_OUT_OBJECTS: string[] | null;
  /**
   * Always empty.
   */
  FTRIGGER: "ON_CHANGE" | "ON_USER_REQUEST" | "";
  /**
   * Parameter.
   */
  FVERSION: string;
}
/**
 * `TYPEDEF_AXIS`.
 */
export interface TYPEDEF_AXIS {
  /**
   * `BYTE_ORDER`; null without it. Empty where the file has no known word.
   */
  FBYTE_ORDER: "LITTLE_ENDIAN" | "BIG_ENDIAN" | "MSB_LAST" | "MSB_FIRST" | "" | null;
  /**
   * Parameter.
   */
  FCONVERSION: string;
  /**
   * `DEPOSIT`; null without it. Empty where the file has no known word.
   */
  FDEPOSIT: "ABSOLUTE" | "DIFFERENCE" | "" | null;
  /**
   * `EXTENDED_LIMITS`; null without it.
   */
  FEXTENDED_LIMITS: EXTENDED_LIMITS | null;
  /**
   * `FORMAT`; null without it.
   */
  FFORMAT: string | null;
  /**
   * Parameter.
   */
  FINPUT_QUANTITY: string;
  /**
   * Parameter.
   */
  FLONG_IDENTIFIER: string;
  /**
   * Parameter.
   */
  FLOWER_LIMIT: number | null;
  /**
   * Parameter.
   */
  FMAX_AXIS_POINTS: number;
  /**
   * Parameter.
   */
  FMAX_DIFF: number | null;
  /**
   * `MONOTONY`; null without it. Empty where the file has no known word.
   */
  FMONOTONY:
    | "MON_DECREASE"
    | "MON_INCREASE"
    | "STRICT_DECREASE"
    | "STRICT_INCREASE"
    | "MONOTONOUS"
    | "STRICT_MON"
    | "NOT_MON"
    | ""
    | null;
  /**
   * Parameter.
   */
  FNAME: string;
  /**
   * `PHYS_UNIT`; null without it.
   */
  FPHYS_UNIT: string | null;
  /**
   * Parameter.
   */
  FRECORD_LAYOUT: string;
  /**
   * `STEP_SIZE`; null without it.
   */
  FSTEP_SIZE: number | null;
  /**
   * Parameter.
   */
  FUPPER_LIMIT: number | null;
}
/**
 * `TYPEDEF_BLOB`.
 */
export interface TYPEDEF_BLOB {
  /**
   * `ADDRESS_TYPE`; null without it. `DIRECT` where the file has no known word. No file gives `PLONGLONG`: `PLONG`, which is part of it, is read instead. Only code can set it.
   */
  FADDRESS_TYPE: "PBYTE" | "PWORD" | "PLONG" | "PLONGLONG" | "DIRECT" | null;
  /**
   * Parameter.
   */
  FLONG_IDENTIFIER: string;
  /**
   * Parameter.
   */
  FNAME: string;
  /**
   * Parameter.
   */
  FSIZE: number;
}
/**
 * `TYPEDEF_CHARACTERISTIC`.
 */
export interface TYPEDEF_CHARACTERISTIC {
  /**
   * All `AXIS_DESCR`; [] without it.
   */
  FAXIS_DESCR: AXIS_DESCR[];
  /**
   * `BIT_MASK`; null without it.
   */
  FBIT_MASK: number | null;
  /**
   * `BYTE_ORDER`; null without it. Empty where the file has no known word.
   */
  FBYTE_ORDER: "LITTLE_ENDIAN" | "BIG_ENDIAN" | "MSB_LAST" | "MSB_FIRST" | "" | null;
  /**
   * Parameter. Empty where the file has no known word.
   */
  FCHARACTERISTIC_TYPE:
    "ASCII" | "CURVE" | "MAP" | "CUBOID" | "CUBE_4" | "CUBE_5" | "VAL_BLK" | "VALUE" | "";
  /**
   * Parameter.
   */
  FCONVERSION: string;
  /**
   * `DISCRETE`; false without it.
   */
  FDISCRETE: boolean;
  /**
   * Always null.
   */
  FENCODING: null;
  /**
   * `EXTENDED_LIMITS`; null without it.
   */
  FEXTENDED_LIMITS: EXTENDED_LIMITS | null;
  /**
   * `FORMAT`; null without it.
   */
  FFORMAT: string | null;
  /**
   * Parameter.
   */
  FLONG_IDENTIFIER: string;
  /**
   * Parameter.
   */
  FLOWER_LIMIT: number | null;
  /**
   * `MATRIX_DIM`; [] without it.
   */
  FMATRIX_DIM: number[];
  /**
   * Parameter.
   */
  FMAX_DIFF: number | null;
  /**
   * Parameter.
   */
  FNAME: string;
  /**
   * `NUMBER`; null without it.
   */
  FNUMBER: number | null;
  /**
   * `PHYS_UNIT`; null without it.
   */
  FPHYS_UNIT: string | null;
  /**
   * Parameter.
   */
  FRECORD_LAYOUT: string;
  /**
   * `STEP_SIZE`; null without it.
   */
  FSTEP_SIZE: number | null;
  /**
   * Parameter.
   */
  FUPPER_LIMIT: number | null;
}
/**
 * `TYPEDEF_MEASUREMENT`.
 */
export interface TYPEDEF_MEASUREMENT {
  /**
   * Parameter.
   */
  FACCURACY: number | null;
  /**
   * `ADDRESS_TYPE`; null without it. `DIRECT` where the file has no known word. No file gives `PLONGLONG`: `PLONG`, which is part of it, is read instead. Only code can set it.
   */
  FADDRESS_TYPE: "PBYTE" | "PWORD" | "PLONG" | "PLONGLONG" | "DIRECT" | null;
  /**
   * `BIT_MASK`; null without it.
   */
  FBIT_MASK: number | null;
  /**
   * `BIT_OPERATION`; null without it.
   */
  FBIT_OPERATION: BIT_OPERATION | null;
  /**
   * `BYTE_ORDER`; null without it. Empty where the file has no known word.
   */
  FBYTE_ORDER: "LITTLE_ENDIAN" | "BIG_ENDIAN" | "MSB_LAST" | "MSB_FIRST" | "" | null;
  /**
   * Parameter.
   */
  FCONVERSION: string;
  /**
   * Parameter. `UBYTE` where the file has no known word.
   */
  FDATATYPE:
    | "UBYTE"
    | "SBYTE"
    | "UWORD"
    | "SWORD"
    | "ULONG"
    | "SLONG"
    | "A_UINT64"
    | "A_INT64"
    | "FLOAT32_IEEE"
    | "FLOAT64_IEEE";
  /**
   * `DISCRETE`; false without it.
   */
  FDISCRETE: boolean;
  /**
   * `ERROR_MASK`; null without it.
   */
  FERROR_MASK: number | null;
  /**
   * `FORMAT`; null without it.
   */
  FFORMAT: string | null;
  /**
   * `LAYOUT`; null without it. Empty where the file has no known word.
   */
  FLAYOUT: "ROW_DIR" | "COLUMN_DIR" | "" | null;
  /**
   * Parameter.
   */
  FLONG_IDENTIFIER: string;
  /**
   * Parameter.
   */
  FLOWER_LIMIT: number | null;
  /**
   * `MATRIX_DIM`; [] without it.
   */
  FMATRIX_DIM: number[];
  /**
   * Parameter.
   */
  FNAME: string;
  /**
   * `PHYS_UNIT`; null without it.
   */
  FPHYS_UNIT: string | null;
  /**
   * Parameter.
   */
  FRESOLUTION: number;
  /**
   * Parameter.
   */
  FUPPER_LIMIT: number | null;
}
/**
 * `TYPEDEF_STRUCTURE`.
 */
export interface TYPEDEF_STRUCTURE {
  /**
   * `ADDRESS_TYPE`; null without it. `DIRECT` where the file has no known word. No file gives `PLONGLONG`: `PLONG`, which is part of it, is read instead. Only code can set it.
   */
  FADDRESS_TYPE: "PBYTE" | "PWORD" | "PLONG" | "PLONGLONG" | "DIRECT" | null;
  /**
   * `CONSISTENT_EXCHANGE`; false without it.
   */
  FCONSISTENT_EXCHANGE: boolean;
  /**
   * Parameter.
   */
  FLONG_IDENTIFIER: string;
  /**
   * Parameter.
   */
  FNAME: string;
  /**
   * Parameter.
   */
  FSIZE: number;
  /**
   * All `STRUCTURE_COMPONENT`; null without it.
   */
  FSTRUCTURE_COMPONENT: STRUCTURE_COMPONENT[] | null;
  /**
   * `SYMBOL_TYPE_LINK`; null without it.
   */
  FSYMBOL_TYPE_LINK: string | null;
}
/**
 * `STRUCTURE_COMPONENT`.
 */
export interface STRUCTURE_COMPONENT {
  /**
   * Parameter.
   */
  FADDRESS_OFFSET: number;
  /**
   * `ADDRESS_TYPE`; null without it. `DIRECT` where the file has no known word. No file gives `PLONGLONG`: `PLONG`, which is part of it, is read instead. Only code can set it.
   */
  FADDRESS_TYPE: "PBYTE" | "PWORD" | "PLONG" | "PLONGLONG" | "DIRECT" | null;
  /**
   * `LAYOUT`; null without it. Empty where the file has no known word.
   */
  FLAYOUT: "ROW_DIR" | "COLUMN_DIR" | "" | null;
  /**
   * `MATRIX_DIM`; [] without it.
   */
  FMATRIX_DIM: number[];
  /**
   * Parameter.
   */
  FNAME: string;
  /**
   * `SYMBOL_TYPE_LINK`; null without it.
   */
  FSYMBOL_TYPE_LINK: string | null;
  /**
   * Parameter.
   */
  FTYPEDEF_NAME: string;
}
/**
 * `UNIT`.
 */
export interface UNIT {
  /**
   * Parameter.
   */
  FDISPLAY: string;
  /**
   * Parameter.
   */
  FLONG_IDENTIFIER: string;
  /**
   * Parameter.
   */
  FNAME: string;
  /**
   * `REF_UNIT`; null without it.
   */
  FREF_UNIT: string | null;
  /**
   * `SI_EXPONENTS`; null without it.
   */
  FSI_EXPONENTS: SI_EXPONENTS | null;
  /**
   * `UNIT_CONVERSION`; null without it.
   */
  FUNIT_CONVERSION: UNIT_CONVERSION | null;
  /**
   * Parameter. Empty where the file has no known word.
   */
  FUNIT_TYPE: "DERIVED" | "EXTENDED_SI" | "";
}
/**
 * `SI_EXPONENTS`.
 */
export interface SI_EXPONENTS {
  /**
   * Parameter.
   */
  FAMOUNT_OF_SUBSTANCE: number;
  /**
   * Parameter.
   */
  FELECTRIC_CURRENT: number;
  /**
   * Parameter.
   */
  FLENGTH: number;
  /**
   * Parameter.
   */
  FLUMINOUS_INTENSITY: number;
  /**
   * Parameter.
   */
  FMASS: number;
  /**
   * Parameter.
   */
  FTEMPERATURE: number;
  /**
   * Parameter.
   */
  FTIME: number;
}
/**
 * `UNIT_CONVERSION`.
 */
export interface UNIT_CONVERSION {
  /**
   * Parameter.
   */
  FGRADIENT: number | null;
  /**
   * Parameter.
   */
  FOFFSET: number | null;
}
/**
 * `USER_RIGHTS`.
 */
export interface USER_RIGHTS {
  /**
   * `READ_ONLY`; false without it.
   */
  FREAD_ONLY: boolean;
  /**
   * All `REF_GROUP`, put together.
   */
  FREF_GROUP: string;
  /**
   * Parameter.
   */
  FUSER_LEVEL_ID: string;
}
/**
 * `VARIANT_CODING`.
 */
export interface VARIANT_CODING {
  /**
   * All `VAR_CHARACTERISTIC`; [] without it.
   */
  FVAR_CHARACTERISTIC: VAR_CHARACTERISTIC[];
  /**
   * All `VAR_CRITERION`; [] without it.
   */
  FVAR_CRITERION: VAR_CRITERION[];
  /**
   * All `VAR_FORBIDDEN_COMB`; [] without it.
   */
  FVAR_FORBIDDEN_COMB: {
    [k: string]: string;
  }[];
  /**
   * `VAR_NAMING`; null without it. Empty where the file has no known word.
   */
  FVAR_NAMING: "NUMERIC" | "" | null;
  /**
   * `VAR_SEPARATOR`; null without it.
   */
  FVAR_SEPARATOR: string | null;
}
/**
 * `VAR_CHARACTERISTIC`.
 */
export interface VAR_CHARACTERISTIC {
  /**
   * Parameter.
   */
  FCRITERION_NAME: string;
  /**
   * Parameter.
   */
  FNAME: string;
  /**
   * `VAR_ADDRESS`, only as the first block, in decimal; null without it.
   */
  FVAR_ADDRESS: string | null;
}
/**
 * `VAR_CRITERION`.
 */
export interface VAR_CRITERION {
  /**
   * Parameter.
   */
  FLONG_IDENTIFIER: string;
  /**
   * Parameter.
   */
  FNAME: string;
  /**
   * Parameter.
   */
  FVALUE: string;
  /**
   * `VAR_MEASUREMENT`; null without it.
   */
  FVAR_MEASUREMENT: string | null;
  /**
   * `VAR_SELECTION_CHARACTERISTIC`; null without it.
   */
  FVAR_SELECTION_CHARACTERISTIC: string | null;
}
