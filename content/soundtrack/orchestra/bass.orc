; SPDX-License-Identifier: MIT
; Basses, all mono. A harder note opens the filter further and bites more.

; Bass: two saws and a square growl through a filter that snaps shut, over a sine with its octave. tone: how far it
; opens.
instr Bass
  p3 = p3 + 0.03
  icps = cpsmidinn(p5)
  a1 vco2 0.5, icps
  a2 vco2 0.5, icps * 1.008, 0, 0.5, 0.37
  a3 vco2 0.4, icps * 2.003, 10, 0.5, 0.6
  kgrowl lfo 1, giTempo / 60 * 4, 0
  ksnap expseg 1, 0.09, 0.35, 0.25, 0.12, 10, 0.1
  kcut = 170 + (500 + 4500 * p6) * ksnap * (0.3 + 0.7 * p4) * (1 + 0.25 * kgrowl)
  agrowl moogladder2 tanh((a1 + a2 + a3) * 1.5), kcut, 0.35
  agrowl = tanh(agrowl * (1.6 + 0.8 * p4 + 2.5 * p6))
  agrowl butterhp agrowl, 70
  asub oscili 1, icps
  asecond oscili 0.5, icps * 2
  aenv linseg 0, 0.002, 1, p3 - 0.032, 0.8, 0.03, 0
  low (agrowl * 0.6 + tanh(asub * 1.2 + asecond) * 0.62) * aenv * p4
endin

; Reese: a long growl, two saws that beat against each other. tone: how far the filter wanders.
instr Reese
  p3 = p3 + 0.05
  icps = cpsmidinn(p5)
  a1 vco2 0.5, icps * 1.006
  a2 vco2 0.5, icps * 0.994, 0, 0.5, 0.3
  a3 vco2 0.4, icps * 2.012, 10, 0.5, 0.7
  kwander lfo 1, giTempo / 60 * 0.75, 1
  kcut = 220 + (400 + 500 * p4) * p6 * (1 + 0.8 * kwander)
  agrowl moogladder2 tanh((a1 + a2 + a3) * 2), kcut, 0.3
  agrowl butterhp tanh(agrowl * (2 + p4)), 90
  asub oscili 1, icps
  aenv linseg 0, 0.006, 1, p3 - 0.056, 0.95, 0.05, 0
  low (agrowl * 0.52 + asub * 0.42) * aenv * p4
endin

; Sub: the lowest octave with its second and third harmonics, which breathe. tone: their share.
instr Sub
  p3 = p3 + 0.06
  icps = cpsmidinn(p5)
  kbreath lfo 0.25, giTempo / 60 / 4
  ishare = 0.4 + 0.5 * p6 + 0.2 * p4
  a1 oscili 1, icps
  a2 oscili ishare * 0.8, icps * 2
  a3 oscili ishare * 0.55, icps * 3
  atop vco2 0.3, icps * 2.004
  atop butterlp atop, 260 + 300 * p4 * (1 + kbreath)
  aenv linseg 0, 0.01, 1, p3 - 0.07, 0.9, 0.06, 0
  low tanh(a1 * 0.9 + (a2 + a3) * (1 + kbreath) + atop) * aenv * 0.5 * p4
endin

; Growl: a voice from the basement. Two formants slide from one vowel to another while the note lasts.
; tone: where they start, 0 (oo to ah) to 1 (ee to oh).
instr Growl
  p3 = p3 + 0.04
  icps = cpsmidinn(p5)
  a1 vco2 0.5, icps
  a2 vco2 0.5, icps * 1.011, 0, 0.5, 0.4
  a3 vco2 0.4, icps * 0.5, 10, 0.5, 0.2
  asource = tanh((a1 + a2 + a3) * (1 + 2 * p4))
  ifirst1 = 320 - 40 * p6
  ifirst2 = 700 + 1500 * p6
  ilast1 = 720 - 260 * p6
  ilast2 = 1250 - 350 * p6
  k1 expseg ifirst1, p3 * 0.7, ilast1, 10, ilast1
  k2 expseg ifirst2, p3 * 0.7, ilast2, 10, ilast2
  avowel1 reson asource, k1, k1 * 0.22, 1
  avowel2 reson asource, k2, k2 * 0.16, 1
  adeep butterlp asource, 160
  agrowl = tanh(avowel1 * 3.2 + avowel2 * (1.6 + 2 * p4) + adeep * 0.8)
  agrowl butterhp agrowl, 75
  aenv linseg 0, 0.004, 1, p3 - 0.044, 0.85, 0.04, 0
  aout = agrowl * aenv * p4
  low aout * 0.34
  aside delay aout, 0.009
  aside butterhp aside, 300
  ducked aside * 0.1, -aside * 0.1, 0.5, 0.1
endin
