; SPDX-License-Identifier: MIT
; Intro, 16 beats: a word a beat, a flash a quarter beat after each, nothing between. Glass at 12.25, again at 14.
instr Intro
  section p4, -0.5

  ; Six words and the name: a blow, its flash, hard silence. The flashes spell the hook.
  iwords[] fillarray 67, 74, 75, 74, 67, 70, 67
  iword = 0
  while iword < 7 do
    at iword, "Impact", 1, 0.8 + 0.05 * iword, 0, 0.25 + 0.08 * iword
    at iword, "Kick", 0.5, 0.75, 0, 0.6
    at iword, "Stab", 0.3, 1.8, iwords[iword] - 24, 0.35 + 0.08 * iword
    at iword + 0.25, "Zap", 0.3, 2, iwords[iword], 0.35
    at iword + 0.25, "Snare", 0.2, 0.5 + 0.05 * iword, 0, 0.3
    if iword < 6 then
      hush iword + 0.62, iword + 1
    endif
    iword += 1
  od

  ; The tag slides away: a clock in an empty room, a drone that opens
  at 7, "Drone", 5.2, 1.4, 43, 0.7
  at 7, "Reese", 5, 0.4, 31, 0.2
  hits 7.5, 12, "Tick", "x.o.", 0.9, 86, 0.2
  hits 8, 12, "Tick", "x...", 1, 74, 0.8
  hits 8, 12, "Kick", "o... .... o... ....", 0.9, 0, 0.1
  hits 10, 12, "Hat", "oooo xxxx", 0.6
  at 8, "Riser", 4.2, 0.8, 79, 0.6
  at 11.25, "Suck", 1, 0.8

  ; It shoots backwards through the pane
  hush 12, 12.25
  at 12.25, "Glass", 1, 1
  at 12.25, "Impact", 2, 1.2, 0, 0.9
  at 12.25, "Kick", 0.5, 1, 0, 0.6
  at 12.5, "Drone", 2.4, 1.2, 43, 0.9
  hits 13, 14, "Tick", "o.ox", 0.8, 91, 0.9
  at 13.5, "Suck", 0.5, 0.6

  ; The shards scatter
  at 14, "Impact", 2, 1.1, 0, 0.6
  at 14, "Kick", 0.5, 1, 0, 0.6
  at 14, "Glass", 1, 0.6
  at 14, "Stab", 0.4, 0.9, 43, 0.7
  at 14, "Crash", 2, 0.6
  hits 14.5, 15, "Snare", "rr", 0.6, 0, 0.2
  hush 15, 16
endin
