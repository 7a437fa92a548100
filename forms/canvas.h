#pragma once
// Picture boxes: a user scale and two layers of recorded drawing operations,
// the committed picture and what was drawn since. Each operation is kept in
// the surface's own twips, converted with the scale in force when it was
// drawn, so that a later change of scale leaves it in place.
#include <memory>
#include <string>
#include <vector>

#include "forms/controls.h"

namespace ostraline {

enum class DrawKind { Line, Box, Circle, Text, Raster };

// A picture read from a file; the desktop decodes the pixels itself.
struct RasterImage {
  std::string path;
  int widthPixels = 0;
  int heightPixels = 0;
};

struct DrawOp {
  DrawKind kind = DrawKind::Line;
  // In twips from the surface's top left corner. A circle's centre is (x1, y1).
  float x1 = 0, y1 = 0, x2 = 0, y2 = 0;
  float radius = 0;  // twips
  long colour = 0;
  int drawWidth = 1;  // pixels
  bool filled = false;
  long fillColour = 0;
  float fontSize = 8;
  std::string text;
  std::shared_ptr<const RasterImage> raster;
  // The same place in the user scale of the moment, for tests and tool tips.
  float ux1 = 0, uy1 = 0, ux2 = 0, uy2 = 0, uradius = 0;
};

struct Picture {
  float width = 0;   // twips
  float height = 0;  // twips
  long backColour = kWhite;
  bool empty = true;
  std::vector<DrawOp> ops;
};

// A fixed text-size model: Arial's advance per point, and the line advance.
struct TextMetrics {
  static float LineAdvance(float fontSize) { return fontSize * 20.0f * 1.15f; }
  static float TextWidth(const std::string& text, float fontSize) {
    return static_cast<float>(text.size()) * fontSize * 20.0f * 0.55f;
  }
};

class PictureBox : public Control {
 public:
  PictureBox(Form& form, std::string name, int index = -1);

  Property<float> ScaleLeft{this, "ScaleLeft", 0};
  Property<float> ScaleTop{this, "ScaleTop", 0};
  Property<float> ScaleWidth{this, "ScaleWidth", 0};
  Property<float> ScaleHeight{this, "ScaleHeight", 0};
  Property<int> BorderStyle{this, "BorderStyle", 1};  // 0 none, 1 fixed single
  Property<bool> AutoRedraw{this, "AutoRedraw", true};

  float CurrentX = 0;
  float CurrentY = 0;
  long FillColor = kBlack;
  int FillStyle = 1;  // 0 solid, 1 transparent
  int DrawWidth = 1;

  // Clears the working layer: the surface shows its Picture again.
  void Cls();
  void Line(float x1, float y1, float x2, float y2, long colour);
  // The BF mode: a rectangle with these opposite corners, filled solid.
  void LineBF(float x1, float y1, float x2, float y2, long colour);
  void Circle(float x, float y, float radius, long colour);
  void Print(const std::string& text);
  void Print(float number);
  void Print(double number);
  void Print(int number);
  void Refresh();

  // What the surface now shows, base and working layer together.
  Picture Image() const;
  const Picture& GetPicture() const { return picture_; }
  // Picture = Image, or a picture from a file.
  void SetPicture(Picture picture);
  void CommitImage() { SetPicture(Image()); }

  const std::vector<DrawOp>& BaseOps() const { return picture_.ops; }
  const std::vector<DrawOp>& WorkingOps() const { return working_; }
  // Whether the working layer hides the committed picture entirely.
  bool WorkingCoversBase() const { return covers_; }

  float InnerWidth() const;
  float InnerHeight() const;
  // Scale to twips and back.
  float ToTwipsX(float x) const;
  float ToTwipsY(float y) const;
  float FromTwipsX(float twips) const;
  float FromTwipsY(float twips) const;

  // Bumped by every change of what the surface shows.
  unsigned long Revision() const { return revision_; }

 protected:
  void Written(std::string_view name, bool changed) override;

 private:
  void Record(DrawOp&& op);
  // A line or a box between two points of the scale.
  DrawOp Segment(DrawKind kind, float x1, float y1, float x2, float y2, long colour) const;
  float ScaleW() const;
  float ScaleH() const;

  Picture picture_;
  std::vector<DrawOp> working_;
  bool covers_ = false;
  bool userScale_ = false;
  unsigned long revision_ = 0;
};

}  // namespace ostraline
