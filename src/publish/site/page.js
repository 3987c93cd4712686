// @ts-check
'use strict';

/**
 * Small letters without accents, each unit for itself, so that places stay.
 * @param {string} text
 * @param {boolean} ignoreAccents
 */
function folded(text, ignoreAccents) {
    const small = [...text].map((c) => (c.toLowerCase().length === c.length ? c.toLowerCase() : c)).join('');
    if (!ignoreAccents) return small;
    return [...small].map((c) => (c === '’' ? "'" : c.normalize('NFD')[0].length === c.length ? c.normalize('NFD')[0] : c)).join('');
}

/** Places on the drawing of a page, in its pixels (viewer/page_sheet.cpp). */
const PAGE_WIDTH = 800;
const COLUMN = { left: 168, width: 616 };
const MARGIN = { left: 9, top: 41, height: 376 };

const narrow = matchMedia('(max-width: 720px)');

/** A drawing with its text beside it, its menus and the marks of a search. */
class Sheet {
    /** @param {{dessin: string, texte: string, menus?: Record<string, [string, string][]>}} data */
    constructor(data) {
        this.data = data;
        this.drawing = element('div', { class: 'dessin' });
        this.drawing.innerHTML = data.dessin;
        const [, , width, height] = (this.svg?.getAttribute('viewBox') ?? '').split(' ').map(Number);
        this.isCoursePage = width === PAGE_WIDTH;
        this.height = height;
        this.text = element('div', { class: 'lu' });
        this.text.innerHTML = data.texte;
        this.marks = element('div', { class: 'marques', 'aria-hidden': 'true' });
        this.element = element('div', { class: 'feuille' }, this.drawing, this.marks, this.text);
        this.fit();
        narrow.addEventListener('change', () => this.fit());
        this.element.addEventListener('click', (/** @type {MouseEvent} */ event) => this.clicked(event));
        this.text.addEventListener('focusin', (/** @type {FocusEvent} */ event) => this.showFocus(event.target));
        this.text.addEventListener('focusout', () => this.showFocus(null));
    }

    /** @returns {SVGSVGElement} */
    get svg() {
        return this.drawing.querySelector('svg');
    }

    /** On a narrow screen the column takes all of its width, and the illustration follows it. */
    fit() {
        const { svg } = this;
        this.element.querySelector('.marge')?.remove();
        if (!svg || !this.isCoursePage) return;
        svg.setAttribute('viewBox', narrow.matches ? `${COLUMN.left} 0 ${COLUMN.width} ${this.height}` : `0 0 ${PAGE_WIDTH} ${this.height}`);
        if (!narrow.matches || !svg.querySelector(`g[transform^="translate(${MARGIN.left} "] > *`)) return;
        const margin = /** @type {SVGSVGElement} */ (svg.cloneNode(true));
        margin.setAttribute('viewBox', `0 ${MARGIN.top} ${COLUMN.left} ${MARGIN.height}`);
        this.element.append(element('div', { class: 'marge dessin' }, margin));
    }

    /** @param {MouseEvent} event */
    clicked(event) {
        const link = /** @type {Element} */ (event.target).closest('a');
        const to = link?.getAttribute('href');
        if (!link || !to?.startsWith('#f')) return;
        event.preventDefault();
        const entries = this.data.menus?.[to.slice(2)];
        const shown = this.drawnLink(link) ?? link;
        if (entries) popUpMenu(shown, entries, link.textContent?.trim() || 'Menu');
    }

    /** @param {Element | null} link */
    drawnLink(link) {
        const index = link?.getAttribute('data-link');
        return index ? this.drawing.querySelector(`a[data-link="${Number(index)}"]`) : null;
    }

    /**
     * The text is not seen: a frame in the drawing shows where the keyboard is.
     * @param {any} link
     */
    showFocus(link) {
        this.drawing.querySelectorAll('.cible').forEach((/** @type {Element} */ old) => old.classList.remove('cible'));
        const shown = this.drawnLink(link);
        shown?.classList.add('cible');
        if (shown) bringIntoView(shown);
    }

    /**
     * Marks words; gives the place of the first, from the top of the window.
     * @param {string[]} words
     * @param {boolean} ignoreAccents
     */
    mark(words, ignoreAccents) {
        this.marks.textContent = '';
        const frame = this.element.getBoundingClientRect();
        const wanted = words.map((word) => folded(word, ignoreAccents)).filter((word) => word !== '');
        for (const line of this.drawing.querySelectorAll('text')) {
            const text = folded(line.textContent ?? '', ignoreAccents);
            for (const word of wanted)
                for (let at = text.indexOf(word); at >= 0; at = text.indexOf(word, at + word.length))
                    for (const box of boxesOf(line, at, word.length)) this.addMark(box, frame);
        }
        const first = this.marks.firstElementChild;
        first?.classList.add('premiere');
        return first?.getBoundingClientRect().top;
    }

    /**
     * In parts of the sheet, which may be shown at another size later.
     * @param {DOMRect} box
     * @param {DOMRect} frame
     */
    addMark(box, frame) {
        const mark = element('span', {});
        mark.style.left = `${((box.left - frame.left) / frame.width) * 100}%`;
        mark.style.top = `${((box.top - frame.top) / frame.height) * 100}%`;
        mark.style.width = `${(box.width / frame.width) * 100}%`;
        mark.style.height = `${(box.height / frame.height) * 100}%`;
        this.marks.append(mark);
    }
}

/**
 * Where some letters of an element stand in the window.
 * @param {Element} line
 * @param {number} from
 * @param {number} count
 */
function boxesOf(line, from, count) {
    const range = document.createRange();
    const walker = document.createTreeWalker(line, NodeFilter.SHOW_TEXT);
    let passed = 0;
    let isOpen = false;
    for (let node = walker.nextNode(); node; node = walker.nextNode()) {
        const length = node.textContent?.length ?? 0;
        if (!isOpen && from < passed + length) {
            range.setStart(node, from - passed);
            isOpen = true;
        }
        if (isOpen && from + count <= passed + length) {
            range.setEnd(node, from + count - passed);
            return [...range.getClientRects()].filter((box) => box.width > 0);
        }
        passed += length;
    }
    return [];
}
