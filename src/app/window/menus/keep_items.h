#pragma once

#include <functional>

#include <QAction>
#include <QMenu>
#include <QTimer>

#include "app/window/menus/desk.h"
#include "app/window/menus/kept_settings.h"

namespace numorra {

/// The folders of this program for what the player wants kept; without one, nothing is kept there.
struct KeptFolders {
  QString Settings = {};
  QString Data = {};
};

/// The items Keep My Settings and Keep My Board.
///
/// A tick is a file: an item is ticked as long as its file exists, and without ticks nothing is
/// ever written. What has changed is written once a second and at the end, but never in the middle
/// of a command, so that whatever ends the program costs a second at most. At the start, a file
/// that makes no sense counts as empty.
class KeepItems : public QObject {
  Q_OBJECT

 public:
  /// How the window shows things, and how to make it do so.
  struct ViewPort {
    std::function<ViewChoices()> Choices;
    std::function<void(const ViewChoices&)> Choose;
  };

  KeepItems(QMenu* menu, Desk& desk, const KeptFolders& folders, ViewPort view);

  /// At the start: shows what was kept.
  void BringBack();

  /// Writes what has changed; a failure is told once, until writing succeeds again.
  void Save();

 private:
  /// A ticked item and its file.
  struct Kept {
    QAction* Item = nullptr;
    QString File = {};                 ///< empty if it cannot be kept
    std::function<void()> Write = {};  ///< if something has changed
    bool Failing = false;              ///< and the player knows
  };

  void Toggle(Kept& kept);
  void WriteSettings();
  void WriteBoard();
  void RunTimer();

  Desk& desk_;
  ViewPort view_;
  Kept settings_;
  Kept board_;
  QVariantMap writtenSettings_;
  bool boardWritten_ = false;
  QTimer second_;
};

}  // namespace numorra
