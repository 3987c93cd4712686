// @ts-check
'use strict';

/** @typedef {{element: HTMLElement, show: (state: ControlState) => void}} ControlPart */

let radioGroups = 0;

/**
 * Choices of which one is taken, in a row.
 * @param {Program} program
 * @param {ControlState} state
 * @param {(which: number) => void} chosen
 * @returns {ControlPart}
 */
function segments(program, state, chosen) {
    const group = `choix-${++radioGroups}`;
    const inputs = state.choices.map(({ spoken }, i) => element('input', { type: 'radio', name: group, 'aria-label': spoken || false, change: () => chosen(i) }));
    const row = element('div', { class: 'segments', role: 'radiogroup', 'aria-label': state.name }, ...state.choices.map((choice, i) => {
        const shown = formula(program, choice.formula);
        shown.removeAttribute('role');
        shown.removeAttribute('aria-label');
        return element('label', {}, inputs[i], element('span', {}, shown));
    }));
    return { element: row, show: ({ chosen: taken, isEnabled }) => inputs.forEach((input, i) => { input.checked = i === taken; input.disabled = !isEnabled; }) };
}

/**
 * The same as a list to unfold.
 * @param {ControlState} state
 * @param {(which: number) => void} chosen
 * @returns {ControlPart}
 */
function list(state, chosen) {
    const select = element('select', { 'aria-label': state.name, change: () => chosen(select.selectedIndex) }, ...state.choices.map((choice) => element('option', {}, choice.formula)));
    return { element: select, show: ({ chosen: taken, isEnabled }) => { select.selectedIndex = taken; select.disabled = !isEnabled; } };
}

/**
 * A number: its name, a field, a slider under both.
 * @param {Program} program
 * @param {ControlState} state
 * @param {(typed: string) => void} set
 * @param {(position: number) => void} slide
 * @returns {ControlPart}
 */
function numberRow(program, state, set, slide) {
    const { unit } = state.number;
    const field = element('input', { type: 'text', inputmode: 'decimal', maxlength: 16, autocomplete: 'off', change: () => set(field.value) });
    const slider = element('input', { type: 'range', min: 0, step: 1, input: () => slide(Number(slider.value)) });
    const name = element('span', { class: 'nom', 'aria-hidden': 'true' });
    let caption = '';
    return {
        element: element('div', { class: 'grandeur' }, name, element('span', { class: 'valeur' }, field, element('span', { class: 'unite', 'aria-hidden': 'true' }, unit)), slider),
        show: (now) => {
            const { text, withUnit, position, last } = now.number;
            if (caption !== now.formula) name.replaceChildren(formula(program, now.formula));
            caption = now.formula;
            field.setAttribute('aria-label', `${now.name}, en ${unit === '°' ? 'degrés' : unit}`);
            field.value = text;
            slider.setAttribute('aria-label', now.name);
            slider.max = last;
            slider.value = position;
            slider.style.setProperty('--part', `${last > 0 ? (100 * position) / last : 0}%`);
            slider.setAttribute('aria-valuetext', withUnit);
            field.disabled = slider.disabled = !now.isEnabled;
        },
    };
}

/** The controls of a simulation: what they are is told by its module. */
class ControlPanel {
    /**
     * @param {Simulation} simulation
     * @param {() => void} changed
     */
    constructor(simulation, changed) {
        this.simulation = simulation;
        this.changed = changed;
        const controls = simulation.controls();
        this.parts = controls.map((state, i) => this.part(state, i));
        this.element = element('div', { class: 'reglages' });
        let group = this.element;
        controls.forEach(({ kind }, i) => {
            if (kind === CONTROL.heading) this.element.append(group = element('section', {}));
            // Buttons beside each other, those of the whole simulation below all groups.
            const isButton = kind === CONTROL.button;
            const isRow = isButton && (controls[i + 1]?.kind === CONTROL.button || controls[i - 1]?.kind === CONTROL.button);
            if (isRow && controls[i - 1].kind !== CONTROL.button) this.element.append(group = element('div', { class: 'boutons' }));
            group.append(this.parts[i].element);
        });
        this.show();
    }

    /**
     * @param {ControlState} state
     * @param {number} index
     * @returns {ControlPart}
     */
    part(state, index) {
        const { program } = this.simulation;
        const change = (/** @type {number} */ value) => { this.simulation.change(index, value); this.changed(); };
        switch (state.kind) {
        case CONTROL.number: return numberRow(program, state, (typed) => { this.simulation.type(index, typed); this.changed(); }, (position) => { this.simulation.slide(index, position); this.changed(); });
        case CONTROL.segments: return segments(program, state, change);
        case CONTROL.list: return list(state, change);
        case CONTROL.button: {
            const made = button(state.name, '', () => change(0));
            return { element: made, show: ({ isEnabled, hint }) => { made.disabled = !isEnabled; made.title = hint; } };
        }
        default: return { element: element(state.kind === CONTROL.heading ? 'h2' : 'p', { class: state.kind === CONTROL.note ? 'sourdine' : false }, state.name), show: () => {} };
        }
    }

    show() {
        this.simulation.controls().forEach((state, i) => {
            this.parts[i].element.hidden = !state.isShown;
            this.parts[i].show(state);
        });
    }

    /**
     * The place of a control.
     * @param {string} name
     */
    indexOf(name) {
        return this.simulation.controls().findIndex((one) => one.name === name && one.kind !== CONTROL.heading);
    }
}
