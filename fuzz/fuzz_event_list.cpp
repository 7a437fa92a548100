// Any bytes imported as a list of event layers, after a good correlation
// model, end in the program's own message or in sorted, fused layers; never
// in a crash or a hang.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "core/project_state.h"
#include "events/event_state.h"
#include "forms/frm_main.h"
#include "fuzz/support/fuzz_support.h"

namespace {

// Bore hole A with two sections, composite depth 0 to 300; the other holes
// have no position.
constexpr std::string_view kModel =
    "'Splice,'Bore hole A (A),'PSP,'Drilling depth,'Bore hole B (B),'PSP,'Drilling depth,"
    "'Bore hole C (C),'PSP,'Drilling depth,'Bore hole D (D),'PSP,'Drilling depth,"
    "'Composite depth\r\n"
    "'A,'A-01-top,'0,'0,'*,'*,'*,'*,'*,'*,'*,'*,'*,'0\r\n"
    "'A,'L1,'50,'50,'*,'*,'*,'*,'*,'*,'*,'*,'*,'50\r\n"
    "'A,'A-01-bottom,'100,'100,'*,'*,'*,'*,'*,'*,'*,'*,'*,'100\r\n"
    "'A,'A-02-top,'0,'110,'*,'*,'*,'*,'*,'*,'*,'*,'*,'110\r\n"
    "'A,'L2,'80,'190,'*,'*,'*,'*,'*,'*,'*,'*,'*,'\r\n"
    "'A,'A-02-bottom,'190,'300,'*,'*,'*,'*,'*,'*,'*,'*,'*,'300\r\n";

void Require(bool condition) {
  if (!condition) std::abort();
}

// After a good import the layers lie in order and apart, as long as every top
// could be chosen by the sort.
void CheckLayers() {
  using namespace ostraline;
  for (long i = 1; i <= EventCount; ++i) {
    if (!(EventTop(1, i) < 999999)) return;
  }
  for (long i = 1; i < MergedEventCount; ++i) {
    Require(EventTop(1, i) <= EventTop(1, i + 1));
    Require(EventBottom(1, i) <= EventTop(1, i + 1));
  }
  for (long i = MergedEventCount + 1; i <= EventCount; ++i) Require(EventTop(1, i) == -9999);
}

// The model is imported once, through the dialog; it costs far more than any
// event list, as its tables are made for five thousand rows.
struct ImportedModel {
  ImportedModel() : platform(ostraline::fuzz::ResetProgram()) {
    platform.QueueFile(ostraline::fuzz::WriteInputFile(
        reinterpret_cast<const std::uint8_t*>(kModel.data()), kModel.size()));
    ostraline::frmMain->Command1_Click();
    Require(platform.messages.empty());
    state = ostraline::coreState;
    set = ostraline::masterSet;
  }
  ostraline::ScriptedPlatform& platform;
  ostraline::CoreState state;
  ostraline::BoreHoleSet set = ostraline::masterSet;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace ostraline;
  static ImportedModel model;
  // Each input starts where the model's import left the program: the event
  // import writes the EFD into the model's tables and shuts its own button.
  coreState = model.state;
  masterSet = model.set;
  eventState = EventState{};
  frmMain->Command3.Enabled = true;
  ScriptedPlatform& platform = model.platform;
  platform.messages.clear();

  platform.QueueFile(fuzz::WriteInputFile(data, size));
  frmMain->Command3.Click();
  // The target horizon may speak too; the import's message comes once, and only on failure.
  std::size_t formatErrors = 0;
  for (const MessageRecord& message : platform.messages) {
    formatErrors += message.text == "File format error." ? 1 : 0;
  }
  if (frmMain->Command3.Enabled) {
    Require(formatErrors == 1 && EventCount == -9999 && MergedEventCount == -9999);
  } else {
    Require(formatErrors == 0 && EventListLoaded && EventCount >= 0);
    CheckLayers();
  }
  return 0;
}
