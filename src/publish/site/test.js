// @ts-check
'use strict';

/** Characters that separate fields cannot be part of an answer. @param {string} text */
function plainAnswer(text) {
    return text.replace(/[\x00-\x1f]/g, ' ');
}

/** Width and height of a tick, in pixels of the drawing: it leaves its words 2 pixels. */
const TICK = 18;

/** @param {string} number */
function colourOf(number) {
    return `#${Number(number).toString(16).padStart(6, '0')}`;
}

/** A test: the session is the shell's, this shows what it tells. */
class TestView {
    /**
     * @param {Course} course
     * @param {Progress} progress
     * @param {{openCalculator: () => void, leave: () => void}} ways
     */
    constructor(course, progress, ways) {
        this.course = course;
        this.progress = progress;
        this.ways = ways;
        /** @type {TestData | null} */
        this.data = null;
        /** @type {Program | null} */
        this.program = null;
        /** @type {Map<string, any>} */
        this.controls = new Map();
        this.current = 1;

        this.title = element('h1', { tabindex: '-1' });
        this.caption = element('h2', { class: 'rang' });
        this.verdict = element('p', { class: 'verdict', role: 'status' });
        this.strip = element('ol', { class: 'bande', 'aria-label': 'Questions' });
        this.area = element('div', { class: 'question' });
        this.overlay = element('div', { class: 'champs' });
        this.previous = button('Précédente', 'previous-page', () => this.run('testPrevious'));
        this.next = button('Suivante', 'next-page', () => this.run('testNext'), { class: 'apres' });
        this.validate = button('Valider', 'validate', () => this.validateNow(), { class: 'principal' });
        this.score = button('Score', 'score', () => this.run('testScore'));
        this.summary = button('Bilan', 'summary', () => this.showSummary());
        const calculator = button('Calculatrice', 'calculator', () => this.ways.openCalculator(), { class: 'aussi-en-tete' });
        const close = button('Fermer', 'close', () => void this.close());
        this.element = element('section', { class: 'test', 'aria-label': 'Test' },
            element('div', { class: 'titre-test' }, this.title, calculator, close),
            element('div', { class: 'test-corps' }, this.strip,
                element('div', { class: 'test-droite' }, element('div', { class: 'rang-verdict' }, this.caption, this.verdict), this.area,
                    element('div', { class: 'boutons' }, this.previous, this.validate, this.summary, this.score, this.next))));
        new ResizeObserver(() => this.placeOverlay()).observe(this.area);
    }

    /** @param {number} chapter */
    async open(chapter) {
        [this.data, this.program] = await Promise.all([this.course.test(chapter), this.course.program()]);
        const records = [[this.data.chapitre, plainAnswer(this.data.titre), this.data.nombre],
            ...this.data.questions.map((question, i) => [i + 1, question.type, question.solution === null ? 0 : 1, plainAnswer(question.solution ?? ''),
                ...[question.seule, question.commentaire].flatMap((drawn) => ['check', 'option'].map((kind) =>
                    drawn.champs.filter(({ sorte }) => sorte === kind).reduce((bits, { rang }) => bits | (1 << rang), 0)))])];
        const text = records.map((fields) => fields.join(FIELD_END)).join(RECORD_END);
        const kept = this.progress.test(chapter)?.etat ?? '';
        const units = this.program.put(text + RECORD_END + RECORD_END + kept);
        this.run('testOpen', units);
        this.title.focus();
    }

    /**
     * @param {string} name
     * @param {...number} values
     */
    run(name, ...values) {
        if (!this.program || !this.data) return false;
        const events = this.program.askRecords(name, ...values);
        let isClosed = false;
        for (const [what, ...fields] of events) {
            if (what === 'closed') isClosed = true;
            else this.show(what, fields);
        }
        this.keep(isClosed);
        return isClosed;
    }

    /** @param {boolean} isClosed */
    keep(isClosed) {
        if (!this.program || !this.data) return;
        const [justes, donnees, nombre] = this.program.ask('testCounts').split(FIELD_END).map(Number);
        const etat = this.program.ask('testState');
        // A test that was given up leaves what it was worth before.
        if (!isClosed && (donnees > 0 || this.progress.test(this.data.chapitre)))
            this.progress.setTest(this.data.chapitre, { etat, justes, donnees, nombre });
    }

    /**
     * What the session does to its window.
     * @param {string} what
     * @param {string[]} fields
     */
    show(what, fields) {
        const [first, second, third] = fields;
        const isOn = first === '1';
        switch (what) {
        case 'title': this.title.textContent = first; break;
        case 'caption': this.caption.textContent = first; break;
        case 'previous': this.previous.disabled = !isOn; break;
        case 'next': this.next.disabled = !isOn; break;
        case 'validate': this.validate.hidden = !isOn; break;
        case 'score': this.score.hidden = !isOn; break;
        case 'summaryOffered': this.summary.hidden = !isOn; break;
        case 'verdict': this.showVerdict(fields); break;
        case 'marker': this.current = Number(first); this.showStrip(); break;
        case 'strip': this.showStrip(); break;
        case 'clear': this.area.textContent = ''; this.controls.clear(); break;
        case 'draw': this.draw(first); break;
        case 'select': this.setChecked(`${first}${second}`, third === '1'); break;
        case 'disable': { const control = this.controls.get(`${first}${second}`); if (control) control.disabled = true; break; }
        case 'mark': this.addMark(`${first}${second}`, third === '1'); break;
        case 'typed': { const control = this.controls.get('text0'); if (control) control.value = first; break; }
        case 'right': announce('Réponse exacte'); break;
        case 'summary': this.showSummary(); break;
        case 'tell': void tell(first, second); break;
        default: break; // faces and the focus of the strip are the window's own
        }
    }

    /** @param {string[]} fields */
    showVerdict([right, expected]) {
        const isShown = right !== undefined;
        this.verdict.className = `verdict ${right === '1' ? 'juste' : 'faux'}`;
        this.verdict.hidden = !isShown;
        this.verdict.textContent = !isShown ? '' : right === '1' ? 'Réponse juste' : expected ? `Faux. Réponse attendue : ${expected}` : 'Réponse fausse';
    }

    showStrip() {
        this.strip.textContent = '';
        (this.program?.askRecords('testStrip') ?? []).forEach(([caption, name, state, light, frame, middle], i) => {
            const band = element('button', { type: 'button', 'aria-label': name, ...(i + 1 === this.current ? { 'aria-current': 'step' } : {}), click: () => this.run('testChoose', i + 1) },
                element('span', { class: 'nom-long' }, caption), element('span', { class: 'nom-court' }, String(i + 1)), element('span', { class: 'signe', 'aria-hidden': 'true' }, { 1: '✓', '-1': '✗' }[state] ?? ''));
            Object.assign(band.style, { background: colourOf(middle), borderColor: colourOf(frame), outlineColor: colourOf(light) });
            this.strip.append(element('li', {}, band));
        });
    }

    /** Draws "q3" or, with its comment, "q3c". @param {string} name */
    draw(name) {
        const question = this.data?.questions[Number.parseInt(name.slice(1), 10) - 1];
        if (!question) return;
        const drawn = name.endsWith('c') ? question.commentaire : question.seule;
        const sheet = new Sheet(drawn);
        sheet.element.classList.add('feuille-question');
        this.overlay = element('div', { class: 'champs' });
        for (const field of drawn.champs)
            if (field.vers) this.addLink(field, drawn.champs);
            else this.addControl(field);
        sheet.element.append(this.overlay);
        this.area.append(sheet.element);
        this.placeOverlay();
    }

    /**
     * A picture beside its words is no stop of its own.
     * @param {FieldData} field
     * @param {FieldData[]} all
     */
    addLink(field, all) {
        const isDouble = all.some((other) => other !== field && other.vers === field.vers && other.nom.length > field.nom.length);
        const link = element('a', { href: field.vers, class: 'lien-question', ...(isDouble ? { tabindex: '-1', 'aria-hidden': 'true' } : { 'aria-label': field.nom || 'Page du cours' }) });
        Object.assign(link.style, { left: `${field.x}px`, top: `${field.y}px`, width: `${field.l}px`, height: `${field.h}px` });
        this.overlay.append(link);
    }

    /** @param {FieldData} field */
    addControl(field) {
        const isText = field.sorte === 'text';
        const control = element('input', { type: isText ? 'text' : field.sorte === 'check' ? 'checkbox' : 'radio', name: isText ? 'reponse' : `choix-${field.sorte}`,
            'aria-label': field.nom || (isText ? 'Réponse' : `Choix ${field.rang + 1}`), autocomplete: 'off', spellcheck: 'false', class: `champ-${field.sorte}` });
        // A tick stands before its words, in the middle of their line.
        Object.assign(control.style, isText ? { left: `${field.x}px`, top: `${field.y}px`, width: `${field.l}px`, height: `${Math.max(field.h, 24)}px` }
            : { left: `${field.x - 2}px`, top: `${field.y + (field.h - TICK) / 2}px`, width: `${TICK}px`, height: `${TICK}px` });
        if (isText) control.addEventListener('keydown', (/** @type {KeyboardEvent} */ event) => { if (event.key === 'Enter') this.validateNow(); });
        this.controls.set(`${field.sorte}${field.rang}`, control);
        if (!isText) this.overlay.append(this.wordsOf(field, control));
        this.overlay.append(control);
    }

    /**
     * The words of a choice choose it too: a finger finds them more easily.
     * @param {FieldData} field
     * @param {HTMLInputElement} control
     */
    wordsOf(field, control) {
        const words = element('span', { class: 'mots-du-choix', 'aria-hidden': 'true', click: () => { if (!control.disabled) control.click(); } });
        Object.assign(words.style, { left: `${field.x - 4}px`, top: `${field.y + field.h / 2 - 15}px`, width: `${Math.max(28, (field.fin ?? field.x) - field.x + 8)}px` });
        return words;
    }

    /** The controls stand on the drawing, whatever size it is shown at. */
    placeOverlay() {
        const svg = this.area.querySelector('svg');
        if (!svg) return;
        const scale = svg.getBoundingClientRect().width / svg.viewBox.baseVal.width;
        this.overlay.style.transform = `scale(${scale})`;
    }

    /**
     * @param {string} name
     * @param {boolean} isRight
     */
    addMark(name, isRight) {
        const control = this.controls.get(name);
        if (!control) return;
        const mark = element('span', { class: `signe-champ ${isRight ? 'juste' : 'faux'}`, role: 'img', 'aria-label': isRight ? 'à choisir' : 'à ne pas choisir' }, isRight ? '✓' : '✗');
        mark.style.left = `${Number.parseFloat(control.style.left) + (name.startsWith('text') ? control.offsetWidth + 8 : -24)}px`;
        mark.style.top = control.style.top;
        this.overlay.append(mark);
    }

    /**
     * @param {string} name
     * @param {boolean} isChecked
     */
    setChecked(name, isChecked) {
        const control = this.controls.get(name);
        if (control) control.checked = isChecked;
    }

    validateNow() {
        if (!this.program || this.validate.hidden) return;
        const bits = (/** @type {string} */ kind) => [0, 1, 2, 3, 4].reduce((all, i) => all | (this.controls.get(`${kind}${i}`)?.checked ? 1 << i : 0), 0);
        const typed = plainAnswer(this.controls.get('text0')?.value ?? '').replaceAll('.', ',');
        const units = this.program.put(typed);
        this.run('testValidate', bits('check'), bits('option'), units);
    }

    showSummary() {
        if (!this.program || !this.data) return;
        const wrong = this.program.askRecords('testWrong');
        const [right, answered] = this.program.ask('testCounts').split(FIELD_END).map(Number);
        this.area.textContent = '';
        this.controls.clear();
        this.caption.textContent = 'Bilan du test';
        this.verdict.hidden = true;
        this.validate.hidden = true;
        const list = element('ul', { class: 'bilan' });
        for (const [number, type, given, solution] of wrong) list.append(this.wrongEntry(Number(number), Number(type), given, solution));
        this.area.append(element('div', { class: 'bilan-texte' },
            element('p', {}, element('strong', {}, wrong.length === 0 ? 'Toutes vos réponses sont justes.' : `${right} ${right < 2 ? 'réponse juste' : 'réponses justes'} sur ${answered}. À revoir :`)),
            list,
            element('div', { class: 'boutons' }, button('Refaire le test', 'retry', () => this.run('testRetake')),
                wrong.length > 0 && button('Refaire les fautes', 'retry', () => this.run('testRetakeWrong'), { class: 'principal' }))));
    }

    /**
     * @param {number} number
     * @param {number} type
     * @param {string} given
     * @param {string} solution
     */
    wrongEntry(number, type, given, solution) {
        const { champs } = /** @type {TestData} */ (this.data).questions[number - 1].commentaire;
        const words = (/** @type {string} */ code) => (type === 3 ? code.trim()
            : champs.filter(({ sorte, rang }) => sorte === (type === 1 ? 'check' : 'option') && code[rang] === '1').map(({ nom, rang }) => nom || `choix ${rang + 1}`).join(' ; ')) || 'aucune';
        const link = champs.find(({ vers }) => vers);
        return element('li', {},
            element('p', {}, element('button', { type: 'button', class: 'lien', click: () => this.run('testChoose', number) }, `Question ${number}`)),
            element('p', { class: 'faux' }, element('span', { 'aria-hidden': 'true' }, '✗ '), `Votre réponse : ${words(given)}`),
            element('p', { class: 'juste' }, element('span', { 'aria-hidden': 'true' }, '✓ '), `Bonne réponse : ${words(solution)}`),
            link && element('p', {}, element('a', { href: link.vers }, link.nom || 'page du cours')));
    }

    async close() {
        if (!this.program) return;
        const events = this.program.askRecords('testClose', 0);
        const question = events.find(([what]) => what === 'ask');
        if (question) {
            const sure = await tell(question[1], question[2], ['Oui', 'Non']);
            if (sure !== 0 || !this.run('testClose', 1)) return;
        }
        this.ways.leave();
    }
}
