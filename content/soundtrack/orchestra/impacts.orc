; SPDX-License-Identifier: MIT
; Hits that the picture makes, in three sizes: Slam for a new scene, Impact for a flash, Knock for a small turn.
; A harder one is brighter and falls from higher.

; Slam: a boom from a sixth of a second away, a wall of noise, a crack, and a low chord of iron. p5: its root (0: g1).
; tone: how bright the wall is.
instr Slam
  p3 = max(p3, 2.2)
  schedule "Duck", 0, 0.34, 1
  iroot = cpsmidinn(p5 == 0 ? 31 : p5)
  ; Boom and its first two harmonics, pressed
  afall expseg 190, 0.07, iroot * 1.3, 0.3, iroot, 10, iroot
  a1 oscili 1, afall, -1, 0.05
  a2 oscili 0.5, afall * 2, -1, 0.1
  aboomenv expseg 1, 0.3, 0.75, p3 - 0.32, 0.004, 0.02, 0.0005
  gaBoom = gaBoom + tanh((a1 + a2) * aboomenv * 2.6) * 0.66 * p4
  ; Iron: a fifth and its octave, broken
  a3 vco2 0.5, iroot * 2
  a4 vco2 0.5, iroot * 3.01, 0, 0.5, 0.3
  a5 vco2 0.5, iroot * 4.02, 0, 0.5, 0.6
  kiron expseg 1200 + (1300 + 5500 * p6) * p4, 0.4, 700, p3, 160
  airon butterlp tanh((a3 + a4 + a5) * 2.5), kiron
  aironenv expseg 1, 0.3, 0.6, p3 - 0.32, 0.01, 0.02, 0.002
  ; Wall and crack
  aleft hiss
  aright hiss
  acentre hiss
  kcut expseg 1500 + (2000 + 8500 * p6) * p4, 0.5, 500 + 600 * p4, 2, 300, 10, 200
  aleft butterlp aleft * 0.5 + acentre * 0.9, kcut
  aright butterlp aright * 0.5 + acentre * 0.9, kcut
  awall expseg 1, 0.05, 0.6, 0.36, 0.1, p3 - 0.41, 0.001
  acrack expseg 1, 0.02, 0.02, 1, 0.01
  acrack butterbp acentre * acrack, 2600, 2600
  afade linseg 1, p3 - 0.02, 1, 0.02, 0
  amid = (airon * aironenv * 0.42 + acrack * (0.2 + p4)) * p4 * afade
  plain aleft * awall * 0.62 * p4 * afade + amid, aright * awall * 0.62 * p4 * afade + amid, 0.35, 0
endin

; Impact: the same from further away: a boom and a shorter wall. p5: root (0: g1). tone: how bright the wall is.
instr Impact
  p3 = max(p3, 1.4)
  iroot = cpsmidinn(p5 == 0 ? 31 : p5)
  afall expseg 130 + 40 * p4, 0.08, iroot * 1.25, 0.3, iroot, 10, iroot
  aboom oscili 1, afall, -1, 0.05
  aboomenv expseg 1, 0.22, 0.6, p3 - 0.24, 0.004, 0.02, 0.0005
  gaBoom = gaBoom + tanh(aboom * aboomenv * (1.4 + p4)) * 0.3 * p4
  aleft hiss
  aright hiss
  acentre hiss
  kcut expseg 1200 + (1300 + 6500 * p6) * p4, 0.4, 300 + 500 * p4, 2, 260, 10, 200
  aleft butterlp aleft * 0.5 + acentre * 0.8, kcut
  aright butterlp aright * 0.5 + acentre * 0.8, kcut
  awall expseg 1, 0.05, 0.45, 0.4, 0.07, p3 - 0.45, 0.001
  acrack expseg 1, 0.012, 0.02, 1, 0.01
  acrack butterbp acentre * acrack, 3200, 3000
  afade linseg 1, p3 - 0.02, 1, 0.02, 0
  amid = acrack * (0.1 + 0.5 * p4) * p4 * afade
  plain aleft * awall * 0.36 * p4 * afade + amid, aright * awall * 0.36 * p4 * afade + amid, 0.3, 0
endin

; Knock: a door somewhere in the building. tone: how bright.
instr Knock
  p3 = 0.7
  a1 oscili 1, 172, -1, 0.25
  a2 oscili 0.6, 289, -1, 0.25
  a3 oscili 0.4, 431, -1, 0.25
  aenv1 expseg 1, 0.16, 0.02, 1, 0.01
  aenv2 expseg 1, 0.07, 0.02, 1, 0.01
  anoise hiss
  acrack expseg 1, 0.03, 0.02, 1, 0.01
  acrack butterlp butterhp(anoise, 900) * acrack, 2500 + 6000 * p6 * p4
  afade linseg 1, 0.66, 1, 0.03, 0, 1, 0
  aout = (tanh(a1 * aenv1 + (a2 + a3) * aenv2) * 0.16 + acrack * 0.42) * afade * p4
  plain aout, aout, 0.5, 0.1
endin

; Flicker: a low chord chopped 30 times a second, the sound of a strobe at full speed. p5 root, tone: brightness.
instr Flicker
  icps = cpsmidinn(p5)
  a1 vco2 0.4, icps
  a2 vco2 0.4, icps * 1.4983
  a3 vco2 0.4, icps * 2.009
  a4 vco2 0.4, icps * 1.189
  achop lfo 1, 30, 3
  achop tonex achop, 900, 1
  kcut line 500 + 900 * p6, p3, 1600 + 5200 * p6
  al moogladder2 (a1 + a2 + a3) * (0.25 + 0.75 * achop), kcut, 0.25
  ar moogladder2 (a1 + a4 + a3) * (1 - 0.75 * achop), kcut * 1.1, 0.25
  aenv linseg 0, 0.01, 1, p3 - 0.03, 0.8, 0.02, 0
  amid = (al + ar) * 0.6
  plain (al * 0.45 + amid) * aenv * 0.4 * p4, (ar * 0.45 + amid) * aenv * 0.4 * p4, 0.16, 0
endin
