#include "toolkit/picture_file.h"

#include <QBuffer>
#include <QPdfWriter>
#include <QSvgGenerator>

#include "app/board/runtime_error.h"
#include "toolkit/whole_file.h"

namespace numorra {
namespace {

constexpr int kVectorUnits = 4000;

/// Paints on a device of another size than the units of `paint`.
void PaintScaled(QPaintDevice& device, const std::function<void(QPainter&)>& paint) {
  QPainter painter(&device);
  painter.setWindow(0, 0, kVectorUnits, kVectorUnits);
  paint(painter);
}

void WritePng(QBuffer& file, int pixels, const std::function<void(QPainter&)>& paint) {
  QImage picture(pixels, pixels, QImage::Format_RGB32);
  if (picture.isNull()) {
    const std::string side = std::to_string(pixels);
    throw RuntimeError(Fault::FileError,
                       "there is no memory for " + side + " x " + side + " pixels");
  }
  picture.fill(Qt::white);
  QPainter painter(&picture);
  paint(painter);
  painter.end();
  picture.save(&file, "PNG");
}

void WriteSvg(QBuffer& file, int millimetres, const std::function<void(QPainter&)>& paint) {
  constexpr int kPerMillimetre = 10;
  constexpr int kPerInch = 254;
  QSvgGenerator generator;
  generator.setOutputDevice(&file);
  generator.setTitle("Magic square");
  generator.setDescription("");
  generator.setResolution(kPerInch);
  generator.setSize(QSize(millimetres, millimetres) * kPerMillimetre);
  generator.setViewBox(QRect(0, 0, kVectorUnits, kVectorUnits));
  QPainter painter(&generator);
  painter.fillRect(QRect(0, 0, kVectorUnits, kVectorUnits), Qt::white);
  paint(painter);
}

void WritePdf(QBuffer& file, int millimetres, const std::function<void(QPainter&)>& paint) {
  QPdfWriter writer(&file);
  writer.setPageMargins({});
  writer.setPageSize(QPageSize(QSizeF(millimetres, millimetres), QPageSize::Millimeter, QString(),
                               QPageSize::ExactMatch));
  PaintScaled(writer, paint);
}

}  // namespace

int UnitsOf(PictureKind kind, int size) {
  return FormatOf(kind).InPixels ? size : kVectorUnits;
}

void WritePicture(const QString& name, PictureKind kind, int size,
                  const std::function<void(QPainter&)>& paint) {
  const QString suffix = QString(".") + FormatOf(kind).Suffix;
  if (!name.endsWith(suffix, Qt::CaseInsensitive)) {
    throw RuntimeError(Fault::FileError, (name + " is not a " + suffix + " file").toStdString());
  }
  QBuffer file;
  file.open(QIODevice::WriteOnly);
  switch (kind) {
    case PictureKind::Png:
      WritePng(file, size, paint);
      break;
    case PictureKind::Svg:
      WriteSvg(file, size, paint);
      break;
    case PictureKind::Pdf:
      WritePdf(file, size, paint);
      break;
  }
  WriteWholeFile(name, file.data());
}

}  // namespace numorra
