#include "study/famous.h"

#include "study/images.h"
#include "words/say.h"

namespace numorra {

const std::vector<FamousSquare>& FamousSquares() {
  static const std::vector<FamousSquare> squares = {
      {"LoShux",
       Mark("&Lo Shu"),
       Mark("Lo Shu, China, described by 100 AD: the only normal square of order 3"),
       15,
       {3, {4, 9, 2, 3, 5, 7, 8, 1, 6}}},
      {"Khajurahox",
       Mark("&Khajuraho"),
       Mark("Khajuraho, India, on a temple's wall, 12th century or before: most-perfect"),
       34,
       {4, {7, 12, 1, 14, 2, 13, 8, 11, 16, 3, 10, 5, 9, 6, 15, 4}}},
      {"IronPlatex",
       Mark("&Iron plate of Xi'an"),
       Mark("Iron plate found at Xi'an, China, 13th century, in Arabic digits: bordered"),
       111,
       {6, {28, 4,  3,  31, 35, 10, 36, 18, 21, 24, 11, 1,  7,  23, 12, 17, 22, 30,
            8,  13, 26, 19, 16, 29, 5,  20, 15, 14, 25, 32, 27, 33, 34, 6,  2,  9}}},
      {"YangHuix",
       Mark("&Yang Hui"),
       Mark("Yang Hui, China, 1275: concentric, with a magic square inside"),
       65,
       {5, {1, 23, 16, 4, 21, 15, 14, 7, 18, 11, 24, 17, 13,
            9, 2,  20, 8, 19, 12, 6,  5, 3,  10, 22, 25}}},
      {"Melencoliax",
       Mark("&Melencolia"),
       Mark("Albrecht Dürer's engraving Melencolia I: its last row shows the year, 1514"),
       34,
       {4, {16, 3, 2, 13, 5, 10, 11, 8, 9, 6, 7, 12, 4, 15, 14, 1}}},
      {"SealOfTheSunx",
       Mark("Seal of the &Sun"),
       Mark("Seal of the Sun, in Agrippa's De occulta philosophia, 1533: all its lines add up to "
            "111"),
       111,
       {6, {6,  32, 3,  34, 35, 1,  7,  11, 27, 28, 8,  30, 19, 14, 16, 15, 23, 24,
            18, 20, 22, 21, 17, 13, 25, 29, 10, 9,  26, 12, 36, 5,  33, 4,  2,  31}}},
      {"SealOfVenusx",
       Mark("Seal of &Venus"),
       Mark("Seal of Venus, in Agrippa's De occulta philosophia, 1533: associative"),
       175,
       {7, {22, 47, 16, 41, 10, 35, 4,  5,  23, 48, 17, 42, 11, 29, 30, 6,  24,
            49, 18, 36, 12, 13, 31, 7,  25, 43, 19, 37, 38, 14, 32, 1,  26, 44,
            20, 21, 39, 8,  33, 2,  27, 45, 46, 15, 40, 9,  34, 3,  28}}},
      {"Siamesex",
       Mark("Si&amese"),
       Mark("Simon de la Loubère brought its construction from Siam, 1688: associative"),
       65,
       {5, {17, 24, 1,  8,  15, 23, 5, 7,  14, 16, 4, 6, 13,
            20, 22, 10, 12, 19, 21, 3, 11, 18, 25, 2, 9}}},
      {"Franklinx",
       Mark("&Franklin"),
       Mark("Benjamin Franklin, about 1750: semi-magic, its bent diagonals add up to 260"),
       260,
       {8, {52, 61, 4,  13, 20, 29, 36, 45, 14, 3,  62, 51, 46, 35, 30, 19, 53, 60, 5,  12, 21, 28,
            37, 44, 11, 6,  59, 54, 43, 38, 27, 22, 55, 58, 7,  10, 23, 26, 39, 42, 9,  8,  57, 56,
            41, 40, 25, 24, 50, 63, 2,  15, 18, 31, 34, 47, 16, 1,  64, 49, 48, 33, 32, 17}}},
      {"KnightsTourx",
       Mark("&Beverley's knight's tour"),
       Mark("William Beverley, 1848: a knight's tour of the chess board from 1 to 64, semi-magic"),
       260,
       {8, {1,  30, 47, 52, 5,  28, 43, 54, 48, 51, 2,  29, 44, 53, 6,  27, 31, 46, 49, 4,  25, 8,
            55, 42, 50, 3,  32, 45, 56, 41, 26, 7,  33, 62, 15, 20, 9,  24, 39, 58, 16, 19, 34, 61,
            40, 57, 10, 23, 63, 14, 17, 36, 21, 12, 59, 38, 18, 35, 64, 13, 60, 37, 22, 11}}},
      {"Pfeffermannx",
       Mark("&Pfeffermann"),
       Mark("G. Pfeffermann, 1890: the first bimagic square, its squared numbers add up to 11180"),
       260,
       {8, {56, 34, 8,  57, 18, 47, 9,  31, 33, 20, 54, 48, 7,  29, 59, 10, 26, 43, 13, 23, 64, 38,
            4,  49, 19, 5,  35, 30, 53, 12, 46, 60, 15, 25, 63, 2,  41, 24, 50, 40, 6,  55, 17, 11,
            36, 58, 32, 45, 61, 16, 42, 52, 27, 1,  39, 22, 44, 62, 28, 37, 14, 51, 21, 3}}},
      {"Dudeneyx",
       Mark("&Dudeney's primes"),
       Mark("Henry Dudeney, 1900: all its numbers are primes, if 1 counts as one, as it did then"),
       111,
       {3, {67, 1, 43, 13, 37, 61, 31, 73, 7}}},
  };
  return squares;
}

const FamousSquare* FamousWithForm(const Square<double>& standardForm) {
  for (const FamousSquare& famous : FamousSquares()) {
    if (StandardForm(famous.Numbers) == standardForm) return &famous;
  }
  return nullptr;
}

}  // namespace numorra
