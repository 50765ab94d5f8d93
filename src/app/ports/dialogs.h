#pragma once

#include <optional>
#include <string>

namespace numorra {

inline constexpr const char* kApplicationTitle = "Numorra";

/// The program's message boxes. Each has the application title and blocks until it is answered.
class Dialogs {
 public:
  virtual ~Dialogs() = default;

  /// Shows a message with an OK button.
  virtual void Tell(const std::string& message) = 0;

  /// Asks a question; true for Yes, false for No or if the box is closed without an answer.
  virtual bool Ask(const std::string& question) = 0;

  /// Asks for a line of text, initially `initial`; nothing if the box is closed without an answer.
  virtual std::optional<std::string> AskText(const std::string& prompt,
                                             const std::string& initial) = 0;
};

}  // namespace numorra
