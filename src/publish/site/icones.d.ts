/** The drawings of the shell by their names, which publishing puts before the scripts. */
declare const ICONES: Record<string, string>;
