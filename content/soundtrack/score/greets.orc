; SPDX-License-Identifier: MIT
; Greets, 32 beats: a name every two beats for sixteen, then the shaft is empty. The theme thins out to one bell
; and ends on the show's last beat; the tail is the room's.
instr Greets
  section p4, -1.5

  at 0, "Impact", 4, 1.2, 0, 0.7
  at 0, "Crash", 5, 0.6

  ; The fountain's four flashes, further and further away
  ibar = 0
  while ibar < 8 do
    flashes ibar, 0.55 * (0.76 ^ ibar)
    ibar += 1
  od

  ; A name every two beats: a heart beat and a bell. The heart goes on when the names are gone, slower and softer.
  iname = 0
  while iname < 8 do
    at 2 * iname, "Kick", 0.5, 0.85 - 0.05 * iname
    at 2 * iname, "Zap", 0.2, 0.4 - 0.03 * iname, 67, 0.6
    at 2 * iname + 1.5, "Suck", 0.5, 0.3 - 0.03 * iname
    iname += 1
  od
  at 16, "Kick", 0.5, 0.45
  at 20, "Kick", 0.5, 0.35
  at 24, "Kick", 0.5, 0.25
  hits 0, 12,  "OpenHat", "..x.", 0.4
  hits 0, 18, "Hat", "o.xo", 0.4
  hits 0, 8,  "Clap", ".... x...", 0.5

  ; What carries them leaves one by one between beats 12 and 26: sub, pad, choir
  play 0, 16,  "Sub", gSRoots, 0.8, 0, 0.3, 1
  play 16, 20, "Sub", gSRoots, 0.6, 0, 0.2, 1
  play 20, 24, "Sub", "eb1 - - -", 0.4, 0, 0.1, 1
  play 0, 16,  "Pad", gSChords, 0.6, 0, 0.25, 1
  play 16, 20, "Pad", gSChords, 0.45, 0, 0.15, 1
  play 20, 24, "Pad", "g3+bb3+eb4 - - -", 0.3, 0, 0.1, 1
  play 0, 10,  "Arp", gSArp, 0.7, 12, 0.5
  play 0, 16, "Bell", gSTheme, 0.75, 0, 0.4

  ; The bell alone, the choir far behind it
  play 16, 32, "Choir", "g3+d4 - - - | g3+eb4 - - - | f3+d4 - - - | ab3+c4 - f#3+a3 -", 0.5, 0, 0.2, 1
  play 16, 24, "Bell", gSTheme, 0.7, 0, 0.15
  play 24, 31.5, "Bell", gSThemeClose, 0.6, 0, 0.1

  ; A last half beat of nothing, and home
  hush 31.5, 32
  at 32, "Bell", 4, 1.05, 67, 0.3
  at 32, "Bell", 4, 0.6, 55, 0.1
  at 32, "Impact", 4, 0.55, 0, 0.15
endin
