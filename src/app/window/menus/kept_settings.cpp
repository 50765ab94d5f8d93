#include "app/window/menus/kept_settings.h"

#include <algorithm>

#include <QFileInfo>
#include <QSettings>

#include "app/board/orders.h"
#include "app/board/runtime_error.h"
#include "app/window/board/zoom.h"
#include "words/say.h"

namespace numorra {
namespace {

constexpr int kMostOfAGrade = 1000;  // the dialog allows fewer
constexpr qint64 kMostSettingsBytes = 1 << 16;
constexpr int kLongestTitle = 200;

/// The options of a worksheet by their names in the file.
constexpr std::pair<const char*, bool SheetOptions::*> kKeptOptions[] = {
    {"Worksheet/LargePrint", &SheetOptions::LargePrint},
    {"Worksheet/PageNumbers", &SheetOptions::PageNumbers},
    {"Worksheet/NameLines", &SheetOptions::NameLines},
    {"Worksheet/PageAPupil", &SheetOptions::PageAPupil},
    {"Worksheet/Booklet", &SheetOptions::Booklet}};

QString CountName(Grade grade) {
  return QString("Worksheet/%1").arg(NameOf(grade));
}

/// The number of a name, if it has one from `least` to `most`.
template <class Number>
std::optional<Number> NumberOf(const QVariantMap& values, const QString& name, Number least,
                               Number most) {
  bool isNumber = false;
  const double number = values.value(name).toDouble(&isNumber);
  if (!isNumber || !(number >= static_cast<double>(least) && number <= static_cast<double>(most))) {
    return std::nullopt;
  }
  return static_cast<Number>(number);
}

std::optional<SheetChoice> SheetFrom(const QVariantMap& values) {
  const auto order = NumberOf(values, "Worksheet/Size", kMinOrder, kMaxOrder);
  if (!order) return std::nullopt;
  SheetChoice sheet;
  sheet.Set.Square.Order = *order;
  sheet.Set.Square.Total =
      NumberOf<std::int64_t>(values, "Worksheet/Total", 1, Puzzle::kMostTarget);
  sheet.Set.Square.LimitToNine = values.value("Worksheet/OneToNine").toBool();
  for (const Grade grade : kGrades) {
    if (const auto count = NumberOf(values, CountName(grade), 1, kMostOfAGrade)) {
      sheet.Set.Grades.push_back({grade, *count});
    }
  }
  sheet.Set.ClueCount = NumberOf(values, "Worksheet/Clues", 0, kMaxOrder * kMaxOrder);
  sheet.Set.Symmetric = values.value("Worksheet/Symmetric").toBool();
  const int perPage = NumberOf(values, "Worksheet/PerPage", 1, 6).value_or(sheet.Layout.PerPage);
  if (perPage == 1 || perPage % 2 == 0) sheet.Layout.PerPage = perPage;
  sheet.Layout.Title =
      values.value("Worksheet/Title", sheet.Layout.Title).toString().left(kLongestTitle);
  sheet.Layout.TotalGiven = values.value("Worksheet/TotalGiven", true).toBool();
  for (const auto& [name, option] : kKeptOptions)
    sheet.Layout.Options.*option = values.value(name).toBool();
  sheet.Landscape = values.value("Worksheet/Landscape").toBool();
  return sheet;
}

void AddValuesOf(const SheetChoice& sheet, QVariantMap& values) {
  const SquareWish& square = sheet.Set.Square;
  values["Worksheet/Size"] = square.Order;
  if (square.Total) values["Worksheet/Total"] = static_cast<qlonglong>(*square.Total);
  values["Worksheet/OneToNine"] = square.LimitToNine;
  for (const GradeShare& share : sheet.Set.Grades)
    values[CountName(share.Wanted)] = share.Count;
  if (sheet.Set.ClueCount) values["Worksheet/Clues"] = *sheet.Set.ClueCount;
  values["Worksheet/Symmetric"] = sheet.Set.Symmetric;
  values["Worksheet/PerPage"] = sheet.Layout.PerPage;
  values["Worksheet/Title"] = sheet.Layout.Title;
  values["Worksheet/TotalGiven"] = sheet.Layout.TotalGiven;
  for (const auto& [name, option] : kKeptOptions)
    values[name] = sheet.Layout.Options.*option;
  values["Worksheet/Landscape"] = sheet.Landscape;
}

}  // namespace

QVariantMap ValuesOf(const KeptSettings& settings) {
  const ViewChoices& view = settings.View;
  QVariantMap values{{"View/Zoom", view.Zoom},
                     {"View/Fitting", view.Fitting},
                     {"View/Properties", view.Properties},
                     {"View/DrawingNumbers", view.DrawingNumbers},
                     {"View/QuietTotals", view.QuietTotals},
                     {"View/NumberPad", view.NumberPad}};
  if (settings.Sheet) AddValuesOf(*settings.Sheet, values);
  return values;
}

KeptSettings SettingsFrom(const QVariantMap& values) {
  const double smallest = ZoomAtStep(kSmallestZoomStep);
  const double largest = ZoomAtStep(kLargestZoomStep);
  return {{NumberOf(values, "View/Zoom", smallest, largest).value_or(1),
           values.value("View/Fitting").toBool(), values.value("View/Properties").toBool(),
           values.value("View/DrawingNumbers").toBool(), values.value("View/QuietTotals").toBool(),
           values.value("View/NumberPad").toBool()},
          SheetFrom(values)};
}

QVariantMap ReadValues(const QString& file) {
  QVariantMap values;
  const QFileInfo info(file);
  if (!info.isFile() || info.size() > kMostSettingsBytes) return values;
  const QSettings settings(file, QSettings::IniFormat);
  for (const QString& name : settings.allKeys())
    values[name] = settings.value(name);
  return values;
}

void WriteValues(const QString& file, const QVariantMap& values) {
  QSettings settings(file, QSettings::IniFormat);
  settings.clear();
  for (auto value = values.begin(); value != values.end(); ++value)
    settings.setValue(value.key(), value.value());
  settings.sync();
  if (settings.status() == QSettings::AccessError) {
    throw RuntimeError(Fault::FileError, Say("cannot write %1", file.toStdString()));
  }
}

}  // namespace numorra
