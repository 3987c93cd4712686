// @ts-check
'use strict';

/** What the module tells in numbers, and what is pulled in its drawing (modules/lens/web.cpp). */
const BENCH = { bench: 0, rays: 1, beam: 2 };
const PULLED = { object: 0, tip: 1, screen: 2 };

/** The colours of the rays in the course's figures. */
const RAY_INKS = [INKS.red, INKS.green, '#b46400'];
const BEAM_INK = '#fff0a0';
const SHARP_INK = '#d8f0de';
const BOARD_INK = '#e2dcc8';

/**
 * Lengths in cm, places counted from the lens.
 * @param {Simulation} simulation
 */
function benchOf(simulation) {
    const [object, height, screen, focal, place, imageHeight, isUnknown, isAtInfinity, isReal, isSharp, objectMoves, screenMoves, before, behind, high, radius, shownHeight, spot] = simulation.numbers(BENCH.bench);
    return { object, height, screen, focal, image: isUnknown || isAtInfinity ? null : { place, height: imageHeight, isReal: isReal === 1 },
        isUnknown: isUnknown === 1, isSharp: isSharp === 1, objectMoves: objectMoves === 1, screenMoves: screenMoves === 1, before, behind, high, radius, shownHeight, spot };
}

/** The bench seen from the side. Object and screen are moved by pulling, the object's tip up and down too. */
class BenchPlot extends Plot {
    /** @param {SimulationView} page */
    constructor(page) {
        super('Banc d’optique, vu de côté');
        this.page = page;
        this.shown = { rays: false, extensions: false, image: false, beam: false }; // until its boxes say so
        this.axes = new Axes({ left: 0, top: 0, right: 1, bottom: 1 }, { from: 0, to: 1 }, { from: 0, to: 1 });
        /** @type {number | null} */
        this.pulled = null;
        this.handles = { object: this.handle(PULLED.object), tip: this.handle(PULLED.tip), screen: this.handle(PULLED.screen) };
        this.svg.append(this.handles.screen, this.handles.object, this.handles.tip);
    }

    /** @param {number} what */
    handle(what) {
        const place = drawn('rect', { class: 'poignee', rx: 6 });
        place.addEventListener('pointerdown', (/** @type {PointerEvent} */ event) => {
            if (event.button !== 0) return;
            this.pulled = what;
            place.setPointerCapture(event.pointerId);
            event.preventDefault();
        });
        place.addEventListener('pointermove', (/** @type {PointerEvent} */ event) => {
            if (this.pulled !== what) return;
            const frame = this.svg.getBoundingClientRect();
            this.page.simulation.pull(what, this.axes.valueX(event.clientX - frame.left), this.axes.valueY(event.clientY - frame.top));
            this.page.show();
        });
        for (const end of ['pointerup', 'pointercancel'])
            place.addEventListener(end, () => { this.pulled = null; this.page.show(); });
        return place;
    }

    draw() {
        if (!this.width) return;
        const { simulation, program } = this.page;
        const bench = benchOf(simulation);
        this.svg.setAttribute('aria-label', `${this.name}${BLANK}: ${simulation.words()[1]}`);
        // A scale that changes under the pointer would be a nuisance.
        if (this.pulled === null)
            this.axes = new Axes({ left: AXIS_ROOM.left, top: 30, right: this.width - AXIS_ROOM.right, bottom: this.height - AXIS_ROOM.below }, { from: -bench.before, to: bench.behind }, { from: -bench.high, to: bench.high });
        const { area } = this.axes;
        const clip = drawn('clipPath', { id: 'cadre-banc' }, drawn('rect', { x: area.left, y: area.top, width: area.right - area.left, height: area.bottom - area.top }));
        this.fixed.replaceChildren(clip, this.axes.draw(program, ['x', 'cm'], ['y', 'cm']),
            drawn('g', { 'clip-path': 'url(#cadre-banc)' }, ...this.beam(bench), this.axis(), ...this.lens(bench), ...this.screen(bench), ...this.rays(), ...this.arrows(bench)));
        this.place(bench);
    }

    /** @param {number} x @param {number} y @returns {[number, number]} */
    at(x, y) {
        return [this.axes.x(x), this.axes.y(y)];
    }

    axis() {
        const y = Math.round(this.axes.y(0)) + 0.5;
        const { left, right } = this.axes.area;
        return drawn('g', {}, drawn('line', { x1: left, x2: right, y1: y, y2: y, stroke: INKS.muted, 'stroke-width': 1.3, 'stroke-dasharray': '13 4 3 4' }), head([left, y], [right, y], 9, INKS.muted));
    }

    /** @param {ReturnType<typeof benchOf>} bench */
    lens(bench) {
        const x = Math.round(this.axes.x(0)) + 0.5;
        const [top, foot] = [this.axes.area.top + 6, this.axes.area.bottom - 6];
        const converges = bench.focal > 0 || bench.isUnknown;
        // The heads look outwards for a converging lens, inwards for a diverging one.
        const heads = [[top, -1], [foot, 1]].map(([end, outward]) => converges ? head([x, end - outward * 30], [x, end], 12, INKS.blue) : head([x, end + outward * 30], [x, end - outward * 12], 12, INKS.blue));
        const points = [this.point(0, 'O', 6, -8), ...(bench.isUnknown ? [] : [this.point(-bench.focal, 'F', -18, 17), this.point(bench.focal, 'F′', -18, 17)])];
        return [drawn('line', { x1: x, x2: x, y1: top + 2, y2: foot - 2, stroke: INKS.blue, 'stroke-width': 2.5 }), ...heads, ...points];
    }

    /**
     * @param {number} place on the axis
     * @param {string} name
     * @param {number} dx of the name, pixels
     * @param {number} dy
     */
    point(place, name, dx, dy) {
        const [x, y] = this.at(place, 0);
        return drawn('g', { fill: INKS.ink }, drawn('circle', { cx: x, cy: y, r: 3 }), drawn('text', { x: x + dx, y: y + dy, 'font-weight': 'bold' }, name));
    }

    /** @param {ReturnType<typeof benchOf>} bench */
    screen({ screen, isSharp }) {
        const { area } = this.axes;
        const x = Math.round(this.axes.x(screen)) + 0.5;
        return [drawn('rect', { x, y: area.top + 20.5, width: 5, height: area.bottom - area.top - 41, stroke: INKS.muted, fill: isSharp ? SHARP_INK : BOARD_INK }),
            drawn('text', { x: Math.min(x + 2, area.right - 22), y: area.top + 14, 'text-anchor': 'middle', 'font-size': 12, fill: INKS.muted }, 'écran')];
    }

    /** What goes through the whole lens from B: it meets where the image is. @param {ReturnType<typeof benchOf>} bench */
    beam({ object, height, behind, radius }) {
        const [upper, lower] = this.page.simulation.numbers(BENCH.beam);
        if (!this.shown.beam || upper === undefined) return [];
        const corners = (/** @type {[number, number][]} */ ...all) => drawn('polygon', { points: all.map(([x, y]) => this.at(x, y).join(',')).join(' '), fill: BEAM_INK });
        // Where both cross the two halves turn over.
        const cross = radius > 0 && upper < lower ? behind * 2 * radius / (2 * radius - upper + lower) : behind;
        const mid = radius + (upper - radius) * cross / behind;
        const halves = cross < behind ? [corners([0, radius], [cross, mid], [0, -radius]), corners([cross, mid], [behind, upper], [behind, lower])] : [corners([0, radius], [behind, upper], [behind, lower], [0, -radius])];
        return [corners([object, height], [0, radius], [0, -radius]), ...halves];
    }

    rays() {
        if (!this.shown.rays) return [];
        const numbers = this.page.simulation.numbers(BENCH.rays);
        const lines = [];
        for (let i = 0; i + 5 < numbers.length; i += 6) {
            const [number, isExtension, x1, y1, x2, y2] = numbers.slice(i);
            if (isExtension && !this.shown.extensions) continue;
            const [from, to] = [this.at(x1, y1), this.at(x2, y2)];
            const ink = RAY_INKS[number - 1];
            lines.push(drawn('line', { x1: from[0], y1: from[1], x2: to[0], y2: to[1], stroke: ink, ...(isExtension ? { 'stroke-width': 1.3, 'stroke-dasharray': '5 5' } : { 'stroke-width': 1.8 }) }));
            if (!isExtension) lines.push(head(from, [from[0] + (to[0] - from[0]) * 0.45, from[1] + (to[1] - from[1]) * 0.45], 9, ink));
        }
        return lines;
    }

    /** @param {ReturnType<typeof benchOf>} bench */
    arrows({ object, height, image }) {
        const arrowAt = (/** @type {number} */ place, /** @type {number} */ high, /** @type {boolean} */ isSolid, /** @type {[string, number, number]} */ foot, /** @type {[string, number, number]} */ tip) => {
            const [from, to] = [this.at(place, 0), this.at(place, high)];
            const size = Math.min(12, Math.abs(to[1] - from[1]) * 0.7);
            const up = to[1] < from[1] ? 1 : -1;
            const name = (/** @type {[number, number]} */ at, /** @type {[string, number, number]} */ [text, dx, dy]) => drawn('text', { x: at[0] + dx, y: at[1] + dy, 'font-weight': 'bold', fill: INKS.ink }, text);
            return drawn('g', {}, drawn('line', { x1: from[0], y1: from[1], x2: to[0], y2: to[1] + up * size * 0.8, stroke: INKS.blue, 'stroke-width': 3, ...(isSolid ? {} : { 'stroke-dasharray': '3 4' }) }),
                head(from, to, size, INKS.blue), name(from, foot), name(to, tip));
        };
        // Names stand where no ray goes.
        const shown = !this.shown.image || !image ? [] : [image.isReal ? arrowAt(image.place, image.height, true, ['A′', -20, -6], ['B′', -20, 17]) : arrowAt(image.place, image.height, false, ['A′', 5, 17], ['B′', -7, -9])];
        return [...shown, arrowAt(object, height, true, ['A', -18, 17], ['B', -20, 2])];
    }

    /** Puts the handles where they are pulled. @param {ReturnType<typeof benchOf>} bench */
    place({ object, height, screen, objectMoves, screenMoves }) {
        const reach = matchMedia('(pointer: coarse)').matches ? 22 : 10;
        const { area } = this.axes;
        const put = (/** @type {any} */ handle, /** @type {number} */ x, /** @type {number} */ y, /** @type {number} */ high, /** @type {boolean} */ isShown) => {
            for (const [name, value] of Object.entries({ x: x - reach, y, width: 2 * reach, height: high })) handle.setAttribute(name, value);
            handle.style.display = isShown ? '' : 'none';
        };
        const [x, tip] = this.at(object, height);
        put(this.handles.object, x, area.top, area.bottom - area.top, objectMoves);
        put(this.handles.tip, x, tip - reach, 2 * reach, objectMoves);
        put(this.handles.screen, this.axes.x(screen), area.top, area.bottom - area.top, screenMoves);
    }
}
