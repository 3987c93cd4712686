// A published course in WebKit (its small browser for GTK), from a folder and from a server.
//   node webkit.mjs ORVALENTE-COURS COURSE-SOURCES
import { strictEqual } from 'node:assert';
import { spawn } from 'node:child_process';
import { existsSync } from 'node:fs';
import { createServer } from 'node:net';
import { aFolder, skip } from './browser.mjs';
import { aLesson } from './pupil.mjs';
import { publishedCourse, served } from './published.mjs';

const [, , tool, sources] = process.argv;
const binary = ['/usr/lib/x86_64-linux-gnu/webkit2gtk-4.1/MiniBrowser', '/usr/lib/x86_64-linux-gnu/webkit2gtk-4.0/MiniBrowser'].find((path) => existsSync(path));
if (!binary || !existsSync('/usr/bin/WebKitWebDriver')) skip('Ni MiniBrowser ni WebKitWebDriver : rien n’a été essayé dans WebKit.');

const folder = aFolder('webkit');
const { site, images } = publishedCourse(tool, sources, folder);
const { server, addresses } = await served(site);

// ---- The driver: a program that is spoken to by HTTP

const port = await new Promise((resolve) => {
    const free = createServer().listen(0, '127.0.0.1', () => { const { port: number } = free.address(); free.close(() => resolve(number)); });
});
const driver = spawn('xvfb-run', ['-a', '-s', '-screen 0 1280x1100x24', 'WebKitWebDriver', `--port=${port}`], { stdio: 'ignore', detached: true, env: { ...process.env, HOME: folder } });
process.on('exit', () => { try { process.kill(-driver.pid); } catch { /* it has ended */ } });
process.on('SIGTERM', () => process.exit(1));

async function command(method, path, body) {
    const answer = await fetch(`http://127.0.0.1:${port}${path}`, { method, ...(body ? { body: JSON.stringify(body) } : {}) });
    const { value } = await answer.json();
    if (!answer.ok) throw Object.assign(new Error(`${path}: ${value.error}: ${value.message}`), { code: value.error });
    return value;
}

async function begun() {
    const end = Date.now() + 20000;
    while (!(await command('GET', '/status').catch(() => null))) {
        if (Date.now() > end) throw new Error('WebKitWebDriver does not answer');
        await new Promise((resolve) => { setTimeout(resolve, 100); });
    }
    const { sessionId } = await command('POST', '/session', { capabilities: { alwaysMatch: { 'webkitgtk:browserOptions': { binary, args: ['--automation'] } } } });
    return `/session/${sessionId}`;
}

const KEYS = { Enter: '\uE007', Escape: '\uE00C', ArrowDown: '\uE015' };

function hand(session) {
    const send = (path, body) => command('POST', session + path, body);
    const keys = (list) => send('/actions', { actions: [{ type: 'key', id: 'keys', actions: list.flatMap((value) => [{ type: 'keyDown', value }, { type: 'keyUp', value }]) }] });
    return {
        go: (url) => send('/url', { url }),
        run: (script) => send('/execute/async', { args: [], script: `const done = arguments[0]; Promise.resolve(${script}).then((value) => done([value]), (error) => done([null, String(error)]));` })
            // A page that is being left has no answer; whoever waits for one asks the next page.
            .catch((error) => { if (error.code === 'no such frame') return []; throw error; })
            .then(([value, error]) => { strictEqual(error, undefined); return value; }),
        point: (x, y) => send('/actions', { actions: [{ type: 'pointer', id: 'mouse', actions: [{ type: 'pointerMove', x: Math.round(x), y: Math.round(y) }, { type: 'pointerDown', button: 0 }, { type: 'pointerUp', button: 0 }] }] }),
        type: (text) => keys([...text]),
        press: (key) => keys([KEYS[key]]),
    };
}

for (const address of Object.values(addresses)) {
    const session = await begun();
    await command('POST', `${session}/window/rect`, { width: 1200, height: 1000 });
    await aLesson(hand(session), address, images);
    await command('DELETE', session);
}
server.close();
process.exit(0);
