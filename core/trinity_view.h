#pragma once
// The view and the composite depth of the Holy trinity shown in the form.

namespace ostraline {

// Sets the view of the columns to the trinity in Combo1, Combo2/Combo5 and
// Text1, and redraws.
void SearchCoreTop();
// The composite depth of the trinity, into Label1(8) and Text2.
void GetCompositDepth();

}  // namespace ostraline
