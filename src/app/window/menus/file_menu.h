#pragma once

#include <variant>

#include <QMenuBar>

#include "app/window/menus/desk.h"
#include "files/stored_square.h"
#include "print/page_printer.h"
#include "print/sheet_printer.h"
#include "toolkit/file_chooser.h"

namespace numorra {

/// The File menu: opens, saves and prints boards, and ends the program.
class FileMenu : public QObject {
  Q_OBJECT

 public:
  /// The player's files and printers.
  struct Ports {
    FileChooser& Files;
    SheetPrinter& Sheets;
    PagePrinter& Pages;
  };

  FileMenu(QMenuBar* bar, Desk& desk, const Ports& ports);

  void Open(const QString& name);

  /// Opens the file; without such a file, the puzzle of a code.
  void OpenFileOrCode(const QString& name);

 private:
  void ChooseAndOpen();
  void Show(const std::variant<StoredSquare, Unreadable>& read);
  void Save();
  void OpenPrintForm();
  void OpenWorksheet();
  void ShowState();

  QWidget* window_;
  Desk& desk_;
  Ports ports_;
  QAction* save_;
  QAction* export_;
};

}  // namespace numorra
