// SPDX-License-Identifier: MIT
#include "bench/generate.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <numeric>
#include <ostream>
#include <span>
#include <string_view>
#include <utility>

#include <fmt/format.h>

namespace a2l::bench {
namespace {

constexpr std::array kSubsystems = {"Air",  "Fuel", "Ign",  "Trq", "Exh",  "Cool", "Oil",  "Batt",
                                    "Mot",  "Gear", "Clu",  "Brk", "Veh",  "Diag", "Evap", "Knk",
                                    "Lam",  "Turb", "Egr",  "Scr", "Dpf",  "Idle", "Tank", "Inv",
                                    "Pump", "Fan",  "Valv", "Thr", "Acc_", "Dcdc", "Hv",   "Lv"};
constexpr std::array kQuantities = {
    "Press", "Temp", "Spd", "Pos", "Mass", "Flow", "Ang",  "Curr", "Volt", "Pwr",  "Rat",
    "Grad",  "Dly",  "Cnt", "St",  "Flag", "Fac",  "Ofs",  "Lim",  "Tgt",  "Act",  "Des",
    "Filtd", "Max",  "Min", "Err", "Thd",  "Hys",  "Ramp", "Mode", "Raw_", "Integ"};
constexpr std::array kWords = {
    "upper",   "lower",    "filtered",    "desired",     "actual",   "limit",     "threshold",
    "of the",  "for",      "intake",      "manifold",    "pressure", "coolant",   "temperature",
    "factor",  "after",    "start",       "correction",  "during",   "idle",      "control",
    "raw",     "value",    "from",        "sensor",      "model",    "based",     "gradient",
    "torque",  "engine",   "speed",       "requested",   "counter",  "debounced", "time",
    "delay",   "enabled",  "condition",   "status",      "bit",      "field",     "adaptation",
    "offset",  "lambda",   "hysteresis",  "bank",        "cylinder", "inverter",  "individual",
    "battery", "charging", "cell",        "voltage",     "rotor",    "position",  "gearbox",
    "shift",   "ratio",    "diagnostics", "plausibility"};
constexpr std::array kStates = {"Off",   "Init",  "Standby", "Ready",  "Running", "Limited",
                                "Fault", "Shut",  "Locked",  "Active", "Passive", "Sleep",
                                "Test",  "Learn", "Overrun", "Invalid"};

struct Type {
  std::string_view name;
  std::uint32_t bytes;
  double lowest;
  double highest;
};
// The frequent types occur more than once.
constexpr std::array kTypes = {Type{"UBYTE", 1, 0, 255},
                               Type{"UWORD", 2, 0, 65535},
                               Type{"SWORD", 2, -32768, 32767},
                               Type{"FLOAT32_IEEE", 4, -1e6, 1e6},
                               Type{"SBYTE", 1, -128, 127},
                               Type{"ULONG", 4, 0, 4294967295},
                               Type{"SLONG", 4, -2147483648, 2147483647},
                               Type{"FLOAT64_IEEE", 8, -1e12, 1e12}};
constexpr std::array<std::size_t, 16> kTypeChoices = {0, 0, 0, 0, 1, 1, 1, 1,
                                                      1, 2, 2, 2, 3, 4, 5, 6};

struct UnitText {
  std::string_view name;
  std::string_view display;
  std::string_view exponents;
};
constexpr std::array kUnits = {UnitText{"U_One", "-", "0 0 0 0 0 0 0"},
                               UnitText{"U_PerMinute", "1/min", "0 0 -1 0 0 0 0"},
                               UnitText{"U_HectoPascal", "hPa", "-1 1 -2 0 0 0 0"},
                               UnitText{"U_DegreeCelsius", "deg C", "0 0 0 0 1 0 0"},
                               UnitText{"U_NewtonMetre", "Nm", "2 1 -2 0 0 0 0"},
                               UnitText{"U_Volt", "V", "2 1 -3 -1 0 0 0"},
                               UnitText{"U_Ampere", "A", "0 0 0 1 0 0 0"},
                               UnitText{"U_Second", "s", "0 0 1 0 0 0 0"},
                               UnitText{"U_Percent", "%", "0 0 0 0 0 0 0"},
                               UnitText{"U_KilometrePerHour", "km/h", "1 0 -1 0 0 0 0"},
                               UnitText{"U_MilligramPerStroke", "mg/stroke", "0 1 0 0 0 0 0"}};

constexpr std::string_view kGrammar = R"(
struct Symbol {
  char [256];   /* name    */
  ulong;        /* address */
  uint;         /* type    */
};
enum Checksum { "ADD_11" = 1, "ADD_22" = 4, "CRC_16" = 7, "CRC_32" = 9 };
block "IF_DATA" taggedunion if_data {
  "TOOL_LINK" struct {
    uint;       /* version */
    taggedstruct {
      "SYMBOL" struct Symbol;
      "SHOWN" struct { ulong; double; double; };
    };
  };
  "TOOL_RASTER" taggedstruct {
    block "SOURCE" struct { char [101]; uint; ulong; };
    "RASTER" struct { uchar; ulong; uint; };
  };
};
)";

// A sequence of numbers that is the same on every system, unlike the distributions of the standard
// library. Each object has its own sequence, made from the seed, its family and its index. So what
// one object says about another, such as its name, can be worked out without keeping the other.
class Random {
 public:
  Random(std::uint64_t seed, std::uint64_t family, std::uint64_t index)
      : state_(seed * 0x9E3779B97F4A7C15 + family * 0xD1B54A32D192ED03 + index) {
    Next();
    state_ ^= index << 32U;
  }

  // From 0 to below `count`.
  std::size_t Below(std::size_t count) { return static_cast<std::size_t>(Next() >> 33U) % count; }
  bool Percent(std::size_t percent) { return Below(100) < percent; }
  template <class Items>
  const auto& Of(const Items& items) {
    return items[Below(std::size(items))];
  }

 private:
  std::uint64_t Next() {
    state_ += 0x9E3779B97F4A7C15;
    std::uint64_t value = state_;
    value = (value ^ (value >> 30U)) * 0xBF58476D1CE4E5B9;
    value = (value ^ (value >> 27U)) * 0x94D049BB133111EB;
    return value ^ (value >> 31U);
  }

  std::uint64_t state_;
};

enum Family : std::uint64_t {
  kMeasurement = 1,
  kCharacteristic,
  kAxis,
  kConversion,
  kFunction,
  kGroup,
  kUnit,
  kLayout
};

enum class Shape { Value, Curve, Map, ValueBlock, Text };

enum class ConversionKind { Rational, Linear, Identical, Verbal, VerbalRange, Table };

// What other objects need to know of a conversion method.
struct Conversion {
  ConversionKind kind = ConversionKind::Identical;
  double factor = 1;
  double offset = 0;
  std::size_t entries = 0;
  std::string name;

  [[nodiscard]] double Physical(double raw) const { return raw * factor + offset; }
};

// How many objects of each family a text holds. All numbers follow from that of the measurements.
struct Plan {
  std::size_t measurements;
  std::size_t characteristics;
  std::size_t axes;
  std::size_t conversions;
  std::size_t functions;
  std::size_t types;

  explicit Plan(std::size_t count)
      : measurements(count),
        characteristics(count * 3 / 5),
        axes((characteristics + 7) / 8),
        conversions(1 + count / 16),
        functions(count / 40),
        types(characteristics > 0 ? kTypes.size() : 0) {}
};

class Generator {
 public:
  Generator(const GenerateOptions& options, const Plan& plan, std::ostream& out)
      : options_(options), plan_(plan), out_(out) {}

  Contents Run() {
    Head();
    Each("CHARACTERISTIC", plan_.characteristics, &Generator::Characteristic);
    Each("AXIS_PTS", plan_.axes, &Generator::Axis);
    Each("MEASUREMENT", plan_.measurements, &Generator::Measurement);
    Each("UNIT", plan_.conversions > 4 ? kUnits.size() : 0, &Generator::Unit);
    Each("COMPU_METHOD", plan_.conversions, &Generator::ConversionMethod);
    Each("COMPU_TAB", plan_.conversions, &Generator::ConversionTable);
    Each("RECORD_LAYOUT", plan_.types, &Generator::RecordLayouts);
    Each("FUNCTION", plan_.functions, &Generator::Function);
    Each("GROUP", plan_.functions, &Generator::Group);
    if (plan_.functions > 0) RootGroup();
    level_ = 1;
    Line("/end MODULE");
    level_ = 0;
    Line("/end PROJECT");
    Flush();
    return contents_;
  }

 private:
  // -- Lines and blocks

  template <class... Argument>
  void Line(fmt::format_string<Argument...> format, Argument&&... arguments) {
    text_.append(level_ * 2, ' ');
    fmt::format_to(std::back_inserter(text_), format, std::forward<Argument>(arguments)...);
    LineEnd();
  }

  void LineEnd() {
    text_ += options_.crlf ? "\r\n" : "\n";
    constexpr std::size_t kPieceSize = std::size_t{1} << 18U;
    if (text_.size() >= kPieceSize) Flush();
  }

  void Flush() {
    out_.write(text_.data(), static_cast<std::streamsize>(text_.size()));
    text_.clear();
  }

  template <class... Argument>
  void Begin(std::string_view keyword, fmt::format_string<Argument...> format,
             Argument&&... arguments) {
    text_.append(level_ * 2, ' ');
    text_ += "/begin ";
    text_ += keyword;
    fmt::format_to(std::back_inserter(text_), format, std::forward<Argument>(arguments)...);
    LineEnd();
    if (level_ == kModuleLevel) ++contents_.objects[std::string(keyword)];
    ++level_;
  }

  void End(std::string_view keyword) {
    --level_;
    Line("/end {}", keyword);
    if (level_ == kModuleLevel) LineEnd();
  }

  void Each(std::string_view heading, std::size_t count, void (Generator::*write)(std::size_t)) {
    if (count > 0) Line("/* ---- {} ---- */", heading);
    for (std::size_t i = 0; i < count; ++i) (this->*write)(i);
  }

  // -- What objects say about each other

  [[nodiscard]] Random Of(Family family, std::size_t index) const {
    return {options_.seed, family, index};
  }

  [[nodiscard]] std::string Name(Family family, std::size_t index,
                                 std::string_view ending = {}) const {
    Random random = Of(family, index);
    std::string name = fmt::format("{}{}_{}{}{}{}", random.Of(kSubsystems), random.Of(kSubsystems),
                                   random.Of(kQuantities), random.Of(kQuantities), index, ending);
    if (random.Percent(12)) {
      fmt::format_to(std::back_inserter(name), ".{}[{}]", random.Of(kStates), random.Below(16));
    }
    return name;
  }
  [[nodiscard]] std::string MeasurementName(std::size_t i) const { return Name(kMeasurement, i); }
  [[nodiscard]] std::string CharacteristicName(std::size_t i) const {
    return Name(kCharacteristic, i, Ending(ShapeOf(i)));
  }
  [[nodiscard]] std::string AxisName(std::size_t i) const { return Name(kAxis, i, "_AX"); }
  [[nodiscard]] std::string FunctionName(std::size_t i) const { return Name(kFunction, i, "_FC"); }
  [[nodiscard]] std::string GroupName(std::size_t i) const { return Name(kGroup, i, "_GR"); }

  // The name is made of the other half of the sequence.
  [[nodiscard]] Random BodyOf(Family family, std::size_t index) const {
    return {~options_.seed, family, index};
  }

  [[nodiscard]] Shape ShapeOf(std::size_t characteristic) const {
    const std::size_t percent = BodyOf(kCharacteristic, characteristic).Below(100);
    if (percent < 55) return Shape::Value;
    if (percent < 72) return Shape::Curve;
    if (percent < 87) return Shape::Map;
    if (percent < 96) return Shape::ValueBlock;
    return Shape::Text;
  }
  static std::string_view Ending(Shape shape) {
    constexpr std::array<std::string_view, 5> kEndings = {"_C", "_CUR", "_MAP", "_CA", "_TXT"};
    return kEndings.at(static_cast<std::size_t>(shape));
  }

  [[nodiscard]] Conversion ConversionAt(std::size_t index) const {
    constexpr std::array kFactors = {1.0, 0.5, 0.25, 0.1, 0.01, 0.001, 0.0078125, 0.015625, 0.0625};
    constexpr std::array kOffsets = {0.0, 0.0, 0.0, -40.0, -48.0, -273.15};
    Random random = Of(kConversion, index);
    Conversion conversion;
    conversion.name =
        fmt::format("CM_{}{}_{}", random.Of(kSubsystems), random.Of(kQuantities), index);
    const std::size_t percent = random.Below(100);
    if (percent < 62) {
      conversion.kind = percent < 44 ? ConversionKind::Rational : ConversionKind::Linear;
      conversion.factor = random.Of(kFactors);
      conversion.offset = random.Of(kOffsets);
    } else if (percent >= 69) {
      conversion.kind = percent < 92   ? ConversionKind::Verbal
                        : percent < 96 ? ConversionKind::VerbalRange
                                       : ConversionKind::Table;
      conversion.entries = 2 + random.Below(12);
    }
    return conversion;
  }

  [[nodiscard]] Conversion AnyConversion(Random& random) const {
    return ConversionAt(random.Below(plan_.conversions));
  }
  [[nodiscard]] std::string AnyMeasurement(Random& random) const {
    return MeasurementName(random.Below(plan_.measurements));
  }
  static const Type& AnyType(Random& random) { return kTypes.at(random.Of(kTypeChoices)); }

  static std::string LayoutName(Shape shape, const Type& type) {
    return fmt::format("RL{}_{}", Ending(shape), type.name);
  }

  // -- Values

  static std::string Phrase(Random& random, std::size_t least, std::size_t most) {
    std::string phrase(random.Of(kWords));
    phrase[0] = static_cast<char>(phrase[0] - 'a' + 'A');
    const std::size_t count = least + random.Below(most - least + 1);
    for (std::size_t i = 1; i < count; ++i) {
      phrase += ' ';
      phrase += random.Of(kWords);
    }
    // Rare things for which a converter cannot take its short cuts.
    if (random.Percent(1)) phrase += R"( (""nominal""))";
    if (random.Percent(1)) phrase += R"( \"learned\")";
    if (random.Percent(1)) phrase += " // see /* above */";
    if (random.Percent(2)) {
      phrase +=
          " in \xC2\xB0"
          "C";
    }
    return phrase;
  }

  // Tools write most limits with a point, but as whole numbers if there is no conversion.
  static std::string Number(double value) {
    const bool whole = std::floor(value) == value && std::abs(value) < 1e15;
    return whole ? fmt::format("{:.1f}", value) : fmt::format("{}", value);
  }
  static std::pair<std::string, std::string> Limits(const Conversion& conversion,
                                                    const Type& type) {
    if (conversion.entries > 0) {
      return {"0", fmt::format("{}", conversion.entries - 1)};
    }
    if (conversion.kind == ConversionKind::Identical) {
      return {fmt::format("{}", type.lowest), fmt::format("{}", type.highest)};
    }
    return {Number(conversion.Physical(type.lowest)), Number(conversion.Physical(type.highest))};
  }

  static std::string FormatText(Random& random) {
    return fmt::format("%{}.{}", 3 + random.Below(7), random.Below(5));
  }

  // -- Parts of objects

  void Link(Random& random, std::string_view name, std::uint32_t address) {
    Begin("IF_DATA", " TOOL_LINK");
    Line("101");
    Line("SYMBOL \"{}\" 0x{:X} 0x0 0 0x0 1 0x{:X} 0x0", name, address, 0x80 + random.Below(96));
    Line("SHOWN 0x{:06X} 0 {}", random.Below(1U << 24U), 100 * (1 + random.Below(80)));
    End("IF_DATA");
  }

  void Annotation(Random& random) {
    Begin("ANNOTATION", "");
    Line("ANNOTATION_LABEL \"{}\"", Phrase(random, 1, 3));
    Line("ANNOTATION_ORIGIN \"{}\"", random.Percent(50) ? "software" : "calibration");
    Begin("ANNOTATION_TEXT", "");
    for (std::size_t lines = 1 + random.Below(4); lines > 0; --lines) {
      Line(R"("{}\r\n")", Phrase(random, 5, 14));
    }
    End("ANNOTATION_TEXT");
    End("ANNOTATION");
  }

  template <class NameOf>
  void Names(std::string_view keyword, std::size_t first, std::size_t end, NameOf nameOf) {
    if (first == end) return;
    Begin(keyword, "");
    for (std::size_t i = first; i < end; ++i) Line("{}", nameOf(i));
    End(keyword);
  }

  // The objects of one family that belong to a function. All functions have equal shares.
  [[nodiscard]] std::pair<std::size_t, std::size_t> Share(std::size_t function,
                                                          std::size_t count) const {
    return {count * function / plan_.functions, count * (function + 1) / plan_.functions};
  }

  // -- Objects

  void Head() {
    Line("/* An invented control unit for measurements of speed. */");
    Line("ASAP2_VERSION 1 71");
    Line("/begin PROJECT Invented \"No control unit is like this one\"");
    level_ = 1;
    Line("/begin MODULE Speed \"Made of a seed and a size\"");
    level_ = kModuleLevel;
    if (plan_.characteristics == 0) return;
    Begin("A2ML", "");
    for (std::string_view rest = kGrammar.substr(1); !rest.empty();) {
      const std::size_t end = rest.find('\n');
      Line("{}", rest.substr(0, end));
      rest.remove_prefix(end + 1);
    }
    End("A2ML");
    Begin("MOD_PAR", " \"Data of the control unit\"");
    Line("VERSION \"{}\"", options_.seed);
    Line("EPK \"SPEED_{:08}\"", options_.seed);
    Line("ADDR_EPK 0x80000040");
    Line("SUPPLIER \"nobody\"");
    Line("CPU_TYPE \"32-bit\"");
    Begin("MEMORY_SEGMENT",
          " Data \"Calibration data\" DATA FLASH INTERN 0x80000000 0x1000000 -1 -1 -1 -1 -1");
    End("MEMORY_SEGMENT");
    Line(R"(SYSTEM_CONSTANT "CYLINDERS" "6")");
    End("MOD_PAR");
    Begin("MOD_COMMON", " \"Defaults\"");
    Line("BYTE_ORDER MSB_LAST");
    Line("ALIGNMENT_BYTE 1");
    Line("ALIGNMENT_WORD 2");
    Line("ALIGNMENT_LONG 4");
    End("MOD_COMMON");
    Begin("IF_DATA", " TOOL_RASTER");
    Line("/begin SOURCE \"10 ms\" 1 10000 /end SOURCE // the only one");
    End("IF_DATA");
  }

  void Measurement(std::size_t index) {
    Random random = BodyOf(kMeasurement, index);
    const std::string name = MeasurementName(index);
    const std::string_view symbol = std::string_view(name).substr(0, name.find('.'));
    const Type& type = AnyType(random);
    const Conversion conversion = AnyConversion(random);
    const auto [lower, upper] = Limits(conversion, type);
    const auto address = static_cast<std::uint32_t>(0x20000000 + 8 * index);

    Begin("MEASUREMENT", " {}", name);
    if (random.Percent(20)) {
      Line("\"{}\"  /* {} */", Phrase(random, 3, 12), random.Of(kWords));
    } else {
      Line("\"{}\"", Phrase(random, 3, 12));
    }
    Line("{} {} {} {} {} {}", type.name, conversion.name, random.Percent(75) ? 1 : 0,
         random.Percent(25) ? 100 : 0, lower, upper);
    if (random.Percent(10))
      Line("BIT_MASK 0x{:X}", 1U << random.Below(std::size_t{8} * type.bytes));
    if (random.Percent(6)) Line("MATRIX_DIM {} 1 1", 2 + random.Below(15));
    Line("ECU_ADDRESS 0x{:08X}", address);
    if (random.Percent(50)) Line("ECU_ADDRESS_EXTENSION 0x0");
    if (random.Percent(60)) Line("FORMAT \"{}\"", FormatText(random));
    if (random.Percent(30)) Line("DISPLAY_IDENTIFIER DI.{}", symbol);
    if (random.Percent(40)) Line("SYMBOL_LINK \"{}\" 0", symbol);
    if (random.Percent(15)) Line("READ_WRITE");
    if (random.Percent(85)) Link(random, name, address);
    if (random.Percent(15)) {
      Begin("IF_DATA", " TOOL_RASTER");
      Line("RASTER {} 0x{:X} 0", 1 + random.Below(4), address);
      End("IF_DATA");
    }
    if (random.Percent(4)) Annotation(random);
    End("MEASUREMENT");
  }

  void Characteristic(std::size_t index) {
    Random random = BodyOf(kCharacteristic, index);
    const Shape shape = ShapeOf(index);
    random.Below(100);  // taken by the shape
    const std::string name = CharacteristicName(index);
    const Type& type = shape == Shape::Text ? kTypes.front() : AnyType(random);
    Conversion conversion = AnyConversion(random);
    if (shape == Shape::Text) {
      conversion = {};
      conversion.name = "NO_COMPU_METHOD";
    }
    const auto [lower, upper] = Limits(conversion, type);
    const auto address = static_cast<std::uint32_t>(0x80001000 + 64 * index);
    constexpr std::array<std::string_view, 5> kShapeWords = {"VALUE", "CURVE", "MAP", "VAL_BLK",
                                                             "ASCII"};

    Begin("CHARACTERISTIC", " {}", name);
    Line("\"{}\"", Phrase(random, 3, 12));
    Line("{} 0x{:08X} {} 0 {} {} {}", kShapeWords.at(static_cast<std::size_t>(shape)), address,
         LayoutName(shape, type), conversion.name, lower, upper);
    if (shape == Shape::ValueBlock || shape == Shape::Text) {
      Line("NUMBER {}", 2 + random.Below(30));
    }
    if (random.Percent(50)) Line("EXTENDED_LIMITS {} {}", lower, upper);
    if (random.Percent(50)) Line("FORMAT \"{}\"", FormatText(random));
    if (random.Percent(25)) Line("DISPLAY_IDENTIFIER DI.{}", name.substr(0, name.find('.')));
    if (random.Percent(10)) Line("READ_ONLY");
    if (shape == Shape::Curve || shape == Shape::Map) AxisDescription(random, type);
    if (shape == Shape::Map) AxisDescription(random, type);
    if (random.Percent(85)) Link(random, name, address);
    if (random.Percent(6)) Annotation(random);
    End("CHARACTERISTIC");
  }

  void AxisDescription(Random& random, const Type& type) {
    const Conversion conversion = AnyConversion(random);
    const auto [lower, upper] = Limits(conversion, type);
    const std::size_t points = 4 + 2 * random.Below(7);
    const std::size_t percent = random.Below(100);
    Begin("AXIS_DESCR", "");
    Line("{} {} {} {} {} {}",
         percent < 50   ? "COM_AXIS"
         : percent < 75 ? "STD_AXIS"
                        : "FIX_AXIS",
         AnyMeasurement(random), conversion.name, points, lower, upper);
    if (percent < 50) {
      Line("AXIS_PTS_REF {}", AxisName(random.Below(plan_.axes)));
    } else if (percent < 75) {
      if (random.Percent(50)) Line("FORMAT \"{}\"", FormatText(random));
    } else if (percent < 88) {
      Line("FIX_AXIS_PAR 0 {} {}", random.Below(6), points);
    } else {
      Line("FIX_AXIS_PAR_DIST 0 {} {}", 1 + random.Below(100), points);
    }
    End("AXIS_DESCR");
  }

  void Axis(std::size_t index) {
    Random random = BodyOf(kAxis, index);
    const std::string name = AxisName(index);
    const Type& type = AnyType(random);
    const Conversion conversion = AnyConversion(random);
    const auto [lower, upper] = Limits(conversion, type);
    const auto address = static_cast<std::uint32_t>(0xA0000000 + 64 * index);
    Begin("AXIS_PTS", " {}", name);
    Line("\"{}\"", Phrase(random, 3, 12));
    Line("0x{:08X} {} RL_AX_{} 0 {} {} {} {}", address, AnyMeasurement(random), type.name,
         conversion.name, 4 + 2 * random.Below(9), lower, upper);
    if (random.Percent(40)) Line("FORMAT \"{}\"", FormatText(random));
    if (random.Percent(20)) Line("DEPOSIT ABSOLUTE");
    if (random.Percent(80)) Link(random, name, address);
    End("AXIS_PTS");
  }

  void Unit(std::size_t index) {
    Random random = BodyOf(kUnit, index);
    const UnitText& unit = kUnits.at(index);
    Begin("UNIT", R"( {} "{}" "{}" EXTENDED_SI)", unit.name, Phrase(random, 1, 4), unit.display);
    Line("SI_EXPONENTS {}", unit.exponents);
    End("UNIT");
  }

  void ConversionMethod(std::size_t index) {
    Random random = BodyOf(kConversion, index);
    const Conversion conversion = ConversionAt(index);
    const UnitText& unit = random.Of(kUnits);
    constexpr std::array<std::string_view, 6> kKindWords = {"RAT_FUNC", "LINEAR",   "IDENTICAL",
                                                            "TAB_VERB", "TAB_VERB", "TAB_INTP"};
    Begin("COMPU_METHOD", " {}", conversion.name);
    Line("\"{}\"", Phrase(random, 2, 5));
    Line(R"({} "{}" "{}")", kKindWords.at(static_cast<std::size_t>(conversion.kind)),
         FormatText(random), unit.display);
    switch (conversion.kind) {
      case ConversionKind::Rational:
        Line("COEFFS 0 {} {} 0 0 1", 1 / conversion.factor,
             Number(-conversion.offset / conversion.factor));
        break;
      case ConversionKind::Linear:
        Line("COEFFS_LINEAR {} {}", conversion.factor, conversion.offset);
        break;
      case ConversionKind::Identical:
        break;
      case ConversionKind::Verbal:
      case ConversionKind::VerbalRange:
      case ConversionKind::Table:
        Line("COMPU_TAB_REF T{}", conversion.name);
        break;
    }
    if (conversion.entries == 0 && plan_.conversions > 4 && random.Percent(50)) {
      Line("REF_UNIT {}", unit.name);
    }
    End("COMPU_METHOD");
  }

  // The table of a conversion method, if it has one.
  void ConversionTable(std::size_t index) {
    Random random = BodyOf(kConversion, index);
    const Conversion conversion = ConversionAt(index);
    const std::size_t entries = conversion.entries;
    if (conversion.kind == ConversionKind::Verbal) {
      Begin("COMPU_VTAB", " T{} \"{}\" TAB_VERB {}", conversion.name, Phrase(random, 2, 5),
            entries);
      for (std::size_t i = 0; i < entries; ++i) Line("{} \"{}_{}\"", i, random.Of(kStates), i);
      Line("DEFAULT_VALUE \"Invalid\"");
      End("COMPU_VTAB");
    } else if (conversion.kind == ConversionKind::VerbalRange) {
      Begin("COMPU_VTAB_RANGE", " T{} \"{}\" {}", conversion.name, Phrase(random, 2, 5), entries);
      for (std::size_t i = 0; i < entries; ++i) {
        Line("{} {} \"{}_{}\"", 10 * i, 10 * i + 9, random.Of(kStates), i);
      }
      End("COMPU_VTAB_RANGE");
    } else if (conversion.kind == ConversionKind::Table) {
      Begin("COMPU_TAB", " T{} \"{}\" TAB_INTP {}", conversion.name, Phrase(random, 2, 5), entries);
      for (std::size_t i = 0; i < entries; ++i) {
        Line("{} {}", 16 * i, Number(12.5 * static_cast<double>(i)));
      }
      End("COMPU_TAB");
    }
  }

  void RecordLayouts(std::size_t typeIndex) {
    const Type& type = kTypes.at(typeIndex);
    for (const Shape shape :
         {Shape::Value, Shape::Curve, Shape::Map, Shape::ValueBlock, Shape::Text}) {
      const bool curve = shape == Shape::Curve;
      const bool map = shape == Shape::Map;
      Begin("RECORD_LAYOUT", " {}", LayoutName(shape, type));
      if (curve || map) Line("NO_AXIS_PTS_X 1 UWORD");
      if (map) Line("NO_AXIS_PTS_Y 2 UWORD");
      if (curve || map) Line("AXIS_PTS_X {} {} INDEX_INCR DIRECT", curve ? 2 : 3, type.name);
      if (map) Line("AXIS_PTS_Y 4 {} INDEX_INCR DIRECT", type.name);
      Line("FNC_VALUES {} {} COLUMN_DIR DIRECT", curve ? 3 : map ? 5 : 1, type.name);
      End("RECORD_LAYOUT");
    }
    Begin("RECORD_LAYOUT", " RL_AX_{}", type.name);
    Line("NO_AXIS_PTS_X 1 UWORD");
    Line("AXIS_PTS_X 2 {} INDEX_INCR DIRECT", type.name);
    End("RECORD_LAYOUT");
  }

  void Function(std::size_t index) {
    Random random = BodyOf(kFunction, index);
    const auto [firstValue, endValue] = Share(index, plan_.characteristics);
    const auto [first, end] = Share(index, plan_.measurements);
    const auto measurementName = [this](std::size_t i) { return MeasurementName(i); };
    Begin("FUNCTION", " {}", FunctionName(index));
    Line("\"{}\"", Phrase(random, 3, 12));
    Line("FUNCTION_VERSION \"{}.{}.{}\"", 1 + random.Below(9), random.Below(20), random.Below(10));
    Names("DEF_CHARACTERISTIC", firstValue, endValue,
          [this](std::size_t i) { return CharacteristicName(i); });
    const std::size_t firstOut = std::midpoint(first, end);
    Names("IN_MEASUREMENT", first, std::midpoint(first, firstOut), measurementName);
    Names("OUT_MEASUREMENT", std::midpoint(first, firstOut), firstOut, measurementName);
    Names("LOC_MEASUREMENT", firstOut, end, measurementName);
    End("FUNCTION");
  }

  void Group(std::size_t index) {
    Random random = BodyOf(kGroup, index);
    const auto [firstValue, endValue] = Share(index, plan_.characteristics);
    const auto [first, end] = Share(index, plan_.measurements);
    Begin("GROUP", " {}", GroupName(index));
    Line("\"{}\"", Phrase(random, 3, 12));
    Names("REF_CHARACTERISTIC", firstValue, endValue,
          [this](std::size_t i) { return CharacteristicName(i); });
    Names("REF_MEASUREMENT", first, end, [this](std::size_t i) { return MeasurementName(i); });
    End("GROUP");
  }

  void RootGroup() {
    Begin("GROUP", " AllFunctions \"All functions\"");
    Line("ROOT");
    Names("SUB_GROUP", 0, plan_.functions, [this](std::size_t i) { return GroupName(i); });
    End("GROUP");
  }

  static constexpr std::size_t kModuleLevel = 2;

  GenerateOptions options_;
  Plan plan_;
  std::ostream& out_;
  std::string text_;
  std::size_t level_ = 0;
  Contents contents_;
};

// Counts bytes and keeps none of them.
class CountingBuffer : public std::streambuf {
 public:
  [[nodiscard]] std::size_t Count() const { return count_; }

 protected:
  std::streamsize xsputn(const char* /*bytes*/, std::streamsize size) override {
    count_ += static_cast<std::size_t>(size);
    return size;
  }

 private:
  std::size_t count_ = 0;
};

std::size_t SizeWith(std::size_t measurements, const GenerateOptions& options) {
  CountingBuffer buffer;
  std::ostream out(&buffer);
  Generator(options, Plan(measurements), out).Run();
  return buffer.Count();
}

// The number of measurements for the wanted size, on the line through two samples of about a
// twentieth and a tenth of it.
std::size_t MeasurementsFor(const GenerateOptions& options) {
  constexpr std::size_t kRoughBytes = 900;  // of a measurement and what comes with it
  const std::size_t few = std::max<std::size_t>(1, options.size / kRoughBytes / 20);
  const std::size_t fewSize = SizeWith(few, options);
  const std::size_t doubleSize = SizeWith(2 * few, options);
  const double each = static_cast<double>(doubleSize - fewSize) / static_cast<double>(few);
  const double more = (static_cast<double>(options.size) - static_cast<double>(fewSize)) / each;
  return few + static_cast<std::size_t>(std::max(0.0, std::round(more)));
}

}  // namespace

std::size_t Contents::ObjectCount() const {
  std::size_t count = 0;
  for (const auto& [keyword, number] : objects) count += number;
  return count;
}

Contents Generate(const GenerateOptions& options, std::ostream& out) {
  return Generator(options, Plan(MeasurementsFor(options)), out).Run();
}

}  // namespace a2l::bench
