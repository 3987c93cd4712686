// Numbers are written and read by other functions of the library for wasm32 than elsewhere.
//   node numbers.mjs CORE.WASM
import { readFileSync } from 'node:fs';
import { deepStrictEqual } from 'node:assert';

const module = new WebAssembly.Module(readFileSync(process.argv[2]));
const stubs = WebAssembly.Module.imports(module).map(({ name }) => [name, () => 0]);
const instance = new WebAssembly.Instance(module, { wasi_snapshot_preview1: Object.fromEntries(stubs) });
const core = instance.exports;
core._initialize();
const buffer = () => new Uint16Array(core.memory.buffer, core.textBuffer(), 64);

const written = (value) => {
    const length = core.numberText(value);
    return String.fromCharCode(...buffer().subarray(0, length));
};
const read = (text) => {
    buffer().set([...text].map((c) => c.charCodeAt(0)));
    return core.leadingNumber(text.length);
};

for (const [value, text] of [
    [42, ' 42'], [0.5, ' .5'], [-12.75, '-12.75'], [-0, ' 0'], [0.1 + 0.2, ' .3'],
    [1 / 3, ' .333333333333333'], [1 / 30, ' 3.33333333333333E-02'], [2 / 3, ' .666666666666667'],
    [999999999999999, ' 999999999999999'], [1e15, ' 1E+15'], [1e100, ' 1E+100'],
    [1.5e-7, ' 1.5E-07'], [5e-324, ' 4.94065645841247E-324'], [-1.7976931348623157e308, '-1.79769313486232E+308'],
]) {
    deepStrictEqual(written(value), text);
}
for (const [text, value] of [
    ['42', 42], ['-1.5e3m', -1500], ['1 234', 1234], ['.5', 0.5], ['+7d-2', 0.07], ['x', 0], ['', 0],
    ['0.1', 0.1], ['1e400', Infinity], ['-1e400', -Infinity], ['1e-400', 0], ['123456789012345678', 123456789012345678],
]) {
    deepStrictEqual(read(text), value);
}
