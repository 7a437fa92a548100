#pragma once
// What the painters of the core view share: their colours, the band and the
// cross, the text offset of a label, and the numbers read from text cells.
#include <string>

#include "forms/canvas.h"
#include "runtime/checked_int.h"

namespace ostraline {

class MainForm;

constexpr long kGrey = RGB(170, 170, 170);
constexpr long kDarkGrey = RGB(100, 100, 100);
constexpr long kPaleCyan = RGB(220, 255, 255);
constexpr long kLabelGrey = RGB(80, 80, 80);
constexpr long kHorizonGreen = RGB(0, 170, 0);
// Event layers: ordinary ones and tephras; voids are grey with a cross.
constexpr long kEventYellow = RGB(225, 225, 125);
constexpr long kTephraBlue = RGB(150, 150, 255);
// The columns of the bore holes and the composite are 7.6 wide.
constexpr float kColumnWidth = 7.6f;

// A number as a Single for drawing: one beyond the range of a Single becomes
// an infinite depth, which no view contains.
Single AsSingle(double value);
// A text cell as a Single: a cell that holds no number reads as 0.
Single CellNumber(const std::string& cell);

// A filled band across a column.
void PaintBand(PictureBox& column, float upper, float lower, long colour);
// The two dark grey diagonals over a band: nothing was cored there.
void PaintCross(PictureBox& column, float upper, float lower);

// How far a label stands from its mark, in the units of the scale: it shrinks
// as the form grows taller than it was designed, and grows with the span and
// the font. The divisors were tuned for each kind of label.
double LabelOffset(const MainForm& form, double spanDivisor, double fontDivisor);

}  // namespace ostraline
