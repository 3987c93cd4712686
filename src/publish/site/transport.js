// @ts-check
'use strict';

/** Speeds of a simulation, and the usual one. */
const RATES = [0.1, 0.25, 0.5, 1, 2, 5, 10];
const USUAL_RATE = 3;

/** A machine that slept does not make things jump; s. */
const LONGEST_PAUSE = 0.25;

/** Between two pictures for who wants little motion: single pictures instead of a movement; ms. */
const CALM_PICTURE = 250;

/** Positions of the slider. */
const POSITIONS = 1000;

const calm = matchMedia('(prefers-reduced-motion: reduce)');

/** Start, pause, steps, and the time as a slider; it drives the simulation while it runs. */
class TransportBar {
    /**
     * @param {Simulation} simulation
     * @param {Transport} words
     * @param {{moved: () => void, ended: () => void}} then to be called when the time has changed, and when it has run to its end
     */
    constructor(simulation, words, { moved, ended }) {
        this.simulation = simulation;
        this.words = words;
        this.moved = moved;
        this.ended = ended;
        this.last = 0;
        this.isDriving = false;
        const iconButton = (/** @type {string} */ name, /** @type {string} */ caption, /** @type {() => void} */ click) =>
            element('button', { type: 'button', class: 'pas', 'aria-label': caption, title: caption, click }, icon(name));
        this.start = button('Départ', 'play', () => this.toggle(), { class: 'principal depart' });
        this.time = element('input', { type: 'range', min: 0, max: POSITIONS, step: 1, 'aria-label': words.slider, input: () => this.do('Seek', simulation.time().duration * Number(this.time.value) / POSITIONS) });
        this.reading = element('output', { class: 'temps' });
        this.rates = element('select', { 'aria-label': 'Vitesse de la simulation', title: 'ralenti ou accéléré', hidden: !words.hasRates }, ...RATES.map((rate, i) => element('option', { value: rate, selected: i === USUAL_RATE }, `×${BLANK}${simulation.program.frenchDigits(rate, 2)}`)));
        this.element = element('div', { class: 'transport', role: 'group', 'aria-label': 'Déroulement' },
            iconButton('to-start', 'Revenir au départ', () => this.do('Reset')), iconButton('back-step', 'Un pas en arrière', () => this.do('Step', -words.step)),
            this.start, iconButton('step', 'Un pas en avant', () => this.do('Step', words.step)), this.time, this.reading, this.rates);
    }

    /**
     * @param {'Reset' | 'Step' | 'Seek'} what
     * @param {number} [seconds]
     */
    do(what, seconds) {
        this.simulation.play(what, seconds);
        this.moved();
    }

    toggle() {
        if (this.simulation.time().duration === 0) return;
        this.simulation.play('Toggle');
        this.moved();
        if (this.simulation.time().isRunning) this.drive();
    }

    pause() {
        this.simulation.play('Pause');
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
        const wasRunning = this.simulation.time().isRunning;
        const now = performance.now();
        this.simulation.play('Advance', Math.min((now - this.last) / 1000, LONGEST_PAUSE), Number(this.rates.value));
        this.last = now;
        this.moved();
        this.isDriving = this.simulation.time().isRunning;
        if (this.isDriving) this.next();
        else if (wasRunning) this.ended();
    }

    show() {
        const { t, duration, isRunning } = this.simulation.time();
        const { name, value } = this.simulation.moment();
        const words = isRunning ? 'Pause' : 'Départ';
        if (this.start.textContent !== words) this.start.replaceChildren(icon(isRunning ? 'pause' : 'play'), element('span', {}, words));
        this.start.disabled = duration === 0;
        this.start.title = duration > 0 ? 'ou barre d’espace' : this.words.nothing;
        const position = duration > 0 ? Math.round(t / duration * POSITIONS) : 0;
        this.time.value = position;
        this.time.style.setProperty('--part', `${position / POSITIONS * 100}%`);
        this.time.setAttribute('aria-valuetext', value);
        this.reading.replaceChildren(element('i', {}, name), `${BLANK}=${BLANK}${value}`);
    }

    /**
     * Keys for the whole simulation; whether one was taken.
     * @param {KeyboardEvent} event
     */
    pressed(event) {
        if (event.key === ' ') event.repeat || this.toggle(); // held down it starts, and does not stop again
        else if (event.key === 'Home') this.do('Reset');
        else if (event.key === 'ArrowLeft') this.do('Step', -this.words.step);
        else if (event.key === 'ArrowRight') this.do('Step', this.words.step);
        else return false;
        return true;
    }
}
