; SPDX-License-Identifier: MIT
; Arp: a short pulse behind a glassy pluck, thrown from side to side. tone: brightness; a harder note plucks more.
giArpSide = 0.4 ; where the next note goes
instr Arp
  p3 = p3 + 0.08
  icps = cpsmidinn(p5)
  a1 vco2 0.5, icps, 2, 0.22
  a2 vco2 0.5, icps * 1.005, 0, 0.5, 0.4
  ishine = p6 * (0.1 + 0.9 * p4)
  kcut expseg 2200 + 8000 * ishine, 0.1, 1200 + 3400 * ishine, 10, 700
  aline moogladder2 a1 + a2, kcut, 0.25
  aline butterhp aline, 350
  aindex expseg 0.5 + 2.5 * p4, 0.06, 0.2, 1, 0.1
  amod oscili icps * 4 * aindex, icps * 4
  apluck oscili 0.5, icps * 2 + amod, -1, 0.25
  apluckenv expseg 1, 0.11, 0.02, 1, 0.01
  aenv expseg 1, p3, 0.02
  afade linseg 0, 0.0015, 1, p3 - 0.0115, 1, 0.01, 0
  giArpSide = -giArpSide
  aleft, aright place (aline + apluck * apluckenv * (0.3 + 0.7 * p4)) * aenv * afade * 0.52 * p4, giArpSide
  ducked aleft, aright, 0.35, 0.3
endin
