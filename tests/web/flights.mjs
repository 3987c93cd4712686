// The projectile flies in browsers as in its window, and its numbers are written alike.
//   node flights.mjs PROGRAM.WASM WEB_FLIGHTS
import { execFileSync } from 'node:child_process';
import { readFileSync } from 'node:fs';
import { ok, strictEqual } from 'node:assert';

const [, , wasm, native] = process.argv;
const script = (name) => readFileSync(new URL(`../../src/publish/site/${name}`, import.meta.url), 'utf8');
const { Program, Projectile, frenchNumber, frenchDigits, numberFrom } =
    new Function(`${['program.js', 'numbers.js', 'projectile.js'].map(script).join('\n')}; return { Program, Projectile, frenchNumber, frenchDigits, numberFrom };`)();
const projectile = new Projectile(await Program.load(readFileSync(wasm)));
const answers = (lines) => execFileSync(native, { input: `${lines.join('\n')}\n`, encoding: 'utf8', maxBuffer: 1 << 26, env: { ...process.env, LC_ALL: 'C.UTF-8' } }).split('\n').slice(0, -1);

/** Always the same numbers, so that what fails once fails again. */
let state = 20261;
const random = (below) => {
    state = (Math.imul(state, 1103515245) + 12345) >>> 0;
    return Math.floor(state / 65536) % below;
};

// ---- Flights all over the sliders, with each kind of drag

const [speed, angle, height, gravity, mass, diameter, coefficient] = [601, 136, 101, 29, 999, 49, 40];
const launches = [[20, 45, 0, 9.81, 0.6, 0.24, 0.1, 0], [0, 45, 0, 9.81, 0.6, 0.24, 0.1, 2], [20, 90, 0, 9.81, 0.6, 0.24, 0.1, 1], [5, -30, 0, 9.81, 0.6, 0.24, 0, 1]];
while (launches.length < 600)
    launches.push([random(speed) / 10, random(angle) - 45, random(height), 0.5 + random(gravity), 0.01 + random(mass) / 100, 0.01 + random(diameter) / 100, random(coefficient) / 200, random(3)]);
const PARTS = 12;
let slowed = 0;
answers(launches.map((launch) => launch.join(' '))).forEach((line, i) => {
    launches[i].slice(0, 7).forEach((value, which) => projectile.tell('Set', which, value));
    projectile.tell('Drag', launches[i][7]);
    const { duration, range, apex, arrival, height: start, moments } = projectile.flight(-1, PARTS);
    const shown = [duration, range, apex.x, apex.y, arrival, start, ...moments.flatMap(Object.values)];
    const expected = line.trim().split(' ').map(Number);
    strictEqual(shown.length, expected.length);
    // The libraries of mathematics differ in the last digit, and steps are chosen after it: the
    // numbers agree beyond what anything shows.
    expected.forEach((value, at) => ok(Math.abs(shown[at] - value) <= 1e-7 * Math.max(1, Math.abs(value)), `${launches[i]}: number ${at} is ${shown[at]} for ${value}`));
    if (launches[i][7] > 0 && arrival < launches[i][0]) ++slowed;
});
ok(slowed > 100, 'too few flights were slowed');

// ---- Numbers

const numbers = [[0, 2], [-0.004, 2], [0.125, 2], [0.5, 0], [2.5, 0], [-1234.5, 1], [12345.678, 2], [1234567, 0], [-98765.4321, 3], [9999.995, 2], [1e-7, 3], [0.0583, 2], [1250, 2], [100, 2], [0.1, 1], [1e21 / 1e4, 0]];
while (numbers.length < 800) numbers.push([(random(2000001) - 1000000) / 10 ** random(7), random(5)]);
answers(numbers.map(([value, decimals]) => `= ${value} ${decimals}`)).forEach((line, i) => {
    const [value, decimals] = numbers[i];
    strictEqual(`${frenchNumber(value, decimals)}|${frenchDigits(value, decimals + 1)}`, line, `${value} with ${decimals}`);
});
for (const [typed, value] of [['2,5', 2.5], ['2.5', 2.5], [' 1 250 ', 1250], ['\u22123', -3], ['-3', -3], ['1,5e3', 1500], [',5', 0.5], ['', NaN], ['deux', NaN], ['2,5,1', NaN], ['1.2,3', NaN], ['Infinity', NaN], ['0x10', NaN]])
    strictEqual(numberFrom(typed), value, typed);

// ---- What is no number, or not within the sliders, changes nothing or stops at their ends

projectile.tell('Set', 0, NaN);
projectile.tell('Set', 1, 1e300);
projectile.tell('Set', 99, 1);
projectile.tell('Seek', NaN);
ok(Number.isFinite(projectile.now().t) && projectile.launch().numbers.every(({ value, position, last }) => Number.isFinite(value) && position >= 0 && position <= last));
strictEqual(projectile.launch().numbers[1].value, 90);
for (let i = 0; i < 9; ++i) {
    projectile.tell('Slide', 0, i);
    projectile.tell('Keep');
}
strictEqual(projectile.keptCount, 5);
strictEqual(projectile.flight(4, 1).height, projectile.flight(-1, 1).height);
