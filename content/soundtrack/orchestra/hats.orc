; Metal on top: hats, ride, crash, and the small mechanics.

; Six squares that share no harmonic, the voice of a cymbal. icps: the lowest.
opcode cymbal, a, i
  icps xin
  a1 vco2 1, icps, 10
  a2 vco2 1, icps * 1.342, 10, 0.5, 0.2
  a3 vco2 1, icps * 1.2312, 10, 0.5, 0.4
  a4 vco2 1, icps * 1.6532, 10, 0.5, 0.6
  a5 vco2 1, icps * 1.9523, 10, 0.5, 0.8
  a6 vco2 1, icps * 2.1523, 10, 0.5, 0.1
  xout (a1 + a2 + a3 + a4 + a5 + a6) / 6
endop

; Closed hat. tone: place in the room, 0 left, 1 right (0 also when left out: a little left).
instr Hat
  p3 = 0.085
  ametal cymbal 540
  anoise hiss
  aout butterhp ametal * 0.9 + anoise * 0.55, 7600
  aenv expseg 1, 0.055 + 0.03 * p4, 0.01, 1, 0.01
  afade linseg 1, 0.075, 1, 0.01, 0
  aleft, aright place aout * aenv * afade * 1.5 * p4, (p6 - 0.4) * 0.7
  plain aleft, aright, 0.02, 0
endin

; Open hat, off the beat. tone: length.
instr OpenHat
  ilength = 0.16 + 0.2 * p6
  p3 = ilength + 0.03
  ametal cymbal 505
  aleft hiss
  aright hiss
  aleft butterhp ametal * 0.8 + aleft * 0.5, 6400
  aright butterhp ametal * 0.8 + aright * 0.5, 6400
  aenv linseg 1, 0.02, 0.75, ilength - 0.04, 0.25, 0.03, 0
  plain aleft * aenv * 0.58 * p4, aright * aenv * 0.58 * p4, 0.05, 0
endin

; Ride: rings on over the groove.
instr Ride
  p3 = 0.42
  ametal cymbal 790
  anoise hiss
  abow butterbp ametal, 5200, 3600
  awash butterhp anoise * 0.3 + ametal * 0.4, 8800
  aenv expseg 1, 0.06, 0.35, 0.33, 0.02, 1, 0.02
  afade linseg 1, 0.38, 1, 0.04, 0
  aleft, aright place (abow * 0.8 + awash) * aenv * afade * 0.7 * p4, 0.3
  plain aleft, aright, 0.06, 0
endin

; Crash: p3 is kept, so a score says how long it rings.
instr Crash
  ametal cymbal 430
  aleft hiss
  aright hiss
  aleft butterhp ametal * 0.6 + aleft * 0.6, 3600
  aright butterhp ametal * 0.6 + aright * 0.6, 3600
  aenv expseg 1, 0.12, 0.5, p3 - 0.12, 0.004
  plain aleft * aenv * 0.5 * p4, aright * aenv * 0.5 * p4, 0.12, 0
endin

; A small steel part falling into place: gun, clock, relay. p5 tunes it (0: 84). tone: place, 0 left, 1 right.
instr Tick
  p3 = 0.06
  icps = cpsmidinn(p5 == 0 ? 84 : p5)
  aindex expseg 6, 0.02, 0.3, 1, 0.3
  amod oscili icps * 1.71 * aindex, icps * 1.71
  acar oscili 1, icps + amod, -1, 0.25
  aenv expseg 1, 0.04, 0.004, 1, 0.004
  aout butterhp acar * aenv, 900
  aleft, aright place aout * 0.3 * p4, (p6 - 0.5) * 1.6
  plain aleft, aright, 0.1, 0.06
endin
