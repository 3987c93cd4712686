// @ts-check
'use strict';

/** Light and dark of the screen. */
const LIT = [0xff, 0xf0, 0xa0];
const UNLIT = [0x23, 0x21, 0x1c];

/** Of the screen, pixels. */
const SCREEN_SIDE = 116;

/** The letter F, 1 high and 0.66 wide around its middle: it is no mirror image of itself, neither upright nor upside down. */
const LETTER = [[-0.33, -0.5], [0.33, -0.5], [0.33, -0.32], [-0.15, -0.32], [-0.15, -0.09], [0.17, -0.09], [0.17, 0.09], [-0.15, 0.09], [-0.15, 0.5], [-0.33, 0.5]];

/** Widths of the screen that are shown, cm, with the centimetres that a bar tells of; by large steps, so that images can be compared. */
const SCREEN_WIDTHS = [[2, 0.5], [6, 2], [20, 5], [60, 20]];

/**
 * How much of the letter's light reaches each pixel of a square: each of its points is a spot.
 * @param {number} side pixels
 * @param {number} height of the letter, pixels; negative upside down
 * @param {number} radius of the spots, pixels
 * @returns {Uint8ClampedArray} 0 to 255
 */
function spreadLetter(side, height, radius) {
    const canvas = element('canvas', { width: side, height: side });
    const ink = canvas.getContext('2d', { willReadFrequently: true });
    ink.translate(side / 2, side / 2);
    ink.scale(height, height);
    ink.beginPath();
    for (const [x, y] of LETTER) ink.lineTo(x, y);
    ink.fill();
    const sharp = ink.getImageData(0, 0, side, side).data;
    // Sums along the lines, so that a piece of a line is one difference.
    const sums = new Float64Array(side * (side + 1));
    for (let y = 0; y < side; ++y)
        for (let x = 0; x < side; ++x) sums[y * (side + 1) + x + 1] = sums[y * (side + 1) + x] + sharp[4 * (y * side + x) + 3];
    const halves = [];
    for (let dy = -Math.floor(radius); dy <= radius; ++dy) halves.push([dy, Math.floor(Math.sqrt(radius * radius - dy * dy))]);
    const area = halves.reduce((sum, [, half]) => sum + 2 * half + 1, 0);
    const light = new Uint8ClampedArray(side * side);
    for (let y = 0; y < side; ++y) {
        for (let x = 0; x < side; ++x) {
            let sum = 0;
            for (const [dy, half] of halves) {
                if (y + dy < 0 || y + dy >= side) continue;
                const line = (y + dy) * (side + 1);
                sum += sums[line + Math.min(side, x + half + 1)] - sums[line + Math.max(0, x - half)];
            }
            light[y * side + x] = sum / area;
        }
    }
    return light;
}

/** What stands on the screen: the letter, sharp or not. */
class ScreenView {
    /** @param {Simulation} simulation */
    constructor(simulation) {
        this.simulation = simulation;
        this.canvas = element('canvas', { role: 'img' });
        this.scale = element('span', { class: 'echelle-ecran', 'aria-hidden': 'true' });
        this.bar = element('span', { class: 'barre-ecran', 'aria-hidden': 'true' });
        this.caption = element('figcaption', { role: 'status' });
        this.element = element('figure', { class: 'ecran-banc' }, element('div', {}, this.canvas, this.scale, this.bar), this.caption);
    }

    draw() {
        const { shownHeight, spot, isSharp } = benchOf(this.simulation);
        const [words] = this.simulation.words();
        const [width, bar] = SCREEN_WIDTHS.find(([wide]) => Math.abs(shownHeight) < 0.8 * wide) ?? SCREEN_WIDTHS[SCREEN_WIDTHS.length - 1];
        const side = Math.round(SCREEN_SIDE * Math.min(3, window.devicePixelRatio));
        const perCentimetre = side / width;
        // A spot as wide as the screen leaves nothing of the letter.
        const light = spreadLetter(side, shownHeight * perCentimetre, Math.min(side, spot / 2 * perCentimetre));
        this.canvas.width = this.canvas.height = side;
        const ink = this.canvas.getContext('2d');
        const picture = ink.createImageData(side, side);
        light.forEach((lit, i) => picture.data.set([...UNLIT.map((dark, c) => dark + (LIT[c] - dark) * lit / 255), 255], 4 * i));
        ink.putImageData(picture, 0, 0);
        this.canvas.setAttribute('aria-label', `Sur l’écran${BLANK}: ${words}`);
        this.scale.textContent = `${this.simulation.program.frenchDigits(bar, 2)}${BLANK}cm`;
        this.bar.style.width = `${bar / width * SCREEN_SIDE}px`;
        if (this.caption.textContent !== words) this.caption.textContent = words;
        this.caption.className = isSharp ? 'nette' : '';
    }

    drawMoment() {}
}

/** @type {ModulePage} */
const LENS_PAGE = {
    build: (page) => {
        const { simulation } = page;
        const plot = new BenchPlot(page);
        const choices = page.choices(plot.shown, ['rays', 'extensions', 'image', 'beam'], () => !benchOf(simulation).isUnknown);
        const table = new SimulationTable(simulation, 'Mesures', { empty: () => simulation.words()[2] });
        return { views: [[plot, choices], [table], [new LawPage(simulation)]], below: [new Readings(simulation), new ScreenView(simulation)] };
    },
    // The screen is moved, by one step or far; the space bar notes a measure.
    pressed: (page, { key }) => {
        const screen = page.panel.indexOf('Distance de l’écran');
        const step = { ArrowLeft: -1, ArrowRight: 1, PageDown: -25, PageUp: 25 }[key];
        if (step !== undefined) page.simulation.slide(screen, page.simulation.controls()[screen].number.position + step);
        else if (key === ' ') page.simulation.change(page.panel.indexOf('Noter la mesure'));
        else return false;
        page.show();
        return true;
    },
};
