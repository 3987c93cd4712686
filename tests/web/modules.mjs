// The simulations compute and say in browsers what they do in their programs: thousands of calls of
// the same functions, in both.
//   node modules.mjs PROGRAM.WASM WEB_MODULES MODULES-FOLDER
import { execFileSync } from 'node:child_process';
import { readFileSync, readdirSync } from 'node:fs';
import { join } from 'node:path';
import { ok, strictEqual } from 'node:assert';

const [, , wasm, native, folder] = process.argv;
const glue = readFileSync(new URL('../../src/publish/site/program.js', import.meta.url), 'utf8');
const Program = new Function(`${glue}; return Program;`)();
const program = await Program.load(readFileSync(wasm));

/** Always the same numbers, so that what fails once fails again. */
let state = 20262;
const random = (below) => {
    state = (Math.imul(state, 1103515245) + 12345) >>> 0;
    return Math.floor(state / 65536) % below;
};

const HEADING = 0;
const NUMBER = 1;
const MODULES = { 2: { kind: 'lens', wholes: 3 }, 10: { kind: 'reaction', wholes: 1 }, 23: { kind: 'projectile', wholes: 4 } };

// ---- A script of calls; the controls are those of the browser's program

const TYPED = ['2,5', ' 12.5 ', '−3', '1 250', '1,5e1', ',5', '', 'deux', '2,5,1', 'nan', 'inf', '0x10', '1e400', '25e-1'];
const calls = [];
const answers = [];
const call = (name, module, numbers = [], text = null) => {
    calls.push([name, module, ...numbers].join(' ') + (text === null ? '' : `|${text.replaceAll('\n', '\v')}`));
    const values = text === null ? numbers : [...numbers, program.put(text)];
    const isVoid = /Change|Slide|Type|Pull|Play/.test(name);
    if (isVoid) program.functions[name](module, ...values);
    answers.push(isVoid ? '' : name === 'simulationNumbers' ? program.askNumbers(name, module, ...values) : program.ask(name, module, ...values).replaceAll('\n', ' '));
    return answers.at(-1);
};
const lookAt = (module) => {
    for (const what of ['About', 'Controls', 'Readings', 'Table', 'Laws', 'Words', 'Moment']) call(`simulation${what}`, module);
    for (let what = 0; what < MODULES[module].wholes; ++what) call('simulationNumbers', module, [what, random(7) - 1]);
};
let verdicts = 0;
for (const [number, { kind }] of Object.entries(MODULES)) {
    const module = Number(number);
    const files = readdirSync(join(folder, kind, 'exercises')).map((name) => readFileSync(join(folder, kind, 'exercises', name), 'utf8'));
    ok(files.length >= 3);
    for (const exercise of ['', ...files, ...files.map((text) => text.replace('reponse', 'reponses')), 'rien\n']) {
        const why = call('simulationOpen', module, [], exercise);
        strictEqual(why !== '', exercise === 'rien\n' || exercise.includes('reponses'));
        call('simulationTask', module);
        lookAt(module);
        for (let i = 0; i < (exercise ? 12 : 120); ++i) {
            const controls = program.askRecords('simulationControls', module);
            const which = random(controls.length);
            const kindOf = Number(controls[which][0]);
            if (kindOf === NUMBER && random(2)) call('simulationSlide', module, [which, random(400)]);
            else if (kindOf === NUMBER && random(2)) call('simulationType', module, [which], TYPED[random(TYPED.length)]);
            else if (kindOf !== HEADING) call('simulationChange', module, [which, kindOf === NUMBER ? random(6000) / 100 - 1 : random(8) - 1]);
            if (random(4) === 0) call('simulationPull', module, [random(3), random(2000) / 10 - 60, random(900) / 10]);
            if (random(3) === 0) call('simulationPlay', module, [random(6), random(50) / 10, 1 + random(3)]);
            lookAt(module);
        }
        const answer = /^reponse *= *(.*)$/m.exec(exercise)?.[1];
        for (const typed of ['', 'beaucoup', '0,123', ...(answer ? [`${answer} m`, answer] : [])]) {
            verdicts += call('simulationJudge', module, [], typed).startsWith('2') ? 1 : 0;
            call('simulationReadings', module);
        }
    }
}
ok(verdicts >= 10, `${verdicts} right answers`);

// ---- Numbers as they are written: with the decimals that come first here, for who asks for those

for (const [value, decimals] of [[0, 2], [-0.004, 2], [0.125, 2], [0.5, 0], [2.5, 0], [-1234.5, 1], [12345.678, 2], [1234567, 0], [-98765.4321, 3], [9999.995, 2], [1e-7, 3], [1e17, 0],
    ...Array.from({ length: 800 }, () => [(random(2000001) - 1000000) / 10 ** random(7), random(5)])]) {
    for (const name of ['frenchNumber', 'frenchDigits']) {
        calls.push(`${name} ${decimals} ${value}`);
        answers.push(program[name](value, decimals));
    }
}

// ---- Both answers: texts to the letter, numbers beyond what anything shows

const lines = execFileSync(native, { input: `${calls.join('\n')}\n`, encoding: 'utf8', maxBuffer: 1 << 28, env: { ...process.env, LC_ALL: 'C.UTF-8' } }).split('\n').slice(0, -1);
strictEqual(lines.length, calls.length);
ok(calls.length > 3000);
lines.forEach((line, i) => {
    if (typeof answers[i] === 'string') return strictEqual(answers[i], line, calls[i]);
    const expected = line.trim() === '' ? [] : line.trim().split(' ').map(Number);
    strictEqual(answers[i].length, expected.length, calls[i]);
    // The libraries of mathematics differ in the last digit, and steps are chosen after it.
    expected.forEach((value, at) => ok(Math.abs(answers[i][at] - value) <= 1e-7 * Math.max(1, Math.abs(value)), `${calls[i]}: number ${at} is ${answers[i][at]} for ${value}`));
});

// ---- What is no number, or no control or module, changes nothing

for (const module of [2, 10, 23, 7, -1]) {
    const before = program.ask('simulationControls', module);
    for (const control of [-1, 99, 1]) {
        program.functions.simulationChange(module, control, NaN);
        if (control !== 1) program.functions.simulationSlide(module, control, 3);
    }
    program.functions.simulationPull(module, 0, Infinity, NaN);
    program.functions.simulationPlay(module, 4, NaN, NaN);
    program.functions.simulationPlay(module, 77, 1, 1);
    strictEqual(program.ask('simulationControls', module), before);
}

// ---- Formulas as they are said

for (const [source, spoken] of [['y_S = h + \\frac{v_{0y}^2}{2 g}', 'y indice S égale h plus v indice 0y au carré sur 2 g'],
    ['1/\\overline{\\text{OA′}}', '1 sur OA prime algébrique'], ['\\vec{f} = −k \\vec{v}', 'vecteur f égale moins k vecteur v'],
    ['\\sqrt{x}', 'racine de x'], ['\\inconnu{', '\\inconnu{']])
    strictEqual(program.ask('formulaInWords', program.put(source)), spoken);
