#pragma once

#include <QComboBox>
#include <QGroupBox>
#include <QPushButton>

#include "listbox/list_boy.h"

namespace numorra {

/// The drop-down of corner values. It requests new entries when the player enters it by mouse or
/// keyboard, not when the focus returns from its own list or with the window.
class CornerBox : public QComboBox {
  Q_OBJECT

 public:
  using QComboBox::QComboBox;

 Q_SIGNALS:
  void Entered();

 protected:
  void focusInEvent(QFocusEvent* event) override;
};

/// The "Corners" frame: the value for the top left corner, and the two corner passes.
class CornersFrame : public QGroupBox, public ListBox {
  Q_OBJECT

 public:
  explicit CornersFrame(QWidget* parent = nullptr);

  void AddItem(const std::string& text) override;
  int ListCount() const override;
  std::string List(int index) const override;

  CornerBox* const Combo1;
  QPushButton* const DoCor1;
  QPushButton* const DoCor2;
};

}  // namespace numorra
