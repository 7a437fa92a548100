#pragma once
// Which version of the program and of each imported file is in use. Label1
// and Label2 are indexed by file: 1 correlation model, 3 event layers, 4
// age-depth model, 5 varve counts.
#include "forms/controls.h"
#include "forms/form.h"

namespace ostraline {

class FrmVersion : public Form {
 public:
  FrmVersion() : FrmVersion("frmVersion", "Version information") {}

  Label Label3{*this, "Label3"};
  Label Label4{*this, "Label4"};
  ControlArray<Label> Label1{*this, "Label1"};
  ControlArray<Label> Label2{*this, "Label2"};

  void Form_Load() override;
  void Form_Resize() override;
  void Form_Unload(int& cancel) override;
  void Form_MouseMove(int button, int shift, float x, float y) override;
  void Label1_MouseMove(int index);
  void Label2_MouseMove(int index);

 protected:
  FrmVersion(const char* name, const char* caption);
};

inline FormRef<FrmVersion> frmVersion{"frmVersion"};

}  // namespace ostraline
