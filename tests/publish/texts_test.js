// What the page says, in English and in a language with three forms.
const test = require('node:test');
const assert = require('node:assert');
const fs = require('node:fs');
const path = require('node:path');

const source = fs.readFileSync(path.join(__dirname, '../../src/publish/page/texts.js'), 'utf8');
const page = new Function(`'use strict'; ${source} return {TEXT, speak: (said) => { words = said; }};`)();

test('English needs no words', () => {
  page.speak({});
  assert.strictEqual(page.TEXT.wrong(1), '1 number is wrong.');
  assert.strictEqual(page.TEXT.wrong(2), '2 numbers are wrong.');
  assert.strictEqual(page.TEXT.right(0), 'No number is wrong, and 0 cells are empty.');
  assert.strictEqual(page.TEXT.cell(1, 2, '7', ['given', 'wrong']), 'row 1, column 2: 7, given, wrong');
  assert.strictEqual(page.TEXT.look('the main diagonal that rises'), 'Look at the main diagonal that rises.');
  assert.strictEqual(page.TEXT.verdict.open('column 3', 5, 15), 'column 3: 5 of 15');
  assert.strictEqual(page.TEXT.because('row 1 needs 3', 2, 4), 'Row 1 needs 3. (2 of 4)');
});

test('a language has its own forms and orders its places as it likes', () => {
  const which = [...Array(200).keys()].map((n) => (n === 1 ? 0 : n % 100 > 1 && n % 100 < 5 ? 1 : 2)).join('');
  page.speak({
    '%1 number is wrong.': {forms: ['%1 one', '%1 few', '%1 many'], which},
    '%1 is in %2.': 'in %2: %1',
    'row %1, column %2': 'c%2r%1',
  });
  assert.deepStrictEqual([1, 3, 5, 101, 103, 203, 1104, 2500].map(page.TEXT.wrong),
    ['1 one', '3 few', '5 many', '101 many', '103 few', '203 few', '1104 few', '2500 many']);
  assert.strictEqual(page.TEXT.placed(7, 1, 2), 'in c2r1: 7');
  assert.strictEqual(page.TEXT.erase(), 'Erase');
});
