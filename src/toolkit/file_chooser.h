#pragma once

#include <QFileDialog>
#include <QString>
#include <QWidget>

namespace numorra {

/// Asks the player for the names of files; an empty name means that nothing was chosen.
class FileChooser {
 public:
  virtual ~FileChooser() = default;

  /// A file that is there. `kinds`: as the toolkit's file dialogs have them, "Squares (*.json
  /// *.csv)".
  virtual QString ToOpen(QWidget* window, const QString& title, const QString& kinds) = 0;

  /// A name to write to, with the suffix of the chosen kind where the player gives none; what is
  /// there is to be replaced.
  virtual QString ToSave(QWidget* window, const QString& title, const QString& kinds) = 0;
};

/// The toolkit's own dialogs, each in the folder of the one before.
class FileDialogs : public FileChooser {
 public:
  QString ToOpen(QWidget* window, const QString& title, const QString& kinds) override;
  QString ToSave(QWidget* window, const QString& title, const QString& kinds) override;

 private:
  QString Choose(QFileDialog& dialog);

  QString folder_;
};

}  // namespace numorra
