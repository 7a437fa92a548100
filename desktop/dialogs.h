#pragma once
// The dialogs a user answers: file names and message boxes. The platform asks
// them through this interface, so that tests can answer in the user's place.
#include <string>

#include "forms/platform.h"

namespace ostraline {

class Dialogs {
 public:
  virtual ~Dialogs() = default;
  // The chosen file name, or an empty text when the user cancelled.
  virtual std::string OpenFileName(const FileDialogRequest& request) = 0;
  virtual std::string SaveFileName(const FileDialogRequest& request) = 0;
  virtual MsgAnswer MessageBox(const std::string& text, const std::string& title, MsgIcon icon,
                               MsgButtons buttons) = 0;
};

// Qt's file dialogs and message boxes.
class QtDialogs : public Dialogs {
 public:
  std::string OpenFileName(const FileDialogRequest& request) override;
  std::string SaveFileName(const FileDialogRequest& request) override;
  MsgAnswer MessageBox(const std::string& text, const std::string& title, MsgIcon icon,
                       MsgButtons buttons) override;
};

}  // namespace ostraline
