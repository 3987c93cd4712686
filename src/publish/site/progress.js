// @ts-check
'use strict';

/**
 * @typedef {{etat: string, justes: number, donnees: number, nombre: number}} TestProgress
 * @typedef {{page?: number, tests: Record<string, TestProgress>}} ProgressData
 */

/** No file of ours is longer, whatever the course. */
const LONGEST_FILE = 1_000_000;
const LONGEST_STATE = 20_000;
const MOST_QUESTIONS = 999;

/**
 * Where progress is kept: by the site's place, which stays when the course is published again, under
 * another title even; two courses of one server have two. The letter of a stick changes from one
 * computer to the next.
 */
function progressKey() {
    return `orvalente : ${location.pathname.replace(/[^/]*$/, '').replace(/^\/[A-Za-z]:(?=\/)/, '')}`;
}

/**
 * Whether this is what a test has left, in every part.
 * @param {any} test
 * @returns {test is TestProgress}
 */
function isTestProgress(test) {
    if (typeof test !== 'object' || test === null) return false;
    const { etat, justes, donnees, nombre } = test;
    return typeof etat === 'string' && etat.length <= LONGEST_STATE && [justes, donnees, nombre].every(Number.isInteger)
        && 0 <= justes && justes <= donnees && donnees <= nombre && nombre <= MOST_QUESTIONS;
}

/** What was answered, kept on this device only; nothing of it is sent anywhere. */
class Progress {
    /** @param {CourseData} course */
    constructor(course) {
        this.course = course;
        this.key = progressKey();
        this.isKept = true;
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
        if (this.course.pages.some(({ numero }) => numero === kept.page)) this.data.page = kept.page;
        for (const [chapter, test] of Object.entries(kept.tests ?? {})) {
            if (!/^-?\d{1,5}$/.test(chapter) || !isTestProgress(test)) continue;
            const { etat, justes, donnees, nombre } = test;
            this.data.tests[chapter] = { etat, justes, donnees, nombre };
        }
    }

    /** A platform knows whose progress it keeps; what this device has may be another pupil's. */
    leaveDevice() {
        this.isKept = false;
        this.data = { tests: {} };
    }

    save() {
        try {
            if (this.isKept) localStorage.setItem(this.key, JSON.stringify(this.data));
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
            if (this.isKept) localStorage.removeItem(this.key);
        } catch {
            // Nothing was kept.
        }
        this.changed(this.data);
    }

    /** Gives what is kept to the person, as a file. */
    exportFile() {
        const address = URL.createObjectURL(new Blob([JSON.stringify({ cours: this.course.titre, ...this.data }, null, 2)], { type: 'application/json' }));
        element('a', { href: address, download: 'progression.json' }).click();
        setTimeout(() => URL.revokeObjectURL(address), 1000);
    }

    /**
     * What a file of exportFile() holds, or why it is refused. A file that somebody else has written
     * may hold anything: nothing of it is taken when a part of it is not as we write it.
     * @param {string} text
     * @returns {{data?: ProgressData, refusal?: string}}
     */
    read(text) {
        const refusal = 'Ce fichier n’est pas une progression enregistrée ici : rien n’a été repris.';
        let kept;
        try {
            kept = text.length <= LONGEST_FILE ? JSON.parse(text) : null;
        } catch {
            return { refusal };
        }
        if (typeof kept !== 'object' || typeof kept?.tests !== 'object' || kept.tests === null || Array.isArray(kept.tests)) return { refusal };
        const tests = Object.entries(kept.tests);
        if (!tests.every(([, test]) => isTestProgress(test))) return { refusal };
        const known = tests.filter(([chapter]) => this.course.tests.some(({ chapitre }) => String(chapitre) === chapter));
        if (tests.length > 0 && known.length === 0) return { refusal: 'Ce fichier garde la progression d’un autre cours : rien n’a été repris.' };
        return { data: { page: kept.page, tests: Object.fromEntries(known) } };
    }

    /**
     * Puts this in the place of what is here.
     * @param {ProgressData} data
     */
    replace(data) {
        this.data = { tests: {} };
        this.take(data);
        this.save();
    }
}
