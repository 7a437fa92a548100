// The first pass of "Convert and Save" over a file of values: column 3 of
// ValueTable takes the EFD (from an age or a composite depth) or the
// composite depth (from an EFD), the scale that the second pass builds on.
#include "core/project_state.h"
#include "events/age_lookup.h"
#include "events/batch_conversion.h"
#include "events/batch_state.h"
#include "events/event_free_depth.h"
#include "forms/frm_main.h"
#include "runtime/number_text.h"

namespace ostraline {

ColumnTitles MakeColumnTitles(const BoreHoleSet& set) {
  return {"Age (age model: version " + set.AgeModelVersion + ")",
          "Composite depth (correlation model: version " + set.ModelVersion + ")",
          "Event free depth (event list: version " + set.EventListVersion + ")"};
}

bool ConvertValuesFirstPass(BoreHoleSet& set, MainForm& form, const ColumnTitles& titles) {
  if (FromKind == kScaleTrinity) return true;
  Variant (*convert)(BoreHoleSet&, Single) = nullptr;
  if (FromKind == kScaleAge) {
    convert = [](BoreHoleSet& s, Single age) -> Variant {
      return Round(GetEFDFromAge(s, age).ToDouble(), DepthPrecision);
    };
  } else if (FromKind == kScaleComposite) {
    convert = CDToEFD;
  } else if (FromKind == kScaleEfd) {
    convert = EFDToCD;
  } else {
    return false;
  }
  ValueTable.SetText(3, 0, FromKind == kScaleEfd ? titles.composite : titles.efd);
  form.ProgressBar1.Max = static_cast<float>(ValueRows);
  for (long row = 1; row <= ValueRows; ++row) {
    form.ProgressBar1.Value = static_cast<float>(row);
    const Variant given = ValueTable(2, row);
    if (const std::optional<Single> value = SingleOfCell(given)) {
      ValueTable.Set(3, row, convert(set, *value));
    } else {
      ValueTable.Set(3, row, given);
    }
  }
  return true;
}

}  // namespace ostraline
