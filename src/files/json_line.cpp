#include "files/json_line.h"

#include <nlohmann/json.hpp>

namespace numorra {

JsonLine& JsonLine::Add(std::string_view name, std::string_view value) {
  if (text_.size() > 1) text_ += ", ";
  text_.append("\"").append(name).append("\": ").append(value);
  return *this;
}

std::string JsonString(const std::string& text) {
  using Json = nlohmann::json;
  return Json(text).dump(-1, ' ', false, Json::error_handler_t::replace);
}

}  // namespace numorra
