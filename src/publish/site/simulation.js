// @ts-check
'use strict';

/** Not broken. */
const BLANK = '\u00a0';

/** @typedef {{text: string, unit: string, withUnit: string, position: number, last: number}} NumberState */
/** @typedef {{kind: number, name: string, formula: string, hint: string, isShown: boolean, isEnabled: boolean, chosen: number, number: NumberState, choices: {formula: string, spoken: string}[]}} ControlState */
/** @typedef {{name: string, readings: {name: string, value: string, spoken: string}[]}} ReadingGroup */
/** @typedef {{slider: string, nothing: string, step: number, hasRates: boolean}} Transport */
/** @typedef {{title: string, views: string[], boxes: {words: string, isShown: boolean}[], transport: Transport | null}} About */
/** @typedef {{title: string, question: string, unit: string, statement: string[]}} Task */

/** Kinds of controls and of columns, as the program numbers them (modules/common/control.h, table.h). */
const CONTROL = { heading: 0, number: 1, segments: 2, list: 3, button: 4, note: 5 };
const CELLS = { numbers: 0, formulas: 1, names: 2 };

/** What is done with time, as the program numbers it (modules/web_exports/exports.cpp). */
const PLAY = { Toggle: 0, Pause: 1, Reset: 2, Step: 3, Seek: 4, Advance: 5 };

/** What became of an answer. */
const VERDICT = { none: 0, wrong: 1, right: 2 };

/** The simulation of a module: what it computes and says is the module's own, compiled for browsers. */
class Simulation {
    /**
     * @param {Program} program
     * @param {number} module
     */
    constructor(program, module) {
        this.program = program;
        this.module = module;
    }

    /**
     * Starts anew, with the exercise whose text that is; gives why it cannot be opened.
     * @param {string} [exercise]
     */
    open(exercise = '') {
        return this.program.ask('simulationOpen', this.module, this.program.put(exercise));
    }

    /** @returns {About} what is said of it whatever its state; without a transport it stands still */
    about() {
        const [[title], views, boxes, transport] = this.program.askRecords('simulationAbout', this.module);
        const [slider, nothing, milliseconds, hasRates] = transport ?? [];
        return {
            title,
            views: views.slice(0, -1),
            boxes: Array.from({ length: (boxes.length - 1) / 2 }, (_, i) => ({ words: boxes[2 * i], isShown: boxes[2 * i + 1] === '1' })),
            transport: transport ? { slider, nothing, step: Number(milliseconds) / 1000, hasRates: hasRates === '1' } : null,
        };
    }

    /** @returns {ControlState[]} */
    controls() {
        return this.program.askRecords('simulationControls', this.module).map(([kind, name, words, hint, isShown, isEnabled, chosen, ...rest]) => {
            const isNumber = Number(kind) === CONTROL.number;
            const [text, unit, withUnit, position, last] = rest;
            const choices = [];
            for (let i = 0; !isNumber && i + 1 < rest.length; i += 2) choices.push({ formula: rest[i], spoken: rest[i + 1] });
            return { kind: Number(kind), name, formula: words, hint, isShown: isShown === '1', isEnabled: isEnabled === '1', chosen: Number(chosen),
                number: { text, unit, withUnit, position: Number(position), last: Number(last) }, choices };
        });
    }

    /**
     * Gives a control another number or choice, or presses it.
     * @param {number} control
     * @param {number} [value]
     */
    change(control, value = 0) {
        this.program.functions.simulationChange(this.module, control, value);
    }

    /**
     * Gives a number what somebody typed; what is no number changes nothing.
     * @param {number} control
     * @param {string} text
     */
    type(control, text) {
        this.program.functions.simulationType(this.module, control, this.program.put(text));
    }

    /**
     * @param {number} control
     * @param {number} position of its slider
     */
    slide(control, position) {
        this.program.functions.simulationSlide(this.module, control, position);
    }

    /** @returns {ReadingGroup[]} */
    readings() {
        return this.program.askRecords('simulationReadings', this.module).map(([name, ...rest]) => {
            const readings = [];
            for (let i = 0; i + 2 < rest.length; i += 3) readings.push({ name: rest[i], value: rest[i + 1], spoken: rest[i + 2] });
            return { name, readings };
        });
    }

    table() {
        const [heads, ...rows] = this.program.askRecords('simulationTable', this.module);
        const columns = [];
        for (let i = 0; i + 1 < heads.length; i += 2) columns.push({ formula: heads[i], kind: Number(heads[i + 1]) });
        return { columns, rows: rows.map((row) => row.slice(0, -1)) };
    }

    laws() {
        return this.program.askRecords('simulationLaws', this.module).map(([words, source]) => ({ words, formula: source }));
    }

    /** @returns {Task | null} null without an exercise */
    task() {
        const texts = this.program.askRecords('simulationTask', this.module).map(([text]) => text);
        const [title, question, unit, ...statement] = texts;
        return texts.length ? { title, question, unit, statement } : null;
    }

    /** @param {string} typed */
    judge(typed) {
        const [answer, words] = this.program.ask('simulationJudge', this.module, this.program.put(typed)).split(FIELD_END);
        return { answer: Number(answer), words };
    }

    /**
     * @param {number} what
     * @param {number} [which]
     */
    numbers(what, which = 0) {
        return this.program.askNumbers('simulationNumbers', this.module, what, which);
    }

    words() {
        return this.program.askRecords('simulationWords', this.module).map(([text]) => text);
    }

    /**
     * @param {number} what
     * @param {number} x
     * @param {number} y
     */
    pull(what, x, y) {
        this.program.functions.simulationPull(this.module, what, x, y);
    }

    moment() {
        const [name, value] = this.program.ask('simulationMoment', this.module).split(FIELD_END);
        return { name, value };
    }

    time() {
        const [t = 0, duration = 0, runs = 0] = this.program.askNumbers('simulationTime', this.module);
        return { t, duration, isRunning: runs === 1 };
    }

    /**
     * @param {keyof typeof PLAY} what
     * @param {number} [seconds]
     * @param {number} [rate] seconds of the simulation in one of the clock
     */
    play(what, seconds = 0, rate = 1) {
        this.program.functions.simulationPlay(this.module, PLAY[what], seconds, rate);
    }
}
