// @ts-check
'use strict';

/** Inks of a bar: edge and filling. */
const BAR_INKS = { reactant: [INKS.blue, '#bcd0e8'], product: [INKS.green, '#bfe0c8'] };

/** A reaction has two, before its products. */
const REACTANTS = 2;

/** Of a bar's room, and at most; pixels. */
const BAR_SHARE = 0.5;
const WIDEST_BAR = 72;

/** Above the highest bar, for its number. */
const BAR_AIR = 0.12;

/**
 * What the module tells of its mixture (modules/reaction/web.cpp); amounts in mol.
 * @param {Simulation} simulation
 */
function mixtureOf(simulation) {
    const [isHidden, ...numbers] = simulation.numbers(0);
    const [equation, verdict, ...names] = simulation.words();
    const species = Array.from({ length: names.length / 2 }, (_, i) => {
        const [coefficient, isLimiting, start, now, end] = numbers.slice(5 * i);
        return { shown: `${simulation.program.frenchNumber(now, 2)}${BLANK}mol`, name: names[2 * i], formula: names[2 * i + 1], coefficient, isLimiting: isLimiting === 1, isReactant: i < REACTANTS, start, now, end };
    });
    return { isHidden: isHidden === 1, equation, verdict, species };
}

/** The amounts as bars: what is there is filled, what was there or will be is an outline. */
class AmountBars extends Plot {
    /** @param {Simulation} simulation */
    constructor(simulation) {
        super('Quantités de matière');
        this.simulation = simulation;
        this.axes = new Axes({ left: 0, top: 0, right: 1, bottom: 1 }, { from: 0, to: 1 }, { from: 0, to: 1 });
        this.names = element('div', { class: 'especes' });
        this.element.append(this.names);
        this.element.classList.add('barres');
    }

    draw() {
        const { isHidden, species } = mixtureOf(this.simulation);
        this.names.replaceChildren(...species.map((one) => element('span', {}, formula(this.simulation.program, one.formula),
            // Words, since a colour is not enough.
            element('small', { class: one.isLimiting ? 'limitant' : false }, one.isLimiting ? 'limitant' : one.isReactant ? 'réactif' : 'produit'))));
        if (!this.width) return;
        // The highest bar from start to end, so that the axis stands still meanwhile.
        const most = Math.max(1, ...species.map((one) => one.isReactant ? one.start : this.most(one.coefficient, species)));
        this.axes = new Axes({ left: AXIS_ROOM.left, top: 34, right: this.width - AXIS_ROOM.right, bottom: this.height - 52 }, { from: 0, to: 1 }, { from: 0, to: most * (1 + BAR_AIR) });
        const { area } = this.axes;
        const outlines = species.map((one, i) => this.bar(i, species.length, one.isReactant ? one.start : isHidden ? 0 : one.end, { fill: 'none', stroke: this.inks(one)[0], 'stroke-dasharray': '3 3' }));
        this.fixed.replaceChildren(this.axes.drawUp(this.simulation.program, ['n', 'mol']), ...outlines, drawn('line', { x1: area.left, x2: area.right, y1: area.bottom + 0.5, y2: area.bottom + 0.5, stroke: INKS.muted }));
    }

    /**
     * What a product comes to when the smaller quotient of the reactants is used up.
     * @param {number} coefficient
     * @param {{coefficient: number, start: number}[]} species
     */
    most(coefficient, species) {
        return coefficient * Math.min(...species.slice(0, REACTANTS).map((one) => one.start / one.coefficient));
    }

    /** @param {{isReactant: boolean}} species */
    inks({ isReactant }) {
        return isReactant ? BAR_INKS.reactant : BAR_INKS.product;
    }

    /**
     * @param {number} index
     * @param {number} count
     * @param {number} amount
     * @param {Record<string, string | number>} attributes
     */
    bar(index, count, amount, attributes) {
        const { area } = this.axes;
        const room = (area.right - area.left) / count;
        const width = Math.round(Math.min(WIDEST_BAR, room * BAR_SHARE));
        const x = Math.round(area.left + room * (index + 0.5) - width / 2) + 0.5;
        const y = Math.round(this.axes.y(amount)) + 0.5;
        return drawn('rect', { x, y, width, height: Math.max(0, area.bottom - y), ...attributes, ...(amount > 0 ? {} : { visibility: 'hidden' }) });
    }

    drawMoment() {
        const { species } = mixtureOf(this.simulation);
        this.svg.setAttribute('aria-label', `${this.name}${BLANK}: ${species.map((one) => `${one.name} ${one.shown}`).join(', ')}`);
        if (!this.width) return;
        this.moving.replaceChildren(...species.flatMap((one, i) => {
            const [edge, fill] = this.inks(one);
            const bar = this.bar(i, species.length, one.now, { stroke: edge, fill });
            const middle = Number(bar.getAttribute('x')) + Number(bar.getAttribute('width')) / 2;
            return [bar, drawn('text', { x: middle, y: Number(bar.getAttribute('y')) - 7, fill: edge, 'text-anchor': 'middle', 'font-weight': 'bold', stroke: INKS.paper, 'stroke-width': 4, 'paint-order': 'stroke' }, one.shown)];
        }));
    }
}

/** @type {ModulePage} */
const REACTION_PAGE = {
    ended: (simulation) => `La réaction est finie${BLANK}: ${mixtureOf(simulation).species.map((one) => `${one.name} ${one.shown}`).join(', ')}.`,
    build: ({ simulation }) => {
        const equation = element('p', { class: 'equation' });
        const verdict = element('p', { role: 'status' });
        return {
            above: [{ element: element('div', { class: 'cadre-equation' }, equation, verdict), draw: () => {
                const mixture = mixtureOf(simulation);
                equation.replaceChildren(formula(simulation.program, mixture.equation));
                if (verdict.textContent !== mixture.verdict) verdict.textContent = mixture.verdict;
                verdict.className = mixture.isHidden ? '' : 'limite';
            }, drawMoment: () => {} }],
            views: [[new AmountBars(simulation)], [new SimulationTable(simulation, 'Tableau d’avancement', { moves: true })], [new LawPage(simulation)]],
        };
    },
};
