#pragma once
// The Duo's names for the procedures that both sets run: each is the
// master's procedure on the Duo's set.
#include <string>

#include "core/depth_conversions.h"
#include "core/hole_lookup.h"
#include "duo/duo_state.h"
#include "events/age_lookup.h"
#include "events/event_free_depth.h"

namespace ostraline {

inline Variant CompositeFromTrinity2(int hole, int section, Single psp) {
  return CompositeFromTrinity(duoSet, hole, section, psp);
}
inline void GetPSP2(int hole, Single target) {
  GetPSP(duoSet, hole, target);
}
inline Integer BHNo2(const std::string& letter) {
  return BHNo(duoSet, letter);
}
inline Variant GetBH2(const std::string& letter) {
  return GetBH(duoSet, letter);
}
inline Integer SectionOrdinalByName2(int hole, const std::string& name) {
  return SectionOrdinalByName(duoSet, hole, name);
}
inline Variant CDToEFD2(Single cd) {
  return CDToEFD(duoSet, cd);
}
inline Variant EFDToCD2(Single efd) {
  return EFDToCD(duoSet, efd);
}
inline Variant GetAgeFromCD2(Single cd) {
  return GetAgeFromCD(duoSet, cd);
}
inline Variant GetAgeFromEFD2(Single efd) {
  return GetAgeFromEFD(duoSet, efd);
}
inline Variant GetEFDFromAge2(Single age) {
  return GetEFDFromAge(duoSet, age);
}

}  // namespace ostraline
