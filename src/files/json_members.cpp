#include "files/json_members.h"

#include <algorithm>
#include <nlohmann/json.hpp>

#include "words/say.h"

namespace numorra {
namespace {

using Kind = JsonValue::Kind;

/// Collects the members while the library parses. The object is level 1, an array as a member level
/// 2, and a row level 3.
class Gatherer : public nlohmann::json_sax<nlohmann::json> {
 public:
  Gatherer(const std::string& text, std::size_t firstLine) : text_(text), firstLine_(firstLine) {}

  JsonMembers Members;

  bool null() override { return Take({Kind::Null}); }
  bool boolean(bool value) override { return Take({Kind::Boolean, value ? 1.0 : 0.0}); }
  bool number_integer(number_integer_t value) override { return TakeNumber(value); }
  bool number_unsigned(number_unsigned_t value) override { return TakeNumber(value); }
  bool number_float(number_float_t value, const string_t&) override { return TakeNumber(value); }
  bool string(string_t& value) override { return Take({Kind::Text, 0, value}); }
  bool binary(binary_t&) override { return Take({}); }

  bool key(string_t& name) override {
    if (level_ == 1) (member_ = &Members[name])->Rows.clear();
    return true;
  }

  bool start_object(std::size_t) override { return Enter(false); }
  bool start_array(std::size_t) override { return Enter(true); }
  bool end_object() override { return Leave(); }
  bool end_array() override { return Leave(); }

  bool parse_error(std::size_t position, const std::string&,
                   const nlohmann::json::exception& error) override {
    constexpr int kNumberOutOfRange = 406;
    const std::size_t end = std::min(position > 0 ? position - 1 : 0, text_.size());
    const std::string before = text_.substr(0, end);
    const std::size_t lineEnd = before.rfind('\n');
    const auto lines = static_cast<std::size_t>(std::count(before.begin(), before.end(), '\n'));
    const std::size_t column = lineEnd == std::string::npos ? end + 1 : end - lineEnd;
    const auto fail = [&](const std::string& why) {
      throw Unreadable{Say("line %1, column %2: %3", firstLine_ + lines, column, why), true};
    };
    if (level_ == 0 && !Members.empty()) fail(Say("there is text after the square"));
    if (error.id == kNumberOutOfRange) fail(Say("this number is too large"));
    if (end == text_.size()) fail(Say("the JSON ends too early"));
    fail(Say("this is not valid JSON"));
    return false;
  }

 private:
  bool TakeNumber(auto value) { return Take({Kind::Number, static_cast<double>(value)}); }

  bool Take(JsonValue value) {
    if (level_ == 1 && member_) {
      member_->Value = std::move(value);
    } else if (level_ == 2 && inRows_) {
      member_->Rows.emplace_back();
    } else if (level_ == 3 && inRow_) {
      member_->Rows.back().push_back(std::move(value));
    }
    return true;
  }

  /// An object or an array begins.
  bool Enter(bool array) {
    if (level_ > 0) Take({});
    ++level_;
    if (level_ == 2) inRows_ = array && member_ != nullptr;
    if (level_ == 3) inRow_ = inRows_ && array;
    return true;
  }

  bool Leave() {
    --level_;
    return true;
  }

  const std::string& text_;
  std::size_t firstLine_;
  std::size_t level_ = 0;
  bool inRows_ = false;  ///< whether level 2 is an array
  bool inRow_ = false;   ///< whether level 3 is one in it
  JsonMember* member_ = nullptr;
};

}  // namespace

JsonMembers JsonMembersIn(const std::string& text, std::size_t firstLine) {
  Gatherer gatherer(text, firstLine);
  nlohmann::json::sax_parse(text, &gatherer);
  return std::move(gatherer.Members);
}

}  // namespace numorra
