; SPDX-License-Identifier: MIT
; Leads: the voices of the theme. Lead asks, Wail answers. A harder note bites and plucks more.

; Lead: three saws and a square below, bitten by a filter, sliding into the note behind a pluck. tone: bite.
instr Lead
  p3 = p3 + 0.06
  icps = cpsmidinn(p5)
  kglide expseg 0.95, 0.022, 1, 10, 1
  kshake lfo 1, 5.6, 0
  kdepth linseg 0, 0.22, 0, 0.3, 0.006, 10, 0.006
  kcps = icps * kglide * (1 + kshake * kdepth)
  a1 vco2 0.6, kcps
  a2 vco2 0.4, kcps * 1.009, 0, 0.5, 0.21
  a3 vco2 0.4, kcps * 0.992, 0, 0.5, 0.57
  a4 vco2 0.4, kcps * 0.5, 10, 0.5, 0.8
  ; The pluck: a narrow pulse an octave up that is gone in a tenth of a second
  a5 vco2 0.5, kcps * 2, 2, 0.2
  apluck expseg p4, 0.09, 0.03, 1, 0.01
  ibite = p6 * (0.45 + 0.55 * p4)
  kcut expseg 2000 + 8000 * ibite, 0.12, 1500 + 4800 * ibite, 1, 900 + 2800 * ibite, 10, 800
  al moogladder2 tanh(a1 + a2 * 0.9 + a4 + a5 * apluck), kcut, 0.22
  ar moogladder2 tanh(a1 + a3 * 0.9 + a4 + a5 * apluck), kcut, 0.22
  aenv linseg 0, 0.003, 1, 0.1, 0.8, p3 - 0.163, 0.7, 0.06, 0
  aleft butterhp tanh(al * 1.8) * aenv * 0.27 * p4, 140
  aright butterhp tanh(ar * 1.8) * aenv * 0.27 * p4, 140
  ducked aleft, aright, 0.36, 0.28
endin

; Wail: a hollow pulse whose width wanders, sung through one formant that opens. tone: brightness.
instr Wail
  p3 = p3 + 0.08
  icps = cpsmidinn(p5)
  kshake lfo 1, 5.1, 0
  kdepth linseg 0, 0.15, 0.002, 0.4, 0.008, 10, 0.008
  kcps = icps * (1 + kshake * kdepth)
  kwidth lfo 0.18, 0.7, 0
  a1 vco2 0.6, kcps, 2, 0.32 + kwidth
  a2 vco2 0.6, kcps * 1.006, 2, 0.36 - kwidth, 0.4
  ishine = p6 * (0.4 + 0.6 * p4)
  kcut expseg 1100 + 6200 * ishine, 0.3, 800 + 4200 * ishine, 10, 700
  kmouth expseg 900, 0.12, 1700 + 900 * p4, 10, 1500
  al butterlp a1, kcut
  ar butterlp a2, kcut
  avowel reson a1 + a2, kmouth, 260, 1
  aenv linseg 0, 0.008, 1, 0.2, 0.8, p3 - 0.288, 0.75, 0.08, 0
  amid = (al + ar) * 0.35 + avowel * 0.5
  ducked (al * 0.4 + amid) * aenv * 0.24 * p4, (ar * 0.4 + amid) * aenv * 0.24 * p4, 0.4, 0.3
endin
