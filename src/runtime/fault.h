// SPDX-License-Identifier: MIT
#pragma once

#include <stdexcept>
#include <string>

namespace brolk {

// The ways in which a run can end by itself.
enum class FaultKind {
  SubscriptOutOfRange,
  DivisionByZero,
  Overflow,
  TypeMismatch,
  InvalidProcedureCall,
  InputPastEnd,
  DuplicateKey,
  FileNotFound,
  OutOfStackSpace,
};

// The text that the user sees for a kind, without a full stop.
[[nodiscard]] const char* FaultText(FaultKind kind);

// A fatal run-time fault. It is the one exception of the program: no rule and no window catches it. The
// application object shows its text and ends the process with status 1.
class Fault final : public std::runtime_error {
 public:
  explicit Fault(FaultKind kind) : std::runtime_error(FaultText(kind)), kind_(kind) {}
  [[nodiscard]] FaultKind Kind() const { return kind_; }

 private:
  FaultKind kind_;
};

}  // namespace brolk
