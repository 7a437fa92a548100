#include "runtime/failure.h"

namespace ostraline {

const char* FailureName(FailureKind kind) {
  switch (kind) {
    case FailureKind::SubscriptOutOfRange:
      return "Subscript out of range";
    case FailureKind::TypeMismatch:
      return "Type mismatch";
    case FailureKind::DivisionByZero:
      return "Division by zero";
    case FailureKind::Overflow:
      return "Overflow";
    case FailureKind::InputPastEnd:
      return "Input past end of file";
    case FailureKind::FileNotFound:
      return "File not found";
    case FailureKind::Cancelled:
      return "Cancel was selected";
    case FailureKind::InvalidProcedureCall:
      return "Invalid procedure call or argument";
  }
  return "Unknown failure";
}

namespace {
FailureRecord lastFailure;
}  // namespace

const FailureRecord& LastFailure() {
  return lastFailure;
}

RuntimeFailure::RuntimeFailure(FailureKind kind, std::string detail)
    : kind_(kind), detail_(std::move(detail)) {
  message_ = FailureName(kind);
  if (!detail_.empty()) message_ += ": " + detail_;
  ++lastFailure.serial;
  lastFailure.kind = kind;
  lastFailure.detail = detail_;
}

void Fail(FailureKind kind, std::string detail) {
  throw RuntimeFailure(kind, std::move(detail));
}

}  // namespace ostraline
