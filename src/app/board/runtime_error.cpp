#include "app/board/runtime_error.h"

#include <string>

#include "words/say.h"

namespace numorra {

const char* Describe(Fault fault) {
  switch (fault) {
    case Fault::InvalidPropertyValue:
      return Mark("Invalid property value");
    case Fault::Overflow:
      return Mark("Overflow");
    case Fault::SubscriptOutOfRange:
      return Mark("Subscript out of range");
    case Fault::TypeMismatch:
      return Mark("Type mismatch");
    case Fault::OutOfMemory:
      return Mark("Out of memory");
    case Fault::FileError:
      return Mark("File error");
    case Fault::PrinterError:
      return Mark("Printer error");
  }
  return Mark("Unknown error");
}

RuntimeError::RuntimeError(Fault fault) : std::runtime_error(Say(Describe(fault))), fault_(fault) {}

RuntimeError::RuntimeError(Fault fault, const std::string& detail)
    : std::runtime_error(Say("%1: %2", Say(Describe(fault)), detail)), fault_(fault) {}

}  // namespace numorra
