#include "forms/frm_conversion.h"

namespace ostraline {

FrmConversion::FrmConversion(const char* name, const char* caption) : Form(name, caption) {
  Width.SetQuietly(5040);
  Height.SetQuietly(4200);

  constexpr int kCodes[] = {1, 2, 4, 8};
  constexpr const char* kFromCaptions[] = {"Holy trinity", "Compoite depth", "Event free depth",
                                           "Age"};
  constexpr const char* kToCaptions[] = {"Holy trinity", "Composite depth", "Event free depth",
                                         "Age"};
  // The first row leaves room for the note on the trinity's three parts.
  constexpr float kRowTops[] = {300, 900, 1260, 1620};

  Frame1.Caption.SetQuietly(" From ");
  Frame1.Place(120, 120, 2280, 2040);
  Frame2.Caption.SetQuietly(" To ");
  Frame2.Place(2520, 120, 2280, 2040);
  for (int i = 0; i < 4; ++i) {
    OptionButton& from = Option1.Add(kCodes[i]);
    from.Caption.SetQuietly(kFromCaptions[i]);
    from.SetContainer(&Frame1);
    from.Place(120, kRowTops[i], 2040, 255);
    CheckBox& to = Check1.Add(kCodes[i]);
    to.Caption.SetQuietly(kToCaptions[i]);
    to.SetContainer(&Frame2);
    to.Place(120, kRowTops[i], 2040, 255);
  }
  for (Label* note : {&Label1, &Label2}) {
    note->Caption.SetQuietly("(Hole, Section, PSP)");
    note->Place(360, 570, 1800, 255);
  }
  Label1.SetContainer(&Frame1);
  Label2.SetContainer(&Frame2);

  Command1.Caption.SetQuietly("Convert and Save");
  Command1.Place(1500, 2340, 2040, 375);
  ProgressBar1.Place(120, 2880, 4680, 240);

  Option1.ForEach([this](OptionButton& option) {
    const int index = option.Index();
    option.Click = [this, index] { Option1_Click(index); };
  });
  Check1.ForEach([this](CheckBox& box) {
    const int index = box.Index();
    box.Click = [this, index] { Check1_Click(index); };
  });
  Command1.Click = [this] { Command1_Click(); };
}

}  // namespace ostraline
