// @ts-check
'use strict';

/** Vectors are drawn in the same scales whatever the flight, so that they can be compared; pixels. */
const PER_SPEED = 4;
const PER_ACCELERATION = 5;

/** Parts of a path's time; enough for a smooth line. */
const PATH_PARTS = 240;

/** Of the drawing's extent, left free around what happens. */
const AIR = 0.1;
const GROUND = 0.05;

/**
 * The throw seen from the side: ground, paths, projectile, vectors. At its start the throw is aimed
 * by pulling the head of the velocity.
 */
class TrajectoryPlot extends Plot {
    /**
     * @param {Projectile} projectile
     * @param {() => void} aimed to be called when the launch has changed
     */
    constructor(projectile, aimed) {
        super('Trajectoire du projectile');
        this.projectile = projectile;
        this.aimed = aimed;
        this.shown = { speed: true, components: false, acceleration: false, points: true };
        this.axes = new Axes({ left: 0, top: 0, right: 1, bottom: 1 }, { from: 0, to: 1 }, { from: 0, to: 1 });
        this.isAiming = false;
        this.handle = drawn('circle', { r: 20, class: 'poignee' });
        this.svg.append(this.handle);
        this.handle.addEventListener('pointerdown', (/** @type {PointerEvent} */ event) => this.grip(event));
        this.handle.addEventListener('pointermove', (/** @type {PointerEvent} */ event) => this.aim(event));
        for (const end of ['pointerup', 'pointercancel']) this.handle.addEventListener(end, () => this.letGo());
    }

    draw() {
        if (!this.width) return;
        const flight = this.projectile.flight(THIS_FLIGHT, PATH_PARTS);
        const kept = Array.from({ length: this.projectile.keptCount }, (_, i) => this.projectile.flight(i, PATH_PARTS));
        this.strobe = this.projectile.strobe();
        this.svg.setAttribute('aria-label', `${this.name} : portée ${frenchNumber(flight.range, 2)} m, sommet ${frenchNumber(flight.apex.y, 2)} m, durée ${frenchNumber(flight.duration, 2)} s`);
        // A scale that changes under the pointer would be a nuisance.
        if (!this.isAiming) this.fit([flight, ...kept]);
        const { area } = this.axes;
        const clip = drawn('clipPath', { id: 'cadre-trajectoire' }, drawn('rect', { x: area.left, y: area.top - 12, width: area.right - area.left, height: area.bottom - area.top + 12 }));
        const paths = drawn('g', { 'clip-path': 'url(#cadre-trajectoire)', fill: 'none', 'stroke-width': 2, 'stroke-linecap': 'round', 'stroke-linejoin': 'round' }, this.ground(flight.height));
        const path = (/** @type {typeof flight} */ { moments }, /** @type {string} */ stroke, /** @type {string} */ dashes) =>
            drawn('path', { d: this.axes.path(moments.map(({ x, y }) => [x, y])), stroke, 'stroke-dasharray': dashes });
        kept.forEach((one, i) => paths.append(path(one, STROKES[i][0], STROKES[i][1])));
        paths.append(path(flight, INKS.blue, 'none'));
        this.fixed.replaceChildren(clip, this.axes.draw(this.projectile.program, ['x', 'm'], ['y', 'm']), paths);
    }

    /** @param {{range: number, apex: {y: number}}[]} flights */
    fit(flights) {
        const right = Math.max(1, ...flights.map(({ range }) => range));
        const top = Math.max(1, ...flights.map(({ apex }) => apex.y));
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
        const now = this.projectile.now();
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
        const start = this.projectile.now();
        const dx = event.clientX - frame.left - this.axes.x(start.x);
        const dy = this.axes.y(start.y) - (event.clientY - frame.top);
        // As fine as the sliders: whole degrees, half metres a second.
        this.projectile.tell('Aim', Math.round(Math.hypot(dx, dy) / PER_SPEED * 2) / 2, Math.round(Math.atan2(dy, dx) * 180 / Math.PI));
        this.aimed();
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
    /** @param {Projectile} projectile */
    constructor(projectile) {
        super('Énergies au cours du temps');
        this.projectile = projectile;
        this.axes = new Axes({ left: 0, top: 0, right: 1, bottom: 1 }, { from: 0, to: 1 }, { from: 0, to: 1 });
        this.values = ENERGIES.map(() => element('b', {}));
        this.legend = element('ul', { class: 'legende' }, ...ENERGIES.map(({ ink, dashes, symbol, words }, i) =>
            element('li', {}, sampleLine(ink, dashes), element('span', {}, symbolInWords(symbol), ` ${words}${BLANK}: `, this.values[i]))));
    }

    draw() {
        if (!this.width) return;
        const { duration, moments } = this.projectile.flight(THIS_FLIGHT, PATH_PARTS);
        const most = Math.max(1e-3, ENERGIES[2].of(moments[0]));
        this.axes = new Axes({ left: AXIS_ROOM.left, top: 30, right: this.width - AXIS_ROOM.right, bottom: this.height - AXIS_ROOM.below },
            { from: 0, to: Math.max(0.1, duration) }, { from: 0, to: most * 1.08 });
        this.fixed.replaceChildren(this.axes.draw(this.projectile.program, ['t', 's'], ['E', 'J']),
            ...ENERGIES.map(({ ink, dashes, of }) => drawn('path', { d: this.axes.path(moments.map((one) => [one.t, of(one)])), fill: 'none', stroke: ink, 'stroke-width': 2, 'stroke-dasharray': dashes })));
    }

    drawMoment() {
        const now = this.projectile.now();
        ENERGIES.forEach(({ of }, i) => { this.values[i].textContent = `${frenchDigits(of(now), 4)}${BLANK}J`; });
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
