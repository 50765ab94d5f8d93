#include "app/window/menus/square_files.h"

#include <algorithm>

#include <QBuffer>
#include <QFileInfo>
#include <QPdfWriter>

#include "app/board/runtime_error.h"
#include "files/formats.h"
#include "puzzle/code.h"
#include "toolkit/whole_file.h"

namespace numorra {
namespace {

constexpr int kPictureScale = 2;
constexpr const char* kPictureSuffixes = "png pdf svg jpg jpeg gif bmp";

QPalette OnWhite() {
  QPalette palette;
  palette.setColor(QPalette::Window, Qt::white);
  palette.setColor(QPalette::WindowText, Qt::black);
  palette.setColor(QPalette::Mid, QColor(160, 160, 160));
  return palette;
}

bool EndsIn(const QString& name, const char* ending) {
  return name.endsWith(QLatin1String(ending), Qt::CaseInsensitive);
}

/// The formats that the window writes, the most complete one first.
std::vector<Format> WritableFormats() {
  std::vector<Format> formats;
  std::copy_if(std::rbegin(kFormats), std::rend(kFormats), std::back_inserter(formats),
               [](const Format& format) { return *format.Caption != '\0'; });
  return formats;
}

/// Writes what `paint` paints in an area of `size` pixels at `dpi` pixels per inch.
void Export(const QString& name, QSize size, int dpi, const std::function<void(QPainter&)>& paint) {
  if (!EndsIn(name, ".pdf") && !EndsIn(name, ".png")) {
    const std::string why = name.toStdString() + " is neither a .png nor a .pdf file";
    throw RuntimeError(Fault::FileError, why);
  }
  QBuffer file;
  file.open(QIODevice::WriteOnly);
  if (EndsIn(name, ".pdf")) {
    constexpr double kPointsPerInch = 72;
    QPdfWriter writer(&file);
    writer.setResolution(dpi);
    writer.setPageMargins({});
    writer.setPageSize(QPageSize(QSizeF(size) * kPointsPerInch / dpi, QPageSize::Point, QString(),
                                 QPageSize::ExactMatch));
    QPainter painter(&writer);
    paint(painter);
  } else {
    QImage picture(size * kPictureScale, QImage::Format_RGB32);
    picture.setDevicePixelRatio(kPictureScale);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    paint(painter);
    painter.end();
    picture.save(&file, "PNG");
  }
  WriteWholeFile(name, file.data());
}

}  // namespace

QString SquareKinds() {
  QStringList kinds;
  for (const Format& format : WritableFormats())
    kinds += QString("%1 (*.%2)").arg(format.Caption, format.Suffix);
  return kinds.join(";;");
}

QString ReadableKinds() {
  QStringList names;
  for (const Format& format : kFormats) {
    if (format.Read) names.prepend(QString("*.%1").arg(format.Suffix));
  }
  return "Squares (" + names.join(' ') + ");;All files (*)";
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
        name.toStdString() + " has a picture's suffix: use Export Picture to save pictures");
  }
  const auto formats = WritableFormats();
  const auto named = std::find_if(formats.begin(), formats.end(),
                                  [&](const Format& format) { return suffix == format.Suffix; });
  const Format& format = named == formats.end() ? formats.front() : *named;
  WriteWholeFile(name, QByteArray::fromStdString(format.Write(square, {})));
}

void ExportBoard(const QString& name, GridView& view) {
  Export(name, view.PictureSize(), view.logicalDpiX(),
         [&view](QPainter& painter) { view.PaintPicture(painter, OnWhite()); });
}

void ExportDrawing(const QString& name, Drawing& drawing) {
  Export(name, drawing.size(), drawing.logicalDpiX(),
         [&drawing](QPainter& painter) { drawing.Paint(painter, OnWhite()); });
}

}  // namespace numorra
