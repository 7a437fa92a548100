#include "support/event_files.h"

namespace ostraline {

const std::vector<EventRow> kTwoLayersOfFourHoles = {{"A", "01", "60", "80", "Turbidite"},
                                                     {"A", "02", "50", "60", "Tephra X"}};

std::string EventListText(const std::vector<EventRow>& rows) {
  std::string text = "Bore hole,Section,Top,Bottom,Description\r\n";
  for (const EventRow& row : rows) {
    text += row.hole + "," + row.section + "," + row.top + "," + row.bottom + "," +
            row.description + "\r\n";
  }
  return text;
}

}  // namespace ostraline
