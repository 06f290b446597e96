// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "capi/a2l2json.h"
#include "tests/support/files.h"

#ifndef _WIN32
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace a2l::test {
namespace {

using namespace std::string_view_literals;

// Warnings, and the document of it, by hand from the ASAP2 version alone.
constexpr std::string_view kText =
    "ASAP2_VERSION 1 71\n"
    "COLOUR red\n"
    "/begin PROJECT P \"\"\n"
    "  WORD\n"
    "/end PROJECT\n";
constexpr std::string_view kMessages =
    "Warning: Line(2) unexpected element COLOUR\n"
    "Warning: Line(4) unexpected element WORD\n";
constexpr std::string_view kBeginOfDocument =
    R"({"FA2ML_VERSION_UPGRADE_NO": null, "FA2ML_VERSION_VERSION_NO": null, )"
    R"("FASAP2_VERSION_UPGRADE_NO": 71, "FASAP2_VERSION_VERSION_NO": 1, )";
constexpr std::string_view kEmptyDocument =
    R"({"FA2ML_VERSION_UPGRADE_NO": null, "FA2ML_VERSION_VERSION_NO": null, )"
    R"("FASAP2_VERSION_UPGRADE_NO": null, "FASAP2_VERSION_VERSION_NO": null, )"
    R"("FBaseA2LName": null, "FDatabaseName": null, "FModules": [], )"
    R"("FProject_HEADER_COMMENT": null, "FProject_HEADER_PROJECT_NO": null, )"
    R"("FProject_HEADER_VERSION": null, "FProject_LONG_IDENTIFIER": null, "FProject_Name": null})";
constexpr std::string_view kError =
    "/begin PROJECT P \"\"\n"
    "WORD\n"
    "/end MODULE\n";

struct Free {
  void operator()(a2l2json_result* result) const { a2l2json_free(result); }
};
using Result = std::unique_ptr<a2l2json_result, Free>;

// A conversion; the code that the call gives must be the one that the result tells.
Result Convert(std::string_view text, const a2l2json_options* options = nullptr) {
  a2l2json_result* result = nullptr;
  const a2l2json_code code = a2l2json_convert_text(text.data(), text.size(), options, &result);
  EXPECT_EQ(code, a2l2json_result_code(result));
  return Result(result);
}
Result ConvertFile(const std::string& path, const a2l2json_options* options = nullptr) {
  a2l2json_result* result = nullptr;
  const a2l2json_code code = a2l2json_convert_file(path.c_str(), options, &result);
  EXPECT_EQ(code, a2l2json_result_code(result));
  return Result(result);
}

using GetBytes = const char* (*)(const a2l2json_result*, std::size_t*);

// What one of the functions gives; "(none)" for null.
std::string Bytes(GetBytes get, const Result& result) {
  std::size_t size = 12345;
  const char* bytes = get(result.get(), &size);
  EXPECT_EQ(bytes, get(result.get(), nullptr)) << "the size is not asked for";
  if (bytes == nullptr) {
    EXPECT_EQ(size, 0U);
    return "(none)";
  }
  EXPECT_EQ(bytes[size], '\0');
  return {bytes, size};
}
std::string Document(const Result& result) { return Bytes(a2l2json_document, result); }

TEST(CInterface, GivesTheDocumentAndTheMessages) {
  const Result result = Convert(kText);
  EXPECT_EQ(a2l2json_result_code(result.get()), A2L2JSON_OK);
  EXPECT_STREQ(a2l2json_error(result.get()), "");
  EXPECT_EQ(Document(result).substr(0, kBeginOfDocument.size()), kBeginOfDocument);
  EXPECT_TRUE(Document(result).ends_with(R"("FProject_Name": "P"})"));
  EXPECT_EQ(Bytes(a2l2json_messages, result), kMessages);
  EXPECT_EQ(Bytes(a2l2json_mended, result), "(none)");
  EXPECT_EQ(a2l2json_finding_count(result.get()), 0U);
  EXPECT_EQ(a2l2json_finding_at(result.get(), 0), nullptr);
}

TEST(CInterface, GivesDiagnosticsAsData) {
  const Result result = Convert(kError);
  EXPECT_EQ(a2l2json_result_code(result.get()), A2L2JSON_NOT_CONVERTED);
  EXPECT_STREQ(a2l2json_error(result.get()), "Line 3: /end don't equal /begin PROJECT");
  EXPECT_EQ(Document(result), "(none)");
  ASSERT_EQ(a2l2json_diagnostic_count(result.get()), 2U);
  const a2l2json_diagnostic* warning = a2l2json_diagnostic_at(result.get(), 0);
  EXPECT_EQ(warning->line, 2U);
  EXPECT_EQ(warning->severity, A2L2JSON_WARNING);
  EXPECT_EQ(warning->kind, A2L2JSON_UNEXPECTED_ELEMENT);
  EXPECT_STREQ(warning->kind_name, "unexpected-element");
  EXPECT_STREQ(warning->text, "unexpected element WORD");
  EXPECT_EQ(warning->text_size, std::strlen("unexpected element WORD"));
  const a2l2json_diagnostic* error = a2l2json_diagnostic_at(result.get(), 1);
  EXPECT_EQ(error->line, 3U);
  EXPECT_STREQ(error->file, "");
  EXPECT_EQ(error->severity, A2L2JSON_ERROR);
  EXPECT_EQ(error->kind, A2L2JSON_END_DOES_NOT_MATCH);
  EXPECT_STREQ(error->kind_name, "end-does-not-match");
  EXPECT_EQ(a2l2json_diagnostic_at(result.get(), 2), nullptr);
  EXPECT_EQ(a2l2json_diagnostic_at(result.get(), static_cast<std::size_t>(-1)), nullptr);
}

TEST(CInterface, KeepsEveryByteOfTheInput) {
  // A word with a zero byte in it, and bytes that are no UTF-8.
  const Result result = Convert("A\0\xFF\n/begin PROJECT P \"\xE4\"\n/end PROJECT\n"sv);
  EXPECT_EQ(Bytes(a2l2json_messages, result), "Warning: Line(1) unexpected element A\0\xFF\n"sv);
  ASSERT_EQ(a2l2json_diagnostic_count(result.get()), 1U);
  const a2l2json_diagnostic* diagnostic = a2l2json_diagnostic_at(result.get(), 0);
  EXPECT_EQ(std::string_view(diagnostic->text, diagnostic->text_size),
            "unexpected element A\0\xFF"sv);
  EXPECT_NE(Document(result).find("\"FProject_LONG_IDENTIFIER\": \"\xE4\""), std::string::npos);
}

TEST(CInterface, NamesWhatIsConverted) {
  a2l2json_options options = A2L2JSON_OPTIONS_INIT;
  options.name = "engine.a2l";
  EXPECT_STREQ(a2l2json_error(Convert(kError, &options).get()),
               "engine.a2l, line 3: /end don't equal /begin PROJECT");
  const TemporaryFolder folder;
  WriteFile(folder / "in.a2l", kError);
  const std::string path = (folder / "in.a2l").string();
  EXPECT_EQ(a2l2json_error(ConvertFile(path).get()),
            path + ", line 3: /end don't equal /begin PROJECT");
  EXPECT_STREQ(a2l2json_error(ConvertFile(path, &options).get()),
               "engine.a2l, line 3: /end don't equal /begin PROJECT");
}

TEST(CInterface, ConvertsFilesAsTexts) {
  const TemporaryFolder folder;
  WriteFile(folder / "m\xC3\xBCller.a2l", kText);
  const std::u8string utf8 = (folder / "m\xC3\xBCller.a2l").u8string();
  const Result result = ConvertFile(std::string(utf8.begin(), utf8.end()));
  EXPECT_EQ(a2l2json_result_code(result.get()), A2L2JSON_OK);
  EXPECT_EQ(Document(result), Document(Convert(kText)));
  EXPECT_EQ(Bytes(a2l2json_messages, result), kMessages);
}

TEST(CInterface, TellsWhyAFileIsNotRead) {
  const TemporaryFolder folder;
  const std::string missing = (folder / "missing.a2l").string();
  const Result noFile = ConvertFile(missing);
  EXPECT_EQ(a2l2json_result_code(noFile.get()), A2L2JSON_NOT_READ);
  EXPECT_EQ(a2l2json_error(noFile.get()), missing + ": there is no such file.");
  EXPECT_EQ(Document(noFile), "(none)");
  const Result isFolder = ConvertFile(folder.Path().string());
  EXPECT_EQ(a2l2json_result_code(isFolder.get()), A2L2JSON_NOT_READ);
  EXPECT_EQ(a2l2json_error(isFolder.get()),
            folder.Path().string() + ": this is a folder, not a file.");
  EXPECT_EQ(a2l2json_result_code(ConvertFile("").get()), A2L2JSON_NOT_READ);
}

struct NoA2lRow {
  std::string_view bytes;
  std::string_view sentence;  // behind "... is not an A2L file."
};

constexpr NoA2lRow kNoA2l[] = {
    {"", " It is empty."},
    {"\x1F\x8B\x08\x00"sv, " It is packed with gzip: unpack it first."},
    {"PK\x03\x04rest", " It is packed with zip: unpack it first."},
    {"7z\xBC\xAF\x27\x1C\x00"sv, " It is packed with 7-Zip: unpack it first."},
    {"\xFD\x37zXZ\x00"sv, " It is packed with xz: unpack it first."},
    {"BZh91AY", " It is packed with bzip2: unpack it first."},
    {"\x28\xB5\x2F\xFD", " It is packed with zstd: unpack it first."},
    {"\x7F\x45LF\x02\x01"sv, " It is a program in the ELF format, not its description."},
    {"\xFF\xFE/\0b\0"sv, " It is UTF-16 text: convert it to UTF-8 first, or turn mending on."},
    {"\xFE\xFF\0/\0b"sv, " It is UTF-16 text: convert it to UTF-8 first, or turn mending on."},
    {"<?xml version=\"1.0\"?>\n", " It is XML."},
    {R"({"FModules": []})", " It is JSON: was the output handed in?"},
    {"Dear Sir or Madam\n", " Nothing in it could be read."},
    {"// a comment\n", " Nothing in it could be read."},
};

TEST(CInterface, TellsWhatIsNoA2lFile) {
  const TemporaryFolder folder;
  for (const NoA2lRow& row : kNoA2l) {
    const Result text = Convert(row.bytes);
    EXPECT_EQ(a2l2json_result_code(text.get()), A2L2JSON_NOT_A2L) << row.sentence;
    EXPECT_EQ(a2l2json_error(text.get()),
              "The text is not an A2L file." + std::string(row.sentence));
    EXPECT_EQ(Document(text), kEmptyDocument);

    const std::string path = (folder / "in.a2l").string();
    WriteFile(folder / "in.a2l", row.bytes);
    EXPECT_EQ(a2l2json_error(ConvertFile(path).get()),
              path + " is not an A2L file." + std::string(row.sentence));
  }
}

TEST(CInterface, AsksNobodyToTurnOnMendingThatIsOn) {
  a2l2json_options options = A2L2JSON_OPTIONS_INIT;
  options.mend = 1;
  EXPECT_STREQ(a2l2json_error(Convert("\xFF\xFEH\0i\0"sv, &options).get()),
               "The text is not an A2L file. Nothing in it could be read.");
}

TEST(CInterface, TellsWhatIsPackedEvenWhereItHoldsAnError) {
  const Result result = Convert("\x1F\x8B\n/end X\n/*");
  EXPECT_EQ(a2l2json_result_code(result.get()), A2L2JSON_NOT_A2L);
  EXPECT_EQ(Document(result), "(none)");
  EXPECT_GT(a2l2json_diagnostic_count(result.get()), 0U);
}

TEST(CInterface, ReadsFromAPipe) {
#ifdef _WIN32
  GTEST_SKIP() << "pipes are no files on this system";
#else
  const TemporaryFolder folder;
  const std::filesystem::path pipe = folder / "pipe";
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  for (const std::string_view text : {kText, "\x1F\x8B\x08"sv}) {
    std::thread writer([&] { WriteFile(pipe, text); });
    const Result result = ConvertFile(pipe.string());
    writer.join();
    EXPECT_EQ(Document(result), Document(Convert(text)));
  }
#endif
}

// ---------------------------------------------------------------------------------------------
// Mending

// An address behind the parameters, on their line, which the converter loses.
constexpr std::string_view kOneLine =
    "/begin PROJECT P \"\"\n/begin MODULE M \"\"\n"
    "/begin MEASUREMENT m \"\" UBYTE NO_COMPU_METHOD 0 0 0 255 ECU_ADDRESS 0x51A50 "
    "/end MEASUREMENT\n"
    "/end MODULE\n/end PROJECT\n";

TEST(CInterface, MendsTheTextBeforeTheConversion) {
  a2l2json_options options = A2L2JSON_OPTIONS_INIT;
  options.mend = 1;
  options.name = "engine.a2l";
  const Result result = Convert(kOneLine, &options);
  EXPECT_EQ(a2l2json_result_code(result.get()), A2L2JSON_OK);
  EXPECT_NE(Document(result).find(R"("FECU_ADDRESS": "0x51A50")"), std::string::npos)
      << Document(result);
  EXPECT_EQ(Document(result), Document(Convert(Bytes(a2l2json_mended, result))));
  ASSERT_GT(a2l2json_finding_count(result.get()), 0U);
  const a2l2json_finding* finding = a2l2json_finding_at(result.get(), 0);
  EXPECT_STREQ(finding->rule, "same-line");
  EXPECT_STREQ(finding->file, "engine.a2l");
  EXPECT_EQ(finding->line, 3U);
  EXPECT_EQ(finding->column, 57U);
  EXPECT_STREQ(finding->text,
               "ECU_ADDRESS stands behind the parameters of MEASUREMENT m on one line");
  EXPECT_EQ(finding->text_size, std::strlen(finding->text));
  EXPECT_EQ(finding->mended, 1);
  EXPECT_EQ(a2l2json_finding_at(result.get(), a2l2json_finding_count(result.get())), nullptr);
}

TEST(CInterface, MendsFilesAsTexts) {
  a2l2json_options options = A2L2JSON_OPTIONS_INIT;
  options.mend = 1;
  const TemporaryFolder folder;
  const std::string path = (folder / "in.a2l").string();
  WriteFile(folder / "in.a2l", kOneLine);
  const Result file = ConvertFile(path, &options);
  const Result text = Convert(kOneLine, &options);
  EXPECT_EQ(Document(file), Document(text));
  EXPECT_EQ(Bytes(a2l2json_mended, file), Bytes(a2l2json_mended, text));
  ASSERT_GT(a2l2json_finding_count(file.get()), 0U);
  EXPECT_EQ(a2l2json_finding_at(file.get(), 0)->file, path);

  const Result missing = ConvertFile(path + "x", &options);
  EXPECT_EQ(a2l2json_result_code(missing.get()), A2L2JSON_NOT_READ);
  EXPECT_EQ(a2l2json_error(missing.get()), path + "x: there is no such file.");
  EXPECT_EQ(Bytes(a2l2json_mended, missing), "(none)");
}

// An address and a warning in a file that the text includes.
constexpr std::string_view kIncludes =
    "/begin PROJECT P \"\"\n/begin MODULE M \"\"\n/include \"sub/m.a2l\"\n/end MODULE\n/end "
    "PROJECT\n";
constexpr std::string_view kIncluded =
    "\n/begin MEASUREMENT m \"\" UBYTE NO_COMPU_METHOD 0 0 0 255 ECU_ADDRESS 0x51A50\n"
    "/end MEASUREMENT\nCOLOUR red\n";

TEST(CInterface, MendsWithIncludedFiles) {
  a2l2json_options options = A2L2JSON_OPTIONS_INIT;
  options.mend = 1;
  const TemporaryFolder folder;
  std::filesystem::create_directories(folder / "sub");
  WriteFile(folder / "in.a2l", kIncludes);
  WriteFile(folder / "sub/m.a2l", kIncluded);
  const Result file = ConvertFile((folder / "in.a2l").string(), &options);
  EXPECT_NE(Document(file).find(R"("FECU_ADDRESS": "0x51A50")"), std::string::npos);
  ASSERT_EQ(a2l2json_diagnostic_count(file.get()), 1U);
  const a2l2json_diagnostic* warning = a2l2json_diagnostic_at(file.get(), 0);
  EXPECT_STREQ(warning->text, "unexpected element COLOUR");
  EXPECT_EQ(warning->line, 4U);
  EXPECT_EQ(std::filesystem::path(warning->file).filename(), "m.a2l");

  // Text in memory has no place unless it is told.
  const Result nowhere = Convert(kIncludes, &options);
  EXPECT_EQ(Document(nowhere).find("0x51A50"), std::string::npos);
  ASSERT_GT(a2l2json_finding_count(nowhere.get()), 0U);
  EXPECT_STREQ(a2l2json_finding_at(nowhere.get(), 0)->rule, "include-missing");
  const std::string path = folder.Path().string();
  options.folder = path.c_str();
  EXPECT_EQ(Document(Convert(kIncludes, &options)), Document(file));

  // The empty folder is the current one, not the root of all.
  options.folder = "";
  const std::string outside = "/include \"" + (folder / "sub/m.a2l").generic_string() + "\"\n";
  const Result refused = Convert(outside, &options);
  ASSERT_GT(a2l2json_finding_count(refused.get()), 0U);
  EXPECT_STREQ(a2l2json_finding_at(refused.get(), 0)->rule, "include-refused");

  // Without mending, nothing is included.
  EXPECT_EQ(Document(ConvertFile((folder / "in.a2l").string())).find("0x51A50"), std::string::npos);
}

TEST(CInterface, KnowsATextInMemoryThatIncludesItself) {
  const TemporaryFolder folder;
  constexpr std::string_view kCircle = "ASAP2_VERSION 1 71\n/include \"in.a2l\"\n";
  WriteFile(folder / "in.a2l", kCircle);
  const std::string path = folder.Path().string();
  const std::string name = path + "/in.a2l";
  a2l2json_options options = A2L2JSON_OPTIONS_INIT;
  options.mend = 1;
  options.folder = path.c_str();
  options.name = name.c_str();
  const Result text = Convert(kCircle, &options);
  ASSERT_EQ(a2l2json_finding_count(text.get()), 1U);
  EXPECT_STREQ(a2l2json_finding_at(text.get(), 0)->rule, "include-circle");
  EXPECT_EQ(Document(text), Document(ConvertFile(name, &options)));
}

TEST(CInterface, TellsTheLinesOfTheSourceWhereItMends) {
  a2l2json_options options = A2L2JSON_OPTIONS_INIT;
  options.mend = 1;
  options.name = "engine.a2l";
  // The mended text has the two words in its lines 2 and 4.
  const Result warned = Convert(
      "\n\n/begin PROJECT P \"\"\n\nONE 1\n/begin MODULE M\n\n\"\"\nTWO 2\n"
      "/end MODULE\n/end PROJECT\n",
      &options);
  EXPECT_EQ(Bytes(a2l2json_messages, warned),
            "Warning: Line(5) unexpected element ONE\nWarning: Line(9) unexpected element TWO\n");
  ASSERT_EQ(a2l2json_diagnostic_count(warned.get()), 2U);
  EXPECT_EQ(a2l2json_diagnostic_at(warned.get(), 1)->line, 9U);
  EXPECT_STREQ(a2l2json_diagnostic_at(warned.get(), 1)->file, "engine.a2l");

  const Result failed = Convert("\n\n/begin PROJECT P\n\n\"\"\n\n/end MODULE\n", &options);
  EXPECT_EQ(a2l2json_result_code(failed.get()), A2L2JSON_NOT_CONVERTED);
  EXPECT_STREQ(a2l2json_error(failed.get()), "engine.a2l, line 7: /end don't equal /begin PROJECT");
}

// ---------------------------------------------------------------------------------------------
// The caller's function

struct Taken {
  std::string bytes;
  int refuseAfter = -1;  // so many calls
};
int Take(void* context, const char* bytes, std::size_t size) {
  auto& taken = *static_cast<Taken*>(context);
  if (taken.refuseAfter-- == 0) return 1;
  taken.bytes.append(bytes, size);
  return 0;
}
a2l2json_options Into(Taken& taken) {
  a2l2json_options options = A2L2JSON_OPTIONS_INIT;
  options.write = Take;
  options.context = &taken;
  return options;
}

// Units enough for many pieces of a document.
std::string ManyUnits() {
  std::string text = "/begin PROJECT P \"\"\n/begin MODULE M \"\"\n";
  for (int i = 0; i < 5000; ++i) {
    text += "/begin UNIT U" + std::to_string(i) + " \"long name\" \"km\" DERIVED\n/end UNIT\n";
  }
  return text + "/end MODULE\n/end PROJECT\n";
}

TEST(CInterface, HandsTheDocumentToTheCaller) {
  const std::string text = ManyUnits();
  Taken taken;
  const a2l2json_options options = Into(taken);
  const Result result = Convert(text, &options);
  EXPECT_EQ(a2l2json_result_code(result.get()), A2L2JSON_OK);
  EXPECT_EQ(Document(result), "(none)");
  EXPECT_EQ(taken.bytes, Document(Convert(text)));
}

TEST(CInterface, StopsWhereTheCallerDoesNotTakeTheDocument) {
  const std::string text = ManyUnits();
  Taken taken{.bytes = "", .refuseAfter = 2};
  const a2l2json_options options = Into(taken);
  const Result result = Convert(text, &options);
  EXPECT_EQ(a2l2json_result_code(result.get()), A2L2JSON_NOT_WRITTEN);
  EXPECT_STREQ(a2l2json_error(result.get()),
               "The function that takes the document did not take all of it.");
  EXPECT_EQ(taken.refuseAfter, -1) << "it is not asked again";
  EXPECT_EQ(taken.bytes, Document(Convert(text)).substr(0, taken.bytes.size()));
}

TEST(CInterface, HandsNothingOverWhereThereIsAnError) {
  Taken taken;
  const a2l2json_options options = Into(taken);
  EXPECT_EQ(a2l2json_result_code(Convert(kError, &options).get()), A2L2JSON_NOT_CONVERTED);
  EXPECT_EQ(taken.bytes, "");
}

// ---------------------------------------------------------------------------------------------
// Arguments

TEST(CInterface, TakesOptionsOfEarlierAndLaterVersions) {
  struct Later {
    a2l2json_options known;
    std::size_t unknown;
  } later{A2L2JSON_OPTIONS_INIT, 0};
  later.known.size = sizeof(later);
  EXPECT_EQ(a2l2json_result_code(Convert(kText, &later.known).get()), A2L2JSON_OK);
  later.unknown = 1;
  const Result notKnown = Convert(kText, &later.known);
  EXPECT_EQ(a2l2json_result_code(notKnown.get()), A2L2JSON_NOT_AVAILABLE);
  EXPECT_STREQ(a2l2json_error(notKnown.get()),
               "The options are those of a later version of the library.");

  // What lies behind the size is not looked at.
  a2l2json_options earlier = A2L2JSON_OPTIONS_INIT;
  earlier.size = offsetof(a2l2json_options, name);
  earlier.name = "not a part of it";
  EXPECT_STREQ(a2l2json_error(Convert(kError, &earlier).get()),
               "Line 3: /end don't equal /begin PROJECT");

  const a2l2json_options noSize{};
  const Result refused = Convert(kText, &noSize);
  EXPECT_EQ(a2l2json_result_code(refused.get()), A2L2JSON_BAD_ARGUMENT);
  EXPECT_STREQ(a2l2json_error(refused.get()), "The options do not tell their size.");
}

TEST(CInterface, RefusesWhatIsMissing) {
  EXPECT_EQ(a2l2json_convert_text("", 0, nullptr, nullptr), A2L2JSON_BAD_ARGUMENT);
  EXPECT_EQ(a2l2json_convert_file("x.a2l", nullptr, nullptr), A2L2JSON_BAD_ARGUMENT);
  a2l2json_result* result = nullptr;
  EXPECT_EQ(a2l2json_convert_text(nullptr, 1, nullptr, &result), A2L2JSON_BAD_ARGUMENT);
  EXPECT_STREQ(a2l2json_error(result), "The text is null, but its size is not 0.");
  a2l2json_free(result);
  EXPECT_EQ(a2l2json_convert_file(nullptr, nullptr, &result), A2L2JSON_BAD_ARGUMENT);
  EXPECT_STREQ(a2l2json_error(result), "There is no path.");
  a2l2json_free(result);
  EXPECT_EQ(a2l2json_convert_text(nullptr, 0, nullptr, &result), A2L2JSON_NOT_A2L);
  a2l2json_free(result);
}

TEST(CInterface, FindsNothingInNoResult) {
  const Result none;
  EXPECT_EQ(a2l2json_result_code(nullptr), A2L2JSON_NO_MEMORY);
  EXPECT_STREQ(a2l2json_error(nullptr), "Memory ran out.");
  EXPECT_EQ(Document(none), "(none)");
  EXPECT_EQ(Bytes(a2l2json_messages, none), "(none)");
  EXPECT_EQ(Bytes(a2l2json_mended, none), "(none)");
  EXPECT_EQ(a2l2json_diagnostic_count(nullptr), 0U);
  EXPECT_EQ(a2l2json_diagnostic_at(nullptr, 0), nullptr);
  EXPECT_EQ(a2l2json_finding_count(nullptr), 0U);
  EXPECT_EQ(a2l2json_finding_at(nullptr, 0), nullptr);
  a2l2json_free(nullptr);
}

TEST(CInterface, HasASentenceForEveryCode) {
  std::vector<std::string> sentences;
  for (int code = A2L2JSON_OK; code <= A2L2JSON_INTERNAL_ERROR; ++code) {
    sentences.emplace_back(a2l2json_code_text(static_cast<a2l2json_code>(code)));
  }
  sentences.emplace_back(a2l2json_code_text(static_cast<a2l2json_code>(15)));
  EXPECT_EQ(sentences.back(), "This code is unknown.");
  std::ranges::sort(sentences);
  EXPECT_EQ(std::ranges::adjacent_find(sentences), sentences.end());
}

TEST(CInterface, HasAVersion) { EXPECT_STREQ(a2l2json_version(), A2L2JSON_VERSION); }

// ---------------------------------------------------------------------------------------------
// Threads and memory

TEST(CInterface, ServesManyThreads) {
  const std::string expected = Document(Convert(kText));
  std::vector<int> right(8, 0);
  std::vector<std::thread> threads;
  for (int& count : right) {
    threads.emplace_back([&count, &expected] {
      for (int i = 0; i < 50; ++i) {
        const Result good = Convert(kText);
        const Result bad = Convert(kError);
        if (Document(good) == expected && Bytes(a2l2json_messages, good) == kMessages &&
            a2l2json_result_code(bad.get()) == A2L2JSON_NOT_CONVERTED) {
          ++count;
        }
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(right, std::vector<int>(8, 50));
}

#if !defined(__linux__) || defined(A2L2JSON_SANITIZED)
TEST(CInterface, TellsThatMemoryRanOut) { GTEST_SKIP() << "memory cannot be limited here"; }
#else
// In a process of its own, which may have but a little more memory than it has now.
[[noreturn]] void ConvertInLittleMemory(const std::string& text) {
  std::size_t pages = 0;
  std::ifstream("/proc/self/statm") >> pages;
  const rlim_t most = pages * static_cast<std::size_t>(getpagesize()) + (std::size_t{16} << 20U);
  const rlimit limit{most, most};
  if (pages == 0 || setrlimit(RLIMIT_AS, &limit) != 0) std::_Exit(100);
  a2l2json_result* result = nullptr;
  const a2l2json_code code = a2l2json_convert_text(text.data(), text.size(), nullptr, &result);
  if (result != nullptr) std::_Exit(101);
  const bool goesOn = a2l2json_convert_text("", 0, nullptr, &result) == A2L2JSON_NOT_A2L;
  std::_Exit(goesOn ? code : 102);
}

TEST(CInterface, TellsThatMemoryRanOut) {
  std::string text = "/begin PROJECT P \"";
  text.append(std::size_t{50} << 20U, 'x') += "\"\n/end PROJECT\n";
  EXPECT_EXIT(ConvertInLittleMemory(text), testing::ExitedWithCode(A2L2JSON_NO_MEMORY), "");
}
#endif

}  // namespace
}  // namespace a2l::test
