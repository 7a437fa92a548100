// Copies from the sample project's panels and scale strip: the clipboard
// holds the bitmap as painted and, beside it, the same picture as SVG.
#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>

#include "desktop/demo.h"
#include "desktop/picture_painter.h"
#include "display/scale_strip.h"
#include "forms/frm_main.h"
#include "shell_fixture.h"
#include "support/xml_elements.h"

namespace ostraline {
namespace {

class Clipboard : public ShellTest {};

// The texts a picture prints, in the order it prints them.
std::vector<std::string> Printed(const Picture& picture) {
  std::vector<std::string> texts;
  for (const DrawOp& op : picture.ops) {
    if (op.kind == DrawKind::Text) texts.push_back(op.text);
  }
  return texts;
}

// Checks that the clipboard holds `picture` as a bitmap and as SVG, and
// gives the SVG's elements.
std::vector<XmlElement> ExpectBothCopies(const Picture& picture) {
  const QMimeData* data = QGuiApplication::clipboard()->mimeData();
  EXPECT_NE(data, nullptr);
  if (data == nullptr) return {};
  EXPECT_TRUE(data->hasImage());
  EXPECT_TRUE(data->hasFormat(QStringLiteral("image/svg+xml")));
  const QImage bitmap = qvariant_cast<QImage>(data->imageData());
  EXPECT_EQ(bitmap.convertToFormat(QImage::Format_RGB32), RenderPicture(picture));

  std::string error;
  const std::optional<std::vector<XmlElement>> svg =
      ReadXmlElements(data->data(QStringLiteral("image/svg+xml")).toStdString(), &error);
  EXPECT_TRUE(svg.has_value()) << error;
  if (!svg || svg->empty()) return {};
  EXPECT_EQ(svg->front().attributes.at("width"), std::to_string(bitmap.width()) + "px");
  EXPECT_EQ(svg->front().attributes.at("height"), std::to_string(bitmap.height()) + "px");
  std::vector<std::string> texts;
  for (const XmlElement& element : *svg) {
    if (element.name == "text") texts.push_back(element.text);
  }
  // The sample's labels are plain ASCII: they come over unchanged.
  EXPECT_EQ(texts, Printed(picture));
  return *svg;
}

TEST_F(Clipboard, PanelsAndTheStripCopyAsBitmapAndVectors) {
  frmMain->Show();
  ASSERT_TRUE(ImportSampleProject(*shell, OSTRALINE_SAMPLES));
  FrmMain& form = *frmMain;

  form.mnuCopy_Click(0);
  const Picture& panel = form.Picture1(0).GetPicture();
  const std::vector<XmlElement> panelSvg = ExpectBothCopies(panel);
  int lines = 0;
  for (const XmlElement& element : panelSvg) lines += element.name == "line" ? 1 : 0;
  EXPECT_GT(lines, 10);  // the curve through the record's rows

  // The strip goes over on white, whatever its own colour on the screen.
  PictureBox& strip = form.BoreHole(5);
  const long own = strip.BackColor;
  ASSERT_NE(own, kWhite);
  form.mnuCopyDepth_Click();
  strip.BackColor = kWhite;
  DrawBH5(SetOf(form));
  const Picture onWhite = strip.Image();
  strip.BackColor = own;
  DrawBH5(SetOf(form));
  ASSERT_FALSE(Printed(onWhite).empty());  // the scale's figures
  const std::vector<XmlElement> stripSvg = ExpectBothCopies(onWhite);
  // The last box over the whole picture, which all else is drawn on.
  std::string ground;
  for (const XmlElement& element : stripSvg) {
    if (element.name == "rect" && element.attributes.at("x") == "0" &&
        element.attributes.at("y") == "0" &&
        std::stoi(element.attributes.at("width")) >=
            std::stoi(stripSvg[0].attributes.at("width")) &&
        std::stoi(element.attributes.at("height")) >=
            std::stoi(stripSvg[0].attributes.at("height")))
      ground = element.attributes.at("fill");
  }
  EXPECT_EQ(ground, "#ffffff");
}

}  // namespace
}  // namespace ostraline
