#pragma once

#include <string>

#include "app/ports/square_boxes.h"

namespace numorra {

/// The size and sum boxes without a window.
struct PlainBoxes : SquareBoxes {
  explicit PlainBoxes(std::string size = "", std::string sum = "")
      : SizeText(std::move(size)), SumText(std::move(sum)) {}

  std::string Size() const override { return SizeText; }
  std::string Sum() const override { return SumText; }
  void SetSize(const std::string& text) override { SizeText = text; }
  void SetSum(const std::string& text) override { SumText = text; }

  std::string SizeText;
  std::string SumText;
};

}  // namespace numorra
