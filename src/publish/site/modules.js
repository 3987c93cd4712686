// @ts-check
'use strict';

/**
 * Modules that have a page, by their numbers. The others are programs of their own only.
 * @type {Record<number, ModulePage>}
 */
const WEB_MODULES = {
    2: LENS_PAGE,
    10: REACTION_PAGE,
    23: PROJECTILE_PAGE,
};

/**
 * The page of a module with the exercise that is asked for.
 * @param {Course} course
 * @param {number} module which has a page
 * @param {string} asked name of the exercise's file; empty for none
 * @param {(next: SimulationView) => void} opened gets the page of the exercise after it, when somebody goes there
 * @returns {Promise<SimulationView>}
 */
async function openModule(course, module, asked, opened) {
    const [program, files] = await Promise.all([course.program('simulateur'), course.exercises(module)]);
    const isSame = (/** @type {{nom: string}} */ { nom }) => nom.toLowerCase() === asked.toLowerCase();
    const at = files.exercices.findIndex(isSame);
    const simulation = new Simulation(program, module);
    let why = simulation.open(files.exercices[at]?.texte);
    if (asked && at < 0) why = 'il n’est pas dans le dossier du cours.';
    const after = at < 0 ? undefined : files.exercices[at + 1];
    return new SimulationView(WEB_MODULES[module], simulation, {
        notice: why && `L’exercice «${BLANK}${asked}${BLANK}» n’a pas pu être ouvert${BLANK}: ${why} La simulation est à vous.`,
        next: after ? async () => opened(await openModule(course, module, after.nom, opened)) : null,
    });
}
