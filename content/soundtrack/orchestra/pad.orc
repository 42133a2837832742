; Pads: one event a note; chords are written as chords.

; Pad: seven detuned saws, three for each side and one between. p6 tone: brightness.
instr Pad
  p3 = p3 + 0.5
  icps = cpsmidinn(p5)
  am vco2 0.45, icps
  al1 vco2 0.3, icps * 1.0062, 0, 0.5, 0.17
  al2 vco2 0.3, icps * 0.9905, 0, 0.5, 0.43
  al3 vco2 0.3, icps * 1.0127, 0, 0.5, 0.71
  ar1 vco2 0.3, icps * 0.9938, 0, 0.5, 0.29
  ar2 vco2 0.3, icps * 1.0093, 0, 0.5, 0.59
  ar3 vco2 0.3, icps * 0.9874, 0, 0.5, 0.87
  kcut linseg 500 + 1700 * p6, p3 * 0.5, 900 + 4600 * p6, p3 * 0.5, 700 + 2200 * p6
  al butterlp am + al1 + al2 + al3, kcut
  ar butterlp am + ar1 + ar2 + ar3, kcut
  al butterhp al, 120
  ar butterhp ar, 120
  irise = min(0.18, p3 * 0.2)
  aenv linseg 0, irise, 1, p3 - irise - 0.5, 0.85, 0.5, 0
  amid = (al + ar) * 0.25
  ducked (al * 0.75 + amid) * aenv * 0.17 * p4, (ar * 0.75 + amid) * aenv * 0.17 * p4, 0.25, 0
endin

; Choir: two formants sung by a buzz, far away. tone: from oo to ah.
instr Choir
  p3 = p3 + 0.6
  icps = cpsmidinn(p5)
  kshake lfo 0.004, 4.7
  a1 vco2 0.4, icps * (1 + kshake)
  a2 vco2 0.4, icps * (1.007 - kshake), 0, 0.5, 0.4
  if1 = 330 + 420 * p6
  if2 = 800 + 420 * p6
  al1 butterbp a1, if1, 130
  al2 butterbp a1, if2, 170
  ar1 butterbp a2, if1 * 1.03, 130
  ar2 butterbp a2, if2 * 1.03, 170
  al3 butterbp a1, 2700, 320
  ar3 butterbp a2, 2750, 320
  aenv linseg 0, 0.14, 1, p3 - 0.74, 0.9, 0.6, 0
  ducked (al1 + al2 * 0.8 + al3 * 0.4) * aenv * 0.45 * p4, (ar1 + ar2 * 0.8 + ar3 * 0.4) * aenv * 0.45 * p4, 0.5, 0.1
endin

; Drone: a dark fifth that breathes. tone: brightness.
instr Drone
  icps = cpsmidinn(p5)
  a1 vco2 0.4, icps
  a2 vco2 0.4, icps * 1.004, 0, 0.5, 0.3
  a3 vco2 0.3, icps * 1.4983, 0, 0.5, 0.6
  kbreath lfo 1, giTempo / 60 / 4
  kcut = 180 + 700 * p6 * (1.2 + kbreath)
  al moogladder2 a1 + a3, kcut, 0.3
  ar moogladder2 a2 + a3, kcut * 1.07, 0.3
  aenv linseg 0, min(1, p3 * 0.3), 1, p3 - min(1, p3 * 0.3) - 0.05, 1, 0.05, 0
  ducked al * aenv * 0.3 * p4, ar * aenv * 0.3 * p4, 0.2, 0
endin
