#include "app/window/forms/sheet_options_box.h"

#include <QGridLayout>

#include "toolkit/named.h"
#include "toolkit/tr.h"

namespace numorra {
namespace {

struct OptionBox {
  bool SheetOptions::*Option;
  const char* Name;
  const char* Caption;
  const char* ToolTip;
};

constexpr std::array<OptionBox, 5> kOptionBoxes = {
    {{&SheetOptions::LargePrint, "LargePrintx", Mark("lar&ge print"),
      Mark("No text below 18 pt, with fewer puzzles on a page if necessary")},
     {&SheetOptions::PageNumbers, "PageNumbersx", Mark("page n&umbers"), Mark("Below every page")},
     {&SheetOptions::NameLines, "NameLinesx", Mark("a na&me for every puzzle"),
      Mark("A line for a name above every puzzle, not one for the page")},
     {&SheetOptions::PageAPupil, "PageAPupilx", Mark("a page for ever&y puzzle"),
      Mark("Every puzzle alone on its page; the answers still share pages")},
     {&SheetOptions::Booklet, "BookletMarginsx", Mark("margins for bin&ding"),
      Mark("9.6 mm more at the left of odd pages and at the right of even ones")}}};

}  // namespace

SheetOptionsBox::SheetOptionsBox(const SheetOptions& options, QWidget* parent) : QWidget(parent) {
  static_assert(kOptionBoxes.size() == kOptions);
  constexpr int kColumns = 2;
  auto* layout = new QGridLayout(this);
  layout->setContentsMargins({});
  for (std::size_t i = 0; i < kOptions; ++i) {
    const OptionBox& option = kOptionBoxes[i];
    boxes_[i] = Named(option.Name, new QCheckBox(Tr(option.Caption)));
    boxes_[i]->setToolTip(Tr(option.ToolTip));
    boxes_[i]->setChecked(options.*option.Option);
    const int place = static_cast<int>(i);
    layout->addWidget(boxes_[i], place / kColumns, place % kColumns);
    connect(boxes_[i], &QCheckBox::toggled, this, &SheetOptionsBox::Changed);
  }
}

SheetOptions SheetOptionsBox::Options() const {
  SheetOptions options;
  for (std::size_t i = 0; i < kOptions; ++i)
    options.*kOptionBoxes[i].Option = boxes_[i]->isChecked();
  return options;
}

}  // namespace numorra
