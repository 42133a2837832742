; SPDX-License-Identifier: MIT
; Metal on top: hats, ride, crash, and the small mechanics. No two strokes of a hat are quite alike.

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
  p3 = 0.1
  ametal cymbal 540 * vary(0.02)
  anoise hiss
  ; A harder stroke opens the top and rings longer
  aout butterhp ametal * (0.6 + 0.5 * p4) + anoise * 0.5, 6200 * vary(0.02)
  aout butterlp aout, 8600 + 5600 * p4
  ilong = (0.045 + 0.035 * p4) * vary(0.25)
  aenv expseg 1, ilong, 0.01, 1, 0.01
  afade linseg 1, 0.085, 1, 0.01, 0, 1, 0
  aleft, aright place aout * aenv * afade * 1.7 * p4 * vary(0.1), (p6 - 0.4) * 0.6
  drum aleft, aright, 0, 0.08
endin

; Open hat, off the beat. tone: length.
instr OpenHat
  ilength = (0.16 + 0.2 * p6) * vary(0.05)
  p3 = ilength + 0.03
  ametal cymbal 505 * vary(0.02)
  aleft hiss
  aright hiss
  aleft butterlp butterhp(ametal * 0.8 + aleft * 0.45, 5400), 10500 + 4000 * p4
  aright butterlp butterhp(ametal * 0.8 + aright * 0.45, 5400), 10500 + 4000 * p4
  achick expseg 1.4, 0.012, 1, 1, 1
  aenv linseg 1, 0.02, 0.75, ilength - 0.04, 0.25, 0.03, 0, 1, 0
  aenv = aenv * achick * 0.62 * p4 * vary(0.1)
  drum aleft * aenv, aright * aenv, 0, 0.12
endin

; Ride: a stick on the cymbal's bow, a bell of four rough modes below, a wash above. tone: how near to the bell.
instr Ride
  p3 = 0.5
  ipitch = vary(0.004)
  amod oscili 900, 1117 * ipitch
  a1 oscili 1, 2140 * ipitch + amod, -1, 0.25
  a2 oscili 0.9, 2987 * ipitch - amod, -1, 0.25
  a3 oscili 0.8, 3771 * ipitch + amod * 1.3, -1, 0.25
  a4 oscili 0.7, 5230 * ipitch - amod * 1.7, -1, 0.25
  aping expseg 1, 0.05 + 0.06 * p4, 0.3, 0.35, 0.012, 1, 0.01
  ametal cymbal 790 * ipitch
  anoise hiss
  abow butterbp ametal, 4700, 2600
  awash butterlp butterhp(anoise * 0.4 + ametal * 0.5, 7600), 8000 + 3500 * p4
  awashenv expseg 0.3, 0.03, 1, 0.4, 0.03, 1, 0.02
  astick expseg 1, 0.005, 0.003, 1, 0.003
  afade linseg 1, 0.44, 1, 0.05, 0, 1, 0
  amodes = (a1 + a2 + a3 + a4) * aping * (0.06 + 0.1 * p6) 
  aout = amodes + abow * aping * 0.8 + awash * awashenv * (0.1 + 0.4 * p4) + anoise * astick * 0.5 * p4
  aleft, aright place aout * afade * 0.72 * p4, 0.25
  drum aleft, aright, 0, 0.05
endin

; Crash: p3 is kept, so a score says how long it rings.
instr Crash
  ametal cymbal 430 * vary(0.02)
  abeat cymbal 611
  aleft hiss
  aright hiss
  kclose expseg 12500, p3, 5200
  aleft butterlp butterhp(ametal * 0.6 + aleft * 0.5, 3200), kclose
  aright butterlp butterhp(abeat * 0.3 + ametal * 0.4 + aright * 0.5, 3200), kclose
  aenv expseg 1, 0.12, 0.5, p3 - 0.12, 0.004
  amid = (aleft + aright) * 0.5
  plain (aleft + amid) * aenv * 0.27 * p4, (aright + amid) * aenv * 0.27 * p4, 0.12, 0
endin

; A small steel part falling into place: gun, clock, relay. p5 tunes it (0: 84). tone: place, 0 left, 1 right.
instr Tick
  p3 = 0.07
  icps = cpsmidinn(p5 == 0 ? 84 : p5) * vary(0.006)
  aindex expseg 3 + 4 * p4, 0.02, 0.3, 1, 0.3
  amod oscili icps * 1.71 * aindex, icps * 1.71
  acar oscili 1, icps + amod, -1, 0.25
  a2 oscili 0.4, icps * 2.74, -1, 0.25
  aenv expseg 1, 0.035 + 0.02 * p4, 0.004, 1, 0.004
  aout butterhp (acar + a2) * aenv, 900
  aleft, aright place aout * 0.28 * p4, (p6 - 0.5) * 1.3
  drum aleft, aright, 0, 0.14
endin
