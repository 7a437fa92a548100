#include "events/copy_to_duo.h"

#include "core/project_state.h"
#include "duo/depth_map.h"
#include "duo/duo_state.h"
#include "events/age_lookup.h"
#include "events/event_free_depth.h"
#include "events/event_state.h"
#include "forms/frm2_main.h"
#include "forms/frm2_version.h"
#include "runtime/number_text.h"

namespace ostraline {

void CopyAgeModelToDuo() {
  if (!AgeModelLoaded || AgeModelLoaded2 || !DuoOpen || !EventListLoaded || !EventListLoaded2)
    return;
  AgeModelCount2 = AgeModelCount.Get();
  AgeModelVersion2 = AgeModelVersion;
  AgeModel2.Dim({{0, 11}, {0, AgeModelCount2}});
  for (long i = 1; i <= AgeModelCount2; ++i) {
    for (const int column : {0, 6, 7, 8, 9}) AgeModel2(column, i) = AgeModel(column, i);
    // The master's control points at the Duo's depth of their horizons.
    AgeModel2(5, i) = Str(MasterToDuo(CSng(Val(AgeModel(5, i)))));
    AgeModel2(11, i) = CDToEFD(duoSet, CSng(Val(AgeModel2(5, i)))).ToText();
  }
  frm2Version->Label2(4).Caption = AgeModelVersion2;
  AgeModelLoaded2 = true;
  Frm2Main& duo = *frm2Main;
  duo.mnuAge.Enabled = true;
  duo.mnuDepth.Enabled = true;
  DisplayAge(duoSet, duo);
}

}  // namespace ostraline
