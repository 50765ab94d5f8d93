// All texts that the scripts show. Those that never change are in page.html.
const sentence = (text) => text[0].toUpperCase() + text.slice(1) + '.';
const counted = (count, one, more) => `${count} ${count === 1 ? one : more}`;
const cellName = (row, column) => `row ${row}, column ${column}`;

const TEXT = {
  choice: (number, solved) => `${number}${solved ? ' (solved)' : ''}`,
  cell: (row, column, content, marks) => [`${cellName(row, column)}: ${content}`, ...marks].join(', '),
  empty: 'empty',
  notes: (numbers) => `notes ${numbers}`,
  given: 'given',
  isWrong: 'wrong',
  inHint: 'in the hint',
  isGiven: 'This number is given.',
  gapsOnly: 'Notes are for empty cells.',
  erase: 'Erase',
  // A total: what is said of a line, and what stands beside it.
  verdict: {
    open: (name, sum, total) => `${name}: ${sum} of ${total}`,
    right: (name, sum) => `${name}: ${sum}, right`,
    wrong: (name, sum, total) => `${name}: ${sum}, wrong, not ${total}`,
  },
  sign: {open: '', right: ' ✓', wrong: ' ✗'},
  right: (gaps) => `No number is wrong, and ${counted(gaps, 'cell is', 'cells are')} empty.`,
  wrong: (count) => `${counted(count, 'number is', 'numbers are')} wrong.`,
  wrongFirst: (count) => `${TEXT.wrong(count)} Correct ${count === 1 ? 'it' : 'them'} first.`,
  marked: (names) => `Wrong: ${names.join('; ')}.`,
  noHint: 'There is no hint for this board.',
  look: (line, row, column) => `Look at ${line || cellName(row, column)}.`,
  because: (says, step, steps) => sentence(says) + (steps > 1 ? ` (${step} of ${steps})` : ''),
  placed: (number, row, column) => `${number} is in ${cellName(row, column)}.`,
  twice: 'All lines are right, but a number is there more than once.',
  solved: (total) => `Well done: all lines add up to ${total}.`,
  cannotKeep: 'This browser does not let the page keep anything.',
};
