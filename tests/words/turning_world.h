#pragma once

#include <optional>
#include <string>

#include <QFile>
#include <QTemporaryDir>

#include "app/ports/dialogs.h"
#include "print/page_printer.h"
#include "print/sheet_printer.h"
#include "toolkit/file_chooser.h"
#include "words/texts.h"

/// A world around the window in which everything happens in turn: right answers and wrong ones.
namespace numorra {

/// Answers every box in turn, and keeps what it says.
struct TurningDialogs : Dialogs {
  explicit TurningDialogs(Texts& texts) : Told(texts) {}
  void Tell(const std::string& message) override { Told.Add(message); }
  bool Ask(const std::string& question) override {
    Told.Add(question);
    return ++Turn % 2 == 0;
  }
  std::optional<std::string> AskText(const std::string& prompt, const std::string&) override {
    Told.Add(prompt);
    static constexpr const char* kAnswers[] = {"x", "7", "1,2,3,4", "12345678901234567890", "-3"};
    if (++Turn % 6 == 0) return std::nullopt;
    return kAnswers[Turn % 6 - 1];
  }
  Texts& Told;
  std::size_t Turn = 0;
};

struct NoPaper : PagePrinter, SheetPrinter {
  void Preview(QWidget*, const PaintedPages&) override {}
  bool Choose(QWidget*) override { return true; }
  void Print(const std::string&) override {}
};

/// Opens one wrong file after the other, and saves in a folder of its own and where it cannot.
struct TurningFiles : FileChooser {
  QString ToOpen(QWidget*, const QString&, const QString& kinds) override {
    if (Told) Told->Add(kinds.toStdString());
    if (++Turn % 2 == 0) return "/nowhere/a.json";
    QFile file(Folder.filePath("wrong.txt"));
    file.open(QFile::WriteOnly);
    file.write(Turn % 3 == 0 ? "1 2 3\n4 5\n" : "no numbers");
    return file.fileName();
  }
  QString ToSave(QWidget*, const QString&, const QString& kinds) override {
    if (Told) Told->Add(kinds.toStdString());
    return ++Turn % 2 == 0 ? "/nowhere/a.json" : Folder.filePath("a.json");
  }
  QTemporaryDir Folder;
  Texts* Told = nullptr;
  std::size_t Turn = 0;
};

}  // namespace numorra
