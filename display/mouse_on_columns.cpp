// Pointer moves and clicks on the columns. The Y of a mouse event is already
// a depth on the selected scale, so nothing here converts positions.
#include "display/mouse_on_columns.h"

#include <cmath>
#include <utility>

#include "core/depth_conversions.h"
#include "core/project_state.h"
#include "display/core_columns_rows.h"
#include "display/display_state.h"
#include "display/form_view.h"
#include "display/target_line.h"
#include "duo/depth_map.h"
#include "duo/duo_state.h"
#include "events/age_lookup.h"
#include "events/event_free_depth.h"
#include "events/event_state.h"
#include "forms/frm_divider.h"
#include "forms/frm_main.h"
#include "forms/platform.h"
#include "proxies/proxy_records.h"
#include "runtime/number_text.h"

namespace ostraline {
namespace {

std::string Rounded(double depth) {
  return Str(Round(depth, DepthPrecision));
}

// The hit tests compare squares: 0.2 % of the view span around a row or the centre.
double Tolerance(const BoreHoleSet& set) {
  return static_cast<double>(ViewSpanOf(set)) * 0.002;
}
bool Near(double tolerance, double a, double b) {
  return (a - b) * (a - b) < tolerance * tolerance;
}

void ShowAgePoints(MainForm& form, int index, Single x, Single y) {
  BoreHoleSet& set = SetOf(form);
  for (long row = 1; row <= set.AgeModelCount; ++row) {
    const double depth = Val(set.AgeModel(5, row));
    if (!(std::abs(depth - y) < static_cast<double>(ViewSpanOf(set)) * 0.003)) continue;
    if (index == 0 || x < 1.0f) {
      form.BoreHole(index).ToolTipText = set.AgeModel(1, row) + " (" + Rounded(depth) + " cm)";
    }
  }
}

// The composite column has no rows of its own to name.
void ShowRows(MainForm& form, int index, Single y) {
  const BoreHoleSet& set = SetOf(form);
  if (index < 1 || index > 4) return;
  const ScaleRows& rows = RowsOnScale(set, ColumnScaleOf(set));
  const double tolerance = Tolerance(set);
  for (long row = 1; row <= set.LastRow; ++row) {
    const double depth = rows.holeDepthVal[static_cast<std::size_t>(row) * 4 + (index - 1)];
    if (Near(tolerance, depth, y)) {
      form.BoreHole(index).ToolTipText = RowText(set, index, row);
    }
  }
}

void TakeBrackets(BoreHoleSet& set, int index, Single y) {
  GetPSP(set, index, y);
  const auto& model = std::as_const(set.ModelCell);
  TieAbovePSP = CSng(Val(model(0, index, 1, TieRowAbove)));
  ClickedPSP = TargetPSP;
  TieBelowPSP = CSng(Val(model(0, index, 1, TieRowBelow)));
  TieAboveLabel = model(0, index, 0, TieRowAbove);
  TieBelowLabel = model(0, index, 0, TieRowBelow);
}

void ClickOnBoreHole(MainForm& form, int index, int button, int shift, Single x, Single y) {
  BoreHoleSet& set = SetOf(form);
  SuspendTrinity = button == 2;
  ClickedHole = set.HoleName(index);
  // Raw numbers whatever the scale.
  if (set.CoreBottom(index) < y) {
    set.DrivenBy = 0;
    return;
  }
  if (button == 1) form.Combo1.Text = ClickedHole;
  if (button == 2) {
    SuspendTrinity = true;
    form.Combo1.Text = set.HoleName(index);
    MouseMoveProcedure(set, index, button, shift, x, y);
    if (TieAbovePSP == TieBelowPSP) {  // nothing to divide between
      set.DrivenBy = 0;
      return;
    }
    if (!SuppressPopup) form.PopupMenu(form.mnuRB);
  }
  if (button == 1) {
    SuspendTrinity = false;
    if (ActionCount == 0) {
      ActionCount = 9999;
      form.Text1.Text = Rounded(y);
      ActionCount = 0;
    }
    set.DrivenBy = 9;
    if (form.Option2(1).Value) {
      form.Text2.Text = Rounded(y);
    } else if (form.Option2(2).Value) {
      form.Text3.Text = Rounded(y);
    } else if (form.Option2(3).Value) {
      form.Text4.Text = Rounded(y);
    }
    DividerOf(set).Hide();
  }
  set.DrivenBy = 0;
}

void ClickOnComposite(MainForm& form, int button, Single y) {
  BoreHoleSet& set = SetOf(form);
  set.DrivenBy = 2;
  if (button == 1) {
    if (form.Option2(1).Value) {
      form.Text2.Text = Rounded(y);
    } else if (form.Option2(2).Value) {
      form.Text2.Text = Rounded(EFDToCD(set, y).ToDouble());
    } else if (form.Option2(3).Value) {
      form.Text2.Text = Rounded(EFDToCD(set, GetEFDFromAge(set, y).ToSingle()).ToDouble());
    }
  }
  if (button == 2 && !SuspendTrinity) {
    SuspendTrinity = true;
    form.PopupMenu(form.mnuTool);
  }
  set.DrivenBy = 0;
}

}  // namespace

Single PointerDepth(const BoreHoleSet& set, Single y) {
  return set.IsDuo && DuoScale == 2 ? MasterToDuo(y) : y;
}

namespace {

void MouseDownAtPointer(BoreHoleSet& set, int Index, int Button, int Shift, Single X, Single Y) {
  Single depth = 0;
  try {
    depth = PointerDepth(set, Y);
  } catch (const RuntimeFailure&) {
    // A pointer that the map between the scales cannot place finds no depth.
    return;
  }
  MouseDownProcedure(set, Index, Button, Shift, X, depth);
}

}  // namespace

void MouseMoveProcedure(BoreHoleSet& set, int Index, int /*Button*/, int /*Shift*/, Single X,
                        Single Y) {
  try {
    MainForm& form = MainFormOf(set);
    const Single depth = PointerDepth(set, Y);
    if (depth > set.CoreBottom(Index)) return;
    ShowAgePoints(form, Index, X, depth);
    if (Index == 5) return;
    ShowRows(form, Index, Y);
    if (Near(Tolerance(set), Y,
             form.BoreHole(1).ScaleTop + static_cast<double>(ViewSpanOf(set)) / 2))
      TakeBrackets(set, Index, depth);
  } catch (const RuntimeFailure&) {
    // The pointer moves on; the tool tip keeps what it had.
  }
}

void MouseDownProcedure(BoreHoleSet& set, int Index, int Button, int Shift, Single X, Single Y) {
  try {
    MainForm& form = MainFormOf(set);
    if (DividerOpen) {
      set.DrivenBy = 0;
      return;
    }
    if (Index >= 1 && Index <= 4) {
      ClickOnBoreHole(form, Index, Button, Shift, X, Y);
    } else if (Index == 0) {
      ClickOnComposite(form, Button, Y);
    } else if (Index == 5 && Button == 2) {
      form.PopupMenu(form.mnuRBdepth);
    }
  } catch (const RuntimeFailure&) {
    // A click that finds no depth is dropped without a message.
  }
}

void FrmMain::BoreHole_MouseMove(int index, int button, int shift, float x, float y) {
  BoreHoleSet& set = SetOf(*this);
  SuspendTrinity = false;
  TargetLine(set, y);
  Screen.SetMousePointer(index == 5 ? 0 : 2);
  // The procedure maps the pointer to the set's own scale itself.
  if (!DividerOpen) MouseMoveProcedure(set, index, button, shift, x, y);
}

void FrmMain::BoreHole_MouseDown(int index, int button, int shift, float x, float y) {
  BoreHoleSet& set = SetOf(*this);
  ActionCount = 0;
  CopyHole = index;
  if (index == 0 && button == 2) {
    mnuCompCopy.Visible = true;
    break98.Visible = true;
  }
  if (index == 5 && button == 1) {
    ToggleCompositeColumn(*this);
  } else if (index == 5 && button == 2) {
    PopupMenu(mnuRBdepth);
  } else {
    set.DriveIndex = 5;
    SuppressPopup = true;
    if (button == 2) {
      // The right click acts at the target, not at the pointer, to select
      // the bore hole and the ties around the target.
      Screen.SetMousePointer(0);
      MouseDownProcedure(set, index, 2, shift, x, CSng(Val(Text2.Text)));
    }
    SuppressPopup = false;
    MouseDownAtPointer(set, index, button, shift, x, y);
  }
  mnuCompCopy.Visible = false;
  break98.Visible = false;
}

// A panel without a record ignores the pointer.
void FrmMain::Picture1_MouseMove(int index, int /*button*/, int /*shift*/, float /*x*/, float y) {
  BoreHoleSet& set = SetOf(*this);
  const ProxyRecords& records = ProxiesOf(set);
  if (!records.ProxyLoaded(index)) return;
  Picture1(index).ToolTipText =
      mnuFilename(index).Checked ? records.ProxyFileName(index) : std::string();
  TargetLine(set, y);
  Screen.SetMousePointer(2);
}

void FrmMain::Picture1_MouseDown(int index, int button, int shift, float x, float y) {
  BoreHoleSet& set = SetOf(*this);
  if (button == 2) {
    Screen.SetMousePointer(0);
    PopupMenu(mnuPicRB(index));
  } else if (Screen.MousePointer() != 0) {
    // The cross shows a record under the pointer: the click acts as one on the composite column.
    ActionCount = 0;
    MouseDownAtPointer(set, 0, button, shift, x, y);
  }
  set.DriveIndex = 5;
}

}  // namespace ostraline
