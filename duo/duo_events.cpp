// The Duo's event list: asked for at the end of its model import, with a
// throbbing reminder until it is imported, and the Duo's model then placed
// on the master's composite scale.
#include <algorithm>
#include <cmath>
#include <string>

#include "core/project_state.h"
#include "duo/depth_map.h"
#include "duo/duo_state.h"
#include "events/copy_to_duo.h"
#include "events/event_list.h"
#include "forms/frm2_main.h"
#include "forms/frm2_version.h"
#include "forms/platform.h"
#include "runtime/number_text.h"

namespace ostraline {
namespace {

constexpr long kReminderInterval = 30;

// The cell keeps the whole single: its text has the digits to read it back.
std::string OnMasterScale(const std::string& duoDepth) {
  return Str(static_cast<double>(DuoToMaster(CSng(Val(duoDepth)))));
}

// Scale 2 of the Duo's model holds each row's depth on the master's scale,
// the bore holes' and, so that the composite column stands with them, the
// ties'.
void PlaceModelOnMasterScale() {
  for (int hole = 1; hole <= 4; ++hole) {
    for (long r = 1; r <= LastRow2; ++r) {
      ModelCell2(2, hole, 2, r) = OnMasterScale(ModelCell2(1, hole, 2, r));
    }
  }
  for (long r = 1; r <= LastRow2; ++r) TieCell2(2, r) = OnMasterScale(TieCell2(1, r));
}

}  // namespace

void Frm2Main::Command3_Click() {
  ClickCommand3(true);
}

void Frm2Main::ClickCommand3(bool silent) {
  if (!silent) {
    const MsgAnswer answer = MsgBox(
        "Ostraline_Duo requires 'List of event layers' for robust synchronisation. Do you "
        "import file now?",
        MsgButtons::YesNo, "Ostraline_Duo");
    if (answer == MsgAnswer::No) {
      Shape1.Visible = true;
      ReminderRed = 255;
      ReminderPhase = 0;
      Timer1.Interval = kReminderInterval;
      Timer1.Enabled = true;
      return;
    }
  }
  EventImportSteps steps;
  steps.fileOpened = [this] {
    Shape1.Visible = false;
    Timer1.Enabled = false;
  };
  steps.placeModel = PlaceModelOnMasterScale;
  steps.finish = CopyAgeModelToDuo;
  ImportEventList(duoSet, *this, *frm2Version, steps);
}

// One beat of the reminder takes about 99 ticks, from a pale to a full red.
void Frm2Main::Timer1_Timer() {
  ReminderPhase += 2;
  if (ReminderPhase > 31416) ReminderPhase = 0;
  const double s = std::sin(static_cast<double>(ReminderPhase) / 31.416);
  const double t = std::clamp((s + 0.7) * 4, -1.0, 1.0);
  ReminderRed = CLng((t + 1) * 25 + 205);
  const long other = CLng(205 - (t + 1) * 102.5);
  Shape1.FillColor = RGB(ReminderRed, other, other);
}

}  // namespace ostraline
