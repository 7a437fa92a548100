#include "service/program_version.h"

#include "forms/frm_main.h"

namespace ostraline {

std::string ProgramVersion() {
  // A form of its own, so that the program's main form is neither loaded nor
  // changed.
  const FrmMain opening;
  return opening.Caption.Get();
}

}  // namespace ostraline
