// The peer of `orvalente-cours dump`: all rows of a table as JSON lines, by the npm package mdb-reader.
//   ORVALENTE_MDB_READER=FOLDER node mdb_reader_dump.cjs FILE TABLE
const { readFileSync } = require("node:fs");

(async () => {
    const { default: MDBReader } = await import(process.env.ORVALENTE_MDB_READER + "/lib/node/index.js");
    const [file, table] = process.argv.slice(2);
    const rows = new MDBReader(readFileSync(file)).getTable(table).getData();
    process.stdout.write(rows.map((row) => JSON.stringify(row)).join("\n"));
})();
