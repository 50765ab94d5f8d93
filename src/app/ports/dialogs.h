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

  /// A line of text that starts with `initial`; nothing when the box is left without an answer.
  virtual std::optional<std::string> AskText(const std::string& prompt,
                                             const std::string& initial) = 0;
};

}  // namespace numorra
