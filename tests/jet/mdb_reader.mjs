// Prints a table as comma-separated values, read by the mdb-reader package in the folder given.
//   node mdb_reader.mjs PACKAGE_FOLDER FILE TABLE
import { readFileSync } from "node:fs";
import { join } from "node:path";
import { pathToFileURL } from "node:url";

const [folder, file, tableName] = process.argv.slice(2);
const entry = JSON.parse(readFileSync(join(folder, "package.json"), "utf8")).main;
const { default: MDBReader } = await import(pathToFileURL(join(folder, entry)));

const quoted = (text) => `"${text.replaceAll('"', '""')}"`;

function cell(value) {
    if (value === null || value === undefined) return "";
    if (typeof value === "boolean") return value ? "1" : "0";
    if (value instanceof Date) return value.toISOString().slice(0, 19).replace("T", " ");
    if (value instanceof Uint8Array) return quoted(Buffer.from(value).toString("hex"));
    return typeof value === "string" ? quoted(value) : String(value);
}

const table = new MDBReader(readFileSync(file)).getTable(tableName);
const names = table.getColumnNames();
const lines = [names.map(quoted), ...table.getData().map((row) => names.map((n) => cell(row[n])))];
process.stdout.write(lines.map((line) => line.join(",") + "\n").join(""));
