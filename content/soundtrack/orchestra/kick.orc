; Kick: falls from 180 to 49 Hz, the tonic, within a tenth of a second, behind a click.
; tone: drive, 0 round to 1 broken.
; p5 moves its landing to another note (0: g1): higher is drier and shorter.
instr Kick
  p3 = 0.42
  idrive = 1.5 + 4 * p6
  schedule "Duck", 0, 0.34, min(1, 0.9 * p4 + 0.1)

  ; Body
  afall expseg 1, 0.1, 0.03, 0.32, 0.0005
  ilanding = cpsmidinn(p5 == 0 ? 31 : p5)
  ilong = 49 / ilanding
  acps = ilanding + 131 * afall
  abody oscili 1, acps, -1, 0.02
  apush linseg 0.9, 0.004, 1, 0.07, 0.9, 0.15, 0.3, 0.18, 0.1
  aend linseg 1, 0.1 * ilong, 0.9, 0.14 * ilong, 0.3, 0.12 * ilong, 0.03, 0.05, 0
  abody = tanh(abody * idrive * apush) / tanh(idrive) * aend
  abody butterlp abody, 5200

  ; Click: a grain of noise over a blip that falls with it
  agrain expseg 1, 0.011, 0.001, 1, 0.001
  anoise hiss
  anoise butterhp anoise, 1800
  ablipcps expseg 4200, 0.012, 700, 1, 700
  ablip oscili 1, ablipcps, -1, 0.25
  aclick = (anoise * 0.75 + ablip * 0.7) * agrain

  aout = (abody * 0.84 + aclick) * p4
  gaKick = gaKick + aout
  gaPlainL = gaPlainL + aclick * 0.22 * p4 ; past the glue, so that the attack stays sharp
  gaPlainR = gaPlainR + aclick * 0.22 * p4
endin

; The floor after the kick: a dark rumble on the sixteenths between. tone: how open it is.
instr Rumble
  p3 = 0.2
  icps = cpsmidinn(p5)
  anoise hiss
  anoise butterlp anoise, 90 + 160 * p6
  asub oscili 1, icps
  aenv linseg 0, 0.02, 1, 0.1, 0.6, 0.08, 0
  gaBass = gaBass + tanh((anoise * 1.6 + asub * 0.7) * aenv) * 0.42 * p4
endin
