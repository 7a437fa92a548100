#pragma once
// The kind of run-time failure a statement raises, if any.
#include <optional>

#include "runtime/failure.h"

namespace ostraline {

template <class Statement>
std::optional<FailureKind> FailureOf(Statement statement) {
  try {
    statement();
  } catch (const RuntimeFailure& failure) {
    return failure.Kind();
  }
  return std::nullopt;
}

}  // namespace ostraline
