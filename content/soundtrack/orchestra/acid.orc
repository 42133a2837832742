; SPDX-License-Identifier: MIT
; Acid: the resonant sixteenth line. The filter's floor is the shared sweep (gkSweep, 0 closed to 1 open);
; an accented note snaps it further. tone: drive.
; p7, p8: a slide: the pitch moves to note p7 after p8 seconds, without a new envelope (0: none).
instr Acid
  p3 = p3 + 0.02
  icps = cpsmidinn(p5)
  if p7 > 0 then
    kcps linseg icps, p8, icps, 0.06, cpsmidinn(p7), 10, cpsmidinn(p7)
  else
    kcps = icps
  endif
  a1 vco2 0.6, kcps
  a2 vco2 0.4, kcps * 1.004, 10, 0.5, 0.3
  ksnap expseg 1, 0.13, 0.16, 10, 0.1
  iaccent = limit((p4 - 0.6) * 3.5, 0.35, 1.1)
  kcut = 170 * (24 ^ gkSweep) + (500 + 3600 * gkSweep) * ksnap * iaccent
  kcut limit kcut, 60, 12000
  aline moogladder2 a1 + a2, kcut, 0.62 + 0.2 * min(iaccent, 1)
  aline = tanh(aline * (2.4 + 4 * p6))
  aline butterhp aline, 110
  aenv linseg 0, 0.002, 1, p3 - 0.022, 0.7, 0.02, 0
  aout = aline * aenv * 0.27 * p4
  aside delay aout, 0.0137
  ducked aout * 0.9 + aside * 0.25, aout * 0.9 - aside * 0.25, 0.42, 0.25
endin
