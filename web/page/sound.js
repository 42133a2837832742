// SPDX-License-Identifier: MIT
// The music, and the clock of the show: what is heard now. Where nothing can be heard, the clock goes on alone.

const start_delay = 0.05; // seconds, for the audio thread to be in time
const patience = 2000; // milliseconds until a clock that stands still counts as broken

export class Sound {
    #context = null; // null: silent
    #gain = null;
    #buffer = null;
    #source = null;
    #origin = 0; // reading of the clock at the music's beginning, seconds
    #from = 0; // where it was started, seconds of the music
    #playing = false;
    #volume = 1;
    #muted = false;
    #checked = null; // { at, reading }: the last time that the clock was seen to go

    /** To be called while a click is handled: browsers let sound begin only then. */
    open() {
        if (this.#context) return;
        try {
            this.#context = new AudioContext({ sampleRate: 48000, latencyHint: "playback" });
            this.#gain = this.#context.createGain();
            this.#gain.connect(this.#context.destination);
            this.#context.resume().catch(() => {});
        } catch {
            this.#context = null;
        }
    }

    get silent() {
        return this.#context === null || this.#buffer === null;
    }

    /** @returns whether the music can be played, from the bytes of a file */
    async load(bytes) {
        if (!this.#context) return false;
        try {
            this.#buffer = await this.#context.decodeAudioData(bytes.buffer.slice(0));
        } catch {
            this.#buffer = null;
        }
        return this.#buffer !== null;
    }

    /** From here on nothing is heard and the clock is the machine's. */
    giveUp() {
        const position = this.position;
        const playing = this.#playing;
        this.pause();
        this.#context?.close().catch(() => {});
        this.#context = null;
        if (playing) this.play(position);
    }

    /** The clock's reading for what is heard at this moment, seconds. */
    #heard() {
        const now = performance.now() / 1000;
        if (this.silent) return now;
        const context = this.#context;
        const stamp = context.getOutputTimestamp?.();
        if (stamp?.performanceTime > 0) return stamp.contextTime + now - stamp.performanceTime / 1000;
        return context.currentTime - (context.outputLatency || context.baseLatency || 0);
    }

    /** @param from  seconds of the music */
    play(from) {
        this.#stop();
        this.#from = from;
        this.#playing = true;
        this.#checked = null;
        if (this.silent) {
            this.#origin = this.#heard() - from;
            return;
        }
        this.#context.resume().catch(() => {});
        this.#source = new AudioBufferSourceNode(this.#context, { buffer: this.#buffer });
        this.#source.connect(this.#gain);
        const when = this.#context.currentTime + start_delay;
        this.#source.start(when, from);
        this.#origin = when - from;
    }

    #stop() {
        this.#source?.stop();
        this.#source?.disconnect();
        this.#source = null;
    }

    pause() {
        if (!this.#playing) return;
        this.#from = this.position;
        this.#playing = false;
        this.#stop();
    }

    /** Where the next play would go on, seconds; only while nothing plays. */
    seek(position) {
        this.#from = position;
    }

    /** Seconds of the music that have been heard. */
    get position() {
        return this.#playing ? Math.max(this.#from, this.#heard() - this.#origin) : this.#from;
    }

    /** @returns whether the clock has stood still for too long although the music plays: there is no device */
    get stuck() {
        if (!this.#playing || this.silent) return false;
        const at = performance.now();
        const reading = this.#context.currentTime;
        if (this.#context.state !== "running" || !this.#checked || reading !== this.#checked.reading) {
            if (this.#context.state === "running" || !this.#checked) this.#checked = { at, reading };
        }
        return at - this.#checked.at > patience;
    }

    set volume(volume) {
        this.#volume = volume;
        this.#setGain();
    }

    get muted() {
        return this.#muted;
    }

    set muted(muted) {
        this.#muted = muted;
        this.#setGain();
    }

    #setGain() {
        // Heard loudness goes with about the square.
        if (this.#gain) this.#gain.gain.value = this.#muted ? 0 : this.#volume ** 2;
    }
}
