#pragma once

#include <stdexcept>

namespace numorra {

/// The errors of a running command. Each kind has plain words for the player.
enum class Fault {
  InvalidPropertyValue,
  Overflow,
  SubscriptOutOfRange,
  TypeMismatch,
  OutOfMemory,
  FileError,
  PrinterError,
};

/// The words for a fault, such as "Overflow" or "Type mismatch", to be said where they are shown.
const char* Describe(Fault fault);

/// Ends the running command, never the program: only the command runner catches it and shows its
/// words. `what()` is Describe(fault), followed by a detail if one helps.
class RuntimeError : public std::runtime_error {
 public:
  explicit RuntimeError(Fault fault);
  RuntimeError(Fault fault, const std::string& detail);

  Fault Kind() const { return fault_; }

 private:
  Fault fault_;
};

}  // namespace numorra
