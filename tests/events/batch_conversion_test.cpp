#include <sys/resource.h>

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <string>
#include <vector>

#include "core/project_state.h"
#include "events/batch_state.h"
#include "events/event_state.h"
#include "forms/frm_conversion.h"
#include "forms/frm_main.h"
#include "runtime/failure.h"
#include "support/age_files.h"
#include "support/model_files.h"

namespace ostraline {
namespace {

constexpr int kEveryScale = kScaleComposite | kScaleEfd | kScaleAge;
const std::string kCdTitle = "\"Composite depth (correlation model: version 05 Mar. 2011)\"";
const std::string kEfdTitle = "\"Event free depth (event list: version 01 Apr. 2011)\"";
const std::string kAgeTitles =
    "\"Age (age model: version 01 Jan. 2012)\",\"Age 95.4 % error (+)\",\"Age 68.2 % error (-)\","
    "\"Age unit\"";

// A converted file with every output scale: the scales in file order, and
// each line as the cells written always followed by the cells of each scale.
struct Converted {
  std::vector<int> scales;
  std::vector<std::vector<std::string>> lines;
};

// The file as written with only the scales of `shown` ticked.
std::string Written(const Converted& file, int shown) {
  std::string text;
  for (const auto& line : file.lines) {
    text += line[0];
    for (std::size_t i = 0; i < file.scales.size(); ++i) {
      if (shown & file.scales[i]) text += "," + line[i + 1];
    }
    text += "\r\n";
  }
  return text;
}

// Samples by position. In section 01 of bore hole A the composite depth is
// 110 + (PSP - 10) * 1.25, in section 02 it is 210 + PSP; the layer from 150
// to 160 cm is cut out of the EFD. S2 names the hole by its long title, S4
// lies below its section's bottom (PSP 80), S6 names no hole of the model.
const char* const kPositions =
    "Sample,Hole,Section,PSP\r\nS1,A,01,30\r\nS2,Bore hole A,01,46\r\nS3,A,02,30\r\n"
    "S4,A,01,85\r\nS5,A,01,9999\r\nS6,X,01,10\r\n";
const Converted kPositionsConverted = {
    {kScaleComposite, kScaleEfd, kScaleAge},
    {{"\"Sample\",\"Hole\",\"Section\",\"PSP\"", kCdTitle, kEfdTitle, kAgeTitles},
     {"\"S1\",\"A\",\"01\",\"30\"", "135", "135", "900,9,19,\"cal BP\""},
     {"\"S2\",\"Bore hole A\",\"01\",\"46\"", "155", "150", "1200,12,22,\"cal BP\""},
     {"\"S3\",\"A\",\"02\",\"30\"", "240", "230", "2800,36,38,\"Hybrid unit\""},
     {"\"S4\",\"A\",\"01\",\"85\"", "9999", "9999", "9999,9999,9999,9999"},
     {"\"S5\",\"A\",\"01\",\"9999\"", "9999", "\"9999\"", "9999,9999,9999,\"9999\""},
     {"\"S6\",\"X\",\"01\",\"10\"", "9999", "9999", "9999,9999,9999,9999"}}};

class BatchConversion : public AgeProgram {
 protected:
  // What the ages of a conversion leave behind besides the file: the last
  // lookup's rows and errors and the layers' row 0.
  static std::string LeftBehind() {
    return " rows " + std::to_string(AgeRowLower) + "-" + std::to_string(AgeRowUpper) + " errors " +
           std::to_string(AgeErrorPlus) + "/" + std::to_string(AgeErrorMinus) + " layer 0 " +
           std::to_string(EventTop(1, 0)) + "-" + std::to_string(EventBottom(1, 0));
  }

  void ReadDataFile(const std::string& text) {
    platform.QueueFile(WriteTempFile("samples.csv", text));
    frmMain->Command2_Click();
  }

  // Reads the data file, unticks the output scales not `shown` that may be
  // unticked, presses "Convert and Save" and gives back what was written.
  std::string Convert(const std::string& data, int shown = kEveryScale) {
    ReadDataFile(data);
    if (!frmConversion.IsLoaded()) return "<no form>";
    for (int scale : {kScaleComposite, kScaleEfd, kScaleAge}) {
      if (!(shown & scale) && frmConversion->Check1(scale).Enabled)
        frmConversion->Check1(scale).Value = 0;
    }
    output = WriteTempFile("converted.csv", "");
    platform.QueueFile(output);
    frmConversion->Command1_Click();
    return FileContents(output);
  }

  // Every choice of ticks on one data file: the written file and the mask.
  void ExpectEveryChoice(const std::string& data, int input, const Converted& file) {
    for (int shown = 0; shown <= kEveryScale; shown += kScaleComposite) {
      SCOPED_TRACE(shown);
      EXPECT_EQ(Convert(data, shown), Written(file, shown | input));
      EXPECT_EQ(InputKind, input);
      EXPECT_EQ(ToMask, shown | input);
    }
    EXPECT_TRUE(platform.messages.empty()) << OnlyMessage();
  }

  std::string output;
};

TEST_F(BatchConversion, PositionsGiveEveryTickedScale) {
  ImportAll();
  const std::string label9 = frmMain->Label9.Caption;
  ExpectEveryChoice(kPositions, kScaleTrinity, kPositionsConverted);
  EXPECT_FALSE(frmConversion.IsLoaded());
  EXPECT_EQ(frmMain->Label9.Caption.Get(), label9);
  EXPECT_EQ(DriveIndex, 0);
  EXPECT_FALSE(frmMain->ProgressBar1.Visible);
  EXPECT_EQ(platform.dialogs.back().filter, "DataFile(*.csv)|*.csv");
  EXPECT_TRUE(platform.dialogs.back().overwritePrompt);

  // One decimal: PSP 31 lies at 136.25 cm, rounded half to even; its age
  // comes from the rounded EFD, 1000 + (136.2 - 140) * 20. The section's
  // bottom (PSP 80) and top (PSP 0) are inside it.
  DepthPrecision = 1;
  EXPECT_EQ(Convert("Sample,Hole,Section,PSP\r\nS7,A,01,31\r\nS8,A,01,80\r\nS9,A,01,0\r\n"),
            Written({kPositionsConverted.scales,
                     {kPositionsConverted.lines[0],
                      {"\"S7\",\"A\",\"01\",\"31\"", "136.2", "136.2", "924,9,19,\"cal BP\""},
                      {"\"S8\",\"A\",\"01\",\"80\"", "197.5", "187.5", "1950,20,30,\"cal BP\""},
                      {"\"S9\",\"A\",\"01\",\"0\"", "97.5", "97.5", "150,2,12,\"cal BP\""}}},
                    kEveryScale));
}

// Values on each scale give the others.
TEST_F(BatchConversion, ValuesOfEachScale) {
  ImportAll();
  // The EFD is written only beside the composite depth; without it, the age
  // still comes from it.
  ExpectEveryChoice("Sample,Composite depth\r\nC1,135\r\nC2,155\r\nC3,240\r\nC4,9999\r\n",
                    kScaleComposite,
                    {{kScaleEfd, kScaleAge},
                     {{"\"Sample\",\"Composite depth\"", kEfdTitle, kAgeTitles},
                      {"\"C1\",\"135\"", "135", "900,9,19,\"cal BP\""},
                      {"\"C2\",\"155\"", "150", "1200,12,22,\"cal BP\""},
                      {"\"C3\",\"240\"", "230", "2800,36,38,\"Hybrid unit\""},
                      {"\"C4\",9999", "9999", "9999,9999,9999,9999"}}});

  // The first three samples of a value file are read as text with the header;
  // from the fourth on a field that reads as a number is a number: written bare
  // and without the file's trailing zero, while a quoted field stays text. A
  // missing EFD's unit cell is that cell as it stands.
  const std::string data =
      "Sample,Composite depth\r\nC1,135.0\r\nC2,9999\r\nC3,240\r\n7,155.50\r\n"
      "C5,\"135.0\"\r\nC6,9999\r\n";
  EXPECT_EQ(Convert(data, kScaleAge), "\"Sample\",\"Composite depth\"," + kAgeTitles +
                                          "\r\n\"C1\",\"135.0\",900,9,19,\"cal BP\"\r\n"
                                          "\"C2\",\"9999\",9999,9999,9999,\"9999\"\r\n"
                                          "\"C3\",\"240\",2800,36,38,\"Hybrid unit\"\r\n"
                                          "7,155.5,1200,12,22,\"cal BP\"\r\n"
                                          "\"C5\",\"135.0\",900,9,19,\"cal BP\"\r\n"
                                          "\"C6\",9999,9999,9999,9999,9999\r\n");

  // Age values come first with their errors. Age 2400 lies at EFD
  // 190 + 400 / 20 = 210, below the layer: composite 220.
  ExpectEveryChoice("Sample,Age (cal BP)\r\nT1,2400\r\nT2,1200\r\nT3,-9999\r\nT4,900\r\n",
                    kScaleAge,
                    {{kScaleComposite, kScaleEfd},
                     {{"\"Sample\",\"Age (cal BP)\",\"Age 95.4 % error (+)\",\"Age 68.2 % error "
                       "(-)\",\"Age unit\"",
                       kCdTitle, kEfdTitle},
                      {"\"T1\",\"2400\",28,34,\"Hybrid unit\"", "220", "210"},
                      {"\"T2\",\"1200\",12,22,\"cal BP\"", "150", "150"},
                      {"\"T3\",\"-9999\",-9999,-9999,\"-9999\"", "-9999", "\"-9999\""},
                      {"\"T4\",900,9,19,\"cal BP\"", "135", "135"}}});

  // "Depth" is none of the three words: the values are taken for EFD. EFD 151
  // lies below the layer, so 10 cm come back; the junction 150 maps to the
  // layer's top.
  AgePrecision = 1;
  ExpectEveryChoice("Sample,Depth below lake floor\r\nE1,135\r\nE2,151\r\nE3,150\r\nE4,-9999\r\n",
                    kScaleEfd,
                    {{kScaleComposite, kScaleAge},
                     {{"\"Sample\",\"Depth below lake floor\"", kCdTitle, kAgeTitles},
                      {"\"E1\",\"135\"", "135", "900,9,19,\"cal BP\""},
                      {"\"E2\",\"151\"", "161", "1220,12.2,22.2,\"cal BP\""},
                      {"\"E3\",\"150\"", "150", "1200,12,22,\"cal BP\""},
                      {"\"E4\",-9999", "-9999", "-9999,-9999,-9999,-9999"}}});
}

TEST_F(BatchConversion, FormOffersTheScalesTheFilesAllow) {
  ImportAll();
  ReadDataFile(kPositions);
  FrmConversion& form = *frmConversion;
  EXPECT_TRUE(form.Option1(kScaleTrinity).Value);
  EXPECT_TRUE(form.Option1(kScaleTrinity).Enabled);
  EXPECT_FALSE(form.Option1(kScaleComposite).Enabled);
  EXPECT_TRUE(form.Label1.Enabled);
  EXPECT_FALSE(form.Check1(kScaleTrinity).Enabled);
  EXPECT_EQ(form.Check1(kScaleTrinity).Value, 1);
  EXPECT_FALSE(form.Label2.Enabled);
  Unload("frmConversion");

  ReadDataFile("Sample,Composite depth\r\nC1,135\r\nC2,155\r\nC3,240\r\n");
  EXPECT_FALSE(frmConversion->Option1(kScaleTrinity).Enabled);
  EXPECT_FALSE(frmConversion->Label1.Enabled);
  for (int scale : {kScaleComposite, kScaleEfd, kScaleAge}) {
    EXPECT_TRUE(frmConversion->Option1(scale).Enabled) << scale;
  }
  EXPECT_EQ(frmConversion->Check1(kScaleTrinity).Value, 0);
  EXPECT_FALSE(frmConversion->Check1(kScaleComposite).Enabled);
  // Another input scale: the new one is ticked for good, the old one may go.
  frmConversion->Option1(kScaleAge).Value = true;
  EXPECT_EQ(FromKind, kScaleAge);
  EXPECT_FALSE(frmConversion->Check1(kScaleAge).Enabled);
  EXPECT_TRUE(frmConversion->Check1(kScaleComposite).Enabled);
  EXPECT_EQ(frmConversion->Check1(kScaleComposite).Value, 1);
  EXPECT_EQ(ToMask, 14);

  // Closing the form hands the focus back to the next import still open.
  Unload("frmConversion");
  EXPECT_EQ(FocusedControl(), &frmMain->Command5);
}

TEST_F(BatchConversion, ShapeIsToldByOneCell) {
  ImportAll();
  // The second sample's value must print back as itself: "1200.0" doesn't,
  // so the two-column file is read four fields to a row as positions.
  ReadDataFile("Sample,Age\r\nT1,2400\r\nT2,1200.0\r\nT3,900\r\nT4,800\r\nT5,700\r\n");
  ASSERT_TRUE(frmConversion.IsLoaded());
  EXPECT_EQ(InputKind, kScaleTrinity);
  EXPECT_EQ(ConversionRows, 2);
  EXPECT_EQ(ConversionTable(1, 1), Variant("1200.0"));
  Unload("frmConversion");

  // Fewer fields than two records of four: the program's message, no form.
  ReadDataFile("Sample,Hole\r\nS1,A\r\n");
  EXPECT_FALSE(frmConversion.IsLoaded());
  EXPECT_EQ(OnlyMessage(), "Error: File format error.");
  EXPECT_FALSE(frmMain->ProgressBar1.Visible);
}

TEST_F(BatchConversion, ValuesNeedTheEventListAndAgesTheAgeModel) {
  ImportModel(FourHoleModel());
  frmMain->Text2.SetFocus();
  ReadDataFile("Sample,Age\r\nT1,2400\r\nT2,1200\r\nT3,900\r\n");
  EXPECT_EQ(OnlyMessage(),
            "Error: Please import list of events. Sample file is available at "
            "https://www.ostraline.org/samples.");
  EXPECT_FALSE(frmConversion.IsLoaded());
  EXPECT_EQ(FocusedControl(), &frmMain->Command3);

  Restart(kFusedLayer);
  ReadDataFile(kPositions);
  EXPECT_FALSE(frmConversion->Check1(kScaleAge).Enabled);
  EXPECT_EQ(frmConversion->Check1(kScaleAge).Value, 0);
  EXPECT_FALSE(frmConversion->Option1(kScaleAge).Enabled);
  Unload("frmConversion");
  EXPECT_EQ(Convert(kPositions), Written(kPositionsConverted, kScaleComposite | kScaleEfd));
  EXPECT_EQ(ToMask, 7);
}

TEST_F(BatchConversion, FailedOrCancelledSaveKeepsTheFileThatWasThere) {
  ImportAll();
  const std::filesystem::path folder =
      std::filesystem::path(WriteTempFile("samples.csv", "")).parent_path();
  auto filesInFolder = [&] {
    return std::distance(std::filesystem::directory_iterator(folder),
                         std::filesystem::directory_iterator());
  };
  ReadDataFile(kPositions);
  output = WriteTempFile("converted.csv", "old rows\r\n");
  const auto before = filesInFolder();
  platform.QueueCancel();
  frmConversion->Command1_Click();
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_TRUE(frmConversion.IsLoaded());

  // An age that is no number fails the first row's age, after the header.
  AgeModel(7, 2) = "n/a";
  platform.QueueFile(output);
  frmConversion->Command1_Click();
  EXPECT_EQ(
      OnlyMessage(),
      "Error: The file might be being used by another software. Please close the file and try "
      "again.");
  EXPECT_TRUE(frmConversion.IsLoaded());
  EXPECT_EQ(FileContents(output), "old rows\r\n");
  EXPECT_EQ(filesInFolder(), before);

  // A folder that does not exist: the same message, the form still open.
  platform.messages.clear();
  platform.QueueFile((folder / "missing" / "converted.csv").string());
  frmConversion->Command1_Click();
  EXPECT_EQ(platform.messages.size(), 1u);
  EXPECT_TRUE(frmConversion.IsLoaded());

  // No input scale chosen: the other message, and the form goes.
  platform.messages.clear();
  frmConversion->Option1(kScaleTrinity).Value = false;
  platform.QueueFile(output);
  frmConversion->Command1_Click();
  EXPECT_EQ(OnlyMessage(),
            "Error: Ostraline could not import the file. Please check the file format.");
  EXPECT_FALSE(frmConversion.IsLoaded());
  EXPECT_EQ(FileContents(output), "old rows\r\n");
  EXPECT_EQ(filesInFolder(), before);
}

// A long file is read in two halves, its EFDs made some rows behind and its
// rows written alongside, by a second thread. The later half is used only
// where the rows read before it end exactly there: a quoted text or a row of
// five fields across the middle, or a failure at the end, give what the
// file gives read from its start alone. Long files of values, and the ages
// by varve count, convert as row by row too, and leave the last lookup's
// rows and errors as row by row does.
TEST_F(BatchConversion, LongFilesConvertAsRowByRow) {
  ImportAll();
  std::string data = kPositions;
  std::string expected = Written(kPositionsConverted, kEveryScale);
  const std::string rows = data.substr(data.find("\r\n") + 2);
  const std::string convertedRows = expected.substr(expected.find("\r\n") + 2);
  while (data.size() <= (1 << 20)) {
    data += rows;
    expected += convertedRows;
  }
  const std::size_t middleRow = data.rfind("\r\n", data.size() / 2) + 2;
  const std::size_t rowSize = data.find("\r\n", middleRow) + 2 - middleRow;
  std::string quoted = data;
  // The quoted text's line end comes after the middle of the longer file.
  quoted.replace(middleRow, 2,
                 "\"" + data.substr(middleRow, 2) + std::string(4 * rowSize, 'q') + "\n\"");
  std::string fiveFields = data;
  fiveFields.replace(middleRow, rowSize, "S1,A,01,30,S2\r\n");
  // Values of each scale, the missing and the unreadable among them.
  std::string values[3] = {"Sample,Composite depth\r\nC1,135\r\nC2,155\r\nC3,240\r\n",
                           "Sample,Age\r\nT1,2400\r\nT2,1200\r\nT3,900\r\n",
                           "Sample,EFD\r\nE1,135\r\nE2,151\r\nE3,150\r\n"};
  for (std::string& file : values) {
    for (int i = 0; i < 1500; ++i)
      file += "V,1" + std::to_string(i % 250) + ".5\r\nV,9999\r\nV,x\r\n";
  }
  std::vector<std::pair<std::string, std::string>> varves;
  for (int i = 0; i <= 60; ++i)
    varves.emplace_back(std::to_string(110 + 3 * i), std::to_string(5 * i + i % 4));
  for (const auto& [what, text] : {std::pair{"rows as they come", data},
                                   {"a quoted text across the middle", quoted},
                                   {"five fields in the middle", fiveFields},
                                   {"a blank line at the end", data + "\r\n"},
                                   {"composite depths", values[0]},
                                   {"ages", values[1]},
                                   {"EFDs", values[2]},
                                   {"with varves", data}}) {
    if (what == std::string("with varves")) ImportVarves(varves);
    std::string converted[2];
    std::vector<std::string> messages[2];
    for (const bool fast : {false, true}) {
      FastLookups = fast;
      platform.messages.clear();
      converted[fast] = Convert(text);
      converted[fast] += LeftBehind() + " rows " + std::to_string(ConversionRows);
      for (const auto& message : platform.messages) messages[fast].push_back(message.text);
    }
    EXPECT_TRUE(converted[true] == converted[false]) << what;
    EXPECT_EQ(messages[true], messages[false]) << what;
    EXPECT_EQ(converted[false].size() > text.size(), messages[false].empty()) << what;
  }
  // The table holds the rows read; after a failure, the row it failed in too.
  const auto lines = static_cast<long>(std::count(data.begin(), data.end(), '\n'));
  for (const bool blankLine : {false, true}) {
    ReadDataFile(blankLine ? data + "\r\n" : data);
    EXPECT_EQ(ConversionTable.UBound(2), blankLine ? lines : lines - 1);
  }
  platform.messages.clear();
  FastLookups = true;
  EXPECT_NE(Convert(data), expected) << "the varves count";
  ResetProgram();
  ImportAll();
  EXPECT_TRUE(Convert(data) == expected);
}

// A failure late in a long file, while the EFDs are made behind or the rows
// written alongside, leaves the table as converting row by row does, and the
// file that was there.
TEST_F(BatchConversion, LateFailuresLeaveWhatWasThere) {
  ImportAll();
  std::string data = "Sample,Hole,Section,PSP\r\n";
  for (int i = 0; i < 9000; ++i) data += "S1,A,01,30\r\nS4,A,01,85\r\n";
  data += "S3,A,02,30\r\n";
  const auto readTable = [&](bool fast) {
    FastLookups = fast;
    platform.messages.clear();
    ReadDataFile(data);
    std::string table = OnlyMessage() + " rows " + std::to_string(ConversionRows) + "\n";
    for (long row = 0; row <= ConversionTable.UBound(2); ++row) {
      for (int column = 0; column <= 5; ++column) {
        const Variant& cell = std::as_const(ConversionTable)(column, row);
        table += cell.IsEmpty() ? "-" : cell.ToText();
        table += ",";
      }
    }
    return table;
  };
  // The last sample's composite depth lies beyond a Single: its EFD fails.
  TieCell(1, 7) = "1e40";
  const std::string failed = readTable(false);
  EXPECT_EQ(failed.rfind("Error: File format error.", 0), 0u) << failed.substr(0, 80);
  EXPECT_TRUE(readTable(true) == failed);
  TieCell(1, 7) = "270";
  platform.messages.clear();

  const auto expectFileKept = [&](const std::string& what) {
    EXPECT_EQ(OnlyMessage(),
              "Error: The file might be being used by another software. Please close the file "
              "and try again.")
        << what;
    EXPECT_EQ(FileContents(output), "old rows\r\n") << what;
    platform.messages.clear();
  };
  // The last sample, below the second control point, has an age that is no
  // number: with the fast lookups it fails as row by row, and leaves the same.
  AgeModel(7, 3) = "n/a";
  std::string failedAge[2];
  for (const bool fast : {false, true}) {
    FastLookups = fast;
    ReadDataFile(data);
    const long failures = LastFailure().serial;
    output = WriteTempFile("converted.csv", "old rows\r\n");
    platform.QueueFile(output);
    frmConversion->Command1_Click();
    failedAge[fast] = LeftBehind() + (LastFailure().serial == failures ? "" : LastFailure().detail);
    expectFileKept("a failed age");
  }
  EXPECT_EQ(failedAge[true], failedAge[false]);

  // A file that may not grow beyond 64 kB fails while it is written.
  AgeModel(7, 3) = "3000";
  struct rlimit limit {};
  getrlimit(RLIMIT_FSIZE, &limit);
  const struct rlimit small = {1 << 16, limit.rlim_max};
  const auto previous = std::signal(SIGXFSZ, SIG_IGN);
  setrlimit(RLIMIT_FSIZE, &small);
  platform.QueueFile(output);
  frmConversion->Command1_Click();
  setrlimit(RLIMIT_FSIZE, &limit);
  std::signal(SIGXFSZ, previous);
  expectFileKept("a file that cannot grow");
}

}  // namespace
}  // namespace ostraline
