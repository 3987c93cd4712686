// The pages of the simulations in a real browser, from a folder: what pupils do with them.
//   node simulation.mjs ORVALENTE-COURS COURSE-SOURCES MODULES-FOLDER NPM-FOLDER
import { deepStrictEqual, ok, strictEqual } from 'node:assert';
import { execFileSync } from 'node:child_process';
import { cpSync, readFileSync, readdirSync, rmSync, symlinkSync, writeFileSync } from 'node:fs';
import { join } from 'node:path';
import { pathToFileURL } from 'node:url';
import { begin } from './browser.mjs';

const [, , tool, sources, modules, npm] = process.argv;
const { folder, launch, axe } = await begin(npm, 'simulation');
const source = join(folder, 'source');
cpSync(sources, source, { recursive: true });
for (const name of readdirSync(join(source, 'files')).filter((file) => file.endsWith('.avi'))) rmSync(join(source, 'files', name)); // films take their time
execFileSync(tool, ['build', source, '-o', join(folder, 'course')], { stdio: 'ignore' });
// As they stand beside an installed course; one is missing, one is none, one leads elsewhere, and
// one is nobody's friend.
const HOSTILE = '<img src=x onerror="window.captured = true">';
for (const kind of ['lens', 'reaction', 'projectile'])
    for (const name of readdirSync(join(modules, kind, 'exercises'))) cpSync(join(modules, kind, 'exercises', name), join(folder, 'course', name));
rmSync(join(folder, 'course', 'Exercice 06.E21'));
writeFileSync(join(folder, 'course', 'Exercice 05.E20'), 'titre = rien\n');
symlinkSync('/etc/hostname', join(folder, 'course', 'Exercice 07.E21'));
writeFileSync(join(folder, 'course', 'Exercice 04.E24'), `titre = ${HOSTILE}\nenonce = ${HOSTILE}\nquestion = ${HOSTILE}\nreponse = 1\ntolerance = 0\nunite = ${HOSTILE}\njuste = ${HOSTILE}\n`);
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
    await page.waitForSelector('.simulation .graphe text, dialog.message[open]');
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
    await page.waitForSelector('.exercice');
    await page.getByRole('link', { name: 'Retour au cours' }).click();
    await page.waitForFunction(() => location.hash === '#p23' && document.querySelector('.page svg'));
    // A module without a page is told of by its number; one stays where one is.
    for (const module of [7, 9, 30]) {
        await page.evaluate((number) => { location.hash = `#m${number}`; }, module);
        ok((await page.locator('dialog.message[open]').textContent()).includes(`La simulation ${module} est un programme à part`));
        ok(await page.evaluate(() => location.hash === '#p23'));
        await page.keyboard.press('Escape');
    }
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
strictEqual(await page.getByRole('radiogroup', { name: 'Astre' }).locator(':checked').count(), 0);
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
await page.waitForFunction(() => document.getElementById('annonce').textContent.includes('40,77'), undefined, { timeout: 30000 });
ok(plain(await page.locator('.temps').textContent()).includes('2,88'), 'the flight does not end');
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

// ---- Exercises: what is given cannot be changed, what is looked for is withheld until it was found

{
    const { context, page, faults } = await opened({}, '#m23-3');
    ok(await page.getByLabel('Angle de lancement, en degrés').isDisabled());
    ok(await page.getByLabel('Vitesse initiale, en m/s').isEnabled());
    ok(await page.getByRole('radio', { name: 'Lune' }).isDisabled());
    strictEqual(await reading(page, 'durée'), 'durée = ? s');
    const answer = async (typed) => {
        await fill(page, 'Combien de temps la chute dure-t-elle ?', typed);
        return plain(await page.locator('#verdict-exercice').textContent());
    };
    strictEqual(await answer('longtemps'), 'Tapez un nombre, par exemple 12,5.');
    ok((await answer('3')).startsWith('Ce n’est pas cela. Suivez seulement la hauteur'));
    strictEqual(await reading(page, 'durée'), 'durée = ? s');
    ok(!await page.getByRole('button', { name: 'Exercice suivant' }).isVisible());
    ok((await answer('2.02 s')).startsWith('Juste ! Vers le bas'));
    strictEqual(await reading(page, 'durée'), 'durée = 2,02 s');
    // What was answered is there again, and the next exercise is the next file.
    await page.evaluate(() => { location.hash = '#p1'; });
    await page.waitForSelector('.page svg');
    await page.goBack();
    await page.getByRole('button', { name: 'Exercice suivant' }).click();
    await page.waitForFunction(() => document.querySelector('.exercice h2').textContent === 'Le meilleur angle');
    await page.evaluate(() => { location.hash = '#m23-5'; });
    await page.waitForFunction(() => document.querySelector('.graphe').textContent.includes('anneau'));
    // One that is not there, one that is none, and no file from elsewhere.
    for (const [hash, why] of [['#m23-6', 'il n’est pas dans le dossier du cours.'], ['#m10-5', 'il lui manque un titre, un énoncé, une question ou une réponse.']]) {
        await page.evaluate((to) => { location.hash = to; }, hash);
        await page.waitForFunction((words) => document.querySelector('.avis-simulation')?.textContent.includes(words), why);
        ok((await page.locator('.avis-simulation').textContent()).endsWith('La simulation est à vous.'));
        strictEqual(await page.locator('.exercice').count(), 0);
    }
    ok(!readdirSync(join(folder, 'site', 'simulations')).some((name) => readFileSync(join(folder, 'site', 'simulations', name), 'utf8').includes('Exercice 07')));
    deepStrictEqual(faults, []);
    await context.close();
}

// ---- Formulas follow the launch, and are said in words

{
    const { context, page, faults } = await opened();
    await page.getByRole('tab', { name: 'Formules' }).click();
    ok(await page.getByRole('math', { name: 'T égale v indice 0y plus racine de v indice 0y au carré plus 2 g h sur g' }).isVisible());
    ok(plain(await page.locator('.formules').textContent()).includes('Em = Ec + Ep = 120 J'));
    await page.getByRole('radio', { name: 'f ∝ v' }).check();
    ok(await page.getByRole('math', { name: /^v indice l égale racine de 2 m g sur/ }).isVisible());
    deepStrictEqual(faults, []);
    await context.close();
}

// ---- The optical bench: object and screen are moved, the sharp image is measured

{
    const { context, page, faults } = await opened({}, '#m2');
    const screen = page.getByLabel('Distance de l’écran, en cm');
    const said = () => page.locator('.ecran-banc figcaption').textContent();
    strictEqual(await said(), 'image floue');
    ok(await page.getByRole('button', { name: 'Noter la mesure' }).isDisabled());
    await page.locator('h1').focus();
    await page.keyboard.press('ArrowRight');
    strictEqual(await screen.inputValue(), '40,2');
    await page.getByRole('button', { name: 'Mettre au point' }).click();
    strictEqual(await screen.inputValue(), '60,0');
    strictEqual(await said(), 'image nette');
    ok((await page.locator('.graphe svg').getAttribute('aria-label')).includes('réelle, renversée, agrandie'));
    await page.locator('h1').focus();
    await page.keyboard.press(' ');
    await page.getByRole('tab', { name: 'Mesures' }).click();
    strictEqual(await page.locator('.tableau tbody tr').textContent(), '−30,060,0−4,00−2,00−3,331,675,00');
    await page.getByRole('button', { name: 'Effacer' }).click();
    ok((await page.locator('.tableau').textContent()).includes('Déplacez l’écran jusqu’à ce que l’image soit nette'));
    await page.getByRole('tab', { name: 'Construction' }).click();
    // The object is pulled to half its distance: within the focal length there is no image to see.
    const frame = await page.locator('.graphe svg').boundingBox();
    const at = (label, name) => page.locator('.graphe text', { hasText: label }).last().evaluate((text, attribute) => Number(text.getAttribute(attribute)), name);
    const [object, lens, axis] = [await at(/^B$/, 'x') + 20, await at(/^O$/, 'x') - 6, await at(/^O$/, 'y') + 8];
    await page.mouse.move(frame.x + object, frame.y + axis);
    await page.mouse.down();
    await page.mouse.move(frame.x + (object + lens) / 2, frame.y + axis, { steps: 3 });
    await page.mouse.up();
    strictEqual(await page.getByLabel('Distance de l’objet, en cm').inputValue(), '15,0');
    strictEqual(await said(), 'pas d’image ici');
    strictEqual(await page.getByLabel('Taille de l’objet, en cm').inputValue(), '2,0');
    await page.getByRole('radio', { name: 'divergente' }).check();
    ok(plain(await page.locator('.lectures').textContent()).includes('virtuelle, droite, réduite'));
    await page.getByLabel('faisceau').check();
    ok(await page.locator('.graphe polygon').count() > 1);
    // A lens that is withheld shows nothing that would tell of it.
    await page.evaluate(() => { location.hash = '#m2-1'; });
    await page.waitForSelector('.exercice');
    strictEqual(await page.locator('.graphe text', { hasText: 'F' }).count(), 0);
    ok(!await page.getByLabel('Distance focale, en cm').isVisible());
    ok(await page.getByText('à vous de la mesurer').isVisible());
    await fill(page, 'Quelle est la distance focale f′ de la lentille ?', '12 cm');
    strictEqual(await page.locator('.graphe text', { hasText: 'F' }).count(), 2);
    deepStrictEqual(faults, []);
    await context.close();
}

// ---- The limiting reactant: it runs to its end, and is told

{
    const { context, page, faults } = await opened({}, '#m10');
    ok(plain(await page.locator('.cadre-equation').textContent()).includes('Réactif limitant : le dioxygène.'));
    await page.locator('h1').focus();
    await page.keyboard.press('ArrowRight');
    strictEqual(plain(await page.locator('.temps').textContent()), 'x = 0,03 mol');
    await page.getByRole('slider', { name: 'Avancement' }).focus();
    await page.keyboard.press('End');
    await page.getByRole('tab', { name: 'Tableau' }).click();
    const row = async (name) => (await page.locator('.tableau tr', { hasText: name }).locator('td').allTextContents()).map(plain);
    deepStrictEqual(await row('à cet instant'), ['1,50', '0,50', '0,00', '1,50', '3,00']);
    deepStrictEqual(await row('en cours'), ['x', '2,00 − x', '3,00 − 2 x', 'x', '2 x']);
    await page.getByRole('button', { name: 'Mélange stœchiométrique' }).click();
    strictEqual(await page.getByLabel('Quantité initiale, dioxygène, en mol').inputValue(), '4,00');
    ok(await page.getByRole('button', { name: 'Mélange stœchiométrique' }).isDisabled());
    await page.getByLabel('Réaction', { exact: true }).selectOption('Synthèse de l’eau');
    strictEqual(await page.locator('.especes > span').count(), 3);
    await fill(page, 'Quantité initiale, dihydrogène, en mol', '0');
    ok(await page.getByRole('button', { name: 'Départ', exact: true }).isDisabled());
    await page.evaluate(() => { location.hash = '#m10-3'; });
    await page.waitForSelector('.exercice');
    await page.getByRole('tab', { name: 'Tableau' }).click();
    deepStrictEqual(await row('état final'), ['?', '?', '?', '?', '?']);
    ok(await page.getByLabel('Réaction', { exact: true }).isDisabled());
    deepStrictEqual(faults, []);
    await context.close();
}

// ---- An exercise's texts are text, whatever they are

{
    const { context, page, faults } = await opened({}, '#m2-2');
    for (const [typed, next] of [['20', 'La lentille du myope'], ['0,33', HOSTILE]]) {
        await page.locator('#reponse-exercice').fill(typed);
        await page.keyboard.press('Enter');
        await page.getByRole('button', { name: 'Exercice suivant' }).click();
        await page.waitForFunction((title) => document.querySelector('.exercice h2').textContent === title, next);
    }
    await page.locator('#reponse-exercice').fill('1');
    await page.keyboard.press('Enter');
    ok((await page.locator('#verdict-exercice').textContent()).includes(HOSTILE));
    strictEqual(await page.evaluate(() => window.captured), undefined);
    deepStrictEqual(faults, []);
    await context.close();
}

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
// The simulation before stays until the one asked for is there; an exercise alone does not tell them apart.
const TITLES = { 2: 'optique', 10: 'limitant', 23: 'projectile' };
const show = async ({ page: where }, hash) => {
    await where.evaluate((to) => { location.hash = to; }, hash);
    await where.waitForFunction(({ title, isExercise }) => document.querySelector('#titre-simulation')?.textContent.includes(title)
        && Boolean(document.querySelector('.simulation .exercice')) === isExercise, { title: TITLES[/\d+/.exec(hash)[0]], isExercise: hash.includes('-') });
    return where.getByRole('tab').all();
};
for (const hash of ['#m23', '#m23-3', '#m2-1', '#m10-3']) {
    for (const tab of await show(quiet, hash)) {
        await tab.click();
        ok(await quiet.page.evaluate(() => document.documentElement.scrollWidth) <= 390, `${hash} ${await tab.textContent()} is too wide`);
    }
    const small = await quiet.page.locator('.simulation button:visible:not(.lien), .simulation select:visible, .segments label:visible').evaluateAll((all) => all.map((one) => [one.textContent, one.getBoundingClientRect().height]).filter(([, high]) => high < 40));
    deepStrictEqual(small, []);
}
await quiet.context.close();

for (const colorScheme of ['light', 'dark']) {
    const checked = await opened({ bypassCSP: true, colorScheme });
    await checked.page.evaluate(`${axe}; undefined`);
    for (const hash of ['#m23-5', '#m23', '#m2-1', '#m2', '#m10-3']) {
        for (const tab of await show(checked, hash)) {
            await tab.click();
            const found = await checked.page.evaluate(() => axe.run(document, { resultTypes: ['violations'] }));
            const serious = found.violations.filter(({ impact }) => impact === 'serious' || impact === 'critical');
            deepStrictEqual(serious.map(({ id, nodes }) => `${colorScheme} ${hash}: ${id}: ${nodes[0].html.slice(0, 200)}`), []);
        }
    }
    await checked.context.close();
}
await browser.close();
