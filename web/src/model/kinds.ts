// SPDX-License-Identifier: MIT
//
// Which objects a document holds, where they stand in it, and what their keys refer to.

/** How a key names other objects: one name, an array of names, or names joined by commas. */
export type Form = "name" | "names" | "joined";

export interface Reference {
  /** Keys from the object on; "[]" behind one whose value is an array of objects. */
  readonly path: string;
  readonly form: Form;
  /** Kinds that the name may be of, the likeliest first. */
  readonly to: readonly string[];
  readonly role: string;
}

export interface Kind {
  /** The keyword, as in "MEASUREMENT". */
  readonly name: string;
  /** Keys from the module on. */
  readonly path: readonly string[];
  readonly nameKey: string | null;
  readonly textKey: string | null;
  readonly addressKey?: string;
  readonly references?: readonly Reference[];
}

const to = (
  path: string,
  role: string,
  kinds: readonly string[],
  form: Form = "name",
): Reference => ({
  path,
  form,
  to: kinds,
  role,
});

const QUANTITIES = ["MEASUREMENT", "CHARACTERISTIC", "AXIS_PTS", "INSTANCE", "BLOB"];
const PARAMETERS = ["CHARACTERISTIC", "AXIS_PTS", "INSTANCE", "BLOB", "MEASUREMENT"];
const TYPES = [
  "TYPEDEF_STRUCTURE",
  "TYPEDEF_MEASUREMENT",
  "TYPEDEF_CHARACTERISTIC",
  "TYPEDEF_AXIS",
  "TYPEDEF_BLOB",
];

const conversion = to("FCONVERSION", "conversion", ["COMPU_METHOD"]);
const functions = to("FFUNCTION_LIST", "function", ["FUNCTION"], "joined");
const segment = to("FREF_MEMORY_SEGMENT", "memory segment", ["MEMORY_SEGMENT"]);
const input = to("FINPUT_QUANTITY", "input quantity", QUANTITIES);
const axes = [
  to("FAXIS_DESCR[].FAXIS_PTS_REF", "axis", ["AXIS_PTS"]),
  to("FAXIS_DESCR[].FCURVE_AXIS_REF", "curve of the axis", ["CHARACTERISTIC"]),
  to("FAXIS_DESCR[].FINPUT_QUANTITY", "input quantity", QUANTITIES),
  to("FAXIS_DESCR[].FCONVERSION", "conversion of the axis", ["COMPU_METHOD"]),
];

type Details = Partial<Omit<Kind, "name">>;

const kind = (name: string, details: Details = {}): Kind => ({
  name,
  path: [`F${name}`],
  nameKey: "FNAME",
  textKey: "FLONG_IDENTIFIER",
  ...details,
});

/** Every kind of object, in the order in which the page shows them. */
export const KINDS: readonly Kind[] = [
  kind("MEASUREMENT", {
    addressKey: "FECU_ADDRESS",
    references: [conversion, functions, segment, to("FVIRTUAL", "input", QUANTITIES, "joined")],
  }),
  kind("CHARACTERISTIC", {
    addressKey: "FADDRESS",
    references: [
      conversion,
      to("FDEPOSIT", "record layout", ["RECORD_LAYOUT"]),
      ...axes,
      functions,
      segment,
      to("FMAP_LIST", "map", ["CHARACTERISTIC"], "names"),
      to("FCOMPARISON_QUANTITY", "comparison quantity", QUANTITIES),
      to("FDEPENDENT_CHARACTERISTIC.FCHARACTERISTIC", "input", PARAMETERS, "names"),
      to("FVIRTUAL_CHARACTERISTIC.FCHARACTERISTIC", "input", PARAMETERS, "joined"),
    ],
  }),
  kind("AXIS_PTS", {
    addressKey: "FADDRESS",
    references: [
      conversion,
      to("FDEPOSIT", "record layout", ["RECORD_LAYOUT"]),
      input,
      functions,
      segment,
    ],
  }),
  kind("BLOB", { addressKey: "FADDRESS" }),
  kind("INSTANCE", {
    addressKey: "FADDRESS",
    references: [
      to("FTYPEDEF_NAME", "type", TYPES),
      to("FOVERWRITE[].FINPUT_QUANTITY", "input quantity", QUANTITIES),
    ],
  }),
  kind("COMPU_METHOD", {
    references: [
      to("FCOMPU_TAB_REF", "table", ["COMPU_TAB", "COMPU_VTAB", "COMPU_VTAB_RANGE"]),
      to("FSTATUS_STRING_REF", "status texts", ["COMPU_VTAB", "COMPU_VTAB_RANGE"]),
      to("FREF_UNIT", "unit", ["UNIT"]),
    ],
  }),
  kind("COMPU_TAB"),
  kind("COMPU_VTAB"),
  kind("COMPU_VTAB_RANGE"),
  kind("RECORD_LAYOUT", { textKey: null }),
  kind("UNIT", { references: [to("FREF_UNIT", "unit", ["UNIT"])] }),
  kind("FUNCTION", {
    references: [
      to("FSUB_FUNCTION", "sub-function", ["FUNCTION"], "joined"),
      to("FDEF_CHARACTERISTIC", "definition", PARAMETERS, "joined"),
      to("FREF_CHARACTERISTIC", "use", PARAMETERS, "joined"),
      to("FIN_MEASUREMENT", "input", QUANTITIES, "joined"),
      to("FOUT_MEASUREMENT", "output", QUANTITIES, "joined"),
      to("FLOC_MEASUREMENT", "local", QUANTITIES, "joined"),
    ],
  }),
  kind("GROUP", {
    nameKey: "FGROUP_NAME",
    textKey: "FGROUP_LONG_IDENTIFIER",
    references: [
      to("FSUB_GROUP", "sub-group", ["GROUP"], "joined"),
      functions,
      to("FREF_CHARACTERISTIC", "parameter", PARAMETERS, "joined"),
      to("FREF_MEASUREMENT", "measurement", QUANTITIES, "joined"),
    ],
  }),
  kind("FRAME", { references: [to("FFRAME_MEASUREMENT", "measurement", QUANTITIES, "names")] }),
  kind("USER_RIGHTS", {
    nameKey: "FUSER_LEVEL_ID",
    textKey: null,
    references: [to("FREF_GROUP", "group", ["GROUP"], "joined")],
  }),
  kind("TRANSFORMER", {
    textKey: null,
    references: [
      to("FINVERSE_TRANSFORMER", "inverse transformer", ["TRANSFORMER"]),
      to("FTRANSFORMER_IN_OBJECTS", "input", PARAMETERS, "names"),
      to("FTRANSFORMER_OUT_OBJECTS", "output", PARAMETERS, "names"),
    ],
  }),
  kind("TYPEDEF_STRUCTURE", {
    references: [to("FSTRUCTURE_COMPONENT[].FTYPEDEF_NAME", "component", TYPES)],
  }),
  kind("TYPEDEF_MEASUREMENT", { references: [conversion] }),
  kind("TYPEDEF_CHARACTERISTIC", {
    references: [conversion, to("FRECORD_LAYOUT", "record layout", ["RECORD_LAYOUT"]), ...axes],
  }),
  kind("TYPEDEF_AXIS", {
    references: [conversion, to("FRECORD_LAYOUT", "record layout", ["RECORD_LAYOUT"]), input],
  }),
  kind("TYPEDEF_BLOB"),
  kind("MOD_PAR", { nameKey: null, textKey: "FCOMMENT" }),
  kind("MEMORY_SEGMENT", { path: ["FMOD_PAR", "FMEMORY_SEGMENT"], addressKey: "FADDRESS" }),
  kind("SYSTEM_CONSTANT", { path: ["FMOD_PAR", "FSYSTEM_CONSTANT"], textKey: "FVALUE" }),
  kind("MOD_COMMON", {
    nameKey: null,
    textKey: "FCOMMENT",
    references: [to("FS_REC_LAYOUT", "record layout", ["RECORD_LAYOUT"])],
  }),
  kind("VARIANT_CODING", { nameKey: null, textKey: null }),
  kind("VAR_CRITERION", {
    path: ["FVARIANT_CODING", "FVAR_CRITERION"],
    references: [
      to("FVAR_MEASUREMENT", "measurement", QUANTITIES),
      to("FVAR_SELECTION_CHARACTERISTIC", "selection", PARAMETERS),
    ],
  }),
  kind("VAR_CHARACTERISTIC", {
    path: ["FVARIANT_CODING", "FVAR_CHARACTERISTIC"],
    textKey: null,
    references: [
      to("FNAME", "object with variants", PARAMETERS),
      to("FCRITERION_NAME", "criterion", ["VAR_CRITERION"], "joined"),
    ],
  }),
  kind("IF_DATA", { textKey: null }),
  kind("A2ML", { nameKey: null, textKey: null }),
];

export const KIND_NUMBER: ReadonlyMap<string, number> = new Map(KINDS.map((k, i) => [k.name, i]));

/** Words that stand where a name could, and name nothing. */
export const NO_NAME: ReadonlySet<string> = new Set([
  "",
  "NO_COMPU_METHOD",
  "NO_INPUT_QUANTITY",
  "NO_INVERSE_TRANSFORMER",
]);
