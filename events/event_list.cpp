// The list of event layers: its import, the composite depth of each row, the
// sort on the top and the fusion of what overlaps, and the EFD shown for the
// composite depth of the target.
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
namespace {

// Five text fields a record, the header kept in row 0 unread. The table grows
// by one row after each record, so the counter ends one past the last row.
void ReadEventList(FieldReader& file) {
  EventList.Dim({{0, 9}, {0, 1}});
  long rows = 0;
  while (!file.Eof()) {
    for (int column = 1; column <= 5; ++column) EventList(column, rows) = file.ReadText();
    ++rows;
    EventList.ReDimPreserve(rows);
  }
  const long count = rows - 1;
  // A file without even a header would cut the table to no row at all, which
  // the language refuses as a bad subscript.
  if (count < 0) Fail(FailureKind::SubscriptOutOfRange, "event list without a header");
  EventCount = count;
  EventList.ReDimPreserve(count);
}

void DimensionLayerTables() {
  const long count = EventCount;
  EventOrder.Dim({{0, count}});
  EventTop.Dim({{0, 3}, {0, count}});
  EventBottom.Dim({{0, 3}, {0, count}});
}

void SetEfdControlsEnabled(FrmMain& form, bool enabled) {
  for (Control* control : std::initializer_list<Control*>{&form.Label1(9), &form.Label1(10),
                                                          &form.Label3, &form.Text3}) {
    control->Enabled = enabled;
  }
}

// The EFD kept beside the composite depth in the correlation tables.
void StoreModelEfd() {
  for (long r = 0; r <= LastRow; ++r) {
    for (int hole = 1; hole <= 4; ++hole) {
      ModelCell(2, hole, 2, r) = CDToEFD(CSng(Val(ModelCell(1, hole, 2, r)))).ToText();
    }
  }
  for (long r = 0; r <= LastRow; ++r) TieCell(2, r) = CDToEFD(CSng(Val(TieCell(1, r)))).ToText();
}

// The composite depth of one end of a row, kept to four decimals whatever the
// depth precision of the display. Unknown sections give 9999.
Single EventDepth(long row, int positionColumn) {
  const int hole = static_cast<int>(GetBH(EventList(1, row)).ToDouble());
  const int section = SectionOrdinalByName(hole, EventList(2, row));
  const Variant depth =
      CompositeFromTrinity(hole, section, CSng(Val(EventList(positionColumn, row))));
  return CSng(Round(depth.ToDouble(), 4));
}

// Selection sort on the composite top. Among equal tops the first row wins,
// and a top at or above the starting minimum is never chosen, so the row of
// the last choice stays in force for that step.
void SortLayersByTop(ProgressBar& progress) {
  long chosen = 0;
  for (long k = 1; k <= EventCount; ++k) {
    progress.Value = static_cast<float>(k);
    Single minimum = 999999;
    for (long m = k; m <= EventCount; ++m) {
      if (EventTop(1, m) < minimum) {
        minimum = EventTop(1, m);
        chosen = m;
      }
    }
    std::swap(EventTop(1, k), EventTop(1, chosen));
    std::swap(EventBottom(1, k), EventBottom(1, chosen));
    EventOrder(k) = chosen;
  }
}

// Layers that overlap become their union. The fused layer keeps its place to
// meet its new neighbour, so a chain of overlaps collapses into one; the rows
// freed at the end hold -9999. Layers that merely touch stay apart.
void MergeOverlappingLayers() {
  long i = 0;
  do {
    if (EventBottom(1, i + 1) <= EventTop(1, i + 2)) {
      ++i;
    } else {
      if (EventBottom(1, i + 1) < EventBottom(1, i + 2))
        EventBottom(1, i + 1) = EventBottom(1, i + 2);
      for (long r = i + 3; r <= EventCount; ++r) {
        EventTop(1, r - 1) = EventTop(1, r);
        EventBottom(1, r - 1) = EventBottom(1, r);
        EventOrder(r - 1) = EventOrder(r);
      }
      EventTop(1, EventCount) = -9999;
      EventBottom(1, EventCount) = -9999;
      EventOrder(EventCount) = -9999;
      --MergedEventCount;
    }
  } while (i < MergedEventCount - 1);
}

}  // namespace

void FrmMain::Command3_Click() {
  bool fileOpen = false;
  try {
    FieldReader file = OpenDataFile(*this, fileOpen);
    EventListVersion = VersionDate(CommonDialog1.FileName);
    frmVersion->Label2(3).Caption = EventListVersion;
    ReadEventList(file);
    DimensionLayerTables();

    Command3.Enabled = false;
    // The overlap options are opened and never read: the merge always forms the union.
    for (Control* control :
         std::initializer_list<Control*>{&Label5, &Option3(0), &Option3(1), &mnuOLDuo, &mnuAlign}) {
      control->Enabled = true;
    }
    EventListLoaded = true;
    CombineAndSortEvents();

    StoreModelEfd();
    for (long i = 1; i <= MergedEventCount; ++i) {
      EventTop(2, i) = CDToEFD(EventTop(1, i)).ToSingle();
      EventBottom(2, i) = CDToEFD(EventBottom(1, i)).ToSingle();
    }
    DrawLamina();
    Refresh();

    if (Option1(0).Value) {
      SetEfdControlsEnabled(*this, true);
    } else if (Option1(2).Value) {
      SetEfdControlsEnabled(*this, false);
    }
    Command4.Enabled = true;
    Command4.SetFocus();
  } catch (const RuntimeFailure&) {
    ResetProgress(*this);
    if (fileOpen) ShowFormatError();
    Command3.Enabled = true;
    // EventListLoaded stays: a failure in the merge leaves it set, and the
    // conversions then act as if no layer existed.
    EventCount = -9999;
    MergedEventCount = -9999;
  }
}

void FrmMain::CombineAndSortEvents() {
  if (!EventListLoaded) {
    ResetProgress(*this);
    return;
  }
  MergedEventCount = EventCount;
  for (long i = 1; i <= EventCount; ++i) {
    EventTop(1, i) = EventDepth(i, 3);
    EventBottom(1, i) = EventDepth(i, 4);
    EventList(6, i) = Str(EventTop(1, i));
    EventList(7, i) = Str(EventBottom(1, i));
  }
  if (EventCount == 0) {
    Text3.Text = Text2.Text.Get();
    return;
  }
  ProgressBar1.Max = static_cast<float>(EventCount);
  ProgressBar1.Value = 0;
  ProgressBar1.Visible = true;
  Screen.SetMousePointer(11);

  SortLayersByTop(ProgressBar1);
  // A single row has no neighbour to meet: the merge fails on the table's bound.
  MergeOverlappingLayers();

  const std::string shown = CDToEFD(CSng(Val(Label1(8).Caption))).ToText();
  Label1(10).Caption = shown;
  Text3.Text = shown;
  for (long i = 1; i <= EventCount; ++i) {
    EventList(8, i) = CDToEFD(CSng(Val(EventList(6, i)))).ToText();
  }
  for (long i = 1; i <= MergedEventCount; ++i) {
    EventTop(2, i) = CDToEFD(CSng(Val(Str(EventTop(1, i))))).ToSingle();
    EventBottom(2, i) = CDToEFD(CSng(Val(Str(EventBottom(1, i))))).ToSingle();
  }
  ResetProgress(*this);
}

// The road from composite depth to EFD: each write of Label1(8) refreshes the
// EFD box in full digits, and only this write makes Text3 follow Text2.
void FrmMain::Label1_Change(int index) {
  if (index != 8 || !EventListLoaded) return;
  const Single efd = CDToEFD(CSng(Val(Label1(8).Caption))).ToSingle();
  Label1(10).Caption = Str(efd);
  Text3.Text = Str(efd);
}

}  // namespace ostraline
