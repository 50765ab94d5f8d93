#pragma once

#include <QFrame>
#include <QLabel>
#include <QPushButton>

#include "app/ports/build_stage.h"
#include "toolkit/command_runner.h"

namespace numorra {

/// What is shown over the board while a search runs (`SearchBar`): how long it has been at it, and
/// a button that stops it. It moves nothing when it comes and goes.
class SearchBar : public QFrame {
  Q_OBJECT

 public:
  /// `over`: what it lies on, at the lower edge.
  explicit SearchBar(QWidget* over);

  void ShowText(const QString& text);

  QPushButton* const Stop;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Place();

  QLabel* text_;
};

/// The window as the stage of a search: the bar comes with the first yield that lets events run,
/// and goes with the search. Stopping is a command that takes the search's place.
class SearchStage : public BuildStage {
 public:
  SearchStage(SearchBar& bar, CommandRunner& runner) : bar_(bar), runner_(runner) {}

  using BuildStage::ShowCount;
  void ShowBusy(bool busy) override;
  void ShowCounter(bool) override {}
  void ShowCount(const char* text) override { doing_ = text; }
  void Yield() override;

 private:
  SearchBar& bar_;
  CommandRunner& runner_;
  QString doing_;
  QElapsedTimer sinceStart_;
};

}  // namespace numorra
