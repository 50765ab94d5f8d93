#include "toolkit/program_icon.h"

static void LoadIcons() {
  Q_INIT_RESOURCE(icons);
}  // a static library needs this call

namespace numorra {

QIcon ProgramIcon() {
  LoadIcons();
  QIcon icon;
  for (const int size : {16, 32, 48, 256}) {
    icon.addFile(QString(":/icons/numorra-%1.png").arg(size));
  }
  return icon;
}

}  // namespace numorra
