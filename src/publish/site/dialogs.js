// @ts-check
'use strict';

/* global ICONES */

/**
 * An element with its attributes and children; functions are handlers. Words are always text.
 * @param {string} tag
 * @param {Record<string, any>} [attributes]
 * @param {...(Node | string | null | undefined | false)} children
 * @returns {any}
 */
function element(tag, attributes = {}, ...children) {
    const made = document.createElement(tag);
    for (const [name, value] of Object.entries(attributes)) {
        if (typeof value === 'function') made.addEventListener(name, value);
        else if (value === true) made.setAttribute(name, '');
        else if (value !== false && value !== null && value !== undefined) made.setAttribute(name, String(value));
    }
    for (const child of children) if (child) made.append(child);
    return made;
}

/**
 * One of the shell's drawings.
 * @param {string} name
 */
function icon(name) {
    const holder = element('span', { class: 'icone', 'aria-hidden': 'true' });
    holder.innerHTML = ICONES[name] ?? '';
    return holder;
}

/**
 * @param {string} words
 * @param {string} iconName
 * @param {() => void} click
 * @param {Record<string, any>} [attributes]
 * @returns {HTMLButtonElement}
 */
function button(words, iconName, click, attributes = {}) {
    return element('button', { type: 'button', click, ...attributes }, iconName ? icon(iconName) : null, element('span', {}, words));
}

/**
 * Makes something when it is first asked for: the first page need not wait for what it does not show.
 * @template T
 * @param {() => T} make
 * @returns {() => T}
 */
function later(make) {
    /** @type {T | undefined} */
    let made;
    return () => (made ??= make());
}

/** @param {string} words */
function announce(words) {
    const place = document.getElementById('annonce');
    if (place) place.textContent = words;
}

/**
 * A window over the page, which closes by its button and by Escape.
 * @param {string} title
 * @param {string} name a class
 * @param {...(Node | string)} children
 * @returns {HTMLDialogElement}
 */
function makeDialog(title, name, ...children) {
    const heading = element('h2', { id: `titre-${name}` }, title);
    const dialog = element('dialog', { class: name, 'aria-labelledby': `titre-${name}` });
    const close = element('button', { type: 'button', class: 'fermer', 'aria-label': 'Fermer', click: () => dialog.close() }, icon('close'));
    dialog.append(element('div', { class: 'barre' }, heading, close), element('div', { class: 'corps' }, ...children));
    document.body.append(dialog);
    return dialog;
}

/**
 * Says something, or asks; resolves to the index of the button, -1 when the box was closed.
 * @param {string} title
 * @param {string} text
 * @param {string[]} [answers]
 * @returns {Promise<number>}
 */
function tell(title, text, answers = ['OK']) {
    return new Promise((resolve) => {
        const body = element('div', {});
        for (const line of text.split(/\r?\n/)) body.append(element('p', {}, line));
        const row = element('div', { class: 'boutons' });
        const dialog = makeDialog(title, 'message', body, row);
        let chosen = -1;
        answers.forEach((words, i) => row.append(element('button', { type: 'button', class: i === 0 ? 'principal' : '', click: () => { chosen = i; dialog.close(); } }, words)));
        dialog.addEventListener('close', () => { dialog.remove(); resolve(chosen); });
        dialog.showModal();
    });
}

/** How much of the window's height the buttons at its foot leave. */
function seenHeight() {
    return window.innerHeight - (document.getElementById('pied')?.getBoundingClientRect().height ?? 0);
}

/**
 * Scrolls no more than needed. Browsers' own scrollIntoView() does not know the foot, and in Firefox
 * leaves parts of a drawing where they are.
 * @param {Element} shown
 */
function bringIntoView(shown) {
    const { top, bottom } = shown.getBoundingClientRect();
    if (top < 0) window.scrollBy(0, top - 8);
    else if (bottom > seenHeight()) window.scrollBy(0, Math.min(top - 8, bottom + 8 - seenHeight()));
}

/**
 * A menu below the element that asked for it; arrows, Escape and a click elsewhere work as in any.
 * @param {Element} below
 * @param {[string, string][]} entries captions and addresses
 * @param {string} name
 */
function popUpMenu(below, entries, name) {
    document.querySelector('.menu')?.remove();
    const back = /** @type {HTMLElement | null} */ (document.activeElement);
    const menu = element('div', { class: 'menu', role: 'menu', 'aria-label': name });
    const close = () => {
        menu.remove();
        document.removeEventListener('pointerdown', outside, true);
    };
    /** @param {Event} event */
    const outside = (event) => { if (!menu.contains(event.target)) close(); };
    for (const [caption, to] of entries)
        menu.append(element('a', { role: 'menuitem', tabindex: '-1', ...(to ? { href: to } : { 'aria-disabled': 'true' }), click: close }, caption));
    menu.addEventListener('keydown', (/** @type {KeyboardEvent} */ event) => {
        const items = [...menu.children];
        const at = items.indexOf(document.activeElement);
        const to = { ArrowDown: at + 1, ArrowUp: at - 1, Home: 0, End: items.length - 1 }[event.key];
        if (to !== undefined) items[(to + items.length) % items.length].focus();
        else if (event.key === 'Escape' || event.key === 'Tab') { close(); back?.focus(); }
        else return;
        event.preventDefault();
    });
    document.body.append(menu);
    const place = below.getBoundingClientRect();
    const room = document.documentElement.clientWidth - menu.offsetWidth - 8;
    menu.style.left = `${Math.max(8, Math.min(place.left, room)) + window.scrollX}px`;
    const isBelow = place.bottom + 4 + menu.offsetHeight <= seenHeight() || place.top < menu.offsetHeight + 4;
    menu.style.top = `${(isBelow ? place.bottom + 4 : place.top - 4 - menu.offsetHeight) + window.scrollY}px`;
    document.addEventListener('pointerdown', outside, true);
    menu.firstElementChild?.focus();
}
