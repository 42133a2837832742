; SPDX-License-Identifier: MIT
; Fountain, 64 beats: the climax, four rounds of sixteen that share nothing but the theme. Every four beats four
; flashes, a fifth of a beat apart.

; Round one: bare. Round three: off the beat. Round four: both together, running.
gSFountainBass1 = {{ . . g1! -   . . g1 g2~   . . g1! -   . . g2~ g1~  |
                     . . eb1! -  . . eb1 .    . . eb1 eb1 . eb2~ f1 .  |
                     . . bb1! -  . . bb1 bb2~ . . bb1! -  . . f1~ bb1~ |
                     . . ab1! .  . . ab1 .    . d2! d2 .  . d2 f#1 f#1 }}
gSFountainBass3 = {{ . g1! . g1   . g1 g2~ .    . g1! . g1   g2~ . g1 .    |
                     . eb1! . eb1 . eb1 eb2~ .  . eb1! . eb1 eb2~ . f1 .   |
                     . bb1! . bb1 . bb1 bb2~ .  . bb1! . bb1 bb2~ . f1 .   |
                     . ab1! . ab1 . ab1 ab2~ .  . d2! . d2   d3~ . f#1 .   }}
gSFountainBass4 = {{ . g1! g1 g1~    . g1! g1 g2~    . g1! g1 g1~    . g1! g2~ g1~   |
                     . eb1! eb1 eb1~ . eb1! eb1 eb2~ . eb1! eb1 eb1~ . eb1! eb2~ f1~ |
                     . bb1! bb1 bb2~ . bb1! bb1 bb2~ . bb1! bb1 bb1~ . bb1! bb2~ f1~ |
                     . ab1! ab1 ab1~ . ab1! ab1 ab2~ . d2! d2 d2~    . d2! d3~ f#1~  }}

; One blow of chord a bar or two, in the minor of its root
gSFountainStabs = {{ g2! . . g2 . . g2 . . . . . g2! . g2 . | . . . . c3! . . c3 . . c3 . . . . . |
                     bb2! . . bb2 . . g2 . . . . . g2! . g2 . | . . . . f2! . . f2 . . d2! . . d2 . . }}

; The four flashes of a bar: its chord falls across the room, a fifth of a beat apart. The bar is counted from 0.
opcode flashes, 0, iio
  ibar, ilevel, itranspose xin
  inotes[] fillarray 79, 74, 70, 67, 79, 75, 70, 67, 77, 74, 70, 65, 80, 75, 72, 68
  iflash = 0
  while iflash < 4 do
    at 4 * ibar + 0.2 * iflash, "Accent", 0.3, ilevel, inotes[4 * (ibar % 4) + iflash] + itranspose, iflash / 3
    iflash += 1
  od
endop

instr Fountain
  section p4, 0.5
  ; Every four beats: flashes on the chord of the bar; hats leave them the first beat
  ibar = 0
  while ibar < 16 do
    flashes ibar, ibar == 0 || ibar >= 12 ? 1.9 : 1.2, ibar < 12 ? 0 : 2
    ibar += 1
  od

  ; Every sixteen: a crash, and a fill before it
  iround = 0
  while iround < 48 do
    at iround, "Crash", 5, 0.5
    hits iround + 14, iround + 15, "Tom", "x.xx", 0.9, 45, 0.2
    hits iround + 15, iround + 16, "Tom", "x.xr", 0.9, 38, 0.8
    hits iround + 15, iround + 16, "Snare", "xxrr", 0.7, 0, 0.3
    at iround + 12, "Riser", 4, 0.5, 79, 0.4
    iround += 16
  od

  ; Round one: theme, kick and bass, and nothing else
  at 0, "Slam", 5, 1.25, 0, 0.6
  play 0, 16,  "Kick", gSKicks, 1, 0, 0.3, 1
  play 0, 16,  "Bass", gSFountainBass1, 1, 0, 0.5
  play 0, 16,  "Lead", gSTheme, 1.1, 0, 0.8
  hits 4, 16,  "Clap", ".... .... .... .... .... X... .... X...", 0.9
  hits 8, 16,  "OpenHat", ".... .... .... .... ..X. ..X. ..X. ..X.", 0.7

  ; Round two: the floor breaks into half time; arpeggios, and the bones of the theme sung over its second dress
  at 16, "Impact", 3, 1, 0, 0.6
  play 16, 32, "Kick", {{ eb1! . . . . . . . . . . eb1 . . . . | f1! . . . . . . . . . f1 . . . f1 . |
                          g1! . . . . . . . . . . g1 . . . .   | ab1! . . . . . . . . . d2 . d2 . d2 d2 }}, 1, 0, 0.4
  hits 16, 32, "Clap", ".... .... X... ....", 1
  hits 16, 32, "Snare", ".... .... X... ...o .... .... X... .o.o", 0.8
  hits 16, 31, "Hat", ".... o... .... o.x. .... o... x.xo x.xr", 0.6
  play 16, 32, "Reese", gSRootsBright, 0.75, 0, 0.5, 1
  play 16, 32, "Pad", gSChordsBright, 0.4, 0, 0.3, 1
  play 16, 32, "Arp", gSArpBright, 0.9, 0, 0.8
  play 16, 32, "Wail", gSTheme, 0.7, 12, 0.7

  ; Round three: stabs, a bass against the beat, and the theme in canon, two beats apart and an octave
  at 32, "Impact", 3, 1, 0, 0.6
  play 32, 48, "Kick", gSKicks, 1, 0, 0.35, 1
  hits 32, 48, "Clap", ".... X... .... X...", 1
  hits 32, 48, "OpenHat", ".... ..X. ..X. ..X. .... ..X. ..X. .XXX", 0.8
  hits 32, 48, "Hat", "x... x.xx x.xx x.xx .... ...o x.x. xrxr", 0.5
  play 32, 48, "Bass", gSFountainBass3, 1, 0, 0.9
  play 32, 48, "Stab", gSFountainStabs, 0.9, 0, 0.7
  play 32, 48, "Lead", gSTheme, 0.95, 0, 0.7
  play 34, 48, "Wail", gSTheme, 0.65, 12, 0.9

  ; Round four: all of it, a whole tone up, with a slow melody against the theme
  at 48, "Impact", 3, 1.1, 33, 0.8
  at 48, "Crash", 5, 0.9
  at 56, "Crash", 3, 0.6
  play 48, 63, "Kick", gSKicks, 1, 2, 0.35, 1
  hits 48, 62, "Clap", ".... X... .... X... .... X... .... X..x", 1
  hits 48, 63, "OpenHat", ".... ..X. ..X. ..X. .... ..X. ..X. ..XX", 0.9
  hits 48, 63, "Hat", "x... xoXo xoXo xoXr x... xxXx xoxo rrXr", 0.6
  hits 48, 63, "Ride", "X... X.x. X.x. X.x. X... X... X.x. x.x.", 0.8, 0, 0.7
  play 48, 63, "Bass", gSFountainBass4, 0.95, 2, 0.8
  play 48, 63, "Pad", gSChords, 0.4, 2, 0.4, 1
  play 48, 63, "Lead", gSTheme, 0.95, 2, 1
  play 48, 63, "Choir", gSCounter, 1.2, 2, 1
  play 48, 63, "Wail", gSThemeBelow, 0.7, 14, 0.8
  play 48, 63, "Arp", ". . . . . . . . . . . . . . . . | a5 . e5 a5 . e5 c5 . a5 . e5 a5 . c6 a5 e5", 1.1, 12, 1
  at 56, "Riser", 7, 0.6, 86, 0.6
  hits 61, 62, "Snare", "xoxo", 0.6, 0, 0.2
  hits 62, 63, "Snare", "XXrr", 0.9, 0, 0.6
  hush 61.86, 62
  chop 62, 63, 64
endin
