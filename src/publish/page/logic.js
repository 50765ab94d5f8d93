// The puzzles without the page: no function here knows the document. Cells are counted from 0 in reading order, and
// a number of 0 is a gap. A board is {numbers, notes}, with an array of noted numbers for each cell.

// All lines of a square, by the names that the steps use.
function linesOf(order) {
  const count = [...Array(order).keys()];
  const line = (name, cellAt) => ({name, cells: count.map(cellAt)});
  return [
    ...count.map((row) => line(`row ${row + 1}`, (i) => row * order + i)),
    ...count.map((column) => line(`column ${column + 1}`, (i) => i * order + column)),
    line('the main diagonal that falls', (i) => i * (order + 1)),
    line('the main diagonal that rises', (i) => (i + 1) * (order - 1)),
  ];
}

// Packed objects as JSON: the form of each with its values put back in.
function unpacked(forms, objects) {
  const text = ([form, ...values]) => forms[form].replace(/\n/g, () => {
    const value = values.shift();
    return Array.isArray(value) ? unpacked(forms, value) : value;
  });
  return `[${objects.map(text)}]`;
}

// `clues`: the numbers of the sheet; `data`: the rest, as embedded.
function puzzleOf(clues, data, forms) {
  const order = Math.sqrt(clues.length);
  const steps = JSON.parse(unpacked(forms, data.steps));
  const most = data.normal ? clues.length : data.total;
  return {...data, clues, order, steps, most, lines: linesOf(order)};
}

const freshBoard = (puzzle) => ({numbers: [...puzzle.clues], notes: puzzle.clues.map(() => [])});
const gapsIn = (numbers) => numbers.filter((number) => number === 0).length;

// What each line adds up to, and its verdict: open until it is full.
function totalsOf(puzzle, numbers) {
  return puzzle.lines.map(({name, cells}) => {
    const held = cells.map((cell) => numbers[cell]);
    const sum = held.reduce((a, b) => a + b, 0);
    const verdict = held.includes(0) ? 'open' : sum === puzzle.total ? 'right' : 'wrong';
    return {name, cells, sum, verdict};
  });
}

// By the normal rules, the numbers that are not on the board yet; otherwise none are listed.
function missingOn(puzzle, numbers) {
  if (!puzzle.normal) return [];
  return puzzle.clues.map((_, i) => i + 1).filter((number) => !numbers.includes(number));
}

const linesAreRight = (puzzle, numbers) => totalsOf(puzzle, numbers).every(({verdict}) => verdict === 'right');
const isSolved = (puzzle, numbers) => linesAreRight(puzzle, numbers) && missingOn(puzzle, numbers).length === 0;

// The cells whose numbers differ from the solution; none if it is not known.
function wrongOn(puzzle, numbers) {
  return puzzle.solution.flatMap((number, cell) => (numbers[cell] && numbers[cell] !== number ? [cell] : []));
}

// The number being typed after another digit. One that would be too large begins again with the digit.
function typed(before, digit, most) {
  const longer = before * 10 + digit;
  return longer <= most ? longer : digit;
}

// The notes of a cell with a number added, or removed if it is there; 0 changes nothing.
function toggled(notes, number) {
  if (number === 0) return notes;
  return notes.includes(number) ? notes.filter((noted) => noted !== number) : [...notes, number].sort((a, b) => a - b);
}

// The notes of a gap. By the normal rules, those of numbers on the board are kept, but not shown.
function notesOn(puzzle, {numbers, notes}, cell) {
  if (numbers[cell]) return [];
  return notes[cell].filter((number) => !puzzle.normal || !numbers.includes(number));
}

// The stages of a hint: where to look, each reason, the number; each with its cells. It is the first step that is not
// on the board: its reasons hold, since all steps before it are. Undefined if there is none.
function hintFor(puzzle, numbers) {
  const cellAt = ([row, column]) => (row - 1) * puzzle.order + column - 1;
  const cellsOf = ({line, cell}) => puzzle.lines.find(({name}) => name === line)?.cells ?? (cell ? [cellAt(cell)] : []);
  const step = puzzle.steps.find(({cell, number}) => numbers[cellAt(cell)] !== number);
  if (!step) return undefined;
  const [cell, last] = [cellAt(step.cell), step.because.at(-1)];
  const lastGap = last?.line && gapsIn(cellsOf(last).map((at) => numbers[at])) === 1;
  return [
    {look: lastGap ? last.line : '', cell, cells: lastGap ? cellsOf(last) : [cell]},
    ...step.because.map((reason) => ({says: reason.says, cell, cells: cellsOf(reason)})),
    {number: step.number, cell, cells: [cell]},
  ];
}

// A text that tells this set of puzzles from others.
function fingerprintOf(puzzles) {
  let hash = 0;
  for (const number of puzzles.flatMap(({clues, total}) => [...clues, total, -1])) {
    hash = (Math.imul(hash, 31) + (number % 1000003)) | 0;
  }
  return `${puzzles.length}-${(hash >>> 0).toString(36)}`;
}

// The boards that were kept as JSON. Whatever does not fit its puzzle is left out, so no text does harm.
function restored(puzzles, text) {
  let kept = null;
  try {
    kept = JSON.parse(text);
  } catch {
    // Then nothing is restored.
  }
  const at = Number.isInteger(kept?.at) && puzzles[kept.at] ? kept.at : 0;
  const boards = puzzles.map((puzzle, i) => {
    const may = (number) => Number.isInteger(number) && number > 0 && number <= puzzle.most;
    const board = freshBoard(puzzle);
    puzzle.clues.forEach((clue, cell) => {
      const [number, notes] = [kept?.boards?.[i]?.numbers?.[cell], kept?.boards?.[i]?.notes?.[cell]];
      if (clue === 0 && may(number)) board.numbers[cell] = number;
      if (clue === 0 && Array.isArray(notes)) board.notes[cell] = [...new Set(notes.filter(may))];
    });
    return board;
  });
  return {at, boards};
}
