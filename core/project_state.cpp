#include "core/project_state.h"

#include "runtime/number_text.h"

namespace ostraline {

CoreState::CoreState() {
  SectionTieList.Dim({{1, 50}, {0, 2}});
}

bool IsSectionTop(const std::string& label) {
  const std::string tail = Right(label, 3);
  return tail == "top" || tail == "Top";
}

bool IsSectionBottom(const std::string& label) {
  const std::string tail = Right(label, 3);
  return tail == "tom" || tail == "Bot";
}

bool IsPin(const std::string& label) {
  const std::string head = Left(label, 3);
  return head == "Pin" || head == "pin";
}

}  // namespace ostraline
