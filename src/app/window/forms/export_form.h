#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QSpinBox>

#include "toolkit/command_form.h"
#include "toolkit/picture_file.h"

namespace numorra {

/// What a picture of a puzzle shows.
enum class PictureSubject { AsItStands, Puzzle, Solution };

/// What was last chosen for pictures.
struct PictureChoice {
  PictureKind Kind = PictureKind::Png;
  int Pixels = 1600;
  int Millimetres = 150;
  PictureSubject Subject = PictureSubject::AsItStands;
  bool Totals = true;

  /// The side in the unit of the kind.
  int Size() const { return FormatOf(Kind).InPixels ? Pixels : Millimetres; }
};

/// The dialog (`ExportPicture`) that asks what a picture should be like.
class ExportForm : public CommandForm {
  Q_OBJECT

 public:
  /// What there is to choose from.
  struct Offer {
    bool Puzzle = false;    ///< the board is one
    bool Solution = false;  ///< and its solution is known
    bool Totals = true;     ///< a drawing has none
  };

  ExportForm(const PictureChoice& choice, const Offer& offer, Dialogs& dialogs, QWidget* parent);

 Q_SIGNALS:
  /// The player has chosen; what was not offered is as it was before.
  void Taken(const PictureChoice& choice);

 private:
  void OfferSubjects(const Offer& offer);
  void ShowSize();
  void TakeSize(int size);

  PictureChoice choice_;
  QComboBox* kind_;
  QSpinBox* size_;
  QComboBox* subject_;
  QCheckBox* totals_;
};

}  // namespace numorra
