# SPDX-License-Identifier: MIT
# Made by tools/make_document_types.py from docs/json.schema.json; change neither by hand.
"""The types of a document: a TypedDict for each kind of object in it."""

from __future__ import annotations

from typing import Dict, List, Literal, TypedDict, Union


class Annotation(TypedDict, total=False):
    FANNOTATION_LABEL: str
    FANNOTATION_ORIGIN: str
    FANNOTATION_TEXT: str


class AxisDescr(TypedDict):
    FANNOTATION: List[Annotation]
    FATTRIBUTE: Literal["CURVE_AXIS", "COM_AXIS", "FIX_AXIS", "RES_AXIS", "STD_AXIS", ""]
    FAXIS_PTS_REF: Union[str, None]
    FBYTE_ORDER: Union[Literal["LITTLE_ENDIAN", "BIG_ENDIAN", "MSB_LAST", "MSB_FIRST", ""], None]
    FCONVERSION: str
    FCURVE_AXIS_REF: Union[str, None]
    FDEPOSIT: Union[Literal["ABSOLUTE", "DIFFERENCE", ""], None]
    FEXTENDED_LIMITS: Union[ExtendedLimits, None]
    FFIX_AXIS_PAR: Union[FixAxisPar, None]
    FFIX_AXIS_PAR_DIST: Union[FixAxisParDist, None]
    FFIX_AXIS_PAR_LIST: Union[str, None]
    FFORMAT: Union[str, None]
    FINPUT_QUANTITY: str
    FLOWER_LIMIT: Union[float, None]
    FMAX_AXIS_POINTS: int
    FMAX_GRAD: Union[float, None]
    FMONOTONY: Union[Literal["MON_DECREASE", "MON_INCREASE", "STRICT_DECREASE", "STRICT_INCREASE", "MONOTONOUS", "STRICT_MON", "NOT_MON", ""], None]
    FPHYS_UNIT: Union[str, None]
    FREAD_ONLY: bool
    FSTEP_SIZE: Union[float, None]
    FUPPER_LIMIT: Union[float, None]


class AxisPts(TypedDict):
    FADDRESS: str
    FANNOTATION: List[Annotation]
    FBYTE_ORDER: Union[Literal["LITTLE_ENDIAN", "BIG_ENDIAN", "MSB_LAST", "MSB_FIRST", ""], None]
    FCALIBRATION_ACCESS: Union[Literal["CALIBRATION", "NO_CALIBRATION", "NOT_IN_MCD_SYSTEM", "OFFLINE_CALIBRATION", ""], None]
    FCONVERSION: str
    FDEPOSIT: str
    FDISPLAY_IDENTIFIER: Union[str, None]
    FECU_ADDRESS_EXTENSION: Union[int, None]
    FEXTENDED_LIMITS: Union[ExtendedLimits, None]
    FFORMAT: Union[str, None]
    FFUNCTION_LIST: Union[str, None]
    FGUARD_RAILS: bool
    FIF_DATA: List[IfData]
    FINPUT_QUANTITY: str
    FISVALID: bool
    FLONG_IDENTIFIER: str
    FLOWER_LIMIT: Union[float, None]
    FMAX_AXIS_POINTS: int
    FMAX_DIFF: Union[float, None]
    FMAX_REFRESH: Union[MaxRefresh, None]
    FMODEL_LINK: Union[str, None]
    FMONOTONY: Union[Literal["MON_DECREASE", "MON_INCREASE", "STRICT_DECREASE", "STRICT_INCREASE", "MONOTONOUS", "STRICT_MON", "NOT_MON", ""], None]
    FNAME: str
    FPHYS_UNIT: Union[str, None]
    FREAD_ONLY: bool
    FREF_MEMORY_SEGMENT: Union[str, None]
    FSTEP_SIZE: Union[float, None]
    FSYMBOL_LINK: Union[SymbolLink, None]
    FUPPER_LIMIT: Union[float, None]


class AxisPtsX(TypedDict):
    FADDRESSING: Literal["PBYTE", "PWORD", "PLONG", "PLONGLONG", "DIRECT"]
    FDATA_TYPE: Literal["UBYTE", "SBYTE", "UWORD", "SWORD", "ULONG", "SLONG", "A_UINT64", "A_INT64", "FLOAT32_IEEE", "FLOAT64_IEEE"]
    FINDEX_INCR: Literal["INDEX_INCR", "INDEX_DECR"]
    FPOSITION: int


class AxisRescaleX(TypedDict):
    FADDRESSING: Literal["PBYTE", "PWORD", "PLONG", "PLONGLONG", "DIRECT"]
    FDATA_TYPE: Literal["UBYTE", "SBYTE", "UWORD", "SWORD", "ULONG", "SLONG", "A_UINT64", "A_INT64", "FLOAT32_IEEE", "FLOAT64_IEEE"]
    FINDEX_INCR: Literal["INDEX_INCR", "INDEX_DECR"]
    FMAX_NUMBER_OF_RESCALE_PAIRS: int
    FPOSITION: int


class BitOperation(TypedDict):
    FLEFT_SHIFT: Union[int, None]
    FRIGHT_SHIFT: Union[int, None]
    FSIGN_EXTEND: Union[str, None]


class Blob(TypedDict):
    FADDRESS: str
    FADDRESS_TYPE: Union[Literal["PBYTE", "PWORD", "PLONG", "PLONGLONG", "DIRECT"], None]
    FANNOTATION: List[Annotation]
    FCALIBRATION_ACCESS: Union[Literal["CALIBRATION", "NO_CALIBRATION", "NOT_IN_MCD_SYSTEM", "OFFLINE_CALIBRATION", ""], None]
    FDISPLAY_IDENTIFIER: Union[str, None]
    FECU_ADDRESS_EXTENSION: Union[int, None]
    FIF_DATA: List[IfData]
    FISVALID: bool
    FLONG_IDENTIFIER: str
    FMAX_REFRESH: Union[MaxRefresh, None]
    FMODEL_LINK: Union[str, None]
    FNAME: str
    FSIZE: int
    FSYMBOL_LINK: Union[SymbolLink, None]


class CalibrationHandle(TypedDict):
    FHANDLE: str
    FHANDLE_TEXT: Union[str, None]


class CalibrationMethod(TypedDict):
    FCALIBRATION_HANDLE: List[CalibrationHandle]
    FMETHOD: str
    FVERSION: int


class Characteristic(TypedDict):
    FADDRESS: str
    FANNOTATION: List[Annotation]
    FAXIS_DESCR: List[AxisDescr]
    FBIT_MASK: Union[int, None]
    FBYTE_ORDER: Union[Literal["LITTLE_ENDIAN", "BIG_ENDIAN", "MSB_LAST", "MSB_FIRST", ""], None]
    FCALIBRATION_ACCESS: Union[Literal["CALIBRATION", "NO_CALIBRATION", "NOT_IN_MCD_SYSTEM", "OFFLINE_CALIBRATION", ""], None]
    FCHARACTERISTIC_TYPE: Literal["ASCII", "CURVE", "MAP", "CUBOID", "CUBE_4", "CUBE_5", "VAL_BLK", "VALUE", ""]
    FCOMPARISON_QUANTITY: Union[str, None]
    FCONVERSION: str
    FDEPENDENT_CHARACTERISTIC: Union[DependentCharacteristic, None]
    FDEPOSIT: str
    FDISCRETE: bool
    FDISPLAY_IDENTIFIER: Union[str, None]
    FECU_ADDRESS_EXTENSION: Union[int, None]
    FENCODING: None
    FEXTENDED_LIMITS: Union[ExtendedLimits, None]
    FFORMAT: Union[str, None]
    FFUNCTION_LIST: Union[str, None]
    FGUARD_RAILS: bool
    FIF_DATA: List[IfData]
    FISVALID: bool
    FLONG_IDENTIFIER: str
    FLOWER_LIMIT: Union[float, None]
    FMAP_LIST: Union[List[str], None]
    FMATRIX_DIM: List[int]
    FMAX_DIFF: Union[float, None]
    FMAX_REFRESH: Union[MaxRefresh, None]
    FMODEL_LINK: Union[str, None]
    FNAME: str
    FNUMBER: Union[int, None]
    FPHYS_UNIT: Union[str, None]
    FREAD_ONLY: bool
    FREF_MEMORY_SEGMENT: Union[str, None]
    FSTEP_SIZE: Union[float, None]
    FSYMBOL_LINK: Union[SymbolLink, None]
    FUPPER_LIMIT: Union[float, None]
    FVIRTUAL_CHARACTERISTIC: Union[VirtualCharacteristic, None]


class CompuMethod(TypedDict):
    FCOEFFS: Union[str, None]
    FCOEFFS_LINEAR: Union[str, None]
    FCOMPU_TAB_REF: Union[str, None]
    FCONVERSION_TYPE: Literal["IDENTICAL", "FORM", "LINEAR", "RAT_FUNC", "TAB_INTP", "TAB_NOINTP", "TAB_VERB", ""]
    FFORMAT: str
    FFORMULA: Union[Formula, None]
    FLONG_IDENTIFIER: str
    FNAME: str
    FREF_UNIT: Union[str, None]
    FSTATUS_STRING_REF: Union[str, None]
    FUNIT: str


class CompuTab(TypedDict):
    FCONVERSION_TYPE: Literal["TAB_INTP", "TAB_NOINTP", ""]
    FDEFAULT_VALUE: Union[str, None]
    FDEFAULT_VALUE_NUMERIC: Union[float, None]
    FIN_VAL: List[Union[float, None]]
    FLONG_IDENTIFIER: str
    FNAME: str
    FNUMBER_VALUE_PAIRS: int
    FOUT_VAL: List[Union[float, None]]


class CompuVtab(TypedDict):
    FCONVERSION_TYPE: Literal["TAB_VERB", ""]
    FDEFAULT_VALUE: Union[str, None]
    FIN_VAL: List[Union[float, None]]
    FLONG_IDENTIFIER: str
    FNAME: str
    FNUMBER_VALUE_PAIRS: int
    FOUT_VAL: List[str]


class CompuVtabRange(TypedDict):
    FDEFAULT_VALUE: Union[str, None]
    FIN_VAL_MAX: List[Union[float, None]]
    FIN_VAL_MIN: List[Union[float, None]]
    FLONG_IDENTIFIER: str
    FNAME: str
    FNUMBER_VALUE_TRIPLES: int
    FOUT_VAL: List[str]


class DependentCharacteristic(TypedDict):
    FCHARACTERISTIC: List[str]
    FFORMULA: str


class DistOpX(TypedDict):
    FDATA_TYPE: Literal["UBYTE", "SBYTE", "UWORD", "SWORD", "ULONG", "SLONG", "A_UINT64", "A_INT64", "FLOAT32_IEEE", "FLOAT64_IEEE"]
    FPOSITION: int


class ExtendedLimits(TypedDict):
    FLOWER_LIMIT: Union[float, None]
    FUPPER_LIMIT: Union[float, None]


class FixAxisPar(TypedDict):
    FNUMBERAPO: int
    FOFFSET: int
    FSHIFT: int


class FixAxisParDist(TypedDict):
    FDISTANCE: Union[float, None]
    FNUMBERAPO: int
    FOFFSET: Union[float, None]


class FixNoAxisPtsX(TypedDict):
    FNUMBER_OF_AXIS_POINTS: int


class FncValues(TypedDict):
    FADDRESS_TYPE: Literal["PBYTE", "PWORD", "PLONG", "PLONGLONG", "DIRECT"]
    FDATA_TYPE: Literal["UBYTE", "SBYTE", "UWORD", "SWORD", "ULONG", "SLONG", "A_UINT64", "A_INT64", "FLOAT32_IEEE", "FLOAT64_IEEE"]
    FINDEX_MODE: Literal["ALTERNATE_CURVES", "ALTERNATE_WITH_X", "ALTERNATE_WITH_Y", "COLUMN_DIR", "ROW_DIR", ""]
    FPOSITION: int


class Formula(TypedDict):
    FFORMULA: str
    FFORMULA_INV: Union[str, None]


class Frame(TypedDict):
    FFRAME_MEASUREMENT: Union[List[str], None]
    FIF_DATA: List[IfData]
    FLONG_IDENTIFIER: str
    FNAME: str
    FRATE: int
    FSCALING_UNIT: int


class Function(TypedDict):
    FANNOTATION: List[Annotation]
    FAR_COMPONENT: Union[str, None]
    FAR_PROTOTYPE_OF: Union[str, None]
    FDEF_CHARACTERISTIC: Union[str, None]
    FFUNCTION_VERSION: Union[str, None]
    FIF_DATA: List[IfData]
    FIN_MEASUREMENT: Union[str, None]
    FLOC_MEASUREMENT: Union[str, None]
    FLONG_IDENTIFIER: str
    FNAME: str
    FOUT_MEASUREMENT: Union[str, None]
    FREF_CHARACTERISTIC: Union[str, None]
    FSUB_FUNCTION: Union[str, None]


class Group(TypedDict):
    FANNOTATION: List[Annotation]
    FFUNCTION_LIST: Union[str, None]
    FGROUP_LONG_IDENTIFIER: str
    FGROUP_NAME: str
    FIF_DATA: List[IfData]
    FREF_CHARACTERISTIC: Union[str, None]
    FREF_MEASUREMENT: Union[str, None]
    FROOT: bool
    FSUB_GROUP: Union[str, None]


class Identification(TypedDict):
    FDATA_TYPE: Literal["UBYTE", "SBYTE", "UWORD", "SWORD", "ULONG", "SLONG", "A_UINT64", "A_INT64", "FLOAT32_IEEE", "FLOAT64_IEEE"]
    FPOSITION: int


class IfData(TypedDict):
    FIF_DATA: str
    FNAME: str


class Instance(TypedDict):
    FADDRESS: str
    FADDRESS_TYPE: Union[Literal["PBYTE", "PWORD", "PLONG", "PLONGLONG", "DIRECT"], None]
    FANNOTATION: List[Annotation]
    FCALIBRATION_ACCESS: Union[Literal["CALIBRATION", "NO_CALIBRATION", "NOT_IN_MCD_SYSTEM", "OFFLINE_CALIBRATION", ""], None]
    FDISPLAY_IDENTIFIER: Union[str, None]
    FECU_ADDRESS_EXTENSION: Union[int, None]
    FIF_DATA: List[IfData]
    FISVALID: bool
    FLAYOUT: Union[Literal["ROW_DIR", "COLUMN_DIR", ""], None]
    FLONG_IDENTIFIER: str
    FMATRIX_DIM: List[int]
    FMAX_REFRESH: Union[MaxRefresh, None]
    FMODEL_LINK: Union[str, None]
    FNAME: str
    FOVERWRITE: Union[List[Overwrite], None]
    FREAD_WRITE: bool
    FSYMBOL_LINK: Union[SymbolLink, None]
    FTYPEDEF_NAME: str


class Limits(TypedDict):
    FLOWER_LIMIT: Union[float, None]
    FUPPER_LIMIT: Union[float, None]


class MaxRefresh(TypedDict):
    FRATE: int
    FSCALING_UNIT: int


class Measurement(TypedDict):
    FACCURACY: int
    FADDRESS_TYPE: Union[Literal["PBYTE", "PWORD", "PLONG", "PLONGLONG", "DIRECT"], None]
    FANNOTATION: List[Annotation]
    FARRAY_SIZE: Union[int, None]
    FBIT_MASK: Union[int, None]
    FBIT_OPERATION: Union[BitOperation, None]
    FBYTE_ORDER: Union[Literal["LITTLE_ENDIAN", "BIG_ENDIAN", "MSB_LAST", "MSB_FIRST", ""], None]
    FCONVERSION: str
    FDATATYPE: Literal["UBYTE", "SBYTE", "UWORD", "SWORD", "ULONG", "SLONG", "A_UINT64", "A_INT64", "FLOAT32_IEEE", "FLOAT64_IEEE"]
    FDISCRETE: bool
    FDISPLAY_IDENTIFIER: Union[str, None]
    FECU_ADDRESS: Union[str, None]
    FECU_ADDRESS_EXTENSION: Union[int, None]
    FERROR_MASK: Union[int, None]
    FFORMAT: Union[str, None]
    FFUNCTION_LIST: Union[str, None]
    FIF_DATA: List[IfData]
    FISVALID: bool
    FLAYOUT: Union[Literal["ROW_DIR", "COLUMN_DIR", ""], None]
    FLONG_IDENTIFIER: str
    FLOWER_LIMIT: Union[float, None]
    FMATRIX_DIM: List[int]
    FMAX_REFRESH: Union[MaxRefresh, None]
    FMODEL_LINK: Union[str, None]
    FNAME: str
    FPHYS_UNIT: Union[str, None]
    FREAD_WRITE: bool
    FREF_MEMORY_SEGMENT: Union[str, None]
    FRESOLUTION: int
    FSYMBOL_LINK: Union[SymbolLink, None]
    FUPPER_LIMIT: Union[float, None]
    FVIRTUAL: Union[str, None]


class MemoryLayout(TypedDict):
    FADDRESS: str
    FIF_DATA: List[IfData]
    FOFFSET: str
    FPRG_TYPE: Literal["PRG_CODE", "PRG_DATA", "PRG_RESERVED", ""]
    FSIZE: int


class MemorySegment(TypedDict):
    FADDRESS: str
    FATTRIBUTE: Literal["INTERN", "EXTERN", ""]
    FIF_DATA: List[IfData]
    FLONG_IDENTIFIER: str
    FMEMORY_TYPE: Literal["EEPROM", "EPROM", "FLASH", "RAM", "ROM", "REGISTER", ""]
    FNAME: str
    FOFFSET: str
    FPRG_TYPE: Literal["CALIBRATION_VARIABLES", "CODE", "DATA", "EXCLUDE_FROM_FLASH", "OFFLINE_DATA", "RESERVED", "SERAM", "VARIABLES", ""]
    FSIZE: int


class Module(TypedDict):
    FA2ML: Union[str, None]
    FAXIS_PTS: List[AxisPts]
    FBLOB: List[Blob]
    FCHARACTERISTIC: List[Characteristic]
    FCOMPU_METHOD: List[CompuMethod]
    FCOMPU_TAB: List[CompuTab]
    FCOMPU_VTAB: List[CompuVtab]
    FCOMPU_VTAB_RANGE: List[CompuVtabRange]
    FFRAME: Union[Frame, None]
    FFUNCTION: List[Function]
    FGROUP: List[Group]
    FIF_DATA: List[IfData]
    FINSTANCE: List[Instance]
    FLONG_IDENTIFIER: str
    FMEASUREMENT: List[Measurement]
    FMOD_COMMON: Union[ModCommon, None]
    FMOD_PAR: Union[ModPar, None]
    FNAME: str
    FRECORD_LAYOUT: List[RecordLayout]
    FTRANSFORMER: List[Transformer]
    FTYPEDEF_AXIS: List[TypedefAxis]
    FTYPEDEF_BLOB: List[TypedefBlob]
    FTYPEDEF_CHARACTERISTIC: List[TypedefCharacteristic]
    FTYPEDEF_MEASUREMENT: List[TypedefMeasurement]
    FTYPEDEF_STRUCTURE: List[TypedefStructure]
    FUNIT: List[Unit]
    FUSER_RIGHTS: List[UserRights]
    FVARIANT_CODING: Union[VariantCoding, None]


class ModCommon(TypedDict):
    FALIGNMENT_BYTE: Union[int, None]
    FALIGNMENT_FLOAT16_IEEE: Union[int, None]
    FALIGNMENT_FLOAT32_IEEE: Union[int, None]
    FALIGNMENT_FLOAT64_IEEE: Union[int, None]
    FALIGNMENT_INT64: Union[int, None]
    FALIGNMENT_LONG: Union[int, None]
    FALIGNMENT_WORD: Union[int, None]
    FBYTE_ORDER: Union[Literal["LITTLE_ENDIAN", "BIG_ENDIAN", "MSB_LAST", "MSB_FIRST", ""], None]
    FCOMMENT: str
    FDATA_SIZE: Union[int, None]
    FDEPOSIT: Union[Literal["ABSOLUTE", "DIFFERENCE", ""], None]
    FS_REC_LAYOUT: Union[str, None]


class ModPar(TypedDict):
    FADDR_EPK: Union[str, None]
    FCALIBRATION_METHOD: List[CalibrationMethod]
    FCOMMENT: str
    FCPU_TYPE: Union[str, None]
    FCUSTOMER: Union[str, None]
    FCUSTOMER_NO: Union[str, None]
    FECU: Union[str, None]
    FECU_CALIBRATION_OFFSET: Union[int, None]
    FEPK: Union[str, None]
    FMEMORY_LAYOUT: List[MemoryLayout]
    FMEMORY_SEGMENT: List[MemorySegment]
    FNO_OF_INTERFACES: Union[int, None]
    FPHONE_NO: Union[str, None]
    FSUPPLIER: Union[str, None]
    FSYSTEM_CONSTANT: List[SystemConstant]
    FUSER: Union[str, None]
    FVERSION: Union[str, None]


class NoAxisPtsX(TypedDict):
    FDATA_TYPE: Literal["UBYTE", "SBYTE", "UWORD", "SWORD", "ULONG", "SLONG", "A_UINT64", "A_INT64", "FLOAT32_IEEE", "FLOAT64_IEEE"]
    FPOSITION: int


class NoRescaleX(TypedDict):
    FDATA_TYPE: Literal["UBYTE", "SBYTE", "UWORD", "SWORD", "ULONG", "SLONG", "A_UINT64", "A_INT64", "FLOAT32_IEEE", "FLOAT64_IEEE"]
    FPOSITION: int


class OffsetX(TypedDict):
    FDATA_TYPE: Literal["UBYTE", "SBYTE", "UWORD", "SWORD", "ULONG", "SLONG", "A_UINT64", "A_INT64", "FLOAT32_IEEE", "FLOAT64_IEEE"]
    FPOSITION: int


class Overwrite(TypedDict):
    FADDRESS_TYPE: None
    FAXIS_NUMBER: int
    FEXTENDED_LIMITS: Union[ExtendedLimits, None]
    FFORMAT: Union[str, None]
    FINPUT_QUANTITY: Union[str, None]
    FLIMITS: Union[Limits, None]
    FMONOTONY: Union[Literal["MON_DECREASE", "MON_INCREASE", "STRICT_DECREASE", "STRICT_INCREASE", "MONOTONOUS", "STRICT_MON", "NOT_MON", ""], None]
    FNAME: str
    FPHYS_UNIT: Union[str, None]


class RecordLayout(TypedDict):
    FALIGNMENT_BYTE: Union[int, None]
    FALIGNMENT_FLOAT16_IEEE: Union[int, None]
    FALIGNMENT_FLOAT32_IEEE: Union[int, None]
    FALIGNMENT_FLOAT64_IEEE: Union[int, None]
    FALIGNMENT_INT64: Union[int, None]
    FALIGNMENT_LONG: Union[int, None]
    FALIGNMENT_WORD: Union[Union[int, None], Identification]
    FAXIS_PTS_4: Union[AxisPtsX, None]
    FAXIS_PTS_5: Union[AxisPtsX, None]
    FAXIS_PTS_X: Union[AxisPtsX, None]
    FAXIS_PTS_Y: Union[AxisPtsX, None]
    FAXIS_PTS_Z: Union[AxisPtsX, None]
    FAXIS_RESCALE_4: Union[AxisRescaleX, None]
    FAXIS_RESCALE_5: Union[AxisRescaleX, None]
    FAXIS_RESCALE_X: Union[AxisRescaleX, None]
    FAXIS_RESCALE_Y: Union[AxisRescaleX, None]
    FAXIS_RESCALE_Z: Union[AxisRescaleX, None]
    FDIST_OP_4: Union[DistOpX, None]
    FDIST_OP_5: Union[DistOpX, None]
    FDIST_OP_X: Union[DistOpX, None]
    FDIST_OP_Y: Union[DistOpX, None]
    FDIST_OP_Z: Union[DistOpX, None]
    FFIX_NO_AXIS_PTS_4: Union[FixNoAxisPtsX, None]
    FFIX_NO_AXIS_PTS_5: Union[FixNoAxisPtsX, None]
    FFIX_NO_AXIS_PTS_X: Union[FixNoAxisPtsX, None]
    FFIX_NO_AXIS_PTS_Y: Union[FixNoAxisPtsX, None]
    FFIX_NO_AXIS_PTS_Z: Union[FixNoAxisPtsX, None]
    FFNC_VALUES: Union[FncValues, None]
    FIDENTIFICATION: None
    FNAME: str
    FNO_AXIS_PTS_4: Union[NoAxisPtsX, None]
    FNO_AXIS_PTS_5: Union[NoAxisPtsX, None]
    FNO_AXIS_PTS_X: Union[NoAxisPtsX, None]
    FNO_AXIS_PTS_Y: Union[NoAxisPtsX, None]
    FNO_AXIS_PTS_Z: Union[NoAxisPtsX, None]
    FNO_RESCALE_4: Union[NoRescaleX, None]
    FNO_RESCALE_5: Union[NoRescaleX, None]
    FNO_RESCALE_X: Union[NoRescaleX, None]
    FNO_RESCALE_Y: Union[NoRescaleX, None]
    FNO_RESCALE_Z: Union[NoRescaleX, None]
    FOFFSET_4: Union[OffsetX, None]
    FOFFSET_5: Union[OffsetX, None]
    FOFFSET_X: Union[OffsetX, None]
    FOFFSET_Y: Union[OffsetX, None]
    FOFFSET_Z: Union[OffsetX, None]
    FRESERVED: List[Reserved]
    FRIP_ADDR_4: Union[RipAddrW, None]
    FRIP_ADDR_5: Union[RipAddrW, None]
    FRIP_ADDR_W: Union[RipAddrW, None]
    FRIP_ADDR_X: Union[RipAddrW, None]
    FRIP_ADDR_Y: Union[RipAddrW, None]
    FRIP_ADDR_Z: Union[RipAddrW, None]
    FSHIFT_OP_4: Union[ShiftOpX, None]
    FSHIFT_OP_5: Union[ShiftOpX, None]
    FSHIFT_OP_X: Union[ShiftOpX, None]
    FSHIFT_OP_Y: Union[ShiftOpX, None]
    FSHIFT_OP_Z: Union[ShiftOpX, None]
    FSRC_ADDR_4: Union[SrcAddrX, None]
    FSRC_ADDR_5: Union[SrcAddrX, None]
    FSRC_ADDR_X: Union[SrcAddrX, None]
    FSRC_ADDR_Y: Union[SrcAddrX, None]
    FSRC_ADDR_Z: Union[SrcAddrX, None]
    FSTATIC_ADDRESS_OFFSETS: bool
    FSTATIC_RECORD_LAYOUT: bool


class Reserved(TypedDict):
    FDATA_TYPE: Literal["BYTE", "WORD", "LONG"]
    FPOSITION: int


class RipAddrW(TypedDict):
    FDATA_TYPE: Literal["UBYTE", "SBYTE", "UWORD", "SWORD", "ULONG", "SLONG", "A_UINT64", "A_INT64", "FLOAT32_IEEE", "FLOAT64_IEEE"]
    FPOSITION: int


class ShiftOpX(TypedDict):
    FDATA_TYPE: Literal["UBYTE", "SBYTE", "UWORD", "SWORD", "ULONG", "SLONG", "A_UINT64", "A_INT64", "FLOAT32_IEEE", "FLOAT64_IEEE"]
    FPOSITION: int


class SiExponents(TypedDict):
    FAMOUNT_OF_SUBSTANCE: int
    FELECTRIC_CURRENT: int
    FLENGTH: int
    FLUMINOUS_INTENSITY: int
    FMASS: int
    FTEMPERATURE: int
    FTIME: int


class SrcAddrX(TypedDict):
    FDATA_TYPE: Literal["UBYTE", "SBYTE", "UWORD", "SWORD", "ULONG", "SLONG", "A_UINT64", "A_INT64", "FLOAT32_IEEE", "FLOAT64_IEEE"]
    FPOSITION: int


class StructureComponent(TypedDict):
    FADDRESS_OFFSET: int
    FADDRESS_TYPE: Union[Literal["PBYTE", "PWORD", "PLONG", "PLONGLONG", "DIRECT"], None]
    FLAYOUT: Union[Literal["ROW_DIR", "COLUMN_DIR", ""], None]
    FMATRIX_DIM: List[int]
    FNAME: str
    FSYMBOL_TYPE_LINK: Union[str, None]
    FTYPEDEF_NAME: str


class SymbolLink(TypedDict):
    FOFFSET: int
    FSYMBOL_NAME: str


class SystemConstant(TypedDict):
    FNAME: str
    FVALUE: str


class Transformer(TypedDict):
    FEXECUTABLE32: str
    FEXECUTABLE64: str
    FINVERSE_TRANSFORMER: str
    FNAME: str
    FTIMEOUT: int
    FTRANSFORMER_IN_OBJECTS: Union[List[str], None]
    FTRANSFORMER_OUT_OBJECTS: Union[List[str], None]
    FTRIGGER: Literal["ON_CHANGE", "ON_USER_REQUEST", ""]
    FVERSION: str


class TypedefAxis(TypedDict):
    FBYTE_ORDER: Union[Literal["LITTLE_ENDIAN", "BIG_ENDIAN", "MSB_LAST", "MSB_FIRST", ""], None]
    FCONVERSION: str
    FDEPOSIT: Union[Literal["ABSOLUTE", "DIFFERENCE", ""], None]
    FEXTENDED_LIMITS: Union[ExtendedLimits, None]
    FFORMAT: Union[str, None]
    FINPUT_QUANTITY: str
    FLONG_IDENTIFIER: str
    FLOWER_LIMIT: Union[float, None]
    FMAX_AXIS_POINTS: int
    FMAX_DIFF: Union[float, None]
    FMONOTONY: Union[Literal["MON_DECREASE", "MON_INCREASE", "STRICT_DECREASE", "STRICT_INCREASE", "MONOTONOUS", "STRICT_MON", "NOT_MON", ""], None]
    FNAME: str
    FPHYS_UNIT: Union[str, None]
    FRECORD_LAYOUT: str
    FSTEP_SIZE: Union[float, None]
    FUPPER_LIMIT: Union[float, None]


class TypedefBlob(TypedDict):
    FADDRESS_TYPE: Union[Literal["PBYTE", "PWORD", "PLONG", "PLONGLONG", "DIRECT"], None]
    FLONG_IDENTIFIER: str
    FNAME: str
    FSIZE: int


class TypedefCharacteristic(TypedDict):
    FAXIS_DESCR: List[AxisDescr]
    FBIT_MASK: Union[int, None]
    FBYTE_ORDER: Union[Literal["LITTLE_ENDIAN", "BIG_ENDIAN", "MSB_LAST", "MSB_FIRST", ""], None]
    FCHARACTERISTIC_TYPE: Literal["ASCII", "CURVE", "MAP", "CUBOID", "CUBE_4", "CUBE_5", "VAL_BLK", "VALUE", ""]
    FCONVERSION: str
    FDISCRETE: bool
    FENCODING: None
    FEXTENDED_LIMITS: Union[ExtendedLimits, None]
    FFORMAT: Union[str, None]
    FLONG_IDENTIFIER: str
    FLOWER_LIMIT: Union[float, None]
    FMATRIX_DIM: List[int]
    FMAX_DIFF: Union[float, None]
    FNAME: str
    FNUMBER: Union[int, None]
    FPHYS_UNIT: Union[str, None]
    FRECORD_LAYOUT: str
    FSTEP_SIZE: Union[float, None]
    FUPPER_LIMIT: Union[float, None]


class TypedefMeasurement(TypedDict):
    FACCURACY: Union[float, None]
    FADDRESS_TYPE: Union[Literal["PBYTE", "PWORD", "PLONG", "PLONGLONG", "DIRECT"], None]
    FBIT_MASK: Union[int, None]
    FBIT_OPERATION: Union[BitOperation, None]
    FBYTE_ORDER: Union[Literal["LITTLE_ENDIAN", "BIG_ENDIAN", "MSB_LAST", "MSB_FIRST", ""], None]
    FCONVERSION: str
    FDATATYPE: Literal["UBYTE", "SBYTE", "UWORD", "SWORD", "ULONG", "SLONG", "A_UINT64", "A_INT64", "FLOAT32_IEEE", "FLOAT64_IEEE"]
    FDISCRETE: bool
    FERROR_MASK: Union[int, None]
    FFORMAT: Union[str, None]
    FLAYOUT: Union[Literal["ROW_DIR", "COLUMN_DIR", ""], None]
    FLONG_IDENTIFIER: str
    FLOWER_LIMIT: Union[float, None]
    FMATRIX_DIM: List[int]
    FNAME: str
    FPHYS_UNIT: Union[str, None]
    FRESOLUTION: int
    FUPPER_LIMIT: Union[float, None]


class TypedefStructure(TypedDict):
    FADDRESS_TYPE: Union[Literal["PBYTE", "PWORD", "PLONG", "PLONGLONG", "DIRECT"], None]
    FCONSISTENT_EXCHANGE: bool
    FLONG_IDENTIFIER: str
    FNAME: str
    FSIZE: int
    FSTRUCTURE_COMPONENT: Union[List[StructureComponent], None]
    FSYMBOL_TYPE_LINK: Union[str, None]


class Unit(TypedDict):
    FDISPLAY: str
    FLONG_IDENTIFIER: str
    FNAME: str
    FREF_UNIT: Union[str, None]
    FSI_EXPONENTS: Union[SiExponents, None]
    FUNIT_CONVERSION: Union[UnitConversion, None]
    FUNIT_TYPE: Literal["DERIVED", "EXTENDED_SI", ""]


class UnitConversion(TypedDict):
    FGRADIENT: Union[float, None]
    FOFFSET: Union[float, None]


class UserRights(TypedDict):
    FREAD_ONLY: bool
    FREF_GROUP: str
    FUSER_LEVEL_ID: str


class VariantCoding(TypedDict):
    FVAR_CHARACTERISTIC: List[VarCharacteristic]
    FVAR_CRITERION: List[VarCriterion]
    FVAR_FORBIDDEN_COMB: List[Dict[str, str]]
    FVAR_NAMING: Union[Literal["NUMERIC", ""], None]
    FVAR_SEPARATOR: Union[str, None]


class VarCharacteristic(TypedDict):
    FCRITERION_NAME: str
    FNAME: str
    FVAR_ADDRESS: Union[str, None]


class VarCriterion(TypedDict):
    FLONG_IDENTIFIER: str
    FNAME: str
    FVALUE: str
    FVAR_MEASUREMENT: Union[str, None]
    FVAR_SELECTION_CHARACTERISTIC: Union[str, None]


class VirtualCharacteristic(TypedDict):
    FCHARACTERISTIC: str
    FFORMULA: str


class Document(TypedDict):
    FA2ML_VERSION_UPGRADE_NO: Union[int, None]
    FA2ML_VERSION_VERSION_NO: Union[int, None]
    FASAP2_VERSION_UPGRADE_NO: Union[int, None]
    FASAP2_VERSION_VERSION_NO: Union[int, None]
    FBaseA2LName: None
    FDatabaseName: Union[str, None]
    FModules: List[Module]
    FProject_HEADER_COMMENT: Union[str, None]
    FProject_HEADER_PROJECT_NO: Union[str, None]
    FProject_HEADER_VERSION: Union[str, None]
    FProject_LONG_IDENTIFIER: Union[str, None]
    FProject_Name: Union[str, None]
