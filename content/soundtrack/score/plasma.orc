; Plasma, 32 beats: the title. The beat is gone, the theme goes at half speed over wide saws.
; The last four beats build, the very last is nothing.
instr Plasma
  section p4, -4

  at 0, "Impact", 4, 1.8, 0, 0.9
  at 0, "Kick", 0.5, 1.4, 0, 0.6
  at 0, "Crash", 6, 1.4
  at 0, "Stab", 2, 1.8, 43, 1
  at 0, "Stab", 2, 1.2, 31, 0.8
  at 0, "Faller", 6, 0.7

  ; A veil falls and lifts again
  veil 0.5, 4, 0, 0.55
  veil 4, 28, 0.55, 0

  ; Wide saws, two bars a chord, in two octaves
  play 0, 31, "Pad", gSChords, 1.05, 0, 0.5, 2
  play 0, 31, "Pad", gSChords, 0.6, 12, 0.7, 2
  play 0, 31, "Sub", "g1 - - - | eb1 - - - | c2 - - - | ab1 - d2 -", 0.95, 0, 0, 2
  play 16, 31, "Reese", "g1 - - - | eb1 - - - | c2 - - - | ab1 - d2 -", 0.4, 0, 0.3, 2

  ; The theme at half speed
  play 0, 31, "Choir", gSTheme, 0.9, 0, 0.6, 0.5
  play 16, 31, "Wail", gSThemeAnswer, 0.7, 0, 0.6, 0.5
  play 8, 24, "Bell", ". . g5 . . . d5 . . . . . bb4 . . .", 0.4, 0, 0.2

  play 0, 31, "Arp", gSArp, 0.55, 0, 0.5, 0.5

  ; A heart, and a clock
  hits 0, 24, "Kick", ".... .... x..o ....", 0.5
  hits 8, 28, "Tick", "o... ..o. ..o. ....", 0.6, 88, 0.9
  hits 16, 28, "Hat", "..o. ..o.", 0.5

  ; Build
  at 20, "Riser", 11, 0.6, 74, 0.4
  at 28, "Riser", 3, 0.6, 86, 0.9
  at 28, "Impact", 2, 0.6, 0, 0.5
  hits 28, 29, "Snare", "X.x.", 0.6, 0, 0
  hits 29, 30, "Snare", "Xxxx", 0.7, 0, 0.25
  hits 30, 31, "Snare", "Xrrr", 0.9, 0, 0.5
  hits 28, 31, "Kick", "X...", 1, 0, 0.4
  hush 31, 32
endin
