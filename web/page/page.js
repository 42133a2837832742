// SPDX-License-Identifier: MIT
// The page: loads the show, opens the doors, and hands over to the player and its controls.

import { Controls } from "./controls.js";
import { Engine } from "./engine.js";
import { Loader, Trouble, no_webgl, unpack } from "./loader.js";
import { Player } from "./player.js";
import { Sound } from "./sound.js";
import { Stats } from "./stats.js";

const element = (id) => document.getElementById(id);
const settings = new URLSearchParams(location.search);

const doors = [
    { button: element("watch"), calm: false },
    { button: element("watch-calmly"), calm: true },
];
const trouble = element("trouble");
const loading = element("loading");

function show_bytes(come, wanted) {
    element("loaded").value = come / wanted;
    const megabytes = (bytes) => (bytes / 1e6).toFixed(1);
    element("bytes").textContent = `${megabytes(come)} of ${megabytes(wanted)} MB`;
}

function complain(error) {
    const known = error instanceof Trouble;
    if (!known) console.error(error);
    trouble.textContent = known ? error.message : `Something went wrong that should not: ${error.message}`;
    trouble.hidden = false;
}

function notice(text) {
    element("notice").textContent = text;
    element("notice").hidden = text === "";
}

function check_browser() {
    if (!window.WebAssembly || !window.DecompressionStream || !window.AudioContext) {
        throw new Trouble("This browser is too old for the show, which takes one of 2023 or later.");
    }
    if (!document.createElement("canvas").getContext("webgl2")) {
        throw new Trouble(no_webgl);
    }
}

/** The music's file, as this browser reads it; the other one where that turns out wrong. */
function encodings() {
    const names = ["music.ogg", "music.m4a"];
    return new Audio().canPlayType('audio/ogg; codecs="vorbis"') ? names : names.reverse();
}

const loader = new Loader(show_bytes);
const sound = new Sound();
const stats = new Stats(element("stats"));
// A failure is told when a door is opened; until then it must not count as unhandled.
const kept = (promise) => (promise.catch(() => {}), promise);

function load() {
    check_browser();
    loading.hidden = false;
    const [first] = encodings();
    return {
        wasm: kept(loader.load("show.wasm")),
        files: kept(loader.load("show.pack").then(unpack)),
        music: kept(loader.load(first)),
    };
}

/** @returns whether there is music now */
async function load_music(bytes) {
    try {
        if (await sound.load(await bytes)) return true;
        return await sound.load(await loader.load(encodings()[1]));
    } catch (error) {
        if (error instanceof Trouble) notice(`${error.message} The show plays without music.`);
        else throw error;
        return false;
    }
}

let player = null;
let controls = null;
let loads = null;

async function enter(door) {
    for (const { button } of doors) button.disabled = true;
    door.button.classList.add("chosen");
    sound.open(); // while the click is handled
    try {
        if (!player) await prepare(loads);
        loading.hidden = true;
        element("first").hidden = true;
        element("player").hidden = false;
        player.calm = door.calm;
        player.fit();
        player.play();
        controls.wake();
    } catch (error) {
        loading.hidden = true;
        complain(error);
    }
}

async function prepare({ wasm, files, music }) {
    const engine = await Engine.open(await wasm, await files);
    engine.openPicture();
    engine.start();
    const heard = await load_music(music);
    if (!heard && element("notice").hidden) notice("No sound can be played here. The show plays without.");
    player = new Player(engine, sound, stats, element("picture"));
    controls = new Controls(element("player"), player, sound, engine);
    player.addEventListener("end", leave);
    controls.addEventListener("leave", leave);
    player.addEventListener("silent", () =>
        notice(
            "No sound comes out: there is no device for it, or the browser holds it back. The show plays without.",
        ),
    );
    player.addEventListener("lost", () =>
        notice("The graphics driver took the picture away. It comes back by itself."),
    );
    player.addEventListener("restored", () => notice(""));
    if (settings.has("stats")) {
        element("stats").hidden = false;
        window.hardSilence = { engine, player, sound, stats };
    }
}

/** Back to the first screen. */
function leave() {
    player.stop();
    if (document.fullscreenElement) document.exitFullscreen();
    notice("");
    element("player").hidden = true;
    element("first").hidden = false;
    for (const { button } of doors) {
        button.disabled = false;
        button.classList.remove("chosen");
    }
}

function main() {
    const calm = matchMedia("(prefers-reduced-motion: reduce)").matches;
    doors[Number(calm)].button.classList.add("preselected");
    doors[Number(calm)].button.focus({ focusVisible: calm, preventScroll: true });
    try {
        loads = load();
    } catch (error) {
        for (const { button } of doors) button.disabled = true;
        complain(error);
        return;
    }
    for (const door of doors) door.button.addEventListener("click", () => enter(door));
}

main();
