#pragma once

#include <functional>
#include <optional>

#include <QDialog>

#include "app/ports/yielding.h"
#include "toolkit/command_runner.h"

namespace numorra {

/// A dialog whose commands run beside those of the window and yield in the same way. It deletes
/// itself when it is closed.
class CommandForm : public QDialog {
  Q_OBJECT

 public:
  CommandForm(const char* name, const QString& title, Dialogs& dialogs, QWidget* parent);

  /// Closes the dialog. First stops a running command; the dialog stays until the command has
  /// ended.
  void done(int result) override;

 protected:
  CommandRunner runner_;

 private:
  Q_SLOT void CloseAtLast() { done(*closing_); }

  std::optional<int> closing_;  ///< the result to close with
};

/// Makes a dialog the stage of what it builds: it shows a text when that takes longer than a frame.
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
