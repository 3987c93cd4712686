// What the benches of published courses have in common: a browser, and numbers.
import { existsSync, mkdtempSync, rmSync } from 'node:fs';
import { createRequire } from 'node:module';
import { tmpdir } from 'node:os';
import { join } from 'node:path';

const require = createRequire(join(process.cwd(), 'build/npm/x.js'));

export function launched() {
    const executablePath = ['/usr/bin/chromium', '/usr/bin/google-chrome'].find((path) => existsSync(path));
    return require('playwright-core').chromium.launch({ executablePath, args: ['--no-sandbox'] });
}

/** A folder that is gone when the process ends. */
export function temporaryFolder() {
    const folder = mkdtempSync(join(tmpdir(), 'orvalente-bench-'));
    process.on('exit', () => rmSync(folder, { recursive: true, force: true }));
    return folder;
}

export function median(numbers) {
    const sorted = [...numbers].sort((a, b) => a - b);
    return sorted[Math.floor(sorted.length / 2)];
}

export const rounded = (number, digits = 1) => number.toFixed(digits);

/**
 * In a document: when it was clicked or a key pressed, and when what came after was painted, both
 * in milliseconds since 1970. A task that a frame's callback posts runs when the frame is painted.
 */
export const CLOCK = `
globalThis.clock = {
    painted: () => new Promise((resolve) => requestAnimationFrame(() => {
        const { port1, port2 } = new MessageChannel();
        port1.onmessage = () => resolve(performance.timeOrigin + performance.now());
        port2.postMessage(0);
    })),
};
addEventListener('DOMContentLoaded', () => { clock.text = clock.painted(); });
addEventListener('load', () => { clock.all = clock.painted(); });
for (const name of ['click', 'keydown'])
    addEventListener(name, (event) => {
        if (name === 'keydown' && event.key !== 'Enter' || event.detail === 0 && name === 'click') return;
        sessionStorage.setItem('clicked', String(performance.timeOrigin + event.timeStamp));
    }, true);
`;
