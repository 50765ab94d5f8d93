#include "help/help_window.h"

#include <utility>

#include <QFile>
#include <QFileInfo>
#include <QHBoxLayout>

#include "help/help_page.h"
#include "toolkit/tr.h"
#include "toolkit/twips.h"

namespace numorra {
namespace {

constexpr int kSideMargin = 60;             // twips: 120 on both sides together
constexpr qint64 kLargestFile = 256 << 10;  // a longer page blocks the window for seconds

}  // namespace

FolderBrowser::FolderBrowser(QString folder, QWidget* parent)
    : QTextBrowser(parent), folder_(std::move(folder)) {
  setOpenExternalLinks(false);
  setFrameShape(QFrame::NoFrame);
}

QUrl FolderBrowser::Absolute(const QUrl& name) const {
  return QUrl::fromLocalFile(HelpPageIn(folder_)).resolved(name);
}

bool FolderBrowser::Serves(const QUrl& name) const {
  const QUrl url = Absolute(name);
  const QFileInfo file(url.toLocalFile());
  return StandsIn(folder_, url) && file.isFile() && file.size() <= kLargestFile;
}

QVariant FolderBrowser::loadResource(int type, const QUrl& name) {
  if (!Serves(name)) return {};
  QFile file(Absolute(name).toLocalFile());
  if (!file.open(QFile::ReadOnly)) return {};
  const QByteArray content = file.readAll();
  const bool page = type == QTextDocument::HtmlResource;
  return page && !IsFlat(content) ? QVariant() : content;
}

void FolderBrowser::doSetSource(const QUrl& name, QTextDocument::ResourceType) {
  if (Serves(name)) QTextBrowser::doSetSource(name, QTextDocument::HtmlResource);
}

HelpForm::HelpForm(const QString& folder, QWidget* parent)
    : QDialog(parent), wb1(new FolderBrowser(folder)) {
  setObjectName("HelpForm");
  setWindowTitle(Tr("Numorra Help"));
  setAttribute(Qt::WA_DeleteOnClose);
  wb1->setObjectName("wb1");
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(PixelsOf(kSideMargin), 0, PixelsOf(kSideMargin), 0);
  row->addWidget(wb1);
  resize(760, 640);

  const QString page = HelpPageIn(folder);
  wb1->setSource(QUrl::fromLocalFile(page));
  if (wb1->document()->isEmpty()) {
    wb1->setPlainText(
        Tr("The help page cannot be shown. It should be beside the program as\n%1", page));
  }
}

}  // namespace numorra
