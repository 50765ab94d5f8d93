#pragma once

#include <optional>
#include <vector>

#include <QLabel>
#include <QTreeWidget>

#include "app/board/place.h"
#include "app/window/panels/lazy_panel.h"
#include "study/report.h"
#include "toolkit/command_runner.h"

namespace numorra {

/// The panel (`PropertiesPanel`) that shows the properties of the square on the board: facts and
/// terms in groups, each with a mark and a word. Groups of terms are closed at first, and name
/// those that hold. The chosen entry is explained below, and its cells are outlined.
class PropertiesPanel : public LazyPanel {
  Q_OBJECT

 public:
  PropertiesPanel(CommandRunner& runner, QWidget* parent);

  /// Shows the properties of a square if the panel is open; or `why` there are none.
  void Show(const Report& report);
  void ShowNone(const QString& why);

 Q_SIGNALS:
  /// The cells that the chosen entry is about; none when there is no such entry.
  void EvidenceChosen(const std::vector<Place>& cells);

 private:
  void Furnish() override;
  void AddEntries();
  void ShowGroups();
  void ShowChosen();
  void Copy();

  CommandRunner& runner_;
  QTreeWidget* tree_ = nullptr;
  QLabel* explained_ = nullptr;
  std::vector<QTreeWidgetItem*> groups_;  ///< that of the details, and those of the terms
  std::vector<QTreeWidgetItem*> details_;
  std::vector<QTreeWidgetItem*> terms_;  ///< by Terms()
  std::optional<Report> report_;
};

}  // namespace numorra
