#include "visual/draw_frame.h"

#include <QGridLayout>

#include "toolkit/named.h"
#include "toolkit/tr.h"

namespace numorra {

DrawFrame::DrawFrame(QWidget* parent)
    : QGroupBox(TrIn("frame", "Draw"), parent),
      Command4(Named("Command4", new QPushButton(Tr("&Clear")))) {
  constexpr int kColumns = 2;
  setObjectName("Frame8");
  Command4->setToolTip(Tr("Show the board again"));
  auto* layout = new QGridLayout(this);
  int place = 0;
  for (const DrawingKind* kind : kDrawingKinds) {
    auto* button = Named(kind->Button, new QPushButton(Tr(kind->Caption)));
    button->setToolTip(Tr(kind->ToolTip));
    connect(button, &QPushButton::clicked, this, [this, kind] { Q_EMIT Chosen(kind); });
    Buttons[static_cast<std::size_t>(place)] = button;
    layout->addWidget(button, place / kColumns, place % kColumns);
    ++place;
  }
  layout->addWidget(Command4, (place + 1) / kColumns, 0, 1, kColumns);
}

}  // namespace numorra
