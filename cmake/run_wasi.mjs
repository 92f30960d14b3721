// Runs a WebAssembly program with its arguments and all files.
import {readFile} from "node:fs/promises";
import {argv, env, exit} from "node:process";
import {WASI} from "node:wasi";

const [program, ...rest] = argv.slice(2);
const wasi = new WASI({
  version: "preview1",
  args: [program, ...rest],
  env,
  preopens: {"/": "/"},
  returnOnExit: true,
});
const module = await WebAssembly.compile(await readFile(program));
const imports = {wasi_snapshot_preview1: wasi.wasiImport};
exit(wasi.start(await WebAssembly.instantiate(module, imports)));
