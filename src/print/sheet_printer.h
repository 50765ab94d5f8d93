#pragma once

#include <memory>
#include <string>

#include <QPrinter>
#include <QWidget>

namespace numorra {

/// What puts a sheet of text on paper.
class SheetPrinter {
 public:
  virtual ~SheetPrinter() = default;

  /// Lets the player choose where to print; false when nothing is to be printed.
  virtual bool Choose(QWidget* window) = 0;

  /// Prints the text in one job. Throws PrinterError when that cannot begin or fails on the way,
  /// FileError when a PDF cannot be written.
  virtual void Print(const std::string& text) = 0;
};

/// A landscape page in "courier new" at 8 points on the printer, or PDF file, of the player's
/// choice.
class PaperPrinter : public SheetPrinter {
 public:
  bool Choose(QWidget* window) override;
  void Print(const std::string& text) override;

  /// Prints to a PDF file without asking.
  void PrintTo(const QString& pdfFile);

 private:
  QPrinter& Device();

  std::unique_ptr<QPrinter> device_;  // made at the first use: looking for printers takes time
};

}  // namespace numorra
