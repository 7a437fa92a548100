#pragma once
// The third of the four core photo viewers: the one photo form with record 3.
#include "forms/frm_photo.h"

namespace ostraline {

inline PhotoFormRef frm3Photo{"frm3Photo", 3, "Core photo"};

}  // namespace ostraline
