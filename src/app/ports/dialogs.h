#pragma once

#include <optional>
#include <string>

namespace numorra {

inline constexpr const char* kApplicationTitle = "Numorra";

/// The boxes in which the program speaks with the player. Each blocks until it is answered and has
/// the application title.
class Dialogs {
 public:
  virtual ~Dialogs() = default;

  /// A message with an OK button.
  virtual void Tell(const std::string& message) = 0;

  /// A question; true for Yes, false for No and for a box closed without an answer.
  virtual bool Ask(const std::string& question) = 0;
};

}  // namespace numorra
