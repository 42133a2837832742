; SPDX-License-Identifier: MIT
; Tunnelgate, 72 beats: a blow on every beat, and one resonant line whose filter opens all the way through.
; It climbs: 24 beats on g, 16 on b flat, 16 on c, 16 on d, and the title falls from there.

; The line bends the hook into sixteenths; it slides where a note says so. Its bars come in pairs that differ.
gSTunnelLine  = {{ g2! g2 g3 d3!  g2 g3_ eb3 g2   d3! g2 g3 bb2!  g2 g2_ c3 g3  |
                   g2! .  g3! .   g2 d3_ eb3 d3   d3! .  g3! .    c3_ g2 d3! .  }}
gSTunnelAnvil = "g4! . . . d4 . . . g4! . . . bb4 . . . | g4! . . . d5! . d4 . g4! . . d4 bb4 . d5! d5"
gSTunnelBass  = ". . g1 g1 . . g1 g1 . . g1 g1 . . g1 bb1 | . . g1 . . . g1 . . . g1 g2~ . . f1 g1"

instr Tunnelgate
  section p4, 0

  at 0, "Slam", 4, 1.25, 0, 0.6
  at 0, "Crash", 5, 0.9
  sweep 0, 72, 0.02, 1

  ; Roots: from beat, to beat, semitones up
  ifroms[] fillarray 0, 24, 40, 56
  itos[]   fillarray 24, 40, 56, 72
  irises[] fillarray 0, 3, 5, 7
  istage = 0
  while istage < 4 do
    ifrom = ifroms[istage]
    ito   = itos[istage]
    irise = irises[istage]
    ; The blow on every beat, flash by flash: high, low
    hits ifrom, ito, "Kick", "X...", 1, istage == 0 ? 0 : 31 + irise, 0.3
    play ifrom, ito, "Acid", gSTunnelLine, 0.92 + 0.05 * istage, irise, 0.2 + 0.2 * istage
    play ifrom, ito, "Anvil", gSTunnelAnvil, 0.8, irise, 0.5
    hits ifrom, ito, "Rumble", "..xx ..xx ..xx .xxx", 0.5 + 0.06 * istage, 31 + irise, 0.15 * istage
    if istage > 0 then
      at ifrom, "Knock", 2, 0.8, 0, 0.6
      at ifrom, "Crash", 4, 0.6
      at ifrom - 4, "Riser", 4, 0.6, 67 + irise, 0.5
      hits ifrom - 1, ifrom, "Snare", "xxrr", 0.8, 0, 0.2 * istage
    endif
    istage += 1
  od
  play 8, 24,  "Bass", gSTunnelBass, 0.85, 0, 0.25
  play 40, 56, "Bass", gSTunnelBass, 0.8, 5, 0.5
  play 56, 72, "Bass", gSTunnelBass, 0.8, 7, 0.7

  ; Metal joins every eight beats
  hits 8, 72,  "OpenHat", "..X. ..X. ..X. ..X. ..X. ..X. ..X. ..XX", 0.7
  hits 16, 72, "Hat", "xoxo xoxo xoxo xoxo o.xo o.xo xxxo xrxr", 0.45
  hits 24, 40, "Tick", "x..x ..x. .x.. x...", 0.9, 82, 0.1
  hits 24, 40, "Tick", "..x. .x.. x..x ..xx", 0.9, 89, 0.9
  hits 32, 72, "Clap", ".... X... .... X... .... X... .... X..o", 0.8
  hits 40, 72, "Ride", "..x. ..x. ..x. ..x. X.x. X.x. X.x. X.x.", 0.9, 0, 0.5
  hits 48, 72, "Hat", ".X.X", 0.4, 0, 1
  play 8, 24, "Zap", ". . . . . . . . . . . . . . . . | . . . . . . g4 . . . . . bb4 . d5 .", 0.5, 0, 0.5
  hits 8, 24, "Tom", ".... .... .... .... .... .... ...x .xx.", 0.8, 43, 0.3
  hits 40, 56, "Tom", ".... .... .... .... .... ..x. ...x .xxx", 0.8, 48, 0.7
  hits 64, 68, "Snare", "o.o.", 0.5, 0, 0.1
  hits 68, 70, "Snare", "xoxo", 0.6, 0, 0.3
  hits 70, 72, "Snare", "Xxxx Xxrr", 0.8, 0, 0.6

  ; The camera looks aside: the bass is gone, the tentacles breathe
  play 24, 40, "Pad", "bb3+db4+f4 - - - | gb3+bb3+db4 - - -", 0.65, 0, 0.35, 1
  play 24, 40, "Wail", "bb4 - - - - - - - f5 - - - - - - - | gb5 - - - - - - - db5 - - - bb4 - - -", 0.9, 0, 0.5

  ; Back inside: the theme, three sixteenths late against the blows, then its cry on the beat
  play 40.75, 56, "Lead", gSTheme, 0.75, 5, 0.5
  play 56, 72, "Lead", gSTheme, 0.8, 7, 0.8
  play 56, 71, "Stab", ". . . . . . . . . . . . . . . . | . . g2 . . . g2 . . . g2 . . . g2 .", 0.9, 7, 0.8
  at 60, "Riser", 12, 0.7, 86, 0.7

  ; Half a beat of nothing before the title
  hush 71.5, 72
endin
