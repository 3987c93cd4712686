// @ts-check
'use strict';

/** Vectors are drawn in the same scales whatever the flight, so that they can be compared; pixels. */
const PER_SPEED = 4;
const PER_ACCELERATION = 5;

/** Lines of the paths kept: distinct in colour, in lightness and in their dashes. */
const STROKES = [['#1c7540', '8 4'], ['#a65a00', '8 4 2 4'], ['#00737d', '2 4'], ['#5b4a2f', '8 4 2 4 2 4'], ['#a0326a', '8 4']];

/** Of the drawing's extent, left free around what happens. */
const AIR = 0.1;
const GROUND = 0.05;

/**
 * The throw seen from the side: ground, paths, projectile, vectors. At its start the throw is aimed
 * by pulling the head of the velocity.
 */
class TrajectoryPlot extends Plot {
    /**
     * @param {SimulationView} page
     * @param {Flights} flights
     */
    constructor(page, flights) {
        super('Trajectoire du projectile');
        this.page = page;
        this.flights = flights;
        this.shown = { speed: false, components: false, acceleration: false, points: false }; // until its boxes say so
        this.axes = new Axes({ left: 0, top: 0, right: 1, bottom: 1 }, { from: 0, to: 1 }, { from: 0, to: 1 });
        this.isAiming = false;
        this.handle = drawn('circle', { r: 20, class: 'poignee' });
        this.svg.append(this.handle);
        this.handle.addEventListener('pointerdown', (/** @type {PointerEvent} */ event) => this.grip(event));
        this.handle.addEventListener('pointermove', (/** @type {PointerEvent} */ event) => this.aim(event));
        for (const end of ['pointerup', 'pointercancel']) this.handle.addEventListener(end, () => this.letGo());
        /** @type {SimulationPart} */
        this.legend = { element: element('ul', { class: 'legende' }), draw: () => this.showLegend(), drawMoment: () => {} };
        /** @type {SimulationPart} */
        this.scales = { element: element('ul', { class: 'legende echelles' }), draw: () => this.showScales(), drawMoment: () => {} };
    }

    draw() {
        if (!this.width) return;
        const flight = this.flights.path();
        const kept = Array.from({ length: this.flights.now().kept }, (_, i) => this.flights.path(i));
        const landmarks = this.flights.landmarks();
        this.strobe = this.flights.strobe();
        // What is read of it is told beside it, and may be what is looked for.
        this.svg.setAttribute('aria-label', this.name);
        // A scale that changes under the pointer would be a nuisance.
        if (!this.isAiming) this.fit([flight, ...kept], landmarks);
        const { area } = this.axes;
        const clip = drawn('clipPath', { id: 'cadre-trajectoire' }, drawn('rect', { x: area.left, y: area.top - 12, width: area.right - area.left, height: area.bottom - area.top + 12 }));
        const paths = drawn('g', { 'clip-path': 'url(#cadre-trajectoire)', fill: 'none', 'stroke-width': 2, 'stroke-linecap': 'round', 'stroke-linejoin': 'round' }, this.ground(flight.height));
        const path = (/** @type {typeof flight} */ { moments }, /** @type {string} */ stroke, /** @type {string} */ dashes) =>
            drawn('path', { d: this.axes.path(moments.map(({ x, y }) => [x, y])), stroke, 'stroke-dasharray': dashes });
        kept.forEach((one, i) => paths.append(path(one, STROKES[i][0], STROKES[i][1])));
        paths.append(path(flight, INKS.blue, 'none'));
        this.fixed.replaceChildren(clip, this.axes.draw(this.page.program, ['x', 'm'], ['y', 'm']), paths, ...landmarks.map((mark) => this.landmark(mark)));
    }

    /**
     * A ring with its name.
     * @param {{name: string, x: number, y: number}} mark
     */
    landmark({ name, x, y }) {
        const [cx, cy] = [this.axes.x(x), this.axes.y(y)];
        return drawn('g', { stroke: '#a65a00', 'stroke-width': 2, fill: INKS.paper }, drawn('ellipse', { cx, cy, rx: 9, ry: 4 }), drawn('path', { d: `M${cx - 3} ${cy}h6M${cx} ${cy - 3}v6` }),
            drawn('text', { x: cx + 14, y: cy + 4, fill: '#8a4b00', stroke: 'none' }, name));
    }

    showLegend() {
        const descriptions = this.flights.descriptions();
        const ink = (/** @type {number} */ i) => i === 0 ? [INKS.blue, 'none'] : STROKES[i - 1];
        this.legend.element.hidden = descriptions.length < 2;
        this.legend.element.replaceChildren(...descriptions.map((words, i) => element('li', {}, sampleLine(ink(i)[0], ink(i)[1]), formula(this.page.program, words))));
    }

    showScales() {
        const { speed, components, acceleration, points } = this.shown;
        const length = (/** @type {number} */ pixels, /** @type {string} */ ink, /** @type {string} */ words) =>
            element('li', {}, drawn('svg', { width: pixels, height: 12, 'aria-hidden': 'true' }, arrow([0, 6], [pixels, 6], ink, '')), words);
        const dot = drawn('svg', { width: 10, height: 12, 'aria-hidden': 'true' }, drawn('circle', { cx: 5, cy: 6, r: 3.5, stroke: INKS.blue, 'stroke-width': 1.3, fill: '#bcd0e8' }));
        this.scales.element.replaceChildren(...[
            (speed || components) && length(10 * PER_SPEED, INKS.red, `10${BLANK}m/s`),
            acceleration && length(10 * PER_ACCELERATION, INKS.violet, `10${BLANK}m/s²`),
            points && element('li', {}, dot, `un point toutes les ${this.page.program.frenchDigits(this.flights.strobe().interval, 2)}${BLANK}s`)].filter(Boolean));
    }

    /**
     * @param {{range: number, apex: {y: number}}[]} flights
     * @param {{x: number, y: number}[]} landmarks
     */
    fit(flights, landmarks) {
        const right = Math.max(1, ...flights.map(({ range }) => range), ...landmarks.map(({ x }) => x));
        const top = Math.max(1, ...flights.map(({ apex }) => apex.y), ...landmarks.map(({ y }) => y));
        const extent = Math.max(right, top);
        this.axes = Axes.withEqualScales({ left: AXIS_ROOM.left, top: 30, right: this.width - AXIS_ROOM.right, bottom: this.height - AXIS_ROOM.below },
            { from: -GROUND * extent, to: right + AIR * extent }, { from: -GROUND * extent, to: top * (1 + AIR) });
    }

    /** @param {number} height of the cliff from which one throws, m */
    ground(height) {
        const { area } = this.axes;
        const level = Math.round(this.axes.y(0)) + 0.5;
        const edge = this.axes.x(0);
        const top = height > 0 ? Math.round(this.axes.y(height)) + 0.5 : level;
        const outline = `M${area.right} ${level}H${edge}V${top}H${area.left}`;
        return drawn('g', {}, drawn('path', { d: `${outline}V${area.bottom}H${area.right}Z`, fill: INKS.ground }), drawn('path', { d: outline, stroke: INKS.edge, 'stroke-width': 1.5 }));
    }

    drawMoment() {
        if (!this.width) return;
        const now = this.flights.now();
        const at = /** @type {[number, number]} */ ([this.axes.x(now.x), this.axes.y(now.y)]);
        const head = /** @type {[number, number]} */ ([at[0] + now.vx * PER_SPEED, at[1] - now.vy * PER_SPEED]);
        const layer = [];
        if (this.shown.points)
            for (const { t, x, y } of this.strobe?.moments.slice(0, -1) ?? [])
                layer.push(drawn('circle', { cx: this.axes.x(x), cy: this.axes.y(y), r: 3.5, stroke: INKS.blue, 'stroke-width': 1.3, fill: t <= now.t ? '#bcd0e8' : INKS.paper }));
        if (this.shown.components)
            layer.push(drawn('path', { d: `M${head[0]} ${at[1]}V${head[1]}H${at[0]}`, fill: 'none', stroke: INKS.red, 'stroke-dasharray': '1 3' }),
                arrow(at, [head[0], at[1]], INKS.red, 'v_x', true), arrow(at, [at[0], head[1]], INKS.red, 'v_y', true));
        if (this.shown.acceleration)
            layer.push(arrow(at, [at[0] + now.ax * PER_ACCELERATION, at[1] - now.ay * PER_ACCELERATION], INKS.violet, 'a'));
        if (this.shown.speed) layer.push(arrow(at, head, INKS.red, now.t === 0 ? 'v_0' : 'v'));
        layer.push(drawn('circle', { cx: at[0], cy: at[1], r: 6, fill: INKS.blue, stroke: INKS.paper, 'stroke-width': 1.5 }));
        this.moving.replaceChildren(...layer);
        this.handle.setAttribute('cx', head[0]);
        this.handle.setAttribute('cy', head[1]);
        this.handle.style.display = this.isAiming || (this.shown.speed && now.t === 0 && !now.isRunning) ? '' : 'none';
    }

    /** @param {PointerEvent} event */
    grip(event) {
        if (event.button !== 0) return;
        this.isAiming = true;
        this.handle.setPointerCapture(event.pointerId);
        event.preventDefault();
    }

    /** @param {PointerEvent} event */
    aim(event) {
        if (!this.isAiming) return;
        const frame = this.svg.getBoundingClientRect();
        const start = this.flights.now();
        const dx = event.clientX - frame.left - this.axes.x(start.x);
        const dy = this.axes.y(start.y) - (event.clientY - frame.top);
        // As fine as the sliders: whole degrees, half metres a second.
        this.page.simulation.pull(0, Math.round(Math.hypot(dx, dy) / PER_SPEED * 2) / 2, Math.round(Math.atan2(dy, dx) * 180 / Math.PI));
        this.page.show();
    }

    letGo() {
        this.isAiming = false;
        this.draw();
        this.drawMoment();
    }
}

/** @type {{ink: string, dashes: string, symbol: string, words: string, of: (e: {kinetic: number, potential: number}) => number}[]} */
const ENERGIES = [
    { ink: INKS.red, dashes: 'none', symbol: 'E_c', words: 'cinétique', of: ({ kinetic }) => kinetic },
    { ink: INKS.green, dashes: '8 4', symbol: 'E_p', words: 'potentielle', of: ({ potential }) => potential },
    { ink: INKS.blue, dashes: '8 4 2 4', symbol: 'E_m', words: 'mécanique', of: ({ kinetic, potential }) => kinetic + potential },
];

/** Energies over time. */
class EnergyPlot extends Plot {
    /**
     * @param {SimulationView} page
     * @param {Flights} flights
     */
    constructor(page, flights) {
        super('Énergies au cours du temps');
        this.page = page;
        this.flights = flights;
        this.axes = new Axes({ left: 0, top: 0, right: 1, bottom: 1 }, { from: 0, to: 1 }, { from: 0, to: 1 });
        this.values = ENERGIES.map(() => element('b', {}));
        /** @type {SimulationPart} */
        this.legend = { element: element('ul', { class: 'legende' }, ...ENERGIES.map(({ ink, dashes, symbol, words }, i) =>
            element('li', {}, sampleLine(ink, dashes), element('span', {}, formula(page.program, symbol), ` ${words}${BLANK}: `, this.values[i])))), draw: () => {}, drawMoment: () => {} };
    }

    draw() {
        if (!this.width) return;
        const { duration, moments } = this.flights.path();
        const most = Math.max(1e-3, ENERGIES[2].of(moments[0]));
        this.axes = new Axes({ left: AXIS_ROOM.left, top: 30, right: this.width - AXIS_ROOM.right, bottom: this.height - AXIS_ROOM.below },
            { from: 0, to: Math.max(0.1, duration) }, { from: 0, to: most * 1.08 });
        this.fixed.replaceChildren(this.axes.draw(this.page.program, ['t', 's'], ['E', 'J']),
            ...ENERGIES.map(({ ink, dashes, of }) => drawn('path', { d: this.axes.path(moments.map((one) => [one.t, of(one)])), fill: 'none', stroke: ink, 'stroke-width': 2, 'stroke-dasharray': dashes })));
    }

    drawMoment() {
        const now = this.flights.now();
        ENERGIES.forEach(({ of }, i) => { this.values[i].textContent = `${this.page.program.frenchDigits(of(now), 4)}${BLANK}J`; });
        if (!this.width) return;
        const { area } = this.axes;
        const x = this.axes.x(now.t);
        this.moving.replaceChildren(drawn('line', { x1: x, x2: x, y1: area.top, y2: area.bottom, stroke: INKS.edge }),
            ...ENERGIES.map(({ ink, of }) => drawn('circle', { cx: x, cy: this.axes.y(of(now)), r: 5, fill: ink, stroke: INKS.paper, 'stroke-width': 1.5 })));
    }
}

/**
 * A piece of a curve, for its legend.
 * @param {string} ink
 * @param {string} dashes
 */
function sampleLine(ink, dashes) {
    return drawn('svg', { width: 30, height: 12, 'aria-hidden': 'true' }, drawn('path', { d: 'M0 6H30', stroke: ink, 'stroke-width': 2, 'stroke-dasharray': dashes }));
}
