// SPDX-License-Identifier: MIT
// The show itself, in WebAssembly: see show.cpp.

import createShow from "./show.js";
import { Trouble, no_webgl } from "./loader.js";

export class Engine {
    #module;
    #calm = false;
    #made = false;
    scenes = []; // { title, first, beats }

    /**
     * @param wasm   the bytes of show.wasm
     * @param files  the show's data: a line "name size" for each, an empty line, their bytes one after another
     */
    static async open(wasm, files) {
        const engine = new Engine();
        try {
            engine.#module = await createShow({ wasmBinary: wasm });
        } catch (error) {
            console.error(error);
            throw new Trouble(
                "This browser cannot run the show: it takes WebAssembly with SIMD, which browsers have had since 2023.",
            );
        }
        engine.#addFiles(files);
        return engine;
    }

    #addFiles(files) {
        let at = 0;
        const list = [];
        for (;;) {
            const end = files.indexOf(10, at);
            const line = new TextDecoder().decode(files.subarray(at, end));
            at = end + 1;
            if (line === "") break;
            list.push(line.split(" "));
        }
        const m = this.#module;
        for (const [name, digits] of list) {
            const size = Number(digits);
            const text = m._malloc(name.length + 1);
            const bytes = m._malloc(size);
            m.stringToUTF8(name, text, name.length + 1);
            m.HEAPU8.set(files.subarray(at, at + size), bytes);
            m._add_file(text, bytes, size);
            m._free(bytes);
            m._free(text);
            at += size;
        }
    }

    /** Opens the canvas, for the first time or after its context came back. */
    openPicture() {
        if (this.#module._open_picture() !== 0) {
            throw new Trouble(no_webgl);
        }
        this.#made = false;
    }

    losePicture() {
        this.#module._lose_picture();
        this.#made = false;
    }

    get calm() {
        return this.#calm;
    }

    set calm(calm) {
        if (calm !== this.#calm) this.#made = false;
        this.#calm = calm;
    }

    #make() {
        const m = this.#module;
        m._make_show(this.#calm);
        this.#made = true;
        if (this.scenes.length > 0) return;
        for (let i = 0, first = 0; i < m._scene_count(); ++i) {
            const beats = m._scene_beats(i);
            this.scenes.push({ title: m.UTF8ToString(m._scene_title(i)), first, beats });
            first += beats;
        }
    }

    /** Readies the first frame. */
    start() {
        if (!this.#made || this.#module._next_frame() > 0) this.#make();
    }

    get beats() {
        const last = this.scenes.at(-1);
        return last.first + last.beats;
    }

    /** Seconds. */
    get beatLength() {
        return this.#module._beat_length();
    }

    get frameRate() {
        return this.#module._frames_a_second();
    }

    get frames() {
        return this.frameOfBeat(this.beats);
    }

    /** The first frame on which a beat has been counted; the clock of the show may need one more. */
    frameOfBeat(beat) {
        return Math.ceil(beat * this.beatLength * this.frameRate - 1e-3);
    }

    resize(width, height, scale) {
        this.#module._resize_picture(width, height, scale);
    }

    get nextFrame() {
        return this.#made ? this.#module._next_frame() : 0;
    }

    /** Draws a frame, whichever came before it. */
    draw(frame) {
        if (this.#made && frame === this.nextFrame - 1) {
            this.#module._draw_again();
            return;
        }
        if (!this.#made || frame < this.nextFrame) this.#make();
        this.#module._draw_frame_at(frame);
    }
}
