// All texts that the scripts show. Those that never change are in page.html. Texts are phrases with places, %1 to %9, as the
// program says them; the page holds what its language has for each of them, and nothing if it is English.
let words = {};
const filled = (phrase, fillings) => phrase.replace(/%([1-9])/g, (place, i) => fillings[i - 1] ?? place);
const tr = (phrase, ...fillings) => filled(words[phrase] ?? phrase, fillings);

// The phrase for a count, which is %1. A language says which of its forms stands for each count up to 199; from 100 on, the
// last two digits decide.
function trCounted(one, many, count, ...fillings) {
  const said = words[one] ?? {forms: [one, many], which: '10'};
  const form = said.which[count < 200 ? count : 100 + count % 100] ?? 1;
  return filled(said.forms[form], [count, ...fillings]);
}

const listed = (texts) => texts.reduce((list, text) => tr('%1, %2', list, text));
const inTurn = (texts) => texts.length ? texts.reduce((list, text) => tr('%1; %2', list, text)) : '';
const sentence = (text) => text[0].toUpperCase() + text.slice(1) + '.';
const cellName = (row, column) => tr('row %1, column %2', row, column);

// Lines are called as in the data: "row 2", "the main diagonal that falls".
const LINES = {
  row: (number) => tr('row %1', number),
  column: (number) => tr('column %1', number),
  falls: () => tr('the main diagonal that falls'),
  rises: () => tr('the main diagonal that rises'),
};
function lineName(name) {
  const called = name.split(' ');
  return (LINES[called[0]] ?? LINES[called[called.length - 1]])(called[1]);
}

const TEXT = {
  choice: (number, solved) => solved ? tr('%1 (solved)', number) : `${number}`,
  cell: (row, column, content, marks) => listed([tr('%1: %2', cellName(row, column), content), ...marks]),
  empty: () => tr('empty'),
  notes: (numbers) => tr('notes %1', numbers),
  given: () => tr('given'),
  isWrong: () => tr('wrong'),
  inHint: () => tr('in the hint'),
  isGiven: () => tr('This number is given.'),
  gapsOnly: () => tr('Notes are for empty cells.'),
  erase: () => tr('Erase'),
  // A total: what is said of a line, and what stands beside it.
  verdict: {
    open: (name, sum, total) => tr('%1: %2 of %3', lineName(name), sum, total),
    right: (name, sum) => tr('%1: %2, right', lineName(name), sum),
    wrong: (name, sum, total) => tr('%1: %2, wrong, not %3', lineName(name), sum, total),
  },
  sign: {open: '', right: ' ✓', wrong: ' ✗'},
  right: (gaps) => trCounted('No number is wrong, and %1 cell is empty.', 'No number is wrong, and %1 cells are empty.', gaps),
  wrong: (count) => trCounted('%1 number is wrong.', '%1 numbers are wrong.', count),
  wrongFirst: (count) =>
    trCounted('%1 number is wrong. Correct it first.', '%1 numbers are wrong. Correct them first.', count),
  marked: (names) => tr('Wrong: %1.', inTurn(names)),
  noHint: () => tr('There is no hint for this board.'),
  look: (line, row, column) => tr('Look at %1.', line ? lineName(line) : cellName(row, column)),
  because: (says, step, steps) => steps > 1 ? tr('%1 (%2 of %3)', sentence(says), step, steps) : sentence(says),
  placed: (number, row, column) => tr('%1 is in %2.', number, cellName(row, column)),
  twice: () => tr('All lines are right, but a number is there more than once.'),
  solved: (total) => tr('Well done: all lines add up to %1.', total),
  cannotKeep: () => tr('This browser does not let the page keep anything.'),
};
