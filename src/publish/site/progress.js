// @ts-check
'use strict';

/**
 * @typedef {{etat: string, justes: number, donnees: number, nombre: number}} TestProgress
 * @typedef {{page?: number, tests: Record<string, TestProgress>}} ProgressData
 */

/** What was answered, kept on this device only; nothing of it is sent anywhere. */
class Progress {
    /** @param {CourseData} course */
    constructor(course) {
        this.key = `orvalente : ${course.titre}`;
        /** @type {ProgressData} */
        this.data = { tests: {} };
        /** @type {(data: ProgressData) => void} */
        this.changed = () => {};
        try {
            this.take(JSON.parse(localStorage.getItem(this.key) ?? '{}'));
        } catch {
            // A browser that keeps nothing, or something that is not ours: everything begins anew.
        }
    }

    /**
     * Takes over what was kept elsewhere; what has another form is left out.
     * @param {any} kept
     */
    take(kept) {
        if (typeof kept !== 'object' || kept === null) return;
        if (Number.isInteger(kept.page)) this.data.page = kept.page;
        for (const [chapter, test] of Object.entries(kept.tests ?? {})) {
            const { etat, justes, donnees, nombre } = /** @type {any} */ (test) ?? {};
            if (/^\d{1,5}$/.test(chapter) && typeof etat === 'string' && [justes, donnees, nombre].every(Number.isInteger))
                this.data.tests[chapter] = { etat, justes, donnees, nombre };
        }
    }

    save() {
        try {
            localStorage.setItem(this.key, JSON.stringify(this.data));
        } catch {
            // It lasts as long as the page, then.
        }
        this.changed(this.data);
    }

    /** @param {number} number */
    setPage(number) {
        this.data.page = number;
        this.save();
    }

    /** @param {number} chapter */
    test(chapter) {
        return this.data.tests[String(chapter)];
    }

    /**
     * @param {number} chapter
     * @param {TestProgress} test
     */
    setTest(chapter, test) {
        this.data.tests[String(chapter)] = test;
        this.save();
    }

    erase() {
        this.data = { tests: {} };
        try {
            localStorage.removeItem(this.key);
        } catch {
            // Nothing was kept.
        }
        this.changed(this.data);
    }

    /** Gives what is kept to the person, as a file. */
    exportFile() {
        const address = URL.createObjectURL(new Blob([JSON.stringify(this.data, null, 2)], { type: 'application/json' }));
        element('a', { href: address, download: 'progression.json' }).click();
        setTimeout(() => URL.revokeObjectURL(address), 1000);
    }
}
