; Claps, snare, toms: everything that answers the kick.

; Clap: four hands in 27 ms, the first exactly on the beat, then a short room.
instr Clap
  p3 = 0.26
  ahands linseg 1, 0.008, 0.12, 0.0005, 0.9, 0.008, 0.12, 0.0005, 0.85, 0.009, 0.15, 0.0005, 1, 0.03, 0.42, \
    0.14, 0.04, 0.05, 0
  aleft hiss
  aright hiss
  acentre hiss
  aleft = aleft * 0.55 + acentre * 0.8
  aright = aright * 0.55 + acentre * 0.8
  aleft1 butterbp aleft, 1250, 900
  aright1 butterbp aright, 1250, 900
  aleft2 butterbp aleft, 3100, 2600
  aright2 butterbp aright, 3100, 2600
  aleft = tanh((aleft1 * 2.2 + aleft2 * 0.9) * ahands * 1.3) * 0.62 * p4
  aright = tanh((aright1 * 2.2 + aright2 * 0.9) * ahands * 1.3) * 0.62 * p4
  plain aleft, aright, 0.16, 0
endin

; Snare for rolls and fills. tone: pitch, up to an octave.
instr Snare
  p3 = 0.2
  itune = 185 * (1 + p6)
  afall expseg itune * 1.6, 0.03, itune, 1, itune
  abody oscili 1, afall, -1, 0.1
  abodyenv expseg 1, 0.09, 0.02, 1, 0.02
  anoiseenv expseg 1, 0.15, 0.01, 1, 0.01
  aleft hiss
  aright hiss
  aleft butterhp aleft, 1400
  aright butterhp aright, 1400
  afade linseg 1, 0.16, 1, 0.04, 0
  aleft = tanh(abody * abodyenv * 0.9 + aleft * anoiseenv * 0.55) * afade * 0.55 * p4
  aright = tanh(abody * abodyenv * 0.9 + aright * anoiseenv * 0.55) * afade * 0.42 * p4
  plain aleft, aright, 0.12, 0
endin

; Tom: p5 is where it lands. tone: place in the room, 0 left, 1 right.
instr Tom
  p3 = 0.34
  icps = cpsmidinn(p5)
  afall expseg icps * 2.4, 0.07, icps, 1, icps
  abody oscili 1, afall, -1, 0.08
  aenv expseg 1, 0.3, 0.02, 1, 0.02
  afade linseg 1, 0.3, 1, 0.04, 0
  anoise hiss
  agrain expseg 1, 0.02, 0.005, 1, 0.005
  aout = tanh(abody * aenv * 2 + anoise * agrain * 0.5) * afade * 0.42 * p4
  aleft, aright place aout, (p6 - 0.5) * 0.8
  plain aleft, aright, 0.18, 0
endin
