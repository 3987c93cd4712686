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

const [, , site, runs = '9'] = process.argv;
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
const kinds = {
    ours: { address: (await serve(site, join(work, 's'))).address, isThere: () => document.querySelector('.page svg text') && document.fonts.status === 'loaded' },
    kiwix: { address: archive.address, isThere: () => document.readyState === 'complete' && /Bienvenue/.test(document.body.textContent) },
    plain: { address: `${(await serve(plain, join(work, 'p'))).address}p${debut}.html`, isThere: () => document.readyState === 'complete' && /Bienvenue/.test(document.body.textContent) },
};
const browser = await launched();

/** Milliseconds from the start of the navigation to the frame that shows the page with its faces. */
async function open({ address, isThere }, latency) {
    const context = await browser.newContext({ viewport: { width: 1100, height: 900 } });
    const page = await context.newPage();
    const session = await context.newCDPSession(page);
    await session.send('Network.enable');
    await session.send('Network.emulateNetworkConditions', { offline: false, latency, downloadThroughput: -1, uploadThroughput: -1 });
    let requests = 0;
    let bytes = 0;
    session.on('Network.loadingFinished', ({ encodedDataLength }) => { requests += 1; bytes += encodedDataLength; });
    await page.addInitScript(`(() => {
        const isThere = ${isThere};
        const look = () => requestAnimationFrame(() => {
            if (!document.body || !isThere()) return look();
            const { port1, port2 } = new MessageChannel();
            port1.onmessage = () => { globalThis.opened = performance.now(); };
            port2.postMessage(0);
        });
        look();
    })()`);
    await page.goto(address);
    const time = await (await page.waitForFunction(() => globalThis.opened)).jsonValue();
    await page.waitForTimeout(500);
    await context.close();
    return { time, requests, bytes };
}

for (const latency of [0, 40]) {
    const found = Object.fromEntries(Object.keys(kinds).map((name) => [name, []]));
    for (let i = 0; i < Number(runs); ++i) for (const [name, kind] of Object.entries(kinds)) found[name].push(await open(kind, latency));
    const time = Object.fromEntries(Object.entries(found).map(([name, all]) => [name, median(all.map((one) => one.time))]));
    const cost = ([{ requests, bytes }]) => `${requests} requests, ${rounded(bytes / 1000, 0)} kB`;
    console.log(`${latency === 0 ? 'server on this machine' : `server ${latency} ms away`}: ours ${rounded(time.ours)} (${cost(found.ours)}), Kiwix ${rounded(time.kiwix)} (${cost(found.kiwix)}), plain HTML ${rounded(time.plain)} (${cost(found.plain)});`
        + ` Kiwix / ours ${rounded(time.kiwix / time.ours, 2)}; medians of ${runs}`);
}
console.log(`the archive has ${rounded(archive.bytes / 1e6, 2)} MB`);
await browser.close();
process.exit();
