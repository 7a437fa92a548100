// The list of event layers: its import, the composite depth of each row, the
// sort on the top and the fusion of what overlaps, and the EFD shown for the
// composite depth of the target.
#include "events/event_list.h"

#include <initializer_list>
#include <utility>

#include "core/depth_conversions.h"
#include "core/hole_lookup.h"
#include "core/import_pattern.h"
#include "core/project_state.h"
#include "display/core_columns.h"
#include "events/event_free_depth.h"
#include "events/event_state.h"
#include "forms/frm_main.h"
#include "forms/frm_version.h"
#include "forms/platform.h"
#include "runtime/field_reader.h"
#include "runtime/file_names.h"
#include "runtime/number_text.h"

namespace ostraline {

// Five text fields a record, the header kept in row 0 unread. The table grows
// by one row after each record, so the counter ends one past the last row.
void ReadEventList(BoreHoleSet& set, FieldReader& file) {
  set.EventList.Dim({{0, 9}, {0, 1}});
  long rows = 0;
  while (!file.Eof()) {
    for (int column = 1; column <= 5; ++column) set.EventList(column, rows) = file.ReadText();
    ++rows;
    set.EventList.ReDimPreserve(rows);
  }
  const long count = rows - 1;
  // A file without even a header would cut the table to no row at all, which
  // the language refuses as a bad subscript.
  if (count < 0) Fail(FailureKind::SubscriptOutOfRange, "event list without a header");
  set.EventCount = count;
  set.EventList.ReDimPreserve(count);
}

void DimensionLayerTables(BoreHoleSet& set) {
  const long count = set.EventCount;
  // The Duo keeps no EFD of its layers.
  const long lastScale = set.IsDuo ? 1 : 3;
  set.EventOrder.Dim({{0, count}});
  set.EventTop.Dim({{0, lastScale}, {0, count}});
  set.EventBottom.Dim({{0, lastScale}, {0, count}});
}

void SetEfdControlsEnabled(MainForm& form, bool enabled) {
  for (Control* control : std::initializer_list<Control*>{&form.Label1(9), &form.Label1(10),
                                                          &form.Label3, &form.Text3}) {
    control->Enabled = enabled;
  }
}

namespace {

// The EFD kept beside the composite depth in the correlation tables.
void StoreModelEfd(BoreHoleSet& set) {
  for (long r = 0; r <= set.LastRow; ++r) {
    for (int hole = 1; hole <= 4; ++hole) {
      set.ModelCell(2, hole, 2, r) = CDToEFD(set, CSng(Val(set.ModelCell(1, hole, 2, r)))).ToText();
    }
  }
  for (long r = 0; r <= set.LastRow; ++r)
    set.TieCell(2, r) = CDToEFD(set, CSng(Val(set.TieCell(1, r)))).ToText();
}

// The composite depth of one end of a row, kept to four decimals whatever the
// depth precision of the display, the Duo's to that precision. Unknown
// sections give 9999.
Single EventDepth(BoreHoleSet& set, long row, int positionColumn) {
  const int hole = static_cast<int>(GetBH(set, set.EventList(1, row)).ToDouble());
  const int section = SectionOrdinalByName(set, hole, set.EventList(2, row));
  const Variant depth =
      CompositeFromTrinity(set, hole, section, CSng(Val(set.EventList(positionColumn, row))));
  return CSng(Round(depth.ToDouble(), set.IsDuo ? static_cast<int>(DepthPrecision) : 4));
}

// Selection sort on the composite top. Among equal tops the first row wins,
// and a top at or above the starting minimum is never chosen, so the row of
// the last choice stays in force for that step.
void SortLayersByTop(BoreHoleSet& set, ProgressBar& progress) {
  long chosen = 0;
  for (long k = 1; k <= set.EventCount; ++k) {
    progress.Value = static_cast<float>(k);
    Single minimum = 999999;
    for (long m = k; m <= set.EventCount; ++m) {
      if (set.EventTop(1, m) < minimum) {
        minimum = set.EventTop(1, m);
        chosen = m;
      }
    }
    std::swap(set.EventTop(1, k), set.EventTop(1, chosen));
    std::swap(set.EventBottom(1, k), set.EventBottom(1, chosen));
    set.EventOrder(k) = chosen;
  }
}

// Layers that overlap become their union. The fused layer keeps its place to
// meet its new neighbour, so a chain of overlaps collapses into one; the rows
// freed at the end hold -9999. Layers that merely touch stay apart.
void MergeOverlappingLayers(BoreHoleSet& set) {
  long i = 0;
  do {
    if (set.EventBottom(1, i + 1) <= set.EventTop(1, i + 2)) {
      ++i;
    } else {
      if (set.EventBottom(1, i + 1) < set.EventBottom(1, i + 2))
        set.EventBottom(1, i + 1) = set.EventBottom(1, i + 2);
      for (long r = i + 3; r <= set.EventCount; ++r) {
        set.EventTop(1, r - 1) = set.EventTop(1, r);
        set.EventBottom(1, r - 1) = set.EventBottom(1, r);
        set.EventOrder(r - 1) = set.EventOrder(r);
      }
      set.EventTop(1, set.EventCount) = -9999;
      set.EventBottom(1, set.EventCount) = -9999;
      set.EventOrder(set.EventCount) = -9999;
      --set.MergedEventCount;
    }
  } while (i < set.MergedEventCount - 1);
}

}  // namespace

void ImportEventList(BoreHoleSet& set, MainForm& form, FrmVersion& versions,
                     const EventImportSteps& steps) {
  bool fileOpen = false;
  try {
    FieldReader file = OpenDataFile(form, fileOpen);
    if (steps.fileOpened) steps.fileOpened();
    set.EventListVersion = VersionDate(form.CommonDialog1.FileName);
    versions.Label2(3).Caption = set.EventListVersion;
    ReadEventList(set, file);
    DimensionLayerTables(set);

    form.Command3.Enabled = false;
    // The overlap options are opened and never read: the merge always forms the union.
    for (Control* control :
         std::initializer_list<Control*>{&form.Label5, &form.Option3(0), &form.Option3(1)}) {
      control->Enabled = true;
    }
    for (Control* control : steps.opened) control->Enabled = true;
    set.EventListLoaded = true;
    CombineAndSortEvents(set, form);
    steps.placeModel();
    form.Refresh();

    if (form.Option1(0).Value) {
      SetEfdControlsEnabled(form, true);
    } else if (form.Option1(2).Value) {
      SetEfdControlsEnabled(form, false);
    }
    form.Command4.Enabled = true;
    form.Command4.SetFocus();
    if (steps.finish) steps.finish();
  } catch (const RuntimeFailure&) {
    ResetProgress(form);
    if (fileOpen) ShowFormatError();
    form.Command3.Enabled = true;
    // EventListLoaded stays: a failure in the merge leaves it set, and the
    // conversions then act as if no layer existed.
    set.EventCount = -9999;
    set.MergedEventCount = -9999;
  }
}

void FrmMain::Command3_Click() {
  EventImportSteps steps;
  steps.opened = {&mnuOLDuo, &mnuAlign};
  steps.placeModel = [] {
    StoreModelEfd(masterSet);
    for (long i = 1; i <= MergedEventCount; ++i) {
      EventTop(2, i) = CDToEFD(EventTop(1, i)).ToSingle();
      EventBottom(2, i) = CDToEFD(EventBottom(1, i)).ToSingle();
    }
    DrawLamina();
  };
  ImportEventList(masterSet, *this, *frmVersion, steps);
}

void CombineAndSortEvents(BoreHoleSet& set, MainForm& form) {
  if (!set.EventListLoaded) {
    ResetProgress(form);
    return;
  }
  set.MergedEventCount = set.EventCount;
  for (long i = 1; i <= set.EventCount; ++i) {
    set.EventTop(1, i) = EventDepth(set, i, 3);
    set.EventBottom(1, i) = EventDepth(set, i, 4);
    set.EventList(6, i) = Str(set.EventTop(1, i));
    set.EventList(7, i) = Str(set.EventBottom(1, i));
  }
  if (set.EventCount == 0) {
    form.Text3.Text = form.Text2.Text.Get();
    return;
  }
  form.ProgressBar1.Max = static_cast<float>(set.EventCount);
  form.ProgressBar1.Value = 0;
  form.ProgressBar1.Visible = true;
  Screen.SetMousePointer(11);

  SortLayersByTop(set, form.ProgressBar1);
  // A single row has no neighbour to meet: the merge fails on the table's bound.
  MergeOverlappingLayers(set);

  const std::string shown = CDToEFD(set, CSng(Val(form.Label1(8).Caption))).ToText();
  form.Label1(10).Caption = shown;
  form.Text3.Text = shown;
  for (long i = 1; i <= set.EventCount; ++i) {
    set.EventList(8, i) = CDToEFD(set, CSng(Val(set.EventList(6, i)))).ToText();
  }
  for (long i = 1; i <= set.MergedEventCount && !set.IsDuo; ++i) {
    set.EventTop(2, i) = CDToEFD(set, CSng(Val(Str(set.EventTop(1, i))))).ToSingle();
    set.EventBottom(2, i) = CDToEFD(set, CSng(Val(Str(set.EventBottom(1, i))))).ToSingle();
  }
  ResetProgress(form);
}

void FrmMain::CombineAndSortEvents() {
  ostraline::CombineAndSortEvents(SetOf(*this), *this);
}

// The road from composite depth to EFD: each write of Label1(8) refreshes the
// EFD box in full digits, and only this write makes Text3 follow Text2.
void FrmMain::Label1_Change(int index) {
  BoreHoleSet& set = SetOf(*this);
  if (index != 8 || !set.EventListLoaded) return;
  const Single efd = CDToEFD(set, CSng(Val(Label1(8).Caption))).ToSingle();
  Label1(10).Caption = Str(efd);
  Text3.Text = Str(efd);
}

}  // namespace ostraline
