// @ts-check
'use strict';

/** Separates the fields of a record, and records, in texts that hold several. */
const FIELD_END = '\x1f';
const RECORD_END = '\x1e';

/**
 * The shell's own calculator, test and search, compiled for browsers (src/browser). Texts go to it
 * and come back through one buffer of its memory, in UTF-16.
 */
class Program {
    /** @param {Record<string, any>} functions */
    constructor(functions) {
        this.functions = functions;
        functions._initialize();
    }

    /**
     * @param {BufferSource} bytes
     * @returns {Promise<Program>}
     */
    static async load(bytes) {
        const module = await WebAssembly.compile(bytes);
        // The library of C++ could write and read files, if it were asked to.
        const system = Object.fromEntries(WebAssembly.Module.imports(module).map(({ name }) => [name, () => 0]));
        const instance = await WebAssembly.instantiate(module, { wasi_snapshot_preview1: system });
        return new Program(instance.exports);
    }

    /**
     * Puts a text where the program reads it; gives its length.
     * @param {string} text
     */
    put(text) {
        const at = this.functions.room(text.length);
        const units = new Uint16Array(this.functions.memory.buffer, at, text.length);
        for (let i = 0; i < text.length; ++i) units[i] = text.charCodeAt(i);
        return text.length;
    }

    /**
     * The answer of a function that gives a text.
     * @param {string} name
     * @param {...number} values
     */
    ask(name, ...values) {
        const length = this.functions[name](...values);
        const units = new Uint16Array(this.functions.memory.buffer, this.functions.room(0), length);
        let text = '';
        // Not all at once: arguments of a call are limited.
        for (let from = 0; from < length; from += 4096)
            text += String.fromCharCode(...units.subarray(from, from + 4096));
        return text;
    }

    /**
     * The answer of a function that gives numbers.
     * @param {string} name
     * @param {...number} values
     * @returns {number[]}
     */
    askNumbers(name, ...values) {
        const count = this.functions[name](...values);
        return [...new Float64Array(this.functions.memory.buffer, this.functions.room(0), count)];
    }

    /**
     * @param {string} name
     * @param {...number} values
     * @returns {string[][]}
     */
    askRecords(name, ...values) {
        return this.ask(name, ...values).split(RECORD_END).slice(0, -1).map((record) => record.split(FIELD_END));
    }

    /**
     * A number as French texts write it (modules/common/french_number.h).
     * @param {number} value
     * @param {number} decimals
     */
    frenchNumber(value, decimals) {
        return this.ask('frenchNumber', value, decimals);
    }

    /**
     * The same with about so many significant digits, and no needless zeros: 0,0583; 12,4; 1250.
     * @param {number} value
     * @param {number} digits
     */
    frenchDigits(value, digits) {
        return this.ask('frenchDigits', value, digits);
    }

    /**
     * As `orvalente-cours calc`.
     * @param {string} expression
     * @param {boolean} degrees
     * @param {boolean} scientific
     */
    calculate(expression, degrees, scientific) {
        const [error, isMessage, line] = this.ask('calc', this.put(expression), Number(degrees), Number(scientific)).split(FIELD_END);
        return { error: Number(error), isMessage: isMessage === '1', line };
    }

    /**
     * Whether a typed answer is right.
     * @param {string} solution
     * @param {string} typed
     */
    judge(solution, typed) {
        return this.functions.judge(this.put(solution + FIELD_END + typed)) === 1;
    }

    /**
     * Opens the database of a course for searching; gives why it cannot be.
     * @param {Uint8Array} database
     */
    openSearch(database) {
        const at = this.functions.room(Math.ceil(database.length / 2));
        new Uint8Array(this.functions.memory.buffer, at, database.length).set(database);
        return this.ask('searchOpen', database.length);
    }

    /**
     * @param {string} typed
     * @param {boolean} allWords
     * @param {boolean} ignoreAccents
     */
    search(typed, allWords, ignoreAccents) {
        const [[isSearched], ...found] = this.askRecords('searchFor', this.put(typed), Number(allWords), Number(ignoreAccents));
        return {
            isSearched: isSearched === '1',
            pages: found.map(([number, title, hidden]) => ({ number: Number(number), title, isHidden: hidden === '1' })),
        };
    }
}
