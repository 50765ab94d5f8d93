#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QUrl>

#include "fuzz/check.h"
#include "help/help_page.h"

using namespace numorra;

/// Whatever a link says, only files in the folder are served.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const QTemporaryDir root;
  static const QString folder = [] {
    QDir(root.path()).mkpath("program/nrhelp");
    for (const char* name : {"/secret", "/program/nrhelp.htm", "/program/nrhelp/a"}) {
      QFile file(root.path() + name);
      Check(file.open(QFile::WriteOnly));
    }
    return root.path() + "/program";
  }();
  const QString link =
      QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<int>(size));
  const QUrl base = QUrl::fromLocalFile(HelpPageIn(folder));
  for (const QUrl& url : {base.resolved(QUrl(link)), QUrl(link), QUrl::fromLocalFile(link)}) {
    if (!StandsIn(folder, url)) continue;
    const QString real = QFileInfo(url.toLocalFile()).canonicalFilePath();
    Check(real.startsWith(QFileInfo(folder).canonicalFilePath() + "/"));
    Check(!real.endsWith("/secret"));
  }
  return 0;
}
