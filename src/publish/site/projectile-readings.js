// @ts-check
'use strict';

/** Numbers of the moment and of the whole flight. */
class Readings {
    /** @param {Projectile} projectile */
    constructor(projectile) {
        this.projectile = projectile;
        const value = () => element('b', {});
        this.values = { x: value(), y: value(), vx: value(), vy: value(), v: value(), range: value(), apex: value(), duration: value(), arrival: value() };
        const item = (/** @type {Node | string} */ name, /** @type {Node} */ shown) => element('span', { class: 'lecture' }, name, `${BLANK}=${BLANK}`, shown);
        const { values } = this;
        this.element = element('div', { class: 'lectures' },
            element('p', {}, element('span', { class: 'nom' }, 'À l’instant'), item(symbolInWords('x'), values.x), item(symbolInWords('y'), values.y), item(symbolInWords('v_x'), values.vx), item(symbolInWords('v_y'), values.vy), item(symbolInWords('v'), values.v)),
            element('p', {}, element('span', { class: 'nom' }, 'Vol entier'), item('portée', values.range), item('sommet', values.apex), item('durée', values.duration), item('arrivée', values.arrival)));
    }

    /** @param {Partial<Record<'x' | 'y' | 'vx' | 'vy' | 'v' | 'range' | 'apex' | 'duration' | 'arrival', [number, string]>>} shown */
    write(shown) {
        for (const [name, [value, unit]] of Object.entries(shown)) this.values[/** @type {'x'} */ (name)].textContent = withUnit(frenchNumber(value, 2), unit);
    }

    show() {
        const { range, apex, duration, arrival } = this.projectile.flight(THIS_FLIGHT, 1);
        this.write({ range: [range, 'm'], apex: [apex.y, 'm'], duration: [duration, 's'], arrival: [arrival, 'm/s'] });
    }

    showMoment() {
        const { x, y, vx, vy } = this.projectile.now();
        this.write({ x: [x, 'm'], y: [y, 'm'], vx: [vx, 'm/s'], vy: [vy, 'm/s'], v: [Math.hypot(vx, vy), 'm/s'] });
    }
}

/** @type {[string, string][]} */
const COLUMNS = [['t', 's'], ['x', 'm'], ['y', 'm'], ['v_x', 'm/s'], ['v_y', 'm/s'], ['v', 'm/s'], ['E_c', 'J'], ['E_p', 'J'], ['E_m', 'J']];

/** The points of the stroboscope and the landing, a row each; its time leads to each. */
class ValueTable {
    /**
     * @param {Projectile} projectile
     * @param {() => void} moved
     */
    constructor(projectile, moved) {
        this.projectile = projectile;
        this.moved = moved;
        /** @type {number[]} */
        this.times = [];
        this.body = element('tbody', {});
        const head = element('tr', {}, ...COLUMNS.map(([symbol, unit]) => element('th', { scope: 'col' }, symbolInWords(symbol), ` (${unit})`)));
        this.element = element('div', { class: 'tableau', tabindex: '0', role: 'region', 'aria-label': 'Tableau de valeurs' }, element('table', {}, element('thead', {}, head), this.body));
    }

    draw() {
        const { moments, energyDecimals } = this.projectile.strobe();
        this.times = moments.map(({ t }) => t);
        this.body.replaceChildren(...moments.map((one) => {
            const { t, x, y, vx, vy, kinetic, potential } = one;
            const cells = [...[x, y, vx, vy, Math.hypot(vx, vy)].map((value) => frenchNumber(value, 2)), ...[kinetic, potential, kinetic + potential].map((value) => frenchNumber(value, energyDecimals))];
            const time = frenchNumber(t, 2);
            const go = element('button', { type: 'button', class: 'lien', title: `Aller à t = ${time} s`, click: () => { this.projectile.tell('Pause'); this.projectile.tell('Seek', t); this.moved(); } }, time);
            return element('tr', {}, element('td', {}, go), ...cells.map((text) => element('td', {}, text)));
        }));
    }

    drawMoment() {
        const { t } = this.projectile.now();
        const at = Math.max(0, this.times.filter((time) => time <= t).length - 1);
        [...this.body.children].forEach((row, i) => row.classList.toggle('courante', i === at));
    }
}
