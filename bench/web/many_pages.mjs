// The sources of a course of many pages: those of the demonstration course again and again, each
// time under other numbers, without tests and films, which other programs have no like of.
//   node bench/web/many_pages.mjs COURSE-SOURCES COUNT FOLDER
import { cpSync, mkdirSync, readFileSync, readdirSync, writeFileSync } from 'node:fs';
import { extname, join } from 'node:path';

const [, , sources, count, folder] = process.argv;
const NUMBERS = /^(Numeropage|debutimp|finimp|sommaire) = (\d+)$/gm;
const INDEXES_OF_A_ROUND = 10_000;

cpSync(join(sources, 'files'), join(folder, 'files'), { recursive: true, filter: (name) => !name.endsWith('.avi') });
mkdirSync(join(folder, 'pages'), { recursive: true });
const names = readdirSync(join(sources, 'pages')).sort();
// Numbers end at 999, so that those of a round stand without gaps, in the order of the course.
const numbers = names.map((name) => Number(/^Numeropage = (\d+)$/m.exec(readFileSync(join(sources, 'pages', name), 'utf8'))[1])).sort((a, b) => a - b);
const places = new Map(numbers.map((number, i) => [number, i + 1]));
for (let i = 0; i < Number(count); ++i) {
    const name = names[i % names.length];
    const round = Math.floor(i / names.length);
    const renumbered = (number) => (places.has(Number(number)) ? round * names.length + places.get(Number(number)) : Number(number));
    const page = readFileSync(join(sources, 'pages', name), 'utf8')
        .replace(NUMBERS, (_, field, number) => `${field} = ${renumbered(number)}`)
        .replace(/^Index = (\d+)$/m, (_, index) => `Index = ${Number(index) + round * INDEXES_OF_A_ROUND}`)
        .replace(/(#PAG|\(page:)(\d+)/g, (_, start, number) => start + String(renumbered(number)).padStart(3, '0'));
    writeFileSync(join(folder, 'pages', `${String(i).padStart(4, '0')}${extname(name)}`), page);
}
