; SPDX-License-Identifier: MIT
; Claps, snare, toms: everything that answers the kick. A harder stroke is brighter, not only louder.

; Clap: four hands in 27 ms, the first exactly on the beat, the others never quite alike; under them a body, round them
; the gated plate.
instr Clap
  p3 = 0.26
  schedule "Gate", 0, 0.26
  igap1 = 0.0085 * vary(0.2)
  igap2 = 0.0085 * vary(0.2)
  igap3 = 0.0095 * vary(0.2)
  ahands linseg 1, igap1, 0.12, 0.0005, 0.9 * vary(0.15), igap2, 0.12, 0.0005, 0.85 * vary(0.15), igap3, 0.15, \
    0.0005, 1, 0.03, 0.42, 0.14, 0.04, 0.04, 0, 1, 0
  aleft hiss
  aright hiss
  acentre hiss
  aleft = aleft * 0.35 + acentre * 0.9
  aright = aright * 0.35 + acentre * 0.9
  ipalm = 1250 * vary(0.06)
  ifingers = (2300 + 1000 * p4) * vary(0.08)
  aleft1 butterbp aleft, ipalm, 900
  aright1 butterbp aright, ipalm, 900
  aleft2 butterbp aleft, ifingers, 2600
  aright2 butterbp aright, ifingers, 2600
  abodyenv expseg 1, 0.06, 0.01, 1, 0.01
  abody oscili 0.35, 210 * vary(0.03), -1, 0.25
  ishine = 0.4 + 0.5 * p4
  aleft = tanh((aleft1 * 2.2 + aleft2 * ishine) * ahands * 1.3 + abody * abodyenv) * 0.62 * p4
  aright = tanh((aright1 * 2.2 + aright2 * ishine) * ahands * 1.3 + abody * abodyenv) * 0.62 * p4
  drum aleft, aright, 0.45, 0.08
endin

; Snare for rolls and fills: a shell of two modes that give way, wires behind it, a stick in front. tone: pitch, up to
; an octave.
instr Snare
  p3 = 0.26
  schedule "Gate", 0, 0.26
  itune = 185 * (1 + p6) * vary(0.015)
  afall expseg 1 + 0.5 * p4, 0.025, 1, 1, 1
  ahead oscili 1, itune * afall, -1, 0.1
  ashell oscili 0.6, itune * 1.78 * afall, -1, 0.2
  aheadenv expseg 1, 0.1, 0.015, 1, 0.015
  ashellenv expseg 1, 0.06, 0.015, 1, 0.015
  ; The wires: two bands that follow the shell and die away at their own pace
  aleft hiss
  aright hiss
  acentre hiss
  aleft = aleft * 0.5 + acentre * 0.8
  aright = aright * 0.5 + acentre * 0.8
  kwires expseg 3200 + 4000 * p4, 0.12, 2600, 1, 2400
  aleft butterlp butterhp(aleft, 1300), kwires * 1.8
  aright butterlp butterhp(aright, 1300), kwires * 1.8
  iring = 0.1 + 0.07 * p4
  awires expseg 1, iring, 0.03, 1, 0.01
  abuzz lfo 0.3, itune * 0.5, 0
  astick expseg 1, 0.006, 0.002, 1, 0.002
  astick = acentre * astick * (0.2 + 0.7 * p4)
  abody = (ahead * aheadenv + ashell * ashellenv) * (1.1 - 0.3 * p4)
  afade linseg 1, 0.2, 1, 0.05, 0, 1, 0
  aleft = tanh(abody * 0.9 + aleft * awires * (0.75 + abuzz * 0.4) + astick) * afade * 0.5 * p4
  aright = tanh(abody * 0.9 + aright * awires * (0.75 + abuzz * 0.4) + astick) * afade * 0.44 * p4
  drum aleft, aright, 0.3, 0.08
endin

; Tom: a skin of three modes, a stick, and air from the shell. p5 is where it lands, tone its place, 0 left, 1 right.
instr Tom
  p3 = 0.4
  icps = cpsmidinn(p5) * vary(0.008)
  ; A harder stroke stretches the skin: it starts higher
  afall expseg 1.5 + 1.1 * p4, 0.07, 1, 1, 1
  a1 oscili 1, icps * afall, -1, 0.08
  a2 oscili 0.45, icps * 1.593 * afall, -1, 0.2
  a3 oscili 0.25, icps * 2.295 * afall
  aenv1 expseg 1, 0.3, 0.02, 1, 0.02
  aenv2 expseg 1, 0.12, 0.02, 1, 0.02
  anoise hiss
  agrain expseg 1, 0.012, 0.005, 1, 0.005
  ashell butterbp anoise, icps * 3.1, icps * 1.6
  astick butterhp anoise, 2200
  afade linseg 1, 0.33, 1, 0.06, 0, 1, 0
  aout = tanh(a1 * aenv1 * 1.8 + (a2 + a3 + ashell * 0.8) * aenv2 + astick * agrain * (0.2 + 0.7 * p4))
  aleft, aright place aout * afade * 0.42 * p4, (p6 - 0.5) * 0.7
  drum aleft, aright, 0.12, 0.14
endin
