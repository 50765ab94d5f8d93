#include "help/about_window.h"

#include <QEvent>
#include <QGridLayout>

#include "toolkit/named.h"
#include "toolkit/program_icon.h"
#include "toolkit/tr.h"

namespace numorra {
namespace {

constexpr int kPicturePixels = 96;

/// With an empty line above and below.
QString TextAbout() {
  return '\n' +
         Tr("Numorra - Feb 2004\nQuestions and ideas are welcome:\n%1", "numorra@example.org") +
         '\n';
}

}  // namespace

AboutForm::AboutForm(QWidget* parent)
    : QDialog(parent),
      AboutText(Named("AboutText", new QLabel(TextAbout()))),
      Picture1(Named("Picture1", new QLabel)),
      Label1(Named("Label1", new QLabel(Tr("Version %1", "1.0")))),
      AboutOk(Named("AboutOk", new QPushButton(Tr("OK")))) {
  setObjectName("AboutForm");
  setWindowTitle(Tr("About Numorra"));
  setAttribute(Qt::WA_DeleteOnClose);
  AboutText->setFont(QFont("MS Sans Serif"));
  AboutText->setTextFormat(Qt::PlainText);
  AboutText->installEventFilter(this);
  Picture1->setPixmap(ProgramIcon().pixmap(kPicturePixels));
  AboutOk->setDefault(true);

  auto* layout = new QGridLayout(this);
  layout->setSizeConstraint(QLayout::SetFixedSize);
  layout->setHorizontalSpacing(16);
  layout->addWidget(Picture1, 0, 0, 2, 1, Qt::AlignTop);
  layout->addWidget(AboutText, 0, 1);
  layout->addWidget(Label1, 1, 1);
  layout->addWidget(AboutOk, 2, 1, Qt::AlignRight);
  connect(AboutOk, &QPushButton::clicked, this, &QDialog::close);
}

bool AboutForm::eventFilter(QObject* watched, QEvent* event) {
  if (watched == AboutText && event->type() == QEvent::MouseButtonPress) {
    close();
    return true;
  }
  return QDialog::eventFilter(watched, event);
}

}  // namespace numorra
