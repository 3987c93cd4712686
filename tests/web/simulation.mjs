// The projectile's page in a real browser, from a folder: what pupils do with it.
//   node simulation.mjs ORVALENTE-COURS COURSE-SOURCES NPM-FOLDER
import { deepStrictEqual, ok, strictEqual } from 'node:assert';
import { execFileSync } from 'node:child_process';
import { cpSync, readdirSync, rmSync } from 'node:fs';
import { join } from 'node:path';
import { pathToFileURL } from 'node:url';
import { begin } from './browser.mjs';

const [, , tool, sources, npm] = process.argv;
const { folder, launch, axe } = await begin(npm, 'simulation');
const source = join(folder, 'source');
cpSync(sources, source, { recursive: true });
for (const name of readdirSync(join(source, 'files')).filter((file) => file.endsWith('.avi'))) rmSync(join(source, 'files', name)); // films take their time
execFileSync(tool, ['build', source, '-o', join(folder, 'course')], { stdio: 'ignore' });
execFileSync(tool, ['publish', join(folder, 'course'), '-o', join(folder, 'site')], { stdio: ['ignore', 'ignore', 'pipe'] });
const address = pathToFileURL(join(folder, 'site', 'index.html')).href;
const browser = await launch();

async function opened(options = {}, hash = '#m23') {
    const context = await browser.newContext({ viewport: { width: 1100, height: 900 }, ...options });
    const page = await context.newPage();
    const faults = [];
    page.on('pageerror', (error) => faults.push(String(error)));
    page.on('console', (message) => { if (message.type() === 'error') faults.push(message.text()); });
    await page.goto(address + hash);
    await page.waitForSelector('.simulation .graphe path, dialog.message[open]');
    return { context, page, faults };
}

const plain = (text) => text.replace(/\s/g, ' ');
const reading = async (page, name) => plain(await page.locator('.lecture', { hasText: new RegExp(`^${name}\\s=`) }).textContent());
const fill = async (page, name, text) => {
    await page.getByLabel(name).fill(text);
    await page.keyboard.press('Enter');
};

// ---- From the course: a link of page 23, and back

{
    const { context, page, faults } = await opened({}, '#m23');
    await page.evaluate(() => { location.hash = '#p23'; });
    await page.waitForSelector('.page svg');
    const links = await page.locator('.dessin a[href^="#m"]').evaluateAll((all) => all.map((link) => link.getAttribute('href')));
    deepStrictEqual([...new Set(links)].sort(), ['#m23', '#m23-3', '#m23-4', '#m23-5', '#m23-6']);
    await page.evaluate(() => { location.hash = '#m23-3'; });
    await page.waitForSelector('.avis-simulation');
    await page.getByRole('link', { name: 'Retour au cours' }).click();
    await page.waitForFunction(() => location.hash === '#p23' && document.querySelector('.page svg'));
    // A module without a page is told of by its number; one stays where one is.
    await page.evaluate(() => { location.hash = '#m2'; });
    ok((await page.locator('dialog.message[open]').textContent()).includes('La simulation 2 est un programme à part'));
    ok(await page.evaluate(() => location.hash === '#p23'));
    deepStrictEqual(faults, []);
    await context.close();
}

// ---- Numbers, sliders, worlds, drag

const { context, page, faults } = await opened();
strictEqual(await reading(page, 'portée'), 'portée = 40,77 m');
await fill(page, 'Angle de lancement, en degrés', '30,5');
strictEqual(await page.getByRole('slider', { name: 'Angle de lancement' }).getAttribute('aria-valuetext'), '30,5°');
await fill(page, 'Angle de lancement, en degrés', 'beaucoup');
strictEqual(await page.getByLabel('Angle de lancement, en degrés').inputValue(), '30,5');
await fill(page, 'Vitesse initiale, en m/s', '1000');
strictEqual(await page.getByLabel('Vitesse initiale, en m/s').inputValue(), '60,00');
await page.getByRole('slider', { name: 'Vitesse initiale' }).focus();
await page.keyboard.press('Home');
strictEqual(await page.getByLabel('Vitesse initiale, en m/s').inputValue(), '0,00');
ok(await page.getByRole('button', { name: 'Départ', exact: true }).isDisabled(), 'what stays on the ground does not start');
await fill(page, 'Vitesse initiale, en m/s', '20');
await fill(page, 'Angle de lancement, en degrés', '45');
await page.getByRole('radio', { name: 'Lune' }).check();
strictEqual(await page.getByLabel('Pesanteur, en m/s²').inputValue(), '1,62');
strictEqual(await reading(page, 'portée'), 'portée = 246,91 m');
await fill(page, 'Pesanteur, en m/s²', '5');
strictEqual(await page.locator('.segments input[name="choix-Astre"]:checked').count(), 0);
await page.getByRole('radio', { name: 'Terre' }).check();
ok(!await page.getByLabel('Diamètre, en m').isVisible());
await page.getByRole('radio', { name: 'f ∝ v' }).check();
ok(await page.getByLabel('Diamètre, en m').isVisible());
ok(Number.parseFloat((await reading(page, 'portée')).slice(9)) < 30, 'the air does not slow');
await page.getByRole('radio', { name: 'aucun' }).check();

// ---- Paths kept for comparison

await page.getByRole('button', { name: 'Garder la trajectoire' }).click();
ok(await page.getByRole('button', { name: 'Garder la trajectoire' }).isDisabled());
await fill(page, 'Hauteur de départ, en m', '10');
strictEqual(plain(await page.locator('.legende li').first().textContent()), 'v0 = 20 m/s, α = 45°, h = 10 m');
strictEqual(await page.locator('.graphe g[clip-path] > path').count(), 2);
await page.getByRole('button', { name: 'Effacer' }).click();
strictEqual(await page.locator('.graphe g[clip-path] > path').count(), 1);
await fill(page, 'Hauteur de départ, en m', '0');

// ---- Time: keys, steps, slider, table

const now = async () => plain(await page.locator('.temps').textContent());
await page.locator('h1').focus();
await page.keyboard.press('ArrowRight');
strictEqual(await now(), 't = 0,02 s');
await page.keyboard.press('Home');
await page.getByLabel('Vitesse de la simulation').selectOption('10');
await page.locator('.graphe:visible').click({ position: { x: 5, y: 5 } });
await page.keyboard.press(' ');
await page.waitForFunction(() => document.querySelector('.temps').textContent.includes('2,88'));
ok((await page.locator('#annonce').textContent()).includes('40,77 m'), 'the landing is not told');
await page.getByRole('tab', { name: 'Tableau' }).click();
await page.getByRole('button', { name: '1,00' }).click();
strictEqual(plain(await page.locator('.courante').textContent()).slice(0, 14), '1,0014,149,241');
strictEqual(await reading(page, 'x'), 'x = 14,14 m');
await page.getByRole('tab', { name: 'Tableau' }).press('ArrowLeft');
ok(plain(await page.locator('.vue:visible .legende').textContent()).includes('mécanique : 120 J'));
await page.getByRole('tab', { name: 'Trajectoire' }).click();
await page.getByRole('button', { name: 'Revenir au départ' }).click();

// ---- Aiming with the pointer: to twice the height at the same distance is tan α = 2

const { x, y, height } = await page.locator('.poignee').boundingBox();
const centre = [x + height / 2, y + height / 2];
const [dx, dy] = [20 * Math.SQRT1_2 * 4, 20 * Math.SQRT1_2 * 4];
await page.mouse.move(...centre);
await page.mouse.down();
await page.mouse.move(centre[0], centre[1] - dy, { steps: 3 });
await page.mouse.up();
strictEqual(await page.getByLabel('Angle de lancement, en degrés').inputValue(), '63,0');
strictEqual(await page.getByLabel('Vitesse initiale, en m/s').inputValue(), frenchHalf(Math.hypot(dx, 2 * dy) / 4));
function frenchHalf(value) {
    return (Math.round(value * 2) / 2).toFixed(2).replace('.', ',');
}

await page.keyboard.press('Control+p');
ok((await page.locator('dialog.message[open]').textContent()).includes('ne s’imprime pas'));
await page.keyboard.press('Escape');

// ---- Nothing runs that nobody sees, and what was set is there again

await page.getByLabel('Vitesse de la simulation').selectOption('0.1');
await page.getByRole('button', { name: 'Départ', exact: true }).click();
await page.evaluate(() => { location.hash = '#p1'; });
await page.waitForSelector('.page svg');
await page.goBack();
await page.waitForSelector('.simulation');
ok(await page.getByRole('button', { name: 'Départ', exact: true }).isVisible(), 'it ran on');
strictEqual(await page.getByLabel('Angle de lancement, en degrés').inputValue(), '63,0');
deepStrictEqual(faults, []);
await context.close();

// ---- Who wants little motion sees single pictures, on any screen it fits, and axe finds nothing

const quiet = await opened({ reducedMotion: 'reduce', viewport: { width: 390, height: 800 }, hasTouch: true });
const times = await quiet.page.evaluate(() => new Promise((resolve) => {
    const seen = [];
    const place = document.querySelector('.temps');
    new MutationObserver(() => {
        const time = Number(/[\d,]+/.exec(place.textContent)[0].replace(',', '.'));
        if (seen.at(-1) !== time) seen.push(time);
        if (time > 1) resolve(seen);
    }).observe(place, { childList: true, subtree: true, characterData: true });
    document.querySelector('.depart').click();
}));
ok(times.length > 2 && times.length < 8, `${times}`);
await quiet.page.getByRole('button', { name: 'Pause' }).click();
ok(await quiet.page.evaluate(() => document.documentElement.scrollWidth) <= 390);
const small = await quiet.page.locator('.simulation button:visible, .simulation select, .segments label').evaluateAll((all) => all.map((one) => one.getBoundingClientRect().height).filter((high) => high < 40));
deepStrictEqual(small, []);
await quiet.context.close();

for (const colorScheme of ['light', 'dark']) {
    const checked = await opened({ bypassCSP: true, colorScheme });
    for (const tab of ['Trajectoire', 'Énergies', 'Tableau']) {
        await checked.page.getByRole('tab', { name: tab }).click();
        await checked.page.evaluate(`${axe}; undefined`);
        const found = await checked.page.evaluate(() => axe.run(document, { resultTypes: ['violations'] }));
        const serious = found.violations.filter(({ impact }) => impact === 'serious' || impact === 'critical');
        deepStrictEqual(serious.map(({ id, nodes }) => `${colorScheme} ${tab}: ${id}: ${nodes[0].html.slice(0, 200)}`), []);
    }
    await checked.context.close();
}
await browser.close();
