#pragma once

#include <QComboBox>
#include <QFile>
#include <QTemporaryDir>

#include "app/board/position.h"
#include "support/window_fixture.h"

namespace numorra {

/// Returns the given file names.
struct ScriptedFiles : FileChooser {
  QString ToOpen(QWidget*, const QString&, const QString&) override { return Name; }
  QString ToSave(QWidget*, const QString&, const QString& kinds) override {
    Kinds = kinds;
    return Name;
  }
  QString Name;
  QString Kinds;  ///< that were asked for last
};

/// A window whose files are in a folder that does not outlive the test.
class FilesWindowTest : public WindowTest {
 protected:
  FilesWindowTest() : WindowTest({.Files = &files_}) {}

  QString In(const char* name) { return folder_.filePath(name); }

  void Trigger(const char* action, const QString& name) {
    files_.Name = name;
    Find<QAction>(action).trigger();
  }

  /// Opens the dialog for pictures; `kind` is an index of its list.
  QDialog& OpenExport(const QString& name, int kind) {
    for (auto* old : window_.findChildren<QDialog*>("ExportPicture"))
      delete old;
    Trigger("ExportPicturex", name);
    auto& form = Find<QDialog>("ExportPicture");
    form.findChild<QComboBox*>("PictureKind")->setCurrentIndex(kind);
    return form;
  }

  void Export(const QString& name, int kind) {
    OpenExport(name, kind).findChild<QAbstractButton*>("TakePicturex")->click();
  }

  QString Written(const char* name, const QByteArray& bytes) {
    QFile file(In(name));
    EXPECT_TRUE(file.open(QFile::WriteOnly));
    file.write(bytes);
    return file.fileName();
  }

  QByteArray Read(const char* name) {
    QFile file(In(name));
    return file.open(QFile::ReadOnly) ? file.readAll() : "no file";
  }

  Position Now() { return PositionOf(window_.TheBoard()); }

  ScriptedFiles files_;
  QTemporaryDir folder_;
};

}  // namespace numorra
