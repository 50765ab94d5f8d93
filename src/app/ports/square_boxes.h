#pragma once

#include <string>

namespace numorra {

/// The two boxes that describe the wanted square: its size and its sum, as texts.
class SquareBoxes {
 public:
  virtual ~SquareBoxes() = default;
  virtual std::string Size() const = 0;
  virtual std::string Sum() const = 0;
  virtual void SetSize(const std::string& text) = 0;
  virtual void SetSum(const std::string& text) = 0;
};

}  // namespace numorra
