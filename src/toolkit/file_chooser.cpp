#include "toolkit/file_chooser.h"

#include <QFileDialog>

namespace numorra {
QString FileDialogs::Choose(QFileDialog& dialog) {
  if (dialog.exec() != QDialog::Accepted) return {};
  folder_ = dialog.directory().absolutePath();
  return dialog.selectedFiles().value(0);
}

QString FileDialogs::ToOpen(QWidget* window, const QString& title, const QString& kinds) {
  QFileDialog dialog(window, title, folder_, kinds);
  dialog.setFileMode(QFileDialog::ExistingFile);
  return Choose(dialog);
}

QString FileDialogs::ToSave(QWidget* window, const QString& title, const QString& kinds) {
  QFileDialog dialog(window, title, folder_, kinds);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  const auto takeSuffix = [&dialog](const QString& kind) {
    dialog.setDefaultSuffix(kind.section("*.", 1).section(')', 0, 0));
  };
  QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, takeSuffix);
  takeSuffix(dialog.selectedNameFilter());
  return Choose(dialog);
}

}  // namespace numorra
