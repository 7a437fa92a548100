// Any bytes imported as an age-depth model, after the sample project's
// correlation model and event list, end in the program's own message or in a
// model whose lookups answer or fail to their caller; never in a crash or a
// hang.
#include <cstddef>
#include <cstdint>

#include "core/project_state.h"
#include "events/age_lookup.h"
#include "events/event_state.h"
#include "forms/frm_main.h"
#include "fuzz/support/fuzz_support.h"
#include "fuzz/support/sample_chain.h"
#include "runtime/failure.h"

namespace {

using namespace ostraline;

void CheckControlPoints() {
  for (long i = 1; i <= AgeModelCount; ++i) {
    const char kind = AgeModel(0, i).at(0);
    fuzz::Require(kind == 'C' || kind == 'V', "a row of another class among the control points");
  }
  for (long i = 1; i <= AgeReferenceCount; ++i) {
    fuzz::Require(AgeReferenceRows(0, i).ToText().at(0) == 'R',
                  "a control point among the references");
  }
}

// Every lookup either answers or fails to its caller, as a handler would see
// it: above the core, in its sections, across its layers, below it.
void LookEverywhere(FrmMain& form) {
  for (float x : {-9999.0f, 0.0f, 20.0f, 150.3f, 566.0f, 1440.0f, 3837.5f, 6999.5f, 1e6f}) {
    try {
      GetAgeFromCD(x);
    } catch (const RuntimeFailure&) {
    }
    try {
      GetEFDFromAge(x * 7);
    } catch (const RuntimeFailure&) {
    }
  }
  try {
    form.Text4.SetFocus();
    form.Text4.Text = "1200";
  } catch (const RuntimeFailure&) {
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const fuzz::SampleChain chain({fuzz::SampleFile::Model, fuzz::SampleFile::Events});
  ScriptedPlatform& platform = chain.Restore();
  const long layers = EventCount;
  // A file made for another version of the model is warned of: odd lengths
  // decline the warning, so that both ways are taken.
  const bool decline = size % 2 == 1;
  if (decline) platform.QueueAnswer(MsgAnswer::No);
  platform.QueueFile(fuzz::WriteInputFile(data, size));
  FrmMain& form = *frmMain;
  form.Command4.Click();

  const int failures = fuzz::CountMessages(platform, "Bore hole name '") +
                       fuzz::CountMessages(platform, "File format error.");
  const int warnings = fuzz::CountMessages(platform, "Version dates are inconsistent");
  fuzz::Require(failures <= 1 && warnings <= 1, "more than one message of the import");
  if (form.Command4.Enabled) {
    fuzz::Require(failures + (decline ? warnings : 0) == 1, "refused without a word");
    fuzz::Require(EventCount == -9999 && MergedEventCount == -9999, "refused with the layers in");
    return 0;
  }
  fuzz::Require(failures == 0 && AgeModelLoaded && EventCount == layers, "taken but not loaded");
  CheckControlPoints();
  LookEverywhere(form);
  return 0;
}
