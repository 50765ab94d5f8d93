#pragma once

#include <QMainWindow>

#include "app/window/board/search_stage.h"
#include "app/window/menus/desk.h"
#include "app/window/menus/file_menu.h"
#include "app/window/menus/view_menu.h"
#include "app/window/panels/state_line.h"
#include "app/window/window_stage.h"
#include "app/window/world.h"

namespace numorra {

/// The main window: controls on the left, the board on the right, menus above. It assembles its
/// parts around a session and shows the session's board.
class MainWindow : public QMainWindow {
  Q_OBJECT

 public:
  /// `session`: must outlive the window.
  explicit MainWindow(Session& session, const World& world = {});
  ~MainWindow() override;

  const Board& TheBoard() const { return session_.TheBoard; }
  GridView& View() { return *place_->View; }

  // What a player may want to begin with. Each is a command.
  void OpenFileOrCode(const QString& name) { files_->OpenFileOrCode(name); }
  void BeginBoard();
  void BeginPuzzle();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void Arrange();
  void ConnectSession();
  void AddMenus(const KeptFolders& folders);
  void ShowState();
  void ShowStateLine();

  Session& session_;
  WholeWorld world_;
  CommandRunner runner_;
  ControlColumn* controls_;
  BoardPlace* place_;
  BoardMenu* menu_;
  StateLine* state_;
  WindowStage stage_;
  SearchStage searchStage_;
  Desk desk_;
  FileMenu* files_ = nullptr;
  ViewMenu* view_ = nullptr;
};

}  // namespace numorra
