// @ts-check
'use strict';

/** The page of module 23: motion of a projectile. */
class ProjectileView {
    /** @param {Program} program */
    constructor(program) {
        this.title = 'Mouvement d’un projectile';
        this.projectile = new Projectile(program);
        const changed = () => this.show();
        const moved = () => this.showMoment();
        this.panel = new LaunchPanel(this.projectile, changed);
        this.trajectory = new TrajectoryPlot(this.projectile, changed);
        this.energies = new EnergyPlot(this.projectile);
        this.table = new ValueTable(this.projectile, moved);
        this.readings = new Readings(this.projectile);
        this.duration = 0;
        this.transport = new TransportBar({ tell: (what, ...values) => this.projectile.tell(what, ...values), now: () => this.projectile.now(), duration: () => this.duration }, moved, () => this.tellLanding());
        this.legend = element('ul', { class: 'legende' });
        this.scales = element('ul', { class: 'legende echelles' });
        this.tabs = new Tabs('Vues', [
            ['Trajectoire', [this.trajectory.element, this.legend, this.scales, this.choices()]],
            ['Énergies', [this.energies.element, this.energies.legend]],
            ['Tableau', [this.table.element]]]);
        this.element = element('section', { class: 'simulation', tabindex: '-1', 'aria-labelledby': 'titre-simulation', keydown: (/** @type {KeyboardEvent} */ event) => this.transport.pressed(event) },
            element('h1', { id: 'titre-simulation', tabindex: '-1' }, this.title),
            element('div', { class: 'simulation-corps' }, this.panel.element,
                element('div', { class: 'vues' }, this.tabs.element, this.readings.element, this.transport.element)));
        this.show();
    }

    choices() {
        const { shown } = this.trajectory;
        /** @type {[string, keyof typeof shown][]} */
        const all = [['vitesse', 'speed'], ['ses composantes', 'components'], ['accélération', 'acceleration'], ['points', 'points']];
        return element('div', { class: 'choix' }, ...all.map(([words, what]) => {
            const box = element('input', { type: 'checkbox', checked: shown[what], change: () => {
                shown[what] = box.checked;
                this.showScales();
                this.trajectory.drawMoment();
            } });
            return element('label', { class: 'case' }, box, words);
        }));
    }

    /** The launch has changed, so everything. */
    show() {
        this.duration = this.projectile.flight(THIS_FLIGHT, 1).duration;
        this.panel.show();
        for (const one of [this.trajectory, this.energies, this.table]) one.draw();
        this.readings.show();
        this.showLegend();
        this.showScales();
        this.showMoment();
    }

    showMoment() {
        for (const one of [this.trajectory, this.energies, this.table]) one.drawMoment();
        this.readings.showMoment();
        this.transport.show();
    }

    showLegend() {
        const count = this.projectile.keptCount;
        const row = (/** @type {number} */ which, /** @type {string} */ ink, /** @type {string} */ dashes) => element('li', {}, sampleLine(ink, dashes), element('span', {}, ...this.projectile.description(which)));
        this.legend.hidden = count === 0;
        this.legend.replaceChildren(row(THIS_FLIGHT, INKS.blue, 'none'), ...STROKES.slice(0, count).map(([ink, dashes], i) => row(i, ink, dashes)));
    }

    showScales() {
        const { speed, components, acceleration, points } = this.trajectory.shown;
        const length = (/** @type {number} */ pixels, /** @type {string} */ ink, /** @type {string} */ words) =>
            element('li', {}, drawn('svg', { width: pixels, height: 12, 'aria-hidden': 'true' }, arrow([0, 6], [pixels, 6], ink, '')), words);
        const dot = drawn('svg', { width: 10, height: 12, 'aria-hidden': 'true' }, drawn('circle', { cx: 5, cy: 6, r: 3.5, stroke: INKS.blue, 'stroke-width': 1.3, fill: '#bcd0e8' }));
        this.scales.replaceChildren(...[
            (speed || components) && length(10 * PER_SPEED, INKS.red, `10${BLANK}m/s`),
            acceleration && length(10 * PER_ACCELERATION, INKS.violet, `10${BLANK}m/s²`),
            points && element('li', {}, dot, `un point toutes les ${withUnit(frenchDigits(this.projectile.strobe().interval, 2), 's')}`)].filter(Boolean));
    }

    tellLanding() {
        const { t, x } = this.projectile.now();
        announce(`Le projectile touche le sol à ${frenchNumber(t, 2)} s, à ${frenchNumber(x, 2)} m du départ.`);
    }

    /** The page is left: nothing runs that nobody sees. */
    leave() {
        this.transport.pause();
    }
}
