// The sources of a course of many pages: those of the demonstration course again and again, each
// time under other numbers, without tests and films, which other programs have no like of.
//   node bench/web/many_pages.mjs COURSE-SOURCES COUNT FOLDER
import { cpSync, mkdirSync, readFileSync, readdirSync, writeFileSync } from 'node:fs';
import { extname, join } from 'node:path';

const [, , sources, count, folder] = process.argv;
const NUMBERS = /^(Numeropage|Index|debutimp|finimp|sommaire) = (\d+)$/gm;
const ROUND = 165; // more than the course's highest number; six times fit under 1,000, where numbers of pages end

cpSync(join(sources, 'files'), join(folder, 'files'), { recursive: true, filter: (name) => !name.endsWith('.avi') });
mkdirSync(join(folder, 'pages'), { recursive: true });
const names = readdirSync(join(sources, 'pages')).sort();
for (let i = 0; i < Number(count); ++i) {
    const name = names[i % names.length];
    const shift = Math.floor(i / names.length) * ROUND;
    const page = readFileSync(join(sources, 'pages', name), 'utf8')
        .replace(NUMBERS, (_, field, number) => `${field} = ${Number(number) + shift}`)
        .replace(/(#PAG|\(page:)(\d+)/g, (_, start, number) => start + String(Number(number) + shift).padStart(3, '0'));
    writeFileSync(join(folder, 'pages', `${String(i).padStart(4, '0')}${extname(name)}`), page);
}
