#pragma once

#include <QDialog>
#include <QLabel>
#include <QPushButton>

namespace numorra {

/// The About window (`AboutForm`). Its button, a click on the text or Esc closes it.
class AboutForm : public QDialog {
  Q_OBJECT

 public:
  explicit AboutForm(QWidget* parent);

  QLabel* const AboutText;
  QLabel* const Picture1;
  QLabel* const Label1;
  QPushButton* const AboutOk;

  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace numorra
