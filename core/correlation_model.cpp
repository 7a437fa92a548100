// The correlation model's import: the file, the model depths, and the form
// opened for work at its first target.
#include "core/correlation_model.h"

#include <utility>
#include "core/import_pattern.h"

#include "core/depth_conversions.h"
#include "core/project_state.h"
#include "duo/duo_state.h"
#include "forms/frm_main.h"
#include "forms/frm_version.h"
#include "forms/platform.h"
#include "runtime/field_reader.h"
#include "runtime/file_names.h"
#include "runtime/number_text.h"

namespace ostraline {
namespace {

// One row of the file: the splice column, three fields for each bore hole,
// the composite depth, and four more fields in the long layout, which the
// master drops and the Duo keeps as its row's tie to the master.
void ReadModelRow(BoreHoleSet& set, FieldReader& file, long row, bool longLayout,
                  bool spliceAlreadyRead) {
  if (!spliceAlreadyRead) set.TieCell(0, row) = file.ReadText();
  for (int hole = 1; hole <= 4; ++hole) {
    for (int item = 0; item <= 2; ++item) set.ModelCell(0, hole, item, row) = file.ReadText();
  }
  set.TieCell(1, row) = file.ReadText();
  if (longLayout) {
    for (int field = 0; field < 4; ++field) {
      std::string text = file.ReadText();
      if (set.IsDuo) MasterTrinity(field, row) = std::move(text);
    }
  }
}

// Every cell carries one prefix character; a cell of length 0 has none to drop.
std::string DropPrefix(const std::string& cell) {
  return Right(cell, Len(cell) - 1);
}

bool StartsWith(const std::string& text, const char* head) {
  return Left(text, Len(head)) == head;
}

void ReadHoleHeader(BoreHoleSet& set, MainForm& form, int hole) {
  const std::string x = set.ModelCell(0, hole, 0, 0);
  long p = Len(x) - 1;
  // Without a "(" the scan reaches position 0, which is no valid position.
  while (Mid(x, p, 1) != "(") --p;
  const std::string a = Mid(x, p + 1, Len(x) - p - 1);
  const std::string b = Trim(Left(x, p - 1));
  if (Len(a) == 1) {
    set.HoleName(hole) = a;
    set.HoleTitle(hole) = b;
  } else {
    set.HoleTitle(hole) = a;
  }
  if (StartsWith(b, "Bore hole") || StartsWith(b, "Bore Hole") || StartsWith(b, "Lamina name") ||
      StartsWith(b, "Lamina Name")) {
    form.Label1(hole).Caption = "Bore hole " + set.HoleName(hole);
  } else {
    form.Label1(hole).Caption = set.HoleName(hole) + " (" + set.HoleTitle(hole) + ")";
  }
  form.mnuBH(hole).Caption = "Bore hole " + set.HoleName(hole);
}

void ReadMasterRows(BoreHoleSet& set, FieldReader& file) {
  ReadModelRow(set, file, 0, false, false);
  const std::string f = file.ReadText();
  // A splice cell of a data row holds its prefix and one letter: three or
  // more characters can only be the header's fifteenth column.
  const bool longLayout = Len(f) >= 3;
  if (longLayout) {
    for (int extra = 0; extra < 3; ++extra) file.ReadText();
  } else {
    set.TieCell(0, 1) = f;
  }
  ReadModelRow(set, file, 1, longLayout, !longLayout);
  long row = 2;
  while (!file.Eof()) {
    ReadModelRow(set, file, row, longLayout, false);
    ++row;
  }
  set.LastRow = row - 1;
}

}  // namespace

FieldReader OpenModelFile(BoreHoleSet& set, MainForm& form, Label& versionLabel, bool& fileOpen) {
  FieldReader file = OpenDataFile(form, fileOpen);
  set.ModelVersion = VersionDate(form.CommonDialog1.FileName);
  versionLabel.Caption = set.ModelVersion;
  form.Caption = form.Caption + "   [" + FileStem(form.CommonDialog1.FileName) + "]";
  // The Duo's tables have no Scale for ages.
  const long lastScale = set.IsDuo ? 2 : 3;
  set.ModelCell.Dim({{0, lastScale}, {0, 5}, {0, 2}, {0, 5000}});
  set.TieCell.Dim({{0, lastScale}, {0, 5000}});
  return file;
}

void ReadDuoRows(BoreHoleSet& set, FieldReader& file) {
  long row = 0;
  do {
    ReadModelRow(set, file, row, true, false);
    ++row;
  } while (!file.Eof());
  set.LastRow = row - 1;
}

void TidyModel(BoreHoleSet& set, MainForm& form, const std::array<const char*, 4>& defaultNames) {
  for (long r = 0; r <= set.LastRow; ++r) {
    for (int item = 0; item <= 2; ++item) {
      for (int hole = 1; hole <= 4; ++hole) {
        std::string cell = DropPrefix(set.ModelCell(0, hole, item, r));
        if (Right(cell, 1) == "*" || Left(cell, 1) == "*") cell = "9999";
        set.ModelCell(0, hole, item, r) = cell;
      }
    }
  }
  for (long r = 0; r <= set.LastRow; ++r) {
    set.TieCell(0, r) = Trim(set.TieCell(0, r));
    for (int hole = 1; hole <= 4; ++hole) {
      for (int item = 0; item <= 2; ++item)
        set.ModelCell(0, hole, item, r) = Trim(set.ModelCell(0, hole, item, r));
    }
    set.TieCell(1, r) = Trim(set.TieCell(1, r));
  }
  set.ModelCell.ReDimPreserve(set.LastRow);
  set.TieCell.ReDimPreserve(set.LastRow);
  form.ProgressBar1.Min = 0;
  form.ProgressBar1.Value = 0;
  form.ProgressBar1.Max = static_cast<float>(set.LastRow) * 8;
  form.ProgressBar1.Visible = true;
  Screen.SetMousePointer(11);

  for (int hole = 1; hole <= 4; ++hole) set.HoleName(hole) = defaultNames[hole - 1];
  for (int hole = 1; hole <= 4; ++hole) ReadHoleHeader(set, form, hole);

  for (int column = 0; column <= 1; ++column) {
    for (long r = 0; r <= set.LastRow; ++r) {
      std::string cell = Trim(DropPrefix(set.TieCell(column, r)));
      if (cell.empty() || cell == "---") cell = "9999";
      set.TieCell(column, r) = cell;
    }
  }
}

void SweepSections(BoreHoleSet& set, MainForm& form) {
  set.SectionName.Dim({{0, 4}, {0, 500}});
  set.SectionTopRow.Dim({{0, 4}, {0, 500}});
  set.SectionBottomRow.Dim({{0, 4}, {0, 500}});
  for (int hole = 1; hole <= 4; ++hole) {
    set.SectionCount(hole) = 0;
    for (long r = 1; r <= set.LastRow; ++r) {
      const std::string& label = set.ModelCell(0, hole, 0, r);
      if (IsSectionTop(label)) {
        ++set.SectionCount(hole);
        set.SectionName(hole, set.SectionCount(hole)) = SectionFromLabel(label);
        set.SectionTopRow(hole, set.SectionCount(hole)) = static_cast<int>(r);
      } else if (IsSectionBottom(label)) {
        set.SectionBottomRow(hole, set.SectionCount(hole)) = static_cast<int>(r);
      }
      form.ProgressBar1.Value = form.ProgressBar1.Value + 1;
    }
  }
}

void SweepModelDepths(BoreHoleSet& set, MainForm& form) {
  // Read without writing, so that the file's cells keep the revision that the
  // lookups have read them at.
  const auto& model = std::as_const(set.ModelCell);
  const auto& ties = std::as_const(set.TieCell);
  for (int hole = 1; hole <= 4; ++hole) {
    set.SectionCount(hole) = 0;
    for (long r = 1; r <= set.LastRow; ++r) {
      if (IsSectionTop(model(0, hole, 0, r))) ++set.SectionCount(hole);
      const std::string psp = model(0, hole, 1, r);
      if (Val(Right(psp, 4)) != 9999 && psp != "---") {
        set.ModelCell(1, hole, 2, r) =
            CompositeFromTrinity(set, hole, set.SectionCount(hole), CSng(Val(psp))).ToText();
        set.ModelCell(1, hole, 1, r) = psp;
      } else {
        set.ModelCell(1, hole, 2, r) = "9999";
      }
      // The tie itself wins over the computed value; a PSP that is no number fails here.
      const bool pspGiven = CDbl(psp) != 9999;
      const bool cdGiven = CDbl(ties(1, r)) != 9999;
      if (pspGiven && cdGiven && !ties(1, r).empty()) set.ModelCell(1, hole, 2, r) = ties(1, r);
      form.ProgressBar1.Value = form.ProgressBar1.Value + 1;
    }
  }
  int largest = 0;
  for (int hole = 1; hole <= 4; ++hole) largest = std::max<int>(largest, set.SectionCount(hole));
  set.SectionName.ReDimPreserve(largest);
  set.SectionTopRow.ReDimPreserve(largest);
  set.SectionBottomRow.ReDimPreserve(largest);
  set.DeepestBottom = 0;
  for (int hole = 1; hole <= 4; ++hole) {
    set.CoreBottom(hole) =
        CSng(Val(set.ModelCell(1, hole, 2, set.SectionBottomRow(hole, set.SectionCount(hole)))));
  }
  for (int hole = 1; hole <= 4; ++hole) {
    if (set.CoreBottom(hole) != 9999 && set.CoreBottom(hole) > set.DeepestBottom)
      set.DeepestBottom = set.CoreBottom(hole);
  }
  form.Slider1.Max = static_cast<long>(Round(set.DeepestBottom - 0.5, 0));
}

void FrmMain::Command1_Click() {
  bool fileOpen = false;
  try {
    FieldReader file = OpenModelFile(masterSet, *this, frmVersion->Label2(1), fileOpen);
    ReadMasterRows(masterSet, file);
    TidyModel(masterSet, *this, kMasterHoleNames);
    SweepSections(masterSet, *this);
    SweepModelDepths(masterSet, *this);
    OpenFormForWork(masterSet, *this);
  } catch (const RuntimeFailure&) {
    ResetProgress(*this);
    if (fileOpen) ShowFormatError();
  }
}

}  // namespace ostraline
