; Greets, 32 beats: a name every two beats for sixteen, then the shaft is empty. The theme thins out to one bell
; and ends on the show's last beat; the tail is the room's.
instr Greets
  section p4, -1.5

  at 0, "Impact", 4, 0.9, 0, 0.5
  at 0, "Crash", 5, 0.6

  ; The fountain's four flashes, further and further away
  ibar = 0
  while ibar < 8 do
    flashes ibar, 0.42 * (0.72 ^ ibar)
    ibar += 1
  od

  ; A name every two beats: a heart beat and a bell
  iname = 0
  while iname < 8 do
    at 2 * iname, "Kick", 0.5, 0.85 - 0.05 * iname
    at 2 * iname, "Zap", 0.2, 0.4 - 0.03 * iname, 67, 0.6
    at 2 * iname + 1.5, "Suck", 0.5, 0.3 - 0.03 * iname
    iname += 1
  od
  hits 0, 8,  "OpenHat", "..x.", 0.5
  hits 0, 14, "Hat", "o.xo", 0.4
  hits 0, 8,  "Clap", ".... x...", 0.5
  play 0, 16, "Sub", gSRoots, 0.8, 0, 0, 1
  play 0, 16, "Pad", gSChords, 0.7, 0, 0.25, 1
  play 0, 8,  "Arp", gSArp, 0.35, 0, 0.2
  play 0, 16, "Wail", gSThemeBones, 0.4, 0, 0.3
  play 0, 16, "Bell", gSTheme, 0.75, 0, 0.4

  ; The bell alone
  play 16, 32, "Choir", "g3+d4 - - - | g3+eb4 - - - | g3+c4 - - - | ab3+c4 - f#3+a3 -", 0.35, 0, 0.2, 1
  play 16, 24, "Bell", gSTheme, 0.7, 0, 0.15
  play 24, 31.5, "Bell", "eb5 - - - - - - - g5 - - - - - f5 - | eb5 - - - d5 - - - ab4 - - - f#4 - - -", 0.6, 0, 0.1

  ; A last half beat of nothing, and home
  hush 31.5, 32
  at 32, "Bell", 4, 1.05, 67, 0.3
  at 32, "Bell", 4, 0.6, 55, 0.1
  at 32, "Impact", 4, 0.55, 0, 0.15
endin
