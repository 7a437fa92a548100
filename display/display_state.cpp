#include "display/display_state.h"

namespace ostraline {

DisplayState::DisplayState() {
  HoleAbsent.DimUpper(4);
  FormEdge.DimUpper(2);
}

}  // namespace ostraline
