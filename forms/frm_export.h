#pragma once
// The export dialog of a proxy panel.
#include "forms/form.h"

namespace ostraline {

class FrmExport : public Form {
 public:
  FrmExport() : Form("frmExport", "Export") {
    Width.SetQuietly(4080);
    Height.SetQuietly(2070);
  }
};

inline FormRef<FrmExport> frmExport{"frmExport"};

}  // namespace ostraline
