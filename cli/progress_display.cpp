#include "cli/progress_display.h"

#include <cmath>

#include "forms/controls.h"

namespace ostraline::cli {
namespace {

constexpr auto kRefresh = std::chrono::milliseconds(200);
constexpr int kBarWidth = 24;

// 1234567 as "1,234,567".
std::string Grouped(double value) {
  std::string digits = std::to_string(static_cast<long long>(std::llround(value)));
  for (int at = static_cast<int>(digits.size()) - 3; at > 0; at -= 3) digits.insert(at, ",");
  return digits;
}

}  // namespace

std::string ProgressLine(double done, double total, double seconds) {
  const double share = total > 0 ? std::min(1.0, std::max(0.0, done / total)) : 0;
  const int filled = static_cast<int>(share * kBarWidth);
  std::string line = "[" + std::string(filled, '#') + std::string(kBarWidth - filled, '.') + "] " +
                     Grouped(done) + " of " + Grouped(total) + " rows";
  // A rate needs a moment of measuring.
  if (seconds >= 0.2 && done > 0) {
    const double rate = done / seconds;
    line += ", " + Grouped(rate) + " rows/s, " +
            std::to_string(static_cast<long long>(std::ceil((total - done) / rate))) + " s left";
  }
  return line;
}

ProgressDisplay::ProgressDisplay(std::FILE* out, double largeFrom)
    : out_(out), largeFrom_(largeFrom) {}

ProgressDisplay::~ProgressDisplay() {
  Clear();
}

void ProgressDisplay::ControlPropertyChanged(Control& control, std::string_view property) {
  if (control.Kind() != ControlKind::ProgressBar) return;
  const auto& bar = static_cast<const ProgressBar&>(control);
  if (property == "Max") {
    total_ = bar.Max;
    return;
  }
  if (property != "Value" || total_ < largeFrom_) return;
  // A bar that starts again is the next pass of the conversion, with its own clock.
  if (bar.Value < done_) {
    Clear();
    started_ = Clock::now();
    nextDraw_ = started_;
  }
  done_ = bar.Value;
  const Clock::time_point now = Clock::now();
  if (now < nextDraw_) return;
  nextDraw_ = now + kRefresh;
  Draw(bar.Value, total_);
}

void ProgressDisplay::Draw(double done, double total) {
  const double seconds = std::chrono::duration<double>(Clock::now() - started_).count();
  std::fprintf(out_, "\r%s\033[K", ProgressLine(done, total, seconds).c_str());
  std::fflush(out_);
  shown_ = true;
}

void ProgressDisplay::Clear() {
  if (!shown_) return;
  std::fputs("\r\033[K", out_);
  std::fflush(out_);
  shown_ = false;
}

}  // namespace ostraline::cli
