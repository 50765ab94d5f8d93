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

/// Whether links lead from there to each other and to no file.
bool IsLinkInACircle(const QString& name) {
  std::error_code error;
  (void)std::filesystem::status(name.toStdString(), error);
  return error == std::errc::too_many_symbolic_link_levels;
}

}  // namespace

QByteArray ReadWholeFile(const QString& name, qint64 mostBytes) {
  const QFileInfo info(name);
  if (!info.exists()) Fail("there is no file " + name);
  if (!info.isFile()) Fail(name + " is no regular file");
  if (info.size() > mostBytes) Fail(name + " is too large to be a square");
  QFile file(name);
  if (!file.open(QFile::ReadOnly)) Fail("cannot read " + name + ": " + file.errorString());
  // One byte more than is taken, so that a file that grows meanwhile is noticed.
  QByteArray bytes = file.read(mostBytes + 1);
  if (file.error() != QFile::NoError) Fail("cannot read " + name + ": " + file.errorString());
  if (bytes.size() > mostBytes) Fail(name + " is too large to be a square");
  return bytes;
}

/// All bytes at once, as the toolkit forgets a write that failed when a later one does not.
void WriteWholeFile(const QString& name, const QByteArray& bytes) {
  if (IsLinkInACircle(name)) Fail(name + " is a link that leads to no file");
  if (const QFileInfo info(name); info.exists() && !info.isFile()) {
    Fail(name + " is no regular file");
  }
  QSaveFile file(name);
  if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush() ||
      !file.commit()) {
    Fail("cannot write " + name + ": " + file.errorString());
  }
}

}  // namespace numorra
