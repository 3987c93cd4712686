// How long a page turn takes, from the click or the key to the painted page: in a published course
// and on the same content as plain pages of HTML, in turn.
//   node bench/web/turn.mjs SITE [TURNS]
import { join } from 'node:path';
import { pathToFileURL } from 'node:url';
import { CLOCK, launched, median, rounded, temporaryFolder } from './browser.mjs';
import { courseOf, writePlainPages } from './plain_pages.mjs';
import { serve } from './server.mjs';

const [, , site, turns = '20'] = process.argv;
const work = temporaryFolder();
const plain = join(work, 'plain');
writePlainPages(site, plain);
const { pages } = courseOf(site);
const pairs = pages.slice(0, -1).map((page, i) => [page, pages[i + 1]]).filter(([page]) => page.apres).slice(0, Number(turns));
const browser = await launched();
const pause = (page, ms) => page.waitForTimeout(ms);

async function opened(address, latency) {
    const context = await browser.newContext({ viewport: { width: 1100, height: 900 } });
    const page = await context.newPage();
    await page.addInitScript(CLOCK);
    if (latency > 0) {
        const session = await context.newCDPSession(page);
        await session.send('Network.enable');
        await session.send('Network.emulateNetworkConditions', { offline: false, latency, downloadThroughput: -1, uploadThroughput: -1 });
    }
    await page.goto(address);
    return page;
}

/** By mouse and by key in turn. */
async function follow(page, selector, byKey) {
    if (!byKey) return page.locator(selector).first().click({ noWaitAfter: true });
    await page.locator(selector).first().focus();
    return page.keyboard.press('Enter', { noWaitAfter: true });
}

/** In a published course: from page `from` to `to`, by its next-page link or by the contents. */
async function ourTurn(page, from, to, byContents, byKey) {
    await page.evaluate((hash) => { location.hash = hash; }, `#p${from.numero}`);
    await page.waitForFunction((id) => document.querySelector(`.page svg [id^="${id}-"]`), `p${from.numero}`);
    await pause(page, 700); // as one who reads; what comes next is fetched meanwhile
    await page.evaluate((id) => {
        globalThis.turned = new Promise((resolve) => {
            const observer = new MutationObserver(() => {
                if (!document.querySelector(`.page svg [id^="${id}-"]`)) return;
                observer.disconnect();
                resolve(clock.painted());
            });
            observer.observe(document.getElementById('contenu'), { childList: true });
        });
    }, `p${to.numero}`);
    if (byContents) {
        await page.getByRole('button', { name: 'Sommaire' }).click();
        await page.evaluate(() => { for (const thread of document.querySelectorAll('.chapitres details')) thread.open = true; });
    }
    await follow(page, byContents ? `.chapitres a[href="#p${to.numero}"]` : 'footer a[rel=next]', byKey);
    return page.evaluate(async () => (await turned) - Number(sessionStorage.getItem('clicked')));
}

/** On plain pages: until the text is painted, and until the pictures are there. */
async function plainTurn(page, base, from, to, byContents, byKey) {
    await page.goto(byContents ? `${base}index.html` : `${base}p${from.numero}.html`);
    await pause(page, 700);
    await follow(page, byContents ? `#n${to.numero}` : 'a[rel=next]', byKey);
    await page.waitForURL(`**/p${to.numero}.html`, { waitUntil: 'load' });
    return page.evaluate(async () => {
        const clicked = Number(sessionStorage.getItem('clicked'));
        return [(await clock.text) - clicked, (await clock.all) - clicked];
    });
}

const servers = { site: await serve(site, join(work, 's')), plain: await serve(plain, join(work, 'p')) };
const places = [
    { name: 'server on this machine', latency: 0, site: servers.site.address, plain: servers.plain.address },
    { name: 'server 40 ms away', latency: 40, site: servers.site.address, plain: servers.plain.address },
    { name: 'folder (file://)', latency: 0, site: pathToFileURL(join(site, 'index.html')).href, plain: `${pathToFileURL(plain).href}/` },
];
for (const { name, latency, site: ours, plain: base } of places)
    for (const byContents of [false, true]) {
        const times = { ours: [], text: [], all: [] };
        const sitePage = await opened(ours, latency);
        const plainPage = await opened(base.startsWith('file') ? `${base}index.html` : base, latency);
        for (const [i, [from, to]] of pairs.entries()) {
            times.ours.push(await ourTurn(sitePage, from, to, byContents, i % 2 === 1));
            const [text, all] = await plainTurn(plainPage, base, from, to, byContents, i % 2 === 1);
            times.text.push(text);
            times.all.push(all);
        }
        await sitePage.context().close();
        await plainPage.context().close();
        const [a, b, c] = [times.ours, times.text, times.all].map(median);
        console.log(`${name}, ${byContents ? 'a page of the contents, not fetched before' : 'next page'}: ours ${rounded(a)}, plain HTML ${rounded(b)} (with its pictures ${rounded(c)});`
            + ` ours - plain ${rounded(a - b)} (limit 16.7), plain / ours ${rounded(b / a, 2)}; medians of ${pairs.length}`);
    }
await browser.close();
process.exit();
