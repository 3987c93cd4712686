// @ts-check
'use strict';

/**
 * What tells the page of one module from others.
 * @typedef {object} ModulePage
 * @property {(page: SimulationView) => {above?: SimulationPart[], views: SimulationPart[][], below?: SimulationPart[]}} build what is seen, tab by tab
 * @property {(simulation: Simulation) => string} [ended] of what runs: what is said at the end
 * @property {(page: SimulationView, event: KeyboardEvent) => boolean} [pressed] keys for the whole page; whether one was taken
 */

/** Elements that take keys for themselves. */
const TAKES_KEYS = 'input, select, button, [role="region"]';

/** The page of a module: controls at the left, what is seen at the right, above it the task of an exercise. */
class SimulationView {
    /**
     * @param {ModulePage} module
     * @param {Simulation} simulation
     * @param {{notice: string, next: (() => void) | null}} opening a line for the pupil; opens the next exercise
     */
    constructor(module, simulation, { notice, next }) {
        this.module = module;
        this.simulation = simulation;
        this.about = simulation.about();
        const { transport } = this.about;
        const changed = () => this.show();
        this.panel = new ControlPanel(simulation, changed);
        const { above = [], views, below = [] } = module.build(this);
        this.parts = [...above, ...views.flat(), ...below];
        this.tabs = new Tabs('Vues', views.map((parts, i) => [this.about.views[i], parts.map((part) => part.element)]));
        this.transport = transport && new TransportBar(simulation, transport, { moved: () => this.showMoment(), ended: () => announce(module.ended?.(simulation) ?? '') });
        const task = simulation.task();
        this.exercise = task && new ExercisePanel(simulation, task, { solved: changed, next });
        this.element = element('section', { class: 'simulation', tabindex: '-1', 'aria-labelledby': 'titre-simulation', keydown: (/** @type {KeyboardEvent} */ event) => this.pressed(event) },
            element('h1', { id: 'titre-simulation', tabindex: '-1' }, this.title), this.exercise?.element,
            notice && element('p', { class: 'avis-simulation', role: 'note' }, notice),
            element('div', { class: 'simulation-corps' }, this.panel.element,
                element('div', { class: 'vues' }, ...above.map((part) => part.element), this.tabs.element, element('div', { class: 'sous-vues' }, ...below.map((part) => part.element)), this.transport?.element)));
        this.show();
    }

    get title() {
        return this.about.title;
    }

    get program() {
        return this.simulation.program;
    }

    /** Something has changed, so everything. */
    show() {
        this.panel.show();
        for (const part of this.parts) part.draw();
        this.showMoment();
    }

    showMoment() {
        for (const part of this.parts) part.drawMoment();
        this.transport?.show();
    }

    /**
     * Boxes that say what a drawing shows.
     * @param {Record<string, boolean>} shown
     * @param {string[]} names of it, in the order of the boxes
     * @param {() => boolean} [isEnabled]
     * @returns {SimulationPart}
     */
    choices(shown, names, isEnabled = () => true) {
        const boxes = this.about.boxes.map(({ isShown }, i) => {
            const box = element('input', { type: 'checkbox', checked: isShown, change: () => { shown[names[i]] = box.checked; this.show(); } });
            shown[names[i]] = isShown;
            return box;
        });
        return { element: element('div', { class: 'choix' }, ...this.about.boxes.map(({ words }, i) => element('label', { class: 'case' }, boxes[i], words))),
            draw: () => boxes.forEach((box) => { box.disabled = !isEnabled(); }), drawMoment: () => {} };
    }

    /**
     * Keys for the whole simulation, where no control takes them for itself.
     * @param {KeyboardEvent} event
     */
    pressed(event) {
        if (event.ctrlKey || event.altKey || event.metaKey) return;
        if (/** @type {Element} */ (event.target).closest(TAKES_KEYS)) return;
        if (this.transport?.pressed(event) || this.module.pressed?.(this, event)) event.preventDefault();
    }

    /** The page is left: nothing runs that nobody sees. */
    leave() {
        this.transport?.pause();
    }
}
