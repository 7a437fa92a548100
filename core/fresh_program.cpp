#include "core/fresh_program.h"

#include "core/bore_hole_set.h"
#include "core/project_state.h"
#include "display/display_state.h"
#include "duo/duo_state.h"
#include "events/batch_state.h"
#include "events/event_state.h"
#include "forms/form.h"
#include "proxies/core_photos.h"
#include "proxies/proxy_records.h"

namespace ostraline {

void ResetProgramState() {
  FormSlot::ResetAll();
  coreState = CoreState{};
  masterSet = BoreHoleSet(kMasterHoleNames, false);
  duoSet = BoreHoleSet(kDuoHoleNames, true);
  duoState = DuoState{};
  displayState = DisplayState{};
  eventState = EventState{};
  batchState = BatchState{};
  masterProxies = ProxyRecords{};
  duoProxies = ProxyRecords{};
  proxyState = ProxyState{};
  photoState = PhotoState{};
}

}  // namespace ostraline
