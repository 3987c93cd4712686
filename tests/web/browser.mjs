// What the tests in a browser begin with: a browser, what drives it, and a folder that goes with the
// test. A test ends with 77 when there is no browser or nothing to drive it.
import { existsSync, mkdtempSync, readFileSync, rmSync } from 'node:fs';
import { createRequire } from 'node:module';
import { tmpdir } from 'node:os';
import { join } from 'node:path';

/** @param {string} why */
export function skip(why) {
    console.log(why);
    process.exit(77);
}

/** @param {string} name a part of the folder's */
export function aFolder(name) {
    const folder = mkdtempSync(join(tmpdir(), `orvalente-${name}-`));
    process.on('exit', () => rmSync(folder, { recursive: true, force: true }));
    return folder;
}

/**
 * @param {string} npm folder of the packages
 * @param {string} name of the folder
 */
export async function begin(npm, name) {
    const require = createRequire(join(npm, 'x.js'));
    const executablePath = ['/usr/bin/chromium', '/usr/bin/google-chrome'].find((path) => existsSync(path));
    let chromium;
    try {
        ({ chromium } = require('playwright-core'));
    } catch {
        // told below
    }
    if (!executablePath || !chromium) skip('Ni Chromium ni playwright-core : rien n’a été essayé dans un navigateur.');
    return {
        folder: aFolder(name),
        launch: () => chromium.launch({ executablePath, args: ['--no-sandbox'] }),
        axe: readFileSync(require.resolve('axe-core/axe.min.js'), 'utf8'),
    };
}
