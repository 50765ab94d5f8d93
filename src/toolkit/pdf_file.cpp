#include "toolkit/pdf_file.h"

#include <algorithm>

#include <QBuffer>
#include <QHashSeed>

namespace numorra {
namespace {

/// Overwrites the date with blanks, because the file refers to its parts by their position. The
/// toolkit cannot leave it out. A title cannot be taken for the date: it is in UTF-16.
void RemoveDate(QByteArray& pdf) {
  const qsizetype start = pdf.indexOf("/CreationDate (D:");
  const qsizetype end = start < 0 ? -1 : pdf.indexOf(')', start);
  if (end >= 0) std::fill(pdf.begin() + start, pdf.begin() + end + 1, ' ');
}

/// Gives the hash tables that are made meanwhile the same order in every run: the toolkit keeps the
/// fonts of a file in one.
class SameOrder {
 public:
  SameOrder() { QHashSeed::setDeterministicGlobalSeed(); }
  ~SameOrder() { QHashSeed::resetRandomGlobalSeed(); }
  SameOrder(const SameOrder&) = delete;
  SameOrder& operator=(const SameOrder&) = delete;
};

}  // namespace

QByteArray PdfOf(const std::function<void(QPdfWriter&)>& paint) {
  QBuffer file;
  file.open(QIODevice::WriteOnly);
  {
    const SameOrder order;
    QPdfWriter writer(&file);
    paint(writer);
  }
  QByteArray bytes = file.data();
  RemoveDate(bytes);
  return bytes;
}

}  // namespace numorra
