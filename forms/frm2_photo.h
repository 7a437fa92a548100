#pragma once
// The second of the four core photo viewers: the one photo form with record 2.
#include "forms/frm_photo.h"

namespace ostraline {

inline PhotoFormRef frm2Photo{"frm2Photo", 2, "Core photo Duo"};

}  // namespace ostraline
