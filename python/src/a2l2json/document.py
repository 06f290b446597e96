# SPDX-License-Identifier: MIT
# Made by tools/make_document_types.py from docs/json.schema.json; change neither by hand.
"""The types of a document: a TypedDict for each kind of object in it."""

from __future__ import annotations

from typing import Dict, List, Literal, TypedDict, Union


class Annotation(TypedDict, total=False):
    # `ANNOTATION_LABEL`; no key without it.
    FANNOTATION_LABEL: str
    # `ANNOTATION_ORIGIN`; no key without it.
    FANNOTATION_ORIGIN: str
    # `ANNOTATION_TEXT`, its texts put together; no key without it.
    FANNOTATION_TEXT: str


class AxisDescr(TypedDict):
    # All `ANNOTATION`; [] without it.
    FANNOTATION: List[Annotation]
    # Parameter. Empty where the file has no known word.
    FATTRIBUTE: Literal["CURVE_AXIS", "COM_AXIS", "FIX_AXIS", "RES_AXIS", "STD_AXIS", ""]
    # `AXIS_PTS_REF`; null without it.
    FAXIS_PTS_REF: Union[str, None]
    # `BYTE_ORDER`; null without it. Empty where the file has no known word.
    FBYTE_ORDER: Union[Literal["LITTLE_ENDIAN", "BIG_ENDIAN", "MSB_LAST", "MSB_FIRST", ""], None]
    # Parameter.
    FCONVERSION: str
    # `CURVE_AXIS_REF`; null without it.
    FCURVE_AXIS_REF: Union[str, None]
    # `DEPOSIT`; null without it. Empty where the file has no known word.
    FDEPOSIT: Union[Literal["ABSOLUTE", "DIFFERENCE", ""], None]
    # `EXTENDED_LIMITS`; null without it.
    FEXTENDED_LIMITS: Union[ExtendedLimits, None]
    # `FIX_AXIS_PAR`; null without it.
    FFIX_AXIS_PAR: Union[FixAxisPar, None]
    # `FIX_AXIS_PAR_DIST`; null without it.
    FFIX_AXIS_PAR_DIST: Union[FixAxisParDist, None]
    # `FIX_AXIS_PAR_LIST`; null without it.
    FFIX_AXIS_PAR_LIST: Union[str, None]
    # `FORMAT`; null without it.
    FFORMAT: Union[str, None]
    # Parameter.
    FINPUT_QUANTITY: str
    # Parameter.
    FLOWER_LIMIT: Union[float, None]
    # Parameter.
    FMAX_AXIS_POINTS: int
    # `MAX_GRAD`; null without it.
    FMAX_GRAD: Union[float, None]
    # `MONOTONY`; null without it. Empty where the file has no known word.
    FMONOTONY: Union[Literal["MON_DECREASE", "MON_INCREASE", "STRICT_DECREASE", "STRICT_INCREASE", "MONOTONOUS", "STRICT_MON", "NOT_MON", ""], None]
    # `PHYS_UNIT`; null without it.
    FPHYS_UNIT: Union[str, None]
    # `READ_ONLY`; false without it.
    FREAD_ONLY: bool
    # `STEP_SIZE`; null without it.
    FSTEP_SIZE: Union[float, None]
    # Parameter.
    FUPPER_LIMIT: Union[float, None]


class AxisPts(TypedDict):
    # Parameter.
    FADDRESS: str
    # All `ANNOTATION`; [] without it.
    FANNOTATION: List[Annotation]
    # `BYTE_ORDER`; null without it. Empty where the file has no known word.
    FBYTE_ORDER: Union[Literal["LITTLE_ENDIAN", "BIG_ENDIAN", "MSB_LAST", "MSB_FIRST", ""], None]
    # `CALIBRATION_ACCESS`; null without it. Empty where the file has no known word. No file gives
    # `NO_CALIBRATION`: `CALIBRATION`, which is part of it, is read instead. Only code can set it.
    # No file gives `OFFLINE_CALIBRATION`: `CALIBRATION`, which is part of it, is read instead. Only
    # code can set it.
    FCALIBRATION_ACCESS: Union[Literal["CALIBRATION", "NO_CALIBRATION", "NOT_IN_MCD_SYSTEM", "OFFLINE_CALIBRATION", ""], None]
    # Parameter.
    FCONVERSION: str
    # Parameter: the record layout.
    FDEPOSIT: str
    # `DISPLAY_IDENTIFIER`; null without it.
    FDISPLAY_IDENTIFIER: Union[str, None]
    # `ECU_ADDRESS_EXTENSION`; null without it.
    FECU_ADDRESS_EXTENSION: Union[int, None]
    # `EXTENDED_LIMITS`; null without it.
    FEXTENDED_LIMITS: Union[ExtendedLimits, None]
    # `FORMAT`; null without it.
    FFORMAT: Union[str, None]
    # `FUNCTION_LIST`; null without it.
    FFUNCTION_LIST: Union[str, None]
    # `GUARD_RAILS`; false without it.
    FGUARD_RAILS: bool
    # All `IF_DATA`; [] without it.
    FIF_DATA: List[IfData]
    # Parameter.
    FINPUT_QUANTITY: str
    # False where the reader found wrong parameters.
    FISVALID: bool
    # Parameter.
    FLONG_IDENTIFIER: str
    # Parameter.
    FLOWER_LIMIT: Union[float, None]
    # Parameter.
    FMAX_AXIS_POINTS: int
    # Parameter.
    FMAX_DIFF: Union[float, None]
    # `MAX_REFRESH`; null without it.
    FMAX_REFRESH: Union[MaxRefresh, None]
    # `MODEL_LINK`; null without it.
    FMODEL_LINK: Union[str, None]
    # `MONOTONY`; null without it. Empty where the file has no known word.
    FMONOTONY: Union[Literal["MON_DECREASE", "MON_INCREASE", "STRICT_DECREASE", "STRICT_INCREASE", "MONOTONOUS", "STRICT_MON", "NOT_MON", ""], None]
    # Parameter.
    FNAME: str
    # `PHYS_UNIT`; null without it.
    FPHYS_UNIT: Union[str, None]
    # `READ_ONLY`; false without it.
    FREAD_ONLY: bool
    # `REF_MEMORY_SEGMENT`; null without it.
    FREF_MEMORY_SEGMENT: Union[str, None]
    # `STEP_SIZE`; null without it.
    FSTEP_SIZE: Union[float, None]
    # `SYMBOL_LINK`; null without it.
    FSYMBOL_LINK: Union[SymbolLink, None]
    # Parameter.
    FUPPER_LIMIT: Union[float, None]


class AxisPtsX(TypedDict):
    # Parameter. `DIRECT` where the file has no known word. No file gives `PLONGLONG`: `PLONG`,
    # which is part of it, is read instead. Only code can set it.
    FADDRESSING: Literal["PBYTE", "PWORD", "PLONG", "PLONGLONG", "DIRECT"]
    # Parameter. `UBYTE` where the file has no known word.
    FDATA_TYPE: Literal["UBYTE", "SBYTE", "UWORD", "SWORD", "ULONG", "SLONG", "A_UINT64", "A_INT64", "FLOAT32_IEEE", "FLOAT64_IEEE"]
    # Parameter. `INDEX_INCR` where the file has no known word.
    FINDEX_INCR: Literal["INDEX_INCR", "INDEX_DECR"]
    # Parameter.
    FPOSITION: int


class AxisRescaleX(TypedDict):
    # Parameter. `DIRECT` where the file has no known word. No file gives `PLONGLONG`: `PLONG`,
    # which is part of it, is read instead. Only code can set it.
    FADDRESSING: Literal["PBYTE", "PWORD", "PLONG", "PLONGLONG", "DIRECT"]
    # Parameter. `UBYTE` where the file has no known word.
    FDATA_TYPE: Literal["UBYTE", "SBYTE", "UWORD", "SWORD", "ULONG", "SLONG", "A_UINT64", "A_INT64", "FLOAT32_IEEE", "FLOAT64_IEEE"]
    # Parameter. `INDEX_INCR` where the file has no known word.
    FINDEX_INCR: Literal["INDEX_INCR", "INDEX_DECR"]
    # Parameter.
    FMAX_NUMBER_OF_RESCALE_PAIRS: int
    # Parameter.
    FPOSITION: int


class BitOperation(TypedDict):
    # `LEFT_SHIFT`; null without it.
    FLEFT_SHIFT: Union[int, None]
    # `RIGHT_SHIFT`; null without it.
    FRIGHT_SHIFT: Union[int, None]
    # `SIGN_EXTEND`: the keyword itself; null without it.
    FSIGN_EXTEND: Union[str, None]


class Blob(TypedDict):
    # Parameter.
    FADDRESS: str
    # `ADDRESS_TYPE`; null without it. `DIRECT` where the file has no known word. No file gives
    # `PLONGLONG`: `PLONG`, which is part of it, is read instead. Only code can set it.
    FADDRESS_TYPE: Union[Literal["PBYTE", "PWORD", "PLONG", "PLONGLONG", "DIRECT"], None]
    # All `ANNOTATION`; [] without it.
    FANNOTATION: List[Annotation]
    # `CALIBRATION_ACCESS`; null without it. Empty where the file has no known word. No file gives
    # `NO_CALIBRATION`: `CALIBRATION`, which is part of it, is read instead. Only code can set it.
    # No file gives `OFFLINE_CALIBRATION`: `CALIBRATION`, which is part of it, is read instead. Only
    # code can set it.
    FCALIBRATION_ACCESS: Union[Literal["CALIBRATION", "NO_CALIBRATION", "NOT_IN_MCD_SYSTEM", "OFFLINE_CALIBRATION", ""], None]
    # `DISPLAY_IDENTIFIER`; null without it.
    FDISPLAY_IDENTIFIER: Union[str, None]
    # `ECU_ADDRESS_EXTENSION`; null without it.
    FECU_ADDRESS_EXTENSION: Union[int, None]
    # All `IF_DATA`; [] without it.
    FIF_DATA: List[IfData]
    # False where the reader found wrong parameters.
    FISVALID: bool
    # Parameter.
    FLONG_IDENTIFIER: str
    # `MAX_REFRESH`; null without it.
    FMAX_REFRESH: Union[MaxRefresh, None]
    # `MODEL_LINK`; null without it.
    FMODEL_LINK: Union[str, None]
    # Parameter.
    FNAME: str
    # Parameter.
    FSIZE: int
    # `SYMBOL_LINK`; null without it.
    FSYMBOL_LINK: Union[SymbolLink, None]


class CalibrationHandle(TypedDict):
    # Parameter.
    FHANDLE: str
    # `CALIBRATION_HANDLE_TEXT`; null without it.
    FHANDLE_TEXT: Union[str, None]


class CalibrationMethod(TypedDict):
    # All `CALIBRATION_HANDLE`; [] without it.
    FCALIBRATION_HANDLE: List[CalibrationHandle]
    # Parameter.
    FMETHOD: str
    # Parameter.
    FVERSION: int


class Characteristic(TypedDict):
    # Parameter.
    FADDRESS: str
    # All `ANNOTATION`; [] without it.
    FANNOTATION: List[Annotation]
    # All `AXIS_DESCR`; [] without it.
    FAXIS_DESCR: List[AxisDescr]
    # `BIT_MASK`; null without it.
    FBIT_MASK: Union[int, None]
    # `BYTE_ORDER`; null without it. Empty where the file has no known word.
    FBYTE_ORDER: Union[Literal["LITTLE_ENDIAN", "BIG_ENDIAN", "MSB_LAST", "MSB_FIRST", ""], None]
    # `CALIBRATION_ACCESS`; null without it. Empty where the file has no known word. No file gives
    # `NO_CALIBRATION`: `CALIBRATION`, which is part of it, is read instead. Only code can set it.
    # No file gives `OFFLINE_CALIBRATION`: `CALIBRATION`, which is part of it, is read instead. Only
    # code can set it.
    FCALIBRATION_ACCESS: Union[Literal["CALIBRATION", "NO_CALIBRATION", "NOT_IN_MCD_SYSTEM", "OFFLINE_CALIBRATION", ""], None]
    # Parameter. Empty where the file has no known word.
    FCHARACTERISTIC_TYPE: Literal["ASCII", "CURVE", "MAP", "CUBOID", "CUBE_4", "CUBE_5", "VAL_BLK", "VALUE", ""]
    # `COMPARISON_QUANTITY`; null without it.
    FCOMPARISON_QUANTITY: Union[str, None]
    # Parameter.
    FCONVERSION: str
    # `DEPENDENT_CHARACTERISTIC`; null without it.
    FDEPENDENT_CHARACTERISTIC: Union[DependentCharacteristic, None]
    # Parameter: the record layout.
    FDEPOSIT: str
    # `DISCRETE`; false without it.
    FDISCRETE: bool
    # `DISPLAY_IDENTIFIER`; null without it.
    FDISPLAY_IDENTIFIER: Union[str, None]
    # `ECU_ADDRESS_EXTENSION`; null without it.
    FECU_ADDRESS_EXTENSION: Union[int, None]
    # Always null.
    FENCODING: None
    # `EXTENDED_LIMITS`; null without it.
    FEXTENDED_LIMITS: Union[ExtendedLimits, None]
    # `FORMAT`; null without it.
    FFORMAT: Union[str, None]
    # `FUNCTION_LIST`; null without it.
    FFUNCTION_LIST: Union[str, None]
    # `GUARD_RAILS`; false without it.
    FGUARD_RAILS: bool
    # All `IF_DATA`; [] without it.
    FIF_DATA: List[IfData]
    # False where the reader found wrong parameters.
    FISVALID: bool
    # Parameter.
    FLONG_IDENTIFIER: str
    # Parameter.
    FLOWER_LIMIT: Union[float, None]
    # `MAP_LIST`; null without it.
    FMAP_LIST: Union[List[str], None]
    # `MATRIX_DIM`; [] without it.
    FMATRIX_DIM: List[int]
    # Parameter.
    FMAX_DIFF: Union[float, None]
    # `MAX_REFRESH`; null without it.
    FMAX_REFRESH: Union[MaxRefresh, None]
    # `MODEL_LINK`; null without it.
    FMODEL_LINK: Union[str, None]
    # Parameter.
    FNAME: str
    # `NUMBER`; null without it.
    FNUMBER: Union[int, None]
    # `PHYS_UNIT`; null without it.
    FPHYS_UNIT: Union[str, None]
    # `READ_ONLY`; false without it.
    FREAD_ONLY: bool
    # `REF_MEMORY_SEGMENT`; null without it.
    FREF_MEMORY_SEGMENT: Union[str, None]
    # `STEP_SIZE`; null without it.
    FSTEP_SIZE: Union[float, None]
    # `SYMBOL_LINK`; null without it.
    FSYMBOL_LINK: Union[SymbolLink, None]
    # Parameter.
    FUPPER_LIMIT: Union[float, None]
    # `VIRTUAL_CHARACTERISTIC`; null without it.
    FVIRTUAL_CHARACTERISTIC: Union[VirtualCharacteristic, None]


class CompuMethod(TypedDict):
    # `COEFFS`; null without it.
    FCOEFFS: Union[str, None]
    # `COEFFS_LINEAR`; null without it.
    FCOEFFS_LINEAR: Union[str, None]
    # `COMPU_TAB_REF`; null without it.
    FCOMPU_TAB_REF: Union[str, None]
    # Parameter. Empty where the file has no known word.
    FCONVERSION_TYPE: Literal["IDENTICAL", "FORM", "LINEAR", "RAT_FUNC", "TAB_INTP", "TAB_NOINTP", "TAB_VERB", ""]
    # Parameter.
    FFORMAT: str
    # `FORMULA`; null without it.
    FFORMULA: Union[Formula, None]
    # Parameter.
    FLONG_IDENTIFIER: str
    # Parameter.
    FNAME: str
    # `REF_UNIT`; null without it.
    FREF_UNIT: Union[str, None]
    # `STATUS_STRING_REF`; null without it.
    FSTATUS_STRING_REF: Union[str, None]
    # Parameter.
    FUNIT: str


class CompuTab(TypedDict):
    # Parameter. Empty where the file has no known word.
    FCONVERSION_TYPE: Literal["TAB_INTP", "TAB_NOINTP", ""]
    # `DEFAULT_VALUE`; null without it.
    FDEFAULT_VALUE: Union[str, None]
    # `DEFAULT_VALUE_NUMERIC`; null without it.
    FDEFAULT_VALUE_NUMERIC: Union[float, None]
    # Rows: first value.
    FIN_VAL: List[Union[float, None]]
    # Parameter.
    FLONG_IDENTIFIER: str
    # Parameter.
    FNAME: str
    # Parameter.
    FNUMBER_VALUE_PAIRS: int
    # Rows: second value.
    FOUT_VAL: List[Union[float, None]]


class CompuVtab(TypedDict):
    # Parameter. Empty where the file has no known word.
    FCONVERSION_TYPE: Literal["TAB_VERB", ""]
    # `DEFAULT_VALUE`; null without it.
    FDEFAULT_VALUE: Union[str, None]
    # Rows: the value.
    FIN_VAL: List[Union[float, None]]
    # Parameter.
    FLONG_IDENTIFIER: str
    # Parameter.
    FNAME: str
    # Parameter.
    FNUMBER_VALUE_PAIRS: int
    # Rows: the text.
    FOUT_VAL: List[str]


class CompuVtabRange(TypedDict):
    # `DEFAULT_VALUE`; null without it.
    FDEFAULT_VALUE: Union[str, None]
    # Rows: second value.
    FIN_VAL_MAX: List[Union[float, None]]
    # Rows: first value.
    FIN_VAL_MIN: List[Union[float, None]]
    # Parameter.
    FLONG_IDENTIFIER: str
    # Parameter.
    FNAME: str
    # Parameter.
    FNUMBER_VALUE_TRIPLES: int
    # Rows: the text.
    FOUT_VAL: List[str]


class DependentCharacteristic(TypedDict):
    # Parameter.
    FCHARACTERISTIC: List[str]
    # Parameter.
    FFORMULA: str


class DistOpX(TypedDict):
    # Parameter. `UBYTE` where the file has no known word.
    FDATA_TYPE: Literal["UBYTE", "SBYTE", "UWORD", "SWORD", "ULONG", "SLONG", "A_UINT64", "A_INT64", "FLOAT32_IEEE", "FLOAT64_IEEE"]
    # Parameter.
    FPOSITION: int


class ExtendedLimits(TypedDict):
    # Parameter.
    FLOWER_LIMIT: Union[float, None]
    # Parameter.
    FUPPER_LIMIT: Union[float, None]


class FixAxisPar(TypedDict):
    # Parameter.
    FNUMBERAPO: int
    # Parameter.
    FOFFSET: int
    # Parameter.
    FSHIFT: int


class FixAxisParDist(TypedDict):
    # Parameter.
    FDISTANCE: Union[float, None]
    # Parameter.
    FNUMBERAPO: int
    # Parameter.
    FOFFSET: Union[float, None]


class FixNoAxisPtsX(TypedDict):
    # Parameter.
    FNUMBER_OF_AXIS_POINTS: int


class FncValues(TypedDict):
    # Parameter: the addressing. `DIRECT` where the file has no known word. No file gives
    # `PLONGLONG`: `PLONG`, which is part of it, is read instead. Only code can set it.
    FADDRESS_TYPE: Literal["PBYTE", "PWORD", "PLONG", "PLONGLONG", "DIRECT"]
    # Parameter. `UBYTE` where the file has no known word.
    FDATA_TYPE: Literal["UBYTE", "SBYTE", "UWORD", "SWORD", "ULONG", "SLONG", "A_UINT64", "A_INT64", "FLOAT32_IEEE", "FLOAT64_IEEE"]
    # Parameter. Empty where the file has no known word.
    FINDEX_MODE: Literal["ALTERNATE_CURVES", "ALTERNATE_WITH_X", "ALTERNATE_WITH_Y", "COLUMN_DIR", "ROW_DIR", ""]
    # Parameter.
    FPOSITION: int


class Formula(TypedDict):
    # Parameter.
    FFORMULA: str
    # `FORMULA_INV`; null without it.
    FFORMULA_INV: Union[str, None]


class Frame(TypedDict):
    # `FRAME_MEASUREMENT`; null without it.
    FFRAME_MEASUREMENT: Union[List[str], None]
    # All `IF_DATA`; [] without it.
    FIF_DATA: List[IfData]
    # Parameter.
    FLONG_IDENTIFIER: str
    # Parameter.
    FNAME: str
    # Parameter.
    FRATE: int
    # Parameter.
    FSCALING_UNIT: int


class Function(TypedDict):
    # All `ANNOTATION`; [] without it.
    FANNOTATION: List[Annotation]
    # `AR_COMPONENT`; null without it.
    FAR_COMPONENT: Union[str, None]
    # `AR_PROTOTYPE_OF` in an `AR_COMPONENT`; null without it.
    FAR_PROTOTYPE_OF: Union[str, None]
    # `DEF_CHARACTERISTIC`; null without it.
    FDEF_CHARACTERISTIC: Union[str, None]
    # `FUNCTION_VERSION`; null without it.
    FFUNCTION_VERSION: Union[str, None]
    # All `IF_DATA`; [] without it.
    FIF_DATA: List[IfData]
    # `IN_MEASUREMENT`; null without it.
    FIN_MEASUREMENT: Union[str, None]
    # `LOC_MEASUREMENT`; null without it.
    FLOC_MEASUREMENT: Union[str, None]
    # Parameter.
    FLONG_IDENTIFIER: str
    # Parameter.
    FNAME: str
    # `OUT_MEASUREMENT`; null without it.
    FOUT_MEASUREMENT: Union[str, None]
    # `REF_CHARACTERISTIC`; null without it.
    FREF_CHARACTERISTIC: Union[str, None]
    # `SUB_FUNCTION`; null without it.
    FSUB_FUNCTION: Union[str, None]


class Group(TypedDict):
    # All `ANNOTATION`; [] without it.
    FANNOTATION: List[Annotation]
    # `FUNCTION_LIST`; null without it.
    FFUNCTION_LIST: Union[str, None]
    # Parameter.
    FGROUP_LONG_IDENTIFIER: str
    # Parameter.
    FGROUP_NAME: str
    # All `IF_DATA`; [] without it.
    FIF_DATA: List[IfData]
    # `REF_CHARACTERISTIC`; null without it.
    FREF_CHARACTERISTIC: Union[str, None]
    # `REF_MEASUREMENT`; null without it.
    FREF_MEASUREMENT: Union[str, None]
    # `ROOT`; false without it.
    FROOT: bool
    # `SUB_GROUP`; null without it.
    FSUB_GROUP: Union[str, None]


class Identification(TypedDict):
    # Parameter. `UBYTE` where the file has no known word.
    FDATA_TYPE: Literal["UBYTE", "SBYTE", "UWORD", "SWORD", "ULONG", "SLONG", "A_UINT64", "A_INT64", "FLOAT32_IEEE", "FLOAT64_IEEE"]
    # Parameter.
    FPOSITION: int


class IfData(TypedDict):
    # All that follows the name.
    FIF_DATA: str
    # The first word.
    FNAME: str


class Instance(TypedDict):
    # Parameter.
    FADDRESS: str
    # `ADDRESS_TYPE`; null without it. `DIRECT` where the file has no known word. No file gives
    # `PLONGLONG`: `PLONG`, which is part of it, is read instead. Only code can set it.
    FADDRESS_TYPE: Union[Literal["PBYTE", "PWORD", "PLONG", "PLONGLONG", "DIRECT"], None]
    # All `ANNOTATION`; [] without it.
    FANNOTATION: List[Annotation]
    # `CALIBRATION_ACCESS`; null without it. Empty where the file has no known word. No file gives
    # `NO_CALIBRATION`: `CALIBRATION`, which is part of it, is read instead. Only code can set it.
    # No file gives `OFFLINE_CALIBRATION`: `CALIBRATION`, which is part of it, is read instead. Only
    # code can set it.
    FCALIBRATION_ACCESS: Union[Literal["CALIBRATION", "NO_CALIBRATION", "NOT_IN_MCD_SYSTEM", "OFFLINE_CALIBRATION", ""], None]
    # `DISPLAY_IDENTIFIER`; null without it.
    FDISPLAY_IDENTIFIER: Union[str, None]
    # `ECU_ADDRESS_EXTENSION`; null without it.
    FECU_ADDRESS_EXTENSION: Union[int, None]
    # All `IF_DATA`; [] without it.
    FIF_DATA: List[IfData]
    # False where the reader found wrong parameters.
    FISVALID: bool
    # `LAYOUT`; null without it. Empty where the file has no known word.
    FLAYOUT: Union[Literal["ROW_DIR", "COLUMN_DIR", ""], None]
    # Parameter.
    FLONG_IDENTIFIER: str
    # `MATRIX_DIM`; [] without it.
    FMATRIX_DIM: List[int]
    # `MAX_REFRESH`; null without it.
    FMAX_REFRESH: Union[MaxRefresh, None]
    # `MODEL_LINK`; null without it.
    FMODEL_LINK: Union[str, None]
    # Parameter.
    FNAME: str
    # All `OVERWRITE`; null without it.
    FOVERWRITE: Union[List[Overwrite], None]
    # `READ_WRITE`; false without it.
    FREAD_WRITE: bool
    # `SYMBOL_LINK`; null without it.
    FSYMBOL_LINK: Union[SymbolLink, None]
    # Parameter.
    FTYPEDEF_NAME: str


class Limits(TypedDict):
    # Parameter.
    FLOWER_LIMIT: Union[float, None]
    # Parameter.
    FUPPER_LIMIT: Union[float, None]


class MaxRefresh(TypedDict):
    # Parameter.
    FRATE: int
    # Parameter.
    FSCALING_UNIT: int


class Measurement(TypedDict):
    # Always 0.
    FACCURACY: int
    # `ADDRESS_TYPE`; null without it. `DIRECT` where the file has no known word. No file gives
    # `PLONGLONG`: `PLONG`, which is part of it, is read instead. Only code can set it.
    FADDRESS_TYPE: Union[Literal["PBYTE", "PWORD", "PLONG", "PLONGLONG", "DIRECT"], None]
    # All `ANNOTATION`; [] without it.
    FANNOTATION: List[Annotation]
    # `ARRAY_SIZE`; null without it.
    FARRAY_SIZE: Union[int, None]
    # `BIT_MASK`; null without it.
    FBIT_MASK: Union[int, None]
    # `BIT_OPERATION`; null without it.
    FBIT_OPERATION: Union[BitOperation, None]
    # `BYTE_ORDER`; null without it. Empty where the file has no known word.
    FBYTE_ORDER: Union[Literal["LITTLE_ENDIAN", "BIG_ENDIAN", "MSB_LAST", "MSB_FIRST", ""], None]
    # Parameter.
    FCONVERSION: str
    # Parameter. `UBYTE` where the file has no known word.
    FDATATYPE: Literal["UBYTE", "SBYTE", "UWORD", "SWORD", "ULONG", "SLONG", "A_UINT64", "A_INT64", "FLOAT32_IEEE", "FLOAT64_IEEE"]
    # `DISCRETE`; false without it.
    FDISCRETE: bool
    # `DISPLAY_IDENTIFIER`; null without it.
    FDISPLAY_IDENTIFIER: Union[str, None]
    # `ECU_ADDRESS`; null without it.
    FECU_ADDRESS: Union[str, None]
    # `ECU_ADDRESS_EXTENSION`; null without it.
    FECU_ADDRESS_EXTENSION: Union[int, None]
    # `ERROR_MASK`; null without it.
    FERROR_MASK: Union[int, None]
    # `FORMAT`; null without it.
    FFORMAT: Union[str, None]
    # `FUNCTION_LIST`; null without it.
    FFUNCTION_LIST: Union[str, None]
    # All `IF_DATA`; [] without it.
    FIF_DATA: List[IfData]
    # False where the reader found wrong parameters.
    FISVALID: bool
    # `LAYOUT`; null without it. Empty where the file has no known word.
    FLAYOUT: Union[Literal["ROW_DIR", "COLUMN_DIR", ""], None]
    # Parameter.
    FLONG_IDENTIFIER: str
    # Parameter.
    FLOWER_LIMIT: Union[float, None]
    # `MATRIX_DIM`; [] without it.
    FMATRIX_DIM: List[int]
    # `MAX_REFRESH`; null without it.
    FMAX_REFRESH: Union[MaxRefresh, None]
    # `MODEL_LINK`; null without it.
    FMODEL_LINK: Union[str, None]
    # Parameter.
    FNAME: str
    # `PHYS_UNIT`; null without it.
    FPHYS_UNIT: Union[str, None]
    # `READ_WRITE`; false without it.
    FREAD_WRITE: bool
    # `REF_MEMORY_SEGMENT`; null without it.
    FREF_MEMORY_SEGMENT: Union[str, None]
    # Always 1.
    FRESOLUTION: int
    # `SYMBOL_LINK`; null without it.
    FSYMBOL_LINK: Union[SymbolLink, None]
    # Parameter.
    FUPPER_LIMIT: Union[float, None]
    # `VIRTUAL`; null without it.
    FVIRTUAL: Union[str, None]


class MemoryLayout(TypedDict):
    # Parameter.
    FADDRESS: str
    # All `IF_DATA`; [] without it.
    FIF_DATA: List[IfData]
    # Parameter.
    FOFFSET: str
    # Parameter. Empty where the file has no known word.
    FPRG_TYPE: Literal["PRG_CODE", "PRG_DATA", "PRG_RESERVED", ""]
    # Parameter.
    FSIZE: int


class MemorySegment(TypedDict):
    # Parameter.
    FADDRESS: str
    # Parameter. Empty where the file has no known word.
    FATTRIBUTE: Literal["INTERN", "EXTERN", ""]
    # All `IF_DATA`; [] without it.
    FIF_DATA: List[IfData]
    # Parameter.
    FLONG_IDENTIFIER: str
    # Parameter. Empty where the file has no known word.
    FMEMORY_TYPE: Literal["EEPROM", "EPROM", "FLASH", "RAM", "ROM", "REGISTER", ""]
    # Parameter.
    FNAME: str
    # Parameter.
    FOFFSET: str
    # Parameter. Empty where the file has no known word. No file gives `OFFLINE_DATA`: `DATA`, which
    # is part of it, is read instead. Only code can set it.
    FPRG_TYPE: Literal["CALIBRATION_VARIABLES", "CODE", "DATA", "EXCLUDE_FROM_FLASH", "OFFLINE_DATA", "RESERVED", "SERAM", "VARIABLES", ""]
    # Parameter.
    FSIZE: int


class Module(TypedDict):
    # `A2ML`, all that stands in it; null without it.
    FA2ML: Union[str, None]
    # All `AXIS_PTS`; [] without it.
    FAXIS_PTS: List[AxisPts]
    # All `BLOB`; [] without it.
    FBLOB: List[Blob]
    # All `CHARACTERISTIC`; [] without it.
    FCHARACTERISTIC: List[Characteristic]
    # All `COMPU_METHOD`; [] without it.
    FCOMPU_METHOD: List[CompuMethod]
    # All `COMPU_TAB`; [] without it.
    FCOMPU_TAB: List[CompuTab]
    # All `COMPU_VTAB`; [] without it.
    FCOMPU_VTAB: List[CompuVtab]
    # All `COMPU_VTAB_RANGE`; [] without it.
    FCOMPU_VTAB_RANGE: List[CompuVtabRange]
    # `FRAME`; null without it.
    FFRAME: Union[Frame, None]
    # All `FUNCTION`; [] without it.
    FFUNCTION: List[Function]
    # All `GROUP`; [] without it.
    FGROUP: List[Group]
    # All `IF_DATA`; [] without it.
    FIF_DATA: List[IfData]
    # All `INSTANCE`; [] without it.
    FINSTANCE: List[Instance]
    # Parameter.
    FLONG_IDENTIFIER: str
    # All `MEASUREMENT`; [] without it.
    FMEASUREMENT: List[Measurement]
    # `MOD_COMMON`; null without it.
    FMOD_COMMON: Union[ModCommon, None]
    # `MOD_PAR`; null without it.
    FMOD_PAR: Union[ModPar, None]
    # Parameter.
    FNAME: str
    # All `RECORD_LAYOUT`; [] without it.
    FRECORD_LAYOUT: List[RecordLayout]
    # All `TRANSFORMER`; [] without it.
    FTRANSFORMER: List[Transformer]
    # All `TYPEDEF_AXIS`; [] without it.
    FTYPEDEF_AXIS: List[TypedefAxis]
    # All `TYPEDEF_BLOB`; [] without it.
    FTYPEDEF_BLOB: List[TypedefBlob]
    # All `TYPEDEF_CHARACTERISTIC`; [] without it.
    FTYPEDEF_CHARACTERISTIC: List[TypedefCharacteristic]
    # All `TYPEDEF_MEASUREMENT`; [] without it.
    FTYPEDEF_MEASUREMENT: List[TypedefMeasurement]
    # All `TYPEDEF_STRUCTURE`; [] without it.
    FTYPEDEF_STRUCTURE: List[TypedefStructure]
    # All `UNIT`; [] without it.
    FUNIT: List[Unit]
    # All `USER_RIGHTS`; [] without it.
    FUSER_RIGHTS: List[UserRights]
    # `VARIANT_CODING`; null without it.
    FVARIANT_CODING: Union[VariantCoding, None]


class ModCommon(TypedDict):
    # `ALIGNMENT_BYTE`; null without it.
    FALIGNMENT_BYTE: Union[int, None]
    # `ALIGNMENT_FLOAT16_IEEE`; null without it.
    FALIGNMENT_FLOAT16_IEEE: Union[int, None]
    # `ALIGNMENT_FLOAT32_IEEE`; null without it.
    FALIGNMENT_FLOAT32_IEEE: Union[int, None]
    # `ALIGNMENT_FLOAT64_IEEE`; null without it.
    FALIGNMENT_FLOAT64_IEEE: Union[int, None]
    # `ALIGNMENT_INT64`; null without it.
    FALIGNMENT_INT64: Union[int, None]
    # `ALIGNMENT_LONG`; null without it.
    FALIGNMENT_LONG: Union[int, None]
    # `ALIGNMENT_WORD`; null without it.
    FALIGNMENT_WORD: Union[int, None]
    # `BYTE_ORDER`; null without it. Empty where the file has no known word.
    FBYTE_ORDER: Union[Literal["LITTLE_ENDIAN", "BIG_ENDIAN", "MSB_LAST", "MSB_FIRST", ""], None]
    # Parameter.
    FCOMMENT: str
    # `DATA_SIZE`; null without it.
    FDATA_SIZE: Union[int, None]
    # `DEPOSIT`; null without it. Empty where the file has no known word.
    FDEPOSIT: Union[Literal["ABSOLUTE", "DIFFERENCE", ""], None]
    # `S_REC_LAYOUT`; null without it.
    FS_REC_LAYOUT: Union[str, None]


class ModPar(TypedDict):
    # All `ADDR_EPK`, in decimal; null without it.
    FADDR_EPK: Union[str, None]
    # All `CALIBRATION_METHOD`; [] without it.
    FCALIBRATION_METHOD: List[CalibrationMethod]
    # Parameter.
    FCOMMENT: str
    # `CPU_TYPE`; null without it.
    FCPU_TYPE: Union[str, None]
    # `CUSTOMER`; null without it.
    FCUSTOMER: Union[str, None]
    # `CUSTOMER_NO`; null without it.
    FCUSTOMER_NO: Union[str, None]
    # `ECU`; null without it.
    FECU: Union[str, None]
    # `ECU_CALIBRATION_OFFSET`; null without it.
    FECU_CALIBRATION_OFFSET: Union[int, None]
    # `EPK`; null without it.
    FEPK: Union[str, None]
    # All `MEMORY_LAYOUT`; [] without it.
    FMEMORY_LAYOUT: List[MemoryLayout]
    # All `MEMORY_SEGMENT`; [] without it.
    FMEMORY_SEGMENT: List[MemorySegment]
    # `NO_OF_INTERFACES`; null without it.
    FNO_OF_INTERFACES: Union[int, None]
    # `PHONE_NO`; null without it.
    FPHONE_NO: Union[str, None]
    # `SUPPLIER`; null without it.
    FSUPPLIER: Union[str, None]
    # All `SYSTEM_CONSTANT`; [] without it.
    FSYSTEM_CONSTANT: List[SystemConstant]
    # `USER`; null without it.
    FUSER: Union[str, None]
    # `VERSION`; null without it.
    FVERSION: Union[str, None]


class NoAxisPtsX(TypedDict):
    # Parameter. `UBYTE` where the file has no known word.
    FDATA_TYPE: Literal["UBYTE", "SBYTE", "UWORD", "SWORD", "ULONG", "SLONG", "A_UINT64", "A_INT64", "FLOAT32_IEEE", "FLOAT64_IEEE"]
    # Parameter.
    FPOSITION: int


class NoRescaleX(TypedDict):
    # Parameter. `UBYTE` where the file has no known word.
    FDATA_TYPE: Literal["UBYTE", "SBYTE", "UWORD", "SWORD", "ULONG", "SLONG", "A_UINT64", "A_INT64", "FLOAT32_IEEE", "FLOAT64_IEEE"]
    # Parameter.
    FPOSITION: int


class OffsetX(TypedDict):
    # Parameter. `UBYTE` where the file has no known word.
    FDATA_TYPE: Literal["UBYTE", "SBYTE", "UWORD", "SWORD", "ULONG", "SLONG", "A_UINT64", "A_INT64", "FLOAT32_IEEE", "FLOAT64_IEEE"]
    # Parameter.
    FPOSITION: int


class Overwrite(TypedDict):
    # Always null.
    FADDRESS_TYPE: None
    # Parameter.
    FAXIS_NUMBER: int
    # `EXTENDED_LIMITS`; null without it.
    FEXTENDED_LIMITS: Union[ExtendedLimits, None]
    # `FORMAT`; null without it.
    FFORMAT: Union[str, None]
    # `INPUT_QUANTITY`; null without it.
    FINPUT_QUANTITY: Union[str, None]
    # `LIMITS`; null without it.
    FLIMITS: Union[Limits, None]
    # `MONOTONY`; null without it. Empty where the file has no known word.
    FMONOTONY: Union[Literal["MON_DECREASE", "MON_INCREASE", "STRICT_DECREASE", "STRICT_INCREASE", "MONOTONOUS", "STRICT_MON", "NOT_MON", ""], None]
    # Parameter.
    FNAME: str
    # `PHYS_UNIT`; null without it.
    FPHYS_UNIT: Union[str, None]


class RecordLayout(TypedDict):
    # `ALIGNMENT_BYTE`; null without it.
    FALIGNMENT_BYTE: Union[int, None]
    # `ALIGNMENT_FLOAT16_IEEE`; null without it.
    FALIGNMENT_FLOAT16_IEEE: Union[int, None]
    # `ALIGNMENT_FLOAT32_IEEE`; null without it.
    FALIGNMENT_FLOAT32_IEEE: Union[int, None]
    # `ALIGNMENT_FLOAT64_IEEE`; null without it.
    FALIGNMENT_FLOAT64_IEEE: Union[int, None]
    # `ALIGNMENT_INT64`; null without it.
    FALIGNMENT_INT64: Union[int, None]
    # `ALIGNMENT_LONG`; null without it.
    FALIGNMENT_LONG: Union[int, None]
    # `ALIGNMENT_WORD` or `IDENTIFICATION`, whichever comes first; null without it.
    FALIGNMENT_WORD: Union[Union[int, None], Identification]
    # `AXIS_PTS_4`; null without it.
    FAXIS_PTS_4: Union[AxisPtsX, None]
    # `AXIS_PTS_5`; null without it.
    FAXIS_PTS_5: Union[AxisPtsX, None]
    # `AXIS_PTS_X`; null without it.
    FAXIS_PTS_X: Union[AxisPtsX, None]
    # `AXIS_PTS_Y`; null without it.
    FAXIS_PTS_Y: Union[AxisPtsX, None]
    # `AXIS_PTS_Z`; null without it.
    FAXIS_PTS_Z: Union[AxisPtsX, None]
    # `AXIS_RESCALE_4`; null without it.
    FAXIS_RESCALE_4: Union[AxisRescaleX, None]
    # `AXIS_RESCALE_5`; null without it.
    FAXIS_RESCALE_5: Union[AxisRescaleX, None]
    # `AXIS_RESCALE_X`; null without it.
    FAXIS_RESCALE_X: Union[AxisRescaleX, None]
    # `AXIS_RESCALE_Y`; null without it.
    FAXIS_RESCALE_Y: Union[AxisRescaleX, None]
    # `AXIS_RESCALE_Z`; null without it.
    FAXIS_RESCALE_Z: Union[AxisRescaleX, None]
    # `DIST_OP_4`; null without it.
    FDIST_OP_4: Union[DistOpX, None]
    # `DIST_OP_5`; null without it.
    FDIST_OP_5: Union[DistOpX, None]
    # `DIST_OP_X`; null without it.
    FDIST_OP_X: Union[DistOpX, None]
    # `DIST_OP_Y`; null without it.
    FDIST_OP_Y: Union[DistOpX, None]
    # `DIST_OP_Z`; null without it.
    FDIST_OP_Z: Union[DistOpX, None]
    # `FIX_NO_AXIS_PTS_4`; null without it.
    FFIX_NO_AXIS_PTS_4: Union[FixNoAxisPtsX, None]
    # `FIX_NO_AXIS_PTS_5`; null without it.
    FFIX_NO_AXIS_PTS_5: Union[FixNoAxisPtsX, None]
    # `FIX_NO_AXIS_PTS_X`; null without it.
    FFIX_NO_AXIS_PTS_X: Union[FixNoAxisPtsX, None]
    # `FIX_NO_AXIS_PTS_Y`; null without it.
    FFIX_NO_AXIS_PTS_Y: Union[FixNoAxisPtsX, None]
    # `FIX_NO_AXIS_PTS_Z`; null without it.
    FFIX_NO_AXIS_PTS_Z: Union[FixNoAxisPtsX, None]
    # `FNC_VALUES`; null without it.
    FFNC_VALUES: Union[FncValues, None]
    # Always null.
    FIDENTIFICATION: None
    # Parameter.
    FNAME: str
    # `NO_AXIS_PTS_4`; null without it.
    FNO_AXIS_PTS_4: Union[NoAxisPtsX, None]
    # `NO_AXIS_PTS_5`; null without it.
    FNO_AXIS_PTS_5: Union[NoAxisPtsX, None]
    # `NO_AXIS_PTS_X`; null without it.
    FNO_AXIS_PTS_X: Union[NoAxisPtsX, None]
    # `NO_AXIS_PTS_Y`; null without it.
    FNO_AXIS_PTS_Y: Union[NoAxisPtsX, None]
    # `NO_AXIS_PTS_Z`; null without it.
    FNO_AXIS_PTS_Z: Union[NoAxisPtsX, None]
    # `NO_RESCALE_4`; null without it.
    FNO_RESCALE_4: Union[NoRescaleX, None]
    # `NO_RESCALE_5`; null without it.
    FNO_RESCALE_5: Union[NoRescaleX, None]
    # `NO_RESCALE_X`; null without it.
    FNO_RESCALE_X: Union[NoRescaleX, None]
    # `NO_RESCALE_Y`; null without it.
    FNO_RESCALE_Y: Union[NoRescaleX, None]
    # `NO_RESCALE_Z`; null without it.
    FNO_RESCALE_Z: Union[NoRescaleX, None]
    # `OFFSET_4`; null without it.
    FOFFSET_4: Union[OffsetX, None]
    # `OFFSET_5`; null without it.
    FOFFSET_5: Union[OffsetX, None]
    # `OFFSET_X`; null without it.
    FOFFSET_X: Union[OffsetX, None]
    # `OFFSET_Y`; null without it.
    FOFFSET_Y: Union[OffsetX, None]
    # `OFFSET_Z`; null without it.
    FOFFSET_Z: Union[OffsetX, None]
    # All `RESERVED`; [] without it.
    FRESERVED: List[Reserved]
    # `RIP_ADDR_4`; null without it.
    FRIP_ADDR_4: Union[RipAddrW, None]
    # `RIP_ADDR_5`; null without it.
    FRIP_ADDR_5: Union[RipAddrW, None]
    # `RIP_ADDR_W`; null without it.
    FRIP_ADDR_W: Union[RipAddrW, None]
    # `RIP_ADDR_X`; null without it.
    FRIP_ADDR_X: Union[RipAddrW, None]
    # `RIP_ADDR_Y`; null without it.
    FRIP_ADDR_Y: Union[RipAddrW, None]
    # `RIP_ADDR_Z`; null without it.
    FRIP_ADDR_Z: Union[RipAddrW, None]
    # `SHIFT_OP_4`; null without it.
    FSHIFT_OP_4: Union[ShiftOpX, None]
    # `SHIFT_OP_5`; null without it.
    FSHIFT_OP_5: Union[ShiftOpX, None]
    # `SHIFT_OP_X`; null without it.
    FSHIFT_OP_X: Union[ShiftOpX, None]
    # `SHIFT_OP_Y`; null without it.
    FSHIFT_OP_Y: Union[ShiftOpX, None]
    # `SHIFT_OP_Z`; null without it.
    FSHIFT_OP_Z: Union[ShiftOpX, None]
    # `SRC_ADDR_4`; null without it.
    FSRC_ADDR_4: Union[SrcAddrX, None]
    # `SRC_ADDR_5`; null without it.
    FSRC_ADDR_5: Union[SrcAddrX, None]
    # `SRC_ADDR_X`; null without it.
    FSRC_ADDR_X: Union[SrcAddrX, None]
    # `SRC_ADDR_Y`; null without it.
    FSRC_ADDR_Y: Union[SrcAddrX, None]
    # `SRC_ADDR_Z`; null without it.
    FSRC_ADDR_Z: Union[SrcAddrX, None]
    # `STATIC_ADDRESS_OFFSETS`; false without it.
    FSTATIC_ADDRESS_OFFSETS: bool
    # `STATIC_RECORD_LAYOUT`; false without it.
    FSTATIC_RECORD_LAYOUT: bool


class Reserved(TypedDict):
    # Parameter: the data size. `BYTE` where the file has no known word.
    FDATA_TYPE: Literal["BYTE", "WORD", "LONG"]
    # Parameter.
    FPOSITION: int


class RipAddrW(TypedDict):
    # Parameter. `UBYTE` where the file has no known word.
    FDATA_TYPE: Literal["UBYTE", "SBYTE", "UWORD", "SWORD", "ULONG", "SLONG", "A_UINT64", "A_INT64", "FLOAT32_IEEE", "FLOAT64_IEEE"]
    # Parameter.
    FPOSITION: int


class ShiftOpX(TypedDict):
    # Parameter. `UBYTE` where the file has no known word.
    FDATA_TYPE: Literal["UBYTE", "SBYTE", "UWORD", "SWORD", "ULONG", "SLONG", "A_UINT64", "A_INT64", "FLOAT32_IEEE", "FLOAT64_IEEE"]
    # Parameter.
    FPOSITION: int


class SiExponents(TypedDict):
    # Parameter.
    FAMOUNT_OF_SUBSTANCE: int
    # Parameter.
    FELECTRIC_CURRENT: int
    # Parameter.
    FLENGTH: int
    # Parameter.
    FLUMINOUS_INTENSITY: int
    # Parameter.
    FMASS: int
    # Parameter.
    FTEMPERATURE: int
    # Parameter.
    FTIME: int


class SrcAddrX(TypedDict):
    # Parameter. `UBYTE` where the file has no known word.
    FDATA_TYPE: Literal["UBYTE", "SBYTE", "UWORD", "SWORD", "ULONG", "SLONG", "A_UINT64", "A_INT64", "FLOAT32_IEEE", "FLOAT64_IEEE"]
    # Parameter.
    FPOSITION: int


class StructureComponent(TypedDict):
    # Parameter.
    FADDRESS_OFFSET: int
    # `ADDRESS_TYPE`; null without it. `DIRECT` where the file has no known word. No file gives
    # `PLONGLONG`: `PLONG`, which is part of it, is read instead. Only code can set it.
    FADDRESS_TYPE: Union[Literal["PBYTE", "PWORD", "PLONG", "PLONGLONG", "DIRECT"], None]
    # `LAYOUT`; null without it. Empty where the file has no known word.
    FLAYOUT: Union[Literal["ROW_DIR", "COLUMN_DIR", ""], None]
    # `MATRIX_DIM`; [] without it.
    FMATRIX_DIM: List[int]
    # Parameter.
    FNAME: str
    # `SYMBOL_TYPE_LINK`; null without it.
    FSYMBOL_TYPE_LINK: Union[str, None]
    # Parameter.
    FTYPEDEF_NAME: str


class SymbolLink(TypedDict):
    # Parameter.
    FOFFSET: int
    # Parameter.
    FSYMBOL_NAME: str


class SystemConstant(TypedDict):
    # Parameter.
    FNAME: str
    # Parameter.
    FVALUE: str


class Transformer(TypedDict):
    # Parameter.
    FEXECUTABLE32: str
    # Parameter.
    FEXECUTABLE64: str
    # Always empty.
    FINVERSE_TRANSFORMER: str
    # Parameter.
    FNAME: str
    # Always 0.
    FTIMEOUT: int
    # `TRANSFORMER_IN_OBJECTS`; null without it.
    FTRANSFORMER_IN_OBJECTS: Union[List[str], None]
    # `TRANSFORMER_OUT_OBJECTS`; null without it.
    FTRANSFORMER_OUT_OBJECTS: Union[List[str], None]
    # Always empty.
    FTRIGGER: Literal["ON_CHANGE", "ON_USER_REQUEST", ""]
    # Parameter.
    FVERSION: str


class TypedefAxis(TypedDict):
    # `BYTE_ORDER`; null without it. Empty where the file has no known word.
    FBYTE_ORDER: Union[Literal["LITTLE_ENDIAN", "BIG_ENDIAN", "MSB_LAST", "MSB_FIRST", ""], None]
    # Parameter.
    FCONVERSION: str
    # `DEPOSIT`; null without it. Empty where the file has no known word.
    FDEPOSIT: Union[Literal["ABSOLUTE", "DIFFERENCE", ""], None]
    # `EXTENDED_LIMITS`; null without it.
    FEXTENDED_LIMITS: Union[ExtendedLimits, None]
    # `FORMAT`; null without it.
    FFORMAT: Union[str, None]
    # Parameter.
    FINPUT_QUANTITY: str
    # Parameter.
    FLONG_IDENTIFIER: str
    # Parameter.
    FLOWER_LIMIT: Union[float, None]
    # Parameter.
    FMAX_AXIS_POINTS: int
    # Parameter.
    FMAX_DIFF: Union[float, None]
    # `MONOTONY`; null without it. Empty where the file has no known word.
    FMONOTONY: Union[Literal["MON_DECREASE", "MON_INCREASE", "STRICT_DECREASE", "STRICT_INCREASE", "MONOTONOUS", "STRICT_MON", "NOT_MON", ""], None]
    # Parameter.
    FNAME: str
    # `PHYS_UNIT`; null without it.
    FPHYS_UNIT: Union[str, None]
    # Parameter.
    FRECORD_LAYOUT: str
    # `STEP_SIZE`; null without it.
    FSTEP_SIZE: Union[float, None]
    # Parameter.
    FUPPER_LIMIT: Union[float, None]


class TypedefBlob(TypedDict):
    # `ADDRESS_TYPE`; null without it. `DIRECT` where the file has no known word. No file gives
    # `PLONGLONG`: `PLONG`, which is part of it, is read instead. Only code can set it.
    FADDRESS_TYPE: Union[Literal["PBYTE", "PWORD", "PLONG", "PLONGLONG", "DIRECT"], None]
    # Parameter.
    FLONG_IDENTIFIER: str
    # Parameter.
    FNAME: str
    # Parameter.
    FSIZE: int


class TypedefCharacteristic(TypedDict):
    # All `AXIS_DESCR`; [] without it.
    FAXIS_DESCR: List[AxisDescr]
    # `BIT_MASK`; null without it.
    FBIT_MASK: Union[int, None]
    # `BYTE_ORDER`; null without it. Empty where the file has no known word.
    FBYTE_ORDER: Union[Literal["LITTLE_ENDIAN", "BIG_ENDIAN", "MSB_LAST", "MSB_FIRST", ""], None]
    # Parameter. Empty where the file has no known word.
    FCHARACTERISTIC_TYPE: Literal["ASCII", "CURVE", "MAP", "CUBOID", "CUBE_4", "CUBE_5", "VAL_BLK", "VALUE", ""]
    # Parameter.
    FCONVERSION: str
    # `DISCRETE`; false without it.
    FDISCRETE: bool
    # Always null.
    FENCODING: None
    # `EXTENDED_LIMITS`; null without it.
    FEXTENDED_LIMITS: Union[ExtendedLimits, None]
    # `FORMAT`; null without it.
    FFORMAT: Union[str, None]
    # Parameter.
    FLONG_IDENTIFIER: str
    # Parameter.
    FLOWER_LIMIT: Union[float, None]
    # `MATRIX_DIM`; [] without it.
    FMATRIX_DIM: List[int]
    # Parameter.
    FMAX_DIFF: Union[float, None]
    # Parameter.
    FNAME: str
    # `NUMBER`; null without it.
    FNUMBER: Union[int, None]
    # `PHYS_UNIT`; null without it.
    FPHYS_UNIT: Union[str, None]
    # Parameter.
    FRECORD_LAYOUT: str
    # `STEP_SIZE`; null without it.
    FSTEP_SIZE: Union[float, None]
    # Parameter.
    FUPPER_LIMIT: Union[float, None]


class TypedefMeasurement(TypedDict):
    # Parameter.
    FACCURACY: Union[float, None]
    # `ADDRESS_TYPE`; null without it. `DIRECT` where the file has no known word. No file gives
    # `PLONGLONG`: `PLONG`, which is part of it, is read instead. Only code can set it.
    FADDRESS_TYPE: Union[Literal["PBYTE", "PWORD", "PLONG", "PLONGLONG", "DIRECT"], None]
    # `BIT_MASK`; null without it.
    FBIT_MASK: Union[int, None]
    # `BIT_OPERATION`; null without it.
    FBIT_OPERATION: Union[BitOperation, None]
    # `BYTE_ORDER`; null without it. Empty where the file has no known word.
    FBYTE_ORDER: Union[Literal["LITTLE_ENDIAN", "BIG_ENDIAN", "MSB_LAST", "MSB_FIRST", ""], None]
    # Parameter.
    FCONVERSION: str
    # Parameter. `UBYTE` where the file has no known word.
    FDATATYPE: Literal["UBYTE", "SBYTE", "UWORD", "SWORD", "ULONG", "SLONG", "A_UINT64", "A_INT64", "FLOAT32_IEEE", "FLOAT64_IEEE"]
    # `DISCRETE`; false without it.
    FDISCRETE: bool
    # `ERROR_MASK`; null without it.
    FERROR_MASK: Union[int, None]
    # `FORMAT`; null without it.
    FFORMAT: Union[str, None]
    # `LAYOUT`; null without it. Empty where the file has no known word.
    FLAYOUT: Union[Literal["ROW_DIR", "COLUMN_DIR", ""], None]
    # Parameter.
    FLONG_IDENTIFIER: str
    # Parameter.
    FLOWER_LIMIT: Union[float, None]
    # `MATRIX_DIM`; [] without it.
    FMATRIX_DIM: List[int]
    # Parameter.
    FNAME: str
    # `PHYS_UNIT`; null without it.
    FPHYS_UNIT: Union[str, None]
    # Parameter.
    FRESOLUTION: int
    # Parameter.
    FUPPER_LIMIT: Union[float, None]


class TypedefStructure(TypedDict):
    # `ADDRESS_TYPE`; null without it. `DIRECT` where the file has no known word. No file gives
    # `PLONGLONG`: `PLONG`, which is part of it, is read instead. Only code can set it.
    FADDRESS_TYPE: Union[Literal["PBYTE", "PWORD", "PLONG", "PLONGLONG", "DIRECT"], None]
    # `CONSISTENT_EXCHANGE`; false without it.
    FCONSISTENT_EXCHANGE: bool
    # Parameter.
    FLONG_IDENTIFIER: str
    # Parameter.
    FNAME: str
    # Parameter.
    FSIZE: int
    # All `STRUCTURE_COMPONENT`; null without it.
    FSTRUCTURE_COMPONENT: Union[List[StructureComponent], None]
    # `SYMBOL_TYPE_LINK`; null without it.
    FSYMBOL_TYPE_LINK: Union[str, None]


class Unit(TypedDict):
    # Parameter.
    FDISPLAY: str
    # Parameter.
    FLONG_IDENTIFIER: str
    # Parameter.
    FNAME: str
    # `REF_UNIT`; null without it.
    FREF_UNIT: Union[str, None]
    # `SI_EXPONENTS`; null without it.
    FSI_EXPONENTS: Union[SiExponents, None]
    # `UNIT_CONVERSION`; null without it.
    FUNIT_CONVERSION: Union[UnitConversion, None]
    # Parameter. Empty where the file has no known word.
    FUNIT_TYPE: Literal["DERIVED", "EXTENDED_SI", ""]


class UnitConversion(TypedDict):
    # Parameter.
    FGRADIENT: Union[float, None]
    # Parameter.
    FOFFSET: Union[float, None]


class UserRights(TypedDict):
    # `READ_ONLY`; false without it.
    FREAD_ONLY: bool
    # All `REF_GROUP`, put together.
    FREF_GROUP: str
    # Parameter.
    FUSER_LEVEL_ID: str


class VariantCoding(TypedDict):
    # All `VAR_CHARACTERISTIC`; [] without it.
    FVAR_CHARACTERISTIC: List[VarCharacteristic]
    # All `VAR_CRITERION`; [] without it.
    FVAR_CRITERION: List[VarCriterion]
    # All `VAR_FORBIDDEN_COMB`; [] without it.
    FVAR_FORBIDDEN_COMB: List[Dict[str, str]]
    # `VAR_NAMING`; null without it. Empty where the file has no known word.
    FVAR_NAMING: Union[Literal["NUMERIC", ""], None]
    # `VAR_SEPARATOR`; null without it.
    FVAR_SEPARATOR: Union[str, None]


class VarCharacteristic(TypedDict):
    # Parameter.
    FCRITERION_NAME: str
    # Parameter.
    FNAME: str
    # `VAR_ADDRESS`, only as the first block, in decimal; null without it.
    FVAR_ADDRESS: Union[str, None]


class VarCriterion(TypedDict):
    # Parameter.
    FLONG_IDENTIFIER: str
    # Parameter.
    FNAME: str
    # Parameter.
    FVALUE: str
    # `VAR_MEASUREMENT`; null without it.
    FVAR_MEASUREMENT: Union[str, None]
    # `VAR_SELECTION_CHARACTERISTIC`; null without it.
    FVAR_SELECTION_CHARACTERISTIC: Union[str, None]


class VirtualCharacteristic(TypedDict):
    # Parameter.
    FCHARACTERISTIC: str
    # Parameter.
    FFORMULA: str


class Document(TypedDict):
    # `A2ML_VERSION`, second parameter; null without it.
    FA2ML_VERSION_UPGRADE_NO: Union[int, None]
    # `A2ML_VERSION`, first parameter; null without it.
    FA2ML_VERSION_VERSION_NO: Union[int, None]
    # `ASAP2_VERSION`, second parameter; null without it.
    FASAP2_VERSION_UPGRADE_NO: Union[int, None]
    # `ASAP2_VERSION`, first parameter; null without it.
    FASAP2_VERSION_VERSION_NO: Union[int, None]
    # Always null.
    FBaseA2LName: None
    # Name of the first `MODULE`; null without it.
    FDatabaseName: Union[str, None]
    # All `MODULE`; [] without it.
    FModules: List[Module]
    # `HEADER`, parameter; null without it.
    FProject_HEADER_COMMENT: Union[str, None]
    # `PROJECT_NO` in the `HEADER`; null without it.
    FProject_HEADER_PROJECT_NO: Union[str, None]
    # `VERSION` in the `HEADER`; null without it.
    FProject_HEADER_VERSION: Union[str, None]
    # `PROJECT`, second parameter; null without it.
    FProject_LONG_IDENTIFIER: Union[str, None]
    # `PROJECT`, first parameter; null without it.
    FProject_Name: Union[str, None]
