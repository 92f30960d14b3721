"use strict";
// The compiled code: words of a section in, texts out.

performance.mark("arrived");

// As designer.cpp numbers its texts.
const TEXTS = ["refusal", "dimensions", "figures", "json", "picture", "remarks", "parts"];

async function startEngine() {
  const characters = atob(document.getElementById("code").textContent);
  const packed = new Uint8Array(characters.length);
  for (let i = 0; i < packed.length; ++i) packed[i] = characters.charCodeAt(i);
  // Written to the stream here: a Blob's own stream comes by way of another process.
  const unpacking = new DecompressionStream("gzip");
  const writer = unpacking.writable.getWriter();
  const written = Promise.all([writer.write(packed), writer.close()]);
  const unpacked = await new Response(unpacking.readable).arrayBuffer();
  await written;
  const {instance} = await WebAssembly.instantiate(unpacked);
  const code = instance.exports;
  code._initialize();

  const read = address => {
    const bytes = new Uint8Array(code.memory.buffer, address);
    return new TextDecoder().decode(bytes.subarray(0, bytes.indexOf(0)));
  };
  const lines = text =>
    text
      .split("\n")
      .slice(0, -1)
      .map(line => line.split("\t"));
  const words = text => (text === "" ? [] : text.split(" "));

  return {
    profiles: lines(read(code.designer_profiles())).map(
      ([name, description, routine, ...dimensions]) => {
        const told = dimensions.map(words);
        return {
          name,
          description,
          routine,
          dimensions: told.map(([letter]) => letter),
          start: told.map(([, value]) => value),
          mayBeZero: told.filter(([, , zero]) => zero).map(([letter]) => letter),
        };
      },
    ),

    // The section, or why there is none: { refusal }.
    design(profile, dimensions) {
      const bytes = new TextEncoder().encode(
        [profile, ...dimensions].map(word => `${word}\0`).join(""),
      );
      if (bytes.length > code.designer_input_size()) return {refusal: "the input is too long"};
      new Uint8Array(code.memory.buffer, code.designer_input(), bytes.length).set(bytes);
      code.designer_design(bytes.length);
      const refusal = read(code.designer_text(0));
      if (refusal !== "") return {refusal};
      const texts = Object.fromEntries(TEXTS.map((name, i) => [name, read(code.designer_text(i))]));
      return {
        ...texts,
        profile,
        dimensions: words(texts.dimensions),
        figures: lines(texts.figures),
        parts: lines(texts.parts).map(([kind, factor, x, y]) => ({
          kind,
          factor,
          x: words(x),
          y: words(y),
        })),
      };
    },
  };
}
