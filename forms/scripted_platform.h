#pragma once
// The platform without a screen: tests and the command line queue the file
// names and answers, and every message box is recorded.
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "forms/canvas.h"
#include "forms/platform.h"

namespace ostraline {

struct MessageRecord {
  std::string text;
  std::string title;
  MsgIcon icon;
  MsgButtons buttons;
  MsgAnswer answer;
};

class ScriptedPlatform : public Platform {
 public:
  // Queue a file name for the next dialog; an empty name cancels it.
  void QueueFile(const std::string& name) { files_.push_back(name); }
  void QueueCancel() { files_.push_back(std::string()); }
  void QueueAnswer(MsgAnswer answer) { answers_.push_back(answer); }

  std::string OpenFileName(const FileDialogRequest& request) override;
  std::string SaveFileName(const FileDialogRequest& request) override;
  MsgAnswer MessageBox(const std::string& text, const std::string& title, MsgIcon icon,
                       MsgButtons buttons) override;
  void ClipboardClear() override { clipboard.reset(); }
  void ClipboardSetPicture(const Picture& picture) override { clipboard = picture; }
  std::shared_ptr<const RasterImage> LoadPicture(const std::string& path) override;
  void SetMousePointer(int pointer) override { pointer_ = pointer; }
  int MousePointer() const override { return pointer_; }
  float ScreenWidth() const override { return 1920 * 15; }
  float ScreenHeight() const override { return 1080 * 15; }
  void Quit() override { quitRequested = true; }

  std::vector<MessageRecord> messages;
  std::vector<FileDialogRequest> dialogs;
  std::optional<Picture> clipboard;
  bool quitRequested = false;
  // Called with each message box as it is shown (the command line prints them).
  std::function<void(const MessageRecord&)> onMessage;

 private:
  std::deque<std::string> files_;
  std::deque<MsgAnswer> answers_;
  int pointer_ = 0;
};

}  // namespace ostraline
