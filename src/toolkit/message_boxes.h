#pragma once

#include <functional>

#include <QWidget>

#include "app/ports/dialogs.h"

namespace numorra {

/// The toolkit's own boxes over the window.
class MessageBoxes : public Dialogs {
 public:
  explicit MessageBoxes(QWidget* window) : window_(window) {}

  std::function<void()> BeforeBox;  ///< updates what is visible beside a box

  void Tell(const std::string& message) override;
  bool Ask(const std::string& question) override;
  std::optional<std::string> AskText(const std::string& prompt,
                                     const std::string& initial) override;

 private:
  void Prepare() const;

  QWidget* window_;
};

}  // namespace numorra
