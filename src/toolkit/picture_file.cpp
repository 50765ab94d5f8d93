#include "toolkit/picture_file.h"

#include <QBuffer>
#include <QSvgGenerator>

#include "app/board/runtime_error.h"
#include "toolkit/pdf_file.h"
#include "toolkit/tr.h"
#include "toolkit/whole_file.h"

namespace numorra {
namespace {

constexpr int kVectorUnits = 4000;

QByteArray PngOf(int pixels, const std::function<void(QPainter&)>& paint) {
  QImage picture(pixels, pixels, QImage::Format_RGB32);
  if (picture.isNull()) {
    throw RuntimeError(Fault::FileError, Say("there is no memory for %1 x %1 pixels", pixels));
  }
  picture.fill(Qt::white);
  QPainter painter(&picture);
  paint(painter);
  painter.end();
  QBuffer file;
  file.open(QIODevice::WriteOnly);
  picture.save(&file, "PNG");
  return file.data();
}

QByteArray SvgOf(int millimetres, const std::function<void(QPainter&)>& paint) {
  constexpr int kPerMillimetre = 10;
  constexpr int kPerInch = 254;
  QBuffer file;
  file.open(QIODevice::WriteOnly);
  QSvgGenerator generator;
  generator.setOutputDevice(&file);
  generator.setTitle(Tr("Magic square"));
  generator.setDescription("");
  generator.setResolution(kPerInch);
  generator.setSize(QSize(millimetres, millimetres) * kPerMillimetre);
  generator.setViewBox(QRect(0, 0, kVectorUnits, kVectorUnits));
  QPainter painter(&generator);
  painter.fillRect(QRect(0, 0, kVectorUnits, kVectorUnits), Qt::white);
  paint(painter);
  painter.end();
  return file.data();
}

QByteArray PagePdfOf(int millimetres, const std::function<void(QPainter&)>& paint) {
  return PdfOf([&](QPdfWriter& writer) {
    writer.setPageMargins({});
    writer.setPageSize(QPageSize(QSizeF(millimetres, millimetres), QPageSize::Millimeter, QString(),
                                 QPageSize::ExactMatch));
    QPainter painter(&writer);
    painter.setWindow(0, 0, kVectorUnits, kVectorUnits);
    paint(painter);
  });
}

}  // namespace

int UnitsOf(PictureKind kind, int size) {
  return FormatOf(kind).InPixels ? size : kVectorUnits;
}

void WritePicture(const QString& name, PictureKind kind, int size,
                  const std::function<void(QPainter&)>& paint) {
  const QString suffix = QString(".") + FormatOf(kind).Suffix;
  if (!name.endsWith(suffix, Qt::CaseInsensitive)) {
    throw RuntimeError(Fault::FileError,
                       // Translators: %1 is a file's name, %2 is a suffix such as ".png".
                       Say("%1 is not a %2 file", name.toStdString(), suffix.toStdString()));
  }
  WriteWholeFile(name, kind == PictureKind::Png   ? PngOf(size, paint)
                       : kind == PictureKind::Svg ? SvgOf(size, paint)
                                                  : PagePdfOf(size, paint));
}

}  // namespace numorra
