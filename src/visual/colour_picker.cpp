#include "visual/colour_picker.h"

#include <QGridLayout>
#include <QPainter>

#include "app/board/numbers.h"
#include "toolkit/named.h"
#include "toolkit/tr.h"

namespace numorra {
namespace {

constexpr std::array kFirstColour = {20, 90, 160};
struct ChannelName {
  const char* Name;
  const char* Alone;
};
constexpr std::array<ChannelName, 3> kChannelNames = {{{Mark("red"), Mark("red alone")},
                                                       {Mark("green"), Mark("green alone")},
                                                       {Mark("blue"), Mark("blue alone")}}};

}  // namespace

Swatch::Swatch(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::Fixed);
}

void Swatch::Show(QColor colour) {
  colour_ = colour;
  update();
}

QSize Swatch::sizeHint() const {
  return {fontMetrics().height(), fontMetrics().height()};
}

void Swatch::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(palette().color(QPalette::Mid));
  painter.setBrush(colour_);
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

ColourPicker::ColourPicker(QWidget* parent)
    : QGroupBox(TrIn("frame", "Colors"), parent),
      Bars{Named("hsrRed", new QScrollBar), Named("hsrGreen", new QScrollBar),
           Named("hsrBlue", new QScrollBar)},
      Degrees{Named("lblRedDegree", new QLabel("255")), Named("lblGreenDegree", new QLabel("255")),
              Named("lblBlueDegree", new QLabel("255"))},
      PicRGB{Named("PicRGB0", new Swatch), Named("PicRGB1", new Swatch),
             Named("PicRGB2", new Swatch)},
      picColorToUse(Named("picColorToUse", new Swatch)),
      Command3(Named("Command3", new QPushButton(TrIn("colors", "Sho&w")))) {
  setObjectName("Frame7");
  Command3->setToolTip(Tr("Shade the cells in this color, larger numbers lighter"));
  picColorToUse->setAccessibleName(Tr("the mixed color"));
  auto* layout = new QGridLayout(this);
  for (std::size_t channel = 0; channel < kChannels; ++channel) {
    QScrollBar* bar = Bars[channel];
    bar->setOrientation(Qt::Horizontal);
    bar->setRange(0, 255);
    bar->setPageStep(16);
    bar->setValue(kFirstColour[channel]);
    bar->setFocusPolicy(Qt::StrongFocus);
    const QString name = Tr(kChannelNames[channel].Name);
    bar->setAccessibleName(name);
    bar->setToolTip(name);
    PicRGB[channel]->setAccessibleName(Tr(kChannelNames[channel].Alone));
    QLabel* degree = Degrees[channel];
    degree->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    degree->setMinimumWidth(degree->fontMetrics().horizontalAdvance("000"));
    const int row = static_cast<int>(channel);
    PicRGB[channel]->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    layout->addWidget(new QLabel(name.left(1).toUpper()), row, 0);
    layout->addWidget(PicRGB[channel], row, 1);
    layout->addWidget(bar, row, 2);
    layout->addWidget(degree, row, 3);
    connect(bar, &QScrollBar::valueChanged, this, [this, channel] {
      ChangeBar(channel);
      Q_EMIT Changed();
    });
  }
  layout->setColumnStretch(2, 1);
  auto* bottom = new QHBoxLayout;
  bottom->addWidget(picColorToUse, 1);
  bottom->addWidget(Command3, 1);
  layout->addLayout(bottom, kChannels, 0, 1, 4);
}

void ColourPicker::ShowBars() {
  for (std::size_t channel = 0; channel < kChannels; ++channel)
    ChangeBar(channel);
}

void ColourPicker::ChangeBar(std::size_t channel) {
  picColorToUse->Show({Bars[0]->value(), Bars[1]->value(), Bars[2]->value()});
  for (std::size_t i = 0; i < kChannels; ++i)
    Degrees[i]->setNum(Bars[i]->value());
  const auto alone = [&](std::size_t i) { return i == channel ? Bars[i]->value() : 0; };
  PicRGB[channel]->Show({alone(0), alone(1), alone(2)});
}

Colour ColourPicker::Picked() const {
  const auto degree = [this](std::size_t channel) {
    return ToInt16(Val(Degrees[channel]->text().toStdString()));
  };
  return Rgb(degree(0), degree(1), degree(2));
}

}  // namespace numorra
