#include "toolkit/whole_file.h"

#include <filesystem>
#include <system_error>

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include "app/board/runtime_error.h"

namespace numorra {
namespace {

[[noreturn]] void Fail(const QString& what) {
  throw RuntimeError(Fault::FileError, what.toStdString());
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
  if (!info.exists()) Fail("there is no file " + name);
  if (!info.isFile()) Fail(name + " is not a regular file");
  if (info.size() > mostBytes) Fail(name + " is too large to be a square");
  QFile file(name);
  if (!file.open(QFile::ReadOnly)) Fail("cannot read " + name + ": " + file.errorString());
  // Reads one byte more than allowed, to notice a file that grows meanwhile.
  QByteArray bytes = file.read(mostBytes + 1);
  if (file.error() != QFile::NoError) Fail("cannot read " + name + ": " + file.errorString());
  if (bytes.size() > mostBytes) Fail(name + " is too large to be a square");
  return bytes;
}

/// Writes all bytes at once: the toolkit forgets a failed write when a later one succeeds.
void WriteWholeFile(const QString& name, const QByteArray& bytes) {
  if (IsLinkInACircle(name)) Fail(name + " is a link that does not lead to a file");
  if (const QFileInfo info(name); info.exists() && !info.isFile()) {
    Fail(name + " is not a regular file");
  }
  QSaveFile file(name);
  if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush() ||
      !file.commit()) {
    Fail("cannot write " + name + ": " + file.errorString());
  }
}

}  // namespace numorra
