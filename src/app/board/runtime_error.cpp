#include "app/board/runtime_error.h"

#include <string>

namespace numorra {

const char* Describe(Fault fault) {
  switch (fault) {
    case Fault::InvalidPropertyValue:
      return "Invalid property value";
    case Fault::Overflow:
      return "Overflow";
    case Fault::SubscriptOutOfRange:
      return "Subscript out of range";
    case Fault::TypeMismatch:
      return "Type mismatch";
    case Fault::OutOfMemory:
      return "Out of memory";
    case Fault::FileError:
      return "File error";
    case Fault::PrinterError:
      return "Printer error";
  }
  return "Unknown error";
}

RuntimeError::RuntimeError(Fault fault) : std::runtime_error(Describe(fault)), fault_(fault) {}

RuntimeError::RuntimeError(Fault fault, const std::string& detail)
    : std::runtime_error(std::string(Describe(fault)) + ": " + detail), fault_(fault) {}

}  // namespace numorra
