// What a pupil's hour with a published course costs its server: requests and bytes on the wire, by
// nginx's own count; then how many such requests nginx answers a second here.
//   node bench/web/hour.mjs SITE
import { deepStrictEqual, ok } from 'node:assert';
import { execFileSync } from 'node:child_process';
import { cpSync, readFileSync, readdirSync, statSync, writeFileSync } from 'node:fs';
import { join } from 'node:path';
import { launched, rounded, temporaryFolder } from './browser.mjs';
import { courseOf } from './plain_pages.mjs';
import { serve } from './server.mjs';

const [, , published] = process.argv;
const work = temporaryFolder();
const site = join(work, 'site');
cpSync(published, site, { recursive: true });
for (const name of readdirSync(site, { recursive: true, encoding: 'utf8' }))
    if (/-[0-9a-f]{10}\.(js|css|html|svg)$/.test(name)) execFileSync('gzip', ['-9', '--keep', join(site, name)]);
const { pages, tests } = courseOf(site);
const server = await serve(site, join(work, 'nginx'));
const browser = await launched();

let counted = 0;
function counts() {
    const lines = readFileSync(server.journal, 'utf8').trim().split('\n').slice(counted);
    counted += lines.length;
    const requests = lines.map((line) => line.split(' ')).filter(([, , address]) => !address.endsWith('/favicon.ico'));
    return { requests: requests.length, bytes: requests.reduce((sum, [, bytes]) => sum + Number(bytes), 0), addresses: requests.map(([, , address]) => address) };
}

const shown = (page, number) => page.waitForFunction((id) => document.querySelector(`.page svg [id^="${id}-"]`), `p${number}`);

/** Twenty pages one after the other, each read for a moment. */
async function read(page, from) {
    const start = pages.findIndex(({ numero }) => numero === from);
    for (const { numero } of pages.slice(start, start + 20)) {
        await page.evaluate((hash) => { location.hash = hash; }, `#p${numero}`);
        await shown(page, numero);
        await page.waitForTimeout(500);
    }
}

async function answerTest(page, chapter) {
    await page.evaluate((hash) => { location.hash = hash; }, `#t${chapter}`);
    await page.waitForSelector('.champs input');
    if (!await page.locator('.champs input').first().isEnabled()) return; // answered in the hour before
    await page.locator('.champs input').first().click();
    await page.getByRole('button', { name: 'Valider' }).click();
}

async function search(page, words) {
    await page.keyboard.press('Control+l');
    await page.locator('#mots').fill(words);
    await page.keyboard.press('Enter');
    await page.locator('.trouvees button').first().click();
    await page.waitForSelector('.marques span', { state: 'attached' });
}

async function film(page) {
    const withFilm = pages.find(({ numero }) => numero === 69) ?? pages[0];
    await page.evaluate((hash) => { location.hash = hash; }, `#p${withFilm.numero}`);
    await shown(page, withFilm.numero);
    await page.getByRole('button', { name: 'Voir le film' }).click();
    await page.waitForFunction(() => document.querySelector('video')?.readyState >= 2);
    await page.keyboard.press('Escape');
}

/** A lesson: twenty pages, a test, a search, the calculator. */
async function lesson(context, from, test, hasFilm) {
    const page = await context.newPage();
    await page.goto(server.address);
    await page.waitForSelector('.page svg');
    await read(page, from);
    await answerTest(page, test);
    await search(page, 'lumière');
    await page.getByRole('button', { name: 'Calculatrice' }).first().click();
    await page.keyboard.type('2*(3+4)');
    await page.keyboard.press('Enter');
    await page.keyboard.press('Escape');
    if (hasFilm) await film(page);
    await page.close();
    await new Promise((resolve) => { setTimeout(resolve, 300); });
    return counts();
}

const thousand = (bytes) => `${rounded(bytes / 1000, 0)} kB`;
const tell = (name, { requests, bytes }) => console.log(`${name}: ${requests} requests, ${thousand(bytes)}`);
counts();
const context = await browser.newContext();
const first = await context.newPage();
await first.goto(server.address);
await first.waitForSelector('.page svg');
await first.close();
const opening = counts();
tell('first page on a new device', opening);
await context.close();

const device = await browser.newContext();
const cold = await lesson(device, pages[20].numero, tests[0].chapitre, false);
const again = await lesson(device, pages[20].numero, tests[0].chapitre, false);
const next = await lesson(device, pages[60].numero, tests[1].chapitre, false);
tell('an hour on a new device (20 pages, a test, a search, the calculator)', cold);
tell('the same hour again', again);
tell('an hour with other pages and another test', next);
const films = readdirSync(join(site, 'films')).map((name) => statSync(join(site, 'films', name)).size);
console.log(`a film beside: ${thousand(Math.min(...films))} to ${thousand(Math.max(...films))}`);
// What the browser has must not be asked for again, but the first page: the promise of the names.
deepStrictEqual(again.addresses.filter((address) => cold.addresses.includes(address)), ['/']);
await browser.close();

// ---- How many requests a second, in the proportions of the hour on a new device

const list = cold.addresses.map((address) => `"${address}"`).join(',');
const script = join(work, 'hour.lua');
writeFileSync(script, `local all = {${list}}\nlocal at = 0\nrequest = function()\n  at = at % #all + 1\n  return wrk.format("GET", all[at], {["Accept-Encoding"] = "gzip"})\nend\n`);
const report = execFileSync('wrk', ['-t1', '-c50', '-d10s', '--latency', '-s', script, server.address], { encoding: 'utf8' });
ok(!report.includes('Non-2xx'), report);
const [, rate] = /Requests\/sec:\s+([\d.]+)/.exec(report);
const [, slow] = /99%\s+(\S+)/.exec(report);
console.log(`nginx, one process, files compressed beforehand: ${rate} requests/s, 99 in 100 within ${slow}; ${Math.round(Number(rate) * 3600 / cold.requests)} hours on a new device each hour`);
process.exit();
