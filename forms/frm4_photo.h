#pragma once
// The fourth of the four core photo viewers: the one photo form with record 4.
#include "forms/frm_photo.h"

namespace ostraline {

inline PhotoFormRef frm4Photo{"frm4Photo", 4, "Core photo"};

}  // namespace ostraline
