// What becomes of a pupil's progress: kept, taken away in a file, taken back, erased.
import { deepStrictEqual, ok, strictEqual } from 'node:assert';
import { readFileSync } from 'node:fs';

/** A file, or what a device keeps, of a course of which test 1 was begun. */
export const kept = (test) => JSON.stringify({ page: 12, tests: { 1: { etat: '', justes: 1, donnees: 2, nombre: 10, ...test } } });

/** Files that somebody else may have written, and what is said of them. */
const refusedFiles = [
    ['', 'n’est pas une progression'], ['{', 'n’est pas une progression'], ['null', 'n’est pas une progression'], ['[]', 'n’est pas une progression'],
    ['{"tests": []}', 'n’est pas une progression'], ['{"tests": {"1": null}}', 'n’est pas une progression'], ['{"tests": {"__proto__": {"etat": 1}}}', 'n’est pas une progression'],
    [kept({ justes: 3 }), 'n’est pas une progression'], [kept({ justes: -1 }), 'n’est pas une progression'], [kept({ donnees: 11 }), 'n’est pas une progression'],
    [kept({ nombre: 1e9 }), 'n’est pas une progression'], [kept({ etat: '<b>'.repeat(9000) }), 'n’est pas une progression'], [kept({ etat: 7 }), 'n’est pas une progression'],
    [`{"tests": {}, "x": "${'x'.repeat(1_100_000)}"}`, 'n’est pas une progression'],
    ['{"tests": {"999": {"etat": "", "justes": 0, "donnees": 1, "nombre": 2}}}', 'd’un autre cours'],
];

/** To a file and back; what is no such file changes nothing. */
export async function progress(page) {
    const now = () => page.evaluate(() => { const { data } = new Progress(orvalente.received.get('cours')); return data; });
    const before = await now();
    const chosen = async (buffer) => {
        await page.locator('.sommaire input[type=file]').setInputFiles({ name: 'progression.json', mimeType: 'application/json', buffer });
        await page.waitForSelector('dialog.message[open]');
    };
    const answer = (words) => page.locator('dialog.message[open]').getByRole('button', { name: words }).click();
    await page.getByRole('button', { name: 'Sommaire' }).click();
    const download = page.waitForEvent('download');
    await page.getByRole('button', { name: 'Enregistrer dans un fichier' }).click();
    const file = readFileSync(await (await download).path());
    for (const [text, words] of refusedFiles) {
        await chosen(Buffer.from(text));
        ok((await page.locator('dialog.message[open]').textContent()).includes(words), text.slice(0, 100));
        await answer('OK');
    }
    deepStrictEqual(await now(), before);
    await page.getByRole('button', { name: 'Effacer' }).click();
    await answer('Effacer');
    await page.locator('dialog.sommaire').waitFor({ state: 'hidden' }); // once all is erased
    deepStrictEqual((await now()).tests, {});
    await page.getByRole('button', { name: 'Sommaire' }).click();
    await chosen(file);
    ok((await page.locator('dialog.message[open]').textContent()).includes('est reprise : un test.'));
    await answer('OK');
    deepStrictEqual((await now()).tests, before.tests);
    // A state that no test has left: the test begins, whatever it says.
    await page.getByRole('button', { name: 'Sommaire' }).click();
    await chosen(Buffer.from(kept({ etat: '32000\x1e99\x1f1\x1fx\x1e1\x1f1\x1f<img src=x onerror="window.harm = 1">\x1e-5\x1f-1\x1f\x1e\x1e\x1e' })));
    await answer('Annuler');
    deepStrictEqual((await now()).tests, before.tests);
    await chosen(Buffer.from(kept({ etat: '32000\x1e99\x1f1\x1fx\x1e1\x1f1\x1f<img src=x onerror="window.harm = 1">\x1e-5\x1f-1\x1f\x1e\x1e\x1e' })));
    await answer('Remplacer');
    await answer('OK');
    await page.evaluate(() => { location.hash = '#t1'; });
    await page.waitForFunction(() => / \d+ \/ 10/.test(document.querySelector('.rang')?.textContent ?? ''));
    const rank = Number(/(\d+) \/ 10/.exec(await page.locator('.rang').textContent())[1]);
    ok(rank >= 1 && rank <= 10, `question ${rank}`);
    strictEqual(await page.evaluate(() => window.harm), undefined);
    await page.getByRole('button', { name: 'Sommaire' }).click();
    await chosen(file);
    await answer('Remplacer');
    await answer('OK');
    await page.waitForSelector('.page svg');
    deepStrictEqual((await now()).tests, before.tests);
}

/** Another course of the same title on this server begins with nothing; this one stays whatever its title. */
export async function belongsToItsPlace(page) {
    const tests = (path, titre) => page.evaluate(([to, name]) => {
        const from = location.href;
        history.replaceState(null, '', to);
        const { data } = new Progress({ ...orvalente.received.get('cours'), titre: name });
        history.replaceState(null, '', from);
        return Object.keys(data.tests);
    }, [path, titre]);
    deepStrictEqual([await tests('/autre/', 'Bienvenue'), await tests('/', 'Un autre titre'), await tests('/index.html?a#p2', '')], [[], ['1'], ['1']]);
}
