#pragma once

#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include "cli/square_program.h"

/// The companion, run from words and texts.
namespace numorra {

struct Outcome {
  int Status;
  std::string Out;
  std::string Err;
};

inline Outcome RunOn(std::istream& in, const std::string& line) {
  std::istringstream words(line);
  const std::vector<std::string> arguments{std::istream_iterator<std::string>(words), {}};
  std::ostringstream out, err;
  const int status = RunSquareProgram(arguments, {in, out, err});
  return {status, out.str(), err.str()};
}

inline Outcome RunWith(const std::string& line, const std::string& input = "") {
  std::istringstream in(input);
  return RunOn(in, line);
}

/// A text followed by another one, repeated endlessly.
class Endless : public std::streambuf {
 public:
  Endless(std::string start, std::string again)
      : text_(std::move(start)), again_(std::move(again)) {}

 private:
  int_type underflow() override {
    if (begun_ || text_.empty()) text_ = again_;
    begun_ = true;
    setg(text_.data(), text_.data(), text_.data() + text_.size());
    return traits_type::to_int_type(text_[0]);
  }

  std::string text_, again_;
  bool begun_ = false;
};

/// Room for a few kilobytes.
class Full : public std::streambuf {
 public:
  Full() { setp(room_, room_ + sizeof room_); }

 private:
  char room_[5000];
};

/// The blocks between empty lines.
inline std::vector<std::string> Blocks(const std::string& text) {
  std::vector<std::string> blocks(1);
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    if (line.empty()) {
      blocks.emplace_back();
    } else {
      blocks.back() += line + "\n";
    }
  }
  return blocks;
}

}  // namespace numorra
