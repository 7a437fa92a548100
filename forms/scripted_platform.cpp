#include "forms/scripted_platform.h"

#include <fstream>

namespace ostraline {

std::string ScriptedPlatform::OpenFileName(const FileDialogRequest& request) {
  dialogs.push_back(request);
  if (files_.empty()) return {};
  std::string name = files_.front();
  files_.pop_front();
  return name;
}

std::string ScriptedPlatform::SaveFileName(const FileDialogRequest& request) {
  return OpenFileName(request);
}

MsgAnswer ScriptedPlatform::MessageBox(const std::string& text, const std::string& title,
                                       MsgIcon icon, MsgButtons buttons) {
  MsgAnswer answer = buttons == MsgButtons::YesNo || buttons == MsgButtons::YesNoCancel
                         ? MsgAnswer::Yes
                         : MsgAnswer::Ok;
  if (!answers_.empty()) {
    answer = answers_.front();
    answers_.pop_front();
  }
  messages.push_back({text, title, icon, buttons, answer});
  if (onMessage) onMessage(messages.back());
  return answer;
}

std::shared_ptr<const RasterImage> ScriptedPlatform::LoadPicture(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) return nullptr;
  auto image = std::make_shared<RasterImage>();
  image->path = path;
  return image;
}

}  // namespace ostraline
