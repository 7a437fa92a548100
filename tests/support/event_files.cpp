#include "support/event_files.h"

namespace ostraline {

std::string EventListText(const std::vector<EventRow>& rows) {
  std::string text = "Bore hole,Section,Top,Bottom,Description\r\n";
  for (const EventRow& row : rows) {
    text += row.hole + "," + row.section + "," + row.top + "," + row.bottom + "," +
            row.description + "\r\n";
  }
  return text;
}

}  // namespace ostraline
