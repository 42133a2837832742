// SPDX-License-Identifier: MIT
// The page in a real browser.
//
// usage: node --test page.test.mjs, with
//   BROWSER    chromium or firefox
//   PAGE       the folder that tools/web has built
//   RECORDER   hardsilence-record
//   ROOT       the source folder

import assert from "node:assert/strict";
import { execFileSync } from "node:child_process";
import { mkdtempSync, readFileSync, readdirSync, rmSync, statSync } from "node:fs";
import { tmpdir } from "node:os";
import { join } from "node:path";
import { after, before, describe, test } from "node:test";
import { Browser, Server, textOf, waitForText } from "./support.mjs";

const { BROWSER, PAGE, RECORDER, ROOT } = process.env;

let server;
let browser;

before(async () => {
    server = await Server.start(PAGE);
    browser = await Browser.start(BROWSER);
});

after(async () => {
    await browser?.stop();
    server?.stop();
});

/** A test with a page of its own that must not complain. */
function onPage(name, open, act, { complaints = false } = {}) {
    test(name, async () => {
        const page = await open();
        try {
            await act(page);
            if (!complaints) assert.deepEqual(page.complaints, []);
        } finally {
            await page.close();
        }
    });
}

const first = (options) => () => browser.open(server, options);
const playing = (options) => () => browser.play(server, options);

const stateOf = (page) => page.evaluate(() => window.hardSilence.player.state);
const frameOf = (page) => page.evaluate(() => window.hardSilence.player.frame);
const beatOf = (page) => page.evaluate(() => window.hardSilence.player.beat);
const rest = (milliseconds) => new Promise((resolve) => setTimeout(resolve, milliseconds));

async function paused(page) {
    await page.keyboard.press(" ");
    assert.equal(await stateOf(page), "paused");
}

describe("The folder", () => {
    const sizes = new Map(readdirSync(PAGE).map((name) => [name, statSync(join(PAGE, name)).size]));
    const sum = (names) => names.reduce((bytes, name) => bytes + sizes.get(name), 0);
    const music = ["music.ogg", "music.m4a"];
    const others = [...sizes.keys()].filter((name) => !music.includes(name));

    test("takes at most 11 MB, of which one browser loads 6, 1.2 before the first picture besides the music", () => {
        assert.ok(sum([...sizes.keys()]) <= 11e6);
        for (const one of music) assert.ok(sum([...others, one]) <= 6e6, one);
        assert.ok(sum(others) <= 1.2e6);
    });

    test("holds texts without tools of others: no address but its own", () => {
        for (const name of others.filter((each) => /\.(html|css|js)$/.test(each) && each !== "show.js")) {
            assert.doesNotMatch(readFileSync(join(PAGE, name), "utf8"), /https?:\/\//, name);
        }
    });
});

describe("The first screen", () => {
    onPage("has the title, the warning and two doors of equal size", first(), async (page) => {
        assert.match(await textOf(page, "h1"), /Hard\s+Silence/);
        assert.match(await textOf(page, "#warning"), /strobes heavily.*photosensitive epilepsy/s);
        const sizes = await page.$$eval(".doors button", (doors) =>
            doors.map((door) => [door.textContent, door.offsetWidth, door.offsetHeight]),
        );
        assert.deepEqual(
            sizes.map(([name]) => name),
            ["Watch", "Watch calmly"],
        );
        assert.ok(Math.abs(sizes[0][1] - sizes[1][1]) <= 1);
        assert.equal(sizes[0][2], sizes[1][2]);
    });

    onPage("shows the bytes as they load, all of them in the end", first(), async (page) => {
        await page.waitForFunction(() => document.getElementById("loaded").value === 1);
        assert.match(await textOf(page, "#bytes"), /^4\.\d of 4\.\d MB$/);
    });

    onPage("asks this server alone, below its own folder", first(), async (page) => {
        await page.waitForFunction(() => document.getElementById("loaded").value === 1);
        const foreign = await page.evaluate(() =>
            performance
                .getEntriesByType("resource")
                .map(({ name }) => name)
                .filter((name) => !name.startsWith(new URL(".", location.href))),
        );
        assert.deepEqual(foreign, []);
        const allowed = await page.evaluate(async () => {
            try {
                await fetch("http://localhost:9/");
            } catch {}
            return new Promise((resolve) => {
                document.addEventListener("securitypolicyviolation", (event) => resolve(event.violatedDirective));
                fetch("http://localhost:9/").catch(() => {});
                setTimeout(() => resolve("nothing"), 3000);
            });
        });
        assert.equal(allowed, "connect-src");
        assert.equal(await page.evaluate(() => document.cookie + localStorage.length + sessionStorage.length), "00");
        page.complaints = [];
    });

    test(
        "preselects calm for whom motion is to be reduced",
        { skip: BROWSER === "firefox" && "it cannot be told so" },
        async () => {
            const page = await browser.driven.newPage();
            await page.emulateMediaFeatures([{ name: "prefers-reduced-motion", value: "reduce" }]);
            await page.goto(server.address);
            assert.equal(await page.evaluate(() => document.activeElement.id), "watch-calmly");
            await page.close();
        },
    );

    onPage("opens both doors by the keyboard", first({ query: "?stats" }), async (page) => {
        await page.keyboard.press("Tab");
        assert.equal(await page.evaluate(() => document.activeElement.id), "watch-calmly");
        await page.keyboard.press("Enter");
        await page.waitForFunction(() => window.hardSilence?.player.state === "playing", { timeout: 30000 });
        assert.equal(await page.evaluate(() => window.hardSilence.player.calm), true);
    });
});

describe("The show", () => {
    onPage("plays through all its scenes, within a frame of the sound", playing(), async (page) => {
        for (let scene = 0; scene < 8; ++scene) {
            if (scene > 0) await page.keyboard.press("PageDown");
            const begun = await frameOf(page);
            await page.waitForFunction(
                (frame) => window.hardSilence.player.frame > frame + 60,
                { timeout: 20000 },
                begun,
            );
            const current = await page.$$eval("#scenes button", (all) =>
                all.findIndex((one) => one.ariaCurrent === "true" || one.getAttribute("aria-current")),
            );
            assert.equal(current, scene);
        }
        const { late } = await page.evaluate(() => window.hardSilence.stats.figures);
        assert.ok(late.p50 >= 0 && late.p50 < 1000 / 60, `half of the frames are ${late.p50} ms behind`);
        assert.ok(late.p95 < 1000 / 60 + 4, `one in twenty is ${late.p95} ms behind`);
    });

    onPage("ends on the first screen", playing(), async (page) => {
        await page.evaluate(() => window.hardSilence.player.seekBeat(383));
        await page.waitForFunction(() => document.getElementById("player").hidden, { timeout: 10000 });
        assert.equal(await page.$eval("#watch", (door) => door.checkVisibility() && !door.disabled), true);
        await page.click("#watch-calmly");
        await page.waitForFunction(
            () => window.hardSilence.player.state === "playing" && window.hardSilence.player.frame < 300,
        );
    });

    onPage("stands still in a pause, and goes on from there", playing(), async (page) => {
        await paused(page);
        const frame = await frameOf(page);
        await rest(400);
        assert.equal(await frameOf(page), frame);
        assert.equal(
            await page.$eval("#pause", (button) => button.ariaLabel ?? button.getAttribute("aria-label")),
            "Play",
        );
        await page.keyboard.press(" ");
        await page.waitForFunction((from) => window.hardSilence.player.frame > from, {}, frame);
        assert.ok((await frameOf(page)) < frame + 120);
    });

    onPage(
        "goes from beat to beat by the arrows, from scene to scene by the page keys and the bar",
        playing(),
        async (page) => {
            await paused(page);
            const beat = async () => Math.floor((await beatOf(page)) + 0.05);
            await page.keyboard.press("PageDown");
            assert.equal(await beat(), 16);
            await page.keyboard.press("ArrowRight");
            await page.keyboard.press("ArrowRight");
            assert.equal(await beat(), 18);
            await page.keyboard.press("ArrowLeft");
            assert.equal(await beat(), 17);
            await page.keyboard.press("PageUp");
            assert.equal(await beat(), 0);
            await page.keyboard.press("ArrowLeft");
            assert.equal(await beat(), 0);
            await page.click("#scenes button:nth-child(6)");
            assert.equal(await beat(), 16 + 48 + 96 + 24 + 72);
        },
    );

    onPage("reaches any beat quickly", playing(), async (page) => {
        await paused(page);
        const took = await page.evaluate(() =>
            [383, 0, 200, 100, 300, 20, 250, 128].map((beat) => {
                const begun = performance.now();
                window.hardSilence.player.seekBeat(beat);
                return performance.now() - begun;
            }),
        );
        console.log(`jumps, ms: ${took.map(Math.round).join(" ")}`);
        took.sort((a, b) => a - b);
        assert.ok(took[3] < 100, "half of the jumps");
        assert.ok(took.at(-1) < 1000, "every jump, on a machine that also does other things");
    });

    onPage("mutes, and goes calm and back, by keys", playing(), async (page) => {
        const pressed = (id) => page.$eval(id, (button) => button.getAttribute("aria-pressed"));
        await page.keyboard.press("m");
        assert.equal(await pressed("#mute"), "true");
        await page.keyboard.press("m");
        assert.equal(await pressed("#mute"), "false");
        await page.keyboard.press("c");
        assert.equal(await pressed("#calm"), "true");
        await page.keyboard.press("c");
        assert.equal(await pressed("#calm"), "false");
    });

    onPage("fills the screen and leaves it", playing(), async (page) => {
        await page.keyboard.press("f");
        await page.waitForFunction(() => document.fullscreenElement?.id === "player");
        await page.waitForFunction(() => document.getElementById("full").getAttribute("aria-pressed") === "true");
        await page.keyboard.press("f");
        await page.waitForFunction(() => document.fullscreenElement === null);
    });

    onPage("leaves for the first screen by Escape", playing(), async (page) => {
        await page.keyboard.press("Escape");
        assert.equal(await page.$eval("#player", (player) => player.hidden), true);
        assert.equal(await stateOf(page), "stopped");
    });

    onPage("stays 4:3 and sharp in any window", playing(), async (page) => {
        for (const [width, height, scale] of [
            [844, 390, 3],
            [390, 844, 2],
            [1000, 700, 1],
        ]) {
            await page.setViewport({ width, height, deviceScaleFactor: BROWSER === "chromium" ? scale : 1 });
            await page.waitForFunction(
                (wide, high) => {
                    const box = document.getElementById("picture").getBoundingClientRect();
                    return Math.abs(box.width - Math.min(wide, (high * 4) / 3)) <= 2;
                },
                { timeout: 10000 },
                width,
                height,
            );
            const { box, pixels, ratio } = await page.$eval("#picture", (canvas) => ({
                box: canvas.getBoundingClientRect().toJSON(),
                pixels: [canvas.width, canvas.height],
                ratio: devicePixelRatio,
            }));
            assert.ok(Math.abs(box.width / box.height - 4 / 3) < 0.01, `${box.width} x ${box.height}`);
            assert.ok(Math.abs(pixels[0] - box.width * ratio) <= 1 && Math.abs(pixels[1] - box.height * ratio) <= 1);
            assert.ok(Math.abs(box.left + box.right - width) <= 2 && Math.abs(box.top + box.bottom - height) <= 2);
        }
    });

    onPage("pauses where its tab is hidden", playing(), async (page) => {
        await page.evaluate(() => {
            Object.defineProperty(document, "hidden", { value: true });
            document.dispatchEvent(new Event("visibilitychange"));
        });
        assert.equal(await stateOf(page), "paused");
    });

    onPage("hides its controls while it plays, and shows them to a mouse or a key", playing(), async (page) => {
        const shown = () => page.$eval("#controls", (bar) => bar.checkVisibility({ visibilityProperty: true }));
        await page.waitForFunction(() => document.getElementById("player").classList.contains("resting"), {
            timeout: 10000,
        });
        await rest(300);
        assert.equal(await shown(), false);
        await page.mouse.move(100, 100);
        await page.mouse.move(120, 100);
        await rest(300);
        assert.equal(await shown(), true);
    });

    onPage("names every control for screen readers, in the order of tab", playing(), async (page) => {
        await page.setViewport({ width: 1200, height: 700 }); // a narrow window leaves the volume out
        await paused(page);
        const names = [];
        for (let i = 0; i < 13; ++i) {
            await page.keyboard.press("Tab");
            names.push(
                await page.evaluate(
                    () => document.activeElement.ariaLabel ?? document.activeElement.getAttribute("aria-label"),
                ),
            );
        }
        assert.equal(names[0], "Play");
        assert.deepEqual(
            names.slice(1, 9).map((name) => name.replace(/, beat \d+$/, "")),
            ["Intro", "Gun Girl", "Swapper", "Credits", "Tunnelgate", "Plasma", "Fountain", "Greets"],
        );
        assert.deepEqual(names.slice(9), ["Mute", "Volume", "Calm, without strobes", "Full screen"]);
    });
});

/**
 * Compares in the browser what the show draws with a picture.
 * @returns the share of tiles of 8 x 8 pixels that differ in their mean by more than a quarter, percent: edges and
 *          lines fall out a little differently from one rasteriser to the next
 */
function tilesThatDiffer(page, frame, png) {
    return page.evaluate(
        async (number, base64) => {
            const [width, height, tile] = [512, 384, 8];
            const pixelsOf = (image) => {
                const context = new OffscreenCanvas(width, height).getContext("2d");
                context.drawImage(image, 0, 0);
                return context.getImageData(0, 0, width, height).data;
            };
            const bytes = Uint8Array.from(atob(base64), (letter) => letter.charCodeAt(0));
            const expected = pixelsOf(await createImageBitmap(new Blob([bytes], { type: "image/png" })));
            const canvas = document.getElementById("picture");
            if (canvas.width !== width || canvas.height !== height)
                throw new Error(`${canvas.width} x ${canvas.height}`);
            window.hardSilence.player.seek(number); // draws; the picture is there until the end of this task
            const drawn = pixelsOf(canvas);
            let different = 0;
            for (let y = 0; y < height; y += tile) {
                for (let x = 0; x < width; x += tile) {
                    let sum = 0;
                    for (let j = 0; j < tile; ++j) {
                        for (let i = 0; i < tile; ++i) {
                            const at = 4 * ((y + j) * width + x + i);
                            sum += drawn[at] - expected[at];
                        }
                    }
                    if (Math.abs(sum) / tile ** 2 > 64) ++different;
                }
            }
            return (100 * different) / ((width / tile) * (height / tile));
        },
        frame,
        png,
    );
}

describe("The picture", () => {
    // Two of every scene, at the moments whose pictures the project keeps.
    const moments = [0.5, 12.4, 17.5, 26.5, 68.1, 141, 165.5, 168.2, 184.5, 236, 256, 266, 308, 325, 353.5, 368.5];
    const most = 1; // percent

    onPage("is the recorder's at 16 beats, and not that of another beat", playing(), async (page) => {
        const folder = mkdtempSync(join(tmpdir(), "hardsilence-page-"));
        try {
            execFileSync(RECORDER, ["--beats", moments.join(","), "--size", "512x384", "--out", folder], {
                cwd: ROOT,
                stdio: "ignore",
                env: { ...process.env, LIBGL_ALWAYS_SOFTWARE: "1" },
            });
            const pictures = readdirSync(folder).sort();
            assert.equal(pictures.length, moments.length);
            await paused(page);
            const shares = [];
            for (let i = 0; i < moments.length; ++i) {
                const png = readFileSync(join(folder, pictures[i])).toString("base64");
                const frame = Math.ceil((moments[i] * 60 * 60) / 132 - 1e-6);
                const share = await tilesThatDiffer(page, frame, png);
                const late = await tilesThatDiffer(page, Math.ceil((moments[(i + 2) % 16] * 60 * 60) / 132), png);
                shares.push(`${moments[i]}: ${share.toFixed(2)} (${late.toFixed(0)})`);
                assert.ok(share <= most, `beat ${moments[i]}: ${share} % differ`);
                assert.ok(late > most, `beat ${moments[i]}: another beat's differs in ${late} % alone`);
            }
            console.log(`percent of tiles that differ, and of another beat: ${shares.join(", ")}`);
        } finally {
            rmSync(folder, { recursive: true });
        }
    });

    onPage(
        "comes back after its context was lost",
        playing(),
        async (page) => {
            const lose = (act) =>
                page.evaluate((what) => {
                    window.extension ??= document
                        .getElementById("picture")
                        .getContext("webgl2")
                        .getExtension("WEBGL_lose_context");
                    window.extension[what]();
                }, act);
            await lose("loseContext");
            await waitForText(page, "#notice", /comes back by itself/);
            assert.equal(await stateOf(page), "paused");
            const frame = await frameOf(page);
            await rest(100);
            await lose("restoreContext");
            await page.waitForFunction(
                (from) =>
                    window.hardSilence.player.state === "playing" && window.hardSilence.player.frame > from + 10,
                {},
                frame,
            );
            assert.doesNotMatch((await textOf(page, "#notice")) ?? "", /graphics driver/);
            const white = await page.evaluate(() => {
                window.hardSilence.player.pause();
                window.hardSilence.player.seekBeat(300);
                const context = new OffscreenCanvas(512, 384).getContext("2d");
                context.drawImage(document.getElementById("picture"), 0, 0, 512, 384);
                const pixels = context.getImageData(0, 0, 512, 384).data;
                let count = 0;
                for (let i = 0; i < pixels.length; i += 4) if (pixels[i] > 200) ++count;
                return count / (512 * 384);
            });
            assert.ok(white > 0.5 && white < 0.97, `${white} of the picture is white`);
        },
        { complaints: true },
    );
});

describe("What goes wrong", () => {
    const broken = [
        ["the engine is missing", "show.wasm", "missing", /show\.wasm is missing \(404\)/],
        ["the engine is cut", "show.wasm", "cut", /show\.wasm came in pieces/],
        ["the engine is no engine", "show.wasm", (bytes) => Buffer.alloc(bytes.length, 1), /cannot run the show/],
        ["the data is missing", "show.pack", "missing", /show\.pack is missing \(404\)/],
        ["the data is cut", "show.pack", "cut", /show\.pack came in pieces/],
        ["the list of sizes is missing", "files.json", "missing", /files\.json is missing/],
    ];
    for (const [name, file, fault, says] of broken) {
        onPage(
            `is told where ${name}`,
            async () => {
                server.faults.set(file, fault);
                return browser.open(server);
            },
            async (page) => {
                try {
                    await page.click("#watch");
                    await waitForText(page, "#trouble", says);
                    assert.equal(await page.$eval("#player", (player) => player.hidden), true);
                } finally {
                    server.faults.clear();
                }
            },
            { complaints: true },
        );
    }

    for (const [name, fault, says] of [
        ["missing", "missing", /music\.\w+ is missing \(404\)\. .* without music/],
        ["cut", "cut", /music\.\w+ came in pieces/],
    ]) {
        onPage(
            `plays without music where that is ${name}, and says so`,
            async () => {
                for (const file of ["music.ogg", "music.m4a"]) server.faults.set(file, fault);
                return browser.play(server);
            },
            async (page) => {
                server.faults.clear();
                await waitForText(page, "#notice", says);
                const frame = await frameOf(page);
                await page.waitForFunction((from) => window.hardSilence.player.frame > from + 20, {}, frame);
            },
            { complaints: true },
        );
    }

    onPage(
        "takes the other encoding where the first cannot be read",
        async () => {
            server.faults.set("music.ogg", (bytes) => Buffer.alloc(bytes.length, 1));
            server.requests.length = 0;
            return browser.play(server);
        },
        async (page) => {
            server.faults.clear();
            assert.ok(server.requests.some((path) => path.endsWith("music.m4a")));
            assert.equal(
                (await page.evaluate(() => window.hardSilence.sound.silent)) && BROWSER === "chromium",
                false,
            );
        },
        { complaints: true },
    );

    onPage(
        "is told where there is no WebGL 2",
        first({
            before: () => {
                const get = HTMLCanvasElement.prototype.getContext;
                HTMLCanvasElement.prototype.getContext = function (kind, ...rest) {
                    return kind === "webgl2" ? null : get.call(this, kind, ...rest);
                };
            },
        }),
        async (page) => {
            await waitForText(page, "#trouble", /no WebGL 2/);
            assert.equal(await page.$eval("#watch", (door) => door.disabled), true);
        },
    );

    onPage(
        "plays in silence where no sound can be made",
        playing({
            before: () => {
                window.AudioContext = class {
                    constructor() {
                        throw new Error("no device");
                    }
                };
            },
        }),
        async (page) => {
            await waitForText(page, "#notice", /No sound can be played here/);
            await page.waitForFunction(() => window.hardSilence.player.frame > 30);
        },
    );

    onPage(
        "plays in silence where the sound is held back or its device stands still",
        playing({
            before: () => {
                AudioContext.prototype.resume = () => new Promise(() => {});
                Object.defineProperty(AudioContext.prototype, "state", { get: () => "suspended" });
                Object.defineProperty(AudioContext.prototype, "currentTime", { get: () => 0 });
                AudioContext.prototype.getOutputTimestamp = () => ({ contextTime: 0, performanceTime: 0 });
            },
        }),
        async (page) => {
            await waitForText(page, "#notice", /No sound comes out/);
            await page.waitForFunction(() => window.hardSilence.player.frame > 30, { timeout: 20000 });
        },
    );

    onPage("asks for its texts where scripts are off, in the page itself", first(), async (page) => {
        assert.match(await page.$eval("noscript", (note) => note.textContent), /scripts are switched off/);
    });
});
