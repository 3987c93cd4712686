// @ts-check
'use strict';

/** Several views of which one is shown; arrows lead from tab to tab. */
class Tabs {
    /**
     * @param {string} name
     * @param {[string, Node[]][]} views captions and what they show
     */
    constructor(name, views) {
        this.tabs = views.map(([words], i) => element('button', { type: 'button', role: 'tab', id: `onglet-${i}`, 'aria-controls': `vue-${i}`, click: () => this.choose(i) }, words));
        this.panels = views.map(([, shown], i) => element('div', { role: 'tabpanel', id: `vue-${i}`, class: 'vue', 'aria-labelledby': `onglet-${i}` }, ...shown));
        const list = element('div', { class: 'onglets', role: 'tablist', 'aria-label': name, keydown: (/** @type {KeyboardEvent} */ event) => this.pressed(event) }, ...this.tabs);
        this.element = element('div', { class: 'cadre-vues' }, list, ...this.panels);
        this.chosen = 0;
        this.choose(0);
    }

    /** @param {number} which */
    choose(which) {
        this.chosen = which;
        this.tabs.forEach((tab, i) => {
            tab.setAttribute('aria-selected', String(i === which));
            tab.tabIndex = i === which ? 0 : -1;
            this.panels[i].hidden = i !== which;
        });
    }

    /** @param {KeyboardEvent} event */
    pressed(event) {
        const count = this.tabs.length;
        const to = { ArrowRight: this.chosen + 1, ArrowLeft: this.chosen + count - 1, Home: 0, End: count - 1 }[event.key];
        if (to === undefined) return;
        this.choose(to % count);
        this.tabs[this.chosen].focus();
        event.preventDefault();
        event.stopPropagation();
    }
}
