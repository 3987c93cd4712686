// From the press of a key to the picture on the screen: ours, and readers of the same pages as PDF
// and in a ZIM archive, each on a screen of its own, in turn.
//   node bench/screen/screen.mjs PROGRAMS COURSE SITE [TIMES [PICTURES]]
// PROGRAMS is the folder with our own; a picture of each screen goes into the folder PICTURES.
import { execFileSync, spawnSync } from 'node:child_process';
import { mkdirSync, mkdtempSync, writeFileSync } from 'node:fs';
import { join } from 'node:path';
import { setTimeout as pause } from 'node:timers/promises';
import { median, rounded, temporaryFolder } from '../web/browser.mjs';
import { writeArchive } from '../web/archive.mjs';
import { courseOf, writePlainPages } from '../web/plain_pages.mjs';
import { Display } from './display.mjs';

const [, , programs, course, site, times = '9', pictures] = process.argv;
const WORDS = 'savoir avant'; // stands once on most pages
const work = temporaryFolder();
const document = join(work, 'cours.pdf');
const archive = join(work, 'cours.zim');
const plain = join(work, 'plain');
execFileSync(join(programs, 'orvalente-cours'), ['render', course, '--all', '-o', document]);
writePlainPages(site, plain);

const acts = { turn: 'a page turned', found: 'a found page opened', zoom: 'a step of the zoom' };
/** All windows have the size of ours; where it has no room for its frame, it fills the screen. */
const scenes = [
    { screen: { width: 800, height: 600 }, scale: 1, window: { width: 800, height: 600 }, acts: ['turn', 'found'] },
    { screen: { width: 2560, height: 1920 }, scale: 3, window: { width: 2560, height: 1920 }, acts: ['turn', 'found'] },
    { screen: { width: 1024, height: 768 }, scale: 1, window: { width: 800, height: 600 }, acts: ['zoom'] },
    { screen: { width: 2560, height: 1920 }, scale: 2.5, window: { width: 2000, height: 1500 }, acts: ['zoom'] },
];

/** Okular without side panel, one page at a time, and without films of its own making. */
function okularSettings(home) {
    mkdirSync(join(home, '.config'), { recursive: true });
    writeFileSync(join(home, '.config/okularpartrc'), '[Main View]\nShowLeftPanel=false\n[PageView]\nViewContinuous=false\nSmoothScrolling=false\n');
}

/** Gives the one window there the size that ours has. */
async function resized(display, { window: { width, height } }) {
    const window = await display.window();
    display.tool('windowsize', window, width, height);
    display.tool('windowmove', window, 0, 0);
    await pause(2000);
    display.tool('windowfocus', window);
}

/** Presses on the middle of a window's page, so that no text cursor blinks. */
async function clickOnPage(display, { window: { width, height } }) {
    display.tool('mousemove', Math.round(width * .95), Math.round(height * .67), 'click', 1);
    await pause(500);
}

/** There and back. */
const zoomed = (held) => (i) => `${held}${i % 2 === 0 ? '+' : '-'}`;

// Each: how it starts, what comes before an act, and for the act itself the key that is measured.
// Ours and Kiwix turn back to pages that they walked through before. (Alt with an arrow would do in
// ours, too, but Alt alone has it underline letters, which is another picture.)
const readers = {
    ours: {
        command: join(programs, 'orvalente'),
        async start(display, { scale }) {
            display.start(this.command, ['--course', course, '--scale', String(scale)], {});
            await pause(3000);
        },
        async toTurn(display, { window: { width, height } }) {
            display.tool('mousemove', Math.round(width * .8875), Math.round(height * .95)); // "Page suivante"
            for (let i = 0; i < Number(times); ++i) {
                display.tool('click', 1);
                await pause(300);
            }
            display.tool('mousemove', 0, 0);
            await pause(1000);
        },
        turn: () => 'BackSpace',
        zoom: zoomed('Ctrl+'),
        async found(i, display) {
            await display.keys('ctrl+l');
            await pause(500);
            display.tool('type', WORDS);
            await display.keys('Return');
            await pause(500);
            await display.keys(...Array(i + 1).fill('Down'));
            return 'Return';
        },
    },
    Okular: {
        command: 'okular',
        async start(display, size, home) {
            okularSettings(home);
            display.start(this.command, [document], { QT_SCALE_FACTOR: String(size.scale) });
            await resized(display, size);
        },
        turn: () => 'Right',
        zoom: zoomed('Ctrl+'),
        async toFind(display, size) {
            await display.keys('ctrl+f');
            display.tool('type', WORDS);
            await display.keys('Return');
            await pause(8000); // it reads the whole document once
            await clickOnPage(display, size);
        },
        found: () => 'F3',
    },
    'mupdf-gl': {
        command: 'mupdf-gl',
        async start(display, size) {
            display.start(this.command, [document], {});
            await resized(display, size);
            await display.keys('W');
        },
        turn: () => '.',
        zoom: zoomed(''),
        async toFind(display) {
            await display.keys('slash');
            display.tool('type', WORDS);
            await display.keys('Return');
            await pause(1000);
        },
        found: () => 'n',
    },
    Kiwix: {
        command: 'kiwix-desktop',
        async start(display, size) {
            const asRoot = process.getuid() === 0 ? { QTWEBENGINE_DISABLE_SANDBOX: '1' } : {};
            display.start(this.command, [archive], { QT_SCALE_FACTOR: String(size.scale), ...asRoot });
            await resized(display, size);
            await pause(3000);
        },
        async toTurn(display, size) {
            await clickOnPage(display, size);
            for (let i = 0; i < Number(times); ++i) {
                await display.keys('Tab', ...i > 0 ? ['Tab'] : [], 'Return');
                await pause(500);
            }
            await pause(1000);
        },
        turn: () => 'Alt+Left',
        zoom: zoomed('Ctrl+'),
    },
};

const isThere = (command) => spawnSync('sh', ['-c', 'command -v "$1"', 'sh', command]).status === 0;
for (const [name, { command }] of Object.entries(readers))
    if (!isThere(command)) {
        console.log(`${name} is not there and passed over`);
        delete readers[name];
    }
if (readers.Kiwix) writeArchive(plain, courseOf(site).debut, archive);

async function opened(name, scene) {
    const home = mkdtempSync(join(work, 'home-'));
    const display = await Display.open(scene.screen, home, join(programs, 'key_to_pixels'));
    await readers[name].start(display, scene, home);
    return display;
}

function tell({ window, scale }, act, all) {
    if (all.ours.length === 0) throw new Error(`${acts[act]}: nothing measured of ours`);
    const ours = median(all.ours);
    const beside = Object.entries(all).filter(([name, found]) => name !== 'ours' && found.length > 0)
        .map(([name, found]) => `${name} ${rounded(median(found))} (of ${found.length}; / ours ${rounded(median(found) / ours)})`);
    console.log(`${window.width} × ${window.height}, ${acts[act]}: ours ${rounded(ours)} (of ${all.ours.length}, ${rounded(Math.min(...all.ours))} to ${rounded(Math.max(...all.ours))}${scale > 1 ? '; goal: within 33.3' : ''}), ${beside.join(', ')}`);
}

async function measured(act, names, displays, scene) {
    const before = { turn: 'toTurn', found: 'toFind' }[act];
    for (const name of names) await readers[name][before]?.(displays[name], scene);
    const found = Object.fromEntries(names.map((name) => [name, []]));
    for (let i = 0; i < Number(times); ++i)
        for (const name of names) {
            const key = await readers[name][act](i, displays[name], scene);
            await pause(300);
            const time = await displays[name].press(key);
            if (time > 0) found[name].push(time);
        }
    return found;
}

for (const scene of scenes) {
    const displays = {};
    for (const name of Object.keys(readers)) displays[name] = await opened(name, scene);
    for (const act of scene.acts) {
        const names = Object.keys(readers).filter((name) => readers[name][act]);
        tell(scene, act, await measured(act, names, displays, scene));
        if (pictures) for (const name of names) displays[name].picture(join(pictures, `${act}-${scene.window.width}-${name}.png`));
    }
    for (const display of Object.values(displays)) display.close();
}
process.exit();
