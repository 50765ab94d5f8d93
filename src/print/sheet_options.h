#pragma once

namespace numorra {

/// How a worksheet may differ from the usual one. Plain data, so that whatever asks for worksheets
/// can fill it.
struct SheetOptions {
  bool LargePrint = false;    ///< no text below 18 pt, with fewer puzzles on a page if necessary
  bool PageNumbers = false;   ///< below every page
  bool NameLines = false;     ///< a line for a name above every puzzle, not one for the page
  bool PageAPupil = false;    ///< every puzzle alone on its page; answers still share pages
  bool AnswersApart = false;  ///< their pages are numbered by themselves
  bool Booklet = false;       ///< a wider margin where the pages of a booklet are bound

  bool operator==(const SheetOptions&) const = default;
};

}  // namespace numorra
