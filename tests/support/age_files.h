#pragma once
// Age-depth models, event lists and varve records for the tests, imported
// through the program's own buttons after a small correlation model.
#include <string>
#include <utility>
#include <vector>

#include "support/fresh_program.h"

namespace ostraline {

// The eleven fields of a record in file order; the ninth is the class.
using AgeRow = std::vector<std::string>;

struct AgeHeader {
  std::string depth = "Composite depth (05 Mar. 2011)";
  std::string plus = "Plus error 95.4";
  std::string minus = "Minus error 68.2";
};

std::string AgeModelText(const std::vector<AgeRow>& rows, const AgeHeader& header = {});
// Composite depth and running count of each marker, after a header.
std::string VarveText(const std::vector<std::pair<std::string, std::string>>& markers);

// One event layer from 150 to 160 cm, made of two rows that fuse.
extern const char* const kFusedLayer;
// An event list with its header only: EFD is the composite depth.
extern const char* const kNoLayer;
// Control points at composite 140 (age 1000), 200 (2000) and 250 (3000), so
// at EFD 140, 190 and 240 under kFusedLayer: 20 years to the cm. The last is
// counted in another unit.
extern const std::vector<AgeRow> kThreeControlPoints;

class AgeProgram : public FreshProgram {
 protected:
  // Bore hole A of TwoSectionModel with the event list; the target lies at
  // 240 cm. The model's version is 05 Mar. 2011.
  void ImportModelAndEvents(const std::string& eventList);
  // A fresh program again, without messages, and the same two imports.
  void Restart(const std::string& eventList);
  void ImportAges(const std::vector<AgeRow>& rows, const AgeHeader& header = {});
  // The model, kFusedLayer and kThreeControlPoints, all without a message.
  void ImportAll();
  void ImportVarves(const std::vector<std::pair<std::string, std::string>>& markers);
};

}  // namespace ostraline
