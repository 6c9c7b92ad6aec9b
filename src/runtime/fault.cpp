// SPDX-License-Identifier: MIT
#include "runtime/fault.h"

namespace brolk {

const char* FaultText(FaultKind kind) {
  switch (kind) {
    case FaultKind::SubscriptOutOfRange:
      return "Subscript out of range";
    case FaultKind::DivisionByZero:
      return "Division by zero";
    case FaultKind::Overflow:
      return "Overflow";
    case FaultKind::TypeMismatch:
      return "Type mismatch";
    case FaultKind::InvalidProcedureCall:
      return "Invalid procedure call";
    case FaultKind::InputPastEnd:
      return "Input past end of file";
    case FaultKind::DuplicateKey:
      return "Duplicate key";
    case FaultKind::FileNotFound:
      return "File not found";
    case FaultKind::OutOfStackSpace:
      return "Out of stack space";
  }
  return "Unknown fault";
}

}  // namespace brolk
