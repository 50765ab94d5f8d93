#pragma once

#include <QCheckBox>
#include <QGroupBox>

namespace numorra {

/// The "Limit to 9" frame.
class LimitFrame : public QGroupBox {
  Q_OBJECT

 public:
  explicit LimitFrame(QWidget* parent = nullptr);

  QCheckBox* const Option1;
};

}  // namespace numorra
