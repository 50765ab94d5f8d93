#include "app/window/menus/square_files.h"

#include <algorithm>

#include <QFileInfo>

#include "app/board/runtime_error.h"
#include "files/formats.h"
#include "puzzle/code.h"
#include "toolkit/file_chooser.h"
#include "toolkit/tr.h"
#include "toolkit/whole_file.h"

namespace numorra {
namespace {

constexpr const char* kPictureSuffixes = "png pdf svg jpg jpeg gif bmp";

/// The formats that the window writes, the most complete one first.
std::vector<Format> WritableFormats() {
  std::vector<Format> formats;
  std::copy_if(std::rbegin(kFormats), std::rend(kFormats), std::back_inserter(formats),
               [](const Format& format) { return *format.Caption != '\0'; });
  return formats;
}

}  // namespace

QString SquareKinds() {
  QStringList kinds;
  for (const Format& format : WritableFormats())
    kinds += KindOfFiles(Tr(format.Caption), QString("*.") + format.Suffix);
  return kinds.join(";;");
}

QString ReadableKinds() {
  QStringList names;
  for (const Format& format : kFormats) {
    if (format.Read) names.prepend(QString("*.%1").arg(format.Suffix));
  }
  return KindOfFiles(Tr("Squares"), names.join(' ')) + ";;" + KindOfFiles(Tr("All files"), "*");
}

std::variant<StoredSquare, Unreadable> OpenSquare(const QString& name) {
  QByteArray bytes = ReadWholeFile(name, kMostTextBytes);
  if (bytes.startsWith("\xEF\xBB\xBF")) bytes.remove(0, 3);  // a byte-order mark
  return ReadSquareOrCode(bytes.toStdString());
}

void SaveSquare(const QString& name, const StoredSquare& square) {
  const QString suffix = QFileInfo(name).suffix().toLower();
  if (QString(kPictureSuffixes).split(' ').contains(suffix)) {
    throw RuntimeError(
        Fault::FileError,
        Say("%1 has a picture's suffix: use Export Picture to save pictures", name.toStdString()));
  }
  const auto formats = WritableFormats();
  const auto named = std::find_if(formats.begin(), formats.end(),
                                  [&](const Format& format) { return suffix == format.Suffix; });
  const Format& format = named == formats.end() ? formats.front() : *named;
  WriteWholeFile(name, QByteArray::fromStdString(format.Write(square, {})));
}

}  // namespace numorra
