#include <iostream>

#include "cli/square_program.h"

int main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  return numorra::RunSquareProgram({argv + 1, argv + argc}, {std::cin, std::cout, std::cerr});
}
