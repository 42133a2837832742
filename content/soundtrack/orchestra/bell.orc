; SPDX-License-Identifier: MIT
; Bell: struck metal: a clapper, six modes that die each at its own pace, a hum below. tone: hardness of the clapper.
; A harder stroke wakes more of the upper modes and bends the strike note.
instr Bell
  ilong = 2.6
  p3 = max(p3, ilong)
  icps = cpsmidinn(p5)
  ihard = 0.25 + 0.5 * p4 + 0.4 * p6
  abend expseg 1 + 0.012 * p4, 0.05, 1, 10, 1
  aindex expseg 0.6 + 3.4 * ihard, 0.22, 0.4, 3, 0.1
  amod oscili icps * 3.5 * aindex, icps * 3.5
  astrike oscili 0.7, icps * abend + amod, -1, 0.25
  atierce oscili 0.3, icps * 1.196 * abend, -1, 0.25
  aquint oscili 0.22 * ihard, icps * 1.506
  a1 oscili 0.5, icps * 2.005, -1, 0.25
  a2 oscili 0.5, icps * 2.013, -1, 0.3
  a3 oscili 0.4 * ihard, icps * 2.67
  a4 oscili 0.3 * ihard, icps * 5.43 * vary(0.002), -1, 0.25
  ahum oscili 0.4, icps * 0.5
  alongenv expseg 1, p3, 0.002
  amidenv expseg 1, p3 * 0.5, 0.01, 10, 0.005
  ashortenv expseg 1, p3 * 0.25, 0.003, 10, 0.002
  anoise hiss
  aclapper expseg 1, 0.012, 0.01, 1, 0.01
  aclapper = butterbp(anoise, icps * 5, icps * 4) * aclapper * ihard
  afade linseg 0, 0.0008, 1, p3 - 0.0208, 1, 0.02, 0
  amid = (astrike + ahum) * alongenv + (atierce + aquint + a3) * amidenv * 0.4 + a4 * ashortenv + aclapper
  aleft = (amid + a1 * amidenv * 0.7) * afade * 0.24 * p4
  aright = (amid + a2 * amidenv * 0.7) * afade * 0.24 * p4
  plain aleft, aright, 0.1, 0.3
  gaHallL = gaHallL + aleft * 0.4
  gaHallR = gaHallR + aright * 0.4
endin
