#include "toolkit/command_form.h"

namespace numorra {

CommandForm::CommandForm(const char* name, const QString& title, Dialogs& dialogs, QWidget* parent)
    : QDialog(parent), runner_(dialogs) {
  setObjectName(name);
  setWindowTitle(title);
  setAttribute(Qt::WA_DeleteOnClose);
  runner_.OnEnd = [this](const std::string&) {
    if (closing_) QMetaObject::invokeMethod(this, "CloseAtLast", Qt::QueuedConnection);
  };
}

void CommandForm::done(int result) {
  runner_.Abandon();
  if (runner_.Running()) {
    closing_ = result;
  } else {
    QDialog::done(result);
  }
}

}  // namespace numorra
