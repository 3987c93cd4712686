// The hand of a pupil in any browser. What drives the browser can do little: go to an address, run
// a script in the page, point, type and press a key; everything else is made of it.

const KEPT_WAITING_MS = 20000;

/**
 * @typedef {object} Driver
 * @property {(address: string) => Promise<void>} go
 * @property {(script: string) => Promise<any>} run the value, or what it promises, of an expression in the page
 * @property {(x: number, y: number) => Promise<void>} point clicks there, in pixels of the window
 * @property {(text: string) => Promise<void>} type
 * @property {(key: 'Enter' | 'Escape' | 'ArrowDown') => Promise<void>} press
 */

export class Hand {
    /** @param {Driver} driver */
    constructor(driver) {
        this.driver = driver;
    }

    go(address) { return this.driver.go(address); }
    type(text) { return this.driver.type(text); }
    press(key) { return this.driver.press(key); }

    /** What a function gives in the page. It sees nothing but the page and its arguments. */
    ask(look, ...given) {
        return this.driver.run(`(${look})(...${JSON.stringify(given)})`);
    }

    /** Asks until the answer is something, which is no part of the page: that stays there. */
    async until(look, ...given) {
        const end = Date.now() + KEPT_WAITING_MS;
        for (;;) {
            const answer = await this.ask(look, ...given);
            if (answer) return answer;
            if (Date.now() > end) throw new Error(`awaited in vain: ${look} ${JSON.stringify(given)}`);
            await new Promise((resolve) => { setTimeout(resolve, 30); });
        }
    }

    /** Waits for an element that is seen and, if told, says these words. */
    seen(selector, words = '') {
        return this.until((css, said) => [...document.querySelectorAll(css)].some((found) => found.getClientRects().length > 0 && found.textContent.includes(said)), selector, words);
    }

    /** Clicks on the first element, or another, of this kind that is seen and says these words. */
    async click(selector, words = '', which = 0) {
        const place = await this.until((css, said, at) => {
            const element = [...document.querySelectorAll(css)].filter((found) => found.getClientRects().length > 0 && found.textContent.includes(said) && !found.disabled)[at];
            if (!element) return null;
            const isThere = (box) => box.top >= 0 && box.bottom <= innerHeight && box.left >= 0 && box.right <= innerWidth;
            if (!isThere(element.getBoundingClientRect())) element.scrollIntoView({ block: 'center' });
            // Not every browser brings parts of a drawing into sight.
            if (!isThere(element.getBoundingClientRect())) scrollBy(0, element.getBoundingClientRect().top - innerHeight / 2);
            const { left, top, width, height } = element.getBoundingClientRect();
            return [left + width / 2, top + height / 2];
        }, selector, words, which);
        await this.driver.point(...place);
    }

    /** Goes to a page of the course by its address. */
    async open(hash) {
        await this.ask((to) => { location.hash = to; }, hash);
        await this.until((to) => document.querySelector(`.page svg [id^="${to.slice(1)}-"]`) !== null || document.querySelector('.avis-page') !== null, hash);
    }
}
