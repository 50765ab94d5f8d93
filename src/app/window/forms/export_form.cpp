#include "app/window/forms/export_form.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QSignalBlocker>

#include "toolkit/named.h"
#include "toolkit/on_signal.h"
#include "toolkit/tr.h"

namespace numorra {
namespace {

constexpr int kFewestPixels = 100;
constexpr int kMostPixels = 8000;
constexpr int kFewestMillimetres = 20;
constexpr int kMostMillimetres = 1000;

}  // namespace

ExportForm::ExportForm(const PictureChoice& choice, const Offer& offer, Dialogs& dialogs,
                       QWidget* parent)
    : CommandForm("ExportPicture", Tr("Export Picture"), dialogs, parent),
      choice_(choice),
      kind_(Named("PictureKind", new QComboBox)),
      size_(Named("PictureSize", new QSpinBox)),
      subject_(Named("PictureSubject", new QComboBox)),
      totals_(Named("PictureTotalsx", new QCheckBox(Tr("with the &totals")))) {
  for (const PictureFormat& format : kPictureFormats)
    kind_->addItem(format.Caption);
  kind_->setCurrentIndex(static_cast<int>(choice.Kind));
  totals_->setChecked(choice.Totals);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
  auto* take =
      Named("TakePicturex", buttons->addButton(Tr("&Save..."), QDialogButtonBox::AcceptRole));
  auto* rows = new QFormLayout(this);
  rows->addRow(Tr("&Kind"), kind_);
  rows->addRow(Tr("Si&ze"), size_);
  if (offer.Puzzle) {
    OfferSubjects(offer);
    rows->addRow(Tr("Sho&w"), subject_);
  } else {
    subject_->setParent(this);
    subject_->hide();
  }
  rows->addRow("", totals_);
  totals_->setVisible(offer.Totals);
  rows->addRow(buttons);
  ShowSize();

  OnSignal(runner_, kind_, &QComboBox::currentIndexChanged, this, [this](int kind) {
    choice_.Kind = static_cast<PictureKind>(kind);
    ShowSize();
  });
  OnSignal(runner_, size_, &QSpinBox::valueChanged, this, [this](int size) { TakeSize(size); });
  OnSignal(runner_, subject_, &QComboBox::currentIndexChanged, this,
           [this](int subject) { choice_.Subject = static_cast<PictureSubject>(subject); });
  OnSignal(runner_, totals_, &QCheckBox::toggled, this, [this](bool on) { choice_.Totals = on; });
  OnClick(runner_, buttons->button(QDialogButtonBox::Cancel), this, [this] { reject(); });
  OnClick(runner_, take, this, [this] {
    accept();
    Q_EMIT Taken(choice_);
  });
}

void ExportForm::OfferSubjects(const Offer& offer) {
  subject_->addItems({Tr("the board as it stands"), Tr("the puzzle alone")});
  if (offer.Solution) subject_->addItem(Tr("its solution"));
  const int chosen = static_cast<int>(choice_.Subject);
  if (chosen < subject_->count()) subject_->setCurrentIndex(chosen);
}

/// The size is measured in pixels or millimetres; each has a value of its own.
void ExportForm::ShowSize() {
  const QSignalBlocker quiet(size_);
  const bool pixels = FormatOf(choice_.Kind).InPixels;
  size_->setRange(pixels ? kFewestPixels : kFewestMillimetres,
                  pixels ? kMostPixels : kMostMillimetres);
  size_->setSuffix(pixels ? Tr(" pixels") : Tr(" mm"));
  size_->setValue(choice_.Size());
}

void ExportForm::TakeSize(int size) {
  (FormatOf(choice_.Kind).InPixels ? choice_.Pixels : choice_.Millimetres) = size;
}

}  // namespace numorra
