#pragma once
// Steps of the correlation model's import that the form runs after reading
// the file.

#include <array>

#include "core/bore_hole_set.h"
#include "runtime/field_reader.h"

namespace ostraline {

class Label;
class MainForm;

// The model's file opened from the form's dialog, its version shown on the
// version form's label and its name added to the form's caption, and the
// tables dimensioned for a model of up to 5000 rows.
FieldReader OpenModelFile(BoreHoleSet& set, MainForm& form, Label& versionLabel, bool& fileOpen);
// The Duo's layout: every row, the header too, with its four master fields.
void ReadDuoRows(BoreHoleSet& set, FieldReader& file);
// The prefixes dropped, the cells trimmed, the bore holes named by the header.
void TidyModel(BoreHoleSet& set, MainForm& form, const std::array<const char*, 4>& defaultNames);
// The section lists of each bore hole.
void SweepSections(BoreHoleSet& set, MainForm& form);
// The composite depth of every row in every bore hole, and the core bottoms.
void SweepModelDepths(BoreHoleSet& set, MainForm& form);
// The section lists, the controls opened, and the first target.
void OpenFormForWork(BoreHoleSet& set, MainForm& form);

}  // namespace ostraline
