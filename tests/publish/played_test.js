// The page in a browser: solved by keys alone and by touch alone, kept, printed, and read by a screen reader.
const {test, before, after, beforeEach} = require('node:test');
const assert = require('node:assert');
const {execFileSync} = require('node:child_process');
const fs = require('node:fs');
const os = require('node:os');
const path = require('node:path');
const {Browser} = require('./browser.js');

const set = execFileSync(process.env.NUMORRA_SQUARE,
  'puzzle --size 4 --grades hard:1,medium:1 --seed 1 --format json --steps'.split(' '));
const puzzles = set.toString().trim().split('\n').map((line) => JSON.parse(line));
const gapsOf = ({rows, solution}) => solution.flat().flatMap((number, cell) => (rows.flat()[cell] ? [] : [{number, cell}]));
const cellAt = (cell) => `document.querySelector('[data-cell="${cell}"]')`;
const button = (group, text) => `[...document.querySelectorAll('#${group} button')].find((b) => b.textContent === '${text}')`;
const numbers = '[...document.querySelectorAll("#grid td")].map((cell) => Number(cell.firstChild?.nodeValue ?? 0))';
const browser = new Browser();
let file;

before(async () => {
  file = path.join(fs.mkdtempSync(path.join(os.tmpdir(), 'numorra-page-')), 'page.html');
  fs.writeFileSync(file, execFileSync(process.env.NUMORRA_PAGE_OF, ['A set'], {input: set}));
  await browser.open(process.env.NUMORRA_CHROMIUM, file);
});

after(async () => {
  await browser.close();
  fs.rmSync(path.dirname(file), {recursive: true});
});

beforeEach(() => browser.load());

async function moveTo(row, column) {
  const label = () => browser.value('document.activeElement.getAttribute("aria-label")');
  const [atRow, atColumn] = (await label()).match(/\d+/g).map(Number);
  const keys = (from, to, less, more) => Array(Math.abs(to - from)).fill(to < from ? less : more);
  const way = [...keys(atRow, row, 'ArrowUp', 'ArrowDown'), ...keys(atColumn, column, 'ArrowLeft', 'ArrowRight')];
  for (const key of way) await browser.key(key);
  assert.match(await label(), new RegExp(`^row ${row}, column ${column}:`));
}

test('is solved by keys alone', async () => {
  await browser.key('Tab');
  assert.strictEqual(await browser.value('document.activeElement.id'), 'choice');
  await browser.key('Tab');
  for (const {number, cell} of gapsOf(puzzles[0]).sort((a, b) => a.number - b.number)) {
    await moveTo(Math.floor(cell / 4) + 1, cell % 4 + 1);
    for (const digit of String(number)) await browser.key(digit);
  }
  assert.strictEqual(await browser.text('#message'), 'Well done: all lines add up to 34.');
  assert.strictEqual(await browser.value('document.querySelectorAll("#grid .right").length'), 10);
  assert.deepStrictEqual(await browser.value(numbers), puzzles[0].solution.flat());
});

test('is solved by hints, which come to every number', async () => {
  await browser.value(`${cellAt(0)}.focus()`);
  for (const {cell: [row, column], number, because} of puzzles[0].steps) {
    await browser.key('h');
    assert.match(await browser.text('#message'), /^Look at /);
    for (const {says, line} of because) {
      await browser.key('h');
      assert.match((await browser.text('#message')).toLowerCase(), new RegExp(`^${says}\\.`));
      assert.strictEqual(await browser.value('document.querySelectorAll("#grid .hint").length'), line ? 4 : 1);
    }
    await browser.key('h');
    const [told, totals] = [await browser.text('#message'), await browser.text('#totals')];
    if (!told.startsWith('Well done')) assert.strictEqual(told, `${number} is in row ${row}, column ${column}.`);
    assert.match(totals, new RegExp(`^row ${row}: .*; column ${column}: `));
  }
  assert.match(await browser.text('#message'), /^Well done/);
});

test('is solved by touch alone on a narrow screen, and kept only as long as the reader wants', async () => {
  await browser.send('Emulation.setDeviceMetricsOverride', {width: 360, height: 740, deviceScaleFactor: 2, mobile: true});
  await browser.send('Emulation.setTouchEmulationEnabled', {enabled: true});
  await browser.load();
  assert.ok(await browser.value('document.documentElement.scrollWidth') <= 360);
  const sides = '[...document.querySelectorAll("#play button:not([hidden]), #grid td")]' +
      '.map((it) => it.getBoundingClientRect()).flatMap(({width, height}) => [width, height])';
  assert.ok(await browser.value(`Math.min(...${sides})`) >= 34);
  await browser.tap('document.getElementById("keep")');
  for (const [i, {number, cell}] of gapsOf(puzzles[0]).entries()) {
    await browser.tap(cellAt(cell));
    if (i % 2) await browser.tap(button('missing', number));
    else for (const digit of String(number)) await browser.tap(button('pad', digit));
  }
  assert.match(await browser.text('#message'), /^Well done/);
  assert.notStrictEqual(await browser.value('localStorage.length'), 0, 'nothing was kept');
  await browser.load();
  assert.deepStrictEqual(await browser.value(numbers), puzzles[0].solution.flat());
  assert.strictEqual(await browser.text('#choice option'), '1 (solved)');
  await browser.tap('document.getElementById("keep")');
  assert.strictEqual(await browser.value('localStorage.length'), 0);
  await browser.load();
  assert.deepStrictEqual(await browser.value(numbers), puzzles[0].rows.flat().map(Number));
  await browser.send('Emulation.setTouchEmulationEnabled', {enabled: false});
  await browser.send('Emulation.clearDeviceMetricsOverride');
});

test('takes notes, and says which numbers are wrong', async () => {
  const [{number, cell}] = gapsOf(puzzles[0]);
  const is = async (content) => assert.strictEqual(
    (await browser.value(`${cellAt(cell)}.getAttribute('aria-label')`)).split(': ')[1], content);
  const type = async (...keys) => { for (const key of keys) await browser.key(key); };
  await browser.value(`${cellAt(cell)}.click()`);
  await type('n', '1', '2', 'Enter', '3', 'Enter', '1', 'Enter', '1');
  await is('notes 3 12');
  await type('Enter', 'Backspace');
  await is('empty');
  const wrong = String(number === 8 ? 9 : 8);
  await type('3', 'n', wrong);
  await is(wrong);
  assert.strictEqual(await browser.text(`[data-cell="${cell}"]`), wrong);
  await type('Delete');
  await is('notes 3');
  await type(wrong);
  await browser.value('document.getElementById("check").click()');
  assert.strictEqual(await browser.text('#message'), '1 number is wrong.');
  assert.strictEqual(await browser.value('document.querySelectorAll("#grid .marked").length'), 0);
  await browser.value('document.getElementById("mark").click()');
  assert.ok(await browser.value(`${cellAt(cell)}.classList.contains('marked')`));
  await browser.value(`${cellAt(cell)}.focus()`);
  await browser.key('h');
  assert.match(await browser.text('#message'), /^1 number is wrong. Correct it first/);
});

test('has names for a screen reader', async () => {
  const names = async (role) => (await browser.nodes(role)).map(({name}) => name.value);
  assert.deepStrictEqual(await names('grid'), ['Puzzle']);
  const cells = await names('gridcell');
  assert.strictEqual(cells.filter((name) => /^row \d, column \d: ./.test(name)).length, 16);
  assert.strictEqual(cells.length, 16);
  const totals = [...await names('rowheader'), ...await names('columnheader')];
  assert.strictEqual(totals.filter((name) => /^(row|column|the main) .*: \d+ of 34$/.test(name)).length, 10);
  const buttons = await names('button');
  assert.ok(buttons.length > 14 && buttons.every(Boolean), buttons.join());
});

test('is a sheet on paper and without scripts', async () => {
  const shown = (id) => browser.value(`document.getElementById('${id}').checkVisibility()`);
  assert.deepStrictEqual([await shown('play'), await shown('sheets')], [true, false]);
  await browser.send('Emulation.setEmulatedMedia', {media: 'print'});
  assert.deepStrictEqual([await shown('play'), await shown('sheets')], [false, true]);
  await browser.send('Emulation.setEmulatedMedia', {media: ''});
  await browser.send('Emulation.setScriptExecutionDisabled', {value: true});
  await browser.load();
  assert.strictEqual((await browser.nodes('table')).length, puzzles.length);
  assert.strictEqual((await browser.nodes('grid')).length, 0);
  await browser.send('Emulation.setScriptExecutionDisabled', {value: false});
});

test('fetched nothing and complained of nothing', () => {
  assert.deepStrictEqual([...new Set(browser.requests)], [`file://${file}`]);
  assert.deepStrictEqual(browser.complaints, []);
});
