// @ts-check
'use strict';

/**
 * Kinds of a formula's parts, as the program numbers them (modules/common/formula_parts.h).
 * @type {Record<string, (first: Node[], second: Node[]) => Node>}
 */
const FORMULA_PARTS = {
    1: (index, power) => index.length && power.length
        ? element('span', { class: 'etages' }, element('sup', {}, ...power), element('sub', {}, ...index))
        : index.length ? element('sub', {}, ...index) : element('sup', {}, ...power),
    2: (above, below) => element('span', { class: 'fraction' }, element('span', {}, ...above), element('span', {}, ...below)),
    3: (under) => element('span', { class: 'racine' }, drawn('svg', { viewBox: '0 0 6 10', preserveAspectRatio: 'none' }, drawn('path', { d: 'M.5 6L1.8 5.3L3.6 9.6L5.8 .3', 'vector-effect': 'non-scaling-stroke' })), element('span', {}, ...under)),
    4: (under) => element('span', { class: 'vecteur' }, ...under, drawn('svg', { viewBox: '0 0 10 4' }, drawn('path', { d: 'M0 2H9.5M7.3 .4L9.5 2L7.3 3.6' }))),
    5: (under) => element('span', { class: 'barre-algebrique' }, ...under),
};

/**
 * A formula set in type, which a screen reader says in words.
 * @param {Program} program which knows the parts of formulas
 * @param {string} source
 * @param {string} [spoken] when it is to be said otherwise
 * @returns {HTMLElement}
 */
function formula(program, source, spoken = '') {
    const text = program.ask('formulaParts', program.put(source));
    let at = 0;
    const row = () => {
        /** @type {Node[]} */
        const parts = [];
        while (at < text.length && text[at] !== RECORD_END) {
            const kind = text[at++];
            if (kind === 'i' || kind === 't') {
                const end = text.indexOf(FIELD_END, at);
                const words = text.slice(at, end);
                parts.push(kind === 'i' ? element('i', {}, words) : document.createTextNode(words));
                at = end + 1;
            } else {
                const [first, second] = [row(), row()];
                parts.push(FORMULA_PARTS[kind](first, second));
            }
        }
        ++at;
        return parts;
    };
    const parts = row();
    // Plain words need no other way of being said.
    const said = spoken || (/[\\_^=]/.test(source.replace(/^\\text\{[^}]*\}$/, '')) || /^.$/.test(source) ? program.ask('formulaInWords', program.put(source)) : '');
    return element('span', { class: 'formule', ...(said ? { role: 'math', 'aria-label': said } : {}) }, ...parts);
}
