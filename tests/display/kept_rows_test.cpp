// What the core view keeps of the model between repaints: a repaint after a
// change of any cell it was read from draws what a first paint draws.
#include <functional>
#include <sstream>
#include <string>

#include "core/project_state.h"
#include "display/core_columns.h"
#include "forms/frm_main.h"
#include "support/fresh_program.h"
#include "support/model_files.h"

namespace ostraline {
namespace {

// Every operation of the five columns, one to a line.
std::string Drawn() {
  std::ostringstream out;
  for (int i = 0; i <= 4; ++i) {
    for (const DrawOp& op : frmMain->BoreHole(i).BaseOps()) {
      out << i << ' ' << static_cast<int>(op.kind) << ' ' << op.colour << ' ' << op.fillColour
          << ' ' << op.x1 << ' ' << op.y1 << ' ' << op.x2 << ' ' << op.y2 << ' ' << op.text << '\n';
    }
  }
  return out.str();
}

class KeptRows : public FreshProgram {};

TEST_F(KeptRows, aRepaintAfterAChangeDrawsAsAFirstPaint) {
  ImportModel(FourHoleModel());
  for (int i = 0; i <= 4; ++i) {
    frmMain->BoreHole(i).ScaleTop = 0;
    frmMain->BoreHole(i).ScaleHeight = 600;
  }
  DrawLamina();
  struct Change {
    const char* what;
    std::function<void()> make;
  };
  const Change changes[] = {
      // The splice cells of bore hole A now name C as well.
      {"a bore hole renamed", [] { HoleName(3) = "A"; }},
      {"a label made a pin", [] { ModelCell(0, 2, 0, 2) = "Pin 2"; }},
      {"a label made a section top", [] { ModelCell(0, 1, 0, 3) = "A-01b-top"; }},
      {"a label made a section bottom", [] { ModelCell(0, 4, 0, 2) = "D-01-bottom"; }},
      {"a splice cell naming another hole", [] { TieCell(0, 3) = "B"; }},
      {"a splice cell made a gap", [] { TieCell(0, 5) = "Gap"; }},
  };
  for (const Change& change : changes) {
    SCOPED_TRACE(change.what);
    const std::string before = Drawn();
    change.make();
    DrawLamina();
    const std::string repainted = Drawn();
    EXPECT_NE(repainted, before);
    masterSet.Derived.rows = {};
    DrawLamina();
    EXPECT_EQ(repainted, Drawn());
  }
}

}  // namespace
}  // namespace ostraline
