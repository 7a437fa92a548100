#pragma once
// The program's font is Arial throughout; Liberation Sans has its metrics.
#include <QFont>

class QPaintDevice;

namespace ostraline {

// The font at a size in points, sized as the twips layout expects it
// (96 pixels to the inch) on a device of any logical resolution.
QFont ProgramFont(double points, const QPaintDevice& device);
// The same for the application's default font, on the primary screen.
QFont ProgramFont(double points);

}  // namespace ostraline
