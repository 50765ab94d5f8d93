#include "app/window/menus/keep_items.h"

#include <utility>

#include <QDir>
#include <QFileInfo>

#include "app/board/position.h"
#include "app/board/runtime_error.h"
#include "app/play/lay_out.h"
#include "files/square_json.h"
#include "files/square_text.h"
#include "toolkit/menus.h"
#include "toolkit/on_signal.h"
#include "toolkit/tr.h"
#include "toolkit/whole_file.h"

namespace numorra {
namespace {

constexpr int kBetweenWrites = 1000;  // milliseconds

void MakeFolderOf(const QString& file) {
  const QString folder = QFileInfo(file).path();
  if (QDir().mkpath(folder)) return;
  throw RuntimeError(Fault::FileError, Say("cannot make the folder %1", folder.toStdString()));
}

/// Removes the file, and its folder if nothing else is in it.
void RemoveKept(const QString& file) {
  if (!QFile::remove(file) && QFileInfo::exists(file)) {
    throw RuntimeError(Fault::FileError, Say("cannot remove %1", file.toStdString()));
  }
  QDir().rmdir(QFileInfo(file).path());
}

/// The square in a file, if it has one.
std::optional<StoredSquare> SquareIn(const QString& file) {
  try {
    const auto read = ReadSquareJson(ReadWholeFile(file, kMostTextBytes).toStdString());
    if (const auto* square = std::get_if<StoredSquare>(&read)) return *square;
  } catch (const RuntimeError&) {
    // Nobody has asked for this file, so nobody is told about it.
  }
  return std::nullopt;
}

}  // namespace

KeepItems::KeepItems(QMenu* menu, Desk& desk, const KeptFolders& folders, ViewPort view)
    : QObject(menu), desk_(desk), view_(std::move(view)) {
  menu->addSeparator();
  const auto add = [&](Kept& kept, const char* name, const QString& caption, const QString& folder,
                       const char* file) {
    const auto toggle = desk_.Beside([this, &kept] { Toggle(kept); });
    kept.Item = AddItem(menu, {name, caption, {}, toggle, true});
    kept.Item->setEnabled(!folder.isEmpty());
    if (!folder.isEmpty()) kept.File = QDir(folder).filePath(file);
  };
  settings_.Write = [this] { WriteSettings(); };
  board_.Write = [this] { WriteBoard(); };
  add(settings_, "KeepSettingsx", Tr("&Keep My Settings"), folders.Settings, "settings.ini");
  add(board_, "KeepBoardx", Tr("Keep My &Board"), folders.Data, "board.json");
  desk_.TheSession.Watch.Listen([this](const CommandResult& result) {
    boardWritten_ = boardWritten_ && !IsStep(result.Before, result.After);
  });
  second_.setInterval(kBetweenWrites);
  OnSignal(desk_.Runner, &second_, &QTimer::timeout, this, [this] { Save(); });
}

void KeepItems::BringBack() {
  for (const Kept* kept : {&settings_, &board_})
    kept->Item->setChecked(QFileInfo(kept->File).isFile());
  if (settings_.Item->isChecked()) {
    const KeptSettings settings = SettingsFrom(ReadValues(settings_.File));
    view_.Choose(settings.View);
    desk_.Sheet = settings.Sheet;
  }
  if (board_.Item->isChecked()) {
    if (const auto square = SquareIn(board_.File)) {
      desk_.Runner.Run(Say("Keep My Board"), [&] {
        desk_.TheSession.LayOut(*square);
        desk_.ShowLaidOut();
      });
    }
  }
  boardWritten_ = true;  // a file that cannot be read stays until there is another board
  RunTimer();
}

void KeepItems::Save() {
  if (desk_.Runner.Running()) return;
  for (Kept* kept : {&settings_, &board_}) {
    if (!kept->Item->isChecked()) continue;
    desk_.Runner.RunBeside([kept] {
      const bool told = std::exchange(kept->Failing, true);
      try {
        kept->Write();
        kept->Failing = false;
      } catch (const RuntimeError&) {
        if (!told) throw;
      }
    });
  }
}

/// Called when the player has ticked or unticked an item.
void KeepItems::Toggle(Kept& kept) {
  writtenSettings_.clear();
  boardWritten_ = false;
  kept.Failing = false;
  try {
    kept.Item->isChecked() ? kept.Write() : RemoveKept(kept.File);
  } catch (const RuntimeError&) {
    kept.Item->setChecked(!kept.Item->isChecked());
    RunTimer();
    throw;
  }
  RunTimer();
}

void KeepItems::WriteSettings() {
  const QVariantMap values = ValuesOf({view_.Choices(), desk_.Sheet});
  if (values == writtenSettings_) return;
  MakeFolderOf(settings_.File);
  WriteValues(settings_.File, values);
  writtenSettings_ = values;
}

/// Without a board, the file is empty.
void KeepItems::WriteBoard() {
  if (boardWritten_) return;
  const Board& board = desk_.TheBoard();
  MakeFolderOf(board_.File);
  WriteWholeFile(board_.File, board.Shown()
                                  ? QByteArray::fromStdString(JsonOf(StoredSquareOf(board)))
                                  : QByteArray());
  boardWritten_ = true;
}

void KeepItems::RunTimer() {
  settings_.Item->isChecked() || board_.Item->isChecked() ? second_.start() : second_.stop();
}

}  // namespace numorra
