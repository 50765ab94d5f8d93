#include "app/window/panels/properties_panel.h"

#include <algorithm>

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QPushButton>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

#include "toolkit/named.h"
#include "toolkit/on_signal.h"
#include "toolkit/tr.h"

namespace numorra {
namespace {

constexpr const char* kSquareGroup = Mark("The square");
constexpr const char* kDetails[] = {"famous",        "sum",          "smallest",
                                    "largest",       "repeated",     "standard form",
                                    "census number", "Dudeney type", "pairs of 17"};

char16_t MarkFor(Answer answer) {
  switch (answer) {
    case Answer::Holds:
      return u'\u2713';
    case Answer::Fails:
      return u'\u2717';
    case Answer::DoesNotApply:
      return u'\u2013';
    case Answer::TooLarge:
      break;
  }
  return u'?';
}

/// Wraps values over several lines, which the toolkit's trees leave to their delegates.
class WrappingDelegate : public QStyledItemDelegate {
 public:
  explicit WrappingDelegate(QTreeView* tree) : QStyledItemDelegate(tree), tree_(tree) {}

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    QStyleOptionViewItem wrapped = option;
    wrapped.features |= QStyleOptionViewItem::WrapText;
    QStyledItemDelegate::paint(painter, wrapped, index);
  }

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    const QSize line = QStyledItemDelegate::sizeHint(option, index);
    if (index.column() == 0) return line;
    const int margin = 1 + tree_->style()->pixelMetric(QStyle::PM_FocusFrameHMargin);
    const QRect room(0, 0, tree_->columnWidth(index.column()) - 2 * margin, kTallest);
    const QString value = index.data().toString();
    const QRect text = tree_->fontMetrics().boundingRect(room, Qt::TextWordWrap, value);
    const bool broken = text.height() > line.height();
    return {room.width(), broken ? text.height() + line.height() / 3 : line.height()};
  }

 private:
  static constexpr int kTallest = 10'000;  // pixels

  QTreeView* tree_;
};

QTreeWidgetItem* GroupNamed(QList<QTreeWidgetItem*>& groups, const QString& name) {
  for (QTreeWidgetItem* group : groups) {
    if (group->text(0) == name) return group;
  }
  groups.append(new QTreeWidgetItem({name}));
  groups.back()->setFlags(Qt::ItemIsEnabled);
  return groups.back();
}

/// Writes only what has changed, so that nothing else is repainted.
void ShowEntry(QTreeWidgetItem* entry, const QString& value, const QString& why) {
  const QString spoken = Tr("%1: %2", entry->text(0), why);
  if (entry->text(1) == value && entry->data(0, Qt::AccessibleTextRole) == spoken) return;
  entry->setText(1, value);
  entry->setData(0, Qt::AccessibleTextRole, spoken);
  entry->setToolTip(1, why);
}

}  // namespace

PropertiesPanel::PropertiesPanel(CommandRunner& runner, QWidget* parent)
    : LazyPanel(Tr("Properties"), parent), runner_(runner) {
  setObjectName("PropertiesPanel");
  setFeatures(DockWidgetClosable | DockWidgetMovable);
  setAllowedAreas(Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea);
}

void PropertiesPanel::Furnish() {
  tree_ = Named("PropertyTree", new QTreeWidget);
  tree_->setAccessibleName(Tr("Properties of the square"));
  tree_->setColumnCount(2);
  tree_->setHeaderHidden(true);
  tree_->setIndentation(tree_->indentation() / 2);
  tree_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  tree_->setItemDelegate(new WrappingDelegate(tree_));
  AddEntries();
  constexpr int kValueWidth = 20;  // in characters
  tree_->resizeColumnToContents(0);
  const int needed = tree_->columnWidth(0) + kValueWidth * tree_->fontMetrics().averageCharWidth();
  if (needed > tree_->sizeHint().width()) tree_->setMinimumWidth(needed);  // where names are long
  tree_->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
  connect(tree_->header(), &QHeaderView::sectionResized, tree_, &QTreeView::doItemsLayout,
          Qt::QueuedConnection);
  explained_ = Named("PropertyEvidence", new QLabel);
  explained_->setWordWrap(true);
  explained_->setTextFormat(Qt::PlainText);
  explained_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  explained_->setAlignment(Qt::AlignTop | Qt::AlignLeft);
  explained_->setMinimumHeight(explained_->fontMetrics().lineSpacing() * 6);
  auto* copy = Named("CopyPropertiesx", new QPushButton(Tr("Copy Text")));

  auto* content = new QWidget;
  auto* column = new QVBoxLayout(content);
  column->addWidget(tree_, 1);
  column->addWidget(explained_);
  column->addWidget(copy, 0, Qt::AlignLeft);
  setWidget(content);
  OnSignal(runner_, tree_, &QTreeWidget::currentItemChanged, this, [this] { ShowChosen(); });
  OnClick(runner_, copy, this, [this] { Copy(); });
}

/// Adds all entries at once, because a tree is laid out again at each addition.
void PropertiesPanel::AddEntries() {
  QList<QTreeWidgetItem*> groups;
  const auto add = [&groups](const char* group, const char* name) {
    return new QTreeWidgetItem(GroupNamed(groups, Tr(group)), {Tr(name)});
  };
  for (const char* name : kDetails)
    details_.push_back(add(kSquareGroup, name));
  for (const Term& term : Terms())
    terms_.push_back(add(term.Group->Name, term.Name));
  tree_->addTopLevelItems(groups);
  groups_.assign(groups.begin(), groups.end());
  for (const auto& entries : {groups_, details_, terms_}) {
    for (QTreeWidgetItem* entry : entries) {
      for (const int column : {0, 1})
        entry->setTextAlignment(column, Qt::AlignLeft | Qt::AlignTop);
    }
  }
  groups_.front()->setFirstColumnSpanned(true);
  groups_.front()->setExpanded(true);
}

/// Beside each group of terms, those that hold.
void PropertiesPanel::ShowGroups() {
  for (std::size_t group = 1; group < groups_.size(); ++group) {
    QString held;
    for (std::size_t i = 0; i < terms_.size(); ++i) {
      const bool within = terms_[i]->parent() == groups_[group];
      if (!within || !report_ || !report_->Properties[i].Found) continue;
      const QString& term = terms_[i]->text(0);
      held = held.isEmpty() ? term : Tr("%1, %2", held, term);
    }
    const QString value = !report_ ? "" : held.isEmpty() ? Tr("none") : held;
    ShowEntry(groups_[group], value, value);
  }
}

void PropertiesPanel::Show(const Report& report) {
  report_ = report;
  for (std::size_t i = 0; i < details_.size(); ++i) {
    const auto detail =
        std::find_if(report.Details.begin(), report.Details.end(),
                     [i](const Detail& known) { return known.first == kDetails[i]; });
    const bool known = detail != report.Details.end();
    details_[i]->setHidden(!known);
    if (known) ShowEntry(details_[i], detail->second.c_str(), detail->second.c_str());
  }
  for (std::size_t i = 0; i < terms_.size(); ++i) {
    const Judgement& found = report.Properties[i].Found;
    const QString word = Tr(WordFor(found.Says));
    ShowEntry(terms_[i], QChar(MarkFor(found.Says)) + QString(" ") + word,
              Tr("%1, %2", word, found.Why));
  }
  ShowGroups();
  tree_->setEnabled(true);
  ShowChosen();
}

void PropertiesPanel::ShowNone(const QString& why) {
  report_.reset();
  for (const auto& entries : {details_, terms_}) {
    for (QTreeWidgetItem* entry : entries)
      ShowEntry(entry, "", why);
  }
  ShowGroups();
  tree_->setEnabled(false);
  ShowChosen();
  explained_->setText(why);
}

/// Explains the chosen entry, and emits its cells.
void PropertiesPanel::ShowChosen() {
  std::vector<Place> cells;
  QString text = Tr("Choose an entry to see why.");
  const QTreeWidgetItem* chosen = tree_->currentItem();
  const auto term = std::find(terms_.begin(), terms_.end(), chosen);
  if (report_ && term != terms_.end()) {
    const Property& property = report_->Properties[static_cast<std::size_t>(term - terms_.begin())];
    cells = property.Found.Cells;
    // Translators: a term, its definition, "holds", "fails" or "does not apply", and the reason.
    text = Tr("%1: %2.\n\nIt %3: %4.", Tr(property.What->Name), Tr(property.What->Definition),
              Tr(WordFor(property.Found.Says)), property.Found.Why);
  } else if (report_ && chosen && chosen->parent() && !chosen->isHidden()) {
    text = Tr("%1: %2", chosen->text(0), chosen->text(1));
    text.replace(" / ", "\n");
  }
  if (report_) explained_->setText(text);
  Q_EMIT EvidenceChosen(cells);
}

void PropertiesPanel::Copy() {
  if (report_) QApplication::clipboard()->setText(QString::fromStdString(TextOf(*report_)));
}

}  // namespace numorra
