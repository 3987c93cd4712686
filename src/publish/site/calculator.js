// @ts-check
'use strict';

/** Left and right of what is in a window, in pixels (style.css). */
const BODY_MARGIN = 16;
const KEY_STYLES = ['fonction', 'chiffre', 'operation', 'egal'];

/** The scientific calculator: its keys, their places and rules are the shell's. */
class CalculatorBox {
    /** @param {Course} course */
    constructor(course) {
        this.course = course;
        /** @type {Program | null} */
        this.program = null;
        this.display = element('output', { class: 'ecran', tabindex: '0', 'aria-label': 'Affichage', 'aria-live': 'polite' });
        this.notice = element('p', { class: 'avis', role: 'status' });
        this.keys = element('div', { class: 'touches' });
        this.degrees = this.option('angle', 'Degrés', false);
        this.radians = this.option('angle', 'Radians', true);
        this.scientific = this.option('affichage', 'Scientifique', false);
        this.standard = this.option('affichage', 'Standard', true);
        this.dialog = makeDialog('Calculatrice', 'calculatrice', this.display, this.notice,
            element('div', { class: 'options' },
                element('fieldset', {}, element('legend', {}, 'Angles'), this.degrees.label, this.radians.label),
                element('fieldset', {}, element('legend', {}, 'Affichage'), this.scientific.label, this.standard.label)),
            this.keys);
        this.dialog.addEventListener('keydown', (/** @type {KeyboardEvent} */ event) => this.pressed(event));
        this.dialog.addEventListener('paste', (/** @type {ClipboardEvent} */ event) => this.pasted(event));
        window.addEventListener('resize', () => { if (this.dialog.open) this.fit(); });
        this.dialog.addEventListener('copy', (/** @type {ClipboardEvent} */ event) => this.copied(event));
    }

    /**
     * @param {string} group
     * @param {string} words
     * @param {boolean} isChosen
     */
    option(group, words, isChosen) {
        const input = element('input', { type: 'radio', name: group, checked: isChosen, change: () => this.setOptions() });
        return { input, label: element('label', { class: 'case' }, input, words) };
    }

    async open() {
        try {
            this.program ??= await this.course.program();
        } catch {
            await tell('Calculatrice', 'La calculatrice ne peut pas démarrer dans ce navigateur.');
            return;
        }
        if (!this.keys.childElementCount) this.addKeys();
        if (!this.dialog.open) {
            this.dialog.show();
            this.show(this.program.ask('calculatorOpen'));
            this.setOptions();
            this.fit();
        }
        this.display.focus();
    }

    addKeys() {
        const places = this.program?.askRecords('calculatorKeys') ?? [];
        const numbers = places.map((place) => place.slice(3).map(Number));
        const left = Math.min(...numbers.map(([x]) => x));
        const top = Math.min(...numbers.map(([, y]) => y));
        const width = Math.max(...numbers.map(([x, , w]) => x + w)) - left;
        const height = Math.max(...numbers.map(([, y, , h]) => y + h)) - top;
        this.keys.style.width = `${width}px`;
        this.keys.style.height = `${height}px`;
        places.forEach(([name, caption, tooltip], i) => {
            const [x, y, w, h, style, size, serif] = numbers[i];
            const key = element('button', { type: 'button', class: `${KEY_STYLES[style]}${serif ? ' empattement' : ''}`, title: tooltip, 'data-touche': name,
                click: () => this.press(name) }, caption.replace(/&(.)/g, '$1'));
            Object.assign(key.style, { left: `${x - left}px`, top: `${y - top}px`, width: `${w}px`, height: `${h}px`, fontSize: `${size}px` });
            this.keys.append(key);
        });
    }

    /** On a narrow screen the keys take all the room that there is, for fingers. */
    fit() {
        this.keys.style.transform = '';
        this.keys.style.marginBottom = '';
        if (!narrow.matches) return;
        const { offsetWidth, offsetHeight } = this.keys;
        const around = this.dialog.offsetHeight - offsetHeight;
        const wide = /** @type {HTMLElement} */ (this.keys.parentElement).clientWidth - 2 * BODY_MARGIN;
        const scale = Math.max(1, Math.min(wide / offsetWidth, (window.innerHeight - around) / offsetHeight));
        this.keys.style.transform = `scale(${scale})`;
        this.keys.style.marginBottom = `${(scale - 1) * offsetHeight}px`;
    }

    /** @param {string} answer */
    show(answer) {
        this.display.textContent = answer.split(FIELD_END)[1];
        this.notice.textContent = '';
    }

    /** @param {string} name */
    press(name) {
        if (this.program) this.show(this.program.ask('calculatorPress', this.program.put(name)));
    }

    setOptions() {
        this.program?.ask('calculatorOptions', Number(this.degrees.input.checked), Number(this.scientific.input.checked));
        if (this.program) this.show(this.program.ask('calculatorOptions', Number(this.degrees.input.checked), Number(this.scientific.input.checked)));
    }

    /** @param {KeyboardEvent} event */
    pressed(event) {
        if (event.ctrlKey || event.metaKey || event.altKey || !this.program) return;
        const onButton = event.target instanceof HTMLButtonElement || event.target instanceof HTMLInputElement;
        if (event.key === 'Escape') {
            this.dialog.close();
        } else if (event.key === 'Enter' && !onButton) {
            this.show(this.program.ask('calculatorType', 13));
        } else if (event.key === 'Backspace') {
            this.show(this.program.ask('calculatorType', 8));
        } else if (event.key === ',') {
            this.notice.textContent = 'Le signe décimal est le point';
        } else if (event.key.length === 1 && !(event.key === ' ' && onButton)) {
            this.show(this.program.ask('calculatorType', event.key.charCodeAt(0)));
        } else {
            return;
        }
        event.preventDefault();
        event.stopPropagation();
    }

    /** @param {ClipboardEvent} event */
    pasted(event) {
        const text = event.clipboardData?.getData('text/plain') ?? '';
        if (!this.program) return;
        const answer = this.program.ask('calculatorPaste', this.program.put(text.slice(0, 4000)));
        this.show(answer);
        if (answer.startsWith('1')) this.notice.textContent = 'Le signe décimal est le point';
        event.preventDefault();
    }

    /** @param {ClipboardEvent} event */
    copied(event) {
        if (String(document.getSelection()) !== '') return;
        event.clipboardData?.setData('text/plain', (this.display.textContent ?? '').trim());
        event.preventDefault();
    }
}
