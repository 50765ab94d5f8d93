#pragma once

#include <array>

#include <QCheckBox>
#include <QWidget>

#include "print/sheet_options.h"

namespace numorra {

/// The boxes for the options of a worksheet, side by side so that the dialog stays low.
class SheetOptionsBox : public QWidget {
  Q_OBJECT

 public:
  explicit SheetOptionsBox(const SheetOptions& options, QWidget* parent = nullptr);

  SheetOptions Options() const;

 Q_SIGNALS:
  void Changed();

 private:
  static constexpr std::size_t kOptions = 5;
  std::array<QCheckBox*, kOptions> boxes_;
};

}  // namespace numorra
