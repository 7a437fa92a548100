#pragma once
// A run-time failure of the program's own language semantics. A handler that
// arms a failure path catches it once at its top; procedures without a handler
// let it travel to their caller.
#include <exception>
#include <string>

namespace ostraline {

enum class FailureKind {
  SubscriptOutOfRange,
  TypeMismatch,
  DivisionByZero,
  Overflow,
  InputPastEnd,
  FileNotFound,
  Cancelled,
  InvalidProcedureCall,
};

class RuntimeFailure : public std::exception {
 public:
  explicit RuntimeFailure(FailureKind kind, std::string detail = {});
  FailureKind Kind() const { return kind_; }
  const std::string& Detail() const { return detail_; }
  const char* what() const noexcept override { return message_.c_str(); }

 private:
  FailureKind kind_;
  std::string detail_;
  std::string message_;
};

const char* FailureName(FailureKind kind);

// The failure raised last, kept after its handler has caught it, so that a
// caller who sees only the program's message can tell what went wrong.
// Serial counts every failure raised since the program started.
struct FailureRecord {
  long serial = 0;
  FailureKind kind = FailureKind::SubscriptOutOfRange;
  std::string detail;
};
const FailureRecord& LastFailure();

[[noreturn]] void Fail(FailureKind kind, std::string detail = {});

}  // namespace ostraline
