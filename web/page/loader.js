// SPDX-License-Identifier: MIT
// Files of this folder, and how much of them has come.

/** Says to a viewer why the show cannot play. */
export class Trouble extends Error {}

export const no_webgl =
    "This browser offers no WebGL 2, which draws the show. " +
    "Perhaps it is switched off, or the graphics driver is on the browser's blocklist.";

export class Loader {
    #sizes; // bytes of every file of the folder, by name
    #wanted = 0;
    #come = 0;
    #tell;

    /** @param tell  is told (bytes come, bytes wanted) as they come */
    constructor(tell) {
        this.#tell = tell;
    }

    async #sizeOf(name) {
        this.#sizes ??= this.#fetch("files.json").then((answer) => answer.json());
        return (await this.#sizes)[name];
    }

    async #fetch(name) {
        let answer;
        try {
            answer = await fetch(new URL(name, import.meta.url));
        } catch {
            throw new Trouble(
                `The file ${name} cannot be reached. Is the network there? Reload the page to try again.`,
            );
        }
        if (!answer.ok)
            throw new Trouble(`The file ${name} is missing (${answer.status}). Reload the page to try again.`);
        return answer;
    }

    /**
     * @param name  a file beside this one
     * @returns its bytes; throws a Trouble if it is missing, or shorter or longer than it was made
     */
    async load(name) {
        const size = await this.#sizeOf(name);
        this.#wanted += size;
        const answer = await this.#fetch(name);
        const bytes = new Uint8Array(size);
        let filled = 0;
        const reader = answer.body.getReader();
        try {
            for (;;) {
                const { done, value } = await reader.read();
                if (done) break;
                if (filled + value.length > size) throw new RangeError("too long");
                bytes.set(value, filled);
                filled += value.length;
                this.#come += value.length;
                this.#tell(this.#come, this.#wanted);
            }
        } catch {
            filled = -1;
        }
        if (filled !== size) throw new Trouble(`The file ${name} came in pieces. Reload the page to try again.`);
        return bytes;
    }
}

/** @returns the bytes that were packed with gzip */
export async function unpack(bytes) {
    const stream = new Blob([bytes]).stream().pipeThrough(new DecompressionStream("gzip"));
    return new Uint8Array(await new Response(stream).arrayBuffer());
}
