// @ts-check
'use strict';

/**
 * A part of a simulation's page: `draw` shows it anew after a change of anything, `drawMoment` after
 * one of the time only.
 * @typedef {{element: HTMLElement, draw: () => void, drawMoment: () => void}} SimulationPart
 */

/** What is read of the simulation, in groups. */
class Readings {
    /** @param {Simulation} simulation */
    constructor(simulation) {
        this.simulation = simulation;
        this.element = element('div', { class: 'lectures' });
        /** @type {{shown: string, place: HTMLElement}[]} */
        this.values = [];
        this.names = '';
    }

    /** A value is a formula when it stands alone. @param {ReadingGroup['readings'][0]} reading */
    place({ name, spoken }) {
        const { program } = this.simulation;
        const place = element(name ? 'b' : 'span', {});
        this.values.push({ shown: '', place });
        return name ? element('span', { class: 'lecture' }, formula(program, name, spoken), `${BLANK}=${BLANK}`, place) : place;
    }

    draw() {
        const groups = this.simulation.readings();
        const names = JSON.stringify(groups.map(({ name, readings }) => [name, readings.map((one) => one.name)]));
        if (names !== this.names) {
            this.names = names;
            this.values = [];
            this.element.replaceChildren(...groups.map(({ name, readings }) => element('p', {}, element('span', { class: 'nom' }, name), ...readings.map((one) => this.place(one)))));
        }
        groups.flatMap(({ readings }) => readings).forEach(({ name, value }, i) => {
            const one = this.values[i];
            if (one.shown === value) return;
            one.shown = value;
            if (name) one.place.textContent = value;
            else one.place.replaceChildren(formula(this.simulation.program, value));
        });
    }

    drawMoment() {
        this.draw();
    }
}

/** The simulation's table. */
class SimulationTable {
    /**
     * @param {Simulation} simulation
     * @param {string} name
     * @param {{empty?: () => string, moves?: boolean, cell?: (text: string, row: number, column: number) => Node | string}} [how] `moves`: its numbers change with the time
     */
    constructor(simulation, name, { empty, moves = false, cell = (text) => text } = {}) {
        this.simulation = simulation;
        this.moves = moves;
        this.cell = cell;
        this.empty = empty;
        this.head = element('tr', {});
        this.body = element('tbody', {});
        this.notice = element('p', { class: 'sourdine' });
        this.element = element('div', { class: 'tableau', tabindex: '0', role: 'region', 'aria-label': name }, element('table', {}, element('thead', {}, this.head), this.body), this.notice);
    }

    draw() {
        const { program } = this.simulation;
        const { columns, rows } = this.simulation.table();
        this.head.replaceChildren(...columns.map((column) => element('th', { scope: 'col', class: column.kind === CELLS.names ? 'etat' : false }, formula(program, column.formula))));
        this.body.replaceChildren(...rows.map((cells, row) => element('tr', {}, ...cells.map((text, column) => {
            const { kind } = columns[column];
            if (kind === CELLS.names) return element('th', { scope: 'row', class: 'etat' }, text);
            return element('td', {}, kind === CELLS.formulas ? formula(program, text) : this.cell(text, row, column));
        }))));
        this.notice.hidden = rows.length > 0;
        this.notice.textContent = this.empty?.() ?? '';
    }

    drawMoment() {
        if (this.moves) this.draw();
    }
}

/** The laws that hold, with the simulation's numbers. */
class LawPage {
    /** @param {Simulation} simulation */
    constructor(simulation) {
        this.simulation = simulation;
        this.element = element('div', { class: 'formules', tabindex: '0', role: 'region', 'aria-label': 'Formules' });
    }

    draw() {
        const { program } = this.simulation;
        /** @type {HTMLElement[]} */
        const groups = [];
        for (const law of this.simulation.laws()) {
            if (!law.formula) groups.push(element('h2', {}, law.words), element('dl', {}));
            else groups.at(-1)?.append(element('div', {}, element('dt', {}, law.words), element('dd', {}, formula(program, law.formula))));
        }
        this.element.replaceChildren(...groups);
    }

    drawMoment() {}
}

/** The task of an exercise, a field for the answer, and what is to be said about it. */
class ExercisePanel {
    /**
     * @param {Simulation} simulation
     * @param {Task} task
     * @param {{solved: () => void, next: (() => void) | null}} after what follows a right answer
     */
    constructor(simulation, task, { solved, next }) {
        this.simulation = simulation;
        this.solved = solved;
        this.field = element('input', { type: 'text', maxlength: 32, autocomplete: 'off', id: 'reponse-exercice', 'aria-describedby': 'verdict-exercice' });
        this.sign = element('span', { class: 'signe', 'aria-hidden': 'true' });
        this.verdict = element('p', { id: 'verdict-exercice', role: 'status' });
        this.next = next && button('Exercice suivant', '', next, { hidden: true });
        this.element = element('form', { class: 'exercice', 'aria-labelledby': 'titre-exercice', novalidate: true, submit: (/** @type {Event} */ event) => { event.preventDefault(); this.check(); } },
            element('h2', { id: 'titre-exercice' }, task.title), ...task.statement.map((text) => element('p', {}, text)),
            element('div', { class: 'question-exercice' }, element('label', { for: 'reponse-exercice' }, task.question),
                element('span', { class: 'reponse' }, this.field, task.unit && element('span', {}, task.unit), element('button', { type: 'submit', class: 'principal' }, 'Vérifier'))),
            element('div', { class: 'verdict-exercice' }, this.sign, this.verdict, this.next));
    }

    check() {
        const { answer, words } = this.simulation.judge(this.field.value);
        const isRight = answer === VERDICT.right;
        this.sign.replaceChildren(...(answer === VERDICT.none ? [] : [icon(isRight ? 'faces/right' : 'faces/wrong')]));
        this.verdict.textContent = words;
        this.verdict.className = answer === VERDICT.none ? '' : isRight ? 'juste' : 'faux';
        if (this.next) this.next.hidden = !isRight;
        this.field.select();
        if (isRight) this.solved();
    }
}
