; SPDX-License-Identifier: MIT
; Pads: one event a note; chords are written as chords. A harder one is brighter.

; Pad: seven detuned saws, three for each side and one between; the filter breathes at a pace of its own on each side.
; tone: brightness.
instr Pad
  p3 = p3 + 0.5
  icps = cpsmidinn(p5)
  am vco2 0.7, icps
  al1 vco2 0.3, icps * 1.0062, 0, 0.5, 0.17
  al2 vco2 0.3, icps * 0.9905, 0, 0.5, 0.43
  al3 vco2 0.3, icps * 1.0127, 0, 0.5, 0.71
  ar1 vco2 0.3, icps * 0.9938, 0, 0.5, 0.29
  ar2 vco2 0.3, icps * 1.0093, 0, 0.5, 0.59
  ar3 vco2 0.3, icps * 0.9874, 0, 0.5, 0.87
  ishine = p6 * (0.5 + 0.5 * p4)
  kcut linseg 500 + 1700 * ishine, p3 * 0.5, 900 + 4600 * ishine, p3 * 0.5, 700 + 2200 * ishine
  kleft lfo 0.18, 0.37
  kright lfo 0.18, 0.43
  al butterlp am + al1 + al2 + al3, kcut * (1 + kleft)
  ar butterlp am + ar1 + ar2 + ar3, kcut * (1 + kright)
  al butterhp al, 90
  ar butterhp ar, 90
  irise = min(0.18, p3 * 0.2)
  aenv linseg 0, irise, 1, p3 - irise - 0.5, 0.85, 0.5, 0
  amid = (al + ar) * 0.3
  ducked (al * 0.5 + amid) * aenv * 0.17 * p4, (ar * 0.5 + amid) * aenv * 0.17 * p4, 0.3, 0
endin

; Choir: four singers, each a little off in pitch and in time, whose vowel moves from oo over ah to eh while the note
; lasts. A louder note opens the mouth. tone: how far.
opcode singer, a, iii
  icps, iopen, iseat xin
  kshake lfo 0.0035 + 0.001 * iseat, 4.4 + 0.35 * iseat
  kdrift randi 0.003, 1.3 + 0.4 * iseat, 0.1 + 0.17 * iseat
  kscoop expseg 0.97 + 0.006 * iseat, 0.09 + 0.03 * iseat, 1, 10, 1
  asource vco2 0.5, icps * kscoop * (1 + kshake + kdrift), 0, 0.5, 0.23 * iseat
  abreath hiss
  asource = asource + abreath * 0.03
  ; Formants of oo, ah and eh (first, second, third), in hertz
  imoves = min(p3 * 0.4, 0.5)
  k1 linseg 340, imoves, 340 + 380 * iopen, imoves, 340 + 220 * iopen, 10, 340 + 220 * iopen
  k2 linseg 800, imoves, 800 + 360 * iopen, imoves, 800 + 950 * iopen, 10, 800 + 950 * iopen
  a1 reson asource, k1, 90, 1
  a2 reson asource, k2, 110, 1
  a3 reson asource, 2650 + 60 * iseat, 170, 1
  a4 reson asource, 3500, 260, 1
  aroot butterlp asource, icps * 1.6
  xout a1 * 0.8 + a2 * (1 + 1.2 * iopen) + a3 * (0.8 + 2.2 * iopen) + a4 * 1.6 * iopen + aroot * 0.15
endop

instr Choir
  p3 = p3 + 0.4
  icps = cpsmidinn(p5)
  iopen = limit(p6 * (0.2 + 0.8 * p4), 0, 1)
  a1 singer icps * 1.002, iopen, 0
  a2 singer icps * 0.997, iopen, 1
  a3 singer icps * 1.006, iopen, 2
  a4 singer icps * 0.5, iopen, 3
  irise = min(0.1, p3 * 0.2)
  aenv linseg 0, irise, 1, p3 - irise - 0.4, 0.9, 0.4, 0
  amid = a1 + a4 * 0.5
  aleft butterhp (amid + a2 * 0.7) * aenv * 0.3 * p4, 130
  aright butterhp (amid + a3 * 0.7) * aenv * 0.3 * p4, 130
  ducked aleft, aright, 0.5, 0.1
endin

; Shimmer: air above a chord: five partials two to four octaves up that come and go by themselves. tone: how high.
instr Shimmer
  p3 = p3 + 0.6
  icps = cpsmidinn(p5)
  k1 randi 0.5, 3.1, 0.13
  k2 randi 0.5, 4.3, 0.29
  k3 randi 0.5, 5.2, 0.47
  k4 randi 0.5, 6.1, 0.61
  k5 randi 0.5, 7.3, 0.83
  a1 oscili 0.5 + k1, icps * 4.01
  a2 oscili 0.5 + k2, icps * 8.03
  a3 oscili 0.5 + k3, icps * 12.02
  a4 oscili 0.5 + k4, icps * 16.1
  a5 oscili 0.5 + k5, icps * 20.3
  aair hiss
  aair butterbp aair, 7600 + 1800 * p6, 3400
  ishine = 0.4 + 0.6 * p4
  irise = min(0.4, p3 * 0.3)
  aenv linseg 0, irise, 1, p3 - irise - 0.6, 0.9, 0.6, 0
  amid = a1 * 0.5 + a3 * ishine + aair * 0.9 * ishine
  aleft = (amid + a2 * 0.7 + a5 * p6 * 0.5) * aenv * 0.065 * p4
  aright = (amid + a4 * 0.7 + a2 * 0.2) * aenv * 0.065 * p4
  ducked aleft, aright, 0.5, 0.2
endin

; Drone: a dark fifth that breathes. tone: brightness.
instr Drone
  icps = cpsmidinn(p5)
  a1 vco2 0.4, icps
  a2 vco2 0.4, icps * 1.004, 0, 0.5, 0.3
  a3 vco2 0.4, icps * 1.4983, 0, 0.5, 0.6
  kbreath lfo 1, giTempo / 60 / 4
  kcut = 180 + 700 * p6 * (0.7 + 0.5 * p4 + kbreath)
  al moogladder2 a1 * 1.2 + a2 * 0.4 + a3, kcut, 0.3
  ar moogladder2 a1 * 0.4 + a2 * 1.2 + a3, kcut * 1.07, 0.3
  aenv linseg 0, min(1, p3 * 0.3), 1, p3 - min(1, p3 * 0.3) - 0.05, 1, 0.05, 0
  ducked al * aenv * 0.26 * p4, ar * aenv * 0.26 * p4, 0.25, 0
endin
