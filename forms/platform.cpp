#include "forms/platform.h"

#include "forms/scripted_platform.h"

namespace ostraline {
namespace {
Platform* g_platform = nullptr;

ScriptedPlatform& DefaultPlatform() {
  static ScriptedPlatform platform;
  return platform;
}
}  // namespace

Platform& CurrentPlatform() {
  return g_platform != nullptr ? *g_platform : DefaultPlatform();
}

void SetPlatform(Platform* platform) {
  g_platform = platform;
}

MsgAnswer MsgBox(const std::string& text, MsgButtons buttons, const std::string& title,
                 MsgIcon icon) {
  return CurrentPlatform().MessageBox(text, title, icon, buttons);
}

}  // namespace ostraline
