#include "display/core_columns_paint.h"
#include "display/form_view.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <string_view>
#include <system_error>

#include "display/display_state.h"
#include "forms/frm_main.h"
#include "runtime/number_text.h"

namespace ostraline {

Single AsSingle(double value) {
  if (std::fabs(value) > std::numeric_limits<Single>::max()) {
    return value > 0 ? std::numeric_limits<Single>::infinity()
                     : -std::numeric_limits<Single>::infinity();
  }
  return static_cast<Single>(value);
}

namespace {

// Text of a sign, digits and at most one decimal point: the form of nearly
// every depth cell. Val would read it to the same double.
bool IsPlainDecimal(std::string_view text) {
  std::size_t i = !text.empty() && text[0] == '-' ? 1 : 0;
  bool digits = false;
  bool point = false;
  for (; i < text.size(); ++i) {
    const char c = text[i];
    if (c >= '0' && c <= '9') {
      digits = true;
    } else if (c == '.' && !point) {
      point = true;
    } else {
      return false;
    }
  }
  return digits;
}

}  // namespace

// The repaint reads thousands of cells; the plain ones skip Val's general scan.
Single CellNumber(const std::string& cell) {
  if (IsPlainDecimal(cell)) {
    double value = 0;
    const auto [end, error] = std::from_chars(cell.data(), cell.data() + cell.size(), value);
    if (error == std::errc() && end == cell.data() + cell.size()) return AsSingle(value);
  }
  return AsSingle(Val(cell));
}

void PaintBand(PictureBox& column, float upper, float lower, long colour) {
  column.LineBF(0, upper, kColumnWidth, lower, colour);
}

void PaintCross(PictureBox& column, float upper, float lower) {
  column.Line(0, upper, kColumnWidth, lower, kDarkGrey);
  column.Line(0, lower, kColumnWidth, upper, kDarkGrey);
}

double LabelOffset(const MainForm& form, double spanDivisor, double fontDivisor) {
  // The height ratio is a Single, the rest whole numbers divided as Doubles.
  const Single heightRatio = static_cast<Single>(DesignFormHeight) / form.Height.Get();
  return static_cast<double>(heightRatio) * (static_cast<double>(ViewSpanOf(form)) / spanDivisor) *
         (static_cast<double>(LabelFontSize) / fontDivisor);
}

}  // namespace ostraline
