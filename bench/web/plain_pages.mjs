// The course as plain pages of HTML, as generators of static sites make them: the same texts,
// tables and pictures, a style sheet, links to the neighbours, no script. It is made of a published
// site.
import { mkdirSync, readFileSync, writeFileSync } from 'node:fs';
import { createHash } from 'node:crypto';
import { join } from 'node:path';
import { runInNewContext } from 'node:vm';

const STYLE = `body { max-width: 44rem; margin: 1rem auto; padding: 0 1rem; font: 1rem/1.5 'Liberation Sans', Arial, sans-serif; }
nav { display: flex; justify-content: space-between; } table { border-collapse: collapse; } td { border: 1px solid #8c8472; padding: 0 .5rem; }
img { max-width: 100%; }
`;

/** What a script of a site hands over. */
function handedOver(site, file) {
    let data;
    runInNewContext(readFileSync(join(site, file), 'utf8'), { orvalente: { recevoir: (_, value) => { data = value; } } });
    return data;
}

/** The entries of the pages in their order. */
export function courseOf(site) {
    return handedOver(site, /src="(cours-[^"]+)"/.exec(readFileSync(join(site, 'index.html'), 'utf8'))[1]);
}

/** The drawings that stand in a drawing, but for its signs of a line's height. */
function pictures(drawing) {
    const found = [];
    for (const start of drawing.matchAll(/<svg id="[^"]+" width="1" height="1"[^>]* viewBox="([^"]+)">/g)) {
        const [, , width, height] = start[1].split(' ').map(Number);
        if (width <= 30) continue;
        let depth = 0;
        for (const tag of drawing.slice(start.index).matchAll(/<svg[ >]|<\/svg>/g)) {
            depth += tag[0] === '</svg>' ? -1 : 1;
            if (depth > 0) continue;
            const body = drawing.slice(start.index + start[0].length, start.index + tag.index);
            const head = `<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink" width="${width}" height="${height}" viewBox="${start[1]}">`;
            found.push({ ending: 'svg', bytes: Buffer.from(`${head}${body}</svg>`), width, height });
            break;
        }
    }
    for (const [, ending, base64] of drawing.matchAll(/"data:image\/(png|jpeg);base64,([^"]+)"/g))
        found.push({ ending, bytes: Buffer.from(base64, 'base64') });
    return found;
}

/** Writes the pages and gives their file names. */
export function writePlainPages(site, folder) {
    mkdirSync(join(folder, 'images'), { recursive: true });
    writeFileSync(join(folder, 'style.css'), STYLE);
    const { titre, pages } = courseOf(site);
    const page = (title, body) => `<!DOCTYPE html>\n<html lang="fr"><head><meta charset="utf-8"><meta name="viewport" content="width=device-width"><title>${title}</title><link rel="stylesheet" href="style.css"></head><body>\n${body}\n</body></html>\n`;
    const link = (entry, rel) => (entry ? `<a rel="${rel}" href="p${entry.numero}.html">${entry.titre}</a>` : '<span></span>');
    pages.forEach((entry, i) => {
        const data = handedOver(site, entry.fichier);
        const images = pictures(data.dessin).map(({ ending, bytes, width, height }) => {
            const name = `images/${createHash('sha256').update(bytes).digest('hex').slice(0, 10)}.${ending}`;
            writeFileSync(join(folder, name), bytes);
            return `<p><img src="${name}" alt=""${width ? ` width="${Math.round(width)}" height="${Math.round(height)}"` : ''}></p>`;
        });
        const text = data.texte.replaceAll(/href="#p(\d+)"/g, 'href="p$1.html"').replaceAll(/ data-link="\d+"/g, '');
        writeFileSync(join(folder, `p${entry.numero}.html`), page(data.titre,
            `<nav>${link(entry.avant && pages[i - 1], 'prev')}${link(entry.apres && pages[i + 1], 'next')}</nav>\n<h1>${data.titre}</h1>\n${text}\n${images.join('\n')}`));
    });
    const list = pages.map((entry) => `<li><a id="n${entry.numero}" href="p${entry.numero}.html">${entry.titre || entry.numero}</a></li>`);
    writeFileSync(join(folder, 'index.html'), page(titre, `<h1>${titre}</h1>\n<ul>\n${list.join('\n')}\n</ul>`));
    return pages.map((entry) => `p${entry.numero}.html`);
}
