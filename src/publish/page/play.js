// The page: shows the boards, takes keys, clicks and taps, and keeps progress if the reader wishes.
const byId = (id) => document.getElementById(id);
const grid = byId('grid');

// What the page holds: the puzzles, the boards in play, and the player's place among them.
const data = JSON.parse(byId('data').textContent);
words = data.words ?? {};
const sheets = [...byId('sheets').querySelectorAll('table')];
const puzzles = sheets.map((sheet, i) => {
  const clues = [...sheet.querySelectorAll('td')].map((cell) => Number(cell.textContent));
  return puzzleOf(clues, data.puzzles[i], data.forms);
});
const key = `numorra-play:${fingerprintOf(puzzles)}`;
let {at, boards} = restored(puzzles, null);
// The current cell, the number being typed in it, the stages of a hint and how many are shown, the cells marked as wrong.
let [current, typing, takingNotes, hint, stage, marked] = [0, 0, false, null, 0, []];

const puzzle = () => puzzles[at];
const board = () => boards[at];
const placeOf = (cell) => [Math.floor(cell / puzzle().order) + 1, (cell % puzzle().order) + 1];
const cellAt = (cell) => grid.querySelector(`[data-cell="${cell}"]`);
const say = (text) => { byId('message').textContent = text; };

function make(tag, attributes, parent) {
  const element = parent.appendChild(document.createElement(tag));
  for (const [name, value] of Object.entries(attributes)) element.setAttribute(name, value);
  return element;
}

// Storage may be forbidden, so every use of it can fail.
function stored(use) {
  try {
    return use(localStorage) ?? true;
  } catch {
    return false;
  }
}

// Keeps the boards if the reader wishes; false if that fails.
function keep() {
  const kept = !byId('keep').checked || stored((storage) => storage.setItem(key, JSON.stringify({at, boards})));
  if (!kept) say(TEXT.cannotKeep());
  return kept;
}

// Builds the table of the current puzzle. The total of a line stands where the line ends: the diagonals' in the corners.
function build() {
  const {order} = puzzle();
  grid.replaceChildren();
  grid.classList.toggle('wide', order > 5);
  const total = (row, role, line) => make('th', {role, 'data-line': line}, row);
  const blank = (row) => make('th', {role: 'presentation'}, row);
  const top = make('tr', {role: 'row'}, grid);
  for (let column = 0; column < order; ++column) blank(top);
  total(top, 'columnheader', 2 * order + 1);
  for (let row = 0; row < order; ++row) {
    const cells = make('tr', {role: 'row'}, grid);
    for (let column = 0; column < order; ++column) make('td', {role: 'gridcell', 'data-cell': row * order + column}, cells);
    total(cells, 'rowheader', row);
  }
  const bottom = make('tr', {role: 'row'}, grid);
  for (let line = order; line <= 2 * order; ++line) total(bottom, 'columnheader', line);
  byId('about').textContent = sheets[at].caption.lastChild.textContent;
  byId('check').hidden = puzzle().solution.length === 0;
  byId('hint').hidden = puzzle().steps.length === 0;
  byId('missing').hidden = !puzzle().normal;
}

function showCell(element) {
  const cell = Number(element.dataset.cell);
  const number = board().numbers[cell];
  const given = puzzle().clues[cell] !== 0;
  const noted = notesOn(puzzle(), board(), cell);
  const wrong = marked.includes(cell);
  const hinted = hint !== null && hint[stage - 1].cells.includes(cell);
  const content = number || (noted.length ? TEXT.notes(noted.join(' ')) : TEXT.empty());
  const marks = [given && TEXT.given(), wrong && TEXT.isWrong(), hinted && TEXT.inHint()].filter(Boolean);
  element.textContent = number || '';
  if (noted.length) make('small', {}, element).textContent = noted.join(' ');
  element.setAttribute('aria-label', TEXT.cell(...placeOf(cell), content, marks));
  element.setAttribute('aria-selected', cell === current);
  if (given) element.setAttribute('aria-readonly', true);
  element.tabIndex = cell === current ? 0 : -1;
  const classes = {given, hint: hinted, marked: wrong, at: cell === current};
  for (const [name, on] of Object.entries(classes)) element.classList.toggle(name, on);
}

function show() {
  grid.querySelectorAll('td').forEach(showCell);
  const totals = totalsOf(puzzle(), board().numbers);
  for (const element of grid.querySelectorAll('[data-line]')) {
    const {name, sum, verdict} = totals[element.dataset.line];
    element.textContent = sum + TEXT.sign[verdict];
    element.className = verdict;
    element.setAttribute('aria-label', TEXT.verdict[verdict](name, sum, puzzle().total));
  }
  byId('missing').querySelectorAll('button').forEach((button) => button.remove());
  for (const number of missingOn(puzzle(), board().numbers)) make('button', {}, byId('missing')).textContent = number;
  byId('notes').setAttribute('aria-pressed', takingNotes);
  [...byId('choice').options].forEach((option, i) => {
    option.textContent = TEXT.choice(i + 1, isSolved(puzzles[i], boards[i].numbers));
  });
  if (grid.contains(document.activeElement)) cellAt(current).focus();
}

// Ends what was said about the board as it was.
function forget() {
  [hint, stage, marked] = [null, 0, []];
  byId('mark').hidden = true;
  say('');
}

// A number changed: shows it, and tells what the lines of its cell add up to.
function changed(text = '') {
  const {numbers} = board();
  const totals = totalsOf(puzzle(), numbers);
  const told = totals.filter(({cells}) => cells.includes(current));
  byId('totals').textContent =
      inTurn(told.map(({name, sum, verdict}) => TEXT.verdict[verdict](name, sum, puzzle().total)));
  if (isSolved(puzzle(), numbers)) {
    say(TEXT.solved(puzzle().total));
  } else {
    say(totals.every(({verdict}) => verdict === 'right') ? TEXT.twice() : text);
  }
  show();
  keep();
}

function write(number) {
  forget();
  board().numbers[current] = number;
  changed();
}

// Notes change no number, so a hint stays.
function note(...numbers) {
  board().notes[current] = numbers.reduce(toggled, board().notes[current]);
  show();
  keep();
}

// A number for the current cell: written, or, while notes are taken, noted in place of what it began with.
function enter(number, beginning) {
  if (puzzle().clues[current] !== 0) return say(TEXT.isGiven());
  if (takingNotes && board().numbers[current] !== 0) return say(TEXT.gapsOnly());
  typing = number;
  return takingNotes ? note(beginning, number) : write(number);
}

function press(digit) {
  const number = typed(typing, digit, puzzle().most);
  if (number > 0) enter(number, number === digit ? 0 : typing);
}

function erase(all) {
  if (puzzle().clues[current] !== 0) return say(TEXT.isGiven());
  const shorter = all ? 0 : Math.floor(typing / 10);
  if (takingNotes && board().numbers[current] === 0) {
    if (typing) note(typing, shorter);
    else note(...board().notes[current]);
  } else {
    write(shorter);
  }
  typing = shorter;
}

function moveTo(cell) {
  [current, typing] = [cell, 0];
  show();
  cellAt(cell).focus();
}

function moveBy(rows, columns) {
  const {order} = puzzle();
  const [row, column] = placeOf(current);
  moveTo(((row - 1 + rows + order) % order) * order + (column - 1 + columns + order) % order);
}

function toggleNotes() {
  [takingNotes, typing] = [!takingNotes, 0];
  show();
}

function offerMarks(text, wrong) {
  say(text(wrong.length));
  byId('mark').hidden = false;
  show();
}

function check() {
  forget();
  const wrong = wrongOn(puzzle(), board().numbers);
  if (wrong.length) return offerMarks(TEXT.wrong, wrong);
  if (isSolved(puzzle(), board().numbers)) return changed();
  say(TEXT.right(gapsIn(board().numbers)));
  return show();
}

function mark() {
  forget();
  marked = wrongOn(puzzle(), board().numbers);
  say(TEXT.marked(marked.map((cell) => cellName(...placeOf(cell)))));
  show();
  byId('check').focus();
}

function giveHint() {
  const wrong = wrongOn(puzzle(), board().numbers);
  if (wrong.length) return offerMarks(TEXT.wrongFirst, wrong);
  typing = 0;
  hint ??= hintFor(puzzle(), board().numbers) ?? null;
  if (!hint) return isSolved(puzzle(), board().numbers) ? changed() : say(TEXT.noHint());
  const {look, says, number, cell} = hint[stage++];
  if (number) {
    forget();
    current = cell;
    board().numbers[cell] = number;
    return changed(TEXT.placed(number, ...placeOf(cell)));
  }
  say(says ? TEXT.because(says, stage - 1, hint.length - 2) : TEXT.look(look, ...placeOf(cell)));
  show();
  return cellAt(cell).scrollIntoView({block: 'nearest', inline: 'nearest'});
}

function choose(number) {
  [at, current, typing] = [number, Math.max(0, boards[number].numbers.indexOf(0)), 0];
  byId('choice').value = number;
  forget();
  build();
  show();
}

// Typed anywhere but in a field; buttons have Enter and Space for themselves.
const KEYS = {
  ArrowUp: () => moveBy(-1, 0), ArrowDown: () => moveBy(1, 0),
  ArrowLeft: () => moveBy(0, -1), ArrowRight: () => moveBy(0, 1),
  Backspace: () => erase(false), Delete: () => erase(true),
  n: toggleNotes, h: () => !byId('hint').hidden && giveHint(),
};

function onKey(event) {
  if (event.ctrlKey || event.altKey || event.metaKey || event.target.closest('select, input, summary')) return;
  const action = /^\d$/.test(event.key) ? () => press(Number(event.key))
      : KEYS[event.key.length === 1 ? event.key.toLowerCase() : event.key];
  if (event.target.closest('td') && (event.key === 'Enter' || event.key === ' ')) typing = 0;
  else if (!action) return;
  event.preventDefault();
  action?.();
}

function start() {
  puzzles.forEach((_, i) => make('option', {value: i}, byId('choice')));
  [1, 2, 3, 4, 5, 6, 7, 8, 9, 0].forEach((digit) => { make('button', {}, byId('pad')).textContent = digit; });
  make('button', {'data-erase': ''}, byId('pad')).textContent = TEXT.erase();
  const listen = (id, type, action) => byId(id).addEventListener(type, action);
  listen('play', 'keydown', onKey);
  listen('grid', 'click', ({target}) => {
    const cell = target.closest('td');
    if (cell) moveTo(Number(cell.dataset.cell));
  });
  listen('pad', 'click', ({target}) => {
    if ('erase' in target.dataset) erase(false);
    else if (target.closest('button')) press(Number(target.textContent));
  });
  listen('missing', 'click', ({target}) => {
    if (!target.closest('button')) return;
    enter(Number(target.textContent), 0);
    typing = 0;
    cellAt(current).focus();
  });
  listen('notes', 'click', toggleNotes);
  listen('hint', 'click', giveHint);
  listen('check', 'click', check);
  listen('mark', 'click', mark);
  listen('choice', 'change', ({target}) => {
    choose(Number(target.value));
    keep();
  });
  listen('keep', 'change', ({target}) => {
    if (!target.checked) stored((storage) => storage.removeItem(key));
    else target.checked = keep();
  });
  document.documentElement.classList.add('live');
  byId('play').hidden = false;
  let kept = null;
  stored((storage) => { kept = storage.getItem(key); });
  byId('keep').checked = kept !== null;
  ({at, boards} = restored(puzzles, kept));
  choose(at);
}

if (puzzles.length) start();
