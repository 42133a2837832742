// SPDX-License-Identifier: MIT
// Plays the show: the picture follows the sound.

export class Player extends EventTarget {
    #engine;
    #sound;
    #stats;
    #canvas;
    #state = "stopped"; // "playing", "paused" or "stopped"
    #frame = 0; // on the screen
    #request = 0;
    #lost = false;
    #resume = false; // playing when the context was lost

    constructor(engine, sound, stats, canvas) {
        super();
        this.#engine = engine;
        this.#sound = sound;
        this.#stats = stats;
        this.#canvas = canvas;
        canvas.addEventListener("webglcontextlost", (event) => this.#lose(event));
        canvas.addEventListener("webglcontextrestored", () => this.#restore());
        new ResizeObserver(() => this.fit()).observe(canvas.parentElement);
        addEventListener("resize", () => this.fit()); // also where the window comes to a screen of other pixels
        document.addEventListener("visibilitychange", () => document.hidden && this.pause());
    }

    get state() {
        return this.#state;
    }

    get frame() {
        return this.#frame;
    }

    get beat() {
        return this.#frame / this.#engine.frameRate / this.#engine.beatLength;
    }

    #tell(what) {
        this.dispatchEvent(new Event(what));
    }

    #enter(state) {
        this.#state = state;
        this.#tell("state");
    }

    play() {
        if (this.#state === "playing" || this.#lost) return;
        this.#sound.play(this.#frame / this.#engine.frameRate);
        this.#stats.interrupt();
        this.#enter("playing");
        this.#request = requestAnimationFrame(() => this.#step());
    }

    pause() {
        this.#resume = false;
        if (this.#state !== "playing") return;
        this.#halt("paused");
    }

    #halt(state) {
        cancelAnimationFrame(this.#request);
        this.#sound.pause();
        this.#enter(state);
    }

    toggle() {
        if (this.#state === "playing") this.pause();
        else this.play();
    }

    stop() {
        this.#resume = false;
        this.#halt("stopped");
        this.#frame = 0;
    }

    /** Shows a frame, and goes on from there if the show plays. */
    seek(frame) {
        this.#frame = Math.max(0, Math.min(frame, this.#engine.frames - 1));
        this.#stats.interrupt();
        if (this.#state === "playing") this.#sound.play(this.#frame / this.#engine.frameRate);
        else this.#sound.seek(this.#frame / this.#engine.frameRate);
        this.#draw();
        this.#tell("frame");
    }

    seekBeat(beat) {
        this.seek(this.#engine.frameOfBeat(Math.max(0, Math.min(beat, this.#engine.beats - 1))));
    }

    get calm() {
        return this.#engine.calm;
    }

    set calm(calm) {
        this.#engine.calm = calm;
        if (this.#state !== "stopped") this.#draw();
        this.#tell("state");
    }

    #draw() {
        if (!this.#lost) this.#engine.draw(this.#frame);
    }

    #step() {
        if (this.#state !== "playing") return;
        if (this.#sound.stuck) {
            this.#sound.giveUp();
            this.#tell("silent");
        }
        // The frame that is heard by the time that this one is seen would be one later; within a frame is what counts.
        const wanted = Math.floor(this.#sound.position * this.#engine.frameRate);
        if (wanted >= this.#engine.frames) {
            this.#tell("end");
            return;
        }
        if (wanted > this.#frame || this.#frame === 0) {
            const begun = performance.now();
            const skipped = Math.max(0, wanted - this.#frame - 1);
            this.#frame = wanted;
            this.#draw();
            const late = this.#sound.position - this.#frame / this.#engine.frameRate;
            this.#stats.drawn(skipped, performance.now() - begun, late);
            this.#tell("frame");
        }
        this.#request = requestAnimationFrame(() => this.#step());
    }

    /** Makes the canvas as large as its surroundings allow at 4:3, in the screen's own pixels. */
    fit() {
        const box = this.#canvas.parentElement.getBoundingClientRect();
        if (box.width === 0 || this.#lost) return;
        const width = Math.floor(Math.min(box.width, (box.height * 4) / 3));
        const height = Math.floor(Math.min(box.height, (box.width * 3) / 4));
        this.#canvas.style.width = `${width}px`;
        this.#canvas.style.height = `${height}px`;
        const scale = window.devicePixelRatio || 1;
        const [wide, high] = [width, height].map((side) => Math.max(1, Math.round(side * scale)));
        if (this.#canvas.width === wide && this.#canvas.height === high) return;
        this.#canvas.width = wide;
        this.#canvas.height = high;
        this.#ready();
    }

    /** Tells the engine what it draws on, and draws. */
    #ready() {
        this.#engine.resize(this.#canvas.width, this.#canvas.height, window.devicePixelRatio || 1);
        if (this.#state !== "stopped") this.#draw();
    }

    #lose(event) {
        event.preventDefault(); // asks for it back
        this.#lost = true;
        const playing = this.#state === "playing";
        if (playing) this.#halt("paused");
        this.#resume = playing;
        this.#engine.losePicture();
        this.#tell("lost");
    }

    #restore() {
        this.#lost = false;
        this.#engine.openPicture();
        this.#ready();
        this.fit();
        this.#tell("restored");
        if (this.#resume) this.play();
    }
}
