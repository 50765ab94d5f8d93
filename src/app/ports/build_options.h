#pragma once

#include <optional>

namespace numorra {

/// The player's options for squares of any total.
class BuildOptions {
 public:
  virtual ~BuildOptions() = default;

  /// No cell above 9.
  virtual bool LimitToNine() const = 0;
  virtual void UncheckLimit() = 0;

  /// The value wanted at the top left; nothing for any value.
  virtual std::optional<double> Corner() const = 0;
};

}  // namespace numorra
