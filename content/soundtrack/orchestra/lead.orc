; Leads: the voices of the theme.

; Lead: three saws and a square below, bitten by a filter, sliding into the note. tone: bite.
instr Lead
  p3 = p3 + 0.06
  icps = cpsmidinn(p5)
  kglide expseg 0.94, 0.025, 1, 10, 1
  kshake lfo 1, 5.6, 0
  kdepth linseg 0, 0.22, 0, 0.3, 0.006, 10, 0.006
  kcps = icps * kglide * (1 + kshake * kdepth)
  a1 vco2 0.5, kcps
  a2 vco2 0.5, kcps * 1.009, 0, 0.5, 0.21
  a3 vco2 0.5, kcps * 0.992, 0, 0.5, 0.57
  a4 vco2 0.4, kcps * 0.5, 10, 0.5, 0.8
  kcut expseg 2400 + 7000 * p6, 0.12, 1500 + 4600 * p6, 1, 900 + 2600 * p6, 10, 800
  al moogladder2 tanh(a1 + a2 * 0.9 + a4), kcut, 0.22
  ar moogladder2 tanh(a1 + a3 * 0.9 + a4), kcut, 0.22
  aenv linseg 0, 0.003, 1, 0.1, 0.8, p3 - 0.163, 0.7, 0.06, 0
  aleft butterhp tanh(al * 1.8) * aenv * 0.27 * p4, 140
  aright butterhp tanh(ar * 1.8) * aenv * 0.27 * p4, 140
  ducked aleft, aright, 0.16, 0.26
endin

; Wail: a hollow pulse an octave up, for answers and octaves. tone: brightness.
instr Wail
  p3 = p3 + 0.08
  icps = cpsmidinn(p5)
  kshake lfo 1, 5.1, 0
  kdepth linseg 0, 0.15, 0.002, 0.4, 0.008, 10, 0.008
  kcps = icps * (1 + kshake * kdepth)
  kwidth lfo 0.18, 0.7, 0
  a1 vco2 0.6, kcps, 2, 0.32 + kwidth
  a2 vco2 0.6, kcps * 1.006, 2, 0.36 - kwidth, 0.4
  kcut expseg 900 + 5200 * p6, 0.3, 700 + 3600 * p6, 10, 600
  al butterlp a1, kcut
  ar butterlp a2, kcut
  aenv linseg 0, 0.008, 1, 0.2, 0.8, p3 - 0.288, 0.75, 0.08, 0
  ducked (al * 0.8 + ar * 0.2) * aenv * 0.22 * p4, (ar * 0.8 + al * 0.2) * aenv * 0.22 * p4, 0.26, 0.28
endin
