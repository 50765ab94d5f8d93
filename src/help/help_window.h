#pragma once

#include <QDialog>
#include <QTextBrowser>

namespace numorra {

/// A viewer that shows nothing but files of a sensible size in one folder: no other file, no
/// address outside.
class FolderBrowser : public QTextBrowser {
  Q_OBJECT

 public:
  explicit FolderBrowser(QString folder, QWidget* parent = nullptr);

  QVariant loadResource(int type, const QUrl& name) override;

 protected:
  void doSetSource(const QUrl& name, QTextDocument::ResourceType type) override;

 private:
  QUrl Absolute(const QUrl& name) const;
  bool Serves(const QUrl& name) const;

  QString folder_;
};

/// The help window (`HelpForm`): the help page, filling it.
class HelpForm : public QDialog {
  Q_OBJECT

 public:
  /// `folder`: where the help page stands, the program's own folder.
  HelpForm(const QString& folder, QWidget* parent);

  FolderBrowser* const wb1;
};

}  // namespace numorra
