#pragma once

#include <QObject>
#include <QPushButton>

#include "app/window/menus/desk.h"

namespace numorra {

/// Connects the controls on the left to their commands, and enables those that can be used.
class ControlCommands : public QObject {
  Q_OBJECT

 public:
  ControlCommands(Desk& desk, QObject* parent);

 private:
  void ConnectBuilds();
  void ConnectModes();
  void ConnectColours();
  void Command(QPushButton* button, CommandRunner::Command body);
  void Build(QPushButton* button, CommandRunner::Command body);
  void ShowState();

  Desk& desk_;
};

}  // namespace numorra
