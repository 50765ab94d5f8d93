#pragma once

#include <type_traits>
#include <utility>

#include <QAbstractButton>

#include "toolkit/command_runner.h"

namespace numorra {

/// Connects a signal to an action that runs inside the runner's error boundary: nothing that a slot
/// throws may pass through the toolkit. `act` takes the signal's arguments, or none.
template <class Sender, class Signal, class Act>
void OnSignal(CommandRunner& runner, const Sender* sender, Signal signal, QObject* context,
              Act act) {
  if constexpr (std::is_invocable_v<const Act&>) {
    QObject::connect(sender, signal, context,
                     [&runner, act = std::move(act)] { runner.RunBeside([&] { act(); }); });
  } else {
    QObject::connect(sender, signal, context, [&runner, act = std::move(act)](const auto&... told) {
      runner.RunBeside([&] { act(told...); });
    });
  }
}

/// The same for a click. Ignores a button that was disabled while it was pressed: a button pressed
/// by its mnemonic stays down for a moment, and the toolkit then clicks it anyway.
template <class Act>
void OnClick(CommandRunner& runner, const QAbstractButton* button, QObject* context, Act act) {
  OnSignal(runner, button, &QAbstractButton::clicked, context, [button, act = std::move(act)] {
    if (button->isEnabled()) act();
  });
}

}  // namespace numorra
