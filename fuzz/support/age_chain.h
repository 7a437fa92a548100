#pragma once
// The imports ahead of the age-depth model and the varve counts, made once per
// process from fixed files; each input then starts from the state they left,
// with a platform of its own so that no queued answer outlives its input.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>

#include "core/project_state.h"
#include "events/event_state.h"
#include "forms/frm_main.h"
#include "fuzz/support/fuzz_support.h"

namespace ostraline::fuzz {

// Bore hole A: ties PSP 10 at 110 cm and 50 at 160 in section 01, 20 at 230
// and 60 at 270 in section 02; its bottom lies at 300 cm.
inline constexpr std::string_view kChainModel =
    "'Splice,'Bore hole A (A),'PSP,'Drilling depth,'Bore hole B (B),'PSP,'Drilling depth,"
    "'Bore hole C (C),'PSP,'Drilling depth,'Bore hole D (D),'PSP,'Drilling depth,"
    "'Composite depth\r\n"
    "'A,'A-01-top,'0,'100,'*,'*,'*,'*,'*,'*,'*,'*,'*,'\r\n"
    "'A,'L1,'10,'110,'*,'*,'*,'*,'*,'*,'*,'*,'*,'110\r\n"
    "'A,'L2,'50,'150,'*,'*,'*,'*,'*,'*,'*,'*,'*,'160\r\n"
    "'A,'A-01-bottom,'80,'180,'*,'*,'*,'*,'*,'*,'*,'*,'*,'\r\n"
    "'Gap,'A-02-top,'0,'185,'*,'*,'*,'*,'*,'*,'*,'*,'*,'\r\n"
    "'A,'L3,'20,'205,'*,'*,'*,'*,'*,'*,'*,'*,'*,'230\r\n"
    "'A,'L4,'60,'245,'*,'*,'*,'*,'*,'*,'*,'*,'*,'270\r\n"
    "'A,'A-02-bottom,'90,'275,'*,'*,'*,'*,'*,'*,'*,'*,'*,'\r\n";

// Two rows that fuse into one layer from 150 to 160 cm.
inline constexpr std::string_view kChainEvents =
    "Hole,Section,Top,Bottom,Description\r\nA,01,42,48,Tephra\r\nA,01,46,50,Void\r\n";

// Control points at 135, 200, 250 and 300 cm, one of them by depth alone, and
// a reference row.
inline constexpr std::string_view kChainAges =
    "Label,Hole,Section,PSP,Composite depth (05 Mar. 2011),Plus error 95.4,Age,Minus error "
    "68.2,Class,Unit,Remark\r\n"
    "L-a,A,01,30,0,10,1000,20,C1,cal BP,-\r\n"
    "L-b,---,---,---,200,20,1400,30,C2,cal BP,-\r\n"
    "R-1,A,01,60,172,5,1500,5,R,cal BP,-\r\n"
    "L-c,A,02,40,0,40,3000,40,V,varve yr,-\r\n"
    "L-d,A,02,90,0,40,5000,40,V,varve yr,-\r\n";

[[noreturn]] inline void Broken(const char* what) {
  std::fputs(what, stderr);
  std::fputc('\n', stderr);
  std::abort();
}

inline void Require(bool condition, const char* what) {
  if (!condition) Broken(what);
}

inline void ImportText(ScriptedPlatform& platform, std::string_view text,
                       void (FrmMain::*import)()) {
  platform.QueueFile(
      WriteInputFile(reinterpret_cast<const std::uint8_t*>(text.data()), text.size()));
  ((*frmMain).*import)();
}

class AgeChain {
 public:
  // The model and the event list, and the age-depth model too if asked. The
  // model's version comes from the input file's name, so the age-depth model
  // is taken despite the warning.
  explicit AgeChain(bool withAges) {
    ScriptedPlatform& platform = ResetProgram();
    ImportText(platform, kChainModel, &FrmMain::Command1_Click);
    ImportText(platform, kChainEvents, &FrmMain::Command3_Click);
    Require(LastRow == 8 && EventCount == 2 && MergedEventCount == 1, "fixed imports failed");
    if (withAges) {
      ImportText(platform, kChainAges, &FrmMain::Command4_Click);
      Require(AgeModelLoaded && AgeModelCount == 4 && EventCount == 2, "fixed age model failed");
    }
    core_ = coreState;
    set_ = masterSet;
    events_ = eventState;
    FrmMain& form = *frmMain;
    texts_[0] = form.Text2.Text;
    texts_[1] = form.Text3.Text;
    texts_[2] = form.Text4.Text;
  }

  ScriptedPlatform& Restore() {
    platform_ = std::make_unique<ScriptedPlatform>();
    SetPlatform(platform_.get());
    coreState = core_;
    masterSet = set_;
    eventState = events_;
    FrmMain& form = *frmMain;
    form.Text2.Text.SetQuietly(texts_[0]);
    form.Text3.Text.SetQuietly(texts_[1]);
    form.Text4.Text.SetQuietly(texts_[2]);
    form.Command4.Enabled = !AgeModelLoaded;
    form.Command5.Enabled = AgeModelLoaded;
    return *platform_;
  }

 private:
  CoreState core_;
  BoreHoleSet set_ = masterSet;
  EventState events_;
  std::string texts_[3];
  std::unique_ptr<ScriptedPlatform> platform_;
};

// How many of the messages carry one of these texts, or begin with it.
inline int CountMessages(const ScriptedPlatform& platform, std::string_view start) {
  int count = 0;
  for (const MessageRecord& message : platform.messages) {
    count += message.text.rfind(start, 0) == 0 ? 1 : 0;
  }
  return count;
}

}  // namespace ostraline::fuzz
