#include "app/window/board/grid_accessible.h"

#include <memory>
#include <vector>

#include <QAccessible>
#include <QAccessibleWidget>

#include "app/window/board/range_words.h"
#include "toolkit/tr.h"
namespace numorra {
namespace {

/// The line whose total is in the frame cell (row, column) of an n x n board; empty for other
/// cells.
QString LineName(int row, int column, int last) {
  if (row == 0 && column == 0) return Tr("main diagonal");
  if ((row == 0 && column == last) || (row == last && column == 0)) return Tr("other diagonal");
  if (row == 0) return Tr("column %1", column);
  if (column == 0) return Tr("row %1", row);
  return {};
}

/// "notes 1 to 3, 7" or, if that is long, "57 notes".
QString NotesInWords(const NoteSet& notes) {
  constexpr std::size_t kMostRead = 12;
  return notes.count() > kMostRead ? TrCounted("%1 note", "%1 notes", notes.count())
                                   : Tr("notes %1", RangesInWords(notes));
}

/// One cell. Its table owns it and creates it on request.
class CellAccessible : public QAccessibleInterface, public QAccessibleTableCellInterface {
 public:
  CellAccessible(GridView& view, int row, int column) : view_(view), row_(row), column_(column) {}

  bool isValid() const override { return row_ < Cells().Rows() && column_ < Cells().Columns(); }
  QObject* object() const override { return nullptr; }
  QWindow* window() const override { return view_.window()->windowHandle(); }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  QAccessibleInterface* parent() const override { return table(); }
  QAccessibleInterface* child(int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }
  QAccessible::Role role() const override { return QAccessible::Cell; }
  void setText(QAccessible::Text, const QString&) override {}

  QString text(QAccessible::Text kind) const override {
    if (!isValid()) return {};
    QString value = QString::fromStdString(Cells().Text(row_, column_));
    if (kind == QAccessible::Value) return value;
    const int last = Cells().Rows() - 1;
    const QString line = LineName(row_, column_, last);
    if (kind == QAccessible::Description && line.isEmpty() && row_ < last && column_ < last) {
      return Tr("%1; %2", Total(row_, 0), Total(0, column_));
    }
    if (kind != QAccessible::Name) return {};
    if (!line.isEmpty()) return Total(row_, column_);
    if (row_ == last || column_ == last)
      return value.isEmpty() ? Tr("frame") : Tr("marked for a swap");
    QString text = Tr("row %1, column %2, %3", row_, column_,
                      value.isEmpty() ? Tr("empty") : Tr("value %1", value));
    const auto add = [&text](const QString& more) { text = Tr("%1, %2", text, more); };
    if (Cells().Given(row_, column_)) add(Tr("given"));
    if (Cells().IsRepeated(row_, column_)) add(Tr("more than once"));
    const NoteSet& notes = Cells().NotesIn(row_, column_);
    if (notes.any()) add(NotesInWords(notes));
    return text;
  }

  QRect rect() const override {
    const QRect cell = view_.CellRect(row_, column_);
    return {view_.viewport()->mapToGlobal(cell.topLeft()), cell.size()};
  }

  QAccessible::State state() const override {
    QAccessible::State state;
    state.readOnly = isValid() && (!LineName(row_, column_, Cells().Rows() - 1).isEmpty() ||
                                   Cells().Given(row_, column_));
    state.selectable = state.focusable = true;
    state.selected = isSelected();
    state.focused = isSelected() && view_.hasFocus();
    return state;
  }

  void* interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::TableCellInterface
               ? static_cast<QAccessibleTableCellInterface*>(this)
               : nullptr;
  }

  bool isSelected() const override {
    return row_ == Cells().CurrentRow() && column_ == Cells().CurrentColumn();
  }
  QList<QAccessibleInterface*> columnHeaderCells() const override { return {}; }
  QList<QAccessibleInterface*> rowHeaderCells() const override { return {}; }
  int columnIndex() const override { return column_; }
  int rowIndex() const override { return row_; }
  int columnExtent() const override { return 1; }
  int rowExtent() const override { return 1; }
  QAccessibleInterface* table() const override {
    return QAccessible::queryAccessibleInterface(&view_);
  }

 private:
  const Grid& Cells() const { return view_.Cells(); }

  /// A total, and whether it is right if it was judged.
  QString Total(int row, int column) const {
    const Verdict verdict = Cells().VerdictOf(row, column);
    const QString total =
        Tr("total of %1, %2", LineName(row, column, Cells().Rows() - 1), Cells().Text(row, column));
    if (verdict == Verdict::Right) return Tr("%1, right", total);
    return verdict == Verdict::Wrong ? Tr("%1, wrong", total) : total;
  }

  GridView& view_;
  int row_;
  int column_;
};

/// The view as a table of its cells.
class GridAccessible : public QAccessibleWidget, public QAccessibleTableInterface {
 public:
  explicit GridAccessible(GridView* view)
      : QAccessibleWidget(view, QAccessible::Table, Tr("Board")), view_(*view) {}

  ~GridAccessible() override {
    for (const QAccessible::Id id : cells_) {
      if (id != 0) QAccessible::deleteAccessibleInterface(id);
    }
  }

  void* interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::TableInterface ? static_cast<QAccessibleTableInterface*>(this)
                                               : QAccessibleWidget::interface_cast(type);
  }

  int childCount() const override { return rowCount() * columnCount(); }

  QAccessibleInterface* child(int index) const override {
    if (index < 0 || index >= childCount()) return nullptr;
    return cellAt(index / columnCount(), index % columnCount());
  }

  int indexOfChild(const QAccessibleInterface* child) const override {
    const auto* cell = const_cast<QAccessibleInterface*>(child)->tableCellInterface();
    return cell ? cell->rowIndex() * columnCount() + cell->columnIndex() : -1;
  }

  QAccessibleInterface* childAt(int x, int y) const override {
    const auto cell = view_.CellAt(view_.viewport()->mapFromGlobal(QPoint(x, y)));
    return cell ? cellAt(cell->y(), cell->x()) : nullptr;
  }

  QAccessibleInterface* focusChild() const override {
    return cellAt(view_.Cells().CurrentRow(), view_.Cells().CurrentColumn());
  }

  QAccessibleInterface* cellAt(int row, int column) const override {
    if (row < 0 || row >= rowCount() || column < 0 || column >= columnCount()) return nullptr;
    const auto index =
        static_cast<std::size_t>(row) * kMostLines + static_cast<std::size_t>(column);
    if (cells_.size() <= index) cells_.resize(index + 1);
    if (cells_[index] == 0) {
      // The toolkit owns what is registered with it until it is deleted by its id.
      auto* cell = new CellAccessible(view_, row, column);
      // NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDeleteLeaks)
      cells_[index] = QAccessible::registerAccessibleInterface(cell);
    }
    return QAccessible::accessibleInterface(cells_[index]);
  }

  int rowCount() const override { return view_.Cells().Visible() ? view_.Cells().Rows() : 0; }
  int columnCount() const override { return view_.Cells().Visible() ? view_.Cells().Columns() : 0; }
  QString columnDescription(int column) const override { return QString::number(column); }
  QString rowDescription(int row) const override { return QString::number(row); }
  QAccessibleInterface* caption() const override { return nullptr; }
  QAccessibleInterface* summary() const override { return nullptr; }
  QList<QAccessibleInterface*> selectedCells() const override {
    return rowCount() > 0 ? QList{focusChild()} : QList<QAccessibleInterface*>();
  }
  int selectedCellCount() const override { return rowCount() > 0 ? 1 : 0; }
  int selectedColumnCount() const override { return 0; }
  int selectedRowCount() const override { return 0; }
  QList<int> selectedColumns() const override { return {}; }
  QList<int> selectedRows() const override { return {}; }
  bool isColumnSelected(int) const override { return false; }
  bool isRowSelected(int) const override { return false; }
  bool selectRow(int) override { return false; }
  bool selectColumn(int) override { return false; }
  bool unselectRow(int) override { return false; }
  bool unselectColumn(int) override { return false; }
  void modelChange(QAccessibleTableModelChangeEvent*) override {}

 private:
  static constexpr int kMostLines = 64;

  GridView& view_;
  mutable std::vector<QAccessible::Id> cells_;
};

QAccessibleInterface* MakeInterface(const QString& className, QObject* object) {
  if (className != QLatin1String("numorra::GridView")) return nullptr;
  return new GridAccessible(static_cast<GridView*>(object));
}

}  // namespace

void InstallGridAccessibility() {
  QAccessible::installFactory(MakeInterface);
}

void ReadCurrentCell(GridView& view, bool another) {
  if (!QAccessible::isActive()) return;
  const Grid& grid = view.Cells();
  QAccessibleEvent event(&view, another ? QAccessible::Focus : QAccessible::NameChanged);
  event.setChild(grid.CurrentRow() * grid.Columns() + grid.CurrentColumn());
  QAccessible::updateAccessibility(&event);
}

}  // namespace numorra
