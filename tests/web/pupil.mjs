// What a pupil does with a published course, in a browser of which no more is asked than in hand.mjs:
// pages, a menu, the search, the calculator, a film, a whole test.
import { deepStrictEqual, ok, strictEqual } from 'node:assert';
import { Hand } from './hand.mjs';

/** @param {Hand} hand */
async function pages(hand) {
    await hand.open('#p12');
    const lines = await hand.ask(() => [...document.querySelectorAll('.dessin text')].map(({ textContent }) => textContent));
    ok(lines.some((line) => line.split(' ').length > 6), 'no line is whole');
    await hand.click('footer a[rel=next]');
    await hand.until(() => location.hash === '#p13' && document.querySelector('[id^="p13-"]') !== null);
    await hand.ask(() => history.back());
    await hand.until(() => location.hash === '#p12' && document.querySelector('[id^="p12-"]') !== null);
    await hand.open('#p101');
    // The keyboard reaches the drawing's links through its text: the last is brought into sight, above the foot.
    const [bottom, end] = await hand.ask(() => {
        const link = [...document.querySelectorAll('.lu a[data-link]')].filter((read) => document.querySelector(`.dessin a[data-link="${read.dataset.link}"]`)).at(-1);
        link.focus({ preventScroll: true });
        return [document.querySelector('.dessin a.cible').getBoundingClientRect().bottom, document.querySelector('footer').getBoundingClientRect().top];
    });
    ok(bottom <= end, `a link with the focus at ${bottom}, the foot from ${end}`);
    await hand.click('.dessin a[href^="#f"]');
    await hand.seen('.menu a:focus');
    await hand.press('ArrowDown');
    await hand.press('Enter');
    await hand.until(() => /^#p6\d$/.test(location.hash));
}

async function search(hand) {
    await hand.click('header button', 'Rechercher');
    await hand.seen('#mots:focus');
    await hand.type('refraction');
    await hand.press('Enter');
    const count = async (than) => hand.until((more) => /trouvée/.test(document.querySelector('.recherche .avis').textContent) && document.querySelectorAll('.trouvees li').length > more && document.querySelectorAll('.trouvees li').length, than);
    const byTheLetter = await count(0);
    await hand.click('.recherche .case', 'Ignorer les accents');
    await hand.click('.recherche button[type=submit]');
    await count(byTheLetter);
    await hand.click('.trouvees button', 'Descartes');
    await hand.until(() => document.querySelectorAll('.marques .premiere').length === 1);
    // The mark stands where the word is, in the window.
    ok(await hand.ask(() => {
        const { top, height, width } = document.querySelector('.marques .premiere').getBoundingClientRect();
        return top > 0 && top < innerHeight && height > 5 && width > 20;
    }), 'the found word is out of sight');
}

async function calculator(hand) {
    await hand.click('header button', 'Calculatrice');
    await hand.seen('.touches button');
    const shows = (text) => hand.until((line) => document.querySelector('.ecran').textContent.trim() === line, text);
    await hand.type('2*(3+4)');
    await hand.press('Enter');
    await shows('14');
    await hand.click('.calculatrice .case', 'Degrés');
    await hand.click('.touches button', 'SIN');
    await hand.click('.ecran');
    await hand.type('30');
    await hand.press('Enter');
    await shows('.5');
    await hand.press('Escape');
    await hand.until(() => !document.querySelector('.calculatrice').open);
}

async function film(hand, images) {
    await hand.open('#p69');
    await hand.click('button', 'Voir le film');
    await hand.until(() => document.querySelector('video')?.readyState >= 2 && !document.querySelector('video').seeking);
    for (const image of [1, 2, 1, 0, 39, 38]) {
        await hand.ask((to) => { const bar = document.querySelector('.film input'); bar.value = to; bar.dispatchEvent(new Event('input')); }, image);
        await hand.until((to) => { const video = document.querySelector('video'); return !video.seeking && Math.floor(video.currentTime * 25) === to; }, image);
        strictEqual(await hand.ask(() => document.querySelector('.image-du-film').textContent), `Image ${image + 1} sur ${images}`);
    }
    await hand.click('.film .fermer');
    await hand.until(() => !document.querySelector('video'));
}

async function test(hand) {
    const solutions = await hand.ask(async () => {
        location.hash = '#t1';
        const { questions } = await new Course(orvalente.received.get('cours')).test(1);
        return questions.map(({ type, solution }) => ({ type, solution }));
    });
    for (const [i, { type, solution }] of solutions.entries()) {
        await hand.until((rank) => document.querySelector('.rang')?.textContent.includes(` ${rank} /`) && document.querySelector('.champs input:not(:disabled)') !== null, i + 1);
        if (type === 3) {
            await hand.click('.champs input');
            await hand.type(i === 0 ? 'zzz' : solution);
        } else {
            const kind = type === 1 ? 'check' : 'option';
            const wanted = [...solution].map((digit) => digit === '1');
            if (i === 0) wanted.push(wanted.shift()); // the first answer is a wrong one
            for (const [rank, isWanted] of wanted.entries()) if (isWanted) await hand.click(`.champs input.champ-${kind}`, '', rank);
        }
        await hand.click('.test button', 'Valider');
        if (i === 0) {
            await hand.seen('.verdict', 'fausse');
            await hand.click('.test button', 'Suivante');
        }
    }
    await hand.click('dialog.message[open] button');
    await hand.until(() => document.querySelectorAll('.bilan li').length === 1);
    await hand.click('.test .titre-test button', 'Fermer');
    await hand.seen('.page svg');
    // It outlives the page.
    await hand.ask(() => { window.isOld = true; setTimeout(() => location.reload()); });
    await hand.until(() => !window.isOld && document.querySelector('.page svg') !== null);
    const { justes, donnees, nombre } = await hand.ask(() => new Progress(orvalente.received.get('cours')).test(1));
    deepStrictEqual([justes, donnees, nombre], [solutions.length - 1, solutions.length, solutions.length]);
}

/**
 * @param {import('./hand.mjs').Driver} driver
 * @param {string} address
 * @param {number} images of the film
 */
export async function aLesson(driver, address, images) {
    const hand = new Hand(driver);
    await hand.go(address);
    await hand.seen('.page svg');
    ok((await hand.ask(() => document.querySelector('.dessin').textContent)).includes('Pourquoi une paille'));
    // Faults of scripts are told by the driver, or by the page itself.
    await hand.ask(() => { window.faults = []; addEventListener('error', ({ message }) => window.faults.push(message)); addEventListener('unhandledrejection', ({ reason }) => window.faults.push(String(reason))); });
    await pages(hand);
    await search(hand);
    await calculator(hand);
    await film(hand, images);
    deepStrictEqual(await hand.ask(() => window.faults), []);
    await test(hand);
    return hand;
}
