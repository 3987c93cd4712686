// A published course that the tests in browsers use, and a server for it.
import { execFileSync } from 'node:child_process';
import { cpSync, existsSync, readFileSync, readdirSync, rmSync, statSync, writeFileSync } from 'node:fs';
import { createServer } from 'node:http';
import { extname, join, normalize } from 'node:path';
import { pathToFileURL } from 'node:url';

const HOSTILE = '</script><script>window.harm = 1</script><img src=x onerror="window.harm = 1">';
/** How many images the film of page 69 has; image i is of the lightness 20 + 5 i. */
const images = 40;

/** The sources of the course with a page that means harm, and one short film of which each image is known. */
function hostileSources(sources, source) {
    cpSync(sources, source, { recursive: true });
    const films = readdirSync(join(source, 'files')).filter((name) => name.endsWith('.avi'));
    for (const name of films) rmSync(join(source, 'files', name));
    execFileSync('ffmpeg', ['-v', 'error', '-f', 'lavfi', '-i', `color=c=black:s=160x120:r=25:d=${images / 25}`, '-vf', 'geq=lum=20+5*N:cb=128:cr=128', '-c:v', 'mjpeg', '-q:v', '2', join(source, 'files', 'chute.avi')]);
    writeFileSync(join(source, 'files', 'piege.svg'), `<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink" width="100" height="40" viewBox="0 0 100 40" onload="window.harm = 2">
<title>piège</title><script>window.harm = 3</script><a xlink:href="javascript:window.harm = 4"><rect width="100" height="40" fill="#d3e3f6" onclick="window.harm = 5"/></a>
<foreignObject width="100" height="40"><iframe xmlns="http://www.w3.org/1999/xhtml" src="javascript:parent.harm = 6"/></foreignObject><text x="5" y="25" font-family="Arial">piège</text></svg>`);
    writeFileSync(join(source, 'pages', '300-piege.page'), ['+++', 'Numeropage = 300', 'Index = 9000', `titre = '${HOSTILE}'`, 'imprimable = true', 'moteur = true', 'debutimp = 300', 'finimp = 300', 'sommaire = 28', '+++',
        '##OBJPRINCIPAL', `${HOSTILE}¶`, '##IMApiege.svg', '##PIY080', `##LIEL${HOSTILE}`, 'fin¶', ''].join('\n'));
}

/**
 * @param {string} tool orvalente-cours
 * @param {string} sources of the course
 * @param {string} folder where all is put
 */
export function publishedCourse(tool, sources, folder) {
    const [source, course, site] = ['source', 'course', 'site'].map((name) => join(folder, name));
    process.env.XDG_CACHE_HOME = join(folder, 'cache'); // converted films are kept there
    hostileSources(sources, source);
    execFileSync(tool, ['build', source, '-o', course], { stdio: 'ignore' });
    execFileSync(tool, ['publish', course, '-o', site], { stdio: ['ignore', 'ignore', 'pipe'] });
    return { source, course, site, images };
}

const types = { '.html': 'text/html', '.js': 'text/javascript', '.css': 'text/css', '.woff2': 'font/woff2', '.webm': 'video/webm', '.txt': 'text/plain', '.svg': 'image/svg+xml' };

/**
 * A server for the site, which knows no parts of files, and its addresses from there and from the folder.
 * @param {string} site
 * @param {Record<string, () => string | Buffer>} [besides] what else it has, by path
 */
export async function served(site, besides = {}) {
    const server = createServer((request, response) => {
        const { pathname } = new URL(request.url, 'http://x');
        const path = normalize(join(site, decodeURIComponent(pathname)));
        const isThere = besides[pathname] || (path.startsWith(site) && existsSync(path) && statSync(path).isFile());
        if (!isThere) return response.writeHead(404).end();
        return response.writeHead(200, { 'Content-Type': types[extname(pathname)] ?? 'application/octet-stream' }).end(besides[pathname]?.() ?? readFileSync(path));
    });
    await new Promise((resolve) => { server.listen(0, '127.0.0.1', resolve); });
    return { server, addresses: { folder: pathToFileURL(join(site, 'index.html')).href, server: `http://127.0.0.1:${server.address().port}/index.html` } };
}
