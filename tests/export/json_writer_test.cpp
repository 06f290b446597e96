// SPDX-License-Identifier: MIT
#include "a2l2json/export/json_writer.h"

#include <cstddef>
#include <filesystem>
#include <ostream>
#include <sstream>
#include <string>
#include <string_view>

#include <gtest/gtest.h>
#include <json11.hpp>

#include "a2l2json/elements/blocks/characteristic.h"
#include "a2l2json/elements/blocks/instance.h"
#include "a2l2json/elements/blocks/measurement.h"
#include "a2l2json/elements/blocks/other.h"
#include "a2l2json/elements/blocks/project.h"
#include "a2l2json/elements/properties/choices.h"
#include "a2l2json/export/json11_document.h"
#include "a2l2json/reader/element_factory.h"
#include "tests/support/files.h"
#include "tests/support/kinds.h"
#include "tests/support/trees.h"

namespace a2l::test {
namespace {

namespace fs = std::filesystem;

template <class Class>
Class* Add(VoA2LElement& parent) {
  auto* child = parent.Store().Create<Class>(&parent);
  EXPECT_TRUE(parent.AddChild(child));
  return child;
}

class JsonWriterTest : public testing::Test {
 protected:
  Tree root_{NewTree()};
  VoA2LElementModule* module_ = Add<VoA2LElementModule>(*Add<VoA2LElementProject>(*root_));
  TemporaryFolder folder_;
  fs::path json_ = folder_ / "out.json";

  // The document, which must be the same from both writers.
  json11::Json Document() {
    const std::string text = ToJson(*root_);
    EXPECT_EQ(text, ToJson11(*root_).dump());
    std::string error;
    json11::Json document = json11::Json::parse(text, error);
    EXPECT_EQ(error, "");
    return document;
  }
  json11::Json FirstModule() { return Document()["FModules"][0]; }
};

TEST_F(JsonWriterTest, WritesTheDocumentOfATree) {
  module_->NAME = "M";
  JsonWriter writer;
  EXPECT_TRUE(writer.Export(json_.string(), root_.get()));
  EXPECT_EQ(ReadFile(json_), ToJson(*root_));
  EXPECT_EQ(Document()["FDatabaseName"].string_value(), "M");

  std::ostringstream out;
  WriteJson(*root_, out);
  EXPECT_EQ(out.str(), ToJson(*root_));
}

TEST_F(JsonWriterTest, RefusesAnythingButARoot) {
  WriteFile(json_, "old");
  JsonWriter writer;
  EXPECT_FALSE(writer.Export(json_.string(), nullptr));
  EXPECT_FALSE(writer.Export(json_.string(), module_));
  for (const ElementKind kind : {ElementKind::PROJECT, ElementKind::ROOT, KIND_UNKNOWN}) {
    root_->kind = kind;
    EXPECT_FALSE(writer.Export(json_.string(), root_.get()));
    EXPECT_FALSE(writer.Export((folder_ / "new.json").string(), root_.get()));
  }
  EXPECT_EQ(ReadFile(json_), "old");
  EXPECT_FALSE(fs::exists(folder_ / "new.json"));
  root_->kind = KIND_ROOT;
  EXPECT_TRUE(writer.Export(json_.string(), root_.get()));
}

TEST_F(JsonWriterTest, FailsIfTheFileCannotBeOpened) {
  JsonWriter writer;
  EXPECT_FALSE(writer.Export((folder_ / "missing/out.json").string(), root_.get()));
  EXPECT_FALSE(writer.Export(folder_.Path().string(), root_.get()));
  EXPECT_FALSE(writer.Export("", root_.get()));
  EXPECT_FALSE(fs::exists(folder_ / "missing"));

  // The next file can be written all the same.
  for (const char* name : {"first.json", "second.json"}) {
    EXPECT_TRUE(writer.Export((folder_ / name).string(), root_.get()));
    EXPECT_EQ(ReadFile(folder_ / name), ToJson(*root_));
  }
}

TEST_F(JsonWriterTest, ReplacesWhatIsThere) {
  WriteFile(json_, std::string(100000, 'x'));
  EXPECT_TRUE(JsonWriter().Export(json_.string(), root_.get()));
  EXPECT_EQ(ReadFile(json_), ToJson(*root_));
}

// The written file does not depend on the line ends of the system.
TEST_F(JsonWriterTest, WritesBytesAsTheyAre) {
  module_->LONG_IDENTIFIER = "\xE4\x80\xFF\x7F\x1A";
  EXPECT_TRUE(JsonWriter().Export(json_.string(), root_.get()));
  const std::string json = ReadFile(json_);
  EXPECT_EQ(json, ToJson(*root_));
  EXPECT_NE(json.find("\"FLONG_IDENTIFIER\": \"\xE4\x80\xFF\x7F\\u001a\""), std::string::npos);
}

TEST_F(JsonWriterTest, LeavesTheTreeAsItIs) {
  ASSERT_TRUE(root_->AddChild(CreateElement(ElementKind::ASAP2_VERSION, *root_)));
  const VoA2LElement* first = root_->Child(0);
  const std::string json = ToJson(*root_);
  EXPECT_EQ(root_->Child(0), first) << "only Write moves the version to the front";
  EXPECT_EQ(ToJson(*root_), json);
}

TEST_F(JsonWriterTest, KeepsTheOrderOfThousandsOfChildren) {
  constexpr std::size_t kCount = 3000;
  for (std::size_t i = 0; i < kCount; ++i) {
    const std::string name = std::to_string(i);
    auto* measurement = Add<VoA2LElementMeasurement>(*module_);
    measurement->NAME = root_->Store().Copy("m" + name);
    auto* blob = Add<VoA2LElementBlob>(*module_);
    blob->NAME = root_->Store().Copy("b" + name);
    if (i % 3 == 0) Add<VoA2LElementAnnotation>(*blob);
  }
  auto* last = static_cast<VoA2LElementMeasurement*>(Add<VoA2LElementMeasurement>(*module_));
  for (std::size_t i = 0; i < kCount; ++i) Add<VoA2LElementAnnotation>(*last);

  const json11::Json document = FirstModule();
  const json11::Json::array& measurements = document["FMEASUREMENT"].array_items();
  const json11::Json::array& blobs = document["FBLOB"].array_items();
  ASSERT_EQ(measurements.size(), kCount + 1);
  ASSERT_EQ(blobs.size(), kCount);
  for (std::size_t i = 0; i < kCount; ++i) {
    ASSERT_EQ(measurements[i]["FNAME"].string_value(), "m" + std::to_string(i));
    ASSERT_EQ(blobs[i]["FNAME"].string_value(), "b" + std::to_string(i));
    ASSERT_EQ(blobs[i]["FANNOTATION"].array_items().size(), i % 3 == 0 ? 1U : 0U);
  }
  EXPECT_EQ(measurements[kCount]["FANNOTATION"].array_items().size(), kCount);
}

// Adds two children of every kind that `parent` accepts, and so on below those that are blocks.
void Fill(VoA2LElement& parent) {
  for (const ElementKind kind : KindsWithAClass()) {
    // With a project below a list this would never end.
    if (kind == ElementKind::PROJECT && parent.kind != KIND_ROOT) continue;
    for (int i = 0; i < 2; ++i) {
      VoA2LElement* child = CreateElement(kind, parent);
      if (!parent.AddChild(child)) break;
      if (IsBlock(kind)) Fill(*child);
    }
  }
}

TEST_F(JsonWriterTest, WritesAFullTreeAsJson11Does) {
  Fill(*root_);
  const std::string text = ToJson(*root_);
  const json11::Json document = ToJson11(*root_);
  EXPECT_TRUE(text == document.dump());
  std::string error;
  EXPECT_TRUE(json11::Json::parse(text, error) == document) << error;
  EXPECT_GT(text.size(), 100000U);
}

// Values that a file never gives, but an application can set.

TEST_F(JsonWriterTest, WritesWordsThatReadingNeverGives) {
  auto* characteristic = Add<VoA2LElementCharacteristic>(*module_);
  Add<VoA2LElementCalibrationAccess>(*characteristic)->CALIBRATION_ACCESS =
      CalibrationAccess::OFFLINE_CALIBRATION;
  auto* blob = Add<VoA2LElementBlob>(*module_);
  Add<VoA2LElementAddressType>(*blob)->ADDRESS_TYPE = AddrType::PLONGLONG;
  auto* transformer = Add<VoA2LElementTransformer>(*module_);
  transformer->TIMEOUT = 500;
  transformer->TRIGGER = TransformerTrigger::ON_USER_REQUEST;
  transformer->INVERSE_TRANSFORMER = "I";
  Add<VoA2LElementMemorySegment>(*Add<VoA2LElementModPar>(*module_))->PRG_TYPE =
      SegmentProgramType::OFFLINE_DATA;

  const json11::Json document = FirstModule();
  EXPECT_EQ(document["FCHARACTERISTIC"][0]["FCALIBRATION_ACCESS"].string_value(),
            "OFFLINE_CALIBRATION");
  EXPECT_EQ(document["FBLOB"][0]["FADDRESS_TYPE"].string_value(), "PLONGLONG");
  EXPECT_EQ(document["FTRANSFORMER"][0]["FTIMEOUT"].int_value(), 500);
  EXPECT_EQ(document["FTRANSFORMER"][0]["FTRIGGER"].string_value(), "ON_USER_REQUEST");
  EXPECT_EQ(document["FTRANSFORMER"][0]["FINVERSE_TRANSFORMER"].string_value(), "I");
  EXPECT_EQ(document["FMOD_PAR"]["FMEMORY_SEGMENT"][0]["FPRG_TYPE"].string_value(), "OFFLINE_DATA");
}

TEST_F(JsonWriterTest, WritesACodeWithoutAWordAsEmptyText) {
  Add<VoA2LElementMeasurement>(*module_)->DATATYPE = static_cast<DataType>(10);
  Add<VoA2LElementCharacteristic>(*module_)->CHARACTERISTIC_TYPE =
      static_cast<CharacteristicType>(9);
  const json11::Json document = FirstModule();
  EXPECT_EQ(document["FMEASUREMENT"][0]["FDATATYPE"], json11::Json(""));
  EXPECT_EQ(document["FCHARACTERISTIC"][0]["FCHARACTERISTIC_TYPE"], json11::Json(""));
}

TEST_F(JsonWriterTest, WritesTheValidityOfObjects) {
  Add<VoA2LElementMeasurement>(*module_)->valid = 0;
  Add<VoA2LElementMeasurement>(*module_);
  Add<VoA2LElementInstance>(*module_)->valid = 0;
  const json11::Json document = FirstModule();
  EXPECT_EQ(document["FMEASUREMENT"][0]["FISVALID"], json11::Json(false));
  EXPECT_EQ(document["FMEASUREMENT"][1]["FISVALID"], json11::Json(true));
  EXPECT_EQ(document["FINSTANCE"][0]["FISVALID"], json11::Json(false));
}

}  // namespace
}  // namespace a2l::test
