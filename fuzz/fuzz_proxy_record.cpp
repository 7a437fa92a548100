// Any bytes read as a proxy record into panel 0, after the sample project's
// correlation model, event list, age-depth model and varve counts, end in the
// program's one message with the progress bar gone, or in a record of at
// least eight rows and 1 to 135 columns: drawn at once when its rows give
// bore hole, section and PSP, else waiting in frmSelect with the main form
// disabled, whose "OK" then converts and draws it. Never a crash or a hang.
// Each record given by bore hole, section and PSP keeps its file open until
// the process ends, as the program does: a run of many hours may run out of
// file descriptors.
#include <cstddef>
#include <cstdint>

#include "forms/frm_main.h"
#include "forms/frm_select.h"
#include "fuzz/support/fuzz_support.h"
#include "fuzz/support/sample_chain.h"
#include "proxies/proxy_records.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace ostraline;
  static const fuzz::SampleChain chain({fuzz::SampleFile::Model, fuzz::SampleFile::Events,
                                        fuzz::SampleFile::Ages, fuzz::SampleFile::Varves});
  ScriptedPlatform& platform = chain.Restore();
  FrmMain& form = *frmMain;

  platform.QueueFile(fuzz::WriteInputFile(data, size));
  form.Command6(0).Click();

  const int failures = fuzz::CountMessages(platform, "File format error.");
  fuzz::Require(failures == static_cast<int>(platform.messages.size()) && failures <= 1,
                "another message, or more than one");
  if (failures == 1) {
    fuzz::Require(!form.ProgressBar1.Visible, "the bar stayed after the message");
    return 0;
  }
  fuzz::Require(ProxyLoaded(0) && ProxyRowCount(0) >= 8, "taken without eight rows");
  fuzz::Require(ProxyColumnCount(0) >= 1 && ProxyColumnCount(0) <= 135, "columns out of bounds");
  if (ProxyHasTrinity(0)) {
    fuzz::Require(form.Enabled && !frmSelect->Visible, "a known position was asked for");
    return 0;
  }
  fuzz::Require(!form.Enabled && frmSelect->Visible, "the question was not asked");
  frmSelect->Option1(size % 3).Value = frmSelect->Option1(size % 3).Enabled.Get();
  try {
    frmSelect->Command1.Click();
  } catch (const RuntimeFailure&) {
    // An age beyond what the model converts ends in the run-time's own box.
    return 0;
  }
  fuzz::Require(form.Enabled && !frmSelect.IsLoaded(), "the answer left the form disabled");
  return 0;
}
