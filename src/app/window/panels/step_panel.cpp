#include "app/window/panels/step_panel.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "toolkit/named.h"
#include "toolkit/on_signal.h"
#include "toolkit/tr.h"

namespace numorra {
namespace {

constexpr int kOnBoard = -1;  // the choice that is no example
constexpr int kSpeeds = 10;
constexpr int kSlowest = 2000;  // milliseconds per step

QString Sentence(const std::string& text) {
  QString sentence = QString::fromStdString(text);
  if (!sentence.isEmpty()) sentence[0] = sentence[0].toUpper();
  return Tr("%1.", sentence);
}

}  // namespace

StepPanel::StepPanel(WalkView* view, CommandRunner& runner, QWidget* parent)
    : LazyPanel(Tr("Step by Step"), parent), view_(view), runner_(runner) {
  setObjectName("StepPanel");
  setFeatures(DockWidgetClosable);
  setAllowedAreas(Qt::BottomDockWidgetArea);
}

void StepPanel::Furnish() {
  choice_ = Named("WalkChoice", new QComboBox);
  back_ = Named("StepBackx", new QPushButton(Tr("Back")));
  next_ = Named("StepNextx", new QPushButton(Tr("Next")));
  play_ = Named("PlayStepsx", new QPushButton(Tr("Play")));
  speed_ = Named("StepSpeed", new QSlider(Qt::Horizontal));
  steps_ = Named("StepSlider", new QSlider(Qt::Horizontal));
  where_ = new QLabel;
  ask_ = Named("AskMex", new QCheckBox(Tr("Ask me")));
  sentence_ = Named("StepSentence", new QLabel);
  choice_->setAccessibleName(Tr("Square to walk through"));
  choice_->setSizeAdjustPolicy(QComboBox::AdjustToContents);  // full screen enlarges the letters
  speed_->setAccessibleName(Tr("Speed"));
  speed_->setToolTip(Tr("speed"));
  speed_->setRange(1, kSpeeds);
  speed_->setValue(kSpeeds / 2);
  speed_->setMaximumWidth(choice_->sizeHint().width());
  steps_->setAccessibleName(Tr("Step"));
  play_->setCheckable(true);
  sentence_->setWordWrap(true);
  sentence_->setTextFormat(Qt::PlainText);
  sentence_->setAlignment(Qt::AlignTop);
  sentence_->setMinimumHeight(2 * sentence_->fontMetrics().lineSpacing());

  Arrange();
  Connect();
  ShowStep();
}

void StepPanel::Arrange() {
  auto* content = new QWidget;
  auto* column = new QVBoxLayout(content);
  column->addWidget(sentence_);
  auto* slide = new QHBoxLayout;
  slide->addWidget(steps_, 1);
  slide->addWidget(where_);
  column->addLayout(slide);
  auto* row = new QHBoxLayout;
  for (QWidget* widget :
       std::initializer_list<QWidget*>{choice_, back_, next_, play_, speed_, ask_})
    row->addWidget(widget);
  row->addStretch();
  column->addLayout(row);
  setWidget(content);
}

void StepPanel::Connect() {
  const auto on = [&](const auto* sender, auto signal, auto act) {
    OnSignal(runner_, sender, signal, this, std::move(act));
  };
  const auto goOn = [this] { GoTo(view_->TheWalk().At() + 1); };
  OnClick(runner_, back_, this, [this] { GoTo(view_->TheWalk().At() - 1); });
  OnClick(runner_, next_, this, goOn);
  on(choice_, &QComboBox::activated, [this] { BeginChosen(); });
  on(play_, &QPushButton::toggled, [this](bool play) { Play(play); });
  on(steps_, &QSlider::valueChanged, [this](int step) { GoTo(step); });
  on(speed_, &QSlider::valueChanged,
     [this](int speed) { timer_.setInterval(kSlowest / (speed * speed)); });
  on(ask_, &QCheckBox::toggled, [this] {
    asked_ = right_ = 0;
    Play(false);
    ShowStep();
  });
  on(&timer_, &QTimer::timeout, goOn);
  on(this, &QDockWidget::visibilityChanged, [this](bool shown) {
    if (!shown) Play(false);
  });
  on(view_, &GridView::CellPressed, [this](int r, int c, Qt::MouseButton, QPoint) {
    view_->MoveTo(r, c);
    Answer(view_->Current());
  });
  on(view_, &GridView::CellWanted, [this](int r, int c) { view_->MoveTo(r, c); });
  on(view_, &GridView::MarkWanted, [this] { Answer(view_->Current()); });
  on(view_, &GridView::CharacterTyped, [this](char32_t character) {
    if (character == U'\r') Answer(view_->Current());
  });
  timer_.setInterval(kSlowest / (speed_->value() * speed_->value()));
}

void StepPanel::Begin(const Square<double>& square) {
  square_ = square;
  choice_->clear();
  if (!WalkOf(square).empty()) {
    choice_->addItem(Tr("the square on the board"), kOnBoard);
  }
  examples_ = WalkExamples();
  for (std::size_t i = 0; i < examples_.size(); ++i)
    choice_->addItem(QString::fromStdString(examples_[i].Caption), static_cast<int>(i));
  BeginChosen();
  next_->setFocus();
}

void StepPanel::BeginChosen() {
  if (choice_->count() == 0) return;
  Play(false);
  const int example = choice_->currentData().toInt();
  const Square<double>& square =
      example == kOnBoard ? square_ : examples_[static_cast<std::size_t>(example)].Numbers;
  view_->Begin(square.Order(), WalkOf(square));
  asked_ = right_ = 0;
  steps_->setRange(0, view_->TheWalk().Steps());
  GoTo(0);
}

void StepPanel::GoTo(int step) {
  const int last = view_->TheWalk().Steps();
  step = std::clamp(step, 0, last);
  if (step == last) Play(false);
  view_->GoTo(step);
  const QSignalBlocker quiet(steps_);
  steps_->setValue(step);
  ShowStep();
}

/// The first number's place follows from nothing, so it is shown.
bool StepPanel::Asking() const {
  const WalkStep* const next = view_->TheWalk().Next();
  return ask_->isChecked() && next != nullptr && next->Number > 1;
}

/// The sentence of the step, or the question about the next one.
void StepPanel::ShowStep() {
  const Walk& walk = view_->TheWalk();
  QString text = walk.Done() ? Sentence(walk.Done()->Sentence)
                             : Tr("An empty board. Press Next for the first step.");
  if (Asking()) {
    text += "\n" + Tr("Click where %1 goes, or move there with the arrow keys and press Enter.",
                      walk.Next()->Number);
  }
  sentence_->setText(text);
  QString where = Tr("step %1 of %2", walk.At(), walk.Steps());
  if (ask_->isChecked()) where = Tr("%1, %2 of %3 right", where, right_, asked_);
  where_->setText(where);
  back_->setEnabled(walk.At() > 0);
  next_->setEnabled(walk.At() < walk.Steps() && !Asking());
  play_->setEnabled(walk.At() < walk.Steps() && !ask_->isChecked());
  if (!QAccessible::isActive()) return;
  sentence_->setAccessibleName(text);
  QAccessibleEvent event(sentence_, QAccessible::NameChanged);
  QAccessible::updateAccessibility(&event);
}

void StepPanel::Play(bool on) {
  const QSignalBlocker quiet(play_);
  play_->setChecked(on);
  if (on) {
    timer_.start();
  } else {
    timer_.stop();
  }
}

/// Goes to the next step after a right answer; shows the rule after a wrong one.
void StepPanel::Answer(Place place) {
  if (!Asking()) return;
  const WalkStep& next = *view_->TheWalk().Next();
  ++asked_;
  if (place == next.Written.front().first) {
    ++right_;
    GoTo(view_->TheWalk().At() + 1);
    return;
  }
  ShowStep();
  sentence_->setText(Tr("No, not %1: %2.", NameOf(place), next.Sentence));
}

}  // namespace numorra
