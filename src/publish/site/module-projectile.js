// @ts-check
'use strict';

/** @typedef {{t: number, x: number, y: number, vx: number, vy: number, kinetic: number, potential: number}} Moment s, m, m/s, J */

/** What the module tells in numbers (modules/projectile/web.cpp). */
const FLIGHT = { path: 0, strobe: 1, now: 2, landmarks: 3 };

/** The flight that the controls describe; those kept are counted from 0. */
const THIS_FLIGHT = -1;

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

/** The flights of module 23. */
class Flights {
    /** @param {Simulation} simulation */
    constructor(simulation) {
        this.simulation = simulation;
    }

    /** @param {number} [which] */
    path(which = THIS_FLIGHT) {
        const [duration, range, apexX, apexY, height, ...rest] = this.simulation.numbers(FLIGHT.path, which);
        return { duration, range, apex: { x: apexX, y: apexY }, height, moments: momentsOf(rest) };
    }

    strobe() {
        const [interval, ...rest] = this.simulation.numbers(FLIGHT.strobe);
        return { interval, moments: momentsOf(rest) };
    }

    now() {
        const all = this.simulation.numbers(FLIGHT.now);
        const [ax, ay, kept] = all.slice(7);
        return { ...momentsOf(all)[0], ax, ay, kept, isRunning: this.simulation.time().isRunning };
    }

    /** What tells the flight from those kept, and these: formulas. */
    descriptions() {
        return this.simulation.words().slice(0, this.now().kept + 1);
    }

    /** Marks in the drawing. */
    landmarks() {
        const names = this.simulation.words().slice(this.now().kept + 1);
        const places = this.simulation.numbers(FLIGHT.landmarks);
        return names.map((name, i) => ({ name, x: places[2 * i], y: places[2 * i + 1] }));
    }
}

/** @type {ModulePage} */
const PROJECTILE_PAGE = {
    ended: (simulation) => {
        const { t, x } = new Flights(simulation).now();
        return `Le projectile touche le sol à ${simulation.program.frenchNumber(t, 2)}${BLANK}s, à ${simulation.program.frenchNumber(x, 2)}${BLANK}m du départ.`;
    },
    build: (page) => {
        const { simulation } = page;
        const flights = new Flights(simulation);
        const trajectory = new TrajectoryPlot(page, flights);
        const energies = new EnergyPlot(page, flights);
        const table = new SimulationTable(simulation, 'Tableau de valeurs', { cell: (text, row, column) => column > 0 ? text
            : element('button', { type: 'button', class: 'lien', title: `Aller à t${BLANK}=${BLANK}${text}${BLANK}s`, click: () => {
                simulation.play('Pause');
                simulation.play('Seek', flights.strobe().moments[row].t);
                page.showMoment();
            } }, text) });
        table.drawMoment = () => {
            const { t } = flights.now();
            const at = Math.max(0, flights.strobe().moments.filter((one) => one.t <= t).length - 1);
            [...table.body.children].forEach((row, i) => row.classList.toggle('courante', i === at));
        };
        const choices = page.choices(trajectory.shown, ['speed', 'components', 'acceleration', 'points']);
        return {
            views: [[trajectory, trajectory.legend, trajectory.scales, choices], [energies, energies.legend], [table], [new LawPage(simulation)]],
            below: [new Readings(simulation)],
        };
    },
};
