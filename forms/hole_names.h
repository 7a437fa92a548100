#pragma once
// The default names of the two sets of bore holes, until a model names them.
#include <array>

namespace ostraline {

inline constexpr std::array<const char*, 4> kMasterHoleNames = {"A", "B", "C", "D"};
inline constexpr std::array<const char*, 4> kDuoHoleNames = {"E", "F", "G", "H"};

}  // namespace ostraline
