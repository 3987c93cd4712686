// @ts-check
'use strict';

/** Speeds of a simulation, and the usual one. */
const RATES = [0.1, 0.25, 0.5, 1, 2, 5, 10];
const USUAL_RATE = 3;

/** One step by hand, in seconds of the simulation. */
const STEP = 0.02;

/** A machine that slept does not make things jump; s. */
const LONGEST_PAUSE = 0.25;

/** Between two pictures for who wants little motion: single pictures instead of a movement; ms. */
const CALM_PICTURE = 250;

/** Positions of the slider. */
const POSITIONS = 1000;

const calm = matchMedia('(prefers-reduced-motion: reduce)');

/**
 * What a simulation does with its time.
 * @typedef {object} Clockwork
 * @property {(what: 'Toggle' | 'Pause' | 'Reset' | 'Step' | 'Seek' | 'Advance', ...values: number[]) => void} tell
 * @property {() => {t: number, isRunning: boolean}} now
 * @property {() => number} duration s
 */

/** Start, pause, steps, and the time as a slider; it drives the simulation while it runs. */
class TransportBar {
    /**
     * @param {Clockwork} clockwork
     * @param {() => void} moved to be called when the time has changed
     * @param {() => void} ended when it has come to its end by itself
     */
    constructor(clockwork, moved, ended) {
        this.clockwork = clockwork;
        this.moved = moved;
        this.ended = ended;
        this.last = 0;
        this.isDriving = false;
        const iconButton = (/** @type {string} */ name, /** @type {string} */ words, /** @type {() => void} */ click) =>
            element('button', { type: 'button', class: 'pas', 'aria-label': words, title: words, click }, icon(name));
        this.start = button('Départ', 'play', () => this.toggle(), { class: 'principal depart', title: 'ou barre d’espace' });
        this.time = element('input', { type: 'range', min: 0, max: POSITIONS, step: 1, 'aria-label': 'Temps', input: () => this.do('Seek', clockwork.duration() * Number(this.time.value) / POSITIONS) });
        this.reading = element('output', { class: 'temps' });
        this.rates = element('select', { 'aria-label': 'Vitesse de la simulation', title: 'ralenti ou accéléré' }, ...RATES.map((rate, i) => element('option', { value: rate, selected: i === USUAL_RATE }, `×${BLANK}${frenchDigits(rate, 2)}`)));
        this.element = element('div', { class: 'transport', role: 'group', 'aria-label': 'Déroulement' },
            iconButton('to-start', 'Revenir au départ', () => this.do('Reset')), iconButton('back-step', 'Un pas en arrière', () => this.do('Step', -STEP)),
            this.start, iconButton('step', 'Un pas en avant', () => this.do('Step', STEP)), this.time, this.reading, this.rates);
    }

    /**
     * @param {'Reset' | 'Step' | 'Seek'} what
     * @param {...number} values
     */
    do(what, ...values) {
        this.clockwork.tell(what, ...values);
        this.moved();
    }

    toggle() {
        if (this.clockwork.duration() === 0) return;
        this.clockwork.tell('Toggle');
        this.moved();
        if (this.clockwork.now().isRunning) this.drive();
    }

    pause() {
        this.clockwork.tell('Pause');
        this.moved();
    }

    drive() {
        if (this.isDriving) return;
        this.isDriving = true;
        this.last = performance.now();
        this.next();
    }

    next() {
        if (calm.matches) setTimeout(() => this.picture(), CALM_PICTURE);
        else requestAnimationFrame(() => this.picture());
    }

    picture() {
        const wasRunning = this.clockwork.now().isRunning;
        const now = performance.now();
        this.clockwork.tell('Advance', Math.min((now - this.last) / 1000, LONGEST_PAUSE), Number(this.rates.value));
        this.last = now;
        this.moved();
        this.isDriving = this.clockwork.now().isRunning;
        if (this.isDriving) this.next();
        else if (wasRunning) this.ended();
    }

    show() {
        const { t, isRunning } = this.clockwork.now();
        const duration = this.clockwork.duration();
        const words = isRunning ? 'Pause' : 'Départ';
        if (this.start.textContent !== words) this.start.replaceChildren(icon(isRunning ? 'pause' : 'play'), element('span', {}, words));
        this.start.disabled = duration === 0;
        this.start.title = duration > 0 ? 'ou barre d’espace' : 'Lancé ainsi, le projectile reste au sol.';
        const position = duration > 0 ? Math.round(t / duration * POSITIONS) : 0;
        this.time.value = position;
        this.time.style.setProperty('--part', `${position / POSITIONS * 100}%`);
        const seconds = withUnit(frenchNumber(t, 2), 's');
        this.time.setAttribute('aria-valuetext', seconds);
        this.reading.replaceChildren(symbolInWords('t'), `${BLANK}=${BLANK}${seconds}`);
    }

    /**
     * Keys for the whole simulation, where no control takes them for itself.
     * @param {KeyboardEvent} event
     */
    pressed(event) {
        if (event.ctrlKey || event.altKey || event.metaKey) return;
        if (/** @type {Element} */ (event.target).closest('input, select, button, [role="region"]')) return;
        if (event.key === ' ' && !event.repeat) this.toggle();
        else if (event.key === 'Home') this.do('Reset');
        else if (event.key === 'ArrowLeft') this.do('Step', -STEP);
        else if (event.key === 'ArrowRight') this.do('Step', STEP);
        else if (event.key !== ' ') return;
        event.preventDefault();
    }
}
