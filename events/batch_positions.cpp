// Rows given as a position (label, bore hole, section, PSP) to composite depth
// and EFD, each row on its own.
#include <string>

#include "core/depth_conversions.h"
#include "core/hole_lookup.h"
#include "core/project_state.h"
#include "events/batch_conversion.h"
#include "events/batch_state.h"
#include "events/event_free_depth.h"
#include "events/event_state.h"
#include "forms/frm_main.h"
#include "runtime/number_text.h"

namespace ostraline {
namespace {

// A bore hole by its letter or by its long title; every hole is tested, so
// the last that matches wins. The Duo's holes E to H (5 to 8, looked up only
// while DuoOpen) are not converted here: their names and sections live in
// the Duo's tables, which this build does not have, so such a name is unknown.
int HoleNumber(const std::string& name) {
  int hole = 9999;
  for (int j = 1; j <= 4; ++j) {
    if (name == HoleName(j) || name == HoleTitle(j)) hole = j;
  }
  return hole;
}

// The composite depth of a PSP inside its section, the section's top and
// bottom PSP included; 9999 for an unknown hole or section, or a PSP outside.
Variant CompositeInSection(int hole, const std::string& sectionName, double psp) {
  if (hole < 1 || hole > 4) return Integer(9999);
  const int section = SectionOrdinalByName(hole, sectionName);
  if (section == 9999) return Integer(9999);
  const double top = Val(ModelCell(0, hole, 1, SectionTopRow(hole, section)));
  const double bottom = Val(ModelCell(0, hole, 1, SectionBottomRow(hole, section)));
  if (psp < top || psp > bottom) return Integer(9999);
  return CompositeFromTrinity(hole, section, CSng(psp));
}

}  // namespace

bool IsNoValue(const Variant& cell) {
  if (cell.IsEmpty()) return false;
  if (cell.IsText() && !IsNumeric(cell.ToText())) return false;
  const double value = cell.ToDouble();
  return value == 9999 || value == -9999;
}

void ConvertPositionRows(MainForm& form) {
  form.ProgressBar1.Max = static_cast<float>(ConversionRows);
  form.ProgressBar1.Value = 0;
  form.ProgressBar1.Visible = true;
  for (long row = 1; row <= ConversionRows; ++row) {
    form.ProgressBar1.Value = static_cast<float>(row);
    const Variant& psp = ConversionTable(3, row);
    if (IsNoValue(psp)) {
      ConversionTable(4, row) = psp;
    } else {
      ConversionTable(4, row) =
          CompositeInSection(HoleNumber(ConversionTable(1, row).ToText()),
                             ConversionTable(2, row).ToText(), Val(psp.ToText()));
    }
    if (EventListLoaded) {
      const Variant cd = ConversionTable(4, row);
      ConversionTable(5, row) = IsNoValue(cd) ? cd : CDToEFD(CSng(Val(cd.ToText())));
    }
  }
}

}  // namespace ostraline
