#pragma once
// The unlabelled ticks of the strip's age scale: one lookup in the age-depth
// model for each, so that a long age range would keep the screen waiting.
#include "core/bore_hole_set.h"
#include "forms/canvas.h"

namespace ostraline {

// The axis of the strip's scales, and the right end of every tick.
constexpr float kStripAxis = 9.0f;

// The composite depth of an age, through its event free depth.
float AgePosition(BoreHoleSet& set, double age);

// A tick from fromX at every step of age from `from` to `to` where the age
// lies below the top of the core, with I as the loop's counter. A long loop
// over a model whose depth rises with the age computes only what can show:
// the ticks inside the strip, one pair for every run of ticks that fall
// within three twips of each other, and the loop's last lookup, whose errors and
// caption the loop leaves behind.
void DrawAgeTicks(BoreHoleSet& set, PictureBox& strip, double from, double to, long step,
                  float fromX);

}  // namespace ostraline
