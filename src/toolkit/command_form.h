#pragma once

#include <functional>
#include <optional>

#include <QDialog>

#include "app/ports/yielding.h"
#include "toolkit/command_runner.h"

namespace numorra {

/// A dialog with commands of its own, which run beside those of the window and are yielded to as
/// they are. It deletes itself once it is closed.
class CommandForm : public QDialog {
  Q_OBJECT

 public:
  CommandForm(const char* name, const QString& title, Dialogs& dialogs, QWidget* parent);

  /// Closes the dialog. A command that is running is stopped first, and the dialog stays until it
  /// has come to its end.
  void done(int result) override;

 protected:
  CommandRunner runner_;

 private:
  Q_SLOT void CloseAtLast() { done(*closing_); }

  std::optional<int> closing_;  ///< the result to close with
};

/// What a dialog makes yields here, and the dialog says so when that takes longer than a frame.
class FormYielding : public Yielding {
 public:
  FormYielding(CommandRunner& runner, std::function<void()> onWait)
      : runner_(runner), onWait_(std::move(onWait)) {}

  void Yield() override {
    if (runner_.YieldIsDue()) onWait_();
    runner_.Yield();
  }

 private:
  CommandRunner& runner_;
  std::function<void()> onWait_;
};

}  // namespace numorra
