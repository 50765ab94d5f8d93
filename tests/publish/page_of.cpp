#include <exception>
#include <iostream>

#include "files/stored_square.h"
#include "publish/play_page.h"

/// Writes the page of the puzzles on standard input, one JSON object a line, for the tests that run
/// the page in a browser.
int main(int count, char** arguments) {
  std::vector<std::string> puzzles;
  for (std::string line; std::getline(std::cin, line);)
    puzzles.push_back(line);
  try {
    std::cout << numorra::PlayPage(count > 1 ? arguments[1] : "", puzzles);
  } catch (const numorra::Unreadable& unreadable) {
    std::cerr << unreadable.Why << "\n";
    return 1;
  } catch (const std::exception& error) {
    std::cerr << error.what() << "\n";
    return 1;
  }
}
