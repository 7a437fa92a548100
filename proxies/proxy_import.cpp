// "Import proxy": a measured record into one of the five panels, its layout
// told from the file itself, and then either drawn at once (a position by
// bore hole, section and PSP) or handed to frmSelect, which asks what the
// record's single position number is.
#include <algorithm>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "core/import_pattern.h"
#include "core/project_state.h"
#include "display/form_view.h"
#include "duo/depth_map.h"
#include "events/event_free_depth.h"
#include "events/event_state.h"
#include "forms/frm2_select.h"
#include "forms/frm_main.h"
#include "forms/frm_select.h"
#include "forms/platform.h"
#include "proxies/proxy_layout.h"
#include "proxies/proxy_panel.h"
#include "proxies/proxy_records.h"
#include "runtime/failure.h"
#include "runtime/number_text.h"

namespace ostraline {
namespace {

// A record given by bore hole, section and PSP keeps its file open until the
// program ends: the file stays locked for writers.
void KeepOpenUntilTheEnd(const std::string& path) {
  static std::vector<std::unique_ptr<std::ifstream>> held;
  held.push_back(std::make_unique<std::ifstream>(path, std::ios::binary));
}

// The file's name without folder and extension, and without a trailing
// "for OL" and the separator before it. Both "\" and "/" separate folders.
// A path with no separator in its last 500 characters fails.
std::string RecordName(const std::string& path) {
  const long length = Len(path);
  for (long back = 1; back <= 500; ++back) {
    const std::string c = Mid(path, length - back + 1, 1);
    if (c != "\\" && c != "/") continue;
    const std::string tail = Right(path, back - 1);
    std::string name = Left(tail, Len(tail) - 4);
    const std::string marker = Right(name, 6);
    if (marker == "for OL" || marker == "for_OL") name = Left(name, Len(name) - 7);
    return name;
  }
  Fail(FailureKind::InvalidProcedureCall, "no folder in the file name");
}

void FillColumnLists(MainForm& form, int p, const ProxyWork& work) {
  ComboBox& numerator = form.Combo3(p);
  ComboBox& denominator = form.Combo4(p);
  numerator.Clear();
  denominator.Clear();
  for (long j = 1; j <= work.columns; ++j) {
    numerator.AddItem(work.HeaderWork(j));
    denominator.AddItem(work.HeaderWork(j));
  }
  denominator.AddItem("1");
  numerator.Text = work.HeaderWork(1);
  denominator.Text = "1";
  // Emptied limits make the drawing take them from the data.
  ProxyAxisEventsOn = false;
  form.Text5(p).Text = "";
  form.Text6(p).Text = "";
  ProxyAxisEventsOn = true;
}

// The panel's tables anew, at the sizes of the data.
void StoreRecord(ProxyRecords& records, int p, const ProxyWork& work) {
  const long rows = work.rows;
  const long columns = work.columns;
  records.ProxyLabel(p).DimUpper(rows);
  records.ProxyDepth(p).Dim({{0, 3}, {0, rows}});
  records.ProxyHeader(p).DimUpper(columns);
  records.ProxyValue(p).Dim({{0, rows}, {0, columns}});
  for (long row = 0; row <= rows; ++row) {
    records.ProxyLabel(p)(row) = work.LabelWork(row);
    records.ProxyDepth(p)(1, row) = work.DepthWork(row);
  }
  for (long j = 0; j <= columns; ++j) records.ProxyHeader(p)(j) = work.HeaderWork(j);
  for (long row = 0; row <= rows; ++row) {
    for (long j = 0; j <= columns; ++j) records.ProxyValue(p)(row, j) = work.ValueWork(j, row);
  }
}

// The EFD of panel 0's record, whichever panel was imported, for as many
// rows as the imported record has columns: with panel 0 empty or shorter,
// the import fails here.
void EfdPass(BoreHoleSet& set, ProxyRecords& records, int p) {
  Table<Single, 2>& depth = records.ProxyDepth(0);
  for (long i = 1; i <= records.ProxyColumnCount(p); ++i) {
    depth(2, i) = set.EventListLoaded ? CDToEFD(set, depth(1, i)).ToSingle() : depth(1, i);
  }
}

void EnablePanelMenus(MainForm& form, int p) {
  for (auto* entries : {&form.mnuFlipH, &form.mnuLine, &form.mnuMarker, &form.mnuSmooth,
                        &form.mnuFlat3_, &form.mnuFlat5_, &form.mnuCopy, &form.mnuHorizontalN,
                        &form.mnuFilename, &form.mnuExport_}) {
    (*entries)(p).Enabled = true;
  }
}

// The head of the file on frmSelect: its first three fields and eight samples.
void PreviewOnSelect(const MainForm& form, FrmSelect& select, const ProxyRecords& records, int p,
                     const ProxyWork& work) {
  select.Label1.Caption = Str(p);
  select.Top = std::max(form.Top.Get() + 15, 15.0f);
  select.Left = std::max(form.Left.Get() + 15, 15.0f);
  select.Text1(0).Text = work.Field(0);
  select.Text2(0).Text = work.Field(1);
  select.Text3(0).Text = work.Field(2);
  const bool oneColumn = records.ProxyColumnCount(p) == 1;
  for (int i = 1; i <= 8; ++i) {
    const std::string depth = Str(records.ProxyDepth(p)(PlotScale, i));
    const std::string second = oneColumn ? "" : Str(records.ProxyValue(p)(i, 2));
    if (records.ProxyHasLabel(p)) {
      select.Text1(i).Text = records.ProxyLabel(p)(i);
      select.Text2(i).Text = depth;
    } else {
      select.Text1(i).Text = depth;
      select.Text2(i).Text = Str(records.ProxyValue(p)(i, 1));
    }
    select.Text3(i).Text = second;
  }
  if (oneColumn && !records.ProxyHasLabel(p)) {
    for (int i = 0; i <= 8; ++i) select.Text3(i).Text = "";
  }
}

}  // namespace

// The Duo's trinity records are placed on the master's composite scale, on
// which its panels stand; a record of plain positions goes to the set's own
// vertical axis dialog.
void FrmMain::Command6_Click(int p) {
  BoreHoleSet& set = SetOf(*this);
  ProxyRecords& records = ProxiesOf(set);
  bool setUp = false;
  try {
    CommonDialog1.CancelError = true;
    CommonDialog1.Filter = "DataFile(*.csv)|*.csv";
    CommonDialog1.ShowOpen();
    const std::string path = CommonDialog1.FileName;
    FieldReader file = FieldReader::Open(path);
    records.ProxyFileName(p) = RecordName(path);

    Refresh();
    ProgressBar1.Max = 100;
    ProgressBar1.Value = 1;
    ProgressBar1.Visible = true;
    Screen.SetMousePointer(11);
    setUp = true;

    ProxyWork work;
    RecogniseLayout(set, file, work);
    records.ProxyColumnCount(p) = static_cast<int>(work.columns);
    records.ProxyHasLabel(p) = work.layout == ProxyLayout::L2 || work.layout == ProxyLayout::L4;
    records.ProxyHasTrinity(p) = work.layout == ProxyLayout::L3 || work.layout == ProxyLayout::L4;
    ReadProxyRows(set, file, work);
    records.ProxyRowCount(p) = work.rows;
    if (records.ProxyHasTrinity(p)) KeepOpenUntilTheEnd(path);

    FillColumnLists(*this, p, work);
    StoreRecord(records, p, work);
    EfdPass(set, records, p);
    records.ProxyLoaded(p) = true;
    EnablePanelMenus(*this, p);
    Enabled = false;
    Screen.SetMousePointer(0);
    PlotScale = ColumnScaleOf(set);
    // A record of fewer than eight rows fails here, with the form disabled.
    PreviewOnSelect(*this, SelectFormOf(set), records, p, work);
    if (records.ProxyHasTrinity(p)) {
      if (set.IsDuo) {
        for (long row = 1; row <= records.ProxyRowCount(p); ++row) {
          Single& depth = records.ProxyDepth(p)(1, row);
          depth = DuoToMaster(depth);
        }
      }
      Picture1(p).BackColor = RGB(255, 255, 255);
      DrawProxy(set, records, p);
      Enabled = true;
    } else {
      SelectFormOf(set).Show();
    }
  } catch (const RuntimeFailure&) {
    if (setUp) ShowFormatError();
    ProgressBar1.Visible = false;
    ProgressBar1.Value = 0;
    Screen.SetMousePointer(0);
  }
}

}  // namespace ostraline
