; SPDX-License-Identifier: MIT
; Swapper, 96 beats: six shapes of 16 beats. Four beats of gathering, a flash, the whole shape, then its debris.
; Each shape has a bass line and a colour of its own.

gSSwapBass1 = {{ g1! . g1 g2~  . . g1 g1  . g1 g1 .    g2~ . g1 g1  |
                 g1! . g1 g2~  . . g1 g1  . g1 bb1 .   c2~ . bb1 f1 }}
gSSwapBass2 = {{ g1! . g2~ g1 . g1 g2~ .  g1 . g2~ g1 . g1 bb1 .  |
                 eb1! . eb2~ eb1 . eb1 eb2~ . f1 . f2~ f1 . f#1 f#2~ . }}
gSSwapBass3 = {{ eb1! - . eb1 - . eb2~ .  eb1! - . eb1 - . f1 .   |
                 bb1! - . bb1 - . bb1 .   bb1! - . bb1 - . f1 .   |
                 ab1! - . ab1 - . ab1 .   d2! - . d2   - . f#1 .  }}
gSSwapBass5 = {{ g1! . . g1  . . g1 .   g1 g1 . ab1  . . f#1 .   |
                 g1! . . g1  . . g1 .   bb1 bb1 . ab1 . . f#1 f#1 }}

gSSwapGrowl5 = {{ . . . . g1! - - .   . . . .     ab1! - f#1 -   |
                  . . . . g1! - - .   bb1 - ab1 - g1!  - f#1 -   }}

gSSwapRumble5 = {{ . . g1 g1 . . g1 g1  . . g1 ab1 . . f#1 f#1  |
                   . . g1 g1 . . g1 g1  . . bb1 ab1 . . f#1 f#1 }}

; What every shape has: gathering behind a veil from `ibeat`, the flash 4 beats later, what falls from it.
opcode shape, 0, i
  ibeat xin
  at ibeat + 1, "Riser", 2.96, 0.55, 74, 0.4
  at ibeat + 3, "Suck", 1, 0.6
  at ibeat + 4, "Impact", 2, 1.3, 0, 0.9
  at ibeat + 4, "Crash", 4, 0.8
  at ibeat + 8, "Faller", 4, 0.4
  if ibeat > 0 then
    at ibeat, "Knock", 2, 0.6, 0, 0.5
    at ibeat, "Crash", 4, 0.3
    veil ibeat, ibeat + 3.9, 0.85, 0.2
    veil ibeat + 4, ibeat + 4.1, 0, 0
  endif
endop

instr Swapper
  section p4, 0.4
  istraight = 0.15

  ; 1, the cube: the drop. The theme, plain.
  at 0, "Slam", 4, 1.25, 0, 0.7
  at 0, "Crash", 5, 0.9
  shape 0
  hits 0, 3,   "Kick", "X... X... X... X...", 1, 0, istraight
  hits 3, 4,   "Kick", "X.xX", 0.9
  hits 4, 15,  "Kick", "X... X... X... X...", 1, 0, istraight
  hits 4, 15,  "Clap", ".... X... .... X...", 0.9
  play 0, 16,  "Bass", gSSwapBass1, 1, 0, 0.5
  hits 0, 16,  "Hat", "ooxo ooxo ooxo oxxr", 0.85
  hits 0, 16,  "OpenHat", "..X. ..X. ..X. ..X.", 1
  hits 4, 16,  "Clap", ".... .... .... ..o.", 0.6
  play 4, 16,  "Tick", "g5 . . d5 . . . g5 . . bb5 . . d5 . .", 0.8, 0, 0.85
  play 0, 16,  "Lead", gSTheme, 1.15, 0, 0.65
  play 0, 16,  "Stab", "g2 . . . . . g2 . . . . . . . . .", 0.85, 0, 0.5
  hits 15, 16, "Tom", "x.xx", 0.8, 43, 0.2

  ; 2, the spikes: no theme, octave bass and needles
  shape 16
  hits 16, 19, "Kick", "X... X... X...", 1, 0, istraight
  hits 20, 31, "Kick", "X... X... X... X...", 1, 0, istraight
  hits 20, 31, "Clap", ".... X... .... X...", 0.9
  hits 19, 20, "Snare", "x.xr", 0.7
  play 16, 32, "Bass", gSSwapBass2, 1.1, 0, 0.7
  hits 16, 32, "Hat", "xoXo xoXo xoXo xoXr", 0.75
  hits 20, 32, "OpenHat", "..X. ..X. ..X. ..X.", 0.9
  sweep 16, 32, 0.25, 0.6
  play 20, 32, "Growl", ". . . . . . . . . . g1! - . bb1 - . | . . . . . . . . . . f1! - . . f#1 -", 0.85, 0, 0.9
  play 20, 32, "Acid", "g3! . . g3_ bb3 - . g3! . . f3 . g3_ d4 - .", 0.95, 0, 0.4
  play 24, 32, "Stab", ". . g2 . . . g2 . . . bb2 . . . c3 .", 0.85, 0, 0.6
  hits 30, 32, "Snare", ".... o.ox .... xxrr", 0.7, 0, 0.2
  hits 31, 32, "Snare", "xxrr", 0.7, 0, 0.2

  ; 3, the ball: the theme in two voices over moving roots
  shape 32
  play 32, 35, "Kick", "g1! . . . . . . . g1! . . . . . g1 .", 1, 0, istraight
  play 36, 47, "Kick", "eb1! eb1! eb1! eb1! bb1! bb1! bb1! bb1! ab1! ab1! d2! d2!", 1, 0, istraight, 1
  hits 36, 47, "Clap", ".... X... .... X..o", 0.9
  hits 35, 36, "Tom", "x.xx", 0.8, 38, 0.8
  play 36, 48, "Bass", gSSwapBass3, 0.95, 0, 0.55
  hits 32, 48, "Hat", "o.xo ooxo o.xo oxxo", 0.85
  hits 36, 48, "OpenHat", "..X. ..X. ..X. ..X.", 0.95
  play 36, 48, "Tick", "g5 . . d5 . . g5 . . . bb5 . d5 . . g5", 0.8, 0, 0.15
  play 32, 48, "Lead", gSTheme, 0.95, 0, 0.65
  play 32, 48, "Wail", gSThemeBelow, 0.7, 0, 0.5
  play 32, 48, "Pad", gSChords, 0.6, 0, 0.25, 1
  hits 47, 48, "Tom", "xxxx", 0.8, 40, 0.5

  ; 4, the figure eight: half time, wide and empty, the theme's bones on a bell
  at 48, "Crash", 5, 0.3
  at 48, "Knock", 3, 0.8, 0, 0.6
  play 48, 64, "Reese", gSRoots, 0.8, 0, 0.6, 1
  play 48, 64, "Pad", gSChords, 0.5, 0, 0.3, 1
  hits 48, 52, "Hat", "o... x... o... x.o.", 0.7
  at 49, "Riser", 2.96, 0.5, 74, 0.4
  at 51, "Suck", 1, 0.7
  at 52, "Impact", 2, 1.3, 0, 0.9
  at 52, "Crash", 4, 0.8
  play 52, 63, "Kick", {{ eb1! . . . . . eb1 . . . . . . . eb1 . | bb1! . . . . . bb1 . . . bb1 . . . . . |
                          ab1! . . . . . ab1 . . . . . . . . . }}, 1, 0, 0.3
  hits 52, 63, "Clap", ".... .... X... ....", 1
  hits 52, 63, "Snare", ".... .... X... ...o", 0.7
  hits 52, 64, "Hat", "x.o. x.oo x.o. xrxo", 0.7
  play 48, 64, "Bell", gSThemeBones, 0.8, 0, 0.3
  play 56, 64, "Arp", gSArp, 0.9, 12, 0.7
  at 60, "Riser", 4, 0.7, 79, 0.6
  hits 62, 64, "Snare", "o.o. xxrr", 0.8, 0, 0.3

  ; 5, the cross: the heaviest. Driven kick, the theme in the basement.
  shape 64
  hits 64, 67, "Kick", "X... X... X... X...", 1, 0, 0.6
  hits 67, 68, "Kick", "XxXx", 0.9, 0, 0.6
  hits 68, 79, "Kick", "X... X... X... X...", 1, 0, 0.6
  hits 68, 79, "Clap", ".... X... .... X...", 0.9
  play 64, 80, "Bass", gSSwapBass5, 1, 0, 0.95
  play 64, 80, "Rumble", gSSwapRumble5, 0.3, 0, 0.4
  hits 68, 80, "Hat", "o.Xo o.Xo o.Xo oxXr", 0.8
  hits 68, 80, "Ride", "..X. ..X. ..X. ..X.", 0.9, 0, 0.6
  play 64, 80, "Lead", gSTheme, 0.9, -12, 0.9
  play 64, 80, "Growl", gSSwapGrowl5, 1.15, 0, 0.5
  play 68, 80, "Stab", "g2 . . g2 . . ab2 . . . f#2 . . . f#2 .", 0.9, 0, 0.9
  hits 78, 80, "Tom", "x..x ..x.", 0.9, 36, 0.3
  hits 79, 80, "Snare", "xrxr", 0.7, 0, 0.2

  ; 6, the tetrahedron: two leads in turns, everything, up to the edge
  shape 80
  hits 80, 81, "Kick", "X...", 1, 0, 0.3
  play 84, 95, "Kick", "eb1! eb1! eb1! eb1! bb1! bb1! bb1! bb1! ab1! ab1! d2!", 1, 0, 0.3, 1
  hits 84, 95, "Clap", ".... X... .... X...", 0.9
  hits 81, 83, "Snare", "o.o. xoxo", 0.6, 0, 0.2
  hits 83, 84, "Snare", "xxrr", 0.8, 0, 0.4
  play 84, 95, "Bass", gSSwapBass3, 1, 0, 0.75
  hits 80, 95, "Hat", "oxXo oxXo oxXo oxXr", 0.8
  hits 80, 95, "OpenHat", "..X. ..X. ..X. ..X.", 1
  hits 84, 95, "Ride", "X... X... X... X...", 1, 0, 0.6
  play 80, 95, "Lead", gSThemeAsk, 1, 0, 0.8
  play 80, 95, "Wail", gSThemeAnswer, 1.1, 0, 0.9
  play 84, 95, "Arp", gSArp, 1, 12, 0.9
  play 80, 95, "Pad", gSChords, 0.35, 0, 0.3, 1
  at 88, "Riser", 7, 0.9, 86, 0.6
  hits 92, 94, "Snare", "o.o. o.o. xoxo xoxo", 0.6, 0, 0.2
  hits 94, 95, "Snare", "XXrr", 0.9, 0, 0.5
  hush 93.86, 94
  chop 94, 95, 96
endin
