// The lookups that read numbers parsed once, and search where a column rises,
// against the same lookups parsing every cell as it stands: the sample
// project, and the same project spoiled with cells that are no numbers,
// 9999 cells, equal and falling depths, ages and markers.
#include <cmath>
#include <cstdint>
#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include "core/depth_conversions.h"
#include "core/hole_lookup.h"
#include "core/project_state.h"
#include "events/age_lookup.h"
#include "events/event_free_depth.h"
#include "events/event_state.h"
#include "events/varve_counts.h"
#include "forms/frm_conversion.h"
#include "forms/frm_main.h"
#include "runtime/failure.h"
#include "runtime/number_text.h"
#include "support/fresh_program.h"
#include "support/model_files.h"

namespace ostraline {
namespace {

std::string Sample(const std::string& name) {
  return (std::filesystem::path(OSTRALINE_SAMPLES) / name).string();
}

// Every lookup over a sweep of depths and positions, each result and what it
// leaves behind written down, failures included.
std::string Sweep() {
  AgeErrorPlus = AgeErrorMinus = 0;
  AgeRowLower = AgeRowUpper = 0;
  TopRowFound = TieRowPrevious = TieRowLast = 0;
  std::ostringstream out;
  const auto record = [&](const char* what, auto&& lookup) {
    try {
      out << what << " " << lookup().ToText();
    } catch (const RuntimeFailure& failure) {
      out << what << " fails " << FailureName(failure.Kind());
    }
    out << " " << AgeErrorPlus << " " << AgeErrorMinus << " " << AgeRowLower << " " << AgeRowUpper
        << " " << TopRowFound << " " << TieRowPrevious << " " << TieRowLast << "\n";
  };
  // A sweep, and the depths where a search may stop one row off: the layers'
  // edges, the control points and the varve markers.
  std::vector<Single> depths;
  for (double d = -50; d < 7300; d += 7.3) depths.push_back(static_cast<Single>(d));
  for (long i = 1; i <= MergedEventCount; ++i) {
    for (const Single edge : {EventTop(1, i), EventBottom(1, i)}) {
      depths.push_back(edge);
      depths.push_back(CDToEFD(edge).ToSingle());
    }
  }
  for (long i = 1; i <= AgeModelCount; ++i) {
    for (const int column : {5, 7, 11})
      depths.push_back(static_cast<Single>(Val(AgeModel(column, i))));
  }
  for (long i = 1; i <= VarveCountRows; i += 97) depths.push_back(VarveCounts(0, i));
  for (const Single x : depths) {
    const double d = x;
    record("efd", [&] { return CDToEFD(x); });
    record("cd", [&] { return EFDToCD(x); });
    record("age", [&] { return GetAgeFromCD(x); });
    record("ageEfd", [&] { return GetAgeFromEFD(x); });
    record("efdAge", [&] { return GetEFDFromAge(x); });
    record("efdAge", [&] { return GetEFDFromAge(static_cast<Single>(d * 7)); });
    // Control points in order, the wrong way round on either side of the
    // depth and above it, and with the upper one just short of the last marker.
    const Single nearLast = std::nextafter(VarveCounts(0, VarveCountRows), 0.0f);
    for (const auto& [lower, upper] :
         {std::pair{x - 40, x + 35}, {x + 35, x - 40}, {x - 40, x - 80}, {x - 40, nearLast}}) {
      try {
        const VarveSums sums = VarveSumsAt(x, lower, upper);
        out << "varves " << sums.below << " " << sums.above << " "
            << VarveOffset(lower, upper, 3, 5) << "\n";
      } catch (const RuntimeFailure& failure) {
        out << "varves fail " << FailureName(failure.Kind()) << "\n";
      }
    }
  }
  // Control points exactly at markers, which count for neither side.
  for (long i = 1; i + 60 <= VarveCountRows; i += 97) {
    const VarveSums sums =
        VarveSumsAt(VarveCounts(0, i + 20), VarveCounts(0, i), VarveCounts(0, i + 60));
    out << "pair " << sums.below << " " << sums.above << "\n";
  }
  for (int hole = 0; hole <= 5; ++hole) {
    // Asked twice: the second answer is the one given before.
    for (int ask = 0; ask < 2; ++ask) {
      for (const char* name : {"01", "5", "005", "12", "29", "44", "99", "abc"}) {
        out << "section " << SectionOrdinalByName(hole, name).Get() << "\n";
      }
    }
    if (hole >= 1 && hole <= 4) {
      for (long row = 0; row <= LastRow; ++row) {
        out << "psp " << Str(ModelPspValue(masterSet, hole, row)) << "\n";
      }
    }
    for (int section = 0; section <= 46; section += 3) {
      for (double psp = -5; psp < 210; psp += 11.3) {
        record("trinity", [&] { return CompositeFromTrinity(hole, section, Single(psp)); });
      }
    }
  }
  return out.str();
}

class FastLookups : public FreshProgram {
 protected:
  void SetUp() override {
    FreshProgram::SetUp();
    for (const auto& [file, button] :
         {std::pair{"correlation_model_20250314.csv", &FrmMain::Command1_Click},
          {"event_layers_20250320.csv", &FrmMain::Command3_Click},
          {"age_depth_model_20250402.csv", &FrmMain::Command4_Click},
          {"varve_counts_20250325.csv", &FrmMain::Command5_Click}}) {
      platform.QueueFile(Sample(file));
      ((*frmMain).*button)();
    }
    ASSERT_TRUE(VarveCountsLoaded) << OnlyMessage();
  }
  void ExpectSameSweep(const char* what) {
    ostraline::FastLookups = false;
    const std::string plain = Sweep();
    ostraline::FastLookups = true;
    const std::string fast = Sweep();
    std::istringstream a(fast), b(plain);
    long line = 0;
    for (std::string lineA, lineB; std::getline(b, lineB);) {
      ++line;
      std::getline(a, lineA);
      if (lineA != lineB) {
        ADD_FAILURE() << what << ", line " << line << ": fast '" << lineA << "', plain '" << lineB
                      << "'";
        return;
      }
    }
    EXPECT_EQ(fast.size(), plain.size()) << what;
  }
};

TEST_F(FastLookups, SameResultsOnTheSampleAndOnItsSpoiledCopies) {
  ExpectSameSweep("the sample project");

  // Cells that are no numbers, a PSP beyond a Single, and 9999 cells in the
  // model, inside sections that the sweep walks.
  ModelCell(0, 1, 1, SectionTopRow(1, 6) + 2) = "12abc";
  long tie = SectionTopRow(3, 3) + 1;
  while (TieCell(1, tie) == "9999") ++tie;
  ModelCell(0, 3, 1, tie) = "1e39";
  ModelCell(0, 2, 1, 300) = "9999";
  TieCell(1, 160) = "9999";
  TieCell(1, SectionTopRow(2, 9) + 2) = "";
  // A section renamed after its name was asked for.
  SectionName(4, 2) = "005";
  // A last section without its bottom row: the walk runs off the model.
  ModelCell(0, 2, 0, SectionBottomRow(2, SectionCount(2))) = "no end";
  ExpectSameSweep("model cells spoiled");

  // Equal and falling ages and depths in the age-depth model, and a cell
  // that is no number.
  AgeModel(7, 5) = AgeModel(7, 4);
  AgeModel(11, 9) = "100";
  AgeModel(7, 12) = "1e3";
  ExpectSameSweep("ages out of order");
  AgeModel(11, 14) = "n/a";
  ExpectSameSweep("an EFD that is no number");

  // A count that is no whole number: the sums are added one by one.
  VarveCounts(1, 55) += 0.25f;
  ExpectSameSweep("a count that is no whole number");

  // A marker out of order, and layers whose bottoms fall.
  VarveCounts(0, 40) = VarveCounts(0, 10);
  ExpectSameSweep("markers out of order");
  EventBottom(1, 7) = EventTop(1, 2);
  EventTop(1, 12) = 9999;
  ExpectSameSweep("layers out of order");
}

// The positions batch keeps each section it has looked up by its digits; a
// section renamed between two batches is looked up again.
TEST_F(FastLookups, PositionsBatchFindsTheSectionsTheScanFinds) {
  std::string data = "Sample,Hole,Section,PSP\r\n";
  int sample = 0;
  for (const char* hole : {"A", "B", "C", "D", "Bore hole A", "X"}) {
    for (const char* section : {"1", "01", "001", "5", "05", "005", "7", "12", "999", "0", "1000",
                                "abc", "", "3.0", "-2"}) {
      for (const char* psp : {"0", "12.5", "47", "150"}) {
        data += "S" + std::to_string(++sample) + "," + hole + "," + section + "," + psp + "\r\n";
      }
    }
  }
  const std::string input = WriteTempFile("positions.csv", data);
  const auto convert = [&](bool fast) {
    ostraline::FastLookups = fast;
    platform.QueueFile(input);
    frmMain->Command2_Click();
    const std::string output = WriteTempFile("converted.csv", "");
    platform.QueueFile(output);
    frmConversion->Command1_Click();
    return FileContents(output);
  };
  const std::string plain = convert(false);
  EXPECT_GT(plain.size(), data.size());
  EXPECT_TRUE(convert(true) == plain);
  SectionName(1, 5) = "012";
  const std::string renamed = convert(false);
  EXPECT_NE(renamed, plain);
  EXPECT_TRUE(convert(true) == renamed);
}

// The sort of a long list of layers finds each row as the scan does: equal
// tops, tops of 9999 from unknown sections, and rows the scan never chooses.
TEST(FastSort, LongListsSortAsTheScanSortsThem) {
  std::string list = "Hole,Section,Top,Bottom,Description\r\n";
  std::uint32_t draw = 7;
  const auto next = [&draw](std::uint32_t range) {
    draw = draw * 1664525u + 1013904223u;
    return (draw >> 8) % range;
  };
  for (int i = 0; i < 3000; ++i) {
    const int top = static_cast<int>(next(40)) * 2;
    const char* section = next(17) == 0 ? "07" : next(2) == 0 ? "01" : "02";
    list += std::string("A,") + section + "," + std::to_string(top) + "," +
            std::to_string(top + static_cast<int>(next(5))) + ",Layer\r\n";
  }
  const auto import = [&](bool fast) {
    ScriptedPlatform platform;
    SetPlatform(&platform);
    ResetProgram();
    ostraline::FastLookups = fast;
    platform.QueueFile(WriteTempFile("model_20110305.csv", ModelText(TwoSectionModel())));
    frmMain->Command1_Click();
    platform.QueueFile(WriteTempFile("events_20110401.csv", list));
    frmMain->Command3_Click();
    std::ostringstream out;
    out << MergedEventCount << " " << platform.messages.size() << "\n";
    for (long i = 0; i <= EventCount; ++i) {
      out << EventTop(1, i) << " " << EventBottom(1, i) << " " << EventOrder(i) << "\n";
    }
    ResetProgram();
    SetPlatform(nullptr);
    return out.str();
  };
  const std::string plain = import(false);
  EXPECT_GT(plain.size(), 3000u);
  EXPECT_TRUE(import(true) == plain);
}

}  // namespace
}  // namespace ostraline
