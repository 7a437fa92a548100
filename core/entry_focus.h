#pragma once
// Which entry has the user's attention, and the pointer line to it.

namespace ostraline {

class MainForm;
class TextBox;

// The small pointer line Line2 runs from the middle of the columns to the box.
void PointLine2At(MainForm& form, const TextBox& box);
// The texts the boxes go back to when a horizon is refused.
void SaveTargetTexts(MainForm& form, bool alwaysEfd);

}  // namespace ostraline
