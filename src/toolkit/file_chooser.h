#pragma once

#include <QFileDialog>
#include <QString>
#include <QWidget>

namespace numorra {

/// A kind of files in the toolkit's form: what they are called, and the patterns of their names, as
/// "Squares (*.json *.csv)". Kinds are joined by ";;".
inline QString KindOfFiles(const QString& called, const QString& patterns) {
  return called + " (" + patterns + ")";
}

/// Asks the player for file names; an empty name means that nothing was chosen.
class FileChooser {
 public:
  virtual ~FileChooser() = default;

  /// Asks for an existing file. `kinds`: in the toolkit's form, see KindOfFiles.
  virtual QString ToOpen(QWidget* window, const QString& title, const QString& kinds) = 0;

  /// Asks for a name to write to, adding the suffix of the chosen kind if the player gives none.
  /// The player has agreed to replace an existing file.
  virtual QString ToSave(QWidget* window, const QString& title, const QString& kinds) = 0;
};

/// The toolkit's own dialogs, each opening in the folder of the previous one.
class FileDialogs : public FileChooser {
 public:
  QString ToOpen(QWidget* window, const QString& title, const QString& kinds) override;
  QString ToSave(QWidget* window, const QString& title, const QString& kinds) override;

 private:
  QString Choose(QFileDialog& dialog);

  QString folder_;
};

}  // namespace numorra
