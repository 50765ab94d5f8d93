#pragma once

#include <memory>
#include <string>

#include <QPrinter>
#include <QWidget>

namespace numorra {

/// Prints a sheet of text.
class SheetPrinter {
 public:
  virtual ~SheetPrinter() = default;

  /// Lets the player choose where to print; false if nothing is to be printed.
  virtual bool Choose(QWidget* window) = 0;

  /// Prints the text in one job. Throws PrinterError if printing cannot begin or fails, FileError
  /// if a PDF cannot be written.
  virtual void Print(const std::string& text) = 0;
};

/// Prints a landscape page in "courier new" at 8 points on the printer, or to the PDF file, that
/// the player chooses.
class PaperPrinter : public SheetPrinter {
 public:
  bool Choose(QWidget* window) override;
  void Print(const std::string& text) override;

  /// Prints to a PDF file without asking.
  void PrintTo(const QString& pdfFile);

 private:
  QPrinter& Device();

  std::unique_ptr<QPrinter> device_;  // created at first use: looking for printers takes time
};

}  // namespace numorra
