#pragma once
// The platform services of the desktop: real dialogs, message boxes, the
// clipboard, pictures from files, the pointer and the screen.
#include "desktop/dialogs.h"
#include "forms/platform.h"

namespace ostraline {

class QtPlatform : public Platform {
 public:
  // Dialogs that answer in the user's place, for tests; null brings back Qt's.
  void SetDialogs(Dialogs* dialogs) { dialogs_ = dialogs != nullptr ? dialogs : &qtDialogs_; }

  std::string OpenFileName(const FileDialogRequest& request) override;
  std::string SaveFileName(const FileDialogRequest& request) override;
  MsgAnswer MessageBox(const std::string& text, const std::string& title, MsgIcon icon,
                       MsgButtons buttons) override;
  void ClipboardClear() override;
  void ClipboardSetPicture(const Picture& picture) override;
  std::shared_ptr<const RasterImage> LoadPicture(const std::string& path) override;
  void SetMousePointer(int pointer) override;
  int MousePointer() const override { return pointer_; }
  float ScreenWidth() const override;
  float ScreenHeight() const override;
  void Quit() override;

 private:
  QtDialogs qtDialogs_;
  Dialogs* dialogs_ = &qtDialogs_;
  int pointer_ = 0;
};

}  // namespace ostraline
