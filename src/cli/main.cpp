#include <iostream>

#include "cli/square_program.h"
#include "words/language.h"

int main(int argc, char** argv) {
  numorra::SpeakLanguageOfDesktop();
  std::ios::sync_with_stdio(false);
  return numorra::RunSquareProgram({argv + 1, argv + argc}, {std::cin, std::cout, std::cerr});
}
