#include "fuzz/support/sample_chain.h"

#include <string>

#include "core/project_state.h"
#include "duo/duo_state.h"
#include "events/event_state.h"
#include "forms/frm2_main.h"
#include "forms/frm_main.h"
#include "fuzz/support/fuzz_support.h"

namespace ostraline::fuzz {
namespace {

std::string SamplePath(const char* name) {
  return std::string(OSTRALINE_SAMPLES_DIR) + "/" + name;
}

// Each import through its button, and what shows that it was taken.
void Import(ScriptedPlatform& platform, SampleFile file) {
  switch (file) {
    case SampleFile::Model:
      platform.QueueFile(SamplePath("correlation_model_20250314.csv"));
      frmMain->Command1_Click();
      Require(LastRow > 0, "the sample model was refused");
      break;
    case SampleFile::Events:
      platform.QueueFile(SamplePath("event_layers_20250320.csv"));
      frmMain->Command3_Click();
      Require(EventListLoaded && MergedEventCount > 0, "the sample event list was refused");
      break;
    case SampleFile::Ages:
      platform.QueueFile(SamplePath("age_depth_model_20250402.csv"));
      frmMain->Command4_Click();
      Require(AgeModelLoaded && !frmMain->Command4.Enabled, "the sample age model was refused");
      break;
    case SampleFile::Varves:
      platform.QueueFile(SamplePath("varve_counts_20250325.csv"));
      frmMain->Command5_Click();
      Require(VarveCountsLoaded && !frmMain->Command5.Enabled, "the sample varves were refused");
      break;
    case SampleFile::DuoModel:
      frmMain->LaunchDuo();
      platform.QueueFile(SamplePath("duo_correlation_model_20250610.csv"));
      // The question for the Duo's event list is declined: it has a file of its own.
      platform.QueueAnswer(MsgAnswer::No);
      frm2Main->Command1_Click();
      Require(DuoOpen && platform.messages.size() == 1, "the sample Duo model was refused");
      platform.messages.clear();
      break;
    case SampleFile::DuoEvents:
      platform.QueueFile(SamplePath("duo_event_layers_20250612.csv"));
      frm2Main->Command3_Click();
      Require(EventListLoaded2 && MergedEventCount2 > 0, "the sample Duo event list was refused");
      break;
  }
  Require(platform.messages.empty(), "a sample import spoke");
}

}  // namespace

SampleChain::SampleChain(std::initializer_list<SampleFile> files) {
  ScriptedPlatform& platform = ResetProgram();
  for (SampleFile file : files) Import(platform, file);
  snapshot_ = std::make_unique<ProgramSnapshot>();
}

ScriptedPlatform& SampleChain::Restore() const {
  snapshot_->Restore();
  return FreshPlatform();
}

}  // namespace ostraline::fuzz
