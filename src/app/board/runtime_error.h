#pragma once

#include <stdexcept>

namespace numorra {

/// What can go wrong while a command runs. Each kind has the plain words a player is shown.
enum class Fault {
  InvalidPropertyValue,
  Overflow,
  SubscriptOutOfRange,
  TypeMismatch,
  OutOfMemory,
  FileError,
  PrinterError,
};

/// The words for a fault, such as "Overflow" or "Type mismatch".
const char* Describe(Fault fault);

/// Ends the running command, never the program: the command runner alone catches it and shows its
/// words. `what()` is Describe(fault), followed by a detail where one helps.
class RuntimeError : public std::runtime_error {
 public:
  explicit RuntimeError(Fault fault);
  RuntimeError(Fault fault, const std::string& detail);

  Fault Kind() const { return fault_; }

 private:
  Fault fault_;
};

}  // namespace numorra
