"use strict";
// The page: fields to the compiled code, texts from it to the page. The state is in the address.

const FIRST = "rolled";

// The results that are shown under the picture, by heading and symbol.
const MAIN = [
  ["Area", "A"],
  ["Second moments, centroid", "Ix"],
  ["Second moments, centroid", "Iy"],
  ["Elastic section moduli", "Wx1"],
  ["Plastic section moduli", "Wpx"],
  ["Torsion constant", "It"],
];

const element = id => document.getElementById(id);

// All that is put into this is the program's own: names, letters, figures.
const appendHtml = (parent, html) => parent.insertAdjacentHTML("beforeend", html);

const withPowers = unit => unit.replace(/\d/, digit => ({2: "²", 3: "³", 4: "⁴", 6: "⁶"})[digit]);
const drawn = picture => picture.slice(picture.indexOf("<svg"));

const CROPPED = window.matchMedia("(max-width: 1100px)"); // as designer.css

let engine;
let profile; // the chosen one
let section; // the last valid one of that profile
const typed = {}; // the words in the fields, by profile

// Fields -----------------------------------------------------------------------------------------

const radioOf = each => document.querySelector(`input[value="${each.name}"]`);
const field = name => element(`dimension-${name}`);
const slider = name => element(`slider-${name}`);
const numberIn = word => Number(word.replace(",", "."));

// A slider reaches from nothing to well beyond the value that its profile starts with, or beyond a
// larger one that is typed. It does not change while it is dragged.
function setReach(name, value) {
  const start = numberIn(profile.start[profile.dimensions.indexOf(name)]);
  const reach = 2.5 * (value > 2.5 * start ? value : start);
  const step = 10 ** Math.floor(Math.log10(reach / 150));
  const control = slider(name);
  control.max = Math.ceil(reach / step) * step;
  control.step = Number(step.toPrecision(1));
  control.min = profile.mayBeZero.includes(name) ? 0 : control.step;
}

function showValue(name, word) {
  const value = numberIn(word);
  if (!Number.isFinite(value)) return;
  setReach(name, value);
  slider(name).value = value;
}

function stepField(name, steps) {
  const step = Number(slider(name).step);
  const word = field(name).value;
  const value = numberIn(word);
  if (word.trim() === "" || !Number.isFinite(value)) return;
  const decimals = Math.max(...[word, String(step)].map(w => (w.split(/[.,]/)[1] ?? "").length));
  const stepped = Math.max(value + steps * step, Number(slider(name).min));
  field(name).value = String(Number(stepped.toFixed(decimals)));
  showValue(name, field(name).value);
  update(name);
}

function onKey(event, name) {
  const steps = {ArrowUp: 1, ArrowDown: -1, PageUp: 10, PageDown: -10}[event.key];
  if (steps === undefined || event.altKey || event.ctrlKey || event.metaKey) return;
  event.preventDefault();
  stepField(name, event.shiftKey ? 10 * Math.sign(steps) : steps);
}

function makeField(name, word) {
  appendHtml(
    element("dimensions"),
    `<div class="dimension">
      <label for="dimension-${name}">${name}</label>
      <input id="dimension-${name}" type="text" inputmode="decimal" spellcheck="false"
        aria-describedby="fault-${name}">
      <input id="slider-${name}" type="range" aria-label="${name}, slider"
        aria-describedby="fault-${name}">
      <p id="fault-${name}" class="fault"></p>
    </div>`,
  );
  const [text, drag] = [field(name), slider(name)];
  text.value = word;
  text.addEventListener("input", () => {
    showValue(name, text.value);
    update(name);
  });
  text.addEventListener("keydown", event => onKey(event, name));
  drag.addEventListener("input", () => {
    text.value = drag.value;
    update(name);
  });
  setReach(name, 0);
  showValue(name, word);
}

function makeFields(words) {
  element("dimensions").replaceChildren(element("dimensions").firstElementChild); // the legend
  profile.dimensions.forEach((name, i) => {
    makeField(name, words[i]);
  });
}

// Results ----------------------------------------------------------------------------------------

// A message that starts with a dimension is shown next to it. Any other message is shown next to the
// changed dimension; if none was changed, next to the first dimension that the message names.
function showRefusal(message, changed) {
  const names = profile.dimensions;
  const owner =
    names.find(name => message.startsWith(`${name} = `)) ??
    changed ??
    message.split(/\W+/).find(word => names.includes(word)) ??
    names[0];
  for (const name of names) {
    const isOwner = message !== "" && name === owner;
    element(`fault-${name}`).textContent = isOwner ? message : "";
    for (const control of [field(name), slider(name)])
      control.setAttribute("aria-invalid", isOwner);
  }
  element("stale").hidden = message === "";
  element("result").classList.toggle("stale", message !== "");
}

function showFigures() {
  let heading = "";
  const main = [];
  const number = (figure, unit) =>
    `<td class="number">${figure} <span class="unit"> ${withPowers(unit)}</span></td>`;
  const rows = section.figures.map(([start, symbol, value, unit, otherValue, otherUnit]) => {
    heading = start || heading;
    if (MAIN.some(([a, b]) => heading.startsWith(a) && symbol === b)) {
      main.push(`<div><dt>${symbol}</dt><dd>${otherValue} ${withPowers(otherUnit)}</dd></div>`);
    }
    return `<tr${start && ' class="first"'}><th scope="row">${start}</th>
      <td class="symbol">${symbol}</td>${number(value, unit)}${number(otherValue, otherUnit)}</tr>`;
  });
  element("rows").innerHTML = rows.join("");
  element("main-figures").innerHTML = main.join("");
  element("remarks").textContent = section.remarks;
}

const TAKEN = {
  JSON: () => section.json,
  SVG: () => section.picture,
  "command line": () => `section_properties ${section.profile} ${section.dimensions.join(" ")}\n`,
};
for (const language of Object.keys(LANGUAGES)) {
  TAKEN[`calls in ${language}`] = () => callsIn(language, profile, section);
}

const showText = () => {
  element("text").textContent = TAKEN[element("format").value]();
};

// Announced to screen readers when input pauses.
let telling;
function tell(message) {
  clearTimeout(telling);
  telling = setTimeout(() => {
    const figures = [...element("main-figures").children].map(item =>
      [...item.children].map(part => part.textContent).join(" "),
    );
    element("told").textContent = message || figures.join(", ");
  }, 500);
}

// Browsers refuse an address that changes many times a second.
let addressing;
const address = () => `#${[section.profile, ...section.dimensions].join("/")}`;
function setAddress() {
  clearTimeout(addressing);
  addressing = setTimeout(() => history.replaceState(null, "", address()), 300);
}

function update(changed) {
  element("link-fault").textContent = "";
  typed[profile.name] = profile.dimensions.map(name => field(name).value);
  const designed = engine.design(profile.name, typed[profile.name]);
  showRefusal(designed.refusal, changed);
  tell(designed.refusal);
  if (designed.refusal !== "") return;
  show(designed);
  setAddress();
}

function show(designed) {
  section = designed;
  element("picture").innerHTML = drawn(section.picture);
  fitPicture();
  showFigures();
  showText();
}

// On a narrow screen only the drawing itself: title, legend and white margins stay away.
function fitPicture() {
  const svg = element("picture").firstElementChild;
  svg.removeAttribute("height");
  svg.setAttribute("width", "100%");
  svg.setAttribute("role", "img");
  if (!CROPPED.matches) return;
  const words = ':scope > text, :scope > g[text-anchor="start"], :scope > rect';
  for (const part of svg.querySelectorAll(words)) part.remove();
  const {x, y, width, height} = svg.getBBox();
  svg.setAttribute("viewBox", [x - 10, y - 10, width + 20, height + 20].join(" "));
}

// Profiles and links -----------------------------------------------------------------------------

function choose(chosen, words) {
  profile = chosen;
  const radio = radioOf(profile);
  radio.checked = true;
  const strip = element("profiles"); // on a narrow screen
  strip.scrollLeft = radio.parentElement.offsetLeft - strip.clientWidth / 2;
  element("description").textContent = profile.description;
  makeFields(words);
  update();
  if (section?.profile === profile.name) return;
  // The message is shown next to invalid dimensions; the drawing shows the profile's start values.
  show(engine.design(profile.name, profile.start));
}

function makeChooser() {
  for (const each of engine.profiles) {
    appendHtml(
      element("profiles"),
      `<label title="${each.description}"><input type="radio" name="profile" value="${each.name}"
        aria-label="${each.name}: ${each.description}"><span>${each.name}</span></label>`,
    );
    radioOf(each).addEventListener("change", () => choose(each, typed[each.name] ?? each.start));
  }
}

// Each profile as it starts, the steel of its picture alone.
function drawIcons() {
  for (const each of engine.profiles) {
    const radio = radioOf(each);
    radio.insertAdjacentHTML("afterend", drawn(engine.design(each.name, each.start).picture));
    const svg = radio.nextElementSibling;
    const steel = svg.querySelector("path[fill-rule]");
    const {x, y, width, height} = steel.getBBox();
    const side = 1.2 * Math.max(width, height);
    svg.setAttribute(
      "viewBox",
      [x + (width - side) / 2, y + (height - side) / 2, side, side].join(" "),
    );
    svg.setAttribute("aria-hidden", "true");
    for (const name of ["width", "height"]) svg.removeAttribute(name);
    for (const name of ["fill", "stroke"]) steel.removeAttribute(name);
    svg.replaceChildren(steel);
  }
}

function wordsOfLink(hash) {
  const link = hash.slice(1);
  try {
    return decodeURIComponent(link).split("/");
  } catch {
    // a stray %
    return link.split("/");
  }
}

// A link that is none leaves a message, and the section as it was.
function openLink(hash) {
  if (section && hash === address()) return;
  const [name, ...words] = wordsOfLink(hash);
  const linked = engine.profiles.find(each => each.name === name.toLowerCase());
  const isLink = linked && words.length === linked.dimensions.length;
  const refusal = name === "" || isLink ? "" : engine.design(name, words).refusal;
  if (isLink) {
    choose(linked, words);
  } else if (!section) {
    const first = engine.profiles.find(each => each.name === FIRST);
    choose(first, first.start);
  }
  element("link-fault").textContent = refusal;
}

// Taking along -----------------------------------------------------------------------------------

async function copy(text, what) {
  try {
    await navigator.clipboard.writeText(text);
  } catch {
    // without the right to do so, or from a folder
    const area = document.createElement("textarea");
    area.value = text;
    document.body.append(area);
    area.select();
    document.execCommand("copy");
    area.remove();
  }
  element("copied").textContent = `${what} copied`;
  setTimeout(() => {
    element("copied").textContent = "";
  }, 2000);
}

function listen() {
  element("format").append(...Object.keys(TAKEN).map(name => new Option(name)));
  element("format").addEventListener("change", showText);
  element("copy").addEventListener("click", () =>
    copy(element("text").textContent, element("format").value),
  );
  element("copy-link").addEventListener("click", () =>
    copy(location.href.split("#")[0] + address(), "link"),
  );
  element("section").addEventListener("submit", event => event.preventDefault());
  // The event has the link. On a busy machine the page has set its own address again meanwhile.
  window.addEventListener("hashchange", event => openLink(new URL(event.newURL).hash));
  CROPPED.addEventListener("change", () => show(section));
}

startEngine()
  .then(started => {
    engine = started;
    makeChooser();
    listen();
    openLink(location.hash);
    performance.measure("first picture", "arrived");
    setTimeout(drawIcons);
  })
  .catch(error => {
    element("link-fault").textContent = `This browser cannot run the page's code: ${error.message}`;
  });
