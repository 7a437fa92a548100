// The clipboard's vector copy of a picture: a well-formed standalone SVG
// that places every operation on the bitmap's pixel grid, in its colours,
// with the program's Latin-1 texts escaped and carried over as UTF-8.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "forms/canvas.h"
#include "forms/form.h"
#include "forms/picture_svg.h"
#include "support/xml_elements.h"

namespace ostraline {
namespace {

// A picture box without a border: its inner area is its size in twips.
struct Surface {
  Form form{"frmSvgProbe", "Probe"};
  PictureBox box{form, "Picture1"};
  Surface(float width, float height) {
    box.BorderStyle = 0;
    box.Place(0, 0, width, height);
  }
};

std::vector<XmlElement> Read(const std::string& svg) {
  std::string error;
  std::optional<std::vector<XmlElement>> elements = ReadXmlElements(svg, &error);
  EXPECT_TRUE(elements.has_value()) << error << "\n" << svg;
  return elements.value_or(std::vector<XmlElement>{});
}

// The drawn elements: those inside the document's group, in drawing order.
std::vector<XmlElement> Drawn(const std::vector<XmlElement>& elements) {
  std::vector<XmlElement> drawn;
  for (const XmlElement& element : elements) {
    if (element.name != "svg" && element.name != "g") drawn.push_back(element);
  }
  return drawn;
}

// The element's name and the named attributes as "name a=1 b=2"; a missing
// attribute throws.
std::string Show(const XmlElement& element, const std::vector<std::string>& names) {
  std::string shown = element.name;
  for (const std::string& name : names) shown += " " + name + "=" + element.attributes.at(name);
  return shown;
}

TEST(PictureSvg, ReplaysOperationsOnTheBitmapsPixelGrid) {
  // 100.03 pixels across: the bitmap rounds up to 101. The box's own scale
  // is in twips.
  Surface surface(1500.5f, 750);
  PictureBox& box = surface.box;
  box.BackColor = RGB(240, 250, 255);
  // 10 to 49.83 pixels across, 10 to 40 down: the pixels 10 to 49 and 10 to 40.
  box.LineBF(747.5f, 600, 150, 150, RGB(18, 52, 86));
  // A level line three pixels wide covers the rows either side of its own.
  box.DrawWidth = 3;
  box.Line(30, 315, 1200, 315, RGB(255, 0, 0));
  // A slanted one runs between the centres of its end pixels.
  box.DrawWidth = 2;
  box.Line(150, 600, 600, 150, RGB(0, 128, 0));
  box.DrawWidth = 1;
  box.Circle(750, 375, 300.5f, RGB(0, 0, 255));
  box.FillStyle = 0;
  box.FillColor = RGB(255, 255, 0);
  box.Circle(750, 375, 300.5f, RGB(0, 0, 255));
  Picture picture = box.Image();
  // Photos are decoded by the desktop alone: the vector copy leaves them out.
  DrawOp photo;
  photo.kind = DrawKind::Raster;
  photo.raster = std::make_shared<RasterImage>();
  picture.ops.push_back(photo);

  const std::vector<XmlElement> elements = Read(PictureSvg(picture));
  ASSERT_FALSE(elements.empty());
  EXPECT_EQ(Show(elements.front(), {"xmlns", "version", "width", "height", "viewBox"}),
            "svg xmlns=http://www.w3.org/2000/svg version=1.1 width=101px height=50px "
            "viewBox=0 0 101 50");

  const std::vector<XmlElement> drawn = Drawn(elements);
  ASSERT_EQ(drawn.size(), 6u);
  const std::vector<std::string> rect = {"x", "y", "width", "height", "fill"};
  EXPECT_EQ(Show(drawn[0], rect), "rect x=0 y=0 width=101 height=50 fill=#f0faff");
  EXPECT_EQ(Show(drawn[1], rect), "rect x=10 y=10 width=40 height=31 fill=#123456");
  EXPECT_EQ(Show(drawn[2], rect), "rect x=1 y=20 width=81 height=3 fill=#ff0000");
  EXPECT_EQ(Show(drawn[3], {"x1", "y1", "x2", "y2", "stroke", "stroke-width"}),
            "line x1=10.5 y1=40.5 x2=40.5 y2=10.5 stroke=#008000 stroke-width=2");
  EXPECT_EQ(Show(drawn[4], {"cx", "cy", "r", "fill", "stroke", "stroke-width"}),
            "circle cx=50.5 cy=25.5 r=20.033 fill=none stroke=#0000ff stroke-width=1");
  EXPECT_EQ(drawn[5].attributes.at("fill"), "#ffff00");
}

TEST(PictureSvg, TextKeepsItsCharactersAndHangsFromItsCorner) {
  // A scale of one unit to the pixel.
  Surface surface(3000, 1500);
  PictureBox& box = surface.box;
  box.ScaleWidth = 200;
  box.ScaleHeight = 100;
  box.CurrentX = 20;
  box.CurrentY = 30;
  box.ForeColor = RGB(200, 0, 100);
  box.FontSize = 12;
  // Ampersand, angle brackets, both quotes, a micro sign in Latin-1, two
  // spaces that must not collapse, and a control character XML cannot hold.
  const std::string printed = "Fe & <Ti> \"x\" 'y' \xB5m  \x01z";
  box.Print(printed);
  box.FontSize = 7;
  box.Print(printed);

  const std::string svg = PictureSvg(box.Image());
  const std::vector<XmlElement> drawn = Drawn(Read(svg));
  ASSERT_EQ(drawn.size(), 3u);
  const XmlElement& text = drawn[1];
  EXPECT_EQ(text.text, "Fe & <Ti> \"x\" 'y' \xC2\xB5m  z");
  // 12 points are 16 pixels at 96 to the inch; 7 points print 9 pixels
  // high, as the bitmap's hinted font does.
  EXPECT_EQ(Show(text, {"xml:space", "fill", "font-size", "x"}),
            "text xml:space=preserve fill=#c80064 font-size=16 x=20");
  EXPECT_EQ(drawn[2].attributes.at("font-size"), "9");
  // The corner is at (20, 30): the baseline lies within the first line
  // below it, lower than most of the font's size.
  const double baseline = std::stod(text.attributes.at("y"));
  EXPECT_GT(baseline, 30 + 16 * 0.8);
  EXPECT_LE(baseline, 30 + 16);
  // The family the program prints in, or one of the same metrics.
  bool family = false;
  for (const XmlElement& element : Read(svg)) {
    const auto found = element.attributes.find("font-family");
    family |= found != element.attributes.end() && found->second.find("Arial") == 0;
  }
  EXPECT_TRUE(family);

  // The reader the checks rely on refuses what is not well formed.
  EXPECT_FALSE(ReadXmlElements("<svg><text>a & b</text></svg>"));
  EXPECT_FALSE(ReadXmlElements("<svg><g></svg></g>"));
  EXPECT_FALSE(ReadXmlElements("<svg width=1/>"));
}

}  // namespace
}  // namespace ostraline
