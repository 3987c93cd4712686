// @ts-check
'use strict';

/**
 * Everything that is drawn by scripts is on paper, in the shell's inks (look/palette.h), whatever the
 * frame around it.
 */
const INKS = { ink: '#23211c', muted: '#6b6454', edge: '#8c8472', grid: '#ece8dc', ground: '#f1eddf', paper: '#ffffff', blue: '#1d4e89', red: '#b3261e', green: '#1c7540', violet: '#6a3d9a' };

/** Room for labels around the curves, pixels. */
const AXIS_ROOM = { left: 52, right: 16, below: 40 };
const PIXELS_PER_TICK = { across: 56, up: 34 };

/** @typedef {{left: number, top: number, right: number, bottom: number}} Area pixels */
/** @typedef {{from: number, to: number}} AxisPart */

/**
 * An element of a drawing.
 * @param {string} tag
 * @param {Record<string, string | number>} [attributes]
 * @param {...(Node | string)} children
 * @returns {any}
 */
function drawn(tag, attributes = {}, ...children) {
    const made = document.createElementNS('http://www.w3.org/2000/svg', tag);
    for (const [name, value] of Object.entries(attributes)) made.setAttribute(name, String(value));
    made.append(...children);
    return made;
}

/**
 * The letter of a symbol and what stands below it: "v_0", "v_{0x}", "α".
 * @param {string} symbol
 */
function symbolParts(symbol) {
    const [letter, below = ''] = symbol.split('_');
    return { letter, below: below.replace(/[{}]/g, '') };
}

/**
 * A symbol in a drawing; with an arrow over it for a vector.
 * @param {string} symbol
 * @param {{x: number, y: number, ink: string, isVector?: boolean, behind?: string}} how `x`, `y`: where its baseline starts
 */
function symbolInDrawing(symbol, { x, y, ink, isVector = false, behind = '' }) {
    const { letter, below } = symbolParts(symbol);
    const text = drawn('text', { x, y, fill: ink, 'font-size': 15 }, drawn('tspan', { 'font-style': 'italic' }, letter));
    if (below) text.append(drawn('tspan', { dy: 4, 'font-size': 10 }, below));
    if (behind) text.append(drawn('tspan', { 'font-size': 13, ...(below ? { dy: -4 } : {}) }, behind));
    if (!isVector) return text;
    return drawn('g', {}, text, drawn('path', { d: `M${x} ${y - 11}h8m-2.5 -2l2.5 2l-2.5 2`, fill: 'none', stroke: ink, 'stroke-width': 1.1 }));
}

/** Two axes with their grid, and the way from quantities to pixels. */
class Axes {
    /**
     * @param {Area} area where the curves are
     * @param {AxisPart} x
     * @param {AxisPart} y
     */
    constructor(area, x, y) {
        this.area = area;
        this.rangeX = x;
        this.rangeY = y;
    }

    /**
     * The same scale on both axes: the least ranges that hold those given and fill the area.
     * @param {Area} area
     * @param {AxisPart} x
     * @param {AxisPart} y
     */
    static withEqualScales(area, x, y) {
        const width = area.right - area.left;
        const height = area.bottom - area.top;
        const perPixel = Math.max((x.to - x.from) / width, (y.to - y.from) / height);
        return new Axes(area, { from: x.from, to: x.from + perPixel * width }, { from: y.from, to: y.from + perPixel * height });
    }

    /** @param {number} value */
    x(value) {
        return this.area.left + (value - this.rangeX.from) / (this.rangeX.to - this.rangeX.from) * (this.area.right - this.area.left);
    }

    /** @param {number} value */
    y(value) {
        return this.area.bottom - (value - this.rangeY.from) / (this.rangeY.to - this.rangeY.from) * (this.area.bottom - this.area.top);
    }

    /** @param {number} pixel */
    valueX(pixel) {
        return this.rangeX.from + (pixel - this.area.left) / (this.area.right - this.area.left) * (this.rangeX.to - this.rangeX.from);
    }

    /** @param {number} pixel */
    valueY(pixel) {
        return this.rangeY.from + (this.area.bottom - pixel) / (this.area.bottom - this.area.top) * (this.rangeY.to - this.rangeY.from);
    }

    /**
     * A line through points of quantities.
     * @param {[number, number][]} points
     */
    path(points) {
        return `M${points.map(([x, y]) => `${this.x(x).toFixed(2)} ${this.y(y).toFixed(2)}`).join('L')}`;
    }

    /**
     * Grid and labels; names are symbols with their units.
     * @param {Program} program whose ticks they are
     * @param {[string, string]} nameX
     * @param {[string, string]} nameY
     */
    draw(program, nameX, nameY) {
        const { left, right, top, bottom } = this.area;
        const lines = drawn('g', { stroke: INKS.grid, 'shape-rendering': 'crispEdges' });
        const labels = drawn('g', { fill: INKS.muted, 'font-size': 12 });
        const [decimals, ...across] = program.askNumbers('axisTicks', this.rangeX.from, this.rangeX.to, Math.floor((right - left) / PIXELS_PER_TICK.across));
        for (const value of across) {
            const x = this.x(value);
            lines.append(drawn('line', { x1: x, x2: x, y1: top, y2: bottom }));
            labels.append(drawn('text', { x, y: bottom + 17, 'text-anchor': 'middle' }, program.frenchNumber(value, decimals)));
        }
        const ofX = symbolInDrawing(nameX[0], { x: right, y: bottom + 35, ink: INKS.ink, behind: ` (${nameX[1]})` });
        ofX.setAttribute('text-anchor', 'end');
        return drawn('g', { 'aria-hidden': 'true' }, lines, labels, ofX, this.drawUp(program, nameY));
    }

    /**
     * The lines across and the labels of the upright axis alone, for bars.
     * @param {Program} program
     * @param {[string, string]} name
     */
    drawUp(program, name) {
        const { left, right, top, bottom } = this.area;
        const lines = drawn('g', { stroke: INKS.grid, 'shape-rendering': 'crispEdges' });
        const labels = drawn('g', { fill: INKS.muted, 'font-size': 12 });
        const [decimals, ...up] = program.askNumbers('axisTicks', this.rangeY.from, this.rangeY.to, Math.floor((bottom - top) / PIXELS_PER_TICK.up));
        for (const value of up) {
            const y = this.y(value);
            lines.append(drawn('line', { x1: left, x2: right, y1: y, y2: y }));
            labels.append(drawn('text', { x: left - 6, y: y + 4, 'text-anchor': 'end' }, program.frenchNumber(value, decimals)));
        }
        return drawn('g', { 'aria-hidden': 'true' }, lines, labels, symbolInDrawing(name[0], { x: 8, y: top - 10, ink: INKS.ink, behind: ` (${name[1]})` }));
    }
}

/**
 * A filled head at the end of a line; nothing when the line is shorter.
 * @param {[number, number]} from pixels
 * @param {[number, number]} to
 * @param {number} size
 * @param {string} ink
 */
function head(from, to, size, ink) {
    const [dx, dy] = [to[0] - from[0], to[1] - from[1]];
    const length = Math.hypot(dx, dy);
    if (length < size || length === 0) return drawn('g');
    const [ux, uy] = [dx / length, dy / length];
    const [neckX, neckY, half] = [to[0] - ux * size, to[1] - uy * size, size * 0.43];
    return drawn('path', { d: `M${to[0]} ${to[1]}L${neckX - uy * half} ${neckY + ux * half}L${neckX + uy * half} ${neckY - ux * half}Z`, fill: ink });
}

/**
 * An arrow with the symbol of its vector beside the head; nothing when it would be too short.
 * @param {[number, number]} from pixels
 * @param {[number, number]} to
 * @param {string} ink
 * @param {string} symbol
 * @param {boolean} [isPart] of another vector: thinner, with dashes
 */
function arrow(from, to, ink, symbol, isPart = false) {
    const group = drawn('g', { 'aria-hidden': 'true' });
    const [dx, dy] = [to[0] - from[0], to[1] - from[1]];
    const length = Math.hypot(dx, dy);
    if (length < 4) return group;
    const [ux, uy] = [dx / length, dy / length];
    const size = Math.min(10, length * 0.6);
    const neck = [to[0] - ux * size, to[1] - uy * size];
    group.append(drawn('line', { x1: from[0], y1: from[1], x2: neck[0], y2: neck[1], stroke: ink, 'stroke-width': isPart ? 1.5 : 2.5, ...(isPart ? { 'stroke-dasharray': '6 3' } : {}) }),
        head(from, to, size, ink));
    // Beyond the head and to its left, off the path that the vector touches.
    if (symbol) group.append(symbolInDrawing(symbol, { x: to[0] + ux * 10 + uy * 12 - 6, y: to[1] + uy * 10 - ux * 12 + 5, ink, isVector: true }));
    return group;
}

/** A drawing as large as its place, drawn anew when that changes. */
class Plot {
    /** @param {string} name */
    constructor(name) {
        this.name = name;
        this.fixed = drawn('g');
        this.moving = drawn('g');
        this.svg = drawn('svg', { role: 'img', 'aria-label': name }, this.fixed, this.moving);
        this.element = element('div', { class: 'graphe' }, this.svg);
        this.width = 0;
        this.height = 0;
        new ResizeObserver(() => this.resized()).observe(this.element);
    }

    resized() {
        const { clientWidth, clientHeight } = this.element;
        if (!clientWidth || !clientHeight || (clientWidth === this.width && clientHeight === this.height)) return;
        this.width = clientWidth;
        this.height = clientHeight;
        this.svg.setAttribute('viewBox', `0 0 ${clientWidth} ${clientHeight}`);
        this.draw();
        this.drawMoment();
    }

    /** What stays while the simulation runs. */
    draw() {}

    /** What changes from moment to moment. */
    drawMoment() {}
}
