; SPDX-License-Identifier: MIT
; Stabs: chords that strike. A harder one is brighter.

; Stab: one key plays a whole minor chord moved in parallel (root, third, fifth, octave), distorted as one, behind
; a thump. tone: bite.
instr Stab
  p3 = p3 + 0.05
  icps = cpsmidinn(p5)
  ad1 vco2 0.34, icps
  ad2 vco2 0.34, icps * 1.1892 * 1.003, 0, 0.5, 0.3
  ad3 vco2 0.34, icps * 1.4983, 0, 0.5, 0.6
  ad4 vco2 0.34, icps * 2.005, 0, 0.5, 0.8
  ae1 vco2 0.34, icps * 1.008, 0, 0.5, 0.5
  ae2 vco2 0.34, icps * 1.1892 * 0.995, 0, 0.5, 0.1
  ae3 vco2 0.34, icps * 1.4983 * 1.006, 0, 0.5, 0.9
  ae4 vco2 0.34, icps * 1.994, 0, 0.5, 0.4
  ihard = 0.4 + 0.6 * p4
  kcut expseg 3000 + 8000 * p6 * ihard, 0.14, 1100 + 2600 * p6 * ihard, 0.4, 500 + 900 * p6, 10, 400
  al moogladder2 tanh((ad1 + ad2 + ad3 + ad4) * 1.7), kcut, 0.3
  ar moogladder2 tanh((ae1 + ae2 + ae3 + ae4) * 1.7), kcut, 0.3
  anoise hiss
  athump expseg 1, 0.015, 0.02, 1, 0.01
  anoise butterbp anoise * athump, 1800, 2400
  aenv linseg 1, 0.12, 0.75, p3 - 0.17, 0.55, 0.05, 0
  amid = (al + ar) * 0.4 + anoise * p4
  aleft butterhp tanh((al * 0.55 + amid) * 1.6) * aenv * 0.38 * p4, 120
  aright butterhp tanh((ar * 0.55 + amid) * 1.6) * aenv * 0.38 * p4, 120
  ducked aleft, aright, 0.45, 0.2
endin

; Accent: the fountain's flashes: a saw in three octaves, a struck plate, a spit of noise. It gives way to the kick that
; it falls on. tone: place, 0 left, 1 right.
instr Accent
  p3 = 0.3
  icps = cpsmidinn(p5)
  a1 vco2 0.4, icps
  a2 vco2 0.4, icps * 2.006, 0, 0.5, 0.3
  a3 vco2 0.3, icps * 0.497, 10, 0.5, 0.6
  kcut expseg 4000 + 7000 * p4, 0.09, 2200, 0.2, 700, 10, 500
  asaw moogladder2 tanh((a1 + a2 + a3) * 1.8), kcut, 0.2
  aindex expseg 1 + 4 * p4, 0.06, 0.3, 1, 0.2
  amod oscili icps * 3.01 * aindex, icps * 3.01
  aplate oscili 0.6, icps * 2 + amod, -1, 0.25
  aplateenv expseg 1, 0.12, 0.05, 0.2, 0.01, 1, 0.01
  anoise hiss
  anoise butterlp butterhp(anoise, 4200), 11000
  agrain expseg 1, 0.006, 0.35, 0.05, 0.01, 1, 0.01
  aenv linseg 1, 0.06, 0.5, 0.09, 0.12, 0.1, 0.04, 0.03, 0, 1, 0
  aout butterhp tanh(asaw * 1.5) * 0.36 * aenv + aplate * aplateenv * aenv * 0.4 + anoise * agrain * 1.7, 220
  aleft, aright place aout * (1 - 0.5 * limit(gaDuck, 0, 1)) * p4, (p6 - 0.5) * 1.1
  plain aleft * 1.3, aright * 1.3, 0.2, 0.12
endin
