// @ts-check
'use strict';

/** Thin and not broken, between groups of digits; no-break; the minus sign of typesetters. */
const THIN_BLANK = '\u202f';
const BLANK = '\u00a0';
const MINUS = '\u2212';

/**
 * A number as French texts write it, with groups of three digits from 10 000 on, as the modules'
 * windows show it (modules/common/french_number.h). Never "−0".
 * @param {number} value
 * @param {number} decimals
 */
function frenchNumber(value, decimals) {
    if (!Number.isFinite(value)) return '∞';
    const [whole, part] = Math.abs(value).toFixed(decimals).split('.');
    const isZero = !/[1-9]/.test(whole + (part ?? ''));
    const grouped = whole.length < 5 ? whole : whole.replace(/(?<=\d)(?=(\d{3})+$)/g, THIN_BLANK);
    return (value < 0 && !isZero ? MINUS : '') + grouped + (part ? `,${part}` : '');
}

/**
 * With about so many significant digits, and no needless zeros: 0,0583; 12,4; 1250.
 * @param {number} value
 * @param {number} digits
 */
function frenchDigits(value, digits) {
    if (value === 0 || !Number.isFinite(value)) return frenchNumber(value, 0);
    const beforeComma = Math.floor(Math.log10(Math.abs(value))) + 1;
    const text = frenchNumber(value, Math.max(0, Math.min(6, digits - beforeComma)));
    return text.includes(',') ? text.replace(/,?0+$/, '') : text;
}

/**
 * With a unit behind it: degrees stand close to their number, the others do not.
 * @param {string} text
 * @param {string} unit
 */
function withUnit(text, unit) {
    return text + (unit === '°' ? '' : BLANK) + unit;
}

/**
 * The number that somebody typed, with a comma or a point; NaN when it is none.
 * @param {string} typed
 */
function numberFrom(typed) {
    const plain = typed.replace(/\s/g, '').replace(MINUS, '-').replace(',', '.');
    return /^[-+]?(\d+\.?\d*|\.\d+)(e[-+]?\d+)?$/i.test(plain) ? Number(plain) : NaN;
}
