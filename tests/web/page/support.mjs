// SPDX-License-Identifier: MIT
// A browser, and a server on loopback that can break what it serves.

import { spawn } from "node:child_process";
import { once } from "node:events";
import { readFile } from "node:fs/promises";
import { createServer } from "node:http";
import { extname, join } from "node:path";
import puppeteer from "puppeteer-core";

const kinds = {
    ".html": "text/html; charset=utf-8",
    ".css": "text/css",
    ".js": "text/javascript",
    ".json": "application/json",
    ".svg": "image/svg+xml",
    ".wasm": "application/wasm",
    ".otf": "font/otf",
    ".ogg": "audio/ogg",
    ".m4a": "audio/mp4",
    ".pack": "application/octet-stream",
};

/** Below this the page is served: it must not need to stand at the top. */
const place = "/some/where/";

export class Server {
    faults = new Map(); // by file: "missing", "cut", or the bytes to send instead
    requests = []; // paths, in order

    static async start(folder) {
        const server = new Server();
        server.http = createServer((request, answer) => server.#answer(folder, request, answer));
        server.http.listen(0, "127.0.0.1");
        await once(server.http, "listening");
        return server;
    }

    get address() {
        return `http://127.0.0.1:${this.http.address().port}${place}`;
    }

    async #answer(folder, request, answer) {
        const path = new URL(request.url, "http://any").pathname;
        this.requests.push(path);
        const name = path.slice(place.length) || "index.html";
        const fault = this.faults.get(name);
        if (!path.startsWith(place) || fault === "missing") return answer.writeHead(404).end();
        let bytes;
        try {
            bytes = await readFile(join(folder, name));
        } catch {
            return answer.writeHead(404).end();
        }
        if (fault === "cut") bytes = bytes.subarray(0, bytes.length / 2);
        else if (fault) bytes = fault(bytes);
        answer.writeHead(200, { "Content-Type": kinds[extname(name)], "Cache-Control": "no-store" }).end(bytes);
    }

    stop() {
        this.http.closeAllConnections();
        this.http.close();
    }
}

/** An X server without a screen: Firefox draws WebGL in a window alone. */
async function startXvfb() {
    const child = spawn("Xvfb", ["-displayfd", "3", "-nolisten", "tcp", "-screen", "0", "1400x1000x24"], {
        stdio: ["ignore", "ignore", "ignore", "pipe"],
    });
    const [number] = await once(child.stdio[3], "data");
    return { child, display: `:${String(number).trim()}` };
}

export class Browser {
    /** @param kind  "chromium" or "firefox", as Debian packages them */
    static async start(kind) {
        const browser = new Browser();
        browser.kind = kind;
        if (kind === "chromium") {
            browser.driven = await puppeteer.launch({
                executablePath: "/usr/bin/chromium",
                args: ["--no-sandbox", "--use-angle=swiftshader", "--enable-unsafe-swiftshader"],
            });
        } else {
            browser.xvfb = await startXvfb();
            browser.driven = await puppeteer.launch({
                browser: "firefox",
                executablePath: "/usr/bin/firefox-esr",
                headless: false,
                env: { ...process.env, DISPLAY: browser.xvfb.display, LIBGL_ALWAYS_SOFTWARE: "1" },
            });
        }
        return browser;
    }

    async stop() {
        await this.driven.close();
        this.xvfb?.child.kill();
    }

    /**
     * A page of its own, 512 x 384.
     * @param before  runs in it before its own scripts
     */
    async open(server, { query = "", before = null } = {}) {
        const page = await this.driven.newPage();
        page.complaints = [];
        page.on("console", (message) => {
            if (message.type() === "error") page.complaints.push(message.text());
        });
        page.on("pageerror", (error) => page.complaints.push(error.message));
        await page.setViewport({ width: 512, height: 384 });
        if (before) await page.evaluateOnNewDocument(before);
        await page.goto(server.address + query);
        return page;
    }

    /** The same with the show playing, and its parts at hand as window.hardSilence. */
    async play(server, { door = "#watch", ...options } = {}) {
        const page = await this.open(server, { query: "?stats", ...options });
        await page.click(door);
        await page.waitForFunction(() => window.hardSilence?.player.state === "playing", { timeout: 30000 });
        return page;
    }
}

/** What an element says, or null if it is not to be seen. */
export function textOf(page, selector) {
    return page.$eval(selector, (found) => (found.checkVisibility() ? found.textContent.trim() : null));
}

/** Waits until an element says something that matches. */
export function waitForText(page, selector, pattern) {
    return page.waitForFunction(
        (where, source) => {
            const found = document.querySelector(where);
            return found.checkVisibility() && new RegExp(source).test(found.textContent);
        },
        { timeout: 20000 },
        selector,
        pattern.source,
    );
}
