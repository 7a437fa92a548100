#include "core/project_state.h"

#include "runtime/number_text.h"

namespace ostraline {

CoreState::CoreState() {
  HoleName.DimUpper(4);
  HoleName(1) = "A";
  HoleName(2) = "B";
  HoleName(3) = "C";
  HoleName(4) = "D";
  HoleTitle.DimUpper(4);
  SectionCount.DimUpper(4);
  CoreBottom.DimUpper(4);
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
