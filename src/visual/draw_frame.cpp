#include "visual/draw_frame.h"

#include <QGridLayout>

#include "toolkit/named.h"

namespace numorra {

DrawFrame::DrawFrame(QWidget* parent)
    : QGroupBox("Draw", parent), Command4(Named("Command4", new QPushButton("&Clear"))) {
  constexpr int kColumns = 2;
  setObjectName("Frame8");
  Command4->setToolTip("Show the board again");
  auto* layout = new QGridLayout(this);
  int place = 0;
  for (const DrawingKind* kind : kDrawingKinds) {
    auto* button = Named(kind->Button, new QPushButton(kind->Caption));
    button->setToolTip(kind->ToolTip);
    connect(button, &QPushButton::clicked, this, [this, kind] { Q_EMIT Chosen(kind); });
    Buttons[static_cast<std::size_t>(place)] = button;
    layout->addWidget(button, place / kColumns, place % kColumns);
    ++place;
  }
  layout->addWidget(Command4, (place + 1) / kColumns, 0, 1, kColumns);
}

}  // namespace numorra
