#include "forms/main_form.h"

#include <vector>

namespace ostraline {
namespace {

constexpr float kColumnTop = 240;
constexpr float kColumnHeight = 8775;
constexpr int kSpans[] = {20, 50, 100, 200, 500, 1000, 2000, 5000, 9999};
constexpr const char* kSpanCaptions[] = {"20 cm", "50 cm", "1 m",  "2 m",       "5 m",
                                         "10 m",  "20 m",  "50 m", "Whole core"};
constexpr const char* kDigitCaptions[] = {"0", "0.1", "0.01", "0.001", "0.0001"};

template <class Captioned>
void SetCaption(Captioned& c, const char* text) {
  c.Caption.SetQuietly(text);
}

}  // namespace

MainForm::MainForm(const char* name, const char* caption,
                   const std::array<const char*, 4>& holeNames, bool isDuo)
    : Form(name, caption), isDuo_(isDuo) {
  Layout(holeNames);
  BuildMenus(holeNames);
}

void MainForm::Layout(const std::array<const char*, 4>& holeNames) {
  Left.SetQuietly(0);
  Top.SetQuietly(0);
  Height.SetQuietly(11055);

  SetCaption(Frame4, " Import ");
  Frame4.Place(360, 120, 2415, 2235);
  CommandButton* imports[] = {&Command1, &Command3, &Command4, &Command5, &Command2};
  const char* importCaptions[] = {"Correlation model", "List of event layers", "Age-depth model",
                                  "Varve counts", "Convert from data file"};
  for (int i = 0; i < 5; ++i) {
    SetCaption(*imports[i], importCaptions[i]);
    imports[i]->SetContainer(&Frame4);
    imports[i]->Place(120, 260 + 390.0f * static_cast<float>(i), 2175, 345);
  }
  ProgressBar1.Place(360, 10020, 2415, 240);
  ProgressBar1.Visible.SetQuietly(false);

  SetCaption(Frame5, " Holy trinity ");
  Frame5.Place(360, 2400, 2415, 1815);
  for (int i = 0; i <= 11; ++i) Label1.Add(i);
  SetCaption(Label1(0), "Composite");
  Label1(0).Place(8400, 20, 975, 210);
  for (int h = 1; h <= 4; ++h) {
    Label1(h).Caption.SetQuietly(std::string("Bore hole ") + holeNames[h - 1]);
  }
  Label1(1).Place(3120, 20, 975, 210);
  Label1(2).Place(4260, 20, 975, 210);
  Label1(3).Place(5400, 20, 975, 210);
  Label1(4).Place(6560, 20, 975, 210);
  for (int i = 0; i <= 4; ++i) Label1(i).Alignment.SetQuietly(2);
  SetCaption(Label1(5), "Bore hole");
  Label1(5).SetContainer(&Frame5);
  Label1(5).Place(120, 330, 1000, 255);
  Combo1.SetContainer(&Frame5);
  Combo1.Place(1320, 280, 975, 315);
  SetCaption(Label1(11), "Section");
  Label1(11).SetContainer(&Frame5);
  Label1(11).Place(120, 750, 700, 255);
  Combo2.SetContainer(&Frame5);
  Combo2.Place(840, 700, 615, 315);
  Combo5.SetContainer(&Frame5);
  Combo5.Place(1500, 700, 795, 315);
  SetCaption(Label1(6), "Defined position (PSP)");
  Label1(6).SetContainer(&Frame5);
  Label1(6).Place(120, 1110, 2175, 255);
  // The PSP box stands on the form itself, so that the pointer line meets it.
  Text1.Place(1440, 3720, 1095, 285);
  // The boxes' design texts are those Form_Load writes, so that its writes run nothing.
  Text1.Text.SetQuietly("0");
  SetCaption(Label1(7), "cm");
  Label1(7).Place(2580, 4590, 300, 255);
  Label1(8).Place(600, 4860, 800, 255);
  Label1(8).Visible.SetQuietly(false);
  SetCaption(Label1(9), "cm");
  Label1(9).Place(2580, 5190, 300, 255);
  Label1(10).Place(600, 5460, 800, 255);
  Label1(10).Visible.SetQuietly(false);

  SetCaption(Label2, "Composite depth");
  Label2.Place(600, 4320, 2175, 255);
  Text2.Place(1440, 4560, 1095, 285);
  Text2.Text.SetQuietly("---");
  SetCaption(Label3, "Event free depth (EFD)");
  Label3.Place(600, 4920, 2175, 255);
  Text3.Place(1440, 5160, 1095, 285);
  SetCaption(Label7, "Age (unspecified unit)");
  Label7.Place(600, 5760, 2175, 255);
  Text4.Place(1440, 6000, 1095, 285);
  SetCaption(Label8, "Error:  --- ");
  Label8.Place(600, 6300, 2175, 390);  // two lines: the errors with their levels
  SetCaption(Label9, "(Interpolated by EFD)");
  Label9.Place(600, 6660, 2175, 210);
  Label4.Place(600, 11640, 2175, 255);
  Label10.Place(600, 11880, 2175, 255);

  for (int i = 0; i <= 2; ++i) Option1.Add(i);
  SetCaption(Option1(0), "Type-in value");
  // One row each: side by side, neither caption fits its half.
  Option1(0).Place(360, 6870, 2415, 225);
  SetCaption(Option1(2), "Convert from data file");
  Option1(2).Place(360, 7090, 2415, 225);

  Frame2.Place(360, 7320, 2415, 2655);
  SetCaption(Label11, "Vertical scale for drawing");
  Label11.SetContainer(&Frame2);
  Label11.Place(120, 240, 2175, 255);
  for (int i = 0; i <= 3; ++i) {
    Option2.Add(i);
    Option2(i).SetContainer(&Frame2);
  }
  SetCaption(Option2(0), "Drilling depth");
  Option2(0).Place(240, 2760, 2055, 255);  // below the frame's visible part
  SetCaption(Option2(1), "Composite depth");
  Option2(1).Place(240, 540, 2055, 255);
  SetCaption(Option2(2), "Event free depth (EFD)");
  Option2(2).Place(240, 840, 2055, 255);
  SetCaption(Option2(3), "Age");
  Option2(3).Place(240, 1140, 2055, 255);
  SetCaption(Frame3, "Extrapolation method:");
  Frame3.SetContainer(&Frame2);
  Frame3.Place(120, 1500, 2175, 1035);
  for (int i = 0; i <= 1; ++i) {
    Option4.Add(i);
    Option4(i).SetContainer(&Frame3);
  }
  SetCaption(Option4(0), "Proportional");
  Option4(0).Place(120, 300, 1935, 255);
  Option4(0).Value.SetQuietly(true);
  SetCaption(Option4(1), "1:1");
  Option4(1).Place(120, 600, 1935, 255);

  SetCaption(Frame1, "Legacy");
  Frame1.Place(360, 10320, 2415, 1215);  // seen when the window is enlarged
  SetCaption(Option1(1), "Type-in depths");
  Option1(1).SetContainer(&Frame1);
  Option1(1).Place(120, 240, 2175, 255);
  SetCaption(Label5, "Overlapping event layers:");
  Label5.SetContainer(&Frame1);
  Label5.Place(120, 540, 2175, 255);
  for (int i = 0; i <= 1; ++i) {
    Option3.Add(i);
    Option3(i).SetContainer(&Frame1);
  }
  SetCaption(Option3(0), "Intersection");
  Option3(0).Place(120, 840, 1035, 255);
  SetCaption(Option3(1), "Union");
  Option3(1).Place(1200, 840, 975, 255);

  const float centre = kColumnTop + kColumnHeight / 2;
  Line1.Place(0, 0, 0, 0);
  Line1.X1.SetQuietly(3120);
  Line1.X2.SetQuietly(2880);
  Line1.Y1.SetQuietly(centre);
  Line1.Y2.SetQuietly(centre);
  Line2.Add(0);
  Line2.Add(1);
  Line2(0).X1.SetQuietly(2880);
  Line2(0).X2.SetQuietly(2880);
  Line2(0).Y1.SetQuietly(centre);
  Line2(0).Y2.SetQuietly(3840);
  Line2(1).X1.SetQuietly(2880);
  Line2(1).X2.SetQuietly(2520);
  Line2(1).Y1.SetQuietly(3840);
  Line2(1).Y2.SetQuietly(3840);

  const float columnLefts[] = {8400, 3120, 4260, 5400, 6560, 7680};
  for (int i = 0; i <= 5; ++i) {
    PictureBox& column = BoreHole.Add(i);
    column.Place(columnLefts[i], kColumnTop, i == 5 ? 735 : 975, kColumnHeight);
  }
  // The strip has no border, so that its slightly larger scale brings its
  // marks level with those of the framed columns.
  BoreHole(5).BorderStyle = 0;
  BoreHole(5).ScaleLeft = 0;
  BoreHole(5).ScaleWidth = 9.6f;
  Slider1.Place(7590, 120, 255, 9015);

  const float panelLefts[] = {9720, 11460, 13200, 14940, 16680};
  for (int p = 0; p <= 4; ++p) {
    Picture1.Add(p).Place(panelLefts[p], kColumnTop, 1575, kColumnHeight);
    CommandButton& import = Command6.Add(p);
    SetCaption(import, "Import proxy");
    import.Place(panelLefts[p], 0, 1575, 240);
    Text5.Add(p).Place(panelLefts[p], 8760, 780, 285);
    Text6.Add(p).Place(panelLefts[p] + 795, 8760, 780, 285);
    SetCaption(Check1.Add(p), "Ratio");
    Check1(p).Place(panelLefts[p], 9030, 1575, 255);
    Combo3.Add(p).Place(panelLefts[p], 9300, 1575, 315);
    Combo4.Add(p).Place(panelLefts[p], 9630, 1575, 315);
  }
  SetCaption(Command7, "Photo");
  Command7.Place(9720, 9960, 1575, 345);
  Image1.Place(2805, 9600, 285, 285);
  Width.SetQuietly(panelLefts[0] + 120);

  // What the imports open stays shut until then: at start only the model's
  // import takes input.
  std::vector<Control*> closed = {&Label11, &Combo1,   &Text1,      &Text2,  &Text3,
                                  &Text4,   &Label2,   &Label3,     &Label7, &Label8,
                                  &Label9,  &Command2, &BoreHole(5)};
  for (int i = 0; i <= 2; ++i) closed.push_back(&Option1(i));
  for (int i = 5; i <= 11; ++i) closed.push_back(&Label1(i));
  for (Control* control : closed) control->Enabled.SetQuietly(false);
}

void MainForm::BuildMenus(const std::array<const char*, 4>& holeNames) {
  SetCaption(mnuRange, "Range");
  AddMenu(mnuRange);
  SetCaption(mnuLink, "Link range");
  mnuRange.Add(mnuLink);
  SetCaption(mnuRangeBreak, "-");
  mnuRange.Add(mnuRangeBreak);
  for (int i = 0; i < 9; ++i) {
    Menu& entry = mnuCM.Add(kSpans[i]);
    SetCaption(entry, kSpanCaptions[i]);
    mnuRange.Add(entry);
  }

  SetCaption(mnuFont, "Font");
  AddMenu(mnuFont);
  for (int size : {1, 5, 6, 7, 8, 9}) {
    Menu& entry = mnuSize.Add(size);
    entry.Caption.SetQuietly(size == 1 ? std::string("---") : std::to_string(size));
    mnuFont.Add(entry);
  }
  mnuSize(7).Checked.SetQuietly(true);

  SetCaption(mnuTool, "Tool");
  AddMenu(mnuTool);
  SetCaption(mnuCompCopy, "Copy composite column");
  mnuCompCopy.Visible.SetQuietly(false);
  mnuTool.Add(mnuCompCopy);
  SetCaption(break98, "-");
  break98.Visible.SetQuietly(false);
  mnuTool.Add(break98);
  SetCaption(mnuHorizontal, "Horizontal line");
  mnuHorizontal.Checked.SetQuietly(true);
  mnuTool.Add(mnuHorizontal);
  SetCaption(mnuHorizontalBH, "Fixed horizon");
  mnuTool.Add(mnuHorizontalBH);
  SetCaption(mnuShowTiePoints, "Show tie points");
  mnuTool.Add(mnuShowTiePoints);
  SetCaption(mnuShowLabCodes, "Show lab codes");
  mnuTool.Add(mnuShowLabCodes);
  SetCaption(mnuToolBreak1, "-");
  mnuTool.Add(mnuToolBreak1);
  for (int h = 1; h <= 4; ++h) {
    Menu& entry = mnuBH.Add(h);
    entry.Caption.SetQuietly(std::string("Bore hole ") + holeNames[h - 1]);
    mnuTool.Add(entry);
  }
  SetCaption(mnuToolBreak2, "-");
  mnuTool.Add(mnuToolBreak2);
  SetCaption(mnuKX11, "Correlation assist");
  mnuTool.Add(mnuKX11);
  SetCaption(mnuPhoto, "Photos to front");
  mnuTool.Add(mnuPhoto);
  SetCaption(mnuOLDuo, "Open Ostraline Duo");
  mnuOLDuo.Enabled.SetQuietly(false);
  mnuTool.Add(mnuOLDuo);
  SetCaption(mnuAlign, "Aign forms");
  mnuTool.Add(mnuAlign);
  SetCaption(mnuLFDuo, "Link focus to Duo");
  mnuTool.Add(mnuLFDuo);

  SetCaption(mnuPrecision, "Precision");
  mnuPrecision.Enabled.SetQuietly(false);
  AddMenu(mnuPrecision);
  SetCaption(mnuDepthDigits, "Depth");
  mnuPrecision.Add(mnuDepthDigits);
  SetCaption(mnuAgeDigits, "Age");
  mnuPrecision.Add(mnuAgeDigits);
  for (int i = 0; i <= 4; ++i) {
    SetCaption(mnuDepPrec.Add(i), kDigitCaptions[i]);
    mnuDepthDigits.Add(mnuDepPrec(i));
    SetCaption(mnuAgePrec.Add(i), kDigitCaptions[i]);
    mnuAgeDigits.Add(mnuAgePrec(i));
  }
  mnuDepPrec(2).Checked.SetQuietly(true);
  mnuAgePrec(0).Checked.SetQuietly(true);

  SetCaption(mnuInfo, "Info");
  AddMenu(mnuInfo);
  SetCaption(mnuVersion, "Version info");
  mnuInfo.Add(mnuVersion);

  SetCaption(mnuRB, "Bore hole");
  mnuRB.Visible.SetQuietly(false);
  AddMenu(mnuRB);
  SetCaption(mnuDivider, "Open divider");
  mnuRB.Add(mnuDivider);
  SetCaption(mnuCopyCore, "Copy core");
  mnuRB.Add(mnuCopyCore);

  SetCaption(mnuRBdepth, "Scale");
  mnuRBdepth.Visible.SetQuietly(false);
  AddMenu(mnuRBdepth);
  SetCaption(mnuDepth, "Depth");
  mnuDepth.Checked.SetQuietly(true);
  mnuRBdepth.Add(mnuDepth);
  SetCaption(mnuAge, "Age");
  mnuRBdepth.Add(mnuAge);
  SetCaption(mnuRBdepthBreak, "-");
  mnuRBdepth.Add(mnuRBdepthBreak);
  SetCaption(mnuCopyDepth, "Copy scale");
  mnuRBdepth.Add(mnuCopyDepth);

  for (int p = 0; p <= 4; ++p) {
    Menu& popup = mnuPicRB.Add(p);
    SetCaption(popup, "Panel");
    popup.Visible.SetQuietly(false);
    AddMenu(popup);
    SetCaption(mnuFlipH.Add(p), "Flip horizontal");
    SetCaption(mnuLine.Add(p), "Curve");
    SetCaption(mnuMarker.Add(p), "Marker");
    SetCaption(mnuHorizontalN.Add(p), "Horizontal line");
    SetCaption(mnuSmooth.Add(p), "Smoothing");
    SetCaption(mnuFlat3_.Add(p), "3");
    SetCaption(mnuFlat5_.Add(p), "5");
    SetCaption(mnuFlat11_.Add(p), "11");
    SetCaption(mnuFlat208_.Add(p), "208");
    SetCaption(mnuCopy.Add(p), "Copy");
    SetCaption(mnuFilename.Add(p), "File name");
    SetCaption(mnuExport_.Add(p), "Export");
    mnuLine(p).Checked.SetQuietly(true);
    mnuMarker(p).Checked.SetQuietly(true);
    mnuHorizontalN(p).Checked.SetQuietly(true);
    for (Menu* entry :
         {&mnuFlipH(p), &mnuLine(p), &mnuMarker(p), &mnuHorizontalN(p), &mnuSmooth(p)}) {
      popup.Add(*entry);
    }
    for (Menu* entry : {&mnuFlat3_(p), &mnuFlat5_(p), &mnuFlat11_(p), &mnuFlat208_(p)}) {
      mnuSmooth(p).Add(*entry);
    }
    if (p == 0) {
      SetCaption(mnuMulti_0, "Multiple colour");
      mnuMulti_0.Checked.SetQuietly(true);
      popup.Add(mnuMulti_0);
    }
    for (Menu* entry : {&mnuCopy(p), &mnuFilename(p), &mnuExport_(p)}) popup.Add(*entry);
  }
}

}  // namespace ostraline
