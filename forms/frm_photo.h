#pragma once
// The first of the four core photo viewers.
#include "forms/form.h"

namespace ostraline {

class FrmPhoto : public Form {
 public:
  FrmPhoto() : Form("frmPhoto", "Core photo") {
    Width.SetQuietly(5400);
    Height.SetQuietly(7200);
  }
};

inline FormRef<FrmPhoto> frmPhoto{"frmPhoto"};

}  // namespace ostraline
