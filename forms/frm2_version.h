#pragma once
// Which version of each file of the parallel set is in use.
#include "forms/frm_version.h"

namespace ostraline {

class Frm2Version : public FrmVersion {
 public:
  Frm2Version() : FrmVersion("frm2Version", "Version information (Duo)") {}
  void Form_Load() override;
};

inline FormRef<Frm2Version> frm2Version{"frm2Version"};

}  // namespace ostraline
