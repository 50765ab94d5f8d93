#include "toolkit/message_boxes.h"

#include <QInputDialog>
#include <QMessageBox>

namespace numorra {
namespace {

QMessageBox::StandardButton Show(QWidget* window, QMessageBox::Icon icon, const std::string& text,
                                 QMessageBox::StandardButtons buttons) {
  QMessageBox box(icon, kApplicationTitle, QString::fromStdString(text), buttons, window);
  box.setTextFormat(Qt::PlainText);
  return static_cast<QMessageBox::StandardButton>(box.exec());
}

}  // namespace

void MessageBoxes::Prepare() const {
  if (BeforeBox) BeforeBox();
}

void MessageBoxes::Tell(const std::string& message) {
  Prepare();
  Show(window_, QMessageBox::NoIcon, message, QMessageBox::Ok);
}

bool MessageBoxes::Ask(const std::string& question) {
  Prepare();
  return Show(window_, QMessageBox::Question, question, QMessageBox::Yes | QMessageBox::No) ==
         QMessageBox::Yes;
}

std::optional<std::string> MessageBoxes::AskText(const std::string& prompt,
                                                 const std::string& initial) {
  Prepare();
  bool answered = false;
  const QString text =
      QInputDialog::getText(window_, kApplicationTitle, QString::fromStdString(prompt),
                            QLineEdit::Normal, QString::fromStdString(initial), &answered);
  return answered ? std::optional(text.toStdString()) : std::nullopt;
}

}  // namespace numorra
