// A published course in a real browser, from a folder and from a server: what pupils do with it.
//   node site.mjs ORVALENTE-COURS COURSE-SOURCES NPM-FOLDER
import { deepStrictEqual, ok, strictEqual } from 'node:assert';
import { execFileSync } from 'node:child_process';
import { mkdirSync, readFileSync, readdirSync, statSync, writeFileSync } from 'node:fs';
import { join } from 'node:path';
import { gzipSync } from 'node:zlib';
import { begin } from './browser.mjs';
import { belongsToItsPlace, kept, progress } from './progress.mjs';
import { publishedCourse, served } from './published.mjs';

const [, , tool, sources, npm] = process.argv;
const { folder, launch, axe } = await begin(npm, 'site');

const { course, site, images } = publishedCourse(tool, sources, folder);

// ---- What a first page costs

const LIST = 'fichiers-publies.txt'; // what publishing has written; no part of the site
const all = (under = '') => readdirSync(join(site, under), { withFileTypes: true }).filter(({ name }) => name !== LIST).flatMap((entry) => (entry.isDirectory() ? all(join(under, entry.name)) : [join(under, entry.name)]));
const gzipped = (name) => gzipSync(readFileSync(join(site, name)), { level: 9 }).length;
const firstPage = all().filter((name) => /^(index|orvalente|cours|polices|pages\/p1-)/.test(name));
const firstBytes = firstPage.reduce((sum, name) => sum + gzipped(name), 0);
ok(firstBytes < 250 * 1024, `${firstBytes} bytes for the first page`);
// The first page comes with the scripts, before they have asked for it.
strictEqual(/<script src="(pages[^"]+)" defer>/.exec(readFileSync(join(site, 'index.html'), 'utf8'))[1], firstPage.find((name) => name.startsWith('pages')));
ok(all().every((name) => name === 'index.html' || /-[0-9a-f]{10}\.\w+$/.test(name)), 'a name without a hash');
ok(!readFileSync(join(site, 'index.html')).includes('Liberation'), 'a face goes by its reserved name');

// ---- The same again leaves the site as it is; a folder of somebody else's is refused

const before = all().map((name) => [name, statSync(join(site, name)).size]);
execFileSync(tool, ['publish', course, '-o', site], { stdio: 'ignore' });
deepStrictEqual(all().map((name) => [name, statSync(join(site, name)).size]), before);
mkdirSync(join(folder, 'other'));
writeFileSync(join(folder, 'other', 'index.html'), 'mine');
try {
    execFileSync(tool, ['publish', course, '-o', join(folder, 'other')], { stdio: 'ignore' });
    ok(false, 'somebody else’s folder was taken');
} catch (error) {
    strictEqual(error.status, 1);
}
strictEqual(readFileSync(join(folder, 'other', 'index.html'), 'utf8'), 'mine');

// ---- What a drawing refers to stands in it: two pages may be shown together, and share their pictures

for (const name of readdirSync(join(site, 'pages'))) {
    const { dessin } = JSON.parse(/^orvalente\.recevoir\("p-?\d+",(.*)\);\s*$/s.exec(readFileSync(join(site, 'pages', name), 'utf8'))[1]);
    const found = (pattern) => [...dessin.matchAll(pattern)].map(([, id]) => id);
    const missing = found(/(?:<use [^>]*href="|url\()#([^)"]+)/g).filter((id) => !dessin.includes(`id="${id}"`));
    deepStrictEqual([missing, found(/ id="([^"]+)"/g).filter((id) => !id.startsWith(`p${/p(-?\d+)-/.exec(name)[1]}-`))], [[], []], name);
}

// ---- A server, and the browser

const platform = `<!DOCTYPE html><title>Plateforme</title><script src="/scorm.js"></script>
<script>window.API = new Scorm12API({ autocommit: false, logLevel: 5 }); window.API.loadFromJSON({ suspend_data: localStorage.getItem('plateforme') || '' }, 'cmi');</script>
<iframe src="/index.html" width="1100" height="800"></iframe>`;
const { server, addresses } = await served(site, {
    '/plateforme.html': () => platform,
    '/scorm.js': () => readFileSync(join(npm, 'node_modules/scorm-again/dist/scorm12.js')),
});
const browser = await launch();

async function opened(address, options = {}) {
    const context = await browser.newContext({ viewport: { width: 1100, height: 900 }, bypassCSP: false, ...options });
    const page = await context.newPage();
    const faults = [];
    page.on('pageerror', (error) => faults.push(String(error)));
    page.on('console', (message) => { if (message.type() === 'error') faults.push(message.text()); });
    await page.goto(address);
    await page.waitForSelector('.page svg');
    return { context, page, faults };
}

const goTo = async (page, hash) => {
    await page.evaluate((to) => { location.hash = to; }, hash);
    await page.waitForFunction((to) => document.querySelector('.page svg [id^="' + to.slice(1) + '-"]') || document.querySelector('.avis-page'), hash);
};

async function pagesAndLinks(page) {
    const textOf = () => page.locator('.dessin').first().textContent();
    ok((await textOf()).includes('Pourquoi une paille'));
    // A line with bold words and links is one line to who copies it.
    await goTo(page, '#p12');
    const lines = await page.locator('.dessin text').allTextContents();
    ok(lines.some((line) => line.split(' ').length > 6));
    await page.locator('footer a[rel=next]').click();
    await page.waitForFunction(() => location.hash === '#p13');
    await page.goBack();
    await page.waitForFunction(() => location.hash === '#p12');
    await goTo(page, '#p101');
    // The keyboard reaches a link of the drawing through its text, and sees where it is.
    await page.locator('.lu a[href="#f0"], .lu a[href^="#f"]').first().focus();
    strictEqual(await page.locator('.dessin a.cible').count(), 1);
    await page.keyboard.press('Enter');
    const entries = page.locator('.menu a');
    ok(await entries.count() >= 5);
    await page.keyboard.press('ArrowDown');
    await page.keyboard.press('Enter');
    await page.waitForFunction(() => /^#p6\d$/.test(location.hash));
    await page.keyboard.press('Control+l');
    await page.locator('#mots').fill('refraction');
    await page.keyboard.press('Enter');
    const count = async () => {
        await page.waitForFunction(() => /trouvée/.test(document.querySelector('.recherche .avis').textContent));
        return page.locator('.trouvees li').count();
    };
    const byTheLetter = await count();
    await page.getByLabel('Ignorer les accents').check();
    await page.getByRole('button', { name: 'Rechercher', exact: true }).last().click();
    await page.waitForTimeout(100);
    ok(await count() > byTheLetter);
    await page.locator('.trouvees button', { hasText: 'Descartes' }).first().click();
    await page.waitForSelector('.marques span');
    strictEqual(await page.locator('.marques .premiere').count(), 1);
}

async function calculator(page) {
    await page.getByRole('button', { name: 'Calculatrice' }).first().click();
    await page.waitForSelector('.touches button');
    await page.keyboard.type('2*(3+4)');
    await page.keyboard.press('Enter');
    await page.waitForFunction(() => document.querySelector('.ecran').textContent.trim() === '14');
    await page.keyboard.press(',');
    ok((await page.locator('.calculatrice .avis').textContent()).includes('point'));
    await page.getByLabel('Degrés').check();
    await page.locator('[title]', { hasText: /^SIN$/ }).click();
    await page.locator('.ecran').focus();
    await page.keyboard.type('30');
    await page.keyboard.press('Enter');
    await page.waitForFunction(() => document.querySelector('.ecran').textContent.trim() === '.5');
    await page.keyboard.press('Escape');
}

async function aWholeTest(page) {
    const solutions = await page.evaluate(async () => {
        location.hash = '#t1';
        const test = await new Course(orvalente.received.get('cours')).test(1);
        return test.questions.map(({ type, solution }) => ({ type, solution }));
    });
    await page.waitForSelector('.champs input');
    const answer = async ({ type, solution }, isRight) => {
        if (type === 3) return page.locator('.champs input').fill(isRight ? solution : 'zzz');
        const boxes = page.locator(`.champ-${type === 1 ? 'check' : 'option'}`);
        const wanted = [...solution].map((digit) => digit === '1');
        if (!isRight) wanted.push(wanted.shift());
        for (let i = 0; i < await boxes.count(); ++i) if (wanted[i]) await boxes.nth(i).check();
        return undefined;
    };
    const validate = () => page.getByRole('button', { name: 'Valider' }).click();
    await answer(solutions[0], false);
    await validate();
    strictEqual(await page.locator('.verdict').textContent(), 'Réponse fausse');
    ok(await page.locator('.signe-champ').count() > 1);
    // To the page that its comment leads to, and back.
    await page.locator('.lien-question:not([aria-hidden])').focus();
    await page.keyboard.press('Enter');
    await page.waitForSelector('.page svg');
    await page.getByRole('link', { name: 'Retrouver le test' }).click();
    await page.waitForSelector('.bande button');
    strictEqual(await page.locator('.bande .signe', { hasText: '✗' }).count(), 1);
    await page.getByRole('button', { name: 'Suivante' }).click();
    for (let i = 1; i < solutions.length; ++i) {
        await page.waitForFunction((n) => document.querySelector('.rang').textContent.includes(` ${n} /`), i + 1);
        await answer(solutions[i], true);
        await validate();
    }
    await page.locator('dialog.message[open]').getByRole('button').first().click();
    await page.waitForSelector('.bilan li');
    strictEqual(await page.locator('.bilan li').count(), 1);
    const kept = await page.evaluate(() => new Progress(orvalente.received.get('cours').titre ? orvalente.received.get('cours') : {}).test(1));
    deepStrictEqual([kept.justes, kept.donnees, kept.nombre], [solutions.length - 1, solutions.length, solutions.length]);
    await page.getByRole('button', { name: 'Refaire les fautes' }).click();
    await page.waitForSelector('.champs input');
    await answer(solutions[0], true);
    await validate();
    await page.locator('dialog.message[open]').getByRole('button').first().click();
    await page.waitForFunction(() => document.querySelector('.bilan-texte').textContent.includes('Toutes vos réponses sont justes'));
    await page.getByRole('button', { name: 'Fermer' }).last().click();
    await page.waitForSelector('.page svg');
}

async function film(page, canSee) {
    await goTo(page, '#p69');
    await page.getByRole('button', { name: 'Voir le film' }).click();
    await page.waitForFunction(() => document.querySelector('video')?.readyState >= 2 && !document.querySelector('video').seeking);
    for (const image of [1, 2, 3, 2, 1, 0, 39, 38]) {
        await page.evaluate((to) => { const bar = document.querySelector('.film input'); bar.value = to; bar.dispatchEvent(new Event('input')); }, image);
        await page.waitForFunction((to) => { const video = document.querySelector('video'); return !video.seeking && Math.floor(video.currentTime * 25) === to; }, image);
        strictEqual(await page.locator('.image-du-film').textContent(), `Image ${image + 1} sur ${images}`);
        if (!canSee) continue; // pixels of a film in a folder are not shown to scripts
        const light = await page.evaluate(async () => {
            await new Promise((resolve) => { document.querySelector('video').requestVideoFrameCallback(resolve); setTimeout(resolve, 300); });
            const canvas = document.createElement('canvas');
            canvas.width = canvas.height = 8;
            const painter = canvas.getContext('2d');
            painter.drawImage(document.querySelector('video'), 0, 0, 8, 8);
            return painter.getImageData(4, 4, 1, 1).data[0];
        });
        const expected = (20 + 5 * image - 16) * 255 / 219;
        ok(Math.abs(light - expected) < 3, `image ${image}: ${light} for ${expected}`);
    }
    await page.keyboard.press('Escape');
}

/** How many pixels in a thousand differ visibly from the picture that the tool makes. */
async function difference(page, number) {
    const png = join(folder, `page-${number}.png`);
    execFileSync(tool, ['render', course, '--page', String(number), '-o', png], { stdio: 'ignore' });
    await goTo(page, `#p${number}`);
    await page.evaluate(async () => { await document.fonts.ready; document.querySelector('.dessin > svg').style.width = '800px'; });
    const shown = await page.locator('.dessin > svg').screenshot();
    return page.evaluate(async (files) => {
        const pixels = async (base64) => {
            const image = new Image();
            image.src = `data:image/png;base64,${base64}`;
            await image.decode();
            const canvas = new OffscreenCanvas(800, 600);
            const painter = canvas.getContext('2d');
            painter.drawImage(image, 0, 0);
            return painter.getImageData(0, 0, 800, 600).data;
        };
        const [a, b] = await Promise.all(files.map(pixels));
        let different = 0;
        for (let i = 0; i < a.length; i += 4) different += Math.abs(a[i] - b[i]) + Math.abs(a[i + 1] - b[i + 1]) + Math.abs(a[i + 2] - b[i + 2]) > 240 ? 1 : 0;
        return different / 480;
    }, [shown, readFileSync(png)].map((bytes) => bytes.toString('base64')));
}

async function isAccessible(page, where) {
    await page.evaluate(`${axe}; undefined`).catch(() => {});
    const found = await page.evaluate(() => axe.run(document, { resultTypes: ['violations'] }));
    const serious = found.violations.filter(({ impact }) => impact === 'serious' || impact === 'critical');
    deepStrictEqual(serious.map(({ id, nodes }) => `${where}: ${id}: ${nodes[0].html.slice(0, 200)}`), []);
}

async function hostilePage(page) {
    await goTo(page, '#p300');
    await page.waitForTimeout(200);
    await page.locator('.dessin').click({ position: { x: 250, y: 120 } });
    await page.getByRole('button', { name: 'Sommaire' }).click();
    await page.keyboard.press('Escape');
    strictEqual(await page.evaluate(() => window.harm), undefined);
    strictEqual(await page.evaluate(() => document.querySelectorAll('main script, main iframe, main img, main foreignObject, main [onload], main [onclick]').length), 0);
    ok((await page.locator('.dessin').first().textContent()).includes('onerror'), 'the words themselves are lost');
}

for (const [where, address] of Object.entries(addresses)) {
    const { context, page, faults } = await opened(address);
    await pagesAndLinks(page);
    await calculator(page);
    await aWholeTest(page);
    await film(page, where === 'server');
    await hostilePage(page);
    // Progress outlives the page.
    await page.reload();
    await page.waitForSelector('.page svg');
    strictEqual(await page.evaluate(() => new Progress(orvalente.received.get('cours')).test(1).justes), 10);
    await progress(page);
    if (where === 'server') await belongsToItsPlace(page);
    deepStrictEqual(faults, [], where);
    await context.close();
}

const { page } = await opened(addresses.server, { bypassCSP: true });
await isAccessible(page, 'first page');
await goTo(page, '#p12');
await isAccessible(page, 'page 12');
for (const number of [1, 12, 25, 45]) {
    const share = await difference(page, number);
    ok(share < 12, `page ${number}: ${share} pixels in a thousand differ`);
    console.log(`page ${number} : ${share.toFixed(1)} ‰`);
}
await page.evaluate(() => { location.hash = '#t1'; });
await page.waitForSelector('.champs input');
await isAccessible(page, 'test');
await page.getByRole('button', { name: 'Sommaire' }).click();
await isAccessible(page, 'contents');

// ---- On a learning platform: score, status and place are told, and what was done is taken up again

async function onPlatform() {
    const context = await browser.newContext();
    const lms = await context.newPage();
    // What another pupil has left on the device is not told as this one's.
    await lms.goto(addresses.server);
    await lms.evaluate((other) => localStorage.setItem('orvalente : /', other), kept({}));
    strictEqual(await lms.evaluate(() => new Progress(orvalente.received.get('cours')).test(1).donnees), 2);
    await lms.goto(addresses.server.replace('index.html', 'plateforme.html'));
    const value = (name) => lms.evaluate((key) => window.API.lmsGetValue(key), name);
    const frame = lms.frame({ url: /index/ });
    await frame.waitForSelector('.page svg');
    strictEqual(await value('cmi.core.lesson_status'), 'incomplete');
    deepStrictEqual(JSON.parse(await value('cmi.suspend_data')).tests, {});
    await frame.evaluate(() => { location.hash = '#t1'; });
    await frame.waitForSelector('.champs input');
    await frame.locator('.champs input').first().check();
    await frame.getByRole('button', { name: 'Valider' }).click();
    await lms.waitForFunction(() => window.API.lmsGetValue('cmi.core.score.raw') === '0');
    const data = await value('cmi.suspend_data');
    strictEqual(JSON.parse(data).tests[1].donnees, 1);
    // However much was answered, no more is told than a platform keeps.
    const longest = await frame.evaluate(() => {
        const { data } = JSON.parse(JSON.stringify({ data: { page: 1, tests: {} } }));
        for (let i = 1; i <= 60; ++i) data.tests[i] = { etat: 'x'.repeat(200), justes: 1, donnees: 2, nombre: 10 };
        const state = Scorm.prototype.state.call({ progress: { data } });
        return [state.length, Object.keys(JSON.parse(state).tests).length];
    });
    ok(longest[0] <= 4096 && longest[1] > 10, String(longest));
    await lms.evaluate((kept) => { localStorage.clear(); localStorage.setItem('plateforme', kept); }, data);
    await lms.reload();
    const again = lms.frame({ url: /index/ });
    await again.waitForSelector('.page svg');
    await again.evaluate(() => { location.hash = '#t1'; });
    await again.waitForSelector('.bande .signe:not(:empty)');
    const told = await lms.evaluate(() => {
        const values = {};
        window.API.on('LMSSetValue.cmi.core.session_time', (name, value) => { values.time = value; });
        window.API.on('LMSFinish', () => { values.isFinished = true; });
        document.querySelector('iframe').remove();
        return values;
    });
    ok(/^\d{4}:\d\d:\d\d$/.test(told.time) && told.isFinished, JSON.stringify(told));
    await context.close();
}
await onPlatform();

const archive = join(folder, 'cours.zip');
// Its films have been converted for the site: nothing is needed for them again.
execFileSync(tool, ['publish', course, '--scorm', '-o', archive], { stdio: 'ignore', env: { ...process.env, PATH: folder } });
const packed = execFileSync('python3', ['-c', 'import sys, zipfile; z = zipfile.ZipFile(sys.argv[1]); assert z.testzip() is None; print("\\n".join(z.namelist()))', archive], { encoding: 'utf8' }).trim().split('\n');
deepStrictEqual(packed.filter((name) => name !== 'imsmanifest.xml').sort(), all().sort());

// ---- The page itself asks for its faces, before anything that it links to is there

const early = await browser.newPage();
let release;
const released = new Promise((resolve) => { release = resolve; });
await early.route(/\.(js|css)$/, (route) => released.then(() => route.continue()));
const faces = new Set();
const threeFaces = early.waitForRequest((request) => request.url().endsWith('.woff2') && faces.add(request.url()).size === 3, { timeout: 20000 });
await early.goto(addresses.server, { waitUntil: 'commit' });
await threeFaces;
release();
await early.waitForSelector('.page svg');
// They are those that the page shows, and no others.
deepStrictEqual(await early.evaluate(() => document.fonts.ready.then((all) => [...all].filter(({ status }) => status !== 'unloaded').length)), 3);
// No other style may stand in it.
strictEqual(await early.evaluate(() => {
    const style = document.createElement('style');
    style.textContent = 'body { outline: 7px solid }';
    document.head.append(style);
    return getComputedStyle(document.body).outlineStyle;
}), 'none');
// What comes after it may be missing: then it says so, and asks again the next time.
await early.route('**/outils-*', (route) => route.abort());
await early.reload();
await early.waitForSelector('.page svg');
await early.getByRole('button', { name: 'Sommaire' }).click();
const told = early.locator('dialog.message[open]');
ok((await told.textContent()).includes('la connexion est coupée'));
await told.getByRole('button').last().click();
await early.unroute('**/outils-*');
await early.getByRole('button', { name: 'Sommaire' }).click();
await early.locator('dialog.sommaire[open]').waitFor();
await early.close();

const phone = await opened(addresses.server, { viewport: { width: 390, height: 800 }, isMobile: true, hasTouch: true });
const wide = await phone.page.evaluate(() => document.documentElement.scrollWidth);
ok(wide <= 390, `${wide} pixels wide on a phone`);
const small = await phone.page.locator('header button, footer a').evaluateAll((all) => all.map((b) => b.getBoundingClientRect().height).filter((h) => h < 44));
deepStrictEqual(small, []);
// The calculator's keys are as large as the screen lets them be.
await phone.page.getByRole('button', { name: 'Calculatrice' }).click();
await phone.page.waitForSelector('.touches button');
const [right, bottom] = await phone.page.locator('.touches button').evaluateAll((all) => all.map((key) => key.getBoundingClientRect()).reduce(([x, y], box) => [Math.max(x, box.right), Math.max(y, box.bottom)], [0, 0]));
ok(right > 360 && right <= 390 && bottom <= 800, `keys up to ${right}, ${bottom}`);
await phone.page.keyboard.press('Escape');
// A page is the whole drawing made small, so two fingers must enlarge it, and a phone that is turned shows it as it is.
const fingers = await phone.context.newCDPSession(phone.page);
await fingers.send('Input.synthesizePinchGesture', { x: 195, y: 300, scaleFactor: 2 });
const enlarged = await phone.page.evaluate(() => visualViewport.scale);
ok(enlarged > 1.8, `two fingers enlarge ${enlarged} times`);
await phone.page.setViewportSize({ width: 844, height: 390 });
await phone.page.waitForFunction(() => document.querySelector('.dessin svg').getBoundingClientRect().width >= 800);

await browser.close();
server.close();
console.log(`première page : ${Math.round(firstBytes / 1024)} Ko compressés`);
