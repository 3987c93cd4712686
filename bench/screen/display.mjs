// Screens without glass: an X server in memory with a window manager and one program.
import { execFileSync, spawn } from 'node:child_process';
import { setTimeout as pause } from 'node:timers/promises';

/** The number of a display that is free, once its server listens. */
function started(server) {
    return new Promise((resolve, reject) => {
        server.once('exit', () => reject(new Error('no X server')));
        server.stdio[3].once('data', (number) => resolve(String(number).trim()));
    });
}

const open = new Set();
process.on('exit', () => { for (const display of open) display.close(); });

export class Display {
    /** `folder` is the home of what runs there. */
    static async open({ width, height }, folder, measure) {
        const server = spawn('Xvfb', ['-displayfd', '3', '-screen', '0', `${width}x${height}x24`, '-nolisten', 'tcp'], { stdio: ['ignore', 'ignore', 'ignore', 'pipe'] });
        const display = new Display(`:${await started(server)}`, folder, measure);
        display.#processes.push(server);
        display.start('openbox', [], {});
        await pause(500);
        return display;
    }

    #environment;
    #measure;
    #processes = [];

    constructor(name, folder, measure) {
        const { QT_QPA_PLATFORM, ...inherited } = process.env;
        this.#environment = { ...inherited, DISPLAY: name, HOME: folder, LC_ALL: 'C.UTF-8' };
        this.#measure = measure;
        open.add(this);
    }

    start(command, args, environment) {
        this.#processes.push(spawn(command, args, { env: { ...this.#environment, ...environment }, stdio: 'ignore' }));
    }

    tool(...args) {
        return execFileSync('xdotool', args.map(String), { env: this.#environment, encoding: 'utf8', timeout: 10_000 });
    }

    /** The window that the manager has, once it has one. */
    async window() {
        for (let i = 0; i < 100; ++i) {
            const [window] = /0x[0-9a-f]+/.exec(execFileSync('xprop', ['-root', '_NET_CLIENT_LIST'], { env: this.#environment, encoding: 'utf8' })) ?? [];
            if (window) return window;
            await pause(100);
        }
        throw new Error('no window');
    }

    /** Keys that are not measured; each has its time. */
    async keys(...names) {
        for (const name of names) {
            this.tool('key', name);
            await pause(250);
        }
    }

    /** Milliseconds from the press to the last change of the screen; 0 when it does not become another and still. */
    async press(key) {
        const child = spawn(this.#measure, [key], { env: this.#environment, stdio: ['ignore', 'pipe', 'ignore'] });
        const told = await new Promise((resolve) => { child.stdout.once('data', resolve); child.once('exit', () => resolve('')); });
        return Number(String(told).split(' ')[1] ?? 0);
    }

    picture(file) {
        execFileSync('import', ['-window', 'root', file], { env: this.#environment });
    }

    close() {
        open.delete(this);
        for (const each of this.#processes.splice(0).reverse()) each.kill();
    }
}
