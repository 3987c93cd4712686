// @ts-check
'use strict';

/**
 * A simulation as a page of the site.
 * @typedef {{title: string, element: HTMLElement, leave: () => void}} ModuleView
 */

/**
 * Modules that have a page, by their numbers. The others are programs of their own only.
 * @type {Record<number, (program: Program) => ModuleView>}
 */
const WEB_MODULES = {
    23: (program) => new ProjectileView(program),
};
