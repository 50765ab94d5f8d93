// A page in a browser without a window, steered through the browser's debugging pipe: messages are JSON, each ended by
// a zero byte.
const {spawn} = require('node:child_process');
const fs = require('node:fs');
const os = require('node:os');
const path = require('node:path');

class Browser {
  #waiting = new Map();
  #last = 0;
  requests = [];    // the addresses that were asked for
  complaints = [];  // console messages and exceptions

  async open(program, file) {
    this.folder = fs.mkdtempSync(path.join(os.tmpdir(), 'numorra-page-'));
    this.process = spawn(program, ['--headless', '--no-sandbox', '--disable-gpu', '--remote-debugging-pipe',
      `--user-data-dir=${this.folder}`], {stdio: ['ignore', 'ignore', 'ignore', 'pipe', 'pipe']});
    this.ended = new Promise((done) => this.process.on('exit', done));
    let text = '';
    this.process.stdio[4].setEncoding('utf8').on('data', (part) => {
      const messages = (text + part).split('\0');
      text = messages.pop();
      messages.forEach((message) => this.#take(JSON.parse(message)));
    });
    const {targetId} = await this.send('Target.createTarget', {url: 'about:blank'});
    this.session = (await this.send('Target.attachToTarget', {targetId, flatten: true})).sessionId;
    for (const domain of ['Page', 'Runtime', 'Log', 'Network', 'Accessibility']) await this.send(`${domain}.enable`);
    await this.load(`file://${file}`);
  }

  async close() {
    await this.send('Browser.close').catch(() => {});
    await this.ended;
    fs.rmSync(this.folder, {recursive: true, force: true, maxRetries: 5});
  }

  #take({id, method, params, result, error}) {
    if (method === 'Network.requestWillBeSent') this.requests.push(params.request.url);
    if (/^(Runtime.consoleAPICalled|Runtime.exceptionThrown|Log.entryAdded)$/.test(method)) {
      this.complaints.push(JSON.stringify(params));
    }
    const waiting = this.#waiting.get(id ?? method);
    this.#waiting.delete(id ?? method);
    if (error) waiting?.fail(new Error(error.message));
    else waiting?.done(result);
  }

  #answer(name) {
    return new Promise((done, fail) => this.#waiting.set(name, {done, fail}));
  }

  send(method, params = {}) {
    const id = ++this.#last;
    this.process.stdio[3].write(JSON.stringify({id, method, params, sessionId: this.session}) + '\0');
    return this.#answer(id);
  }

  async load(url) {
    const loaded = this.#answer('Page.loadEventFired');
    await (url ? this.send('Page.navigate', {url}) : this.send('Page.reload'));
    await loaded;
  }

  // The value of an expression in the page, or what it promises.
  async value(expression) {
    const {result, exceptionDetails} = await this.send('Runtime.evaluate', {expression, returnByValue: true, awaitPromise: true});
    if (exceptionDetails) throw new Error(`${expression}: ${exceptionDetails.exception.description}`);
    return result.value;
  }

  text(selector) {
    return this.value(`document.querySelector('${selector}').textContent`);
  }

  async key(key) {
    const text = key.length === 1 ? {text: key} : {};
    const codes = {Tab: 9, Enter: 13, ArrowUp: 38, ArrowDown: 40};
    const windowsVirtualKeyCode = codes[key];
    await this.send('Input.dispatchKeyEvent', {type: 'keyDown', key, ...text, windowsVirtualKeyCode});
    await this.send('Input.dispatchKeyEvent', {type: 'keyUp', key});
  }

  // Taps the middle of an element, found by an expression, once it has been painted where it is; waits for the click.
  async tap(element) {
    const {x, y} = await this.value(`new Promise((done) => {
      const tapped = ${element};
      tapped.scrollIntoView({block: 'center'});
      window.clicked = null;
      document.addEventListener('click', ({target}) => {
        window.clicked = tapped.contains(target);
      }, {once: true, capture: true});
      requestAnimationFrame(() => requestAnimationFrame(() => {
        const {x, y, width, height} = tapped.getBoundingClientRect();
        done({x: x + width / 2, y: y + height / 2});
      }));
    })`);
    await this.send('Input.dispatchTouchEvent', {type: 'touchStart', touchPoints: [{x, y}]});
    await this.send('Input.dispatchTouchEvent', {type: 'touchEnd', touchPoints: []});
    const until = Date.now() + 10000;
    let clicked = null;
    while ((clicked = await this.value('window.clicked')) === null && Date.now() < until);
    if (!clicked) throw new Error(`a tap on ${element} is no click on it`);
  }

  // The accessible nodes of a role, below a node or anywhere.
  async nodes(role) {
    const {nodes} = await this.send('Accessibility.getFullAXTree');
    return nodes.filter((node) => !node.ignored && node.role.value === role);
  }
}

module.exports = {Browser};
