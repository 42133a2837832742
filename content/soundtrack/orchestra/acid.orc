; Acid: the resonant sixteenth line. The filter's floor is the shared sweep (gkSweep, 0 closed to 1 open);
; an accented note snaps it further. tone: drive.
instr Acid
  p3 = p3 + 0.02
  icps = cpsmidinn(p5)
  a1 vco2 0.6, icps
  a2 vco2 0.4, icps * 1.004, 10, 0.5, 0.3
  ksnap expseg 1, 0.13, 0.16, 10, 0.1
  iaccent = (p4 > 0.85) ? 1 : 0.45
  kcut = 170 * (24 ^ gkSweep) + (500 + 3600 * gkSweep) * ksnap * iaccent
  kcut limit kcut, 60, 13000
  aline moogladder2 a1 + a2, kcut, 0.62 + 0.2 * iaccent
  aline = tanh(aline * (2.4 + 4 * p6))
  aline butterhp aline, 110
  aenv linseg 0, 0.002, 1, p3 - 0.022, 0.7, 0.02, 0
  aout = aline * aenv * 0.3 * p4
  aside delay aout, 0.0137
  ducked aout * 0.8 + aside * 0.35, aout * 0.8 - aside * 0.35, 0.07, 0.16
endin
