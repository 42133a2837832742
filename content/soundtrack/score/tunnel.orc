; Tunnelgate, 72 beats: a blow on every beat, and one resonant line whose filter opens all the way through.
; It climbs: 24 beats on g, 16 on b flat, 16 on c, 16 on d, and the title falls back to g.

; The line bends the theme's first bar into sixteenths
gSTunnelLine  = {{ g2! g2 g3 d3!  g2 g3 eb3! g2   d3! g2 g3 bb2!  g2 g2 c3! g3  |
                   g2! g2 bb2 g3! g2 d3 eb3! d3   d3! g2 g3 bb2!  c3 g2 c3! d3  }}
gSTunnelBass  = ". . g1 g1 . . g1 g1 . . g1 g1 . . g1 bb1"

instr Tunnel
  section p4, 0.5

  at 0, "Impact", 3, 1, 0, 0.8
  at 0, "Crash", 5, 0.7
  sweep 0, 72, 0.02, 1

  ; The blow on every beat, flash by flash: high, low
  hits 0, 72, "Kick", "X...", 1, 0, 0.3

  ; Roots: from beat, to beat, semitones up
  ifroms[] fillarray 0, 24, 40, 56
  itos[]   fillarray 24, 40, 56, 72
  irises[] fillarray 0, 3, 5, 7
  istage = 0
  while istage < 4 do
    ifrom = ifroms[istage]
    ito   = itos[istage]
    irise = irises[istage]
    play ifrom, ito, "Acid", gSTunnelLine, 0.92 + 0.05 * istage, irise, 0.2 + 0.2 * istage
    play ifrom, ito, "Anvil", "g4! . . . d4 . . . g4! . . . bb4 . . .", 0.75, irise, 0.5
    hits ifrom, ito, "Rumble", "..xx ..xx ..xx .xxx", 0.6 + 0.08 * istage, 31 + irise, 0.15 * istage
    if istage > 0 then
      at ifrom, "Impact", 2, 0.8, 31 + irise, 0.6
      at ifrom, "Crash", 4, 0.7
      at ifrom - 4, "Riser", 4, 0.6, 67 + irise, 0.5
      hits ifrom - 1, ifrom, "Snare", "xxrr", 0.8, 0, 0.2 * istage
    endif
    istage += 1
  od
  play 8, 24,  "Bass", gSTunnelBass, 0.85, 0, 0.25
  play 40, 56, "Bass", gSTunnelBass, 0.9, 5, 0.5
  play 56, 72, "Bass", gSTunnelBass, 0.95, 7, 0.7

  ; Metal joins every eight beats
  hits 8, 72,  "OpenHat", "..X.", 0.7
  hits 16, 72, "Hat", "xoxo", 0.45
  hits 24, 40, "Tick", "x..x ..x. .x.. x...", 0.9, 82, 0.1
  hits 24, 40, "Tick", "..x. .x.. x..x ..xx", 0.9, 89, 0.9
  hits 32, 72, "Clap", ".... X...", 0.8
  hits 40, 72, "Ride", "..x.", 0.7
  hits 48, 72, "Hat", ".X.X", 0.4, 0, 1
  play 16, 24, "Zap", ". . . . . . g4 . . . . . . . . . | . . . . . . bb4 . . . . d5 . . . .", 0.5, 0, 0.5
  play 48, 56, "Arp", gSTunnelLine, 0.5, 29, 0.4
  play 56, 72, "Arp", gSTunnelLine, 0.5, 31, 0.7
  hits 56, 72, "Ride", "x...", 0.7
  hits 64, 68, "Snare", "o.o.", 0.5, 0, 0.1
  hits 68, 70, "Snare", "xoxo", 0.6, 0, 0.3
  hits 70, 72, "Snare", "Xxxx Xxrr", 0.8, 0, 0.6

  ; The camera looks aside: the bass is gone, the tentacles breathe
  play 24, 40, "Pad", "bb3+db4+f4 - - - | gb3+bb3+db4 - - -", 0.65, 0, 0.35, 1
  play 24, 40, "Wail", "bb4 - - - - - - - f5 - - - - - - - | gb5 - - - - - - - f5 - - - db5 - - -", 0.7, 0, 0.3

  ; Back inside: the theme's bones over the line, then its cry
  play 40, 56, "Lead", gSThemeBones, 0.7, 5, 0.5
  play 56, 72, "Lead", gSTheme, 0.75, 7, 0.8
  play 56, 72, "Stab", ". . g2 . . . g2 . . . g2 . . . g2 .", 0.45, 7, 0.7
  at 60, "Riser", 12, 0.7, 86, 0.7

  ; Half a beat of nothing before the title
  hush 71.5, 72
endin
