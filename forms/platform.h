#pragma once
// The services a form needs from the desktop: dialogs, message boxes, the
// clipboard, pictures from files, the pointer and the screen. The headless
// implementation is scripted; the desktop shell gives the real ones.
#include <memory>
#include <string>

namespace ostraline {

struct Picture;
struct RasterImage;

enum class MsgIcon { None, Critical, Question, Exclamation, Information };
enum class MsgButtons { Ok, OkCancel, YesNo, YesNoCancel };
enum class MsgAnswer { Ok, Cancel, Yes, No };

struct FileDialogRequest {
  std::string filter;  // "DataFile(*.csv)|*.csv"
  std::string title;
  std::string initialName;
  bool overwritePrompt = false;
};

class Platform {
 public:
  virtual ~Platform() = default;
  // The chosen file name, or an empty text when the user cancelled.
  virtual std::string OpenFileName(const FileDialogRequest& request) = 0;
  virtual std::string SaveFileName(const FileDialogRequest& request) = 0;
  virtual MsgAnswer MessageBox(const std::string& text, const std::string& title, MsgIcon icon,
                               MsgButtons buttons) = 0;
  virtual void ClipboardClear() = 0;
  virtual void ClipboardSetPicture(const Picture& picture) = 0;
  // A JPEG or BMP file; null when it cannot be read as a picture.
  virtual std::shared_ptr<const RasterImage> LoadPicture(const std::string& path) = 0;
  virtual void SetMousePointer(int pointer) = 0;
  virtual int MousePointer() const = 0;
  virtual float ScreenWidth() const = 0;   // twips
  virtual float ScreenHeight() const = 0;  // twips
  // The main form has closed: the program ends once the running handler returns.
  virtual void Quit() = 0;
};

Platform& CurrentPlatform();
// Installs a platform for the rest of the run (or for a test); null restores
// the scripted default.
void SetPlatform(Platform* platform);

// Message box with the program's defaults.
MsgAnswer MsgBox(const std::string& text, MsgButtons buttons, const std::string& title,
                 MsgIcon icon = MsgIcon::None);

// Every copy clears the clipboard first, then puts the picture on it.
inline void CopyToClipboard(const Picture& picture) {
  CurrentPlatform().ClipboardClear();
  CurrentPlatform().ClipboardSetPicture(picture);
}

// The screen object: its mouse pointer and size.
class ScreenObject {
 public:
  // 0 default, 1 arrow, 2 cross, 11 hourglass.
  void SetMousePointer(int pointer) { CurrentPlatform().SetMousePointer(pointer); }
  int MousePointer() const { return CurrentPlatform().MousePointer(); }
  float Width() const { return CurrentPlatform().ScreenWidth(); }
  float Height() const { return CurrentPlatform().ScreenHeight(); }
};
inline ScreenObject Screen;

}  // namespace ostraline
