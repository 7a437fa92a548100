// Any bytes opened as a core photo end silently when they are no picture, or
// in a photo window sized to the picture that zooms, drags and resizes;
// never in a crash or a hang.
#include <cstddef>
#include <cstdint>

#include "forms/frm_main.h"
#include "forms/frm_photo.h"
#include "fuzz/support/fuzz_support.h"
#include "proxies/core_photos.h"

namespace {

using namespace ostraline;

// Every zoom from a point of the picture and back, a drag, and a resize.
void Handle(FrmPhoto& photo) {
  photo.Image1_MouseDown(2, 0, 120, 300);
  for (int zoom : {2, 4, 16, 8, 1}) photo.mnuZoom_Click(zoom);
  photo.Image1_MouseDown(1, 0, 40, 50);
  photo.Image1_MouseMove(1, 0, 400, -700);
  photo.Image1_MouseUp(1, 0, 400, -700);
  photo.Width = photo.Width.Get() / 2;
  photo.Form_Resize();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  ScriptedPlatform& platform = fuzz::ResetProgram();
  platform.QueueFile(fuzz::WriteInputFile(data, size));
  frmMain->Command7_Click();
  fuzz::Require(platform.messages.empty(), "a photo that spoke");
  if (!PhotoOpen(1)) {
    fuzz::Require(!frmPhoto.IsLoaded() || !frmPhoto->Visible, "a window shown without its photo");
    return 0;
  }
  FrmPhoto& photo = *frmPhoto;
  fuzz::Require(photo.Visible && photo.Picture1.Width > 0 && photo.Picture1.Height > 0,
                "a photo open without its picture");
  Handle(photo);
  return 0;
}
