#pragma once
// The event layers of a set of bore holes on its composite scale.
#include <functional>
#include <vector>

#include "core/bore_hole_set.h"

namespace ostraline {

class MainForm;
class FieldReader;
class FrmVersion;
class Control;

// What a form adds to the import of its event list: after the file is open,
// the controls it opens, how its model takes the layers, and a last step.
struct EventImportSteps {
  std::function<void()> fileOpened;
  std::vector<Control*> opened;
  std::function<void()> placeModel;
  std::function<void()> finish;
};
// The event list through the form's dialog, its version on the set's version
// form; a failure shows the format error and leaves the set without layers.
void ImportEventList(BoreHoleSet& set, MainForm& form, FrmVersion& versions,
                     const EventImportSteps& steps);

// The records of the list, five text fields each, the header in row 0.
void ReadEventList(BoreHoleSet& set, FieldReader& file);
// The layers' tables for the rows read.
void DimensionLayerTables(BoreHoleSet& set);
// The EFD box and its labels, opened or closed.
void SetEfdControlsEnabled(MainForm& form, bool enabled);

// The layers' composite depths from the event list, sorted by their tops and
// merged where they overlap, and their EFDs; the form shows the EFD of its
// target and the progress of the sort.
void CombineAndSortEvents(BoreHoleSet& set, MainForm& form);

}  // namespace ostraline
