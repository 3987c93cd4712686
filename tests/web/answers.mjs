// The program for browsers and the course tool answer alike.
//   node answers.mjs PROGRAM.WASM ORVALENTE-COURS COURSE-SOURCES
import { execFileSync, spawnSync } from 'node:child_process';
import { mkdtempSync, readFileSync, readdirSync, rmSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { deepStrictEqual, strictEqual } from 'node:assert';

const [, , wasm, tool, sources] = process.argv;
const glue = new URL('../../src/publish/site/program.js', import.meta.url);
const Program = new Function(`${readFileSync(glue, 'utf8')}; return Program;`)();
const program = await Program.load(readFileSync(wasm));

/** Always the same numbers, so that what fails once fails again. */
let state = 20260;
const random = (below) => {
    state = (Math.imul(state, 1103515245) + 12345) >>> 0;
    return Math.floor(state / 65536) % below;
};
const oneOf = (all) => all[random(all.length)];

const toolOn = (args, lines) => execFileSync(tool, args, { input: `${lines.join('\n')}\n`, encoding: 'utf8', maxBuffer: 1 << 26 })
    .split('\n').slice(0, -1);

// Only what is exact, or rounded alike by every library of mathematics.
const number = () => oneOf(['0', '1', '2', '7', '10', '12.5', '.5', '3.25', '1E3', '2.5E-2', '1E-300', '9E307', '45']);
const term = (depth) => {
    if (depth === 0) return number();
    switch (random(8)) {
    case 0: return `(${term(depth - 1)} + ${term(depth - 1)})`;
    case 1: return `RAC (${term(depth - 1)})`;
    case 2: return `-${number()}`;
    case 3: return `${term(depth - 1)} / ${term(depth - 1)}`;
    case 4: return `(${term(depth - 1)} - ${number()}`;
    case 5: return `ABS (${term(depth - 1)})`;
    default: return `${term(depth - 1)} ${oneOf(['+', '-', '*', '/', '²'])} ${term(depth - 1)}`;
    }
};
const expressions = ['', ' ', '2 +', ')', '1 / 0', '1E400', 'SIN (30)', 'RAC (-1)', '2 * (3 + 4', 'é', '1.5.2', 'ABS'];
while (expressions.length < 4000) expressions.push(term(1 + random(3)));
let results = 0;
for (const scientific of [false, true]) {
    const answers = toolOn(['calc', '--batch', ...(scientific ? ['--scientific'] : [])], expressions);
    expressions.forEach((expression, i) => {
        const { error, isMessage, line } = program.calculate(expression, true, scientific);
        strictEqual(`${error}\t${line}`, answers[i], expression);
        results += isMessage ? 0 : 1;
    });
}
strictEqual(results > 2000, true, 'too few of the expressions have a result');

// Solutions and answers that are near each other.
const words = ['oxygène', 'dioxygène', 'ion', 'Na+', 'proton', 'noyaux', 'cristallisé', 'l’eau', 'a-b', 'réfraction totale'];
const changes = [(w) => w, (w) => `${w}s`, (w) => w.toUpperCase(), (w) => `un ${w},`, (w) => `${w}x`, (w) => w.replace(/[éè]/g, 'e'),
    (w) => w.slice(1), (w) => `x${w}`, (w) => `${w}-`, () => '', (w) => `--${w}`];
const pairs = words.flatMap((solution) => words.flatMap((word) => changes.map((change) => [solution, change(word)])));
const verdicts = toolOn(['answer', '--batch'], pairs.map(([solution, typed]) => `${solution}\t${typed}`));
pairs.forEach(([solution, typed], i) => strictEqual(program.judge(solution, typed) ? 'juste' : 'faux', verdicts[i], `${solution} / ${typed}`));
strictEqual(new Set(verdicts).size, 2);

const course = mkdtempSync(join(tmpdir(), 'orvalente-web-'));
try {
    execFileSync(tool, ['build', sources, '-o', course], { stdio: 'ignore' });
    const file = readdirSync(course).find((name) => name.toLowerCase() === 'zekx.mdb');
    strictEqual(program.openSearch(readFileSync(join(course, file))), '');
    let found = 0;
    for (const words of ['lumière', 'LUMIERE', 'réfraction angle', 'atome', 'introuvable', 'a', 'l’ion', "l'ion", 'Newton poids', 'son']) {
        for (const all of [false, true]) {
            for (const accents of [false, true]) {
                const { stdout } = spawnSync(tool, ['search', course, ...(all ? ['--all-words'] : []), ...(accents ? ['--ignore-accents'] : []), '--', words], { encoding: 'utf8' });
                const expected = stdout.split('\n').slice(0, -1).map((line) => line.split('\t').slice(0, 2));
                const { pages } = program.search(words, all, accents);
                deepStrictEqual(pages.map(({ number, title }) => [String(number), title]), expected, words);
                found += pages.length;
            }
        }
    }
    strictEqual(found > 100, true);
} finally {
    rmSync(course, { recursive: true });
}
