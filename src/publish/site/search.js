// @ts-check
'use strict';

/** The search through the course; what was found and looked for stays until the next search. */
class SearchBox {
    /**
     * @param {Course} course
     * @param {(number: number, words: string[], ignoreAccents: boolean) => void} show
     */
    constructor(course, show) {
        this.course = course;
        this.show = show;
        this.words = element('input', { type: 'search', id: 'mots', autocomplete: 'off', spellcheck: 'false' });
        this.all = element('input', { type: 'checkbox' });
        this.accents = element('input', { type: 'checkbox' });
        this.notice = element('p', { class: 'avis', role: 'status' });
        this.list = element('ul', { class: 'trouvees' });
        const form = element('form', { class: 'recherche-champs', submit: (/** @type {Event} */ event) => { event.preventDefault(); void this.run(); } },
            element('label', { for: 'mots' }, 'Saisir le(s) mot(s) à rechercher :'),
            element('div', { class: 'ligne' }, this.words, element('button', { type: 'submit', class: 'principal' }, 'Rechercher')),
            element('label', { class: 'case' }, this.all, 'Tous les mots'),
            element('label', { class: 'case' }, this.accents, 'Ignorer les accents'));
        this.dialog = makeDialog('Rechercher', 'recherche', form, this.notice, this.list);
    }

    open() {
        if (!this.dialog.open) this.dialog.showModal();
        this.words.select();
    }

    async run() {
        this.list.textContent = '';
        this.notice.textContent = 'Recherche…';
        try {
            const program = await this.course.searching();
            const { isSearched, pages } = program.search(this.words.value, this.all.checked, this.accents.checked);
            this.tellCount(isSearched, pages.length);
            for (const page of pages) this.addPage(page);
        } catch {
            this.notice.textContent = 'La recherche ne peut pas démarrer dans ce navigateur.';
        }
    }

    /**
     * @param {boolean} isSearched
     * @param {number} count
     */
    tellCount(isSearched, count) {
        if (!isSearched) this.notice.textContent = 'Saisissez au moins deux caractères.';
        else if (count === 0) this.notice.textContent = `Aucune page trouvée.${this.accents.checked ? '' : ' Essayez « Ignorer les accents ».'}`;
        else this.notice.textContent = count === 1 ? '1 page trouvée' : `${count} pages trouvées`;
    }

    /** @param {{number: number, title: string, isHidden: boolean}} page */
    addPage(page) {
        const words = this.words.value.split(/\s+/);
        const ignores = this.accents.checked;
        const title = this.course.entry(page.number)?.titre || page.title;
        this.list.append(element('li', {}, element('button', { type: 'button', click: () => { this.dialog.close(); this.show(page.number, words, ignores); } },
            title, page.isHidden && element('small', {}, ' (rien ne s’y lit)'))));
    }
}
