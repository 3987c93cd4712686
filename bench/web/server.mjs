// nginx on a folder, with the lines that docs/publier.md gives teachers.
import { spawn, execFileSync } from 'node:child_process';
import { mkdirSync, readFileSync, writeFileSync } from 'node:fs';
import { createServer } from 'node:net';
import { dirname, join } from 'node:path';
import { fileURLToPath } from 'node:url';

const MANUAL = join(dirname(fileURLToPath(import.meta.url)), '../../docs/publier.md');

export async function freePort() {
    const server = createServer();
    await new Promise((resolve) => { server.listen(0, '127.0.0.1', resolve); });
    const { port } = server.address();
    await new Promise((resolve) => { server.close(resolve); });
    return port;
}

async function answering(address) {
    for (let i = 0; i < 100; ++i) {
        try {
            const answer = await fetch(address);
            await answer.arrayBuffer();
            if (answer.ok) return;
        } catch {
            await new Promise((resolve) => { setTimeout(resolve, 100); });
        }
    }
    throw new Error(`nothing answers at ${address}`);
}

/** Starts a program that serves, until the process ends; waits until it answers. */
export async function startServer(command, args, address) {
    const server = spawn(command, args, { stdio: 'ignore' });
    process.on('exit', () => server.kill());
    await answering(address);
    return () => new Promise((resolve) => { server.once('exit', resolve); server.kill(); });
}

/** Serves `site`; `work` is a folder of the server's own. Gives its address and its journal. */
export async function serve(site, work) {
    mkdirSync(work, { recursive: true });
    const port = await freePort();
    const journal = join(work, 'journal');
    const lines = /```nginx\n([\s\S]*?)```/.exec(readFileSync(MANUAL, 'utf8'))[1].replace(/^listen .*$/m, '').replace(/^root .*$/m, '');
    const settings = join(work, 'nginx.conf');
    // Its workers would otherwise be somebody who may not read a folder of ours.
    const user = process.getuid() === 0 ? 'user root;' : '';
    writeFileSync(settings, `${user} daemon off; pid ${work}/pid; error_log ${work}/errors; worker_processes 1;
events { worker_connections 512; }
http {
include /etc/nginx/mime.types; sendfile on;
${['client_body', 'proxy', 'fastcgi', 'uwsgi', 'scgi'].map((name) => `${name}_temp_path ${work}/${name};`).join(' ')}
log_format counted '$status $bytes_sent $request_uri'; access_log ${journal} counted;
server { listen 127.0.0.1:${port}; root ${site};
${lines}
}
}
`);
    execFileSync('/usr/sbin/nginx', ['-t', '-q', '-c', settings]);
    const address = `http://127.0.0.1:${port}/`;
    const stop = await startServer('/usr/sbin/nginx', ['-c', settings], address);
    return { address, journal, stop };
}
