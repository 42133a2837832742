// SPDX-License-Identifier: MIT
// The bar below the picture, the keys and the touches.

const rest_after = 2500; // milliseconds

export class Controls extends EventTarget {
    #root;
    #player;
    #sound;
    #engine;
    #scenes = []; // their buttons
    #timer = 0;

    constructor(root, player, sound, engine) {
        super();
        this.#root = root;
        this.#player = player;
        this.#sound = sound;
        this.#engine = engine;
        this.#makeScenes();
        this.#listen();
        this.#update();
    }

    #element(id) {
        return this.#root.querySelector(`#${id}`);
    }

    #makeScenes() {
        for (const scene of this.#engine.scenes) {
            const button = document.createElement("button");
            button.type = "button";
            button.setAttribute("aria-label", `${scene.title}, beat ${scene.first}`);
            button.style.flexGrow = scene.beats;
            button.style.flexBasis = 0;
            const title = document.createElement("span");
            title.textContent = scene.title;
            button.append(title);
            button.addEventListener("click", () => this.#player.seekBeat(scene.first));
            this.#element("scenes").append(button);
            this.#scenes.push(button);
        }
    }

    #listen() {
        const on = (id, what, act) => this.#element(id).addEventListener(what, act);
        on("pause", "click", () => this.#player.toggle());
        on("mute", "click", () => this.mute());
        on("volume", "input", (event) => this.#setVolume(event.target.valueAsNumber));
        on("calm", "click", () => (this.#player.calm = !this.#player.calm));
        on("full", "click", () => this.fill());
        on("picture", "click", (event) => {
            // A finger asks for the controls, a mouse has them already.
            if (event.pointerType === "touch") this.#toggle();
            else this.#player.toggle();
        });
        for (const what of ["pointermove", "pointerdown", "focusin"]) {
            this.#root.addEventListener(what, (event) => {
                if (event.pointerType !== "touch" || event.target.closest?.("#controls")) this.wake();
            });
        }
        document.addEventListener("keydown", (event) => this.#key(event));
        document.addEventListener("fullscreenchange", () => this.#update());
        this.#player.addEventListener("state", () => this.#update());
        this.#player.addEventListener("frame", () => this.#progress());
    }

    #toggle() {
        if (this.#root.classList.contains("resting")) this.wake();
        else this.#rest();
    }

    /** Shows the controls for a while. */
    wake() {
        this.#root.classList.remove("resting");
        clearTimeout(this.#timer);
        this.#timer = setTimeout(() => this.#rest(), rest_after);
    }

    #rest() {
        const used = this.#root.querySelector("#controls :focus-visible");
        if (this.#player.state === "playing" && !used) this.#root.classList.add("resting");
    }

    mute() {
        this.#sound.muted = !this.#sound.muted;
        this.#update();
    }

    #setVolume(volume) {
        this.#sound.volume = volume;
        this.#sound.muted = false;
        this.#update();
    }

    async fill() {
        if (document.fullscreenElement) await document.exitFullscreen();
        else await this.#root.requestFullscreen?.({ navigationUI: "hide" }).catch(() => {});
    }

    /** The scene that plays, counted from 0. */
    get #scene() {
        const beat = Math.floor(this.#player.beat + 0.05);
        return this.#engine.scenes.findLastIndex((scene) => scene.first <= beat);
    }

    #toScene(steps) {
        const scenes = this.#engine.scenes;
        const wanted = Math.max(0, Math.min(this.#scene + steps, scenes.length - 1));
        this.#player.seekBeat(scenes[wanted].first);
    }

    #toBeat(steps) {
        this.#player.seekBeat(Math.floor(this.#player.beat + 0.05) + steps);
    }

    #key(event) {
        if (this.#root.hidden || event.altKey || event.ctrlKey || event.metaKey) return;
        this.wake();
        const onButton = event.target.closest?.("button");
        const onSlider = event.target.closest?.("input");
        const acts = {
            " ": onButton ? null : () => this.#player.toggle(),
            ArrowLeft: onSlider ? null : () => this.#toBeat(-1),
            ArrowRight: onSlider ? null : () => this.#toBeat(1),
            PageUp: () => this.#toScene(-1),
            PageDown: () => this.#toScene(1),
            f: () => this.fill(),
            m: () => this.mute(),
            c: () => (this.#player.calm = !this.#player.calm),
            Escape: document.fullscreenElement ? null : () => this.dispatchEvent(new Event("leave")),
        };
        const act = acts[event.key.length === 1 ? event.key.toLowerCase() : event.key];
        if (!act) return;
        event.preventDefault();
        act();
    }

    #update() {
        const playing = this.#player.state === "playing";
        this.#root.classList.toggle("paused", !playing);
        this.#element("pause").setAttribute("aria-label", playing ? "Pause" : "Play");
        this.#element("mute").setAttribute("aria-pressed", this.#sound.muted);
        this.#element("calm").setAttribute("aria-pressed", this.#player.calm);
        this.#element("full").setAttribute("aria-pressed", document.fullscreenElement === this.#root);
        this.wake();
    }

    #progress() {
        const beat = this.#player.beat;
        this.#engine.scenes.forEach((scene, i) => {
            const played = Math.max(0, Math.min(1, (beat - scene.first) / scene.beats));
            const text = played.toFixed(3);
            if (this.#scenes[i].style.getPropertyValue("--played") !== text) {
                this.#scenes[i].style.setProperty("--played", text);
            }
        });
        const current = this.#scene;
        this.#scenes.forEach((button, i) => {
            if (i === current) button.setAttribute("aria-current", "true");
            else button.removeAttribute("aria-current");
        });
    }
}
