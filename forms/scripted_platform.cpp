#include "forms/scripted_platform.h"

#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <iterator>

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

namespace {

unsigned ReadBigEndian16(const std::string& bytes, std::size_t at) {
  return (static_cast<unsigned char>(bytes[at]) << 8) | static_cast<unsigned char>(bytes[at + 1]);
}

long ReadLittleEndian32(const std::string& bytes, std::size_t at) {
  std::uint32_t value = 0;
  for (int i = 3; i >= 0; --i) value = (value << 8) | static_cast<unsigned char>(bytes[at + i]);
  return static_cast<std::int32_t>(value);
}

// The size from a BMP's info header, or from a JPEG's frame header: enough for
// the forms, which need a picture's proportions, not its pixels.
bool ReadPictureSize(const std::string& bytes, int& width, int& height) {
  if (bytes.size() >= 26 && bytes[0] == 'B' && bytes[1] == 'M') {
    width = static_cast<int>(std::labs(ReadLittleEndian32(bytes, 18)));
    height = static_cast<int>(std::labs(ReadLittleEndian32(bytes, 22)));
    return width > 0 && height > 0;
  }
  if (bytes.size() < 4 || ReadBigEndian16(bytes, 0) != 0xFFD8) return false;
  std::size_t at = 2;
  while (at + 4 <= bytes.size() && static_cast<unsigned char>(bytes[at]) == 0xFF) {
    const unsigned marker = static_cast<unsigned char>(bytes[at + 1]);
    const unsigned length = ReadBigEndian16(bytes, at + 2);
    const bool frame =
        marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
    if (frame && at + 9 <= bytes.size()) {
      height = static_cast<int>(ReadBigEndian16(bytes, at + 5));
      width = static_cast<int>(ReadBigEndian16(bytes, at + 7));
      return width > 0 && height > 0;
    }
    at += 2 + length;
  }
  return false;
}

}  // namespace

std::shared_ptr<const RasterImage> ScriptedPlatform::LoadPicture(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) return nullptr;
  const std::string bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
  auto image = std::make_shared<RasterImage>();
  if (!ReadPictureSize(bytes, image->widthPixels, image->heightPixels)) return nullptr;
  image->path = path;
  return image;
}

}  // namespace ostraline
