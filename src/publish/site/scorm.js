// @ts-check
'use strict';

/** SCORM 1.2 platforms keep no more than this of what a course tells them. */
const SCORM_CHARACTERS = 4096;

/** Looks for the platform's object in the frames around, as the standard says. @returns {any} */
function scormPlatform() {
    const look = (/** @type {any} */ from) => {
        for (let i = 0; i < 8; ++i) {
            try {
                if (from.API) return from.API;
                if (from.parent === from) return null;
                from = from.parent;
            } catch {
                return null; // another origin
            }
        }
        return null;
    };
    return look(window) ?? (window.opener ? look(window.opener) : null);
}

/** Tells a learning platform, where there is one, how far a pupil is, and takes up what it kept. */
class Scorm {
    /**
     * @param {Course} course
     * @param {Progress} progress
     */
    constructor(course, progress) {
        this.course = course;
        this.progress = progress;
        this.api = scormPlatform();
        this.start = Date.now();
        if (!this.api || this.api.LMSInitialize('') !== 'true' && this.api.LMSInitialize('') !== true) {
            this.api = null;
            return;
        }
        progress.leaveDevice();
        try {
            progress.take(JSON.parse(this.api.LMSGetValue('cmi.suspend_data') || '{}'));
        } catch {
            // What is not ours is left.
        }
        progress.changed = () => this.report();
        this.report();
        window.addEventListener('pagehide', () => this.finish());
    }

    report() {
        if (!this.api) return;
        const tests = Object.values(this.progress.data.tests);
        const answered = tests.reduce((sum, test) => sum + test.donnees, 0);
        const right = tests.reduce((sum, test) => sum + test.justes, 0);
        const isDone = this.course.data.tests.length > 0 && this.course.data.tests.every(({ chapitre }) => {
            const test = this.progress.test(chapitre);
            return test && test.donnees >= test.nombre;
        });
        const score = answered > 0 ? Math.round((right / answered) * 100) : 0;
        this.set('cmi.core.score.min', '0');
        this.set('cmi.core.score.max', '100');
        if (answered > 0) this.set('cmi.core.score.raw', String(score));
        this.set('cmi.core.lesson_status', !isDone ? 'incomplete' : score >= 50 ? 'passed' : 'failed');
        this.set('cmi.core.lesson_location', `p${this.progress.data.page ?? this.course.data.debut}`);
        this.set('cmi.suspend_data', this.state());
        this.api.LMSCommit('');
    }

    /** What fits: tests that are given up first are those of lower chapters. */
    state() {
        const { page, tests } = this.progress.data;
        const kept = { page, tests: { ...tests } };
        for (const chapter of Object.keys(tests)) {
            if (JSON.stringify(kept).length <= SCORM_CHARACTERS) break;
            delete kept.tests[chapter];
        }
        return JSON.stringify(kept);
    }

    /**
     * @param {string} name
     * @param {string} value
     */
    set(name, value) {
        this.api.LMSSetValue(name, value);
    }

    finish() {
        if (!this.api) return;
        const seconds = Math.round((Date.now() - this.start) / 1000);
        const two = (/** @type {number} */ n) => String(n).padStart(2, '0');
        this.set('cmi.core.session_time', `${String(Math.min(9999, Math.floor(seconds / 3600))).padStart(4, '0')}:${two(Math.floor(seconds / 60) % 60)}:${two(seconds % 60)}`);
        this.report();
        this.api.LMSFinish('');
        this.api = null;
    }
}
