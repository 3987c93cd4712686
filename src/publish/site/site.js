// @ts-check
'use strict';

/** Height of a printed sheet in pixels of the drawing, 800 to the width: A4 with its margins. */
const PRINTED_HEIGHT = 1125;

/** The site: one page of HTML, "#p12" is page 12 of the course, "#t3" the test of chapter 3, "#m23" the simulation 23. */
class Site {
    /** @param {CourseData} data */
    constructor(data) {
        this.course = new Course(data);
        this.progress = new Progress(data);
        this.scorm = new Scorm(this.course, this.progress);
        this.head = /** @type {HTMLElement} */ (document.getElementById('tete'));
        this.main = /** @type {HTMLElement} */ (document.getElementById('contenu'));
        this.foot = /** @type {HTMLElement} */ (document.getElementById('pied'));
        this.page = this.progress.data.page ?? data.debut;
        /** @type {{words: string[], ignoreAccents: boolean} | null} */
        this.marked = null;
        /** @type {Map<string, number>} */
        this.scrolls = new Map();
        /** @type {Map<number, {asked: string, view: SimulationView}>} */
        this.modules = new Map();
        /** @type {SimulationView | null} */
        this.module = null;
        this.shown = '';
        this.search = later(() => new SearchBox(this.course, (number, words, ignoreAccents) => this.showFound(number, words, ignoreAccents)));
        this.calculator = later(() => new CalculatorBox(this.course));
        /** @type {TestView | null} */
        this.test = null;
        this.contents = later(() => new ContentsBox(this.course, this.progress, () => this.startAgain()));
        this.buildHead();
        history.scrollRestoration = 'manual';
        window.addEventListener('hashchange', () => void this.route());
        window.addEventListener('keydown', (event) => this.pressed(event));
        void this.route();
    }

    buildHead() {
        const home = element('a', { class: 'marque', href: `#p${this.course.data.debut}` }, icon('orvalente'), element('span', {}, 'Orvalente'));
        const tools = element('nav', { 'aria-label': 'Outils' },
            button('Sommaire', 'summary', () => void this.withTools(() => this.contents().open(this.page)), { title: 'Sommaire (Alt+S)' }),
            button('Rechercher', 'search', () => void this.withTools(() => this.search().open()), { title: 'Rechercher dans le cours (Ctrl+L)' }),
            button('Calculatrice', 'calculator', () => void this.withTools(() => void this.calculator().open()), { title: 'Calculatrice scientifique' }),
            button('Imprimer', 'print', () => void this.askPrint(), { title: 'Imprimer la page ou le chapitre' }));
        this.head.append(home, tools);
    }

    /** @param {KeyboardEvent} event */
    pressed(event) {
        if (event.ctrlKey && event.key === 'l') void this.withTools(() => this.search().open());
        else if (event.altKey && event.key === 's') void this.withTools(() => this.contents().open(this.page));
        else if (event.ctrlKey && event.key === 'p') void this.askPrint();
        else return;
        event.preventDefault();
    }

    /**
     * Does what needs the scripts that come after the first page.
     * @param {() => void} use
     */
    async withTools(use) {
        try {
            await this.course.tools();
        } catch {
            return void tell('Outils', 'Il manque au site le fichier de ses outils, ou la connexion est coupée.');
        }
        use();
    }

    async route() {
        const [, kind, number, exercise] = /^#([ptm])(-?\d{1,6})(?:-(\d))?$/.exec(location.hash) ?? [undefined, 'p', String(this.page)];
        if (this.shown) this.scrolls.set(this.shown, window.scrollY);
        const key = `${kind}${number}`;
        this.module?.leave();
        this.module = null;
        try {
            if (kind === 't') await this.showTest(Number(number));
            else if (kind === 'm') await this.showModule(Number(number), exercise ?? '');
            else await this.showPage(Number(number));
            this.shown = key;
        } catch {
            this.tellMissing(key);
        }
    }

    /** Shows what progress has become: a test that is shown would write over it. */
    startAgain() {
        this.page = this.progress.data.page ?? this.course.data.debut;
        if (location.hash === `#p${this.page}`) void this.route();
        else location.hash = `#p${this.page}`;
    }

    /** @param {string} key */
    tellMissing(key) {
        this.main.replaceChildren(element('section', { class: 'avis-page', role: 'alert' },
            element('h1', {}, 'Cette page ne peut pas être montrée'),
            element('p', {}, `Il manque au site ce qui contient « ${key} », ou la connexion est coupée.`),
            element('p', {}, button('Réessayer', 'retry', () => void this.route()), ' ', element('a', { href: `#p${this.course.data.debut}` }, 'Première page'))));
        this.foot.replaceChildren();
    }

    /** @param {number} number */
    async showPage(number) {
        const data = await this.course.page(number);
        const sheet = new Sheet(data);
        this.page = number;
        const article = element('article', { class: 'page', 'aria-label': data.titre }, sheet.element);
        sheet.text.prepend(element('h1', { tabindex: '-1' }, data.titre));
        if (data.film || data.films) article.append(this.filmButton(data));
        this.main.replaceChildren(article);
        document.title = data.legende || data.titre || this.course.data.titre;
        this.buildFoot(number);
        this.progress.setPage(number);
        announce(data.titre);
        window.scrollTo(0, this.scrolls.get(`p${number}`) ?? 0);
        if (this.marked) {
            await document.fonts?.ready;
            const top = sheet.mark(this.marked.words, this.marked.ignoreAccents);
            if (top !== undefined) window.scrollBy(0, top - window.innerHeight / 3);
            this.marked = null;
        } else if (this.shown) {
            sheet.text.querySelector('h1')?.focus({ preventScroll: true });
        }
        this.prefetch(number);
    }

    /** The pages that come next, and the tools, are there before they are asked for. @param {number} number */
    prefetch(number) {
        const next = this.course.neighbour(number, 1);
        setTimeout(() => {
            if (next) this.course.page(next.numero).catch(() => {});
            this.course.tools().catch(() => {});
        }, 300);
    }

    /** @param {PageData} page */
    filmButton({ film, films }) {
        const show = button(films ? 'Les films' : 'Voir le film', 'video', () => {
            if (films) popUpMenu(show, films, 'Les films');
            else if (film?.absence) void tell('Film', film.absence);
            else if (film) void this.withTools(() => void new FilmBox(film).open());
        }, { class: 'principal' });
        return element('p', { class: 'boutons' }, show);
    }

    /** @param {number} number */
    buildFoot(number) {
        const before = this.course.neighbour(number, -1);
        const after = this.course.neighbour(number, 1);
        const link = (/** @type {PageEntry} */ page, /** @type {string} */ name, /** @type {string} */ words, /** @type {string} */ rel) =>
            element('a', { class: 'bouton', href: `#p${page.numero}`, rel, title: page.titre }, icon(name), element('span', {}, words));
        const begun = this.test?.data;
        const back = begun && begun.questions.length > 0 && this.progress.test(begun.chapitre) && !this.isComplete(begun.chapitre);
        this.foot.replaceChildren(
            element('nav', { 'aria-label': 'Dans ce chapitre' },
                before ? link(before, 'previous-in-chapter', 'Page précédente', 'prev') : element('span', {}),
                back ? element('a', { class: 'bouton principal', href: `#t${begun?.chapitre}` }, icon('back-to-test'), element('span', {}, 'Retrouver le test')) : element('span', { class: 'mots' }, before || after ? 'Dans ce chapitre' : ''),
                after ? link(after, 'next-in-chapter', 'Page suivante', 'next') : element('span', {})));
    }

    /** @param {number} chapter */
    isComplete(chapter) {
        const test = this.progress.test(chapter);
        return Boolean(test && test.donnees >= test.nombre);
    }

    /** @param {number} chapter */
    async showTest(chapter) {
        await this.course.tools();
        this.test ??= new TestView(this.course, this.progress, { openCalculator: () => void this.calculator().open(), leave: () => { location.hash = `#p${this.page}`; } });
        this.main.replaceChildren(this.test.element);
        this.foot.replaceChildren();
        await this.test.open(chapter);
        document.title = this.test.data?.titre || 'Test';
        window.scrollTo(0, 0);
    }

    /**
     * @param {number} module
     * @param {string} digit of the launch code: the exercise asked for; empty for none
     */
    async showModule(module, digit) {
        await this.course.simulationPages();
        if (!WEB_MODULES[module]) return this.tellOfModule(module);
        const known = this.modules.get(module);
        // What was set and answered is there again.
        if (known?.asked === digit) return this.putModule(known.view);
        const { codes } = await this.course.exercises(module);
        const put = (/** @type {SimulationView} */ view) => {
            this.modules.set(module, { asked: digit, view });
            this.putModule(view);
        };
        put(await openModule(this.course, module, codes[digit] ?? '', put));
    }

    /** @param {SimulationView} view */
    putModule(view) {
        this.module = view;
        this.main.replaceChildren(view.element);
        this.foot.replaceChildren(element('nav', { 'aria-label': 'Retour au cours' },
            element('a', { class: 'bouton', href: `#p${this.page}` }, icon('previous-page'), element('span', {}, 'Retour au cours'))));
        document.title = view.title;
        announce(view.title);
        window.scrollTo(0, 0);
        view.element.querySelector('h1')?.focus({ preventScroll: true });
    }

    /** @param {number} module */
    async tellOfModule(module) {
        history.replaceState(null, '', `#p${this.page}`);
        if (!this.shown) await this.showPage(this.page);
        await tell('Simulation', `La simulation ${module} est un programme à part : elle se lance depuis le cours installé sur un ordinateur, pas encore depuis un navigateur.`);
    }

    /**
     * @param {number} number
     * @param {string[]} words
     * @param {boolean} ignoreAccents
     */
    showFound(number, words, ignoreAccents) {
        this.marked = { words, ignoreAccents };
        this.scrolls.delete(`p${number}`);
        if (location.hash === `#p${number}`) void this.route();
        else location.hash = `#p${number}`;
    }

    async askPrint() {
        if (this.module) return void tell('Imprimer', 'Une simulation ne s’imprime pas : seules les pages du cours s’impriment.');
        const entry = this.course.entry(this.page);
        if (!entry?.imprimable) return void tell('Imprimer', 'Cette page n’est pas prévue pour être imprimée.');
        const chapter = this.course.data.pages.filter(({ numero, imprimable }) => imprimable && numero >= entry.de && numero <= entry.a).sort((a, b) => a.numero - b.numero);
        let pages = [entry];
        if (chapter.length > 1) {
            const answer = await tell('Imprimer', `Le chapitre a ${chapter.length} pages.`, ['Cette page', 'Le chapitre']);
            if (answer < 0) return;
            if (answer === 1) pages = chapter;
        }
        await this.print(pages);
    }

    /** @param {PageEntry[]} pages */
    async print(pages) {
        const place = /** @type {HTMLElement} */ (document.getElementById('impression'));
        place.replaceChildren();
        place.classList.add('mesure');
        for (const page of pages) {
            const data = await this.course.page(page.numero);
            for (const slice of slices(data.dessin, place)) {
                slice.dataset.titre = page.titre;
                place.append(slice);
            }
        }
        const sheets = /** @type {HTMLElement[]} */ ([...place.children]);
        sheets.forEach((sheet, i) => sheet.append(element('p', { class: 'pied-feuille' }, `${sheet.dataset.titre} – feuille ${i + 1} sur ${sheets.length}`)));
        place.classList.remove('mesure');
        await document.fonts?.ready;
        window.print();
    }
}

/**
 * A drawing cut into sheets between its lines.
 * @param {string} drawing
 * @param {HTMLElement} place where it can be measured
 * @returns {HTMLElement[]}
 */
function slices(drawing, place) {
    const holder = element('div', {});
    holder.innerHTML = drawing;
    place.append(holder);
    const svg = /** @type {SVGSVGElement} */ (holder.querySelector('svg'));
    const height = svg.viewBox.baseVal.height;
    const scale = height / svg.getBoundingClientRect().height;
    const top = svg.getBoundingClientRect().top;
    const spans = [...svg.querySelectorAll('text, use')].map((part) => part.getBoundingClientRect()).filter((box) => box.height > 0)
        .map((box) => [(box.top - top) * scale, (box.bottom - top) * scale]);
    holder.remove();
    const sheets = [];
    for (let from = 0; from < height - 1;) {
        let to = Math.min(height, from + PRINTED_HEIGHT);
        // Up to where no line is cut; what is taller than a sheet is cut all the same.
        for (let cut = spans.find(([a, b]) => to < height && a < to && b > to && a > from); cut; cut = spans.find(([a, b]) => a < to && b > to && a > from)) to = cut[0];
        const sheet = element('div', { class: 'feuille-imprimee' });
        sheet.innerHTML = drawing;
        sheet.querySelector('svg').setAttribute('viewBox', `0 ${from} 800 ${to - from}`);
        sheets.push(sheet);
        from = to;
    }
    return sheets;
}

orvalente.whenCourse = () => new Site(orvalente.received.get('cours'));
