// The puzzles without a page.
const test = require('node:test');
const assert = require('node:assert');
const fs = require('node:fs');
const path = require('node:path');

const source = fs.readFileSync(path.join(__dirname, '../../src/publish/page/logic.js'), 'utf8');
const names = [...source.matchAll(/^(?:function|const) (\w+)/gm)].map(([, name]) => name);
const logic = new Function(`'use strict'; ${source} return {${names}};`)();

// 2 7 6 / 9 5 1 / 4 3 8 with three clues, as the page embeds it.
const FORMS = ['{"cell":[\n,\n],"number":\n,"because":\n}', '{"line":"row \n","says":"row \n lacks \n"}',
  '{"cell":[\n,\n],"says":"it is \n"}', '{"line":"the main diagonal that rises","says":"see there"}'];
const CLUES = [2, 7, 0, 0, 5, 0, 0, 0, 8];
const SOLUTION = [2, 7, 6, 9, 5, 1, 4, 3, 8];
const STEPS = [[0, 1, 3, 6, [[1, 1, 1, '4 or 6']]], [0, 3, 1, 4, [[3], [2, 3, 1, 4]]]];

function puzzleWith(more) {
  return logic.puzzleOf(CLUES, {total: 15, normal: true, solution: SOLUTION, steps: STEPS, ...more}, FORMS);
}

const puzzle = puzzleWith({});

test('lines have their names and cells', () => {
  const lines = Object.fromEntries(logic.linesOf(3).map(({name, cells}) => [name, cells.join(' ')]));
  assert.strictEqual(Object.keys(lines).length, 8);
  assert.strictEqual(lines['row 2'], '3 4 5');
  assert.strictEqual(lines['column 3'], '2 5 8');
  assert.strictEqual(lines['the main diagonal that falls'], '0 4 8');
  assert.strictEqual(lines['the main diagonal that rises'], '2 4 6');
});

test('a line is judged when it is full', () => {
  const verdicts = (numbers) => logic.totalsOf(puzzle, numbers).map(({sum, verdict}) => `${sum} ${verdict}`);
  assert.deepStrictEqual(verdicts([2, 7, 6, 0, 5, 0, 0, 0, 9]),
    ['15 right', '5 open', '9 open', '2 open', '12 open', '15 open', '16 wrong', '11 open']);
});

test('a board is solved when its lines are right and no number is there twice', () => {
  const fives = Array(9).fill(5);
  assert.ok(logic.isSolved(puzzle, SOLUTION));
  assert.ok(!logic.isSolved(puzzle, CLUES));
  assert.ok(!logic.isSolved(puzzle, fives));
  assert.ok(logic.isSolved(puzzleWith({normal: false}), fives));
  assert.deepStrictEqual(logic.missingOn(puzzle, CLUES), [1, 3, 4, 6, 9]);
  assert.deepStrictEqual(logic.missingOn(puzzleWith({normal: false}), CLUES), []);
});

test('wrong numbers differ from the solution', () => {
  assert.deepStrictEqual(logic.wrongOn(puzzle, [2, 7, 9, 9, 5, 0, 3, 0, 8]), [2, 6]);
  assert.deepStrictEqual(logic.wrongOn(puzzleWith({solution: []}), [2, 7, 9, 9, 5, 0, 3, 0, 8]), []);
});

test('digits make a number up to the largest', () => {
  const cases = [[0, 0, 9, 0], [0, 7, 9, 7], [1, 6, 16, 16], [1, 7, 16, 7], [1, 0, 16, 10], [16, 0, 16, 0]];
  for (const [before, digit, most, number] of cases) assert.strictEqual(logic.typed(before, digit, most), number);
  assert.deepStrictEqual([12, 3, 12, 0].reduce(logic.toggled, [5]), [3, 5]);
});

test('notes are shown in gaps, and not of numbers on the board', () => {
  const board = {numbers: CLUES, notes: CLUES.map(() => [1, 2, 3])};
  assert.deepStrictEqual([0, 2].map((cell) => logic.notesOn(puzzle, board, cell)), [[], [1, 3]]);
  assert.deepStrictEqual(logic.notesOn(puzzleWith({normal: false}), board, 2), [1, 2, 3]);
});

test('a hint goes from where to look over the reasons to the number', () => {
  assert.deepStrictEqual(logic.hintFor(puzzle, CLUES), [
    {look: 'row 1', cell: 2, cells: [0, 1, 2]}, {says: 'row 1 lacks 4 or 6', cell: 2, cells: [0, 1, 2]},
    {number: 6, cell: 2, cells: [2]}]);
  assert.deepStrictEqual(logic.hintFor(puzzle, [2, 7, 6, 0, 5, 0, 0, 0, 8]), [
    {look: '', cell: 6, cells: [6]}, {says: 'see there', cell: 6, cells: [2, 4, 6]},
    {says: 'it is 4', cell: 6, cells: [6]}, {number: 4, cell: 6, cells: [6]}]);
  assert.strictEqual(logic.hintFor(puzzle, SOLUTION), undefined);
});

test('boards come back as they were kept, and nothing else does', () => {
  const board = {numbers: [2, 7, 6, 9, 5, 0, 0, 0, 8], notes: [[], [], [], [], [], [1, 3], [], [], []]};
  const kept = {at: 1, boards: [logic.freshBoard(puzzle), board]};
  assert.deepStrictEqual(logic.restored([puzzle, puzzle], JSON.stringify(kept)), kept);
  const fresh = {at: 0, boards: [logic.freshBoard(puzzle)]};
  const strange = [null, '', '{', '3', '{"at":7,"boards":[{"numbers":[1,1,10,-1,1,0.5,"4",null],"notes":[[1],0,["2",99]]}]}'];
  for (const text of strange) assert.deepStrictEqual(logic.restored([puzzle], text), fresh, text);
  assert.notStrictEqual(logic.fingerprintOf([puzzle]), logic.fingerprintOf([puzzleWith({total: 16})]));
});
