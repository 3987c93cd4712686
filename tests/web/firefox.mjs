// A published course in Firefox, from a folder and from a server.
//   node firefox.mjs ORVALENTE-COURS COURSE-SOURCES NPM-FOLDER
import { deepStrictEqual } from 'node:assert';
import { existsSync } from 'node:fs';
import { createRequire } from 'node:module';
import { join } from 'node:path';
import { aFolder, skip } from './browser.mjs';
import { aLesson } from './pupil.mjs';
import { publishedCourse, served } from './published.mjs';

const [, , tool, sources, npm] = process.argv;
const executablePath = ['/usr/bin/firefox-esr', '/usr/bin/firefox'].find((path) => existsSync(path));
let puppeteer;
try {
    ({ default: puppeteer } = createRequire(join(npm, 'x.js'))('puppeteer-core'));
} catch {
    // told below
}
if (!executablePath || !puppeteer) skip('Ni Firefox ni puppeteer-core : rien n’a été essayé dans Firefox.');

const folder = aFolder('firefox');
const { site, images } = publishedCourse(tool, sources, folder);
const { server, addresses } = await served(site);
const browser = await puppeteer.launch({
    browser: 'firefox', executablePath, headless: true,
    // The size is the window's: not every Firefox that Debian has had can give a page one of its own.
    defaultViewport: null, args: ['--width=1100', '--height=1000'],
    // Puppeteer would let files of a folder see each other, which no pupil's Firefox does.
    extraPrefsFirefox: { 'security.fileuri.strict_origin_policy': true },
});
for (const [where, address] of Object.entries(addresses)) {
    const page = await browser.newPage();
    const faults = [];
    page.on('pageerror', (error) => faults.push(String(error)));
    page.on('console', (message) => { if (message.type() === 'error') faults.push(message.text()); });
    await aLesson({
        go: async (to) => { await page.goto(to); },
        run: (script) => page.evaluate(script),
        point: (x, y) => page.mouse.click(x, y),
        type: (text) => page.keyboard.type(text),
        press: (key) => page.keyboard.press(key),
    }, address, images);
    deepStrictEqual(faults, [], where);
    await page.close();
}
await browser.close();
server.close();
