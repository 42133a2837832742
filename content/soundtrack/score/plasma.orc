; SPDX-License-Identifier: MIT
; Plasma, 32 beats: the title. The beat is gone; a choir sings the theme at half speed in its second dress.
; The last eight beats draw the floor away, the very last is nothing.
instr Plasma
  section p4, -4.3

  at 0, "Slam", 5, 1.5, 0, 0.9
  at 0, "Kick", 0.5, 1.4, 0, 0.6
  at 0, "Crash", 6, 1.4
  at 0, "Stab", 2, 1.6, 43, 1
  at 0, "Faller", 6, 0.7

  ; A veil falls and lifts again
  veil 0.5, 4, 0, 0.16
  veil 4, 20, 0.16, 0

  ; Ground: the lowest octave with its harmonics, wide saws below the voices, air above them
  play 0, 31, "Sub", gSRootsBright, 1.2, 0, 0.8, 2
  play 0, 26, "Pad", gSChordsBright, 0.8, -12, 0.1, 2
  play 0, 31, "Pad", gSChordsBright, 0.3, 0, 0.3, 2
  play 0, 31, "Shimmer", "g4+bb4 - - - | f4+c5 - - - | g4+d5 - - - | ab4+eb5 - f#4+d5 -", 1.2, 0, 0.6, 2

  ; The title: the theme at half speed
  play 0, 31, "Choir", gSTheme, 1.4, 0, 0.8, 0.5
  play 16, 31, "Choir", gSThemeClose, 0.7, 12, 1, 0.5
  play 2, 24, "Bell", ". . g5 . . . d5 . . . . . bb4 . . . | . . f5 . . . c5 . . . . . a4 . . .", 0.75, 0, 0.4
  play 16, 31, "Arp", gSArpBright, 1.2, 12, 0.8, 0.5

  ; A heart, and a clock
  hits 0, 24, "Kick", ".... .... x..o ....", 0.5
  hits 8, 28, "Tick", "o... ..o. ..o. ....", 0.6, 88, 0.9
  hits 8, 28, "Hat", "..o. ..o.", 0.7

  ; Build
  thin 22, 31
  at 20, "Riser", 11, 1.3, 84, 0.6
  at 25.5, "Riser", 5.5, 0.9, 91, 0.8
  at 28, "Impact", 2, 0.9, 0, 0.9
  hits 24, 28, "Snare", "...o .... ..o. o.oo", 0.6, 0, 0.1
  hits 28, 29, "Snare", "X.x.", 0.7, 0, 0.1
  hits 29, 30, "Snare", "Xxxx", 0.8, 0, 0.4
  hits 30, 31, "Snare", "Xrrr", 1, 0, 0.8
  hits 26, 31, "Hat", ".x.x xxxx xxxx xxxx XxXx", 0.9
  hits 28, 31, "Kick", "X...", 1, 0, 0.4
  hush 31, 32
endin
