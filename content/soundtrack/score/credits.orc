; SPDX-License-Identifier: MIT
; Credits, 24 beats: the long flickers at 0, 8 and 16, and between them the dancers swap on stabs. Broken beat.
instr Credits
  section p4, -0.5

  ; Flickers: the picture swaps at full speed, the chord is chopped at its pace
  at 0,  "Flicker", 3.6, 1.7, 43, 0.7
  at 8,  "Flicker", 3.6, 1.7, 46, 0.85
  at 16, "Flicker", 3.6, 1.7, 48, 1
  iflick = 0
  while iflick < 24 do
    at iflick, "Impact", 2, 1, 0, 0.5
    at iflick, "Crash", 2, 0.35
    at iflick + 3, "Suck", 1, 0.6
    iflick += 8
  od

  ; The dancers' stabs, one on each swap; the theme told in single blows: its hook up to beat 12, then its close
  ;          beat     4   5   6   7   8   12  13  14  15  16  20  21  22  23
  ibeats[]  fillarray 4,  5,  6,  7,  8,  12, 13, 14, 15, 16, 20, 21, 22, 23
  iroots[]  fillarray 43, 50, 51, 50, 43, 46, 43, 50, 51, 55, 48, 51, 44, 42
  iblow = 0
  while iblow < 14 do
    ilong = (ibeats[iblow] % 8 == 0) ? 0.9 : 0.45
    ilow = iroots[iblow] - (iroots[iblow] > 48 ? 24 : 12)
    at ibeats[iblow], "Stab", ilong, 1.35, iroots[iblow], 1
    at ibeats[iblow], "Zap", 0.2, 0.6, iroots[iblow] + 24, 0.45
    at ibeats[iblow], "Stab", 0.25, 0.8, iroots[iblow] + 12, 0.9
    at ibeats[iblow], "Kick", 0.5, 0.95, 38, 0.5
    at ibeats[iblow], "Crash", 0.5, 0.2
    at ibeats[iblow], "Bass", ilong, 0.6, ilow, 1
    iblow += 1
  od

  ; Broken beat under the flickers, pick-ups between the stabs
  hits 0, 4,   "Kick",  "X... ..x. ..X. ....", 1, 38, 0.4
  hits 8, 12,  "Kick",  ".... ..x. ..X. ....", 1, 38, 0.4
  hits 16, 20, "Kick",  ".... ..x. ..X. ..x.", 1, 38, 0.4
  hits 0, 4,   "Clap",  ".... X... .... X...", 0.9
  hits 8, 12,  "Clap",  ".... X... .... X...", 0.9
  hits 16, 20, "Clap",  ".... X... .... X..o", 0.9
  hits 4, 8,   "Clap",  ".... X... .... X...", 0.7
  hits 12, 16, "Clap",  ".... X... .... X...", 0.7
  hits 20, 23, "Clap",  ".... X... .... X...", 0.7
  hits 4, 8,   "Kick",  "...o ..o. ...o ..o.", 0.9, 38, 0.3
  hits 12, 16, "Kick",  "...o ..o. ...o ..o.", 0.9, 38, 0.3
  hits 0, 23,   "Hat",   "..x. ..xo ..x. ..rx", 0.45
  play 0, 4,   "Bass", "g1! - - . . . g1 . . . g1! . . bb1 . f1", 0.9, 0, 0.6
  play 8, 12,  "Bass", ". . . . . . bb1 . . . bb1! . . c2 . d2", 0.9, 0, 0.6
  play 16, 20, "Bass", ". . . . . . c2 . . . c2! . . d2 . eb2", 0.9, 0, 0.6
  play 4, 8,   "Arp", ". . g5 . . . d5 . . . eb5 . . . d5 bb4", 0.8, 0, 0.6
  play 12, 16, "Arp", ". . c5 . . . eb5 . . . d5 . . . bb4 c5", 0.8, 0, 0.6
  hits 12, 16, "Snare", "...o ..o. .o.. .rxx", 0.7, 0, 0.3
  hits 8, 12,  "Tick", "x.xx .xx. x.xx .x.x", 0.9, 86, 0.9
  hits 16, 20, "Tick", "xxxx xxxx xxxx xxxx", 0.9, 91, 0.1
  hits 20, 22, "Tom", "..x. ..xx ", 0.8, 45, 0.3
  hits 22, 23, "Tom", ".xxx", 0.8, 48, 0.7

  ; The floor is drawn away under the last eight beats
  thin 16, 23.5
  at 16, "Riser", 7.5, 1.5, 86, 0.7
  hits 20, 22, "Snare", "..o. ..oo", 0.6, 0, 0.3
  hits 22, 23.5, "Snare", "..xx .xrr", 0.8, 0, 0.7
  hits 20, 23.5, "Hat", "xxxx", 0.7

  ; Between some of the blows the floor is pulled away
  icut = 0
  icuts[] fillarray 5, 6, 13, 14, 21
  while icut < 5 do
    hush icuts[icut] + 0.44, icuts[icut] + (icuts[icut] < 20 ? 0.75 : 1)
    icut += 1
  od

  ; The last blow is cut off
  hush 23.5, 24
endin
