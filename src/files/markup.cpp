#include "files/markup.h"

#include <algorithm>
#include <vector>

#include "app/board/numbers.h"

namespace numorra {
namespace {

std::string CellText(const StoredSquare& square, int cell) {
  const auto& number = square.Cells[cell];
  return number ? Decimal(*number) : "";
}

/// The text in lines of at most `most` characters, broken after commas, or anywhere in long words.
std::vector<std::string> LinesOf(std::string text, std::size_t most) {
  std::vector<std::string> lines;
  while (text.size() > most) {
    const std::size_t comma = text.rfind(", ", most - 1);
    const std::size_t end = comma == std::string::npos ? most : comma + 1;
    lines.push_back(text.substr(0, end));
    text.erase(0, text.find_first_not_of(' ', end));
  }
  if (!text.empty()) lines.push_back(text);
  return lines;
}

}  // namespace

std::string MarkupText(const std::string& text) {
  std::string escaped;
  for (const char character : text) {
    switch (character) {
      case '&':
        escaped += "&amp;";
        break;
      case '<':
        escaped += "&lt;";
        break;
      case '>':
        escaped += "&gt;";
        break;
      case '"':
        escaped += "&quot;";
        break;
      default:
        escaped += character;
    }
  }
  return escaped;
}

std::string SvgOf(const StoredSquare& square, const std::string& caption) {
  constexpr int kSide = 40;
  constexpr int kLetter = 18;  // height of the letters
  constexpr int kDigit = 11;   // width of a digit
  constexpr int kSmall = 12;   // height of the caption's letters
  constexpr int kCharacter = 9;
  const int order = square.Order();
  std::size_t digits = 0;
  for (int cell = 0; cell < square.Cells.Size(); ++cell)
    digits = std::max(digits, CellText(square, cell).size());
  const int width = std::max(kSide, static_cast<int>(digits + 1) * kDigit);
  const int right = width * order;
  const auto lines =
      LinesOf(TotalAnd(caption, square), static_cast<std::size_t>(right / kCharacter));
  const int below = lines.empty() ? 0 : (static_cast<int>(lines.size()) + 1) * kSmall * 3 / 2;
  const int bottom = kSide * order;
  const auto number = [](int value) { return std::to_string(value); };
  const auto size = [&](int margin) {
    return number(right + 2 * margin) + " " + number(bottom + 2 * margin + below);
  };
  std::string text =
      "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"-2 -2 " + size(2) + "\">\n<title>" +
      MarkupText(lines.empty() ? "magic square" : TotalAnd(caption, square)) + "</title>\n";
  text += "<g stroke=\"black\" fill=\"white\">\n<rect width=\"" + number(right) + "\" height=\"" +
          number(bottom) + "\" stroke-width=\"3\"/>\n<path d=\"";
  for (int line = 1; line < order; ++line) {
    text += "M0 " + number(line * kSide) + "H" + number(right) + "M" + number(line * width) +
            " 0V" + number(bottom);
  }
  text += "\"/>\n</g>\n<g font-family=\"sans-serif\" font-size=\"" + number(kLetter) +
          "\" text-anchor=\"middle\">\n";
  const auto write = [&](int x, int y, const std::string& what, const char* more) {
    if (what.empty()) return;
    text += "<text x=\"" + number(x) + "\" y=\"" + number(y) + "\"" + more + ">" +
            MarkupText(what) + "</text>\n";
  };
  for (int cell = 0; cell < square.Cells.Size(); ++cell) {
    write(cell % order * width + width / 2, cell / order * kSide + kSide / 2 + kLetter / 3,
          CellText(square, cell), "");
  }
  int y = bottom;
  for (const std::string& line : lines)
    write(right / 2, y += kSmall * 3 / 2, line, " font-size=\"12\"");
  return text + "</g>\n</svg>\n";
}

std::string HtmlOf(const StoredSquare& square, const std::string& caption) {
  const std::string below = MarkupText(TotalAnd(caption, square));
  std::string text = "<table style=\"border-collapse: collapse; text-align: center\">\n";
  if (!below.empty()) text += "<caption style=\"caption-side: bottom\">" + below + "</caption>\n";
  for (int cell = 0; cell < square.Cells.Size(); ++cell) {
    const bool first = cell % square.Order() == 0;
    const bool last = (cell + 1) % square.Order() == 0;
    text += (first ? "<tr>" : "") +
            std::string("<td style=\"border: 1px solid; min-width: 2em; height: 2em\">") +
            CellText(square, cell) + "</td>" + (last ? "</tr>\n" : "");
  }
  return text + "</table>\n";
}

}  // namespace numorra
