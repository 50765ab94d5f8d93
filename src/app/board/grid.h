#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "app/board/colour.h"
#include "app/board/notes.h"
#include "app/board/place.h"

namespace numorra {

/// The result of a totals check for one total.
enum class Verdict : std::uint8_t { Unjudged, Right, Wrong };

/// The table on the screen as plain data: what each cell shows, which cell is current, whether the
/// table is visible. A widget paints it and passes it input; the board's logic fills it.
///
/// Rows and columns count from 0; row 0 and column 0 are fixed and do not scroll. Every cell is a
/// square of `kCellTwips` and shows its text centred. Cells outside the table throw
/// SubscriptOutOfRange.
class Grid {
 public:
  static constexpr int kCellTwips = 400;  // 1/1440 inch
  static constexpr int kFixedLines = 1;

  /// The data of one cell.
  struct Cell {
    std::string Text;
    Colour OwnBackground = kWindowBackground;
    Colour OwnForeground = ColorTable[kCellText];
    bool Shaded = false;  ///< by its value
    bool Given = false;   ///< a given number, which the player cannot change
    Verdict Judged = Verdict::Unjudged;

    /// Whether a value cell holds no number: it is empty, or has a sign without digits yet.
    bool IsGap() const { return Text.empty() || Text == "-"; }

    /// The colours that are shown: those of its verdict, or else its own.
    Colour Background() const;
    Colour Foreground() const;
  };

  Grid();

  const Cell& At(int row, int column) const;

  /// Raised before and after the current cell changes, whatever changes it.
  std::function<void()> OnLeaveCell;
  std::function<void()> OnCellChanged;

  /// Raised when something visible has changed; once until TakeRepaint, and never under the lock.
  std::function<void()> OnRepaint;

  /// Gives the table a new shape and empties every cell. The current cell becomes (0, 0); no hook
  /// is raised.
  void Reshape(int rows, int columns);

  int Rows() const { return rows_; }
  int Columns() const { return columns_; }

  const std::string& Text(int row, int column) const { return At(row, column).Text; }
  void SetText(int row, int column, std::string text);

  Colour Background(int row, int column) const { return At(row, column).Background(); }
  Colour Foreground(int row, int column) const { return At(row, column).Foreground(); }

  /// Gives a cell its plain colours, and removes its shade and its verdict.
  void SetColours(int row, int column, Colour background, Colour foreground);

  /// Shades a cell by its value, with text in `ink`.
  void Shade(int row, int column, Colour shade, Colour ink);
  bool Shaded(int row, int column) const { return At(row, column).Shaded; }

  /// Sets the verdict of a total, which sets its colours.
  void Judge(int row, int column, Verdict verdict);
  Verdict VerdictOf(int row, int column) const { return At(row, column).Judged; }

  void SetGiven(int row, int column, bool given);
  bool Given(int row, int column) const { return At(row, column).Given; }

  /// The outlined value cells, such as those that show why a square is not magic. A new shape
  /// removes the outlines.
  void SetOutlined(std::vector<Place> cells);
  const std::vector<Place>& Outlined() const { return outlined_; }

  /// The marked value cells: their number stands in more than one of them. A new shape removes the
  /// marks.
  void SetRepeated(std::vector<Place> cells);
  const std::vector<Place>& Repeated() const { return repeated_; }
  bool IsRepeated(int row, int column) const;

  /// The notes of the value cells. A new shape removes them.
  void SetNotes(Notes notes);
  const Notes& AllNotes() const { return notes_; }

  /// The numbers that are not shown as notes because they are on the board.
  void SetUnnoted(const NoteSet& numbers);

  /// The notes that a cell shows: none unless it is a gap.
  NoteSet NotesIn(int row, int column) const;

  int CurrentRow() const { return currentRow_; }
  int CurrentColumn() const { return currentColumn_; }
  void SetCurrent(int row, int column);

  bool Visible() const { return visible_; }
  void SetVisible(bool visible);

  /// Holds back repainting while on. Locks are not counted: one call with false releases all of
  /// them.
  void LockRedraw(bool on);
  bool RedrawLocked() const { return locked_; }

  /// For the painter: says that it is about to show all changes so far.
  void TakeRepaint() { repaintWanted_ = false; }

 private:
  Cell& Changed(int row, int column);
  void WantRepaint();

  std::vector<Cell> cells_;
  std::vector<Place> outlined_;
  std::vector<Place> repeated_;
  Notes notes_;
  NoteSet unnoted_;
  int rows_ = 0;
  int columns_ = 0;
  int currentRow_ = 0;
  int currentColumn_ = 0;
  bool visible_ = false;
  bool locked_ = false;
  bool repaintWanted_ = false;
};

/// Switches the table's redraw lock.
inline void LockGridRedraw(Grid& grid, bool on) {
  grid.LockRedraw(on);
}

/// Holds the redraw lock for a scope, and releases it however the scope is left.
class RedrawLock {
 public:
  explicit RedrawLock(Grid& grid) : grid_(grid) { LockGridRedraw(grid_, true); }
  ~RedrawLock() { LockGridRedraw(grid_, false); }
  RedrawLock(const RedrawLock&) = delete;
  RedrawLock& operator=(const RedrawLock&) = delete;

 private:
  Grid& grid_;
};

}  // namespace numorra
