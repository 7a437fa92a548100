#include "forms/picture_svg.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>

#include "forms/picture_geometry.h"

namespace ostraline {
namespace {

// Arial's ascent (1854 of its 2048 units), which Liberation Sans shares: the
// vector copy cannot measure the font, so it places the baseline by design.
constexpr double kAscentPerPixel = 1854.0 / 2048.0;

// The bitmap's font engine hints the program's font to whole pixels (7
// points, 9.33 pixels at 96 to the inch, print 9 pixels high): the same
// size here keeps text as wide and its baseline where the bitmap has them.
double FontPixels(float points) {
  return std::max(1.0, std::round(points * 96.0 / 72.0));
}
constexpr const char* kFontFamily = "Arial, 'Liberation Sans', Helvetica, sans-serif";

// Locale-free, with no more digits than a thousandth of a pixel needs.
std::string Number(double value) {
  char buffer[32];
  const auto result =
      std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed, 3);
  std::string text(buffer, result.ptr);
  text.erase(text.find_last_not_of('0') + 1);
  if (text.back() == '.') text.pop_back();
  return text == "-0" ? "0" : text;
}

std::string Colour(long colour) {
  char buffer[8];
  std::snprintf(buffer, sizeof buffer, "#%02x%02x%02x", RedOf(colour), GreenOf(colour),
                BlueOf(colour));
  return buffer;
}

// The program's texts are Latin-1 bytes: UTF-8 here, with XML's own
// characters as entities and the control characters XML has no room for
// left out.
std::string XmlText(const std::string& text) {
  std::string out;
  for (const char byte : text) {
    const auto c = static_cast<unsigned char>(byte);
    switch (c) {
      case '&':
        out += "&amp;";
        break;
      case '<':
        out += "&lt;";
        break;
      case '>':
        out += "&gt;";
        break;
      case '"':
        out += "&quot;";
        break;
      case '\'':
        out += "&apos;";
        break;
      default:
        if (c >= 0x80) {
          out += static_cast<char>(0xC0 | (c >> 6));
          out += static_cast<char>(0x80 | (c & 0x3F));
        } else if (c >= 0x20 || c == '\t') {
          out += byte;
        }
    }
  }
  return out;
}

class SvgWriter {
 public:
  explicit SvgWriter(std::string& out) : out_(out) {}

  void Op(const DrawOp& op) {
    switch (op.kind) {
      case DrawKind::Box:
        Rect(grid_.Box(op), op.fillColour);
        break;
      case DrawKind::Line:
        Line(op);
        break;
      case DrawKind::Circle:
        Circle(op);
        break;
      case DrawKind::Text:
        Text(op);
        break;
      case DrawKind::Raster:
        break;
    }
  }

  void Rect(const PixelBounds& rect, long colour) {
    out_ += "<rect x=\"" + Number(rect.left) + "\" y=\"" + Number(rect.top) + "\" width=\"" +
            Number(rect.right - rect.left) + "\" height=\"" + Number(rect.bottom - rect.top) +
            "\" fill=\"" + Colour(colour) + "\" shape-rendering=\"crispEdges\"/>\n";
  }

 private:
  void Line(const DrawOp& op) {
    if (const std::optional<PixelBounds> pixels = grid_.StraightLine(op)) {
      Rect(*pixels, op.colour);
      return;
    }
    const auto [from, to] = grid_.LineEnds(op);
    out_ += "<line x1=\"" + Number(from.x) + "\" y1=\"" + Number(from.y) + "\" x2=\"" +
            Number(to.x) + "\" y2=\"" + Number(to.y) + "\" stroke=\"" + Colour(op.colour) +
            "\" stroke-width=\"" + Pen(op) + "\" stroke-linecap=\"round\"/>\n";
  }

  void Circle(const DrawOp& op) {
    const PixelPoint centre = grid_.CircleCentre(op);
    out_ += "<circle cx=\"" + Number(centre.x) + "\" cy=\"" + Number(centre.y) + "\" r=\"" +
            Number(TwipsToPixels(op.radius)) + "\" fill=\"" +
            (op.filled ? Colour(op.fillColour) : "none") + "\" stroke=\"" + Colour(op.colour) +
            "\" stroke-width=\"" + Pen(op) + "\"/>\n";
  }

  void Text(const DrawOp& op) {
    const double size = FontPixels(op.fontSize);
    const PixelPoint origin = grid_.TextOrigin(op, size * kAscentPerPixel);
    out_ += "<text x=\"" + Number(origin.x) + "\" y=\"" + Number(origin.y) + "\" font-size=\"" +
            Number(size) + "\" fill=\"" + Colour(op.colour) + "\" xml:space=\"preserve\">" +
            XmlText(op.text) + "</text>\n";
  }

  // A pen of no width draws one pixel wide, as a cosmetic pen does.
  static std::string Pen(const DrawOp& op) { return Number(std::max(1, op.drawWidth)); }

  std::string& out_;
  const PixelGrid grid_;
};

}  // namespace

std::string PictureSvg(const Picture& picture) {
  const int width = PicturePixels(picture.width, 1);
  const int height = PicturePixels(picture.height, 1);
  const std::string w = std::to_string(width);
  const std::string h = std::to_string(height);
  std::string out =
      "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"no\"?>\n"
      "<svg xmlns=\"http://www.w3.org/2000/svg\" version=\"1.1\" width=\"" +
      w + "px\" height=\"" + h + "px\" viewBox=\"0 0 " + w + " " + h + "\">\n<g font-family=\"" +
      kFontFamily + "\">\n";
  SvgWriter writer(out);
  writer.Rect({0, 0, static_cast<double>(width), static_cast<double>(height)}, picture.backColour);
  for (const DrawOp& op : picture.ops) writer.Op(op);
  out += "</g>\n</svg>\n";
  return out;
}

}  // namespace ostraline
