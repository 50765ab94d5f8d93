#pragma once

#include "app/window/menus/keep_items.h"
#include "print/page_printer.h"
#include "print/sheet_printer.h"
#include "toolkit/command_runner.h"
#include "toolkit/file_chooser.h"
#include "toolkit/message_boxes.h"

namespace numorra {

/// What the window needs from outside; it provides anything that is missing itself.
struct World {
  Dialogs* TheDialogs = nullptr;
  SheetPrinter* Printer = nullptr;
  PagePrinter* Pages = nullptr;
  FileChooser* Files = nullptr;
  int FrameMilliseconds = CommandRunner::kFrameMilliseconds;
  KeptFolders Kept = {};  ///< without them, the window keeps nothing
};

/// A world with nothing missing.
class WholeWorld {
 public:
  WholeWorld(const World& world, QWidget* window)
      : Boxes(window),
        TheDialogs(world.TheDialogs ? *world.TheDialogs : Boxes),
        Printer(world.Printer ? *world.Printer : paper_),
        Pages(world.Pages ? *world.Pages : preview_),
        Files(world.Files ? *world.Files : choosers_) {}

  MessageBoxes Boxes;  ///< the window's own dialogs
  Dialogs& TheDialogs;
  SheetPrinter& Printer;
  PagePrinter& Pages;
  FileChooser& Files;

 private:
  PaperPrinter paper_;
  PreviewedPages preview_;
  FileDialogs choosers_;
};

}  // namespace numorra
