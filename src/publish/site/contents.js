// @ts-check
'use strict';

/** The list of pages and tests, and what becomes of the progress. */
class ContentsBox {
    /**
     * @param {Course} course
     * @param {Progress} progress
     * @param {() => void} changed told when the progress has become another
     */
    constructor(course, progress, changed) {
        this.course = course;
        this.progress = progress;
        this.changed = changed;
        this.file = element('input', { type: 'file', accept: '.json,application/json', hidden: true, 'aria-label': 'Progression', change: () => void this.takeBack() });
        this.lists = element('div', {});
        this.dialog = makeDialog('Sommaire', 'sommaire', this.lists,
            element('h3', {}, 'Ma progression'),
            element('p', {}, progress.isKept ? 'Elle reste sur cet appareil.' : 'La plateforme la garde.'),
            element('div', { class: 'boutons' }, button('Enregistrer dans un fichier', '', () => this.progress.exportFile()),
                button('Reprendre d’un fichier', '', () => this.file.click()), button('Effacer', 'erase', () => void this.erase())), this.file);
    }

    /** @param {number} page where one is */
    open(page) {
        this.lists.replaceChildren(element('h3', {}, 'Pages'), element('div', { class: 'chapitres' }, ...this.course.chapters().map((chapter) => this.thread(chapter, page))),
            element('h3', {}, 'Tests'), element('ul', {}, ...this.course.data.tests.map((test) => this.test(test))));
        if (!this.dialog.open) this.dialog.showModal();
        const here = this.lists.querySelector('[aria-current]');
        here?.scrollIntoView({ block: 'center' });
        here?.focus();
    }

    /**
     * Pages that follow each other, shut but for those where one is.
     * @param {PageEntry[]} pages
     * @param {number} here
     */
    thread(pages, here) {
        const list = element('ul', {}, ...pages.map((page) => element('li', {}, this.link(`#p${page.numero}`, page.titre || `Page ${page.numero}`, page.numero === here))));
        if (pages.length === 1) return list;
        const isOpen = pages.some(({ numero }) => numero === here);
        return element('details', { open: isOpen }, element('summary', {}, element('span', {}, pages[0].titre || `Page ${pages[0].numero}`), element('small', {}, `${pages.length} pages`)), list);
    }

    /** @param {TestEntry} test */
    test(test) {
        const done = this.progress.test(test.chapitre);
        return element('li', {}, this.link(`#t${test.chapitre}`, test.titre || `Test ${test.chapitre}`, false), done && element('small', {}, ` ${done.justes}/${done.nombre}`));
    }

    /**
     * @param {string} to
     * @param {string} words
     * @param {boolean} isHere
     */
    link(to, words, isHere) {
        return element('a', { href: to, click: () => this.dialog.close(), ...(isHere ? { 'aria-current': 'page' } : {}) }, words);
    }

    async erase() {
        if (await tell('Effacer', 'Effacer toutes les réponses gardées ?', ['Effacer', 'Annuler']) !== 0) return;
        this.progress.erase();
        this.dialog.close();
        this.changed();
    }

    async takeBack() {
        const file = this.file.files[0];
        if (!file) return;
        const text = file.size <= LONGEST_FILE ? await file.text().catch(() => '') : '';
        this.file.value = ''; // the same file may be chosen again
        const { data, refusal } = this.progress.read(text);
        if (!data) return void tell('Reprendre', refusal ?? '');
        const isSomething = Object.keys(this.progress.data.tests).length > 0;
        if (isSomething && await tell('Reprendre', 'Remplacer les réponses gardées par celles du fichier ?', ['Remplacer', 'Annuler']) !== 0) return;
        this.progress.replace(data);
        this.dialog.close();
        this.changed();
        const count = Object.keys(this.progress.data.tests).length;
        void tell('Reprendre', count === 0 ? 'La progression est reprise.' : count === 1 ? 'La progression est reprise : un test.' : `La progression est reprise : ${count} tests.`);
    }
}
