// @ts-check
'use strict';

/**
 * What the scripts of a site hand over: the list of the pages, then pages and tests one by one, as
 * they are needed. A page opened from a stick may load scripts, and nothing else.
 *
 * @typedef {{numero: number, titre: string, fichier: string, avant: boolean, apres: boolean, imprimable: boolean, de: number, a: number}} PageEntry
 * @typedef {{chapitre: number, titre: string, fichier: string}} TestEntry
 * @typedef {{fichier?: string, images?: number, cadence?: number, absence?: string}} FilmData
 * @typedef {{titre: string, dessin: string, texte: string, menus?: Record<string, [string, string][]>, legende?: string, film?: FilmData, films?: [string, string][]}} PageData
 * @typedef {{sorte: string, rang: number, x: number, y: number, l: number, h: number, nom: string, vers?: string, fin?: number}} FieldData
 * @typedef {{dessin: string, texte: string, champs: FieldData[]}} QuestionData
 * @typedef {{chapitre: number, titre: string, nombre: number, questions: {type: number, solution: string | null, seule: QuestionData, commentaire: QuestionData}[]}} TestData
 * @typedef {{exercices: {nom: string, texte: string}[], codes: Record<string, string>}} ExerciseFiles
 * @typedef {{titre: string, debut: number, simulations: Record<string, string>, pages: PageEntry[], tests: TestEntry[], programme: string, simulateur: string, recherche: string, suite: {outils: string, simulations: string, style: string}}} CourseData
 */
const orvalente = {
    /** @type {Map<string, any>} */
    received: new Map(),
    /** @type {Map<string, Promise<any>>} */
    loading: new Map(),
    /** @type {() => void} */
    whenCourse: () => {},

    /**
     * Called by the scripts.
     * @param {string} key
     * @param {any} data
     */
    recevoir(key, data) {
        orvalente.received.set(key, data);
        if (key === 'cours') orvalente.whenCourse();
    },

    /**
     * What the script `file` hands over as `key`.
     * @param {string} key
     * @param {string} file
     * @returns {Promise<any>}
     */
    load(key, file) {
        if (orvalente.received.has(key)) return Promise.resolve(orvalente.received.get(key));
        const known = orvalente.loading.get(key);
        if (known) return known;
        const promise = new Promise((resolve, reject) => {
            const script = document.createElement('script');
            script.src = file;
            script.onload = () => (orvalente.received.has(key) ? resolve(orvalente.received.get(key)) : reject(new Error(file)));
            script.onerror = () => reject(new Error(file));
            document.head.append(script);
        }).finally(() => orvalente.loading.delete(key));
        orvalente.loading.set(key, promise);
        return promise;
    },

    /**
     * @param {string} file a style sheet
     * @returns {Promise<void>}
     */
    loadStyle(file) {
        const known = orvalente.loading.get(file);
        if (known) return known;
        const sheet = document.createElement('link');
        const promise = new Promise((resolve, reject) => {
            sheet.rel = 'stylesheet';
            sheet.href = file;
            sheet.onload = () => resolve(undefined);
            sheet.onerror = () => {
                orvalente.loading.delete(file);
                sheet.remove();
                reject(new Error(file));
            };
            document.head.append(sheet);
        });
        orvalente.loading.set(file, promise);
        return promise;
    },
};

/** @param {string} base64 */
function bytesOf(base64) {
    return Uint8Array.from(atob(base64), (c) => c.charCodeAt(0));
}

class Course {
    /** @param {CourseData} data */
    constructor(data) {
        this.data = data;
        /** @type {Map<'programme' | 'simulateur', Promise<Program>>} */
        this.starting = new Map();
        /** @type {Promise<string> | null} */
        this.opening = null;
    }

    /** @param {number} number */
    entry(number) {
        return this.data.pages.find((page) => page.numero === number);
    }

    /**
     * The neighbour in the chapter; nothing where it ends.
     * @param {number} number
     * @param {1 | -1} direction
     */
    neighbour(number, direction) {
        const at = this.data.pages.findIndex((page) => page.numero === number);
        const page = this.data.pages[at];
        if (!page || !(direction > 0 ? page.apres : page.avant)) return undefined;
        return this.data.pages[at + direction];
    }

    /** Runs of pages that follow each other. */
    chapters() {
        /** @type {PageEntry[][]} */
        const all = [];
        this.data.pages.forEach((page, i) => {
            const before = this.data.pages[i - 1];
            if (before && before.apres && page.avant) all[all.length - 1].push(page);
            else all.push([page]);
        });
        return all;
    }

    /**
     * @param {number} number
     * @returns {Promise<PageData>}
     */
    page(number) {
        const entry = this.entry(number);
        return entry ? orvalente.load(`p${number}`, entry.fichier) : Promise.reject(new Error(`p${number}`));
    }

    /**
     * @param {number} chapter
     * @returns {Promise<TestData>}
     */
    test(chapter) {
        const entry = this.data.tests.find((test) => test.chapitre === chapter);
        return entry ? orvalente.load(`t${chapter}`, entry.fichier) : Promise.reject(new Error(`t${chapter}`));
    }

    /**
     * The exercises of a simulation.
     * @param {number} module
     * @returns {Promise<ExerciseFiles>}
     */
    exercises(module) {
        const file = this.data.simulations[`m${module}`];
        return file ? orvalente.load(`m${module}`, file) : Promise.resolve({ exercices: [], codes: {} });
    }

    /**
     * The scripts of what one asks for on a page: windows, tests and films.
     * @returns {Promise<void>}
     */
    tools() {
        return orvalente.load('outils', this.data.suite.outils);
    }

    /** The scripts and the style of simulations. */
    async simulationPages() {
        const { simulations, style } = this.data.suite;
        await this.tools();
        await Promise.all([orvalente.load('simulations', simulations), orvalente.loadStyle(style)]);
    }

    /**
     * Calculator, tests and search, or the simulations.
     * @param {'programme' | 'simulateur'} [name]
     * @returns {Promise<Program>}
     */
    program(name = 'programme') {
        const known = this.starting.get(name);
        if (known) return known;
        const starting = Promise.all([orvalente.load(name, this.data[name]), this.tools()]).then(([base64]) => Program.load(bytesOf(base64)));
        this.starting.set(name, starting);
        starting.catch(() => this.starting.delete(name));
        return starting;
    }

    /** The program with the pages ready to be searched. */
    async searching() {
        const program = await this.program();
        this.opening ??= orvalente.load('recherche', this.data.recherche).then((base64) => program.openSearch(bytesOf(base64)));
        if (await this.opening) this.opening = null;
        return program;
    }
}
