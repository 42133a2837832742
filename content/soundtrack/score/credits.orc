; Credits, 24 beats: the long flickers at 0, 8 and 16, and between them the dancers swap on stabs. Broken beat.
instr Credits
  section p4, 0

  ; Flickers: the picture swaps at full speed, the chord is chopped at its pace
  at 0,  "Flicker", 3.6, 0.9, 43, 0.3
  at 8,  "Flicker", 3.6, 0.9, 46, 0.5
  at 16, "Flicker", 3.6, 0.9, 48, 0.7
  iflick = 0
  while iflick < 24 do
    at iflick, "Impact", 2, 0.7, 0, 0.5
    at iflick, "Crash", 3, 0.5
    at iflick + 3, "Suck", 1, 0.6
    iflick += 8
  od

  ; The dancers' stabs, one on each swap; the theme's first bar told in single blows
  ;          beat     4   5   6   7   8   12  13  14  15  16  20  21  22  23
  ibeats[]  fillarray 4,  5,  6,  7,  8,  12, 13, 14, 15, 16, 20, 21, 22, 23
  iroots[]  fillarray 43, 50, 51, 50, 46, 48, 51, 50, 46, 43, 51, 50, 44, 42
  iblow = 0
  while iblow < 14 do
    ilong = (ibeats[iblow] % 8 == 0) ? 0.9 : 0.45
    at ibeats[iblow], "Stab", ilong, 0.95, iroots[iblow], 0.75
    at ibeats[iblow], "Stab", 0.2, 0.5, iroots[iblow] + 12, 0.9
    at ibeats[iblow], "Kick", 0.5, 1, 0, 0.3
    at ibeats[iblow], "Crash", 0.7, 0.35
    at ibeats[iblow], "Bass", ilong, 1, iroots[iblow] - 12, 0.8
    iblow += 1
  od

  ; Broken beat under the flickers, pick-ups between the stabs
  hits 0, 4,   "Kick",  "X... ..x. ..X. ....", 1, 0, 0.3
  hits 8, 12,  "Kick",  ".... ..x. ..X. ....", 1, 0, 0.3
  hits 16, 20, "Kick",  ".... ..x. ..X. ..x.", 1, 0, 0.3
  hits 0, 4,   "Clap",  ".... X... .... X...", 0.9
  hits 8, 12,  "Clap",  ".... X... .... X...", 0.9
  hits 16, 20, "Clap",  ".... X... .... X..o", 0.9
  hits 4, 8,   "Clap",  ".... X... .... X...", 0.7
  hits 12, 16, "Clap",  ".... X... .... X...", 0.7
  hits 20, 23, "Clap",  ".... X... .... X...", 0.7
  hits 4, 8,   "Kick",  "...x ..x. ...x ..x.", 0.7
  hits 12, 16, "Kick",  "...x ..x. ...x ..x.", 0.7
  hits 20, 23, "Kick",  "...x ..x. ...x ....", 0.7
  hits 0, 23,  "Hat",   "xox. xoxo x.xo xorx", 0.6
  play 0, 4,   "Bass", "g1! - - . . . g1 . . . g1! . . bb1 . f1", 0.9, 0, 0.6
  play 8, 12,  "Bass", ". . . . . . bb1 . . . bb1! . . c2 . d2", 0.9, 0, 0.6
  play 16, 20, "Bass", ". . . . . . c2 . . . c2! . . d2 . eb2", 0.9, 0, 0.6
  play 4, 8,   "Arp", ". . g5 . . . d5 . . . eb5 . . . d5 bb4", 0.5, 0, 0.5
  play 12, 16, "Arp", ". . c5 . . . eb5 . . . d5 . . . bb4 c5", 0.5, 0, 0.5
  hits 20, 22, "Tom", "..x. ..xx ", 0.8, 40, 0.3
  hits 22, 23, "Tom", ".xxx", 0.8, 36, 0.7

  ; The last blow is cut off
  hush 23.5, 24
endin
