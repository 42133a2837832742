; Stabs: chords that strike.

; Stab: one key plays a whole minor chord moved in parallel (root, third, fifth, octave), distorted as one. tone: bite.
instr Stab
  p3 = p3 + 0.05
  icps = cpsmidinn(p5)
  ad1 vco2 0.34, icps
  ad2 vco2 0.34, icps * 1.1892 * 1.003, 0, 0.5, 0.3
  ad3 vco2 0.34, icps * 1.4983, 0, 0.5, 0.6
  ad4 vco2 0.34, icps * 2.005, 0, 0.5, 0.8
  ae1 vco2 0.34, icps * 1.008, 0, 0.5, 0.5
  ae2 vco2 0.34, icps * 1.1892 * 0.995, 0, 0.5, 0.1
  ae3 vco2 0.34, icps * 1.4983 * 1.006, 0, 0.5, 0.9
  ae4 vco2 0.34, icps * 1.994, 0, 0.5, 0.4
  kcut expseg 3200 + 8500 * p6, 0.14, 1100 + 2400 * p6, 0.4, 500 + 900 * p6, 10, 400
  al moogladder2 tanh((ad1 + ad2 + ad3 + ad4) * 1.7), kcut, 0.3
  ar moogladder2 tanh((ae1 + ae2 + ae3 + ae4) * 1.7), kcut, 0.3
  aenv linseg 1, 0.12, 0.75, p3 - 0.17, 0.55, 0.05, 0
  aleft butterhp tanh(al * 1.6) * aenv * 0.4 * p4, 120
  aright butterhp tanh(ar * 1.6) * aenv * 0.4 * p4, 120
  ducked aleft, aright, 0.15, 0.12
endin

; Accent: one note in three octaves that pushes the synths aside, for the fountain's four flashes.
; tone: place, 0 left, 1 right.
instr Accent
  p3 = 0.3
  icps = cpsmidinn(p5)
  schedule "Duck", 0, 0.34, 0.55 * p4
  a1 vco2 0.4, icps
  a2 vco2 0.4, icps * 2.006, 0, 0.5, 0.3
  a3 vco2 0.3, icps * 0.497, 10, 0.5, 0.6
  kcut expseg 11000, 0.09, 2200, 0.2, 700, 10, 500
  asaw moogladder2 tanh((a1 + a2 + a3) * 1.8), kcut, 0.2
  anoise hiss
  anoise butterhp anoise, 4200
  agrain expseg 1, 0.05, 0.02, 1, 0.01
  aenv linseg 1, 0.06, 0.6, 0.2, 0.1, 0.04, 0
  aout butterhp tanh(asaw * 1.5) * 0.4 * aenv + anoise * agrain * 0.9, 180
  aleft, aright place aout * 1.25 * p4, (p6 - 0.5) * 1.3
  plain aleft, aright, 0.22, 0.1
endin
