#pragma once
// The few conversions between the control model and Qt: twips and pixels,
// colours held as one Long, and the program's texts.
#include <QColor>
#include <QRect>
#include <QString>
#include <string>

#include "forms/controls.h"
#include "forms/picture_geometry.h"

namespace ostraline {

inline int ToPixels(float twips) {
  return qRound(twips / kTwipsPerPixel);
}
inline float ToTwips(double pixels) {
  return static_cast<float>(pixels) * kTwipsPerPixel;
}

// Left and right edges are rounded on their own, so that neighbours that
// touch in twips touch on the screen.
inline QRect PixelRect(float left, float top, float width, float height) {
  const int x = ToPixels(left);
  const int y = ToPixels(top);
  return QRect(x, y, ToPixels(left + width) - x, ToPixels(top + height) - y);
}

inline QColor ToQColor(long colour) {
  return QColor(RedOf(colour), GreenOf(colour), BlueOf(colour));
}

// The program's texts are single bytes, as in the files it reads: Latin-1
// keeps every byte through a round trip over a widget.
inline QString ToQString(const std::string& text) {
  return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
}
inline std::string FromQString(const QString& text) {
  return text.toLatin1().toStdString();
}

}  // namespace ostraline
