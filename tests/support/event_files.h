#pragma once
// Small lists of event layers for the tests: a header record and five fields a layer.
#include <string>
#include <vector>

namespace ostraline {

struct EventRow {
  std::string hole;
  std::string section;
  std::string top;
  std::string bottom;
  std::string description = "Tephra";
};

// The file text, one record to a line, fields as they stand.
std::string EventListText(const std::vector<EventRow>& rows);
// Layers of FourHoleModel from 260 to 280 and 400 to 410 cm in composite depth.
extern const std::vector<EventRow> kTwoLayersOfFourHoles;

}  // namespace ostraline
