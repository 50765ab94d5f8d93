#pragma once

#include <optional>

#include <QString>
#include <QVariantMap>

#include "app/window/forms/worksheet_form.h"

namespace numorra {

/// How the board and the panels are shown.
struct ViewChoices {
  double Zoom = 1;
  bool Fitting = false;
  bool Properties = false;      ///< the panel is open
  bool DrawingNumbers = false;  ///< drawings show the numbers
  bool QuietTotals = false;
  bool NumberPad = false;  ///< a click opens it
};

/// What Keep My Settings keeps.
struct KeptSettings {
  ViewChoices View;
  std::optional<SheetChoice> Sheet;  ///< once worksheets have been asked for
};

/// The settings as the names and values of a settings file, and back. What is missing, of another
/// type or out of range gets its default.
QVariantMap ValuesOf(const KeptSettings& settings);
KeptSettings SettingsFrom(const QVariantMap& values);

/// Reads and writes a settings file in the INI format. A file that is no such file has no values.
/// Writing makes the folder, replaces all values, and throws FileError if it fails.
QVariantMap ReadValues(const QString& file);
void WriteValues(const QString& file, const QVariantMap& values);

}  // namespace numorra
