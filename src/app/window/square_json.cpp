#include "app/window/square_json.h"

#include <cmath>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "app/board/numbers.h"
#include "app/board/orders.h"
#include "app/board/place.h"

namespace numorra {
namespace {

[[noreturn]] void Fail(const QString& why) {
  throw Unreadable{why.toStdString()};
}

QJsonObject ObjectIn(const QByteArray& bytes) {
  QJsonParseError error;
  const QJsonDocument document = QJsonDocument::fromJson(bytes, &error);
  if (error.error != QJsonParseError::NoError) {
    const auto line = 1 + bytes.left(error.offset).count('\n');
    Fail(QString("line %1: %2").arg(line).arg(error.errorString()));
  }
  return document.object();
}

/// The member, which is to be an array of `order` entries, as are those of its entries.
std::vector<QJsonValue> CellsIn(const QJsonObject& object, const char* member, int order) {
  std::vector<QJsonValue> cells;
  const QJsonArray rows = object[member].toArray();
  if (rows.size() != order) {
    Fail(QString("\"%1\" has %2 rows, not %3").arg(member).arg(rows.size()).arg(order));
  }
  for (int row = 0; row < order; ++row) {
    const QJsonArray entries = rows[row].toArray();
    if (entries.size() != order) {
      Fail(QString("row %1 of \"%2\" has %3 cells, not %4")
               .arg(row + 1)
               .arg(member)
               .arg(entries.size())
               .arg(order));
    }
    for (const auto& entry : entries)
      cells.emplace_back(entry);
  }
  return cells;
}

/// Whether more digits were written than that; of more than 15 a double keeps some.
bool HasMoreDigits(double number, int most) {
  return AsShown(number) != number || DigitsOf(Decimal(number)) > most;
}

QString In(std::size_t cell, int order) {
  return QString::fromStdString(NameOf(PlaceAt(cell, order))) + ": ";
}

StoredSquare Read(const QByteArray& bytes) {
  const QJsonObject object = ObjectIn(bytes);
  const int version = object["version"].toInt(-1);
  if (object["format"].toString() != kJsonFormat || version < 1) {
    Fail("this file holds no square of Numorra");
  }
  if (version > kJsonVersion) {
    Fail("this square was written by a later version of Numorra");
  }
  const double order = object["order"].toDouble(-1);
  if (order != std::floor(order) || order < kMinOrder || order > kMaxOrder) {
    Fail(QString("\"order\" is no whole number from %1 to %2").arg(kMinOrder).arg(kMaxOrder));
  }
  StoredSquare square{.Order = static_cast<int>(order)};
  const auto cells = CellsIn(object, "rows", square.Order);
  for (std::size_t cell = 0; cell < cells.size(); ++cell) {
    const QJsonValue& value = cells[cell];
    if (!value.isNull() && !value.isDouble()) Fail(In(cell, square.Order) + "this is no number");
    if (value.isDouble() && HasMoreDigits(value.toDouble(), kMostCellDigits)) {
      Fail(In(cell, square.Order) +
           QString("the number has more than %1 digits").arg(kMostCellDigits));
    }
    square.Cells.push_back(value.isNull() ? std::nullopt : std::optional(value.toDouble()));
  }
  if (object.contains("total")) {
    if (!object["total"].isDouble()) Fail("\"total\" is no number");
    square.Total = object["total"].toDouble();
    if (HasMoreDigits(*square.Total, kMostTotalDigits)) {
      Fail(QString("\"total\" has more than %1 digits").arg(kMostTotalDigits));
    }
  }
  if (object.contains("rules")) {
    const std::string rules = object["rules"].toString().toStdString();
    if (rules != NameOf(Rules::Normal) && rules != NameOf(Rules::Positive)) {
      Fail("\"rules\" is neither normal nor positive");
    }
    square.Asked = rules == NameOf(Rules::Normal) ? Rules::Normal : Rules::Positive;
  }
  if (object.contains("givens")) {
    const auto givens = CellsIn(object, "givens", square.Order);
    for (std::size_t cell = 0; cell < givens.size(); ++cell) {
      if (!givens[cell].isBool()) {
        Fail(In(cell, square.Order) + "\"givens\" has neither true nor false");
      }
      if (givens[cell].toBool() && !square.Cells[cell]) {
        Fail(In(cell, square.Order) + "a gap cannot be given");
      }
      square.Givens.push_back(givens[cell].toBool());
    }
  }
  return square;
}

}  // namespace

bool LooksLikeJson(const QByteArray& bytes) {
  return bytes.trimmed().startsWith('{');
}

std::variant<StoredSquare, Unreadable> ReadSquareJson(const QByteArray& bytes) {
  try {
    return Read(bytes);
  } catch (const Unreadable& unreadable) {
    return unreadable;
  }
}

}  // namespace numorra
