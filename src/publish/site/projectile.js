// @ts-check
'use strict';

/** @typedef {{t: number, x: number, y: number, vx: number, vy: number, kinetic: number, potential: number}} Moment s, m, m/s, J */
/** @typedef {{name: string, symbol: string, unit: string, decimals: number}} Quantity */

/** The number of the flight that the controls describe; those kept are counted from 0. */
const THIS_FLIGHT = -1;

/** Of a launch's numbers, in the order in which the program tells them. */
const LAUNCH = { speed: 0, angle: 1, height: 2, gravity: 3, mass: 4, diameter: 5, coefficient: 6 };

/** Lines of the paths kept: distinct in colour, in lightness and in their dashes. */
const STROKES = [['#1c7540', '8 4'], ['#a65a00', '8 4 2 4'], ['#00737d', '2 4'], ['#5b4a2f', '8 4 2 4 2 4'], ['#a0326a', '8 4']];

/**
 * The moments that numbers tell, seven each.
 * @param {number[]} numbers
 * @returns {Moment[]}
 */
function momentsOf(numbers) {
    return Array.from({ length: Math.floor(numbers.length / 7) }, (_, i) => {
        const [t, x, y, vx, vy, kinetic, potential] = numbers.slice(7 * i);
        return { t, x, y, vx, vy, kinetic, potential };
    });
}

/** The projectile of module 23: its physics is the module's own (modules/projectile/browser.cpp). */
class Projectile {
    /** @param {Program} program */
    constructor(program) {
        this.program = program;
        /** @type {Quantity[]} */
        this.quantities = program.askRecords('projectileQuantities').map(([name, symbol, unit, decimals]) => ({ name, symbol, unit, decimals: Number(decimals) }));
        this.worlds = program.askRecords('projectileWorlds').map(([name]) => name);
    }

    /**
     * Changes something.
     * @param {'Set' | 'Slide' | 'Aim' | 'World' | 'Drag' | 'Toggle' | 'Pause' | 'Reset' | 'Step' | 'Seek' | 'Advance' | 'Keep' | 'Forget'} what
     * @param {...number} values
     */
    tell(what, ...values) {
        this.program.functions[`projectile${what}`](...values);
    }

    /** Values, positions of the sliders and where these end; kind of drag; world, -1 for none. */
    launch() {
        const all = this.program.askNumbers('projectileLaunch');
        const numbers = this.quantities.map((_, i) => ({ value: all[3 * i], position: all[3 * i + 1], last: all[3 * i + 2] }));
        const [drag, world] = all.slice(3 * numbers.length);
        return { numbers, drag, world };
    }

    /**
     * @param {number} which
     * @param {number} parts of its time
     */
    flight(which, parts) {
        const [duration, range, apexX, apexY, arrival, height, ...rest] = this.program.askNumbers('projectileFlight', which, parts);
        return { duration, range, apex: { x: apexX, y: apexY }, arrival, height, moments: momentsOf(rest) };
    }

    strobe() {
        const [interval, energyDecimals, ...rest] = this.program.askNumbers('projectileStrobe');
        return { interval, energyDecimals, moments: momentsOf(rest) };
    }

    now() {
        const all = this.program.askNumbers('projectileNow');
        const [ax, ay, runs, canKeep] = all.slice(7);
        return { ...momentsOf(all)[0], ax, ay, isRunning: runs === 1, canKeep: canKeep === 1 };
    }

    get keptCount() {
        return this.program.functions.projectileKept();
    }

    /**
     * What tells a flight from others, in words.
     * @param {number} which
     * @returns {(Node | string)[]}
     */
    description(which) {
        const values = this.program.askNumbers('projectileDistinctionValues', which);
        return this.program.askRecords('projectileDistinctions', which).flatMap(([symbol, unit, words], i) => [
            i > 0 ? ', ' : '',
            ...(symbol ? [symbolInWords(symbol), `${BLANK}=${BLANK}${withUnit(frenchDigits(values[i], 3), unit)}`] : [words])]);
    }
}
