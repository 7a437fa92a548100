// Any bytes imported as varve counts, after the sample project's correlation
// model, event list and age-depth model, end in the program's own message or
// in a record whose lookups answer or fail to their caller; never in a crash
// or a hang.
#include <cstddef>
#include <cstdint>

#include "events/age_lookup.h"
#include "events/event_state.h"
#include "forms/frm_main.h"
#include "fuzz/support/fuzz_support.h"
#include "fuzz/support/sample_chain.h"
#include "runtime/failure.h"

namespace {

using namespace ostraline;

// Both directions across the record, the varve paths and the way back: the
// sample's ages count varves down to 1440 cm and years before present below.
void LookEverywhere(FrmMain& form) {
  for (float x : {-9999.0f, 0.0f, 35.0f, 82.1f, 566.0f, 1420.0f, 1430.0f, 3000.0f, 1e6f}) {
    using Lookup = Variant (*)(Single);
    for (Lookup lookup : {Lookup(&GetAgeFromCD), Lookup(&GetAgeFromEFD)}) {
      try {
        lookup(x);
      } catch (const RuntimeFailure&) {
      }
    }
  }
  for (float age : {-70.0f, 0.0f, 781.0f, 1816.0f, 5000.0f, 13370.0f, 14500.0f, 9e6f}) {
    try {
      GetEFDFromAge(age);
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
  static const fuzz::SampleChain chain(
      {fuzz::SampleFile::Model, fuzz::SampleFile::Events, fuzz::SampleFile::Ages});
  ScriptedPlatform& platform = chain.Restore();
  platform.QueueFile(fuzz::WriteInputFile(data, size));
  FrmMain& form = *frmMain;
  form.Command5.Click();

  const int failures = fuzz::CountMessages(platform, "File format error.");
  fuzz::Require(failures <= 1, "more than one message of the import");
  if (form.Command5.Enabled) {
    fuzz::Require(failures == 1, "refused without a word");
    return 0;
  }
  fuzz::Require(failures == 0 && VarveCountsLoaded && VarveCountRows >= 1, "taken but not loaded");
  fuzz::Require(VarveTopCD == VarveCounts(0, 1) && VarveBottomCD == VarveCounts(0, VarveCountRows),
                "limits not those of the record");
  LookEverywhere(form);
  return 0;
}
