#include "toolkit/whole_file.h"

#include <filesystem>
#include <system_error>

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include "app/board/runtime_error.h"
#include "toolkit/tr.h"

namespace numorra {
namespace {

[[noreturn]] void Fail(const QString& why) {
  throw RuntimeError(Fault::FileError, why.toStdString());
}

[[noreturn]] void FailToRead(const QFile& file) {
  // Translators: %1 is a file's name, %2 the system's reason.
  Fail(Tr("cannot read %1: %2", file.fileName(), file.errorString()));
}

/// Whether `name` is a link that only leads to other links in a circle.
bool IsLinkInACircle(const QString& name) {
  std::error_code error;
  (void)std::filesystem::status(name.toStdString(), error);
  return error == std::errc::too_many_symbolic_link_levels;
}

}  // namespace

QByteArray ReadWholeFile(const QString& name, qint64 mostBytes) {
  const QFileInfo info(name);
  if (!info.exists()) Fail(Tr("there is no file %1", name));
  if (!info.isFile()) Fail(Tr("%1 is not a regular file", name));
  if (info.size() > mostBytes) Fail(Tr("%1 is too large to be a square", name));
  QFile file(name);
  if (!file.open(QFile::ReadOnly)) FailToRead(file);
  // Reads one byte more than allowed, to notice a file that grows meanwhile.
  QByteArray bytes = file.read(mostBytes + 1);
  if (file.error() != QFile::NoError) FailToRead(file);
  if (bytes.size() > mostBytes) Fail(Tr("%1 is too large to be a square", name));
  return bytes;
}

/// Writes all bytes at once: the toolkit forgets a failed write when a later one succeeds.
void WriteWholeFile(const QString& name, const QByteArray& bytes) {
  if (IsLinkInACircle(name)) Fail(Tr("%1 is a link that does not lead to a file", name));
  if (const QFileInfo info(name); info.exists() && !info.isFile()) {
    Fail(Tr("%1 is not a regular file", name));
  }
  QSaveFile file(name);
  if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush() ||
      !file.commit()) {
    Fail(Tr("cannot write %1: %2", name, file.errorString()));
  }
}

}  // namespace numorra
