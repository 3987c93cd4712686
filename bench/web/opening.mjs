// Opening a course cold, from the address to the first page painted, on a new device each time: a
// published site and its plain pages from nginx, and the same plain pages as a ZIM archive from
// kiwix-serve, in turn.
//   node bench/web/opening.mjs SITE [RUNS]
import { statSync } from 'node:fs';
import { join } from 'node:path';
import { writeArchive } from './archive.mjs';
import { launched, median, rounded, temporaryFolder } from './browser.mjs';
import { courseOf, writePlainPages } from './plain_pages.mjs';
import { freePort, serve, startServer } from './server.mjs';

const [, , site, runs = '15'] = process.argv;
const work = temporaryFolder();
const plain = join(work, 'plain');
writePlainPages(site, plain);
const { debut } = courseOf(site);

async function serveArchive() {
    const archive = join(work, 'cours.zim');
    writeArchive(plain, debut, archive);
    const port = await freePort();
    const address = `http://127.0.0.1:${port}/`;
    await startServer('kiwix-serve', ['--address=127.0.0.1', `--port=${port}`, archive], address);
    return { address: `${address}cours`, bytes: statSync(archive).size };
}

const archive = await serveArchive();
// Faces are asked for when texts are laid out, which asking for a text's place brings about.
const kinds = {
    ours: { address: (await serve(site, join(work, 's'))).address, isThere: () => document.querySelector('.page svg text')?.getBoundingClientRect().height > 0 && document.fonts.status === 'loaded' },
    kiwix: { address: archive.address, isThere: () => document.readyState === 'complete' && /Bienvenue/.test(document.body.textContent) },
    plain: { address: `${(await serve(plain, join(work, 'p'))).address}p${debut}.html`, isThere: () => document.readyState === 'complete' && /Bienvenue/.test(document.body.textContent) },
};
const browser = await launched();

/**
 * Milliseconds from the start of the navigation to the frame that shows the page with its faces. The
 * page itself takes the time: what drives the browser brings scripts along wherever it waits for something.
 */
async function open({ address, isThere }, { latency, bytesPerSecond }) {
    const context = await browser.newContext({ viewport: { width: 1100, height: 900 } });
    const page = await context.newPage();
    const session = await context.newCDPSession(page);
    await session.send('Network.enable');
    await session.send('Network.emulateNetworkConditions', { offline: false, latency, downloadThroughput: bytesPerSecond, uploadThroughput: bytesPerSecond });
    const arrived = [];
    session.on('Network.loadingFinished', ({ encodedDataLength, timestamp }) => arrived.push({ bytes: encodedDataLength, at: timestamp }));
    let start = 0;
    session.on('Network.requestWillBeSent', ({ type, timestamp }) => { if (type === 'Document') start ||= timestamp; });
    await page.addInitScript(`globalThis.opened = new Promise((resolve) => {
        const isThere = ${isThere};
        const look = () => requestAnimationFrame(() => {
            if (!document.body || !isThere()) return look();
            const { port1, port2 } = new MessageChannel();
            port1.onmessage = () => resolve(performance.now());
            port2.postMessage(0);
        });
        look();
    })`);
    await page.goto(address);
    const { result: { value: time } } = await session.send('Runtime.evaluate', { expression: 'opened', awaitPromise: true });
    await page.waitForTimeout(800);
    await context.close();
    // What is fetched for later, once the page is there, is told apart.
    const costOf = (some) => ({ requests: some.length, bytes: some.reduce((sum, { bytes }) => sum + bytes, 0) });
    return { time, first: costOf(arrived.filter(({ at }) => (at - start) * 1000 <= time)), all: costOf(arrived) };
}

const places = [
    { name: 'server on this machine', latency: 0, bytesPerSecond: -1 },
    { name: 'server 40 ms away', latency: 40, bytesPerSecond: -1 },
    { name: 'a slow line: 100 ms, 1.6 Mbit/s', latency: 100, bytesPerSecond: 200_000 },
];
const told = ({ requests, bytes }) => `${requests} requests, ${rounded(bytes / 1000, 0)} kB`;
for (const place of places) {
    const found = Object.fromEntries(Object.keys(kinds).map((name) => [name, []]));
    for (let i = 0; i < Number(runs); ++i) for (const [name, kind] of Object.entries(kinds)) found[name].push(await open(kind, place));
    const parts = Object.entries(found).map(([name, all]) => `${name} ${rounded(median(all.map(({ time }) => time)))} (${told(all.at(-1).first)}; a moment later ${told(all.at(-1).all)})`);
    const ratios = (name) => median(found[name].map(({ time }, i) => time / found.ours[i].time));
    console.log(`${place.name}: ${parts.join(', ')}; medians of ${runs};`
        + ` of the ratios in turn: Kiwix / ours ${rounded(ratios('kiwix'), 2)} (goal: at least 1), plain HTML / ours ${rounded(ratios('plain'), 2)}`);
}
console.log(`the archive has ${rounded(archive.bytes / 1e6, 2)} MB`);
await browser.close();
process.exit();
