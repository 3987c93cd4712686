// The plain pages of a course as a ZIM archive, which Kiwix shows.
import { execFileSync } from 'node:child_process';
import { join } from 'node:path';

/** The archive's first page is the course's; archives want a picture of 48 by 48 pixels. */
export function writeArchive(plain, debut, archive) {
    execFileSync('ffmpeg', ['-v', 'error', '-f', 'lavfi', '-i', 'color=c=blue:s=48x48', '-frames:v', '1', join(plain, 'signe.png')]);
    execFileSync('zimwriterfs', [`--welcome=p${debut}.html`, '--illustration=signe.png', '--language=fra', '--title=Cours', '--description=Cours', '--creator=Cours', '--publisher=Cours', '--withoutFTIndex', plain, archive], { stdio: 'ignore' });
}
