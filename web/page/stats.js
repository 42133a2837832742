// SPDX-License-Identifier: MIT
// What ?stats shows: the times between frames, and how far the picture is behind the sound.

const kept = 600; // frames, ten seconds

function percentile(sorted, share) {
    return sorted.length ? sorted[Math.floor((sorted.length - 1) * share)] : 0;
}

export class Stats {
    #element;
    #intervals = [];
    #work = [];
    #late = [];
    #last = 0;
    #skipped = 0;
    #shown = 0;

    /** @param element  where they are written once a second */
    constructor(element) {
        this.#element = element;
    }

    /** The times start anew, after a pause or a jump. */
    interrupt() {
        this.#last = 0;
    }

    forget() {
        this.#intervals.length = this.#work.length = this.#late.length = 0;
        this.#skipped = 0;
        this.#last = 0;
    }

    /**
     * A frame was drawn.
     * @param skipped  frames left out before it
     * @param work     milliseconds that the script took for it
     * @param late     seconds from the frame's own time to what was heard when it was drawn
     */
    drawn(skipped, work, late) {
        const now = performance.now();
        if (this.#last) {
            this.#intervals.push(now - this.#last);
            this.#work.push(work);
            this.#late.push(1000 * late);
            this.#skipped += skipped;
        }
        this.#last = now;
        for (const list of [this.#intervals, this.#work, this.#late]) if (list.length > kept) list.shift();
        if (now - this.#shown > 1000) {
            this.#shown = now;
            this.#show();
        }
    }

    /** Milliseconds: { frames, skipped, interval, work, late }, the last three each with p50, p95, p99 and most. */
    get figures() {
        const of = (list) => {
            const sorted = Float64Array.from(list).sort();
            return {
                p50: percentile(sorted, 0.5),
                p95: percentile(sorted, 0.95),
                p99: percentile(sorted, 0.99),
                most: percentile(sorted, 1),
            };
        };
        return {
            frames: this.#intervals.length,
            skipped: this.#skipped,
            interval: of(this.#intervals),
            work: of(this.#work),
            late: of(this.#late),
        };
    }

    #show() {
        const f = this.figures;
        const row = (name, { p50, p95, p99, most }) =>
            name.padEnd(18) + [p50, p95, p99, most].map((value) => value.toFixed(1).padStart(7)).join("");
        this.#element.textContent = [
            "ms                   p50    p95    p99   most",
            row("between frames", f.interval),
            row("script", f.work),
            row("behind the sound", f.late),
            `${f.frames} frames drawn, ${f.skipped} left out`,
        ].join("\n");
    }
}
