#pragma once
// Composite depth to event free depth and back: the merged event layers cut
// out of the scale. No other code subtracts thickness.
#include "runtime/checked_int.h"
#include "runtime/variant.h"

namespace ostraline {

// Both round every result to DepthPrecision, half to even. The two
// directions are not inverse where the list has had no merge: the last
// layer's thickness never enters EFDToCD then.
Variant CDToEFD(Single cd);
Variant EFDToCD(Single efd);

}  // namespace ostraline
