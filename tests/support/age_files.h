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

class AgeProgram : public FreshProgram {
 protected:
  // Bore hole A with ties PSP 10 at 110 cm, 50 at 160 (section 01) and 20 at
  // 230, 60 at 270 (section 02); its bottom lies at 300 cm, and the target at
  // 240 cm. The model's version is 05 Mar. 2011.
  void ImportModelAndEvents(const std::string& eventList);
  void ImportAges(const std::vector<AgeRow>& rows, const AgeHeader& header = {});
  void ImportVarves(const std::vector<std::pair<std::string, std::string>>& markers);
  // The one message box shown, as "title: text".
  std::string OnlyMessage() const;
};

}  // namespace ostraline
