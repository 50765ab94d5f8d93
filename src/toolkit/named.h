#pragma once

#include <QObject>

namespace numorra {

/// Gives a control the name by which tests and assistive tools find it.
template <class Control>
Control* Named(const char* name, Control* control) {
  control->setObjectName(name);
  return control;
}

}  // namespace numorra
