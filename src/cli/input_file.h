#pragma once

#include <fstream>
#include <istream>
#include <string>
#include <utility>

#include "cli/streams.h"
#include "words/say.h"

namespace numorra {

/// A file to read, or the standard input for "-".
class InputFile {
 public:
  InputFile(std::string name, std::istream& standardInput)
      : name_(std::move(name)), in_(name_ == "-" ? standardInput : opened_) {
    if (name_ != "-") opened_.open(name_, std::ios::binary);
  }

  std::istream& In() { return in_; }

  /// Throws Impossible if reading ended before the end of the file, or never began.
  void CheckReadToEnd() const {
    if (!in_.eof() || in_.bad()) throw Impossible{Say("'%1' cannot be read", name_)};
  }

 private:
  std::string name_;
  std::ifstream opened_;
  std::istream& in_;
};

}  // namespace numorra
