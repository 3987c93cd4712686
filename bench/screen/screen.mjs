// From the press of a key to the picture on the screen: ours, and readers of the same pages as PDF
// and in a ZIM archive, each on a screen of its own, in turn.
//   node bench/screen/screen.mjs PROGRAMS COURSE SITE [TIMES [PICTURES]]
// PROGRAMS is the folder with our own; a picture of each screen goes into the folder PICTURES.
import { execFileSync, spawnSync } from 'node:child_process';
import { mkdirSync, writeFileSync } from 'node:fs';
import { join } from 'node:path';
import { setTimeout as pause } from 'node:timers/promises';
import { median, rounded, temporaryFolder } from '../web/browser.mjs';
import { writeArchive } from '../web/archive.mjs';
import { courseOf, writePlainPages } from '../web/plain_pages.mjs';
import { Display } from './display.mjs';

const [, , programs, course, site, times = '15', pictures] = process.argv;
const WORDS = 'savoir avant'; // stands once on most pages
const work = temporaryFolder();
const document = join(work, 'cours.pdf');
const archive = join(work, 'cours.zim');
const plain = join(work, 'plain');
execFileSync(join(programs, 'orvalente-cours'), ['render', course, '--all', '-o', document]);
writePlainPages(site, plain);

/** Windows have 800 by 600 pixels, times the scale, like ours; around them is room for a step. */
const sizes = [
    { name: '800 × 600', scale: 1, width: 1024, height: 768 },
    { name: '2400 × 1800 (scale 3)', scale: 3, width: 2560, height: 1920 },
];

/** Okular without side panel, one page at a time, and without films of its own making. */
function okularSettings(home) {
    mkdirSync(join(home, '.config'), { recursive: true });
    writeFileSync(join(home, '.config/okularpartrc'), '[Main View]\nShowLeftPanel=false\n[PageView]\nViewContinuous=false\nSmoothScrolling=false\n');
}

/** Gives the one window there the size that ours has. */
async function resized(display, { scale }) {
    const window = await display.window();
    display.tool('windowsize', window, 800 * scale, 600 * scale);
    display.tool('windowmove', window, 0, 0);
    await pause(2000);
    display.tool('windowfocus', window);
}

/** Presses on the middle of a window's page, so that no text cursor blinks. */
async function clickOnPage(display, { scale }) {
    display.tool('mousemove', 760 * scale, 400 * scale, 'click', 1);
    await pause(500);
}

/** There and back, never beyond what ours has room for. */
const zoomed = (held) => (i, display, { scale }) => `${held}${(i % 2 === 0) === (scale === 1) ? '+' : '-'}`;

// Each: how it starts, what comes before an act, and for the act itself the key that is measured.
// Ours and Kiwix turn back to pages that they walked through before, and keep none of.
const readers = {
    ours: {
        command: join(programs, 'orvalente'),
        async start(display, { scale }) {
            display.start(this.command, ['--course', course, '--scale', String(scale)], {});
            await pause(3000);
        },
        async toTurn(display, { scale }) {
            const window = await display.window();
            display.tool('mousemove', '--window', window, 710 * scale, 568 * scale); // "Page suivante"
            for (let i = 0; i < Number(times); ++i) {
                display.tool('click', 1);
                await pause(300);
            }
            display.tool('mousemove', 0, 0);
            await pause(1000);
        },
        turn: () => 'Alt+Left',
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

async function opened(name, size) {
    const home = join(work, `${name}-${size.scale}`);
    mkdirSync(home, { recursive: true });
    const display = await Display.open(size, home, join(programs, 'key_to_pixels'));
    await readers[name].start(display, size, home);
    return display;
}

function tell(what, size, all) {
    const ours = median(all.ours);
    const peers = Object.entries(all).filter(([name]) => name !== 'ours');
    console.log(`${size.name}, ${what}: ours ${rounded(ours)}${peers.map(([name, found]) => `, ${name} ${rounded(median(found))} (${rounded(median(found) / ours)} ×${found.length < all.ours.length ? `, of ${found.length}` : ''})`).join('')}`
        + `; slowest of ours ${rounded(Math.max(...all.ours))}${size.scale === 3 ? ' (limit 33.3 for the median)' : ''}`);
}

const acts = { turn: 'a page turned', zoom: 'a step of the zoom', found: 'a found page opened' };
for (const size of sizes) {
    const displays = {};
    for (const name of Object.keys(readers)) displays[name] = await opened(name, size);
    for (const [act, what] of Object.entries(acts)) {
        const with_ = Object.keys(readers).filter((name) => readers[name][act]);
        const first = { turn: 'toTurn', found: 'toFind' }[act];
        for (const name of with_) await readers[name][first]?.(displays[name], size);
        const found = Object.fromEntries(with_.map((name) => [name, []]));
        for (let i = 0; i < Number(times); ++i)
            for (const name of with_) {
                const key = await readers[name][act](i, displays[name], size);
                await pause(300);
                const time = await displays[name].press(key);
                if (time > 0) found[name].push(time);
            }
        tell(what, size, found);
        if (pictures) for (const name of with_) displays[name].picture(join(pictures, `${act}-${size.scale}-${name}.png`));
    }
    for (const display of Object.values(displays)) display.close();
}
process.exit();
