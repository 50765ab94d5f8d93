#pragma once

#include <QDialog>
#include <QTextBrowser>

namespace numorra {

/// A viewer that shows only files of limited size in one folder: no other file, no outside address.
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

/// The help window (`HelpForm`), filled by the help page.
class HelpForm : public QDialog {
  Q_OBJECT

 public:
  /// `folder`: the program's own folder, which contains the help page.
  HelpForm(const QString& folder, QWidget* parent);

  FolderBrowser* const wb1;
};

}  // namespace numorra
