// @ts-check
'use strict';

/**
 * Choices of which one is taken, in a row.
 * @param {string} name
 * @param {(Node | string)[][]} choices what each shows
 * @param {(which: number) => void} chosen
 */
function segments(name, choices, chosen) {
    const inputs = choices.map((_, i) => element('input', { type: 'radio', name: `choix-${name}`, change: () => chosen(i) }));
    const row = element('div', { class: 'segments', role: 'radiogroup', 'aria-label': name }, ...choices.map((shown, i) => element('label', {}, inputs[i], element('span', {}, ...shown))));
    return { element: row, show: (/** @type {number} */ which) => inputs.forEach((input, i) => { input.checked = i === which; }) };
}

/** One number of the launch: its name, a field, a slider under both. */
class QuantityRow {
    /**
     * @param {Projectile} projectile
     * @param {number} index of the quantity
     * @param {() => void} changed
     */
    constructor(projectile, index, changed) {
        this.quantity = projectile.quantities[index];
        const { name, symbol, unit } = this.quantity;
        const unitName = unit === '°' ? 'degrés' : unit;
        this.field = element('input', { type: 'text', inputmode: 'decimal', 'aria-label': `${name}, en ${unitName}`, maxlength: 16, autocomplete: 'off', change: () => {
            projectile.tell('Set', index, numberFrom(this.field.value));
            changed();
        } });
        this.slider = element('input', { type: 'range', min: 0, step: 1, 'aria-label': name, input: () => {
            projectile.tell('Slide', index, Number(this.slider.value));
            changed();
        } });
        this.element = element('div', { class: 'grandeur' }, element('span', { class: 'nom' }, name, ' ', symbolInWords(symbol)),
            element('span', { class: 'valeur' }, this.field, element('span', { class: 'unite', 'aria-hidden': 'true' }, unit)), this.slider);
    }

    /** @param {{value: number, position: number, last: number}} number */
    show({ value, position, last }) {
        const text = frenchNumber(value, this.quantity.decimals);
        this.field.value = text;
        this.slider.max = last;
        this.slider.value = position;
        this.slider.style.setProperty('--part', `${last > 0 ? (100 * position) / last : 0}%`);
        this.slider.setAttribute('aria-valuetext', withUnit(text, this.quantity.unit));
    }
}

/** Everything that decides a throw. */
class LaunchPanel {
    /**
     * @param {Projectile} projectile
     * @param {() => void} changed
     */
    constructor(projectile, changed) {
        this.projectile = projectile;
        this.rows = projectile.quantities.map((_, i) => new QuantityRow(projectile, i, changed));
        this.worlds = segments('Astre', projectile.worlds.map((name) => [name]), (which) => { projectile.tell('World', which); changed(); });
        this.drags = segments('Frottements de l’air', [['aucun'], [element('i', {}, 'f = k v')], [element('i', {}, 'f ∝ v'), element('sup', {}, '2')]],
            (which) => { projectile.tell('Drag', which); changed(); });
        this.noDrag = element('p', { class: 'sourdine' }, `Seul le poids agit${BLANK}: chute libre.`);
        this.keep = button('Garder la trajectoire', '', () => { projectile.tell('Keep'); changed(); }, { title: 'la laisse dessinée, pour la comparer aux suivantes' });
        this.forget = button('Effacer', '', () => { projectile.tell('Forget'); changed(); }, { title: 'efface les trajectoires gardées' });
        const row = (/** @type {number} */ index) => this.rows[index].element;
        const group = (/** @type {string} */ name, /** @type {Node[]} */ ...parts) => element('section', {}, element('h2', {}, name), ...parts);
        this.element = element('div', { class: 'reglages' },
            group('Lancement', row(LAUNCH.speed), row(LAUNCH.angle), row(LAUNCH.height)),
            group('Astre', this.worlds.element, row(LAUNCH.gravity)),
            group('Projectile', row(LAUNCH.mass)),
            group('Frottements de l’air', this.drags.element, this.noDrag, row(LAUNCH.coefficient), row(LAUNCH.diameter)),
            element('div', { class: 'boutons' }, this.keep, this.forget));
    }

    show() {
        const { numbers, drag, world } = this.projectile.launch();
        this.rows.forEach((row, i) => row.show(numbers[i]));
        this.worlds.show(world);
        this.drags.show(drag);
        this.noDrag.hidden = drag !== 0;
        this.rows[LAUNCH.coefficient].element.hidden = drag !== 1;
        this.rows[LAUNCH.diameter].element.hidden = drag !== 2;
        this.keep.disabled = !this.projectile.now().canKeep;
        this.forget.disabled = this.projectile.keptCount === 0;
    }
}
