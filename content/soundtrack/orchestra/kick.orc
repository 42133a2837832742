; SPDX-License-Identifier: MIT
; Kick: falls from 180 Hz to its note within a tenth of a second, behind a click.
; p5: where it lands, the root of the bar (0: g1). tone: drive, 0 round to 1 broken. A harder stroke clicks more and
; bends further.
instr Kick
  p3 = 0.42
  idrive = 1.3 + 4 * p6 + 0.7 * p4
  schedule "Duck", 0, 0.34, min(1, 0.9 * p4 + 0.1)

  ; Body
  afall expseg 1, 0.1, 0.03, 0.32, 0.0005
  ilanding = cpsmidinn(p5 == 0 ? 31 : p5)
  ilong = limit(49 / ilanding, 0.7, 1.1)
  acps = ilanding + (112 + 20 * p4) * afall
  abody oscili 1, acps, -1, 0.02
  apush linseg 0.9, 0.004, 1, 0.07, 0.9, 0.15, 0.3, 0.18, 0.1
  aend linseg 1, 0.1 * ilong, 0.9, 0.14 * ilong, 0.3, 0.12 * ilong, 0.03, 0.05, 0
  abody = tanh(abody * idrive * apush) / tanh(idrive) * aend
  abody butterlp abody, 5200

  ; Click: a grain of noise over a blip that falls with it
  agrain expseg 1, 0.011, 0.001, 1, 0.001
  anoise hiss
  anoise butterhp anoise, 1800
  ablipcps expseg 3000 + 1200 * p4, 0.012, 700, 1, 700
  ablip oscili 1, ablipcps, -1, 0.25
  aclick = (anoise * 0.75 + ablip * 0.7) * agrain * (0.5 + 0.5 * p4)

  gaKick = gaKick + (abody * 0.8 + aclick) * p4
  gaRoomL = gaRoomL + abody * 0.06 * p4
  gaRoomR = gaRoomR + abody * 0.06 * p4
  gaDrumL = gaDrumL + aclick * 0.34 * p4 ; past the glue, so that the attack stays sharp
  gaDrumR = gaDrumR + aclick * 0.34 * p4
endin

; The floor after the kick: a dark rumble on the sixteenths between. tone: how open it is.
instr Rumble
  p3 = 0.2
  icps = cpsmidinn(p5)
  anoise hiss
  anoise butterlp anoise, 90 + (100 + 60 * p4) * p6
  asub oscili 1, icps
  asecond oscili 0.4, icps * 2
  aenv linseg 0, 0.02, 1, 0.1, 0.6, 0.08, 0
  low tanh((anoise * 1.6 + asub * 0.7 + asecond) * aenv) * 0.42 * p4
endin
