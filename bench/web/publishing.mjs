// Publishing a course of 600 pages beside what other programs take for as many pages of the same
// text and pictures, whole processes in turn: seconds by the clock, and of processor time, which
// other work on the machine changes less.
//   node bench/web/publishing.mjs ORVALENTE-COURS COURSE-SOURCES [ROUNDS]
import { execFileSync, spawnSync } from 'node:child_process';
import { readFileSync, rmSync, statSync, writeFileSync } from 'node:fs';
import { dirname, join, resolve } from 'node:path';
import { fileURLToPath } from 'node:url';
import { median, rounded, temporaryFolder } from './browser.mjs';
import { writePlainPages } from './plain_pages.mjs';

const PAGES = 600;
const [tool, sources] = process.argv.slice(2, 4).map((path) => resolve(path));
const rounds = process.argv[4] ?? 3;
const work = temporaryFolder();
const [source, course, site, plain] = ['source', 'course', 'site', 'plain'].map((name) => join(work, name));
execFileSync('node', [join(dirname(fileURLToPath(import.meta.url)), 'many_pages.mjs'), sources, String(PAGES), source]);
execFileSync(tool, ['build', source, '-o', course], { stdio: 'ignore' });
execFileSync(tool, ['publish', course, '-o', site], { stdio: 'ignore' });
const pages = writePlainPages(site, plain);
if (pages.length !== PAGES) throw new Error(`${pages.length} pages`);

/** Seconds by the clock, and of processors. `made` is what there must be afterwards. */
function timed(command, made) {
    rmSync(made, { recursive: true, force: true });
    const { stderr } = spawnSync('bash', ['-c', `TIMEFORMAT='%R %U %S'; time { ${command}; } > ${work}/out 2>&1`], { cwd: plain, encoding: 'utf8' });
    statSync(made);
    const [clock, user, system] = stderr.trim().split(' ').map(Number);
    return { clock, processor: user + system };
}

// Debian's wkhtmltopdf takes one document, with the pages on sheets of their own.
const bodies = pages.map((name) => /<body>([\s\S]*)<\/body>/.exec(readFileSync(join(plain, name), 'utf8'))[1]);
writeFileSync(join(plain, 'all.html'), `<!DOCTYPE html><meta charset="utf-8"><link rel="stylesheet" href="style.css">${bodies.map((body) => `<section style="page-break-after: always">${body}</section>`).join('\n')}`);
const list = pages.join(' ');
const ways = {
    ours: [`${tool} publish ${course} -o ${work}/made`, `${work}/made/index.html`],
    wkhtmltopdf: [`wkhtmltopdf --quiet --enable-local-file-access all.html ${work}/made.pdf`, `${work}/made.pdf`],
    // One process for all, which saves the peer 599 starts; into HTML, and into as many files of an EPUB.
    'pandoc, into one page of HTML': [`pandoc --standalone ${list} -o ${work}/made.html`, `${work}/made.html`],
    'pandoc, into an EPUB': [`pandoc --epub-chapter-level=1 --metadata title=Cours ${list} -o ${work}/made.epub`, `${work}/made.epub`],
};
const found = Object.fromEntries(Object.keys(ways).map((name) => [name, []]));
for (let i = 0; i < Number(rounds); ++i)
    for (const [name, [command, made]] of Object.entries(ways)) {
        rmSync(join(work, 'made'), { recursive: true, force: true });
        found[name].push(timed(command, made));
    }
const of = (name, what) => median(found[name].map((one) => one[what]));
for (const name of Object.keys(ways))
    console.log(`${name}: ${rounded(of(name, 'clock'))} s, processor ${rounded(of(name, 'processor'), 2)} s`
        + (name === 'ours' ? '' : `; ${name.split(',')[0]} / ours ${rounded(of(name, 'clock') / of('ours', 'clock'))}, of processor time ${rounded(of(name, 'processor') / of('ours', 'processor'))}`));
