#pragma once
// The progress of a long conversion on a terminal: the main form's progress
// bar, drawn as a line of text that is rewritten a few times a second.
#include <chrono>
#include <cstdio>
#include <string>

#include "forms/form.h"

namespace ostraline::cli {

// Plain text of one refresh: "[#####.....] 412,000 of 1,000,000 rows,
// 610,000 rows/s, 1 s left".
std::string ProgressLine(double done, double total, double seconds);

class ProgressDisplay : public ScreenObserver {
 public:
  // Writes to the terminal `out`; bars of fewer rows than `largeFrom` stay unseen.
  ProgressDisplay(std::FILE* out, double largeFrom);
  ~ProgressDisplay() override;

  void FormLoaded(Form&) override {}
  void FormUnloaded(Form&) override {}
  void FormPropertyChanged(Form&, std::string_view) override {}
  void ControlPropertyChanged(Control& control, std::string_view property) override;
  void SurfaceChanged(Control&, bool) override {}
  void FocusChanged(Control*) override {}
  void PopupMenu(Form&, Menu&) override {}
  // Takes the bar off its line, so that a message can be written there.
  void Clear();

 private:
  using Clock = std::chrono::steady_clock;
  void Draw(double done, double total);

  std::FILE* out_;
  double largeFrom_;
  double total_ = 0;
  // Above any value, so that the first write starts the clock.
  double done_ = 1e300;
  Clock::time_point started_;
  Clock::time_point nextDraw_;
  bool shown_ = false;
};

}  // namespace ostraline::cli
